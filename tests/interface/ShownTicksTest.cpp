// SPDX-License-Identifier: MIT
// How often it ticks while somebody looks, and that nobody sees a difference.
#include "interface/shell/StatusMenu.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/Desk.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct ShownTicksTest : testing::Test, Desk {
    ShownTicksTest()
        : Desk(true) {
        fakes.idleTime.tells = true;
        account("Mail", 10.35, {{QStringLiteral("Inbox"), 3.6}, {QStringLiteral("Sent"), 2.2}});
        account("Notes", 1.2);
        front("Mail", "Inbox");
        show();
        controller.timer().startTimer();
        settle();
        table().expand(row("Mail"));
    }

    // How often the loop woke while this time passed.
    int wakesIn(double time) {
        int wakes = 0;
        const Subscription waits = fakes.runLoop.observeWaits({.woken = [&] { ++wakes; }, .aboutToWait = {}});
        seconds(time);
        return wakes;
    }

    std::string shown() { return str(textOf(model()) + QStringLiteral(" = ") + sumShown()); }

    // What should be shown `passed` seconds after the start.
    static std::string expected(double passed) {
        const auto text = [](double time) { return TimeTracker::timeStringForDouble(std::floor(time)); };
        return str(QStringLiteral("Mail %1 [Inbox %2, Sent 00:00:02], Notes 00:00:01 = %3")
                       .arg(text(10.35 + passed), text(3.6 + passed), text(11.55 + passed)));
    }
};

} // namespace

TEST_F(ShownTicksTest, eachTimeThatIsShown_turnsAtItsOwnMoment) {
    double passed = 0;
    // Each looks a little after a turn of the window's row, of the sum, which follows within a tenth of a second, and of
    // the program's row.
    for (const double step : {0.41, 0.12, 0.15, 0.35, 0.41, 0.24, 0.35, 5.0, 0.41, 0.24}) {
        seconds(step);
        passed += step;
        EXPECT_EQ(shown(), expected(passed)) << passed;
    }
}

TEST_F(ShownTicksTest, whileOneRowCounts_itWakesForEachVisibleSecondAndNotTenTimes) {
    seconds(2);
    EXPECT_LE(wakesIn(60), 60 * 3 + 10) << "the row, the window's row and the sum";
}

TEST_F(ShownTicksTest, whenTheWindowIsClosed_itWakesNoMoreThanItMust) {
    seconds(2);
    controller.window().hide();
    seconds(1);
    EXPECT_LE(wakesIn(60), 10);
    fakes.runLoop.wake();
    show();
    table().expand(row("Mail"));
    EXPECT_EQ(shown(), expected(63)) << "who looks again sees all of it";
}

TEST_F(ShownTicksTest, anotherWindowInFront_isShownATenthOfASecondLater) {
    seconds(2);
    fakes.runLoop.wake();
    front("Mail", "Outbox");
    seconds(0.11);
    EXPECT_TRUE(shown().find("Outbox") != std::string::npos) << shown();
}

TEST_F(ShownTicksTest, whileTheTraysMenuIsOpen_itTicksForItsTimes) {
    seconds(2);
    controller.window().hide();
    seconds(1);
    Q_EMIT controller.appDelegate().statusMenu().mainMenu().aboutToShow();
    EXPECT_GE(wakesIn(10), 10);
    Q_EMIT controller.appDelegate().statusMenu().mainMenu().aboutToHide();
    seconds(1);
    EXPECT_LE(wakesIn(60), 10);
}
