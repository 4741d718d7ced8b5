// SPDX-License-Identifier: MIT
// The built program with a login manager: sleep, session, power-off and lock over a real bus.
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/harness/XClient.h"
#include "tests/desktop/services/ServiceScript.h"

#include <QElapsedTimer>

#include <csignal>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const QString kBothHeld = QStringLiteral("shutdown:Ticklog:delay sleep:Ticklog:delay");

class ProductSessionTest : public testing::Test {
protected:
    void SetUp() override {
        m_machine.ask("start-logind");
        m_machine.ask("find name");
        product.setVariable(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), m_machine.address());
        product.setVariable(QStringLiteral("XDG_SESSION_ID"), QStringLiteral("c1"));
        product.writeSettings(Product::runningSettings());
        const xcb_window_t window = m_writer.open({.title = "Letter", .className = "Writer"});
        ASSERT_TRUE(product.start());
        ASSERT_TRUE(m_machine.waitForInhibitors(kBothHeld));
        ASSERT_TRUE(product.bringToFront(m_writer, window));
        watch.start();
    }

    double written() const { return product.applicationTimes().value(QStringLiteral("Writer")); }

    double passed() const { return double(watch.nsecsElapsed()) / 1e9; }

    // Until the writer has been in front for so long.
    void workUntil(double seconds) const {
        EXPECT_TRUE(waitFor([&] { return passed() >= seconds; }));
    }

    // Ends the program and expects that it has counted `before` seconds, and at most the time until it was
    // gone: how long ending takes depends on the machine.
    void endAfterCounting(double before, double credited = 0) {
        const double atTheSignal = passed();
        EXPECT_EQ(product.end(SIGTERM), 0);
        EXPECT_GE(written(), credited + before - offBy(0.4));
        EXPECT_LE(written(), credited + before + (passed() - atTheSignal) + offBy(0.4));
    }

    double offBy(double seconds) const { return seconds + m_lateness.seconds(); }

    LogindMachine m_machine;
    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
    XClient m_writer{desk};
    // Runs while the writer is in front.
    QElapsedTimer watch;
    Lateness m_lateness;
};

TEST_F(ProductSessionTest, aSleep_isSavedBeforeAndNeverCredited) {
    workUntil(0.5);
    m_machine.ask("prepare-for-sleep true");
    const double before = passed();
    ASSERT_TRUE(m_machine.waitForInhibitors(QStringLiteral("shutdown:Ticklog:delay")));
    EXPECT_NEAR(written(), before, offBy(0.3));
    const double savedBefore = written();
    // As much work as would be credited if the timer ran.
    workUntil(before + 1.5);
    const double asleep = passed() - before;
    m_machine.ask("prepare-for-sleep false");
    QElapsedTimer awake;
    awake.start();
    ASSERT_TRUE(m_machine.waitForInhibitors(kBothHeld));
    workUntil(passed() + 0.5);
    SCOPED_TRACE(testing::Message() << "after " << asleep << " seconds asleep");
    endAfterCounting(double(awake.nsecsElapsed()) / 1e9, savedBefore);
}

TEST_F(ProductSessionTest, leavingTheSession_savesAndComingBackCountsOn) {
    workUntil(0.4);
    m_machine.ask("active false");
    ASSERT_TRUE(waitFor([&] { return written() > 0; }));
    m_machine.ask("active true");
    workUntil(passed() + 0.4);
    // The gap is credited to what was in front, because the timer counts as running all the time.
    endAfterCounting(passed());
}

TEST_F(ProductSessionTest, thePowerGoing_isSavedWithTheRestartFlagAndThenNoLongerDelayed) {
    workUntil(0.4);
    m_machine.ask("prepare-for-shutdown true");
    const double before = passed();
    ASSERT_TRUE(m_machine.waitForInhibitors(QStringLiteral("sleep:Ticklog:delay")));
    EXPECT_NEAR(written(), before, offBy(0.3));
    EXPECT_TRUE(product.settings().value(QStringLiteral("startTicklogOnNextLaunch")).toBool());
}

TEST_F(ProductSessionTest, aLockedScreen_isIdleTime) {
    m_machine.ask("locked-hint true");
    const double working = passed();
    const double away = passTime(800ms);
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_NEAR(written(), working, offBy(0.4));
    EXPECT_GE(product.applicationTimes().value(QStringLiteral("Idle")), away - offBy(0.4));
}

TEST_F(ProductSessionTest, theLoginManagerGoing_doesNotDisturbTheCounting) {
    workUntil(0.3);
    m_machine.ask("stop-bus");
    workUntil(1);
    endAfterCounting(passed());
}

} // namespace
