// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/FileCalls.h"
#include "Classes/store/AccountEntries.h"
#include "platform/Folders.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/observing/KeyValueObserving.h"
#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/Result.h"

#include <functional>
#include <memory>
#include <optional>

class IncomingTimers;
class StoreFile;
class StoreWitness;
class TimeTracker;
struct TimeStoreServices;

// The path of the main store, for observers of the database.
inline constexpr ObservedKey kPathDirectoryKey{"pathDirectory"};

// The most timers that are taken from a file, or written into one: half a million windows, seen over years, need 600 MB of
// memory while they are read.
inline constexpr std::size_t kMostTimers = 500'000;

// Database files carry this extension.
inline const QString kDatabaseExtension = QStringLiteral("tkd");

// All timers in one file, the main store: read at launch, written whenever they must be kept. Locations are full
// paths. What goes wrong is in the log, and what troubles the account is told to the user. Main thread only.
//
// Where the file is not found at its recorded place at launch, on a disk that is not connected say, an empty account begins
// at the default place. As soon as the file is back, now or at a later launch, what was counted meanwhile is added to it.
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
        // What could be undone was done to timers that are no more.
        std::function<void()> timersReplaced;
    };

    // Makes the application-support folder if it is missing. Everything must outlive the database. The main store is written by
    // `calls`.
    TimeDatabase(TimeTracker& tracker, TimeStoreServices& services, UserDefaults& defaults,
                 const Folders& folders, Hooks hooks, std::size_t mostTimers = kMostTimers,
                 FileCalls& calls = FileCalls::system());
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
    // whole if it fails; the main store is then tried again every minute.
    Outcome saveSettingsToDiskAtURL(const std::optional<QString>& location = std::nullopt);
    // Replaces all timers by those of a file and answers what was read. Absent, with the timers untouched, when the
    // file cannot be read or holds no account.
    std::optional<PropertyListDictionary> loadDictionaryFromURL(const QString& location);
    // Reads the main store: from the recorded location if a file is there, else from the default one.
    void loadMainStore();
    // Whether the recorded location is waited for.
    bool isAwaitingMainStore() const { return m_awaited.has_value(); }

    // Copies the main store to `location`, which must not exist, and makes that the main store.
    Outcome chooseDatabaseLocation(const QString& location);
    // The next save goes to the default place; the file stays where it is.
    void restoreDefaultDatabaseLocation();
    // Replaces all timers, and the projects if there are any, by those of a file, after a backup of what there is. A backup
    // that cannot be made stops it.
    Outcome importDatabase(const QString& location);
    // The same in two steps, for large files: the timers of what has been read from there, which are still to be made, and
    // then what there is replaced by those.
    using Incoming = std::shared_ptr<IncomingTimers>;
    Result<Incoming> incomingFrom(const QString& location, const Result<PropertyListValue>& file);
    Outcome importDatabase(const QString& location, const Result<Incoming>& incoming);
    // Where the backup of the next import goes: "Primary Database - Import Backup.tkd" beside the main store, or with a number
    // where that is taken.
    QString importBackupURL() const;

    // A digest of the main store as it is on the disk; empty when there is none.
    QByteArray mainStoreContent() const;
    // Tells of each save of the main store from now on. Null for nobody.
    void setWitness(StoreWitness* witness) { m_witness = witness; }

    QVariant valueForKey(ObservedKey key) const override;

private:
    Outcome writeMainStore(const std::function<void(PropertyListSink&)>& content);

    Result<PropertyListValue> load(const QString& location);
    // The tree becomes that of a file. False, with what could be made of it in the tree, if that is no account after all.
    bool replaceBy(IncomingTimers& timers);
    Failure noAccount(const QString& location);
    // Tells the log of it.
    Failure noted(const Failure& failure);
    bool loadOrSetAside(const QString& location);
    void tellWhetherExposed(const QString& location);
    void mainStoreWritten(bool isWritten);
    Outcome backUpBeforeImport(const QString& location);

    // See the class. `recorded` is the location that is waited for.
    void beginMeanwhile(const QString& recorded);
    void lookForMainStore();
    void bringTogether();
    // What was counted meanwhile is in the main store: its file goes out of the way.
    void endMeanwhile();
    void stopWaiting();

    TimeTracker& m_tracker;
    TimeStoreServices& m_services;
    UserDefaults& m_defaults;
    Hooks m_hooks;
    const std::size_t m_mostTimers;
    std::unique_ptr<StoreFile> m_store;
    StoreWitness* m_witness = nullptr;
    QString m_applicationSupportFolder;
    QString m_mainStoreURL;
    std::optional<QString> m_awaited;
    // Something of what was read last was damaged.
    bool m_hasLeftOut = false;
    // What was counted meanwhile is in the tree and not yet in the main store.
    bool m_owesMeanwhile = false;
    std::unique_ptr<RunLoopTimer> m_nextLook;
    std::unique_ptr<RunLoopTimer> m_nextTry;
};
