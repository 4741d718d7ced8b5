// SPDX-License-Identifier: MIT
#include "platform/desktop/SilenceWatch.h"

#include "tests/fakes/FakeDesktop.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const ApplicationRecord kWriter{QStringLiteral("Writer"), {}, 7};
const ApplicationRecord kMailer{QStringLiteral("Mailer"), {}, 8};

class SilenceWatchTest : public testing::Test {
protected:
    SilenceWatchTest() {
        front.record = kWriter;
        windows.windows = {{1, 7, true, QStringLiteral("Letter"), kWriter.name}};
        idleTime.isBusy = true;
        subscription = watch.observeSwitches([this] { switches << watch.activeApplication()->name; });
    }

    // "Writer, 1 window" as it is passed on.
    QString seen() const {
        return QStringLiteral("%1, %2")
            .arg(watch.activeApplication()->name)
            .arg(watch.onScreenWindows().size());
    }

    HandClock clock;
    ManualRunLoop runLoop{clock};
    RecordingLog log;
    FakeFrontApplication front;
    FakeWindowList windows;
    FakeSignsOfLife signs;
    FakeIdleTime idleTime{clock};
    bool isCounting = true;
    std::optional<std::chrono::nanoseconds> absence = 15min;
    QStringList switches;
    SilenceWatch watch{
        {front, windows, signs, idleTime}, runLoop, log, [this] { return isCounting; }, {.absence = [this] {
            return absence;
        }}};
    Subscription subscription;
};

const QString kWriting = QStringLiteral("Writer, 1");
const QString kNothing = QStringLiteral("Desktop, 0");

TEST_F(SilenceWatchTest, aDesktopThatTellsSomethingNowAndThen_isAskedNothing) {
    for (int minute = 0; minute < 60; ++minute) {
        signs.giveSign();
        runLoop.advance(50s);
    }
    EXPECT_EQ(signs.asked, 0);
    EXPECT_EQ(seen(), kWriting);
}

TEST_F(SilenceWatchTest, aDesktopWithNothingToTell_isAskedOnceAMinuteAndBelieved) {
    signs.answersAtOnce = true;
    runLoop.advance(1h);
    EXPECT_LE(signs.asked, 66);
    EXPECT_GE(signs.asked, 30);
    EXPECT_EQ(seen(), kWriting);
    EXPECT_EQ(log.lines, QStringList());
    EXPECT_EQ(switches, QStringList());
}

TEST_F(SilenceWatchTest, anAnswerWithinItsTime_isNoSilence) {
    runLoop.advance(55s + 9s);
    EXPECT_EQ(signs.asked, 1);
    signs.giveSign();
    runLoop.advance(30s);
    EXPECT_EQ(seen(), kWriting);
    EXPECT_EQ(log.lines, QStringList());
}

TEST_F(SilenceWatchTest, noAnswer_leavesTheDesktopInFrontAndSaysWhyOnce) {
    runLoop.advance(55s + 10s);
    EXPECT_EQ(seen(), kNothing);
    EXPECT_EQ(switches, QStringList(kDesktopName));
    EXPECT_TRUE(watch.obstacle().contains(QStringLiteral("has stopped responding")));
    runLoop.advance(1h);
    EXPECT_EQ(signs.asked, 1) << "the question still stands";
    EXPECT_EQ(log.lines.size(), 1);
}

TEST_F(SilenceWatchTest, aLateAnswer_bringsEverythingBack) {
    runLoop.advance(1h);
    ASSERT_EQ(seen(), kNothing);
    // What it would report must wait until the silence is over.
    front.switchTo(kMailer);
    EXPECT_EQ(switches, QStringList(kDesktopName));
    signs.giveSign();
    EXPECT_EQ(switches, QStringList({kDesktopName, kMailer.name}));
    EXPECT_EQ(watch.obstacle(), QString());
    EXPECT_EQ(log.lines.size(), 2);
    runLoop.advance(1h);
    EXPECT_EQ(signs.asked, 2) << "it is watched on";
    EXPECT_EQ(seen(), kNothing);
}

