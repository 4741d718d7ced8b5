// SPDX-License-Identifier: MIT
#include "tests/unit/HistoryScene.h"

namespace {

TEST_F(HistoryTest, whatWasInFront_isInTheFile) {
    day.start();
    day.front("Mail", "(3) Inbox");
    day.seconds(40);
    day.retitle("(4) Inbox");
    day.seconds(20);
    day.front("Editor", "a.txt");
    day.seconds(10);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 60, Editor [a.txt] 10");
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
}

TEST_F(HistoryTest, anAbsence_beginsWithTheLastInput_andTheTreeHasTheMinutesBeforeTwice) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    day.idle(600);
    day.seconds(10);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 100, Idle 600, Mail [Inbox] 10");
    EXPECT_NEAR(day.secondsOf("Mail"), 100 + 64.5 + 10, 0.3);
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
}

TEST_F(HistoryTest, whatIsStoppedOrSlept_isAGap) {
    day.control.registerForSystemSleep(day.fakes.power);
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(10);
    day.stop();
    day.seconds(10);
    day.start();
    day.seconds(10);
    day.asleep(3600);
    day.seconds(10);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 10, Mail [Inbox] 10, Mail [Inbox] 10");
}

TEST_F(HistoryTest, aStretchThatRuns_isNeverMoreThanFifteenSecondsBehind) {
    day.start();
    day.front("Mail", "Inbox");
    for (int i = 0; i < 40; ++i) {
        day.seconds(5);
        SqliteDatabase file(scene.path(), SqliteDatabase::Mode::Read, 0);
        EXPECT_GE(file.number("SELECT ifnull(sum(length), 0) FROM stretches"), (i * 5 - 10) * 1000);
    }
}

TEST_F(HistoryTest, aFocusChangeEachSecond_isWrittenFourTimesAMinute) {
    day.start();
    const auto live = [&](int seconds) {
        for (int i = 0; i < seconds; ++i) {
            day.front(i % 2 ? "Mail" : "Editor", "a");
            day.seconds(1);
        }
    };
    live(60);
    const int before = scene.writes;
    live(600);
    EXPECT_LE(scene.writes - before, 42);
}

TEST_F(HistoryTest, whileNobodyIsThere_nothingIsWrittenAndNobodyWoken) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    day.idle(200);
    const int before = scene.writes;
    day.idle(36'000);
    EXPECT_EQ(scene.writes, before);
    day.stop();
    day.advance(60);
    const int stopped = scene.writes;
    day.advance(36'000);
    EXPECT_EQ(scene.writes, stopped);
}

TEST_F(HistoryTest, afterAKill_atMostFifteenSecondsAreMissing) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    day.seconds(100);
    day.front("Editor", "a.txt");
    day.seconds(300);
    const auto second = relaunched(scene);
    EXPECT_NEAR(second->day.secondsOf("Mail", "Inbox"), 200, 0.1);
    EXPECT_GE(second->day.secondsOf("Editor", "a.txt"), 285);
    EXPECT_LE(second->day.secondsOf("Editor", "a.txt"), 300.1);
    EXPECT_EQ(second->day.node("Mail").uuid(), day.node("Mail").uuid());
}

TEST_F(HistoryTest, afterManyKills_nothingIsAddedTwice) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    day.seconds(60);
    auto last = relaunched(scene);
    last = relaunched(*last);
    const double got = last->day.secondsOf("Mail", "Inbox");
    EXPECT_LE(got, 160.1);
    EXPECT_GE(got, 145);
    last->day.start();
    last->day.front("Mail", "Inbox");
    last->day.seconds(30);
    last = relaunched(*last);
    EXPECT_LE(last->day.secondsOf("Mail", "Inbox"), got + 30.1);
    EXPECT_GE(last->day.secondsOf("Mail", "Inbox"), got + 15);
    const double before = last->day.secondsOf("Mail", "Inbox");
    last->save();
    last = relaunched(*last);
    EXPECT_NEAR(last->day.secondsOf("Mail", "Inbox"), before, 0.001);
}

TEST_F(HistoryTest, beforeTheFirstSave_aKillCostsNoMore) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    const auto second = relaunched(scene);
    EXPECT_GE(second->day.secondsOf("Mail", "Inbox"), 85);
}

TEST_F(HistoryTest, theIdleTimeOfBefore_isMadeUpForAsWell) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    day.idle(600);
    day.seconds(40);
    const auto second = relaunched(scene);
    EXPECT_NEAR(second->day.secondsOf("Idle"), day.secondsOf("Idle"), 1.2);
    EXPECT_NEAR(second->day.secondsOf("Mail"), day.secondsOf("Mail"), 15);
    EXPECT_LE(second->day.secondsOf("Mail"), day.secondsOf("Mail") + 0.1);
}

