// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxSystemTray.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/x11/X11TrayManager.h"
#include "tests/desktop/RoundTrip.h"
#include "tests/desktop/harness/Desk.h"
#include "tests/desktop/harness/Packaged.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

namespace {

using Offer = SystemTray::Offer;

class LinuxSystemTrayTest : public testing::Test {
protected:
    bool waitForOffer(Offer offer) {
        return waitFor([&] { return m_tray.offer() == offer; });
    }

    TemporaryHome m_home;
    SessionBus m_daemon{m_home.environment(), m_home.runtimeFolder()};
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    Bus m_bus{Bus::atAddress(m_daemon.address()), m_runLoop, m_log};
    LinuxSystemTray m_tray{m_bus, m_runLoop, m_log};
};

TEST_F(LinuxSystemTrayTest, aServiceThatTakesIcons_isOfferedAtOnce) {
    ServiceScript panel(m_home, QStringLiteral("tray.py"), {m_daemon.address()});
    EXPECT_EQ(m_tray.offer(), Offer::Unknown);
    panel.ask("watch");
    m_tray.setEmbedding(true);
    EXPECT_EQ(m_tray.offer(), Offer::Unknown) << "the service comes first, and may come late";
    EXPECT_TRUE(waitForOffer(Offer::Exported));
    panel.ask("unwatch");
    EXPECT_TRUE(waitForOffer(Offer::None)) << "an icon of the one kind does not become one of the other";
    panel.ask("watch");
    EXPECT_TRUE(waitForOffer(Offer::Exported));
}

TEST_F(LinuxSystemTrayTest, aProgramThatEmbedsIcons_isOfferedWhenNoServiceCame) {
    int told = 0;
    const Subscription subscription = m_tray.observe([&] { ++told; });
    m_tray.setEmbedding(true);
    EXPECT_TRUE(waitForOffer(Offer::Embedded));
    EXPECT_EQ(told, 1);
    ServiceScript panel(m_home, QStringLiteral("tray.py"), {m_daemon.address()});
    panel.ask("watch");
    // The tray has heard of the service and asked it when this is answered.
    EXPECT_TRUE(roundTrip(m_bus));
    EXPECT_TRUE(roundTrip(
        m_bus, QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("/StatusNotifierWatcher"),
        QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("IsStatusNotifierHostRegistered")));
    EXPECT_EQ(m_tray.offer(), Offer::Embedded) << "which of the two it is holds for the life of the process";
    m_tray.setEmbedding(false);
    EXPECT_EQ(m_tray.offer(), Offer::Embedded) << "a panel that is started anew is back soon";
    m_tray.setEmbedding(true);
    m_tray.setEmbedding(false);
    EXPECT_TRUE(waitForOffer(Offer::None));
}

TEST_F(LinuxSystemTrayTest, nothingAtAll_isKnownAfterAWhileAndNotForEver) {
    EXPECT_TRUE(waitForOffer(Offer::None));
    EXPECT_TRUE(m_log.mentions(QStringLiteral("tray: none")));
    m_tray.setEmbedding(true);
    EXPECT_EQ(m_tray.offer(), Offer::Embedded);
}

TEST(X11TrayManagerTest, aTrayThatComesAndGoes_isNoticed) {
    SKIP_WHERE_NOT_PACKAGED(QStringLiteral("trayer"));
    Desk desk;
    RecordingLog log;
    QtRunLoop runLoop(log);
    auto connection = X11Connection::tryConnect(desk.display().name().toLatin1(), runLoop, log);
    ASSERT_TRUE(connection);
    int told = 0;
    const X11TrayManager manager(std::move(*connection), [&] { ++told; });
    EXPECT_FALSE(manager.isThere());
    const auto tray = desk.start(QStringLiteral("trayer"));
    EXPECT_TRUE(waitFor([&] { return manager.isThere(); })) << "is trayer installed?";
    tray->kill();
    EXPECT_TRUE(waitFor([&] { return !manager.isThere(); }));
    EXPECT_EQ(told, 2);
}

} // namespace
