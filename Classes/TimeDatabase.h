// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Folders.h"
#include "platform/foundation/KeyValueObserving.h"
#include "platform/foundation/PropertyListValue.h"
#include "platform/foundation/Result.h"
#include "platform/foundation/SystemLog.h"
#include "platform/foundation/UserDefaults.h"

#include <functional>
#include <memory>
#include <optional>

class StoreFile;
class TimeTracker;
class TKUUIDManager;

// The path of the main store, for observers of the database.
inline constexpr ObservedKey kPathDirectoryKey{"pathDirectory"};

// The entries of a database file.
inline const QString kDatabaseVersion = QStringLiteral("Version");
inline const QString kDatabaseApps = QStringLiteral("Apps");
inline const QString kDatabaseProjects = QStringLiteral("Projects");
inline const QString kDatabaseLastResetDate = QStringLiteral("LastResetDate");

// Database files carry this extension.
inline const QString kDatabaseExtension = QStringLiteral("tkd");

// All timers in one file, the main store: read at launch, written whenever they must be kept. Locations are full
// paths. Main thread only.
class TimeDatabase : public Observable {
public:
    // What the database asks of those who are above it or come later.
    struct Hooks {
        // The project records, for files written to an explicit location.
        std::function<PropertyListArray()> projects;
        // An imported file's project records.
        std::function<void(const PropertyListValue&)> setProjects;
        // The tree is another one: the displays are out of date.
        std::function<void()> computeTime;
    };

    // Makes the application-support folder if it is missing. Everything must outlive the database.
    TimeDatabase(TimeTracker& tracker, TKUUIDManager& registry, UserDefaults& defaults,
                 const Folders& folders, SystemLog& log, Hooks hooks);
    ~TimeDatabase() override;

    const QString& applicationSupportFolder() const { return m_applicationSupportFolder; }
    QString defaultMainStoreURL() const;
    // The default location until another is set.
    const QString& mainStoreURL() const { return m_mainStoreURL; }
    // Records the location in the settings. The file is neither moved nor written.
    void setMainStoreURL(const QString& location);
    // The main store's full path, as the preferences show it.
    const QString& pathDirectory() const { return m_mainStoreURL; }

    // Writes the main store, or with a location a copy there that holds the projects as well. What stood there stays
    // whole if it fails, which the log tells.
    Outcome saveSettingsToDiskAtURL(const std::optional<QString>& location = std::nullopt);
    // Replaces all timers by those of a file and answers what was read. Absent, with the timers untouched, when the
    // file cannot be read or holds nothing.
    std::optional<PropertyListDictionary> loadDictionaryFromURL(const QString& location);
    // Reads the main store: from the recorded location if a file is there, else from the default one.
    void loadMainStore();

    // Copies the main store to `location`, which must not exist, and makes that the main store.
    Outcome chooseDatabaseLocation(const QString& location);
    // The next save goes to the default place; the file stays where it is.
    void restoreDefaultDatabaseLocation();
    // Replaces all timers, and the projects if there are any, by those of a file, after a backup of the main store.
    void importDatabase(const QString& location);
    // "Primary Database - Import Backup.tkd" beside the main store.
    QString importBackupURL() const;

    QVariant valueForKey(ObservedKey key) const override;

private:
    std::optional<PropertyListDictionary> take(const PropertyListValue& file);
    bool takeLegacy(const PropertyListDictionary& entries);

    TimeTracker& m_tracker;
    TKUUIDManager& m_registry;
    UserDefaults& m_defaults;
    SystemLog& m_log;
    Hooks m_hooks;
    std::unique_ptr<StoreFile> m_store;
    QString m_applicationSupportFolder;
    QString m_mainStoreURL;
};
