// SPDX-License-Identifier: MIT
// What a crash between two saves of the store leaves, in every situation in which debts could be lost.
#include "tests/unit/HistoryScene.h"

namespace {

TEST_F(HistoryTest, aDeletedTimer_staysDeletedAfterAKill) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.front("Editor", "a.txt");
    day.seconds(20);
    scene.save();
    day.remove("Mail");
    day.seconds(1);
    EXPECT_EQ(relaunched(scene)->day.tree().find("Mail"), std::string::npos);
}

TEST_F(HistoryTest, aWindowThatNoStoreHas_isCalledLikeItsLatestTitleAfterAKill) {
    scene.save();
    day.start();
    day.front("Writer", "Alpha draft");
    day.seconds(16);
    day.retitle("Zebra final");
    day.seconds(16);
    day.retitle("Middle");
    day.seconds(32);
    const auto after = relaunched(scene);
    EXPECT_NEAR(after->day.secondsOf("Writer", "Middle"), after->day.secondsOf("Writer"), 0.1);
    EXPECT_EQ(after->day.tree().find("Alpha"), std::string::npos);
}

TEST_F(HistoryTest, aTimerThatWasBroughtBack_isThereAfterAKill) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.front("Editor", "a.txt");
    day.seconds(20);
    const TimerReferences mail = day.tracker.tree().referencesTo({day.node("Mail").shared_from_this()});
    const PropertyListArray records = day.tracker.tree().recordsOf(mail);
    day.tracker.removeTimers(mail);
    scene.save();
    day.tracker.putBack(records);
    day.seconds(1);
    EXPECT_NEAR(relaunched(scene)->day.secondsOf("Mail", "Inbox"), 40, 0.1);
}

TEST_F(HistoryTest, aFrozenTimer_isFrozenAfterAKill) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    scene.save();
    FrozenTimer frozen = day.tracker.branchNode(day.node("Mail", "Inbox"));
    day.seconds(1);
    const auto second = relaunched(scene);
    const auto mail = second->day.node("Mail").shared_from_this();
    EXPECT_NE(static_cast<TimeStoreApp&>(*mail).windowOfIdentity(frozen.own().after), nullptr);
    day.tracker.unbranchNode(frozen);
    day.seconds(1);
    EXPECT_NEAR(relaunched(scene)->day.secondsOf("Mail", "Inbox"), 41, 1.1);
}

TEST_F(HistoryTest, manyFrozenAtOnce_areSavedOnce) {
    struct Counter : StoreWitness {
        void storeIsRead(const QByteArray&) override {}
        void storeIsWhole(const QByteArray&) override { ++saves; }
        void storeIsPlaced(const QByteArray&) override {}
        int saves = 0;
    } counter;
    day.start();
    for (int i = 0; i < 10; ++i) {
        day.front(("Mail " + std::to_string(i)).c_str(), "Inbox");
        day.seconds(1);
    }
    scene.database->setWitness(&counter);
    for (int i = 0; i < 10; ++i)
        day.freeze(("Mail " + std::to_string(i)).c_str());
    day.seconds(1);
    EXPECT_EQ(counter.saves, 1);
}

TEST_F(HistoryTest, aFileThatIsTakenAway_costsAKillNoMore) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    day.seconds(60);
    for (const QString& ending : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(scene.path() + ending);
    day.seconds(100);
    const auto second = relaunched(scene);
    EXPECT_GE(second->day.secondsOf("Mail", "Inbox"), 245);
    EXPECT_LE(second->day.secondsOf("Mail", "Inbox"), 260.1);
}

TEST_F(HistoryTest, whatReplacesTheFileWhileItIsOpen_owesNothing) {
    Scene other;
    other.launch();
    other.day.start();
    other.day.front("Mail", "Inbox");
    for (int i = 0; i < 5; ++i) {
        other.day.seconds(40);
        other.save();
    }
    other.day.seconds(300);
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    for (const QString& ending : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
        QFile::remove(scene.path() + ending);
        QFile::copy(other.path() + ending, scene.path() + ending);
    }
    day.seconds(100);
    const auto second = relaunched(scene);
    EXPECT_GE(second->day.secondsOf("Mail", "Inbox"), 185);
    EXPECT_LE(second->day.secondsOf("Mail", "Inbox"), 200.1);
}