// The idle time of a desktop that hangs counts on, whoever sits there.
TEST_F(SilenceWatchTest, aDesktopThatHangsAtAnyMomentOfAPause_isNoticedWithinTwoMinutes) {
    idleTime.isBusy = false;
    for (const auto pause : {0s, 5s, 30s, 59s, 61s, 200s}) {
        idleTime.touch();
        signs.answersAtOnce = true;
        signs.giveSign();
        runLoop.advance(pause);
        signs.answersAtOnce = false;
        runLoop.advance(2min);
        EXPECT_EQ(seen(), kNothing) << pause.count();
        signs.giveSign();
        EXPECT_EQ(seen(), kWriting);
    }
}

TEST_F(SilenceWatchTest, whileTheAbsenceIsNobodysTime_nobodyIsAsked) {
    idleTime.isBusy = false;
    idleTime.setIdle(15min);
    runLoop.advance(1h);
    EXPECT_EQ(signs.asked, 0);
    idleTime.isBusy = true;
    runLoop.advance(60s);
    EXPECT_EQ(signs.asked, 1);
}

TEST_F(SilenceWatchTest, anAbsence_costsAQuestionAMinuteUntilItIsNobodysTime) {
    signs.answersAtOnce = true;
    idleTime.isBusy = false;
    idleTime.touch();
    runLoop.advance(10h);
    EXPECT_LE(signs.asked, 17);
}

TEST_F(SilenceWatchTest, whereAbsencesAreCredited_theDesktopIsAskedOn) {
    absence.reset();
    idleTime.isBusy = false;
    idleTime.setIdle(10h);
    runLoop.advance(2min);
    EXPECT_EQ(seen(), kNothing);
}

TEST_F(SilenceWatchTest, anIdleTimeThatIsNotTold_isNoReasonToTrustTheDesktop) {
    idleTime.answer = IdleReading::Lack::NoAnswer;
    runLoop.advance(70s);
    EXPECT_EQ(seen(), kNothing);
}

TEST_F(SilenceWatchTest, whileTheTimerStands_nobodyIsAsked) {
    isCounting = false;
    runLoop.advance(1h);
    EXPECT_EQ(signs.asked, 0);
}

TEST_F(SilenceWatchTest, whereItIsKnownThatNothingIsTold_nobodyIsAsked) {
    front.record.reset();
    front.obstacleText = QStringLiteral("no extension");
    runLoop.advance(1h);
    EXPECT_EQ(signs.asked, 0);
    EXPECT_EQ(watch.obstacle(), QStringLiteral("no extension"));
}

TEST_F(SilenceWatchTest, aDesktopThatGoesInItsSilence_isNotMadeOneThatTells) {
    runLoop.advance(70s);
    front.record.reset();
    front.obstacleText = QStringLiteral("gone");
    EXPECT_FALSE(watch.activeApplication());
    EXPECT_EQ(watch.obstacle(), QStringLiteral("gone"));
}

TEST_F(SilenceWatchTest, aProcessThatWasItselfKeptWaiting_hearsTheAnswerBeforeItJudges) {
    runLoop.advance(60s);
    ASSERT_EQ(signs.asked, 1);
    // All that time is one turn of the loop.
    clock.advance(1h);
    runLoop.advance(1s);
    EXPECT_EQ(seen(), kWriting);
    signs.giveSign();
    runLoop.advance(20s);
    EXPECT_EQ(seen(), kWriting);
}

TEST_F(SilenceWatchTest, switches_arePassedOnWhileThereIsNoSilence) {
    front.switchTo(kMailer);
    EXPECT_EQ(switches, QStringList(kMailer.name));
    subscription.cancel();
    front.switchTo(kWriter);
    EXPECT_EQ(switches, QStringList(kMailer.name));
}

} // namespace
