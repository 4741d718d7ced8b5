// SPDX-License-Identifier: MIT
// What the tray says of today, and the pauses that it offers.
#include "Classes/report/Moment.h"
#include "interface/history/HistoryToday.h"
#include "interface/shell/PauseMenu.h"
#include "tests/interface/HistoryViewDesk.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

struct TrayTodayTest : testing::Test, HistoryViewDesk {
    TrayTodayTest() { menu().offerPauses(pauses.menu()); }

    StatusMenu& menu() { return controller.appDelegate().statusMenu(); }

    QStringList opened() {
        Q_EMIT menu().mainMenu().aboutToShow();
        settle();
        Q_EMIT menu().mainMenu().aboutToShow();
        QStringList texts;
        for (const QAction* action : menu().mainMenu().actions())
            if (!action->isSeparator())
                texts << action->text();
        return texts;
    }

    void pick(const char* name) {
        pauses.menu().findChild<QAction*>(QLatin1String(name))->trigger();
        settle();
    }

    bool isCounting() { return controller.timer().isRunning(); }

    HistoryToday line{{.history = history,
                       .runLoop = fakes.runLoop,
                       .clock = fakes.clock,
                       .folders = fakes.platform.folders,
                       .menu = menu().mainMenu(),
                       .isCounting = [this] { return isCounting(); }},
                      [this](const QString& text) { controller.appDelegate().presence().showToday(text); }};
    PauseMenu pauses{controller.timer(), fakes.runLoop, fakes.clock, [this] {
                         const QDateTime now = localTime(fakes.clock.now());
                         return beginningOf(now.date().addDays(1), 0);
                     }};
};

TEST_F(TrayTodayTest, theMenu_beginsWithTodaysWork) {
    past(today(0), 3600, "Mail");
    past(today(0).addDays(-1), 600, "Mail");
    EXPECT_EQ(opened().front(), QStringLiteral("Today: 01:00:00"));
}

TEST_F(TrayTodayTest, whatIsBooked_isInTheLineAtOnce) {
    const qint64 end = localTime(fakes.clock.now()).toMSecsSinceEpoch();
    const auto booked = history.amend({.kind = Amendment::Kind::Book, .pieces = {{end - 600'000, end}}});
    settle();
    // Before the menu asks.
    const auto shown = [this] { return menu().mainMenu().actions().front()->text(); };
    Q_EMIT menu().mainMenu().aboutToShow();
    EXPECT_EQ(shown(), QStringLiteral("Today: 00:10:00"));
    settle();
    history.takeBack(*booked);
    settle();
    Q_EMIT menu().mainMenu().aboutToShow();
    EXPECT_EQ(shown(), QStringLiteral("Today: 00:00:00"));
}

TEST_F(TrayTodayTest, whileTheTimerRuns_theLineGrowsEachMinute) {
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(125);
    EXPECT_EQ(menu().mainMenu().findChild<QAction*>(QStringLiteral("todayItem")), nullptr);
    EXPECT_EQ(opened().front(), QStringLiteral("Today: 00:02:05"));
    controller.timer().stopTimer();
}

TEST_F(TrayTodayTest, withoutAHistory_thereIsNoLine) {
    fakes.defaults.setObject(kHistoryDays, -1);
    settle();
    EXPECT_FALSE(opened().front().startsWith(QStringLiteral("Today")));
}

TEST_F(TrayTodayTest, aPause_endsByItself) {
    controller.timer().startTimer();
    pick("pauseQuarter");
    EXPECT_FALSE(isCounting());
    seconds(14 * 60);
    EXPECT_FALSE(isCounting());
    seconds(95);
    EXPECT_TRUE(isCounting());
    controller.timer().stopTimer();
    seconds(3600);
    EXPECT_FALSE(isCounting());
}

TEST_F(TrayTodayTest, aPauseUntilTomorrow_endsWhenTheDayDoes) {
    controller.timer().startTimer();
    pick("pauseDay");
    const auto end = pauses.end();
    ASSERT_TRUE(end);
    EXPECT_EQ(localTime(*end).time(), QTime(0, 0));
    EXPECT_EQ(localTime(*end).date(), localTime(fakes.clock.now()).date().addDays(1));
}

TEST_F(TrayTodayTest, whoStartsTheTimerBefore_hasEndedThePause) {
    controller.timer().startTimer();
    pick("pauseHour");
    seconds(60);
    controller.timer().startTimer();
    seconds(60);
    EXPECT_EQ(pauses.end(), std::nullopt);
    controller.timer().stopTimer();
    seconds(2 * 3600);
    EXPECT_FALSE(isCounting());
}

} // namespace
