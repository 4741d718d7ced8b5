// SPDX-License-Identifier: MIT
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/AccountEntries.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/Database.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using TimeDatabaseTest = DatabaseTest;

TEST_F(TimeDatabaseTest, theSupportFolder_isMadeForTheUserAlone) {
    const QFileInfo folder(fakes.folders.applicationSupport);
    ASSERT_TRUE(folder.isDir());
    EXPECT_EQ(folder.permissions() &
                  (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
              QFile::Permissions());
}

TEST_F(TimeDatabaseTest, theMainStoreSavedAtQuit_hasNoProjectsWhileACopyHas) {
    addMail();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    const QString copy = fakes.home.filePath(QStringLiteral("copy.tkd"));
    ASSERT_TRUE(database.saveSettingsToDiskAtURL(copy));
    EXPECT_FALSE(contentOf(database.mainStoreURL()).contains(kDatabaseProjects));
    EXPECT_EQ(contentOf(copy).value(kDatabaseProjects).asArray()->size(), 1U);
    EXPECT_EQ(contentOf(copy).value(kDatabaseVersion).toString(), QStringLiteral("1.5"));
}

TEST_F(TimeDatabaseTest, theEntriesOfTheFile_standInTheirOrder) {
    ASSERT_TRUE(database.saveSettingsToDiskAtURL(fakes.home.filePath(QStringLiteral("copy.tkd"))));
    QStringList keys;
    for (const auto& [key, value] : contentOf(fakes.home.filePath(QStringLiteral("copy.tkd"))))
        keys << key;
    EXPECT_EQ(keys,
              QStringList({kDatabaseVersion, kDatabaseApps, kDatabaseProjects, kDatabaseLastResetDate}));
}

TEST_F(TimeDatabaseTest, whatWasSaved_isReadBackToTheLastDigit) {
    const double awkward = 712345.6789012345;
    engine.tracker().addWindowWithName(QStringLiteral("Mail"), awkward);
    const Date reset = Date(std::chrono::sys_days(std::chrono::year(2026) / 3 / 1));
    engine.tracker().setLastResetDate(reset);
    const auto identity = engine.tracker().fullTimeSet().front()->uuid();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    engine.tracker().reset();
    database.loadMainStore();
    ASSERT_EQ(engine.tracker().fullTimeSet().size(), 1U);
    EXPECT_EQ(engine.tracker().fullTimeSet().front()->activeTime(), awkward);
    EXPECT_EQ(engine.tracker().fullTimeSet().front()->uuid(), identity);
    EXPECT_EQ(engine.tracker().lastResetDate(), reset);
    EXPECT_EQ(recomputations, 1);
}

TEST_F(TimeDatabaseTest, anyVersion_isReadLikeTheLatest) {
    addMail();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    PropertyListDictionary content = contentOf(database.mainStoreURL());
    content.insert(kDatabaseVersion, QStringLiteral("1.0"));
    const QString old = write(QStringLiteral("old.tkd"), content);
    ASSERT_TRUE(database.loadDictionaryFromURL(old));
    EXPECT_EQ(tree(), QStringLiteral("Mail 60.5 [Inbox 40.25]"));
}

TEST_F(TimeDatabaseTest, aFileOfNamesAndNumbers_yieldsATimerForEach) {
    const QString legacy =
        write(QStringLiteral("legacy.tkd"),
              PropertyListDictionary{{QStringLiteral("Mail"), 40}, {QStringLiteral("Editor"), 7.5}});
    ASSERT_TRUE(database.loadDictionaryFromURL(legacy));
    EXPECT_EQ(tree(), QStringLiteral("Mail 40, Editor 7.5"));
    EXPECT_EQ(recomputations, 1);
}

TEST_F(TimeDatabaseTest, aFileWithoutVersionThatHoldsApps_leavesTheTimersResetAndPartlyFilled) {
    addMail();
    const QString strange =
        write(QStringLiteral("strange.tkd"), PropertyListDictionary{{QStringLiteral("Editor"), 7},
                                                                    {kDatabaseApps, PropertyListArray()},
                                                                    {QStringLiteral("Browser"), 9}});
    EXPECT_FALSE(database.loadDictionaryFromURL(strange));
    EXPECT_EQ(tree(), QStringLiteral("Editor 7"));
    EXPECT_EQ(recomputations, 0);
}

TEST_F(TimeDatabaseTest, aMainStoreThatWasNotUnderstood_isSetAsideBeforeTheNextSave) {
    write(QStringLiteral("share/Ticklog/Primary Database.tkd"),
          PropertyListDictionary{{QStringLiteral("Editor"), 7}, {kDatabaseApps, PropertyListArray()}});
    database.loadMainStore();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    EXPECT_EQ(QDir(fakes.folders.applicationSupport).entryList(QDir::Files).size(), 2);
}

TEST_F(TimeDatabaseTest, filesThatCannotBeRead_leaveTheTimersUntouched) {
    addMail();
    const QStringList unreadable = {
        fakes.home.filePath(QStringLiteral("missing.tkd")),
        write(QStringLiteral("empty.tkd"), QByteArray()),
        write(QStringLiteral("torn.tkd"), QByteArray("<plist><dict><key>Version</key>")),
        write(QStringLiteral("list.tkd"), PropertyListValue(PropertyListArray{1, 2})),
        write(QStringLiteral("nothing.tkd"), PropertyListValue(PropertyListDictionary())),
    };
    for (const QString& path : unreadable) {
        EXPECT_FALSE(database.loadDictionaryFromURL(path)) << qPrintable(path);
        EXPECT_EQ(tree(), QStringLiteral("Mail 60.5 [Inbox 40.25]")) << qPrintable(path);
    }
}

TEST_F(TimeDatabaseTest, aFileCutAtAnyByte_isReadWholeOrNotAtAll) {
    addMail();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    const QByteArray whole = PropertyList::xml(contentOf(database.mainStoreURL()));
    int refused = 0;
    for (qsizetype length = 0; length < whole.size(); ++length) {
        engine.tracker().reset();
        const QString cut = write(QStringLiteral("cut.tkd"), whole.first(length));
        refused += database.loadDictionaryFromURL(cut) ? 0 : 1;
        EXPECT_TRUE(tree().isEmpty() || tree() == QStringLiteral("Mail 60.5 [Inbox 40.25]")) << length;
    }
    // Only the last line break may be missing.
    EXPECT_GE(refused, whole.size() - 2);
}

TEST_F(TimeDatabaseTest, wrongTypesAtEveryKey_areLeftOutOrCountAsNothing) {
    const PropertyListArray wrong = {QStringLiteral("text"),
                                     7,
                                     1.5,
                                     true,
                                     QByteArray("data"),
                                     PropertyListArray{1},
                                     PropertyListDictionary{{QStringLiteral("a"), 1}},
                                     Date()};
    const PropertyListDictionary good{{kRecordName, QStringLiteral("Mail")}, {kRecordActiveTime, 5}};
    int loads = 0;
    for (const PropertyListValue& value : wrong) {
        for (const QString& key :
             {kRecordName, kRecordActiveTime, kRecordUUID, kRecordBranched, kRecordRenamedName}) {
            PropertyListDictionary record = good;
            record.insert(key, value);
            const PropertyListArray apps{
                value, PropertyListDictionary{{kEntryApp, record}, {kEntryWindows, value}},
                PropertyListDictionary{{kEntryApp, good}, {kEntryWindows, PropertyListArray{value, record}}}};
            const QString path =
                write(QStringLiteral("wrong.tkd"), PropertyListDictionary{{kDatabaseVersion, value},
                                                                          {kDatabaseApps, apps},
                                                                          {kDatabaseLastResetDate, value}});
            ASSERT_TRUE(database.loadDictionaryFromURL(path));
            EXPECT_TRUE(tree().contains(QStringLiteral("Mail 5"))) << qPrintable(tree());
            ++loads;
        }
    }
    EXPECT_EQ(loads, 40);
}

// The entries of files with a version but without a list of applications.
const std::pair<const char*, PropertyListDictionary> kWithoutApplications[] = {
    {"missing", {{kDatabaseVersion, QStringLiteral("1.5")}}},
    {"misspelt", {{kDatabaseVersion, QStringLiteral("1.5")}, {QStringLiteral("apps"), PropertyListArray()}}},
    {"text", {{kDatabaseVersion, QStringLiteral("1.5")}, {kDatabaseApps, QStringLiteral("Mail")}}},
    {"number", {{kDatabaseVersion, QStringLiteral("1.5")}, {kDatabaseApps, 7}}},
    {"data", {{kDatabaseVersion, QStringLiteral("1.5")}, {kDatabaseApps, QByteArray("Mail")}}},
    {"table", {{kDatabaseVersion, QStringLiteral("1.5")}, {kDatabaseApps, PropertyListDictionary()}}},
};

TEST_F(TimeDatabaseTest, aVersionWithoutAListOfApplications_isNoAccountAndLeavesTheTimers) {
    addMail();
    for (const auto& [how, entries] : kWithoutApplications) {
        EXPECT_FALSE(database.loadDictionaryFromURL(write(QStringLiteral("lost.tkd"), entries))) << how;
        EXPECT_EQ(tree(), QStringLiteral("Mail 60.5 [Inbox 40.25]")) << how;
        EXPECT_TRUE(fakes.log.mentions(QStringLiteral("lost.tkd: holds no account"))) << how;
    }
}

TEST_F(TimeDatabaseTest, aMainStoreWithoutAListOfApplications_isSetAsideAndSaid) {
    int kept = 0;
    for (const auto& [how, entries] : kWithoutApplications) {
        write(QStringLiteral("share/Ticklog/Primary Database.tkd"), entries);
        database.loadMainStore();
        EXPECT_TRUE(
            engine.trouble().text().contains(QStringLiteral("“Primary Database.tkd” could not be read")));
        ASSERT_TRUE(database.saveSettingsToDiskAtURL());
        const QDir folder(fakes.folders.applicationSupport);
        EXPECT_EQ(folder.entryList({QStringLiteral("*.damaged-*")}, QDir::Files).size(), ++kept) << how;
    }
}

TEST_F(TimeDatabaseTest, anEmptyListOfApplications_isAnAccount) {
    const PropertyListDictionary empty{{kDatabaseVersion, QStringLiteral("1.5")},
                                       {kDatabaseApps, PropertyListArray()}};
    EXPECT_TRUE(database.loadDictionaryFromURL(write(QStringLiteral("empty.tkd"), empty)));
    EXPECT_TRUE(fakes.log.lines.isEmpty());
}

TEST_F(TimeDatabaseTest, entriesThatAreDamaged_areLeftOutAndCountedInOneLine) {
    const auto named = [](const char* name) {
        return PropertyListDictionary{{kRecordName, QString::fromUtf8(name)}, {kRecordActiveTime, 5}};
    };
    const PropertyListArray apps{
        QStringLiteral("no entry"),
        PropertyListDictionary{{kEntryWindows, PropertyListArray{named("Orphan")}}},
        PropertyListDictionary{{kEntryApp, 7}},
        PropertyListDictionary{{kEntryApp, named("Editor")}, {kEntryWindows, QStringLiteral("no list")}},
        PropertyListDictionary{
            {kEntryApp, named("Mail")},
            {kEntryWindows, PropertyListArray{named("Inbox"), 7, PropertyListDictionary(), named("")}}},
        PropertyListDictionary{{kEntryApp, named("Notes")}},
    };
    ASSERT_TRUE(database.loadDictionaryFromURL(
        write(QStringLiteral("damaged.tkd"),
              PropertyListDictionary{{kDatabaseVersion, QStringLiteral("1.5")}, {kDatabaseApps, apps}})));
    EXPECT_EQ(tree(), QStringLiteral("Editor 5, Mail 5 [Inbox 5], Notes 5"));
    EXPECT_EQ(fakes.log.lines,
              QStringList(QStringLiteral("7 entries of the database are damaged and were left out.")));
}

TEST_F(TimeDatabaseTest, aMainStoreOfWhichSomethingWasLeftOut_isKeptBesideAndSaid) {
    write(QStringLiteral("share/Ticklog/Primary Database.tkd"),
          PropertyListDictionary{{kDatabaseVersion, QStringLiteral("1.5")},
                                 {kDatabaseApps, PropertyListArray{PropertyListDictionary{
                                                     {QStringLiteral("Apq"), PropertyListDictionary()}}}}});
    database.loadMainStore();
    EXPECT_TRUE(engine.trouble().text().contains(QStringLiteral("are damaged and were left out")));
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    const QDir folder(fakes.folders.applicationSupport);
    EXPECT_EQ(folder.entryList({QStringLiteral("*.damaged-*")}, QDir::Files).size(), 1);
}

TEST_F(TimeDatabaseTest, anImportThatTurnsOutToBeNoAccount_leavesTheTimers) {
    addMail();
    const QString lost =
        write(QStringLiteral("lost.tkd"),
              PropertyListDictionary{{QStringLiteral("Versien"), 7}, {kDatabaseApps, PropertyListArray()}});
    EXPECT_FALSE(database.importDatabase(lost));
    EXPECT_EQ(tree(), QStringLiteral("Mail 60.5 [Inbox 40.25]"));
}

TEST_F(TimeDatabaseTest, aForeignBinaryDatabase_isRead) {
    const PropertyListDictionary content{
        {kDatabaseVersion, QStringLiteral("1.5")},
        {kDatabaseApps, PropertyListArray{PropertyListDictionary{
                            {kEntryApp, PropertyListDictionary{{kRecordName, QStringLiteral("Mail")},
                                                               {kRecordActiveTime, 5}}}}}}};
    ASSERT_TRUE(
        database.loadDictionaryFromURL(write(QStringLiteral("binary.tkd"), PropertyList::binary(content))));
    EXPECT_EQ(tree(), QStringLiteral("Mail 5"));
}

TEST_F(TimeDatabaseTest, aNewLocation_takesACopyIsRecordedAndAnnounced) {
    addMail();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    const QString chosen = fakes.home.filePath(QStringLiteral("chosen.tkd"));
    QStringList told;
    const auto subscription = database.observe(
        kPathDirectoryKey,
        [&](const ObservedChange& change) {
            told << (change.phase == ChangePhase::Will ? change.oldValue : change.newValue).toString();
        },
        {.prior = true, .values = true});
    const QString before = database.pathDirectory();
    ASSERT_TRUE(database.chooseDatabaseLocation(chosen));
    EXPECT_EQ(told, QStringList({before, chosen}));
    EXPECT_EQ(fakes.defaults.object(QStringLiteral("MainStorePath")).toString(), chosen);
    EXPECT_EQ(contentOf(chosen).value(kDatabaseVersion).toString(), QStringLiteral("1.5"));
}

TEST_F(TimeDatabaseTest, choosingAPlaceWhereAFileStands_failsAndKeepsTheOldLocation) {
    const QString before = database.mainStoreURL();
    const QString taken = write(QStringLiteral("taken.tkd"), QByteArray("somebody's"));
    const Outcome outcome = database.chooseDatabaseLocation(taken);
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().kind, Failure::Kind::AlreadyExists);
    EXPECT_EQ(database.mainStoreURL(), before);
    QFile file(taken);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll(), "somebody's");
}

