// SPDX-License-Identifier: MIT
#include "Classes/TimeDatabase.h"

#include "Classes/Settings.h"
#include "Classes/StoreFile.h"
#include "Classes/TKUUIDManager.h"
#include "Classes/TimeTracker.h"
#include "platform/foundation/PrivateFiles.h"
#include "platform/foundation/PropertyList.h"

#include <QFile>
#include <QFileInfo>

namespace {

const QString kVersion = QStringLiteral("1.5");
const QString kMainStoreName = QStringLiteral("Primary Database.tkd");
const QString kImportBackup = QStringLiteral("Import Backup");

// Never replaces what stands at `to`.
Outcome copyFile(const QString& from, const QString& to) {
    if (QFileInfo::exists(to))
        return Failure{Failure::Kind::AlreadyExists, QStringLiteral("%1 exists already.").arg(to)};
    QFile file(from);
    if (!file.copy(to))
        return Failure{Failure::Kind::CannotWrite,
                       QStringLiteral("%1 could not be copied: %2").arg(from, file.errorString())};
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
    return Done{};
}

} // namespace

TimeDatabase::TimeDatabase(TimeTracker& tracker, TKUUIDManager& registry, UserDefaults& defaults,
                           const Folders& folders, SystemLog& log, Hooks hooks)
    : m_tracker(tracker)
    , m_registry(registry)
    , m_defaults(defaults)
    , m_log(log)
    , m_hooks(std::move(hooks))
    , m_store(std::make_unique<StoreFile>(log))
    , m_applicationSupportFolder(folders.applicationSupport)
    , m_mainStoreURL(defaultMainStoreURL()) {
    // That it fails is noticed when it is written to.
    static_cast<void>(PrivateFiles::makeFolder(m_applicationSupportFolder));
}

TimeDatabase::~TimeDatabase() = default;

QString TimeDatabase::defaultMainStoreURL() const {
    return m_applicationSupportFolder + u'/' + kMainStoreName;
}

void TimeDatabase::setMainStoreURL(const QString& location) {
    if (location == m_mainStoreURL)
        return;
    m_mainStoreURL = location;
    m_defaults.setObject(kMainStorePath, location);
}

Outcome TimeDatabase::saveSettingsToDiskAtURL(const std::optional<QString>& location) {
    const auto writeContent = [&](PropertyListSink& sink) {
        sink.beginDictionary();
        sink.key(kDatabaseVersion);
        sink.string(kVersion);
        sink.key(kDatabaseApps);
        m_tracker.writeArrayRepresentation(sink);
        if (location) {
            sink.key(kDatabaseProjects);
            sink.value(m_hooks.projects ? m_hooks.projects() : PropertyListArray());
        }
        sink.key(kDatabaseLastResetDate);
        sink.date(m_tracker.lastResetDate());
        sink.endDictionary();
    };
    const Outcome outcome = m_store->write(location.value_or(m_mainStoreURL), writeContent);
    if (!outcome)
        m_log.log(QStringLiteral("The database could not be written: ") + outcome.failure().text);
    // The identities belong to the timers just written.
    m_registry.saveData();
    return outcome;
}

std::optional<PropertyListDictionary> TimeDatabase::loadDictionaryFromURL(const QString& location) {
    const Result<PropertyListValue> file =
        location == m_mainStoreURL ? m_store->read(location) : PropertyList::readFile(location);
    if (file)
        return take(*file);
    if (file.failure().kind != Failure::Kind::NotFound)
        m_log.log(QStringLiteral("A database could not be read: ") + file.failure().text);
    return std::nullopt;
}

void TimeDatabase::loadMainStore() {
    const QString recorded = m_defaults.object(kMainStorePath).toString();
    if (!recorded.isEmpty() && QFileInfo(recorded).isFile())
        m_mainStoreURL = recorded;
    else if (!recorded.isEmpty() && recorded != m_mainStoreURL)
        m_log.log(QStringLiteral("%1 is not there: beginning with the database at the default location")
                      .arg(recorded));
    // What holds no account that we understand must not be written over.
    if (!loadDictionaryFromURL(m_mainStoreURL))
        m_store->refuse(m_mainStoreURL);
}

