// SPDX-License-Identifier: MIT
#include "Classes/history/NameKeeping.h"
#include "Classes/projects/ProjectList.h"
#include "tests/unit/HistoryScene.h"

namespace {

class HistoryIdentityTest : public HistoryTest {
protected:
    HistoryIdentityTest() {
        day.start();
        keepNames();
    }

    void keepNames() {
        names.emplace(day.registry, day.tracker, *scene.history, [this] { return projects.allMembers(); });
    }

    // Ended in good order and started again, with the same registry.
    void startAgain() {
        day.stop();
        scene.save();
        scene.history->finish();
        names.reset();
        scene.history.reset();
        scene.launch();
        keepNames();
        day.start();
    }

    void remove(const char* application, const char* title = nullptr) {
        auto& node = day.node(application, title);
        day.tracker.removeTimers(day.tracker.tree().referencesTo({node.shared_from_this()}));
        day.fakes.runLoop.runPending();
    }

    Identity identity(const char* application, const char* title) {
        return day.node(application, title).uuid().value();
    }

    // What the history has of a window, in seconds.
    std::int64_t past(const Identity& window, const char* application = nullptr) {
        scene.history->finish();
        SqliteDatabase file(scene.path(), SqliteDatabase::Mode::Read, 0);
        SqliteQuery row(
            file,
            "SELECT sum(length) FROM days JOIN timers ON timers.id = timer JOIN programs "
            "ON programs.id = program WHERE window = ? AND NOT deleted AND (? OR programs.name = ?)",
            window.bytes(), std::int64_t(application == nullptr), QString::fromUtf8(application));
        return row.next() ? (row.integer(0) + 500) / 1000 : 0;
    }

    bool isKnown(const char* title) {
        return day.registry.knownUUID(TimeStoreWindow::keyOf(QString::fromUtf8(title))).has_value();
    }

    bool isInHistory(const char* title) {
        scene.history->finish();
        return HistoryDiary::holdsText(scene.path(), QString::fromUtf8(title));
    }

    ProjectList projects{day.store, day.fakes.defaults, day.fakes.folders.documents};
    std::optional<NameKeeping> names;
};

TEST_F(HistoryIdentityTest, aWindowThatIsTakenIn_leavesItsPastToTheOther) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    const Identity inbox = identity("Mail", "Inbox");
    day.window("Drafts");
    day.seconds(10);
    day.retitle("Inbox");
    day.seconds(10);
    ASSERT_NE(identity("Mail", "Inbox"), inbox);
    EXPECT_EQ(past(inbox), 40) << "a crash would bring it back";
    scene.save();
    EXPECT_EQ(past(inbox), 0);
    EXPECT_EQ(past(identity("Mail", "Inbox")), 60);
}

TEST_F(HistoryIdentityTest, aWindowThatTookAnotherIn_isDeletedWithBothPasts) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.window("Drafts");
    day.seconds(10);
    day.retitle("Inbox");
    day.seconds(10);
    day.window("Calendar");
    day.seconds(10);
    remove("Mail", "Inbox");
    startAgain();
    EXPECT_EQ(scene.diary(), "Mail [Calendar] 10");
    EXPECT_FALSE(isInHistory("Inbox") || isInHistory("Drafts"));
}

TEST_F(HistoryIdentityTest, aDeletedWindowWhoseNameWasTaken_comesBackWithItsPast) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.window("Drafts");
    day.seconds(10);
    const TimerReferences inbox =
        day.tracker.tree().referencesTo({day.node("Mail", "Inbox").shared_from_this()});
    const PropertyListArray records = day.tracker.tree().recordsOf(inbox);
    day.tracker.removeTimers(inbox);
    day.retitle("Inbox");
    day.seconds(10);
    day.tracker.putBack(records);
    startAgain();
    EXPECT_EQ(past(identity("Mail", "Inbox")), 60);
}

TEST_F(HistoryIdentityTest, aWindowThatIsTakenIn_leavesAnotherProgramsPastUnderTheSameTitle) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.front("News", "Inbox");
    day.seconds(30);
    const Identity shared = identity("News", "Inbox");
    day.front("Mail", "Drafts");
    day.seconds(10);
    day.retitle("Inbox");
    day.seconds(10);
    scene.save();
    EXPECT_EQ(past(shared), 30);
    EXPECT_EQ(past(identity("Mail", "Inbox")), 60);
}

