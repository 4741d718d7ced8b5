// SPDX-License-Identifier: MIT
// The built launch helper, as the desktop starts it at login.
#include "tests/Places.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/services/ServiceScript.h"

#include <QDir>
#include <QFile>

#include <algorithm>
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

    // Ends the Ticklog that the helper has started; it is no child of this process.
    void endTicklog(std::int64_t process) {
        ASSERT_GT(process, 0);
        ::kill(pid_t(process), SIGTERM);
        EXPECT_TRUE(waitFor([process] { return ::kill(pid_t(process), 0) != 0; }));
    }

    // In this home. One that the helper has started is among them by the time that the helper has ended.
    int runningTicklogs() const {
        const QByteArray home = "HOME=" + desk.home().path().toUtf8();
        int count = 0;
        for (const QString& process : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
            const QString folder = QStringLiteral("/proc/") + process;
            QFile environment(folder + QStringLiteral("/environ"));
            count +=
                QFile::symLinkTarget(folder + QStringLiteral("/exe")).endsWith(QLatin1String("/ticklog")) &&
                environment.open(QFile::ReadOnly) && environment.readAll().split('\0').contains(home);
        }
        return count;
    }

    bool hasNotice() {
        return std::ranges::any_of(desk.probe().windows(), [this](xcb_window_t window) {
            return desk.probe().text(window, "_NET_WM_NAME").startsWith("There is no system tray");
        });
    }

    bool isMinimized() { return desk.probe().hasState(product.window(), "_NET_WM_STATE_HIDDEN"); }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
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

TEST_F(LaunchHelperTest, atLoginWithATray_ticklogComesWithItsIconAndWithoutItsWindow) {
    ServiceScript panel(desk.home(), QStringLiteral("tray.py"), {desk.bus().address()});
    panel.ask("watch");
    EXPECT_EQ(runHelper(), 0);
    ASSERT_TRUE(waitFor([&] { return panel.ask("item") == QLatin1String("ticklog"); }));
    // The icon comes last, and by this answer whatever was to be shown is.
    panel.ask("open");
    panel.ask("menu");
    EXPECT_FALSE(product.hasWindow());
    panel.ask("activate");
    ASSERT_TRUE(waitFor([this] { return product.hasWindow(); }));
    EXPECT_FALSE(isMinimized());
    endTicklog(desk.probe().number(product.window(), "_NET_WM_PID"));
}

TEST_F(LaunchHelperTest, atLoginWithASlowPanel_theIconComesLaterAndNothingIsSaidMeanwhile) {
    product.writeSettings({{QStringLiteral("kTKPrefAppType"), 0}});
    ServiceScript panel(desk.home(), QStringLiteral("tray.py"), {desk.bus().address()});
    EXPECT_EQ(runHelper(), 0);
    // By then Ticklog has stopped waiting for a tray.
    ASSERT_TRUE(waitFor([this] { return product.hasWindow() && isMinimized(); }));
    const std::int64_t process = desk.probe().number(product.window(), "_NET_WM_PID");
    EXPECT_FALSE(hasNotice());
    panel.ask("watch");
    EXPECT_TRUE(waitFor([&] { return panel.ask("item") == QLatin1String("ticklog"); }));
    EXPECT_TRUE(waitFor([this] { return !product.hasWindow(); }));
    EXPECT_FALSE(hasNotice());
    endTicklog(process);
}

TEST_F(LaunchHelperTest, whileTicklogRuns_nothingIsStartedAndItsWindowStaysWhereItIs) {
    ASSERT_TRUE(product.start());
    XClient other(desk);
    const xcb_window_t window = other.open({.title = "Letter", .className = "Writer"});
    ASSERT_TRUE(product.bringToFront(other, window));
    EXPECT_EQ(runHelper(), 0);
    EXPECT_EQ(runningTicklogs(), 1) << "another would bring the window of the first to the front";
    EXPECT_EQ(desk.probe().activeWindow(), window);
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(LaunchHelperTest, withoutADisplay_nothingIsStarted) {
    Program helper(kLaunchHelper, {}, desk.home().environment());
    EXPECT_TRUE(helper.waitUntilEnded());
    EXPECT_EQ(helper.exitStatus(), 1);
}

} // namespace
