// SPDX-License-Identifier: MIT
#include "Classes/record/TimeDatabase.h"

#include "Classes/common/AccountTrouble.h"
#include "Classes/common/Settings.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/record/StoreFile.h"
#include "Classes/record/StoreWitness.h"
#include "Classes/record/WholeFile.h"
#include "Classes/store/AccountEntries.h"
#include "Classes/store/IncomingTimers.h"
#include "Classes/store/TKUUIDManager.h"
#include "platform/foundation/files/PrivateFiles.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using Trouble = AccountTrouble::Kind;

namespace {

const QString kVersion = QStringLiteral("1.5");
const QString kMainStoreName = QStringLiteral("Primary Database.tkd");
const QString kImportBackup = QStringLiteral("Import Backup");

const QString kAdded = QStringLiteral("Added");

constexpr std::chrono::seconds kBetweenTries{60};
constexpr std::chrono::seconds kBetweenLooks{10};

// Never replaces a file at `to`.
Outcome copyFile(const QString& from, const QString& to) {
    if (QFileInfo::exists(to) || QFileInfo(to).isSymLink())
        return Failure{Failure::Kind::AlreadyExists, QStringLiteral("%1 exists already.").arg(to)};
    QFile file(from);
    if (!file.open(QFile::ReadOnly))
        return Failure{Failure::Kind::Unreadable, QStringLiteral("%1: %2").arg(from, file.errorString())};
    return WholeFile::write(file.readAll(), to);
}

// "Primary Database - Import Backup.tkd", whether it exists or not.
QString besideStore(const QString& store, const QString& what) {
    const QString suffix = QFileInfo(store).suffix();
    const QString ending = suffix.isEmpty() ? QString() : u'.' + suffix;
    return store.chopped(ending.size()) + QStringLiteral(" - ") + what + ending;
}

std::size_t timersIn(const TimeTracker& tracker) {
    std::size_t count = 0;
    for (const auto& app : tracker.fullTimeSet())
        count += 1 + app->windowCount();
    return count;
}

QString tooManyTimers(std::size_t most) {
    return localized("There are more timers than one database can hold: %@ at the most.")
        .replace(QLatin1String("%@"), QString::number(most));
}

// Changes whenever the file's content does: its size and the time of its last change.
QString stateOf(const QString& path) {
    struct stat status {};

    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return QStringLiteral("none");
    return QStringLiteral("%1 %2 %3")
        .arg(status.st_size)
        .arg(status.st_mtim.tv_sec)
        .arg(status.st_mtim.tv_nsec);
}

} // namespace

TimeDatabase::TimeDatabase(TimeTracker& tracker, TimeStoreServices& services, UserDefaults& defaults,
                           const Folders& folders, Hooks hooks, std::size_t mostTimers, FileCalls& calls)
    : m_tracker(tracker)
    , m_services(services)
    , m_defaults(defaults)
    , m_hooks(std::move(hooks))
    , m_mostTimers(mostTimers)
    , m_store(std::make_unique<StoreFile>(services.log, calls))
    , m_applicationSupportFolder(folders.applicationSupport)
    , m_mainStorePath(defaultMainStoreURL()) {
    // If this fails, writing into the folder will report it.
    static_cast<void>(PrivateFiles::makeFolder(m_applicationSupportFolder));
    for (const QString& edit : {kTicklogRemoveTimersNotification, kTicklogPutBackTimersNotification,
                                kTicklogBranchNodeNotification, kTicklogUnbranchNodeNotification})
        m_edits.push_back(services.notifications.observe(edit, [this](const Notification&) { saveSoon(); }));
}

TimeDatabase::~TimeDatabase() = default;

QString TimeDatabase::defaultMainStoreURL() const {
    return m_applicationSupportFolder + u'/' + kMainStoreName;
}

void TimeDatabase::setMainStoreURL(const QString& location) {
    if (location == m_mainStorePath)
        return;
    m_mainStorePath = location;
    m_defaults.setObject(kMainStorePath, location);
    tellWhetherExposed(location);
}