TEST_F(HistoryIdentityTest, aFrozenWindowThatSharesItsIdentity_takesOnlyItsOwnPastAlong) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.front("News", "Inbox");
    day.seconds(30);
    const Identity shared = identity("News", "Inbox");
    FrozenTimer frozen = day.tracker.branchNode(day.node("Mail", "Inbox"));
    EXPECT_EQ(past(frozen.own().after), 40);
    EXPECT_EQ(past(shared), 30);
    day.tracker.unbranchNode(frozen);
    EXPECT_EQ(past(shared, "Mail"), 40);
    EXPECT_EQ(past(shared, "News"), 30);
    day.tracker.branchNodeAgain(frozen);
    EXPECT_EQ(past(frozen.own().after), 40);
    EXPECT_EQ(past(shared), 30);
}

TEST_F(HistoryIdentityTest, aFrozenWindow_leavesThePastOfAnotherProgramThatWasCleared) {
    day.front("News", "Inbox");
    day.seconds(30);
    day.tracker.reset();
    day.front("Mail", "Inbox");
    day.seconds(40);
    const Identity shared = identity("Mail", "Inbox");
    const FrozenTimer frozen = day.tracker.branchNode(day.node("Mail", "Inbox"));
    EXPECT_EQ(past(shared), 30);
    EXPECT_EQ(past(frozen.own().after), 40);
}

TEST_F(HistoryIdentityTest, aFrozenApplication_takesThePastOfItsWindowsAlong_andGivesItBack) {
    day.front("News", "Inbox");
    day.seconds(30);
    day.front("Mail", "Inbox");
    day.seconds(40);
    const Identity shared = identity("Mail", "Inbox");
    FrozenTimer frozen = day.tracker.branchNode(day.node("Mail"));
    day.seconds(10);
    EXPECT_EQ(past(frozen.windows().front().after), 40);
    EXPECT_EQ(past(shared, "News"), 30);
    day.tracker.unbranchNode(frozen);
    EXPECT_EQ(past(shared, "Mail"), 50);
    EXPECT_EQ(past(shared, "News"), 30);
    remove("Mail");
    day.front("News", "Inbox");
    startAgain();
    EXPECT_EQ(scene.diary().find("Mail"), std::string::npos) << scene.diary();
}

TEST_F(HistoryIdentityTest, whoComesBackAfterTheTimersWereCleared_isStillTheSame) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    const Identity mail = day.node("Mail").uuid().value();
    const Identity inbox = identity("Mail", "Inbox");
    day.front("Editor", "a.txt");
    day.seconds(10);
    day.tracker.reset();
    projects.addNewProjectWithItems({identity("Editor", "a.txt")});
    day.front("Mail", "Inbox");
    day.seconds(10);
    EXPECT_EQ(day.node("Mail").uuid(), mail);
    EXPECT_EQ(identity("Mail", "Inbox"), inbox);
    day.front("Editor", "a.txt");
    day.seconds(1);
    remove("Mail", "Inbox");
    startAgain();
    EXPECT_FALSE(isInHistory("Inbox"));
}

TEST_F(HistoryIdentityTest, whatHasJustBeenInFront_keepsItsNameAlthoughItIsNotWrittenYet) {
    scene.history->finish();
    day.front("Mail", "Inbox");
    day.seconds(1);
    const Identity inbox = identity("Mail", "Inbox");
    projects.addNewProjectWithItems({});
    EXPECT_EQ(day.registry.knownUUID(TimeStoreWindow::keyOf(QStringLiteral("Inbox"))), inbox);
}

TEST_F(HistoryIdentityTest, aDeletedRow_leavesItsTitleInNoFileAfterTheNextLaunch) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.window("Drafts");
    day.seconds(40);
    remove("Mail", "Inbox");
    EXPECT_TRUE(isKnown("Inbox")) << "it may come back";
    startAgain();
    EXPECT_FALSE(isKnown("Inbox"));
    EXPECT_TRUE(isKnown("Drafts"));
    EXPECT_FALSE(isInHistory("Inbox"));
}

