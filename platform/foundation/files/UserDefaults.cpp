// SPDX-License-Identifier: MIT
#include "platform/foundation/files/UserDefaults.h"

#include "platform/foundation/files/PrivateFiles.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/values/Assertions.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

// All rows of the most timers, expanded, take half of it.
constexpr qint64 kMostBytes = 32 * 1024 * 1024;

// Texts within lists and tables are names, so they are cleaned.
PropertyListValue withCleanNames(const PropertyListValue& value) {
    if (const QString* text = value.asString())
        return cleanText(*text);
    if (const PropertyListArray* array = value.asArray()) {
        PropertyListArray clean;
        clean.reserve(array->size());
        for (const PropertyListValue& element : *array)
            clean.push_back(withCleanNames(element));
        return clean;
    }
    if (const PropertyListDictionary* dictionary = value.asDictionary()) {
        PropertyListDictionary clean;
        for (const auto& [key, entry] : *dictionary)
            clean.insert(cleanText(key), withCleanNames(entry));
        return clean;
    }
    return value;
}

// The settings in a file, whoever wrote it. A longer text is no path, and could not be shown.
Result<PropertyListDictionary> readSettings(const QString& path) {
    const auto read = PropertyList::readFile(path, kMostBytes);
    if (!read)
        return read.failure();
    const PropertyListDictionary* entries = read->asDictionary();
    if (!entries)
        return Failure{Failure::Kind::Damaged, QStringLiteral("%1: not a dictionary").arg(path)};
    PropertyListDictionary settings;
    for (const auto& [key, value] : *entries) {
        const QString* text = value.asString();
        if (std::max(key.size(), text ? text->size() : 0) <= kLongestText)
            settings.insert(key, text ? value : withCleanNames(value));
    }
    return settings;
}

} // namespace

UserDefaults::UserDefaults(QString path, NotificationCenter& notifications, RunLoop& runLoop, SystemLog& log)
    : m_path(std::move(path))
    , m_notifications(notifications)
    , m_runLoop(runLoop)
    , m_log(log) {
    load();
    if (m_state == FileState{} || m_isDamaged)
        takeLastGood();
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
    if (put(key, std::move(value)))
        tellChanged();
}

void UserDefaults::setObjects(const PropertyListDictionary& values) {
    bool isChanged = false;
    for (const auto& [key, value] : values)
        isChanged = put(key, value) || isChanged;
    if (isChanged)
        tellChanged();
}

// Answers whether it is another value.
bool UserDefaults::put(const QString& key, PropertyListValue value) {
    if (m_values.value(key) == value)
        return false;
    if (value.isAbsent())
        m_values.remove(key);
    else
        m_values.insert(key, std::move(value));
    m_changed.insert(key);
    return true;
}

void UserDefaults::tellChanged() {
    if (!m_joining || !m_joining->isValid())
        m_joining = m_runLoop.scheduleOnce(kJoiningDelay, [this] { synchronize(); });
    m_notifications.post(kUserDefaultsDidChangeNotification);
}

void UserDefaults::synchronize() {
    m_joining.reset();
    m_retry.reset();
    if (m_changed.isEmpty() && !m_owesWrite)
        return;
    refresh();
    try {
        const auto written = write();
        if (!written) {
            m_log.log(QStringLiteral("The settings could not be written: %1").arg(written.failure().text));
            m_retry = m_runLoop.scheduleOnce(kRetryDelay, [this] { synchronize(); });
        } else {
            m_changed.clear();
            m_owesWrite = false;
            keepAsLastGood();
        }
        tellWritten(bool(written));
    } catch (const InternalInconsistency& failure) {
        // A value that no property list can hold must not end the program.
        m_log.log(failure.logLine());
    }
}

void UserDefaults::refresh() {
    if (fileState() == m_state)
        return;
    const PropertyListDictionary before = m_values;
    load();
    for (const QString& key : std::as_const(m_changed)) {
        if (const PropertyListValue& own = before.value(key); own.isAbsent())
            m_values.remove(key);
        else
            m_values.insert(key, own);
    }
    if (m_values != before)
        m_notifications.post(kUserDefaultsDidChangeNotification);
}

UserDefaults::FileState UserDefaults::fileState() const {
    struct stat status {};
    if (::stat(QFile::encodeName(m_path).constData(), &status) != 0)
        return {};
    return {std::int64_t(status.st_dev),          std::int64_t(status.st_ino),
            std::int64_t(status.st_size),         std::int64_t(status.st_mtim.tv_sec),
            std::int64_t(status.st_mtim.tv_nsec), std::int64_t(status.st_ctim.tv_nsec)};
}

void UserDefaults::load() {
    // Before reading, so that changes during the reading are read next time.
    m_state = fileState();
    const auto read = readSettings(m_path);
    if (read) {
        m_values = *read;
        m_isDamaged = false;
        keepAsLastGood();
        return;
    }
    if (read.failure().kind == Failure::Kind::NotFound)
        return;
    m_isDamaged = true;
    m_log.log(QStringLiteral("The settings file cannot be read; what was read before holds: %1")
                  .arg(read.failure().text));
}

// At launch there is no file, or none that can be read.
void UserDefaults::takeLastGood() {
    const auto kept = readSettings(keptPath());
    if (!kept) {
        m_reading = m_isDamaged ? Reading::Nothing : Reading::Whole;
        return;
    }
    m_log.log(QStringLiteral("The settings that were last whole are taken from %1").arg(keptPath()));
    m_reading = Reading::LastGood;
    m_values = m_kept = *kept;
    m_owesWrite = true;
    m_joining = m_runLoop.scheduleOnce(kJoiningDelay, [this] { synchronize(); });
}

// The copy helps only if the file itself fails, so a failure to write it is no error.
void UserDefaults::keepAsLastGood() {
    if (m_kept.isEmpty())
        if (const auto kept = readSettings(keptPath()))
            m_kept = *kept;
    if (m_kept != m_values && PropertyList::writeXmlFile(m_values, keptPath()))
        m_kept = m_values;
}

void UserDefaults::tellWritten(bool isWritten) {
    if (std::exchange(m_isUnwritten, !isWritten) == isWritten)
        m_notifications.post(kUserDefaultsFileNotification);
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
    Outcome written = PropertyList::writeXmlFile(m_values, m_path);
    m_state = fileState();
    return written;
}