TEST_F(TimeDatabaseTest, restoringTheDefaultLocation_movesNoFile) {
    const QString chosen = fakes.home.filePath(QStringLiteral("chosen.tkd"));
    ASSERT_TRUE(database.chooseDatabaseLocation(chosen));
    QFile::remove(database.defaultMainStoreURL());
    database.restoreDefaultDatabaseLocation();
    EXPECT_EQ(database.mainStoreURL(), database.defaultMainStoreURL());
    EXPECT_TRUE(QFileInfo::exists(chosen));
    EXPECT_FALSE(QFileInfo::exists(database.defaultMainStoreURL()));
}

TEST_F(TimeDatabaseTest, aLaterLaunch_beginsAtTheRecordedLocationOnlyWhileAFileIsThere) {
    addMail();
    const QString chosen = fakes.home.filePath(QStringLiteral("chosen.tkd"));
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    ASSERT_TRUE(database.chooseDatabaseLocation(chosen));
    TimeDatabase later(engine.tracker(), engine.services().store, fakes.defaults, fakes.folders, {});
    later.loadMainStore();
    EXPECT_EQ(later.mainStoreURL(), chosen);
    QFile::remove(chosen);
    TimeDatabase latest(engine.tracker(), engine.services().store, fakes.defaults, fakes.folders, {});
    latest.loadMainStore();
    EXPECT_EQ(latest.mainStoreURL(), latest.defaultMainStoreURL());
}