TEST_F(HistoryIdentityTest, aDeletedRowOfAProject_keepsItsNameForTheProject) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    projects.addNewProjectWithItems({identity("Mail", "Inbox")});
    day.window("Drafts");
    day.seconds(1);
    remove("Mail", "Inbox");
    startAgain();
    EXPECT_TRUE(isKnown("Inbox"));
}

TEST_F(HistoryIdentityTest, aClearedTitleThatIsForgotten_isInNoFile) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.window("Drafts");
    day.seconds(40);
    day.tracker.reset();
    ASSERT_TRUE(isKnown("Inbox"));
    scene.history->forget(
        {.program = {}, .title = QStringLiteral("inbox"), .from = {}, .to = {}, .isTitlePart = true});
    day.fakes.runLoop.runPending();
    EXPECT_FALSE(isKnown("Inbox"));
    EXPECT_TRUE(isKnown("Drafts"));
}

TEST_F(HistoryIdentityTest, whereNoHistoryIsKept_clearedNamesGo) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.window("Drafts");
    day.seconds(1);
    day.tracker.reset();
    ASSERT_TRUE(isKnown("Inbox"));
    day.fakes.defaults.setObject(kHistoryDays, -1);
    day.fakes.runLoop.runPending();
    EXPECT_FALSE(isKnown("Inbox"));
    day.window("Sent");
    day.seconds(1);
    day.window("Drafts");
    day.seconds(1);
    day.tracker.reset();
    EXPECT_FALSE(isKnown("Sent"));
}

TEST_F(HistoryIdentityTest, whileTheFileDoesNotAnswer_noNameGoes) {
    day.front("Mail", "Inbox");
    day.seconds(40);
    scene.save();
    scene.history->finish();
    names.reset();
    scene.history.reset();
    day.registry.setUUID(Identity::brandNew(), TimeStoreWindow::keyOf(QStringLiteral("Old letter")));
    scene.isHanging = true;
    scene.launch();
    keepNames();
    projects.addNewProjectWithItems({});
    EXPECT_TRUE(isKnown("Old letter"));
    for (const auto& work : scene.held)
        work();
    day.fakes.runLoop.runPending();
    EXPECT_FALSE(isKnown("Old letter"));
}

// Kept for three months.
class HistoryClockTest : public testing::Test {
protected:
    HistoryClockTest() {
        scene.launch();
        day.start();
        day.front("Mail", "Inbox");
        day.seconds(60);
    }

    void setClockBy(std::chrono::hours hours) { day.fakes.clock.setWall(day.fakes.clock.now() + hours); }

    void startAgain() {
        day.stop();
        scene.history->finish();
        scene.history.reset();
        scene.launch();
        day.start();
    }

    Scene scene{nullptr, 90};
    Day& day = scene.day;
    static constexpr std::chrono::hours kDay{24};
};

TEST_F(HistoryClockTest, aClockThatIsWrongByAYearForAWhile_deletesNothing) {
    setClockBy(365 * kDay);
    day.seconds(20);
    setClockBy(-365 * kDay);
    day.seconds(50);
    EXPECT_EQ(scene.diary().substr(0, 15), "Mail [Inbox] 60") << scene.diary();
}

TEST_F(HistoryClockTest, aClockThatIsWrongAtLaunch_deletesNothing) {
    for (const int days : {365, 30}) {
        setClockBy(days * kDay);
        startAgain();
        day.seconds(20);
    }
    setClockBy(-395 * kDay);
    startAgain();
    day.seconds(20);
    EXPECT_EQ(scene.diary().substr(0, 15), "Mail [Inbox] 60") << scene.diary();
}

TEST_F(HistoryClockTest, whoWasAwayForAYear_findsTheOldRowsGoneTheNextDay) {
    setClockBy(365 * kDay);
    startAgain();
    day.seconds(20);
    EXPECT_EQ(scene.diary().substr(0, 15), "Mail [Inbox] 60");
    setClockBy(kDay);
    startAgain();
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 20");
}

} // namespace
