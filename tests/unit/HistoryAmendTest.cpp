// SPDX-License-Identifier: MIT
// What a person says about the past, with the program around the file.
#include "Classes/engine/TimeTracker.h"
#include "Classes/history/RemovedRows.h"
#include "Classes/report/RangeQuestion.h"
#include "tests/unit/HistoryScene.h"

#include <random>

namespace {

struct HistoryAmendTest : HistoryTest {
    std::int64_t now() const {
        return std::chrono::floor<std::chrono::milliseconds>(scene.day.fakes.clock.now())
            .time_since_epoch()
            .count();
    }
    std::shared_ptr<ForgottenPieces> forgetLast(std::int64_t seconds) {
        return scene.history->forgetTimes({.pieces = {{now() - seconds * 1000, now()}}});
    }
    Amendment last(std::int64_t seconds, const char* name, Amendment::Kind kind = Amendment::Kind::Change) {
        return {.kind = kind, .pieces = {{now() - seconds * 1000, now()}}, .name = QString::fromUtf8(name)};
    }
};

TEST_F(HistoryAmendTest, whatGoesOn_isNamedUpToNow) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(40);
    int told = 0;
    const auto listening = scene.history->observeAmending([&] { ++told; });
    const auto meeting = scene.history->amend(last(30, "  Meeting\n"));
    ASSERT_TRUE(meeting);
    EXPECT_TRUE(scene.history->unwritten().empty() || told == 0);
    day.fakes.runLoop.runPending();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(scene.history->unwritten().empty());
    day.seconds(20);
    scene.history->takeBack(*meeting);
    day.fakes.runLoop.runPending();
    EXPECT_EQ(told, 2);
    day.seconds(5);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 65");
    scene.history->amend(last(55, "Meeting"));
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 10, Mail [Meeting] 55");
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
}

TEST_F(HistoryAmendTest, whatIsStillToCome_isNotBooked) {
    Amendment later = last(10, "Meeting", Amendment::Kind::Book);
    later.pieces.front().to = now() + 3'600'000;
    later.pieces.push_back({now() + 1000, now() + 2000});
    ASSERT_TRUE(scene.history->amend(later));
    EXPECT_EQ(scene.diary(), "By Hand [Meeting] by hand 10");
    EXPECT_FALSE(scene.history->amend({.kind = Amendment::Kind::Book, .pieces = {{now(), now() + 5000}}}));
}

// A notice's button is no input at the desk.
TEST_F(HistoryAmendTest, anAbsenceThatBeganBefore_countsNoTimeTwice) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(60);
    day.idle(20);
    scene.history->amend(last(50, "Meeting"));
    day.idle(1200);
    day.seconds(10);
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 30, Mail [Meeting] 50, Idle 1200, Mail [Inbox] 10");
}

// The time since the last tick is credited with the next one.
TEST_F(HistoryAmendTest, whatWasNotCreditedYet_isNotBookedBesides) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(40);
    day.stall(0.9);
    scene.history->amend(last(100, "Call", Amendment::Kind::Book));
    day.seconds(19.1);
    EXPECT_EQ(scene.diary(), "By Hand [Call] by hand 59.1, Mail [Inbox] 60");
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
}

TEST_F(HistoryAmendTest, anAmendmentOfAClockThatWasAhead_isNotTakenForALaterOne) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(60);
    day.stop();
    const Amendment::Piece piece{now() - 50'000, now()};
    day.fakes.clock.setWall(day.fakes.clock.now() + std::chrono::hours(24));
    ASSERT_TRUE(scene.history->amend({.pieces = {piece}, .name = QStringLiteral("First")}));
    day.fakes.runLoop.runPending();
    const auto next = relaunched(scene);
    next->day.fakes.clock.advance(std::chrono::hours(1));
    ASSERT_EQ(next->diary(), "Mail [Inbox] 10, Mail [First] 50");
    const auto second = next->history->amend({.pieces = {piece}, .name = QStringLiteral("Second")});
    ASSERT_TRUE(second);
    EXPECT_EQ(next->diary(), "Mail [Inbox] 10, Mail [Second] 50");
    next->history->takeBack(*second);
    EXPECT_EQ(next->diary(), "Mail [Inbox] 10, Mail [First] 50");
}

TEST_F(HistoryAmendTest, noHistory_nothingIsAmended) {
    day.fakes.defaults.setObject(kHistoryDays, std::int64_t(-1));
    day.fakes.runLoop.runPending();
    EXPECT_FALSE(scene.history->amend(last(10, "Meeting", Amendment::Kind::Book)));
}

// The timers say what was measured, whatever is said about it, also after a crash.
TEST_F(HistoryAmendTest, afterACrash_theTimersAreWhatTheyWere) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(100);
    scene.save();
    day.seconds(50);
    scene.history->amend(last(120, "Meeting"));
    scene.history->amend({.kind = Amendment::Kind::Book,
                          .pieces = {{now() - 7'200'000, now()}},
                          .name = QStringLiteral("By phone")});
    day.fakes.runLoop.runPending();
    const auto next = relaunched(scene);
    EXPECT_EQ(next->day.tree(), "Mail 150 [Inbox 150]");
    EXPECT_EQ(next->diary(), "By Hand [By phone] by hand 7050, Mail [Inbox] 30, Mail [Meeting] 120");
}