std::optional<PropertyListDictionary> TimeDatabase::take(const PropertyListValue& file) {
    const PropertyListDictionary* entries = file.asDictionary();
    if (!entries || entries->isEmpty())
        return std::nullopt;
    m_tracker.reset();
    // While the timer runs, what is in front has a fresh timer already.
    const TimeTracker::AppSet fresh = m_tracker.fullTimeSet();
    if (!entries->contains(kDatabaseVersion)) {
        if (!takeLegacy(*entries))
            return std::nullopt;
    } else {
        if (const PropertyListArray* apps = entries->value(kDatabaseApps).asArray())
            m_tracker.setArrayRepresentation(*apps);
        if (const auto date = entries->value(kDatabaseLastResetDate).asDate())
            m_tracker.setLastResetDate(*date);
    }
    m_tracker.dissolve(fresh);
    if (m_hooks.computeTime)
        m_hooks.computeTime();
    return *entries;
}

// The oldest files: names and seconds. One that holds "Apps" after all is a newer one that lost its version: nobody
// knows what else it lost, so it is left where it stands.
bool TimeDatabase::takeLegacy(const PropertyListDictionary& entries) {
    for (const auto& [name, seconds] : entries) {
        if (name == kDatabaseApps && seconds.asArray())
            return false;
        m_tracker.addWindowWithName(name, seconds);
    }
    return true;
}

Outcome TimeDatabase::chooseDatabaseLocation(const QString& location) {
    // Before the first save there would be nothing to copy.
    if (!QFileInfo::exists(m_mainStoreURL))
        if (Outcome saved = saveSettingsToDiskAtURL(); !saved)
            return saved;
    const Outcome copied = copyFile(m_mainStoreURL, location);
    if (!copied)
        return copied;
    const ChangeAnnouncement announcement(*this, kPathDirectoryKey);
    setMainStoreURL(location);
    return copied;
}

void TimeDatabase::restoreDefaultDatabaseLocation() {
    const ChangeAnnouncement announcement(*this, kPathDirectoryKey);
    // An older account that still stands there is set aside by the next save, not written over.
    if (m_mainStoreURL != defaultMainStoreURL())
        m_store->refuse(defaultMainStoreURL());
    setMainStoreURL(defaultMainStoreURL());
    // Also after a launch that did not find the recorded one.
    m_defaults.setObject(kMainStorePath, m_mainStoreURL);
}

void TimeDatabase::importDatabase(const QString& location) {
    // The backup is to hold what the user sees, not what was saved a while ago.
    if (location != m_mainStoreURL)
        static_cast<void>(saveSettingsToDiskAtURL());
    // The first backup is kept: it holds the account from before all imports.
    if (const Outcome backup = copyFile(m_mainStoreURL, importBackupURL()); !backup)
        m_log.log(QStringLiteral("No backup was made before the import: ") + backup.failure().text);
    const auto imported = loadDictionaryFromURL(location);
    if (imported && imported->contains(kDatabaseProjects) && m_hooks.setProjects)
        m_hooks.setProjects(imported->value(kDatabaseProjects));
}

QString TimeDatabase::importBackupURL() const {
    const QFileInfo store(m_mainStoreURL);
    const QString suffix = store.suffix().isEmpty() ? QString() : u'.' + store.suffix();
    return QString(m_mainStoreURL).chopped(suffix.size()) + QStringLiteral(" - ") + kImportBackup + suffix;
}

QVariant TimeDatabase::valueForKey(ObservedKey key) const {
    return key == kPathDirectoryKey ? QVariant(pathDirectory()) : QVariant();
}