void TimeDatabase::tellWhetherExposed(const QString& location) {
    if (PrivateFiles::othersMayWrite(QFileInfo(location).absolutePath()))
        m_services.trouble.tell(
            Trouble::StoreExposed,
            AccountTrouble::about(
                localized("“%@” is in a folder where others may write: they could replace it."), location));
    else
        m_services.trouble.end(Trouble::StoreExposed);
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
    // Nobody could read so many again: the file that was written before stays.
    const Outcome outcome = timersIn(m_tracker) > m_mostTimers
                                ? Failure{Failure::Kind::Refused, tooManyTimers(m_mostTimers)}
                            : location ? m_store->write(*location, writeContent)
                                       : writeMainStore(writeContent);
    if (!outcome)
        m_services.log.log(QStringLiteral("The database could not be written: ") + outcome.failure().text);
    if (!location)
        mainStoreWritten(bool(outcome));
    // The identities belong to the timers that were just written.
    m_services.registry.saveData();
    return outcome;
}

Outcome TimeDatabase::writeMainStore(const std::function<void(PropertyListSink&)>& content) {
    if (!m_witness)
        return m_store->write(m_mainStorePath, content);
    QByteArray written;
    const Outcome outcome = m_store->write(m_mainStorePath, content, [&](const QByteArray& digest) {
        written = digest;
        m_witness->storeIsWhole(digest);
    });
    if (outcome)
        m_witness->storeIsPlaced(written);
    return outcome;
}

QByteArray TimeDatabase::mainStoreContent() const {
    return m_store->digest(m_mainStorePath);
}

void TimeDatabase::saveSoon() {
    m_nextTry = m_services.runLoop.scheduleOnce({}, [this] { static_cast<void>(saveSettingsToDiskAtURL()); });
}

void TimeDatabase::mainStoreWritten(bool isWritten) {
    m_nextTry.reset();
    if (!isWritten) {
        m_services.trouble.tell(Trouble::StoreUnwritten, AccountTrouble::unwritten(m_mainStorePath));
        m_nextTry = m_services.runLoop.scheduleOnce(kBetweenTries,
                                                    [this] { static_cast<void>(saveSettingsToDiskAtURL()); });
        return;
    }
    m_services.trouble.end(Trouble::StoreUnwritten);
    if (m_owesMeanwhile)
        endMeanwhile();
    // Only when the file that lay there has been set aside.
    if (m_awaited && m_defaults.object(kMeanwhileOf).toString() != *m_awaited) {
        m_defaults.setObject(kMeanwhileOf, *m_awaited);
        m_defaults.synchronize();
    }
}

std::optional<PropertyListDictionary> TimeDatabase::loadDictionaryFromURL(const QString& location) {
    const auto loaded = load(location);
    return loaded ? std::optional(*loaded->asDictionary()) : std::nullopt;
}

Result<PropertyListValue> TimeDatabase::load(const QString& location) {
    const auto incoming = incomingFrom(
        location, location == m_mainStorePath ? m_store->read(location) : PropertyList::readFile(location));
    if (!incoming)
        return incoming.failure();
    IncomingTimers& timers = **incoming;
    return replaceBy(timers) ? Result(timers.entries()) : noAccount(location);
}

Result<TimeDatabase::Incoming> TimeDatabase::incomingFrom(const QString& location,
                                                          const Result<PropertyListValue>& file) {
    if (!file)
        return noted(file.failure());
    auto incoming = std::make_shared<IncomingTimers>(m_services, *file, [this] { m_tracker.enterNames(); });
    if (!incoming->isAccount())
        return noAccount(location);
    if (incoming->count() > m_mostTimers)
        return noted({Failure::Kind::Refused, tooManyTimers(m_mostTimers)});
    return incoming;
}

Failure TimeDatabase::noAccount(const QString& location) {
    return noted({Failure::Kind::Damaged, QStringLiteral("%1: holds no account").arg(location)});
}

Failure TimeDatabase::noted(const Failure& failure) {
    if (failure.kind != Failure::Kind::NotFound)
        m_services.log.log(QStringLiteral("A database could not be read: ") + failure.text);
    return failure;
}