TEST_F(HistoryAmendTest, aDiskThatHangs_hasItWhenItAnswers) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(40);
    scene.isHanging = true;
    scene.history->amend(last(30, "Meeting"));
    day.seconds(40);
    scene.isHanging = false;
    for (const auto& work : std::exchange(scene.held, {}))
        work();
    day.fakes.runLoop.runPending();
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 10, Mail [Meeting] 30, Mail [Inbox] 40");
}

TEST_F(HistoryAmendTest, whatGoesOn_isForgottenUpToNow_andComesBack) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(40);
    int told = 0;
    const auto listening = scene.history->observeAmending([&] { ++told; });
    const auto forgotten = forgetLast(30);
    day.seconds(20);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 10, Mail [Inbox] 20");
    EXPECT_TRUE(scene.history->bringBack(*forgotten));
    day.seconds(5);
    EXPECT_EQ(told, 2);
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 65");
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
}

// Neither waits for the disk: what was removed is known to the writing thread alone.
TEST_F(HistoryAmendTest, whileADiskHangs_forgettingAndUndoingKeepTheirOrder) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(40);
    scene.isHanging = true;
    auto forgotten = forgetLast(30);
    EXPECT_TRUE(scene.history->bringBack(*forgotten));
    forgotten = forgetLast(20);
    EXPECT_TRUE(scene.history->bringBack(*forgotten));
    forgotten = forgetLast(10);
    scene.isHanging = false;
    for (const auto& work : std::exchange(scene.held, {}))
        work();
    day.fakes.runLoop.runPending();
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 30");
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
}

TEST_F(HistoryAmendTest, whatIsForgottenForGoodAfterwards_isNotBroughtBack) {
    day.front("Mail", "Doctor");
    day.start();
    day.seconds(20);
    day.front("Mail", "Inbox");
    day.seconds(20);
    const auto forgotten = forgetLast(40);
    scene.history->forget({.program = {}, .title = QStringLiteral("Doctor"), .from = {}, .to = {}});
    EXPECT_TRUE(scene.history->bringBack(*forgotten));
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 20");
}

// The clock was set back by a minute.
TEST_F(HistoryAmendTest, whatOneProgramsTimeIsForgottenFor_staysForOthersOfTheSameTime) {
    day.front("Mail", "Doctor");
    day.start();
    day.seconds(60);
    day.fakes.clock.setWall(day.fakes.clock.now() - std::chrono::seconds(60));
    day.front("Editor", "a.txt");
    day.seconds(60);
    const ChosenTimes doctor{.pieces = {{now() - 60'000, now()}},
                             .only = {{QStringLiteral("Mail"), QStringLiteral("Doctor")}}};
    const auto forgotten = scene.history->forgetTimes(doctor);
    EXPECT_EQ(scene.diary(), "Editor [a.txt] 60");
    EXPECT_TRUE(scene.history->bringBack(*forgotten));
    EXPECT_EQ(HistoryDiary::sums(scene.path()), "Editor [a.txt] 60, Mail [Doctor] 60");
    const auto editor = scene.history->forgetTimes(
        {.pieces = doctor.pieces, .only = {{QStringLiteral("Editor"), QStringLiteral("a.txt")}}});
    HistoryChange::Forgotten forGood{.program = {}, .title = {}, .from = {}, .to = {}};
    forGood.times = doctor;
    scene.history->forget(forGood);
    EXPECT_TRUE(scene.history->bringBack(*editor));
    EXPECT_EQ(scene.diary(), "Editor [a.txt] 60") << "only the other one was forgotten for good";
}

TEST_F(HistoryAmendTest, aRuleOfMeanwhile_holdsForWhatIsBroughtBack) {
    day.front("Mail", "Doctor");
    day.start();
    day.seconds(20);
    const auto forgotten = forgetLast(20);
    day.fakes.defaults.setObject(kTitleRules, PropertyListArray{PropertyListDictionary{
                                                  {QStringLiteral("Title"), QStringLiteral("Doctor")},
                                                  {kTitleRuleEffect, QStringLiteral("leave out")}}});
    EXPECT_TRUE(scene.history->bringBack(*forgotten));
    EXPECT_EQ(scene.diary(), "Mail 20");
}

TEST_F(HistoryAmendTest, whatIsTooOldByNow_isNotBroughtBack) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(20);
    const auto forgotten = forgetLast(20);
    day.fakes.runLoop.runPending();
    ASSERT_EQ(forgotten->removed->rows.size(), 1U);
    day.fakes.clock.advance(std::chrono::hours(49));
    day.fakes.defaults.setObject(kHistoryDays, std::int64_t(1));
    day.fakes.runLoop.runPending();
    EXPECT_TRUE(scene.history->bringBack(*forgotten));
    scene.history->finish();
    EXPECT_FALSE(HistoryDiary::holdsText(scene.path(), QStringLiteral("Inbox")));
}

TEST_F(HistoryAmendTest, aHistoryThatIsSwitchedOff_hasNothingToBringBack) {
    day.front("Mail", "Inbox");
    day.start();
    day.seconds(40);
    const auto forgotten = forgetLast(30);
    day.fakes.defaults.setObject(kHistoryDays, std::int64_t(-1));
    day.fakes.runLoop.runPending();
    EXPECT_FALSE(forgetLast(30));
    day.fakes.defaults.setObject(kHistoryDays, std::int64_t(0));
    day.fakes.runLoop.runPending();
    EXPECT_FALSE(forgotten->removed);
    EXPECT_FALSE(scene.history->bringBack(*forgotten));
    EXPECT_EQ(scene.diary(), "");
}

} // namespace