TEST_F(HistoryTest, anAbsenceThatHasJustBeenNoticed_isMadeUpForAsWell) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    day.idle(65);
    ASSERT_GE(day.secondsOf("Idle"), 60);
    const auto second = relaunched(scene);
    EXPECT_NEAR(second->day.secondsOf("Idle"), day.secondsOf("Idle"), 15);
    EXPECT_NEAR(second->day.secondsOf("Mail"), day.secondsOf("Mail"), 15);
}

TEST_F(HistoryTest, anOlderStoreThatIsPutBack_getsNothing) {
    const QString store = scene.database->mainStoreURL();
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    ASSERT_TRUE(QFile::copy(store, store + QStringLiteral(".old")));
    day.seconds(100);
    scene.save();
    day.seconds(100);
    ASSERT_TRUE(QFile::remove(store));
    ASSERT_TRUE(QFile::rename(store + QStringLiteral(".old"), store));
    auto last = relaunched(scene);
    EXPECT_NEAR(last->day.secondsOf("Mail", "Inbox"), 100, 0.1);
    // From now on it is the store.
    last->day.start();
    last->day.front("Mail", "Inbox");
    last->day.seconds(60);
    last = relaunched(*last);
    EXPECT_GE(last->day.secondsOf("Mail", "Inbox"), 145);
    EXPECT_LE(last->day.secondsOf("Mail", "Inbox"), 160.1);
}

TEST_F(HistoryTest, withoutItsHistory_aStoreIsWhatItIs) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    day.seconds(100);
    for (const QFileInfo& file :
         QFileInfo(scene.path()).dir().entryInfoList({QStringLiteral("History*")}, QDir::Files))
        ASSERT_TRUE(QFile::remove(file.filePath()));
    const auto second = relaunched(scene);
    EXPECT_NEAR(second->day.secondsOf("Mail", "Inbox"), 100, 0.1);
    EXPECT_TRUE(QFileInfo(second->path()).isFile());
}

TEST_F(HistoryTest, aHistoryFromAnotherMachine_addsNothingToTheStore) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    Scene other;
    other.launch();
    other.day.start();
    other.day.front("Mail", "Inbox");
    other.day.seconds(40);
    other.save();
    other.day.seconds(300);
    // As it lies there after a crash, beside the store of this one.
    for (const QString& ending : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
        QFile::remove(scene.path() + ending);
        QFile::copy(other.path() + ending, scene.path() + ending);
    }
    auto last = relaunched(scene);
    EXPECT_NEAR(last->day.secondsOf("Mail", "Inbox"), 100, 0.1);
    last->day.start();
    last->day.front("Mail", "Inbox");
    last->day.seconds(60);
    last = relaunched(*last);
    EXPECT_GE(last->day.secondsOf("Mail", "Inbox"), 145);
    EXPECT_LE(last->day.secondsOf("Mail", "Inbox"), 160.1);
    EXPECT_EQ(HistoryDiary::flaws(last->path()), QStringList());
}

TEST_F(HistoryTest, anotherStoreThatIsOpened_getsWhatFollowsAndNothingOfBefore) {
    Scene other;
    other.launch();
    other.day.start();
    other.day.front("Editor", "a.txt");
    other.day.seconds(500);
    other.save();
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    day.seconds(50);
    ASSERT_TRUE(scene.database->importDatabase(other.database->mainStoreURL()));
    scene.save();
    day.front("Editor", "a.txt");
    day.seconds(60);
    auto last = relaunched(scene);
    EXPECT_GE(last->day.secondsOf("Editor", "a.txt"), 545);
    EXPECT_LE(last->day.secondsOf("Editor", "a.txt"), 560.1);
    double mail = 0;
    for (const auto& app : last->day.tracker.fullTimeSet())
        mail += app->name() == QLatin1String("Mail") ? app->activeTime() : 0;
    EXPECT_NEAR(mail, 0, 0.2);
    last = relaunched(*last);
    EXPECT_LE(last->day.secondsOf("Editor", "a.txt"), 560.1);
}

