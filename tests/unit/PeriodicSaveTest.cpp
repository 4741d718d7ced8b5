// SPDX-License-Identifier: MIT
#include "Classes/record/PeriodicSave.h"

#include "Classes/engine/Engine.h"
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/AccountEntries.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/FakePlatform.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <QFileInfo>
#include <ctime>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

// Weekdays as the setting has them.
constexpr int kEveryDay = 0x7F;
constexpr int kThursday = 1 << 4;

class PeriodicSaveTest : public testing::Test {
protected:
    explicit PeriodicSaveTest(const char* zone = "UTC") {
        qputenv("TZ", zone);
        tzset();
        fakes.defaults.registerDefaults(registeredDefaults(fakes.folders.applicationSupport));
        QDir().mkpath(archive());
        fakes.defaults.setObject(kPeriodicSaveDirectory, archive());
        addMail();
    }
    ~PeriodicSaveTest() override {
        qunsetenv("TZ");
        tzset();
    }

    void addMail() {
        engine.tracker().setArrayRepresentation(
            {PropertyListDictionary{{kEntryApp, PropertyListDictionary{{kRecordName, QStringLiteral("Mail")},
                                                                       {kRecordActiveTime, 60.5}}},
                                    {kEntryWindows, PropertyListArray()}}});
    }

    QString archive() { return fakes.home.filePath(QStringLiteral("archive")); }

    // The names of the files in a folder.
    static std::string files(const QString& folder) {
        return str(QDir(folder).entryList(QDir::Files, QDir::Name).join(u' '));
    }

    void archiveNow() {
        save.doPeriodicSave();
        fakes.runLoop.runPending();
    }

    bool isCleared() { return engine.tracker().fullTimeSet().empty(); }

    // "2026-01-05T14:30:00" in the zone of the test.
    void setClock(const char* local) {
        const auto time = QDateTime::fromString(QLatin1String(local), Qt::ISODate);
        fakes.clock.setWall(Date(std::chrono::milliseconds(time.toMSecsSinceEpoch())));
    }

    std::string firing() {
        const auto next = save.nextFiring();
        return next ? str(QDateTime::fromMSecsSinceEpoch(qint64(secondsBetween(Date(), *next) * 1000))
                              .toString(QStringLiteral("yyyy-MM-dd hh:mm")))
                    : "none";
    }

    void turnOn(int weekdays = kEveryDay) {
        fakes.defaults.setObject(kSaveTimerPeriodically, true);
        fakes.defaults.setObject(kPeriodicDaysOfWeek, weekdays);
        save.updatedSaveTimerPeriodically();
    }

    FakePlatform fakes;
    Engine engine{fakes.platform, {}};
    TimeDatabase database{engine.tracker(),
                          engine.services().store,
                          fakes.defaults,
                          fakes.folders,
                          {.projects =
                               [] {
                                   return PropertyListArray{PropertyListDictionary{
                                       {QStringLiteral("Label"), QStringLiteral("Home")}}};
                               },
                           .setProjects = {},
                           .computeTime = [] {},
                           .timersReplaced = {}}};
    int cleared = 0;
    // While the folder of the archives does not answer, what waits for it.
    bool isFolderSlow = false;
    std::vector<std::function<void()>> waiting;
    BackgroundMove::Background background = [this](auto work) {
        isFolderSlow ? waiting.push_back(std::move(work)) : work();
    };
    std::optional<PeriodicSave> running{std::in_place,           engine.tracker(), database,
                                        engine.services().store, fakes.defaults,   fakes.clock,
                                        [this] { ++cleared; },   background};
    PeriodicSave& save = *running;
};

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

// Clocks go forward on 29 March and back on 25 October 2026, at two and three o'clock.
class PeriodicSaveInBerlin : public PeriodicSaveTest {
protected:
    explicit PeriodicSaveInBerlin(const char* zone = "Europe/Berlin")
        : PeriodicSaveTest(zone) {}

    void chooseTime(int hour, int minute) {
        const auto time = QDateTime(QDate(2020, 1, 1), QTime(hour, minute)).toMSecsSinceEpoch();
        fakes.defaults.setObject(kPeriodicSaveTime, Date(std::chrono::milliseconds(time)));
    }

    // A machine that wakes for some minutes in every hour, with something counted every day.
    void passDays(int days) {
        for (int hour = 0; hour < days * 24; ++hour) {
            if (isCleared())
                addMail();
            fakes.clock.sleepFor(57min);
            fakes.runLoop.advance(3min);
        }
    }

    std::string tables() {
        return str(QDir(archive()).entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name).join(u' '));
    }
};

