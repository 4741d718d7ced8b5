// SPDX-License-Identifier: MIT
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/linux/DesktopScreenLock.h"
#include "platform/linux/LockAwareFrontApplication.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/ManualRunLoop.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

namespace {

class DesktopScreenLockTest : public testing::Test {
protected:
    bool waitForLocked(bool isLocked) {
        return waitFor([&] { return m_lock.isLocked() == isLocked; });
    }

    bool waitUntilKnown() {
        return waitFor([this] { return m_session.isKnown(); });
    }

    std::unique_ptr<ServiceScript> startScreenSaver(const QString& name, const QString& path, bool isActive,
                                                    const QString& interface = {}) {
        return std::make_unique<ServiceScript>(m_machine.home(), QStringLiteral("screensaver.py"),
                                               QStringList{m_machine.address(), name, path,
                                                           interface.isEmpty() ? name : interface,
                                                           QVariant(isActive).toString()});
    }

    LogindMachine m_machine;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    HandClock m_clock;
    ManualRunLoop m_handLoop{m_clock};
    Bus m_bus{Bus::atAddress(m_machine.address()), m_runLoop, m_log};
    OwnSession m_session{m_bus, m_log, QString()};
    DesktopScreenLock m_lock{m_session, m_bus, m_handLoop};
};

TEST_F(DesktopScreenLockTest, aLockedSession_isLockedUntilItIsUnlocked) {
    m_machine.ask("start-logind");
    ASSERT_TRUE(waitUntilKnown());
    EXPECT_FALSE(m_lock.isLocked());
    m_machine.ask("locked-hint true");
    EXPECT_TRUE(waitForLocked(true));
    m_handLoop.advance(std::chrono::hours(1));
    EXPECT_TRUE(m_lock.isLocked());
    m_machine.ask("locked-hint false");
    EXPECT_TRUE(waitForLocked(false));
}

TEST_F(DesktopScreenLockTest, aRequestToLock_countsAtOnceUntilTheRequestToUnlock) {
    m_machine.ask("start-logind");
    ASSERT_TRUE(waitUntilKnown());
    m_machine.ask("request Lock");
    EXPECT_TRUE(waitForLocked(true));
    m_machine.ask("request Unlock");
    EXPECT_TRUE(waitForLocked(false));
}

TEST_F(DesktopScreenLockTest, aRequestThatNobodyFollows_isForgotten) {
    m_machine.ask("start-logind");
    ASSERT_TRUE(waitUntilKnown());
    m_machine.ask("request Lock");
    ASSERT_TRUE(waitForLocked(true));
    m_handLoop.advance(DesktopScreenLock::kRequestBelieved);
    EXPECT_FALSE(m_lock.isLocked());
}

TEST_F(DesktopScreenLockTest, aRequestThatIsFollowed_endsWhenTheLockerOpens) {
    m_machine.ask("start-logind");
    ASSERT_TRUE(waitUntilKnown());
    m_machine.ask("request Lock");
    m_machine.ask("locked-hint true");
    ASSERT_TRUE(waitFor([this] { return m_session.isLocked(); }));
    EXPECT_TRUE(m_lock.isLocked());
    m_machine.ask("locked-hint false");
    EXPECT_TRUE(waitForLocked(false));
}

TEST_F(DesktopScreenLockTest, aScreenSaver_isFollowedAndItsDeathUncoversTheScreen) {
    const auto saver = startScreenSaver(QStringLiteral("org.freedesktop.ScreenSaver"),
                                        QStringLiteral("/ScreenSaver"), false);
    ASSERT_TRUE(waitFor([&] {
        saver->ask("active true");
        return m_lock.isLocked();
    }));
    saver->ask("active false");
    EXPECT_TRUE(waitForLocked(false));
    saver->ask("active true");
    EXPECT_TRUE(waitForLocked(true));
    saver->kill();
    EXPECT_TRUE(waitForLocked(false));
}

TEST_F(DesktopScreenLockTest, aScreenSaverThatIsActiveAlready_isSeen) {
    const auto saver = startScreenSaver(QStringLiteral("org.gnome.ScreenSaver"),
                                        QStringLiteral("/org/gnome/ScreenSaver"), true);
    EXPECT_TRUE(waitForLocked(true));
}

TEST_F(DesktopScreenLockTest, gnomesShell_isAskedItselfBecauseTheServiceBesideItSeldomRuns) {
    const auto shell = startScreenSaver(QStringLiteral("org.gnome.Shell.ScreenShield"),
                                        QStringLiteral("/org/gnome/ScreenSaver"), true,
                                        QStringLiteral("org.gnome.ScreenSaver"));
    ASSERT_TRUE(waitForLocked(true));
    shell->ask("active false");
    EXPECT_TRUE(waitForLocked(false));
    shell->ask("active true");
    EXPECT_TRUE(waitForLocked(true));
}

TEST_F(DesktopScreenLockTest, aBusThatIsLost_leavesTheScreenSaverBehind) {
    const auto saver = startScreenSaver(QStringLiteral("org.gnome.ScreenSaver"),
                                        QStringLiteral("/org/gnome/ScreenSaver"), true);
    ASSERT_TRUE(waitForLocked(true));
    m_machine.ask("stop-bus");
    EXPECT_TRUE(waitForLocked(false));
    m_machine.ask("start-bus");
    const auto next = startScreenSaver(QStringLiteral("org.gnome.ScreenSaver"),
                                       QStringLiteral("/org/gnome/ScreenSaver"), true);
    EXPECT_TRUE(waitForLocked(true));
}

TEST_F(DesktopScreenLockTest, aSessionOfTheGreeter_isNobodys) {
    int told = 0;
    const auto changes = m_lock.observe([&] { ++told; });
    m_machine.ask("start-logind");
    m_machine.ask("class greeter");
    EXPECT_TRUE(waitFor([this] { return m_lock.isGreeter(); }));
    EXPECT_EQ(told, 1);
}

// A lock and a front application that do what they are told.
class FakeScreenLock : public ScreenLock {
public:
    bool isLocked() const override { return m_isLocked; }