TEST_F(HistoryTest, whoComesToAnotherZone_isThereWithinAQuarterOfAMinute) {
    const QByteArray zone = qgetenv("TZ");
    const auto travelTo = [](const QByteArray& to) {
        to.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", to);
        ::tzset();
    };
    travelTo("Europe/Berlin");
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(60);
    travelTo("Asia/Tokyo");
    day.seconds(60);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 120");
    travelTo(zone);
    SqliteDatabase file(scene.path(), SqliteDatabase::Mode::Read, 0);
    EXPECT_GE(file.number("SELECT sum(length) FROM stretches WHERE offset = 540"), 45'000);
    EXPECT_GE(file.number("SELECT sum(length) FROM stretches WHERE offset = 60"), 60'000);
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
}

TEST_F(HistoryTest, endedInGoodOrder_allOfItIsInOneFile) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    scene.history->finish();
    const QDir folder = QFileInfo(scene.path()).dir();
    EXPECT_EQ(folder.entryList({QStringLiteral("History*")}, QDir::Files),
              QStringList(QStringLiteral("History.sqlite")));
    // The session's end was called off.
    day.seconds(20);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 60");
}

TEST_F(HistoryTest, clearingTheTimers_leavesTheHistory) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.tracker.reset();
    day.seconds(20);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 60");
}

TEST_F(HistoryTest, aDeletedTimersPast_isForgotten_andComesBackWithIt) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.front("Editor", "a.txt");
    day.seconds(20);
    const TimerReferences mail = day.tracker.tree().referencesTo({day.node("Mail").shared_from_this()});
    const PropertyListArray records = day.tracker.tree().recordsOf(mail);
    day.tracker.removeTimers(mail);
    EXPECT_EQ(scene.diary(), "Editor [a.txt] 20");
    day.tracker.putBack(records);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 40, Editor [a.txt] 20");
    day.tracker.removeTimers(mail);
    scene.save();
    const auto second = relaunched(scene);
    second->history->finish();
    EXPECT_EQ(HistoryDiary::of(second->path()), "Editor [a.txt] 20");
    EXPECT_EQ(HistoryDiary::flaws(second->path()), QStringList());
    EXPECT_FALSE(HistoryDiary::holdsText(second->path(), QStringLiteral("Inbox")));
}