TEST_F(TimeDatabaseTest, anImport_replacesTimersAndProjectsAndKeepsTheFirstBackup) {
    addMail();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    const QString other =
        write(QStringLiteral("other.tkd"),
              PropertyListDictionary{{kDatabaseVersion, QStringLiteral("1.5")},
                                     {kDatabaseApps, PropertyListArray()},
                                     {kDatabaseProjects, PropertyListArray{QStringLiteral("p")}}});
    const QString backup =
        fakes.folders.applicationSupport + QStringLiteral("/Primary Database - Import Backup.tkd");
    EXPECT_EQ(database.importBackupPath(), backup);
    ASSERT_TRUE(database.importDatabase(other));
    EXPECT_TRUE(tree().isEmpty());
    EXPECT_EQ(importedProjects, PropertyListValue(PropertyListArray{QStringLiteral("p")}));
    const PropertyListDictionary first = contentOf(backup);
    EXPECT_EQ(first.value(kDatabaseApps).asArray()->size(), 1U);
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    ASSERT_TRUE(database.importDatabase(other));
    EXPECT_EQ(contentOf(backup), first);
}

TEST_F(TimeDatabaseTest, everyImport_hasABackupOfItsOwn) {
    const QString other =
        write(QStringLiteral("other.tkd"), PropertyListDictionary{{kDatabaseVersion, QStringLiteral("1.5")},
                                                                  {kDatabaseApps, PropertyListArray()}});
    for (const int seconds : {10, 20, 30}) {
        engine.tracker().addWindowWithName(QStringLiteral("Mail"), seconds);
        ASSERT_TRUE(database.importDatabase(other));
    }
    for (const auto& [name, seconds] :
         {std::pair("Import Backup", 10.), {"Import Backup 2", 20.}, {"Import Backup 3", 30.}}) {
        const QString path = fakes.folders.applicationSupport +
                             QStringLiteral("/Primary Database - %1.tkd").arg(QLatin1String(name));
        ASSERT_TRUE(database.loadDictionaryFromURL(path)) << name;
        EXPECT_EQ(tree(), QStringLiteral("Mail %1").arg(seconds));
    }
}