void TimeDatabase::loadMainStore() {
    const QString recorded = m_defaults.object(kMainStorePath).toString();
    if (recorded.isEmpty() || recorded == m_mainStorePath) {
        loadOrSetAside(m_mainStorePath);
        return;
    }
    const bool isMeanwhile = m_defaults.object(kMeanwhileOf).toString() == recorded;
    if (!isMeanwhile && QFileInfo(recorded).isFile()) {
        m_mainStorePath = recorded;
        loadOrSetAside(m_mainStorePath);
        return;
    }
    if (isMeanwhile)
        loadOrSetAside(m_mainStorePath);
    beginMeanwhile(recorded);
}

// A file that is no account, as far as we understand, must not be overwritten.
bool TimeDatabase::loadOrSetAside(const QString& location) {
    tellWhetherExposed(location);
    m_contentsRead = {m_store->digest(location)};
    const auto loaded = load(location);
    if (loaded && !m_hasLeftOut)
        return true;
    m_store->refuse(location);
    if (loaded)
        m_services.trouble.tell(Trouble::StoreSetAside, AccountTrouble::leftOut(location));
    else if (loaded.failure().kind != Failure::Kind::NotFound)
        m_services.trouble.tell(Trouble::StoreSetAside, AccountTrouble::setAside(location));
    return bool(loaded);
}

void TimeDatabase::beginMeanwhile(const QString& recorded) {
    m_awaited = recorded;
    lookForMainStore();
    if (!m_awaited)
        return;
    m_services.log.log(
        QStringLiteral("%1 is not there: beginning with the database at the default location").arg(recorded));
    m_services.trouble.tell(
        Trouble::StoreMissing,
        AccountTrouble::about(
            localized("The database “%@” is missing. What is counted until it is back will be added to it."),
            recorded));
    if (m_defaults.object(kMeanwhileOf).toString() == recorded)
        return;
    // The account from before the main store was moved may still lie there; it does not belong to this one.
    m_store->refuse(m_mainStorePath);
    static_cast<void>(saveSettingsToDiskAtURL());
}

void TimeDatabase::lookForMainStore() {
    const QFileInfo store(*m_awaited);
    if (store.isFile() && store.isReadable() && store.isWritable())
        return bringTogether();
    m_nextLook = m_services.runLoop.scheduleOnce(kBetweenLooks, [this] { lookForMainStore(); });
}

void TimeDatabase::bringTogether() {
    const PropertyListArray meanwhile = m_tracker.arrayRepresentation();
    const std::vector<QByteArray> meanwhileRead = m_contentsRead;
    const Date lastReset = m_tracker.lastResetDate();
    const QString location = *m_awaited;
    {
        const ChangeAnnouncement announcement(*this, kPathDirectoryKey);
        m_mainStorePath = location;
        stopWaiting();
    }
    const bool isLoaded = loadOrSetAside(location);
    const QString notYetIn = m_defaults.object(kMeanwhileNotYetIn).toString();
    // An earlier run added it and was interrupted while it saved. If the store has changed since, that save
    // is in it.
    const bool isIn = isLoaded && !notYetIn.isEmpty() && notYetIn != stateOf(location);
    if (!isLoaded) {
        m_tracker.reset();
        m_tracker.setLastResetDate(lastReset);
    }
    if (!isIn) {
        m_tracker.putBack(meanwhile);
        m_contentsRead.insert(m_contentsRead.end(), meanwhileRead.begin(), meanwhileRead.end());
        m_defaults.setObject(kMeanwhileNotYetIn, stateOf(location));
        m_defaults.synchronize();
    }
    if (m_witness)
        m_witness->storeIsRead(m_contentsRead.front());
    m_owesMeanwhile = true;
    m_services.log.log(QStringLiteral("%1 is back: what was counted meanwhile is added to it").arg(location));
    if (m_hooks.timersReplaced)
        m_hooks.timersReplaced();
    static_cast<void>(saveSettingsToDiskAtURL());
}

void TimeDatabase::endMeanwhile() {
    m_owesMeanwhile = false;
    if (const QString meanwhile = defaultMainStoreURL(); m_mainStorePath != meanwhile)
        QFile::rename(meanwhile, WholeFile::freeName(besideStore(meanwhile, kAdded)));
    m_defaults.removeObject(kMeanwhileOf);
    m_defaults.removeObject(kMeanwhileNotYetIn);
    m_defaults.synchronize();
}