TEST_F(HistoryTest, aFrozenTimer_takesItsPastAlong) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    const auto before = day.node("Mail", "Inbox").uuid().value();
    FrozenTimer frozen = day.tracker.branchNode(day.node("Mail", "Inbox"));
    const Identity after = frozen.own().after;
    day.seconds(20);
    const auto fresh = day.node("Mail", "Inbox").uuid().value();
    const auto timeOf = [&](const Identity& window) {
        scene.history->finish();
        SqliteDatabase file(scene.path(), SqliteDatabase::Mode::Read, 0);
        SqliteQuery row(file,
                        "SELECT sum(length) FROM days JOIN timers ON timers.id = timer WHERE window = ?",
                        window.bytes());
        return row.next() ? row.integer(0) : 0;
    };
    EXPECT_EQ(timeOf(after), 40'000);
    EXPECT_EQ(timeOf(fresh), 20'000);
    day.tracker.unbranchNode(frozen);
    EXPECT_EQ(timeOf(before), 60'000);
}

TEST_F(HistoryTest, whatIsForgotten_isInNoFile_andWhatFollowsIsKept) {
    day.start();
    day.front("Browser", "Very private");
    day.seconds(40);
    scene.history->forget({.program = {}, .title = QStringLiteral("Very private"), .from = {}, .to = {}});
    day.front("Mail", "Inbox");
    day.seconds(20);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 20");
    EXPECT_FALSE(HistoryDiary::holdsText(scene.path(), QStringLiteral("Very private")));
}

// SQLite's journal, and the file.
QByteArray contentOf(const QString& path) {
    QByteArray content;
    for (const QString& ending : {QString(), QStringLiteral("-wal")})
        if (QFile file(path + ending); file.open(QIODevice::ReadOnly))
            content += file.readAll();
    return content;
}

TEST_F(HistoryTest, whatIsForgottenWhileAnotherProgramReads_goesWhenThatHasRead) {
    day.start();
    day.front("Mail", "Very private");
    day.seconds(20);
    day.stop();
    {
        SqliteDatabase reader(scene.path(), SqliteDatabase::Mode::Read, 0);
        SqliteQuery reading(reader, "SELECT count(*) FROM stretches");
        ASSERT_TRUE(reading.next());
        scene.history->forget({.program = {}, .title = QStringLiteral("Very private"), .from = {}, .to = {}});
        day.seconds(1);
        EXPECT_TRUE(contentOf(scene.path()).contains("Very private"));
    }
    day.seconds(20);
    EXPECT_FALSE(contentOf(scene.path()).contains("Very private"));
    const int writes = scene.writes;
    day.seconds(600);
    EXPECT_EQ(scene.writes, writes) << "it goes on trying";
}

TEST_F(HistoryTest, whoForgets_isToldWhenNothingIsLeft_andBeforeThatItIsNotYetSo) {
    day.start();
    day.front("Mail", "Very private");
    day.seconds(20);
    day.stop();
    day.seconds(1);
    std::string said;
    const auto forget = [&](SqliteDatabase& other, const char* hold) {
        said.clear();
        other.execute(hold);
        other.number("SELECT count(*) FROM stretches");
        scene.history->forget({.program = {}, .title = QStringLiteral("Very private"), .from = {}, .to = {}},
                              [&](bool isDone) { said += isDone ? "done" : "not yet, "; });
        EXPECT_EQ(said, "") << "not before it was tried";
        day.seconds(1);
        EXPECT_TRUE(contentOf(scene.path()).contains("Very private")) << hold;
        EXPECT_TRUE(QString::fromStdString(said).startsWith(QLatin1String("not yet, "))) << hold;
        other.execute("COMMIT");
        day.seconds(30);
        EXPECT_FALSE(contentOf(scene.path()).contains("Very private")) << hold;
        EXPECT_TRUE(QString::fromStdString(said).endsWith(QLatin1String("not yet, done"))) << hold;
    };
    SqliteDatabase other(scene.path(), SqliteDatabase::Mode::ReadWrite, 0);
    forget(other, "BEGIN IMMEDIATE");
    day.start();
    day.seconds(20);
    day.stop();
    day.seconds(1);
    ASSERT_TRUE(contentOf(scene.path()).contains("Very private"));
    forget(other, "BEGIN");
}

TEST_F(HistoryTest, whatWasForgottenBeforeACrashWhileAnotherProgramRead_goesAtTheNextLaunch) {
    day.start();
    day.front("Mail", "Very private");
    day.seconds(20);
    day.stop();
    SqliteDatabase reader(scene.path(), SqliteDatabase::Mode::Read, 0);
    SqliteQuery reading(reader, "SELECT count(*) FROM stretches");
    ASSERT_TRUE(reading.next());
    scene.history->forget({.program = {}, .title = QStringLiteral("Very private"), .from = {}, .to = {}});
    day.seconds(1);
    const auto next = relaunched(scene);
    next->day.start();
    next->day.front("Editor", "a.txt");
    next->day.seconds(20);
    EXPECT_FALSE(contentOf(next->path()).contains("Very private"));
}

TEST_F(HistoryTest, keptNotAtAll_thereIsNoFile) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    ASSERT_TRUE(QFileInfo::exists(scene.path()));
    day.fakes.defaults.setObject(kHistoryDays, -1);
    day.seconds(40);
    EXPECT_FALSE(QFileInfo::exists(scene.path()));
    day.fakes.defaults.setObject(kHistoryDays, 0);
    day.seconds(40);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 40");
    Scene another(nullptr, -1);
    another.launch();
    another.day.start();
    another.day.front("Mail", "Inbox");
    another.day.seconds(40);
    EXPECT_FALSE(QFileInfo::exists(another.path()));
}

TEST_F(HistoryTest, keptForAYear_whatIsOlderGoes) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.stop();
    day.fakes.clock.sleepFor(std::chrono::hours(24) * 400);
    day.start();
    day.seconds(20);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 40, Mail [Inbox] 20");
    day.fakes.defaults.setObject(kHistoryDays, 365);
    day.seconds(20);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 40");
}

TEST_F(HistoryTest, whatGoesBecauseItIsOld_takesNoDebtAlong) {
    Scene yearly(nullptr, 1);
    yearly.launch();
    yearly.day.start();
    yearly.day.front("Mail", "Inbox");
    yearly.day.seconds(60);
    yearly.save();
    yearly.day.front("Editor", "a.txt");
    yearly.day.seconds(100);
    yearly.day.stop();
    yearly.day.advance(20);
    yearly.day.fakes.clock.sleepFor(std::chrono::hours(48));
    yearly.day.start();
    yearly.day.front("Mail", "Inbox");
    yearly.day.seconds(30);
    ASSERT_EQ(HistoryDiary::of(yearly.path()).find("Editor"), std::string::npos);
    const auto second = relaunched(yearly);
    EXPECT_GE(second->day.secondsOf("Editor", "a.txt"), 85);
}

} // namespace