TEST_F(HistoryTest, switchedOffAndOn_aKillCostsNoMore) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    day.fakes.defaults.setObject(kHistoryDays, -1);
    day.seconds(100);
    day.fakes.defaults.setObject(kHistoryDays, 0);
    day.seconds(100);
    const auto second = relaunched(scene);
    EXPECT_GE(second->day.secondsOf("Mail", "Inbox"), 285);
    EXPECT_LE(second->day.secondsOf("Mail", "Inbox"), 300.1);
}

TEST_F(HistoryTest, whileAnotherProgramHasTheFile_itIsTriedAgainSoon) {
    day.start();
    day.front("Mail", "Inbox");
    std::optional<SqliteDatabase> other(std::in_place, scene.path(), SqliteDatabase::Mode::ReadWrite, 0);
    other->execute("BEGIN IMMEDIATE");
    day.seconds(15);
    EXPECT_FALSE(day.trouble.text().isEmpty());
    other.reset();
    day.seconds(2);
    EXPECT_TRUE(day.trouble.text().isEmpty());
    EXPECT_EQ(HistoryDiary::of(scene.path()).substr(0, 14), "Mail [Inbox] 1");
}

TEST_F(HistoryTest, lockedAtLaunch_itPaysWhenItIsFree) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(100);
    scene.save();
    day.seconds(100);
    Scene second(&scene);
    std::optional<SqliteDatabase> other(std::in_place, second.path(), SqliteDatabase::Mode::ReadWrite, 0);
    other->execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
    second.launch();
    EXPECT_NEAR(second.day.secondsOf("Mail", "Inbox"), 100, 0.1);
    second.day.start();
    second.day.front("Mail", "Inbox");
    second.day.seconds(20);
    other.reset();
    second.day.seconds(20);
    EXPECT_NEAR(second.day.secondsOf("Mail", "Inbox"), 232, 8);
    const double before = second.day.secondsOf("Mail", "Inbox");
    const auto third = relaunched(second);
    EXPECT_GE(third->day.secondsOf("Mail", "Inbox"), before - 15);
    EXPECT_LE(third->day.secondsOf("Mail", "Inbox"), before + 0.1);
    EXPECT_EQ(HistoryDiary::flaws(third->path()), QStringList());
}

// A crash, a launch without the stick that has the store, and the stick again, while it runs and at a launch.
TEST_F(HistoryTest, aStoreThatWasAway_getsWhatItLacks) {
    for (const bool isBackAtLaunch : {false, true}) {
        Scene first;
        first.launch();
        const QString store = first.day.fakes.home.filePath(QStringLiteral("times.tkd"));
        const QString hidden = store + QStringLiteral(".away");
        first.day.start();
        first.day.front("Mail", "Inbox");
        first.day.seconds(100);
        ASSERT_TRUE(first.database->chooseDatabaseLocation(store));
        first.save();
        first.day.seconds(100);
        ASSERT_TRUE(QFile::rename(store, hidden));
        const auto settled = [](Scene& next, const Scene& before) {
            for (const QString& key : {kMainStorePath, kMeanwhileOf})
                if (const QString value = before.day.fakes.defaults.object(key).toString(); !value.isEmpty())
                    next.day.fakes.defaults.setObject(key, value);
        };
        Scene second(&first);
        settled(second, first);
        second.launch();
        EXPECT_EQ(second.day.tree(), "");
        second.day.start();
        second.day.front("Mail", "Inbox");
        second.day.seconds(30);
        second.save();
        second.day.seconds(30);
        if (!isBackAtLaunch) {
            ASSERT_TRUE(QFile::rename(hidden, store));
            second.day.seconds(11);
            EXPECT_GE(second.day.secondsOf("Mail", "Inbox"), 256);
            EXPECT_LE(second.day.secondsOf("Mail", "Inbox"), 271.5);
        }
        Scene third(&second);
        settled(third, second);
        if (isBackAtLaunch) {
            ASSERT_TRUE(QFile::rename(hidden, store));
        }
        third.launch();
        third.day.seconds(1);
        EXPECT_GE(third.day.secondsOf("Mail", "Inbox"), isBackAtLaunch ? 230 : 241);
        EXPECT_LE(third.day.secondsOf("Mail", "Inbox"), isBackAtLaunch ? 260.5 : 271.5);
        const double got = third.day.secondsOf("Mail", "Inbox");
        Scene fourth(&third);
        settled(fourth, third);
        fourth.launch();
        EXPECT_NEAR(fourth.day.secondsOf("Mail", "Inbox"), got, 0.1);
    }
}

} // namespace
