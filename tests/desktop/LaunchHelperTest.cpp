// SPDX-License-Identifier: MIT
// The built launch helper, as the desktop starts it at login.
#include "tests/Places.h"
#include "tests/desktop/harness/Product.h"

#include <QFile>

#include <csignal>
#include <gtest/gtest.h>

namespace {

const QString kLaunchHelper = QStringLiteral(TICKLOG_BINARY_DIR "/TicklogLaunchHelper");

class LaunchHelperTest : public testing::Test {
protected:
    std::optional<int> runHelper() {
        const auto helper = desk.start(kLaunchHelper);
        EXPECT_TRUE(helper->waitUntilEnded());
        return helper->exitStatus();
    }

    Desk desk;
    Product product{desk};
};

TEST_F(LaunchHelperTest, atLogin_ticklogIsStartedAndTheHelperEnds) {
    EXPECT_EQ(runHelper(), 0);
    ASSERT_TRUE(waitFor([this] { return product.hasWindow(); }));
    const auto process = pid_t(desk.probe().number(product.window(), "_NET_WM_PID"));
    ASSERT_NE(process, 0);
    ::kill(process, SIGTERM);
    EXPECT_TRUE(waitFor([this] { return !product.hasWindow(); }));
}

TEST_F(LaunchHelperTest, whileTicklogRuns_nothingIsStartedAndItsWindowStaysWhereItIs) {
    ASSERT_TRUE(product.start());
    XClient other(desk);
    const xcb_window_t window = other.open({.title = "Letter", .className = "Writer"});
    ASSERT_TRUE(product.bringToFront(other, window));
    EXPECT_EQ(runHelper(), 0);
    turnEventLoopFor(std::chrono::milliseconds(300));
    EXPECT_EQ(desk.probe().activeWindow(), window);
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(LaunchHelperTest, withoutADisplay_nothingIsStarted) {
    Program helper(kLaunchHelper, {}, desk.home().environment());
    EXPECT_TRUE(helper.waitUntilEnded());
    EXPECT_EQ(helper.exitStatus(), 1);
}

} // namespace
