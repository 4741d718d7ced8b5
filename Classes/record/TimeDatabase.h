// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/FileCalls.h"
#include "platform/foundation/files/Folders.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/observing/KeyValueObserving.h"
#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/Result.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class IncomingTimers;
class StoreFile;
class StoreWitness;
class TimeTracker;
struct TimeStoreServices;

// The path of the main store has changed. For observers of the database.
inline constexpr ObservedKey kPathDirectoryKey{"pathDirectory"};

// The most timers that a file may hold, read or written. Half a million windows, seen over years, take 600 MB
// of memory while they are read.
inline constexpr std::size_t kMostTimers = 500'000;

// The extension of database files.
inline const QString kDatabaseExtension = QStringLiteral("tkd");

// All timers in one file, the main store: read at launch, and written whenever they must be kept. Locations
// are full paths. Errors go to the log, and troubles of the account to the user. Main thread only.
//
// If a launch does not find the file at its recorded place, because its disk is not connected for example, an
// empty account begins at the default place. As soon as the file is back, now or at a later launch, what was
// counted meanwhile is added to it.
class TimeDatabase : public Observable {
public:
    // What the database asks of code that is above it or is made later.
    struct Hooks {
        // The project records. They are written to files at an explicit location.
        std::function<PropertyListArray()> projects;
        // An imported file's project records.
        std::function<void(const PropertyListValue&)> setProjects;
        // The tree was replaced: displays must be updated.
        std::function<void()> computeTime;
        // The timers were replaced: what could be undone concerned the old ones.
        std::function<void()> timersReplaced;
    };

    // Makes the application-support folder if it is missing. All arguments must outlive the database. `calls`
    // write the main store.
    TimeDatabase(TimeTracker& tracker, TimeStoreServices& services, UserDefaults& defaults,
                 const Folders& folders, Hooks hooks, std::size_t mostTimers = kMostTimers,
                 FileCalls& calls = FileCalls::system());
    ~TimeDatabase() override;

    const QString& applicationSupportFolder() const { return m_applicationSupportFolder; }
    // A location is a full path, here and wherever a name says URL.
    QString defaultMainStoreURL() const;
    // The default location until another one is set.
    const QString& mainStoreURL() const { return m_mainStorePath; }
    // Records the location in the settings. Neither moves nor writes the file.
    void setMainStoreURL(const QString& location);
    // The main store's full path, as the preferences show it.
    const QString& pathDirectory() const { return m_mainStorePath; }

    // Writes the main store; with a location, writes a copy there that holds the projects as well. On failure
    // the old file stays whole, and the main store is tried again every minute.
    Outcome saveSettingsToDiskAtURL(const std::optional<QString>& location = std::nullopt);
    // Writes the main store in the loop's next turn, once however often it is asked. Timers that are deleted,
    // frozen, or brought back are saved so: projects and history have written it at once, and a crash must
    // not part them.
    void saveSoon();
    // Replaces all timers by those of a file, at once and without asking, and answers what was read. Absent,
    // and the timers are unchanged, when the file cannot be read or is no account.
    std::optional<PropertyListDictionary> loadDictionaryFromURL(const QString& location);
    // Reads the main store: from the recorded location if a file is there, else from the default location.
    void loadMainStore();
    // Whether the database waits for the file at the recorded location to come back.
    bool isAwaitingMainStore() const { return m_awaited.has_value(); }

    // Copies the main store to `location`, where no file may be yet, and uses it as the main store from then
    // on.
    Outcome chooseDatabaseLocation(const QString& location);
    // The next save goes to the default place; the present file stays where it is.
    void restoreDefaultDatabaseLocation();
    // Replaces all timers by those of a file, and the projects if it has any. Makes a backup first; if that
    // fails, nothing is replaced.
    Outcome importDatabase(const QString& location);
    // The same in two steps, for large files. First make the timers of what was read from there, some at a
    // time; then replace the present ones by them.
    using Incoming = std::shared_ptr<IncomingTimers>;
    Result<Incoming> incomingFrom(const QString& location, const Result<PropertyListValue>& file);
    Outcome importDatabase(const QString& location, const Result<Incoming>& incoming);
    // Where the next import puts its backup: "Primary Database - Import Backup.tkd" beside the main store,
    // with a number if that name is taken.
    QString importBackupPath() const;

    // A digest of the main store on the disk; empty when there is none.
    QByteArray mainStoreContent() const;
    // Digests of the files, as they were read, whose timers are in the tree. More than one if a store that
    // was away has come back.
    const std::vector<QByteArray>& contentsRead() const { return m_contentsRead; }
    // The witness is told of each save of the main store from now on. Null for none.
    void setWitness(StoreWitness* witness) { m_witness = witness; }

    QVariant valueForKey(ObservedKey key) const override;

private:
    Outcome writeMainStore(const std::function<void(PropertyListSink&)>& content);

    Result<PropertyListValue> load(const QString& location);
    // Replaces the tree by that of a file. False if that is no account after all; then the tree holds what
    // could be read of it.
    bool replaceBy(IncomingTimers& timers);
    Failure noAccount(const QString& location);
    // Logs the failure and answers it.
    Failure noted(const Failure& failure);
    bool loadOrSetAside(const QString& location);
    void tellWhetherExposed(const QString& location);
    void mainStoreWritten(bool isWritten);
    Outcome backUpBeforeImport(const QString& location);

    // See the class comment. `recorded` is the location where the missing file should be.
    void beginMeanwhile(const QString& recorded);
    void lookForMainStore();
    void bringTogether();
    // What was counted meanwhile is in the main store: moves its own file out of the way.
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
    QString m_mainStorePath;
    std::optional<QString> m_awaited;
    std::vector<QByteArray> m_contentsRead;
    // Some of what was last read was damaged.
    bool m_hasLeftOut = false;
    // The tree holds what was counted meanwhile, and the main store does not yet.
    bool m_owesMeanwhile = false;
    std::unique_ptr<RunLoopTimer> m_nextLook;
    // Of a save: because the last one failed, or soon.
    std::unique_ptr<RunLoopTimer> m_nextTry;
    std::vector<Subscription> m_edits;
};