TEST_F(PeriodicSaveInBerlin, sleptThroughTheEveningAndOpenedInTheMorning_isArchivedAsTheEveningsDay) {
    setClock("2026-11-18T18:10:00");
    turnOn();
    fakes.runLoop.advance(5min);
    fakes.clock.sleepFor(15h);
    fakes.runLoop.advance(2min);
    EXPECT_EQ(files(archive()), "2026-11-18.csv 2026-11-18.tkd");
    EXPECT_EQ(firing(), "2026-11-19 19:10");
    addMail();
    fakes.clock.sleepFor(10h);
    fakes.runLoop.advance(2min);
    EXPECT_EQ(tables(), "2026-11-18.csv 2026-11-19.csv") << "the evening of the waking day has its own";
    EXPECT_EQ(cleared, 2);
}

TEST_F(PeriodicSaveInBerlin, aChosenDayThatWasSleptThrough_isMadeUpForOnADayThatIsNot) {
    setClock("2026-11-19T18:10:00");
    turnOn(kThursday);
    fakes.clock.sleepFor(39h);
    fakes.runLoop.advance(2min);
    EXPECT_EQ(files(archive()), "2026-11-19.csv 2026-11-19.tkd");
    passDays(6);
    EXPECT_EQ(tables(), "2026-11-19.csv 2026-11-26.csv");
}

TEST_F(PeriodicSaveInBerlin, aLateEveningThatFiresAfterMidnight_isStillThatDay) {
    chooseTime(23, 30);
    setClock("2026-11-19T14:20:00");
    turnOn(kThursday);
    EXPECT_EQ(firing(), "2026-11-20 00:20");
    passDays(8);
    EXPECT_EQ(tables(), "2026-11-19.csv 2026-11-26.csv");
    EXPECT_EQ(cleared, 2);
}

TEST_F(PeriodicSaveInBerlin, afterTheClocksWentForward_itFiresAtTheSameTimeOfDay) {
    setClock("2026-03-28T14:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-03-28 19:30");
    fakes.runLoop.advance(6h);
    EXPECT_EQ(firing(), "2026-03-29 19:30");
}

TEST_F(PeriodicSaveInBerlin, onTheDayOfTwentyFiveHours_itFiresAtTheSameTimeOfDay) {
    setClock("2026-10-25T18:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-10-25 19:30");
    setClock("2026-10-24T14:30:00");
    turnOn();
    fakes.runLoop.advance(6h);
    EXPECT_EQ(firing(), "2026-10-25 19:30");
}

TEST_F(PeriodicSaveInBerlin, aTimeThatDoesNotExist_isAnHourLaterThatDay) {
    chooseTime(2, 30);
    setClock("2026-03-28T12:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-03-29 03:30");
    passDays(2);
    EXPECT_EQ(tables(), "2026-03-29.csv 2026-03-30.csv");
    EXPECT_EQ(firing(), "2026-03-31 02:30");
}

TEST_F(PeriodicSaveInBerlin, aTimeThatExistsTwice_firesOnce) {
    chooseTime(2, 30);
    setClock("2026-10-24T12:30:00");
    turnOn();
    passDays(2);
    EXPECT_EQ(tables(), "2026-10-25.csv 2026-10-26.csv");
    EXPECT_EQ(cleared, 2);
}

TEST_F(PeriodicSaveInBerlin, theRegisteredTime_isSevenInTheEveningThereToo) {
    setClock("2026-07-01T14:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-07-01 19:30");
}

// Clocks go back on 4 April and forward on 6 September 2026, both at midnight.
class PeriodicSaveInSantiago : public PeriodicSaveInBerlin {
protected:
    PeriodicSaveInSantiago()
        : PeriodicSaveInBerlin("America/Santiago") {}
};

TEST_F(PeriodicSaveInSantiago, anHourBeforeMidnightThatComesTwice_isOneEvening) {
    chooseTime(23, 15);
    setClock("2026-04-03T20:20:00");
    turnOn();
    passDays(4);
    EXPECT_EQ(tables(), "2026-04-03.csv 2026-04-04.csv 2026-04-05.csv 2026-04-06.csv");
    EXPECT_EQ(cleared, 4);
}

TEST_F(PeriodicSaveInSantiago, aDayThatBeginsAtOne_hasItsArchiveAsEveryOther) {
    chooseTime(0, 15);
    setClock("2026-09-04T20:20:00");
    turnOn();
    passDays(3);
    EXPECT_EQ(tables(), "2026-09-05.csv 2026-09-06.csv 2026-09-07.csv");
    EXPECT_EQ(cleared, 3);
}

} // namespace