TEST_F(TimeDatabaseTest, aBackupThatCannotBeMade_stopsTheImportAndSaysSo) {
    const QString other =
        write(QStringLiteral("other.tkd"), PropertyListDictionary{{kDatabaseVersion, QStringLiteral("1.5")},
                                                                  {kDatabaseApps, PropertyListArray()},
                                                                  {kDatabaseProjects, PropertyListArray()}});
    addMail();
    ASSERT_TRUE(QDir(fakes.folders.applicationSupport).removeRecursively());
    const Outcome imported = database.importDatabase(other);
    ASSERT_FALSE(imported);
    EXPECT_TRUE(imported.failure().text.startsWith(QStringLiteral("No backup could be made")));
    EXPECT_EQ(tree(), QStringLiteral("Mail 60.5 [Inbox 40.25]"));
    EXPECT_TRUE(importedProjects.isAbsent());
}

TEST_F(TimeDatabaseTest, theMainStoreItselfImported_isReadAndWhatWasShownIsInTheBackup) {
    engine.tracker().addWindowWithName(QStringLiteral("Editor"), 7);
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    engine.tracker().reset();
    addMail();
    const QString backup = database.importBackupPath();
    ASSERT_TRUE(database.importDatabase(database.mainStoreURL()));
    EXPECT_EQ(tree(), QStringLiteral("Editor 7"));
    ASSERT_TRUE(database.loadDictionaryFromURL(backup));
    EXPECT_EQ(tree(), QStringLiteral("Mail 60.5 [Inbox 40.25]"));
}