void TimeDatabase::stopWaiting() {
    m_awaited.reset();
    m_nextLook.reset();
    m_services.trouble.end(Trouble::StoreMissing);
}

bool TimeDatabase::replaceBy(IncomingTimers& timers) {
    m_tracker.reset();
    // If the timer runs, the application in front already has a fresh timer.
    const TimeTracker::AppSet fresh = m_tracker.fullTimeSet();
    timers.makeAll();
    m_hasLeftOut = m_tracker.take(timers) > 0;
    if (!timers.isAccount())
        return false;
    if (const auto date = timers.lastResetDate())
        m_tracker.setLastResetDate(*date);
    m_tracker.dissolve(fresh);
    if (m_hooks.computeTime)
        m_hooks.computeTime();
    return true;
}

Outcome TimeDatabase::chooseDatabaseLocation(const QString& location) {
    // Before the first save there is no file that could be copied.
    if (!QFileInfo::exists(m_mainStorePath))
        if (Outcome saved = saveSettingsToDiskAtURL(); !saved)
            return saved;
    const Outcome copied = copyFile(m_mainStorePath, location);
    if (!copied)
        return copied;
    const ChangeAnnouncement announcement(*this, kPathDirectoryKey);
    setMainStoreURL(location);
    stopWaiting();
    m_defaults.removeObject(kMeanwhileOf);
    return copied;
}

void TimeDatabase::restoreDefaultDatabaseLocation() {
    const ChangeAnnouncement announcement(*this, kPathDirectoryKey);
    // If an older account still lies there, the next save sets it aside and does not overwrite it.
    if (m_mainStorePath != defaultMainStoreURL())
        m_store->refuse(defaultMainStoreURL());
    setMainStoreURL(defaultMainStoreURL());
    // Also if the recorded store was missing at launch: what was counted meanwhile is the account now.
    m_defaults.setObject(kMainStorePath, m_mainStorePath);
    stopWaiting();
    m_defaults.removeObject(kMeanwhileOf);
}

Outcome TimeDatabase::importDatabase(const QString& location) {
    auto incoming = incomingFrom(location, PropertyList::readFile(location));
    if (incoming)
        (*incoming)->makeAll();
    return importDatabase(location, incoming);
}

Outcome TimeDatabase::importDatabase(const QString& location, const Result<Incoming>& incoming) {
    if (const Outcome backup = backUpBeforeImport(location); !backup) {
        m_services.log.log(QStringLiteral("Nothing was imported, for want of a backup: ") +
                           backup.failure().text);
        return Failure{backup.failure().kind, localized("No backup could be made, so nothing was changed.") +
                                                  u'\n' + backup.failure().text};
    }
    if (!incoming)
        return incoming.failure();
    IncomingTimers& timers = **incoming;
    if (!timers.isAccount())
        return noAccount(location);
    replaceBy(timers);
    const PropertyListDictionary& entries = *timers.entries().asDictionary();
    if (entries.contains(kDatabaseProjects) && m_hooks.setProjects)
        m_hooks.setProjects(entries.value(kDatabaseProjects));
    return Done{};
}

Outcome TimeDatabase::backUpBeforeImport(const QString& location) {
    // Saving first would replace the file that is to be imported.
    if (location == m_mainStorePath || WholeFile::isSame(location, m_mainStorePath))
        return saveSettingsToDiskAtURL(importBackupPath());
    // The backup must hold what the user sees now, not what was saved some time ago.
    if (Outcome saved = saveSettingsToDiskAtURL(); !saved)
        return saved;
    return copyFile(m_mainStorePath, importBackupPath());
}

QString TimeDatabase::importBackupPath() const {
    return WholeFile::freeName(besideStore(m_mainStorePath, kImportBackup));
}

QVariant TimeDatabase::valueForKey(ObservedKey key) const {
    return key == kPathDirectoryKey ? QVariant(pathDirectory()) : QVariant();
}
