// SPDX-License-Identifier: MIT
#include "platform/foundation/UserDefaults.h"

#include "platform/foundation/Assertions.h"
#include "platform/foundation/PrivateFiles.h"
#include "platform/foundation/PropertyList.h"

#include <QFileInfo>

UserDefaults::UserDefaults(QString path, NotificationCenter& notifications, RunLoop& runLoop, SystemLog& log)
    : m_path(std::move(path))
    , m_notifications(notifications)
    , m_runLoop(runLoop)
    , m_log(log) {
    load();
}

UserDefaults::~UserDefaults() {
    synchronize();
}

void UserDefaults::registerDefaults(const PropertyListDictionary& defaults) {
    for (const auto& [key, value] : defaults)
        m_registered.insert(key, value);
}

const PropertyListValue& UserDefaults::object(const QString& key) const {
    const PropertyListValue& own = m_values.value(key);
    return own.isAbsent() ? m_registered.value(key) : own;
}

void UserDefaults::setObject(const QString& key, PropertyListValue value) {
    if (m_values.value(key) == value)
        return;
    if (value.isAbsent())
        m_values.remove(key);
    else
        m_values.insert(key, std::move(value));
    m_isDirty = true;
    if (!m_joining || !m_joining->isValid())
        m_joining = m_runLoop.scheduleOnce(kJoiningDelay, [this] { synchronize(); });
    m_notifications.post(kUserDefaultsDidChangeNotification);
}

void UserDefaults::synchronize() {
    m_joining.reset();
    if (!m_isDirty)
        return;
    try {
        if (const auto written = write(); !written)
            m_log.log(QStringLiteral("The settings could not be written: %1").arg(written.failure().text));
        else
            m_isDirty = false;
    } catch (const InternalInconsistency& failure) {
        // A value that no property list can hold must not take the rest of the program along.
        m_log.log(failure.logLine());
    }
}

void UserDefaults::load() {
    const auto read = PropertyList::readFile(m_path);
    if (read && read->asDictionary()) {
        m_values = *read->asDictionary();
        return;
    }
    if (!read && read.failure().kind == Failure::Kind::NotFound)
        return;
    m_isDamaged = true;
    m_log.log(QStringLiteral("The settings cannot be read and count as empty: %1")
                  .arg(read ? QStringLiteral("%1: not a dictionary").arg(m_path) : read.failure().text));
}

Outcome UserDefaults::write() {
    if (m_isDamaged) {
        const auto aside = PrivateFiles::setAside(m_path);
        if (!aside && aside.failure().kind != Failure::Kind::NotFound)
            return aside.failure();
        if (aside)
            m_log.log(QStringLiteral("The damaged settings were set aside as %1").arg(*aside));
        m_isDamaged = false;
    }
    if (auto made = PrivateFiles::makeFolder(QFileInfo(m_path).absolutePath()); !made)
        return made;
    return PropertyList::writeXmlFile(m_values, m_path);
}
