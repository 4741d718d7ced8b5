// SPDX-License-Identifier: MIT
// When the scheduled archive is due, and what it consists of.
#include "tests/unit/PeriodicSaveScene.h"

#include <QFile>
#include <QFileInfo>

namespace {

using namespace std::chrono_literals;

TEST_F(PeriodicSaveTest, untilItIsTurnedOn_nothingIsPlanned) {
    EXPECT_EQ(firing(), "none");
    turnOn();
    EXPECT_NE(firing(), "none");
    fakes.defaults.setObject(kSaveTimerPeriodically, false);
    save.updatedSaveTimerPeriodically();
    EXPECT_EQ(firing(), "none");
    fakes.runLoop.advance(25h);
    EXPECT_FALSE(isCleared());
}

TEST_F(PeriodicSaveTest, startedInTheAfternoon_firesInTheEveningWithTheMinutesOfTheStart) {
    setClock("2026-01-05T14:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-01-05 19:30");
}

TEST_F(PeriodicSaveTest, startedRightAtOrAfterTheTime_firesADayLaterOrAlmost) {
    setClock("2026-01-05T19:00:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-01-06 19:00");
    setClock("2026-01-05T18:59:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-01-05 19:59");
    setClock("2026-01-05T21:15:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-01-06 19:15");
}

TEST_F(PeriodicSaveTest, aTimeChosenByTheUser_isTheTimeOfDayAlone) {
    setClock("2026-01-05T06:10:00");
    const auto noon = QDateTime(QDate(2011, 7, 1), QTime(12, 0)).toMSecsSinceEpoch();
    fakes.defaults.setObject(kPeriodicSaveTime, Date(std::chrono::milliseconds(noon)));
    turnOn();
    EXPECT_EQ(firing(), "2026-01-05 12:10");
}

TEST_F(PeriodicSaveTest, aTimeThatIsNone_countsAsSevenInTheEvening) {
    setClock("2026-01-05T14:30:00");
    fakes.defaults.setObject(kPeriodicSaveTime, QStringLiteral("late"));
    turnOn();
    EXPECT_EQ(firing(), "2026-01-05 19:30");
}

TEST_F(PeriodicSaveTest, onAChosenWeekday_bothFilesAreWrittenAndTheTimersCleared) {
    setClock("2026-01-08T18:30:00");
    turnOn(kThursday);
    fakes.runLoop.advance(59min);
    EXPECT_FALSE(isCleared());
    fakes.runLoop.advance(2min);
    EXPECT_TRUE(isCleared());
    EXPECT_EQ(cleared, 1);
    EXPECT_EQ(files(archive()), "2026-01-08.csv 2026-01-08.tkd");
    const auto stored = PropertyList::readFile(archive() + QStringLiteral("/2026-01-08.tkd"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->asDictionary()->value(kDatabaseApps).asArray()->size(), 1U);
    EXPECT_EQ(stored->asDictionary()->value(kDatabaseProjects).asArray()->size(), 1U);
}

TEST_F(PeriodicSaveTest, onAnotherWeekday_nothingHappens) {
    setClock("2026-01-07T18:30:00");
    turnOn(kThursday);
    fakes.runLoop.advance(2h);
    EXPECT_FALSE(isCleared());
    EXPECT_EQ(files(archive()), "");
    fakes.runLoop.advance(24h);
    EXPECT_TRUE(isCleared());
}

TEST_F(PeriodicSaveTest, eachFormat_writesItsFilesAndClears) {
    const std::map<int, std::string> formats{
        {0, "2026-01-05.csv"}, {1, "2026-01-05.tkd"}, {2, "2026-01-05.csv 2026-01-05.tkd"}, {5, ""}};
    for (const auto& [format, expected] : formats) {
        QDir(archive()).removeRecursively();
        QDir().mkpath(archive());
        addMail();
        fakes.defaults.setObject(kPeriodicFormatType, format);
        archiveNow();
        EXPECT_EQ(files(archive()), expected) << format;
        EXPECT_TRUE(isCleared()) << format;
    }
}

TEST_F(PeriodicSaveTest, twiceADay_theSecondLiesBesideTheFirst) {
    archiveNow();
    const auto before = QFile(archive() + QStringLiteral("/2026-01-05.csv")).size();
    archiveNow();
    EXPECT_EQ(files(archive()), "2026-01-05 2.csv 2026-01-05 2.tkd 2026-01-05.csv 2026-01-05.tkd");
    EXPECT_EQ(QFile(archive() + QStringLiteral("/2026-01-05.csv")).size(), before);
}

TEST_F(PeriodicSaveTest, twiceADayInTheMainStoresOwnFolder_theSecondLiesBesideTheFirst) {
    fakes.defaults.removeObject(kPeriodicSaveDirectory);
    archiveNow();
    archiveNow();
    EXPECT_EQ(files(fakes.folders.applicationSupport),
              "2026-01-05 2.csv 2026-01-05 2.tkd 2026-01-05.csv 2026-01-05.tkd");
}

TEST_F(PeriodicSaveTest, aYear_isArchivedOncePerThursday) {
    setClock("2026-01-01T14:30:00");
    turnOn(kThursday);
    fakes.clock.sleepFor(4h + 55min);
    // The machine is awake each day for the eleven minutes in which the archive is made.
    for (int day = 0; day < 365; ++day) {
        addMail();
        fakes.runLoop.advance(11min);
        fakes.clock.sleepFor(23h + 49min);
    }
    EXPECT_EQ(QDir(archive()).entryList({QStringLiteral("*.csv")}).size(), 53);
    EXPECT_EQ(cleared, 53);
    EXPECT_TRUE(QFile::exists(archive() + QStringLiteral("/2026-12-31.csv")));
}

TEST_F(PeriodicSaveTest, aMachineThatSleptAtTheTime_savesSoonAfterItWakes) {
    setClock("2026-01-05T18:30:00");
    turnOn();
    fakes.runLoop.advance(5min);
    fakes.clock.sleepFor(4h);
    fakes.runLoop.advance(11min);
    EXPECT_TRUE(isCleared());
    EXPECT_EQ(files(archive()), "2026-01-05.csv 2026-01-05.tkd");
    EXPECT_EQ(firing(), "2026-01-06 19:30");
}

TEST_F(PeriodicSaveTest, aMachineThatSleptForDays_savesOnceUnderTheFirstDayThatWasDue) {
    setClock("2026-01-05T18:30:00");
    turnOn();
    fakes.clock.sleepFor(100h);
    fakes.runLoop.advance(11min);
    EXPECT_EQ(cleared, 1);
    EXPECT_EQ(files(archive()), "2026-01-05.csv 2026-01-05.tkd");
    EXPECT_EQ(firing(), "2026-01-10 19:30") << "the schedule goes on";
}

TEST_F(PeriodicSaveTest, aDayWhoseTimeHasCome_isNotPassedOverByPlanningAnew) {
    setClock("2026-01-08T14:30:00");
    turnOn(kThursday);
    setClock("2026-01-08T19:10:00");
    save.setPeriodicDaysOfWeek({true, true, true, true, true, true, true});
    fakes.runLoop.runPending();
    EXPECT_EQ(files(archive()), "2026-01-08.csv 2026-01-08.tkd");
    EXPECT_EQ(firing(), "2026-01-09 19:10");
}

TEST_F(PeriodicSaveTest, aDayWhoseTimeHasNotCome_isNotArchivedByPlanningAnew) {
    setClock("2026-01-08T14:30:00");
    turnOn(kThursday);
    const auto noon = QDateTime(QDate(2011, 7, 1), QTime(12, 0)).toMSecsSinceEpoch();
    fakes.defaults.setObject(kPeriodicSaveTime, Date(std::chrono::milliseconds(noon)));
    save.settingsChanged();
    EXPECT_EQ(files(archive()), "");
    EXPECT_EQ(firing(), "2026-01-09 12:30");
}

TEST_F(PeriodicSaveTest, aClockThatWasYearsBehind_makesUpForNoDayThatNeverWas) {
    setClock("2000-01-05T14:30:00");
    turnOn();
    setClock("2026-01-05T14:30:00");
    fakes.runLoop.advance(2min);
    EXPECT_EQ(files(archive()), "");
    EXPECT_EQ(firing().substr(0, 13), "2026-01-05 19");
}

TEST_F(PeriodicSaveTest, aClockSetBack_savesAtTheTimeThatWasPlanned) {
    setClock("2026-01-05T18:30:00");
    turnOn();
    setClock("2026-01-05T17:30:00");
    fakes.runLoop.advance(119min);
    EXPECT_FALSE(isCleared());
    fakes.runLoop.advance(2min);
    EXPECT_TRUE(isCleared());
}

TEST_F(PeriodicSaveTest, aClockThatWasYearsAhead_doesNotEndTheArchives) {
    setClock("2099-01-05T14:30:00");
    turnOn();
    fakes.runLoop.advance(std::chrono::minutes(1));
    setClock("2026-01-05T14:30:00");
    fakes.runLoop.advance(std::chrono::minutes(10));
    EXPECT_EQ(firing().substr(0, 13), "2026-01-05 19");
}

TEST_F(PeriodicSaveTest, anArchiveThatWouldBeTheMainStore_isKeptBesideIt) {
    setClock("2026-01-05T12:00:00");
    fakes.defaults.setObject(kPeriodicFormatType, 1);
    database.setMainStoreURL(archive() + QStringLiteral("/2026-01-05.tkd"));
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    archiveNow();
    EXPECT_EQ(files(archive()), "2026-01-05 2.tkd 2026-01-05.tkd");
    EXPECT_TRUE(isCleared());
}

TEST_F(PeriodicSaveTest, aCopyBesideTheMainStore_followsNoLinkThatLeadsNowhere) {
    setClock("2026-01-05T12:00:00");
    fakes.defaults.setObject(kPeriodicFormatType, 0);
    fakes.defaults.setObject(kPeriodicSaveDirectory, fakes.home.filePath(QStringLiteral("gone")));
    const QString nothing = fakes.home.filePath(QStringLiteral("nothing"));
    QFile::link(nothing, fakes.folders.applicationSupport + QStringLiteral("/2026-01-05.csv"));
    archiveNow();
    EXPECT_FALSE(QFileInfo::exists(nothing));
    EXPECT_TRUE(QFileInfo::exists(fakes.folders.applicationSupport + QStringLiteral("/2026-01-05 2.csv")));
}

TEST_F(PeriodicSaveTest, weekdays_areStoredInTheMirrorOfHowTheyAreShown) {
    save.setPeriodicDaysOfWeek({true, false, false, false, false, false, false});
    EXPECT_EQ(fakes.defaults.integerForKey(kPeriodicDaysOfWeek), 64);
    EXPECT_EQ(save.selectProperPeriodicDaysOfWeek(),
              (PeriodicSave::Segments{false, false, false, false, false, false, true}));
    save.setPeriodicDaysOfWeek({true, true, true, true, true, true, true});
    EXPECT_EQ(fakes.defaults.integerForKey(kPeriodicDaysOfWeek), 127);
    fakes.defaults.removeObject(kPeriodicDaysOfWeek);
    EXPECT_EQ(save.selectProperPeriodicDaysOfWeek(),
              (PeriodicSave::Segments{false, false, false, false, true, false, false}))
        << "Thursday";
}

TEST_F(PeriodicSaveTest, aTilde_isTheHomeFolder) {
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", fakes.home.path().toUtf8());
    fakes.defaults.setObject(kPeriodicSaveDirectory, QStringLiteral("~/archive"));
    archiveNow();
    EXPECT_EQ(files(archive()), "2026-01-05.csv 2026-01-05.tkd");
    qputenv("HOME", home);
}

TEST_F(PeriodicSaveTest, aFolderThatIsNoText_isTheApplicationSupportFolder) {
    fakes.defaults.setObject(kPeriodicSaveDirectory, 7);
    archiveNow();
    EXPECT_TRUE(QFile::exists(fakes.folders.applicationSupport + QStringLiteral("/2026-01-05.csv")));
}

// A folder that cannot take the archive; `spoil` makes it in place of the chosen one.
class UnwritableArchive
    : public PeriodicSaveTest,
      public testing::WithParamInterface<std::pair<const char*, void (*)(const QString&)>> {};

TEST_P(UnwritableArchive, theArchiveIsKeptBesideTheMainStoreAndTheTimersAreCleared) {
    QDir(archive()).removeRecursively();
    GetParam().second(archive());
    archiveNow();
    EXPECT_TRUE(isCleared());
    EXPECT_EQ(files(fakes.folders.applicationSupport), "2026-01-05.csv 2026-01-05.tkd");
    EXPECT_TRUE(fakes.log.lines.contains(QStringLiteral("Error Exporting")));
    EXPECT_TRUE(fakes.log.lines.join(u'\n').contains(QStringLiteral("is kept as ")));
    // Again on the same day: archives that are kept are not overwritten.
    addMail();
    archiveNow();
    EXPECT_EQ(files(fakes.folders.applicationSupport),
              "2026-01-05 2.csv 2026-01-05 2.tkd 2026-01-05.csv 2026-01-05.tkd");
}

INSTANTIATE_TEST_SUITE_P(PeriodicSave, UnwritableArchive,
                         testing::Values(std::pair(
                                             "vanished", +[](const QString&) {}),
                                         std::pair(
                                             "file",
                                             +[](const QString& path) {
                                                 QFile file(path);
                                                 EXPECT_TRUE(file.open(QFile::WriteOnly));
                                             }),
                                         std::pair(
                                             "readonly",
                                             +[](const QString& path) {
                                                 // Where not even root can make files.
                                                 EXPECT_TRUE(QFile::link(QStringLiteral("/proc"), path));
                                             }),
                                         std::pair(
                                             "dangling",
                                             +[](const QString& path) {
                                                 EXPECT_TRUE(
                                                     QFile::link(QStringLiteral("/no/such/folder"), path));
                                             })),
                         [](const auto& unwritable) { return std::string(unwritable.param.first); });

TEST_F(PeriodicSaveTest, aFolderOnASlowMount_getsTheArchiveWhenItAnswers) {
    isFolderSlow = true;
    archiveNow();
    EXPECT_TRUE(isCleared()) << "nobody waited";
    EXPECT_EQ(files(archive()), "");
    EXPECT_EQ(files(fakes.folders.applicationSupport), "2026-01-05.csv 2026-01-05.tkd");
    isFolderSlow = false;
    waiting.at(0)();
    fakes.runLoop.runPending();
    EXPECT_EQ(files(archive()), "2026-01-05.csv 2026-01-05.tkd");
    EXPECT_EQ(files(fakes.folders.applicationSupport), "");
    EXPECT_TRUE(fakes.log.lines.isEmpty()) << str(fakes.log.lines.join(u'\n'));
}

TEST_F(PeriodicSaveTest, archivesThatAreKept_areToldUntilTheFolderAnswersAndTakesThemToo) {
    const QString gone = archive() + QStringLiteral(" unplugged");
    ASSERT_TRUE(QDir().rename(archive(), gone));
    archiveNow();
    EXPECT_TRUE(engine.trouble().text().contains(QStringLiteral("“2026-01-05.tkd” could not be moved")))
        << str(engine.trouble().text());
    ASSERT_TRUE(QDir().rename(gone, archive()));
    addMail();
    archiveNow();
    EXPECT_EQ(engine.trouble().text(), QString());
    EXPECT_EQ(files(archive()), "2026-01-05 2.csv 2026-01-05 2.tkd 2026-01-05.csv 2026-01-05.tkd");
    EXPECT_EQ(files(fakes.folders.applicationSupport), "");
}

TEST_F(PeriodicSaveTest, anArchiveThatTheUserHasTakenAway_isNotSpokenOfAnyMore) {
    turnOn();
    QDir(archive()).removeRecursively();
    archiveNow();
    EXPECT_NE(engine.trouble().text(), QString());
    for (const QString& name : QDir(fakes.folders.applicationSupport).entryList(QDir::Files))
        QFile::remove(fakes.folders.applicationSupport + u'/' + name);
    fakes.runLoop.advance(1min);
    EXPECT_EQ(engine.trouble().text(), QString());
}

TEST_F(PeriodicSaveTest, aFolderThatNeverAnswers_leavesTheArchivesBesideTheMainStore) {
    isFolderSlow = true;
    archiveNow();
    addMail();
    archiveNow();
    EXPECT_EQ(waiting.size(), 1U) << "what hangs is not asked again";
    running.reset();
    EXPECT_EQ(files(fakes.folders.applicationSupport),
              "2026-01-05 2.csv 2026-01-05 2.tkd 2026-01-05.csv 2026-01-05.tkd");
    EXPECT_EQ(fakes.log.lines.filter(QStringLiteral("not answered yet")).size(), 4);
    waiting.at(0)();
    fakes.runLoop.runPending();
    EXPECT_EQ(files(archive()), "2026-01-05.csv") << "an answer after the end";
}

TEST_F(PeriodicSaveTest, withoutRoomBesideTheMainStore_theFolderIsWrittenToAtOnce) {
    isFolderSlow = true;
    database.setMainStoreURL(QStringLiteral("/no/such/folder/store.tkd"));
    archiveNow();
    EXPECT_EQ(files(archive()), "2026-01-05.csv 2026-01-05.tkd");
    EXPECT_TRUE(waiting.empty());
}

TEST_F(PeriodicSaveTest, nowhereToWrite_isToldAndTheTimersAreCleared) {
    fakes.defaults.setObject(kPeriodicSaveDirectory, QStringLiteral("/no/such/folder"));
    database.setMainStoreURL(QStringLiteral("/no/such/folder/store.tkd"));
    archiveNow();
    EXPECT_TRUE(isCleared());
    EXPECT_TRUE(fakes.log.lines.join(u'\n').contains(QStringLiteral("written nowhere")));
    EXPECT_TRUE(engine.trouble().text().contains(QStringLiteral("“2026-01-05.tkd” could not be written")));
}

} // namespace