TEST_F(TimeDatabaseTest, theBackupOfAnImport_holdsWhatWasNotSavedYet) {
    addMail();
    const QString backup = database.importBackupPath();
    EXPECT_FALSE(database.importDatabase(fakes.home.filePath(QStringLiteral("missing.tkd"))));
    EXPECT_EQ(contentOf(backup).value(kDatabaseApps).asArray()->size(), 1U);
}

TEST_F(TimeDatabaseTest, anImportWhileTheTimerRuns_leavesOneTimerForWhatIsInFront) {
    fakes.frontApplication.switchTo(ApplicationRecord{QStringLiteral("Mail"), {}, 7});
    ASSERT_TRUE(engine.tracker().setIsRunning(true));
    const PropertyListDictionary mail{{kRecordName, QStringLiteral("Mail")}, {kRecordActiveTime, 60.5}};
    const QString other =
        write(QStringLiteral("other.tkd"),
              PropertyListDictionary{
                  {kDatabaseVersion, QStringLiteral("1.5")},
                  {kDatabaseApps, PropertyListArray{PropertyListDictionary{{kEntryApp, mail}}}}});
    ASSERT_TRUE(database.importDatabase(other));
    EXPECT_EQ(tree(), QStringLiteral("Mail 60.5"));
}

TEST_F(TimeDatabaseTest, anOlderAccountAtTheDefaultLocation_isSetAsideWhenThatIsRestored) {
    addMail();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    ASSERT_TRUE(database.chooseDatabaseLocation(fakes.home.filePath(QStringLiteral("chosen.tkd"))));
    database.restoreDefaultDatabaseLocation();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    EXPECT_EQ(QDir(fakes.folders.applicationSupport).entryList(QDir::Files).size(), 2);
}