    bool isGreeter() const override { return m_isGreeter; }

    Subscription observe(std::function<void()> observer) override {
        return m_observers->add(std::move(observer));
    }

    void set(bool isLocked, bool isGreeter) {
        m_isLocked = isLocked;
        m_isGreeter = isGreeter;
        m_observers->forEach([](const auto& observer) { observer(); });
    }

private:
    bool m_isLocked = false;
    bool m_isGreeter = false;
    QExplicitlySharedDataPointer<Listeners<std::function<void()>>> m_observers{
        new Listeners<std::function<void()>>};
};

class FakeFront : public FrontApplication {
public:
    const std::optional<ApplicationRecord>& activeApplication() const override { return m_record; }

    Subscription observeSwitches(News::Hearer hearer) override {
        return m_switches.observe(std::move(hearer));
    }

    QString nameOfProgram(const QString&) const override { return {}; }

    QString describe() const override { return {}; }

    void switchTo(const QString& name) {
        m_record = ApplicationRecord{name, QString(), 42};
        m_switches.tell();
    }

private:
    std::optional<ApplicationRecord> m_record;
    News m_switches;
};

class LockAwareFrontApplicationTest : public testing::Test {
protected:
    QString name() const {
        const auto& record = m_front.activeApplication();
        return record ? record->name : QString();
    }

    FakeScreenLock m_lock;
    FakeFront m_unlocked;
    LockAwareFrontApplication m_front{m_unlocked, m_lock};
};

TEST_F(LockAwareFrontApplicationTest, theLock_isInFrontAndItsEdgesAreSwitches) {
    QStringList switches;
    const Subscription subscription = m_front.observeSwitches([&] { switches << name(); });
    m_unlocked.switchTo(QStringLiteral("Mail"));
    m_lock.set(true, false);
    m_unlocked.switchTo(QStringLiteral("Editor"));
    EXPECT_EQ(m_front.activeApplication()->processIdentifier, LockAwareFrontApplication::kScreenSaverProcess);
    m_lock.set(false, false);
    EXPECT_EQ(switches, QStringList({QStringLiteral("Mail"), kScreenSaverName, QStringLiteral("Editor")}));
}

TEST_F(LockAwareFrontApplicationTest, beforeAnybodyHasLoggedIn_theLoginWindowIsInFront) {
    m_unlocked.switchTo(QStringLiteral("Mail"));
    m_lock.set(true, true);
    EXPECT_EQ(name(), kLoginWindowName);
}

TEST_F(LockAwareFrontApplicationTest, aSubscriptionThatEnds_endsTheCalls) {
    int switches = 0;
    Subscription subscription = m_front.observeSwitches([&] { ++switches; });
    subscription.cancel();
    m_unlocked.switchTo(QStringLiteral("Mail"));
    m_lock.set(true, false);
    EXPECT_EQ(switches, 0);
}

} // namespace