TEST_F(TimeDatabaseTest, anImportThatCannotBeRead_makesTheBackupAndLeavesTheTimers) {
    addMail();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    const QString backup = database.importBackupPath();
    const Outcome imported = database.importDatabase(fakes.home.filePath(QStringLiteral("missing.tkd")));
    ASSERT_FALSE(imported);
    EXPECT_TRUE(imported.failure().text.contains(QStringLiteral("missing.tkd"))) << "it says so";
    EXPECT_TRUE(QFileInfo::exists(backup));
    EXPECT_EQ(tree(), QStringLiteral("Mail 60.5 [Inbox 40.25]"));
    EXPECT_TRUE(importedProjects.isAbsent());
}

TEST_F(TimeDatabaseTest, aFolderThatCannotBeWrittenTo_isToldInTheLogAndNothingElseHappens) {
    addMail();
    ASSERT_TRUE(QDir(fakes.folders.applicationSupport).removeRecursively());
    EXPECT_FALSE(database.saveSettingsToDiskAtURL());
    EXPECT_TRUE(fakes.log.mentions(QStringLiteral("The database could not be written")));
    EXPECT_EQ(tree(), QStringLiteral("Mail 60.5 [Inbox 40.25]"));
}

TEST_F(TimeDatabaseTest, aMainStoreThatCannotBeWritten_isToldAndTriedAgainUntilItCan) {
    addMail();
    const QString folder = fakes.folders.applicationSupport;
    ASSERT_TRUE(QDir().rename(folder, folder + QStringLiteral(" gone")));
    EXPECT_FALSE(database.saveSettingsToDiskAtURL());
    EXPECT_EQ(engine.trouble().text(),
              QStringLiteral("“Primary Database.tkd” cannot be saved: its folder is missing."));
    ASSERT_TRUE(QDir().rename(folder + QStringLiteral(" gone"), folder));
    fakes.runLoop.advance(std::chrono::minutes(1));
    ASSERT_EQ(engine.trouble().text(), QString());
    EXPECT_EQ(contentOf(database.mainStoreURL()).value(kDatabaseApps).asArray()->size(), 1U);
}

TEST_F(TimeDatabaseTest, aCopyThatCannotBeWritten_isNoTroubleOfTheAccount) {
    EXPECT_FALSE(database.saveSettingsToDiskAtURL(fakes.home.filePath(QStringLiteral("no/such/copy.tkd"))));
    EXPECT_EQ(engine.trouble().text(), QString());
}

TEST_F(TimeDatabaseTest, aStoreWhereOthersMayWrite_isToldToTheUser) {
    const QString shared = fakes.home.filePath(QStringLiteral("shared"));
    ASSERT_TRUE(QDir().mkdir(shared));
    ASSERT_EQ(::chmod(QFile::encodeName(shared).constData(), 01777), 0);
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    EXPECT_EQ(engine.trouble().text(), QString());
    ASSERT_TRUE(database.chooseDatabaseLocation(shared + QStringLiteral("/Times.tkd")));
    const QString told =
        QStringLiteral("“Times.tkd” is in a folder where others may write: they could replace it.");
    EXPECT_EQ(engine.trouble().text(), told);
    EXPECT_TRUE(engine.trouble().canBeAcknowledged());
    engine.trouble().acknowledge();
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    EXPECT_EQ(engine.trouble().text(), QString()) << "who knows it is not told again";
    database.loadMainStore();
    EXPECT_EQ(engine.trouble().text(), told);
    database.restoreDefaultDatabaseLocation();
    EXPECT_EQ(engine.trouble().text(), QString());
}

} // namespace
