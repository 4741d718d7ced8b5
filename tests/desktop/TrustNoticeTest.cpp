// SPDX-License-Identifier: MIT
#include "platform/atspi/TrustNotice.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "tests/desktop/RoundTrip.h"
#include "tests/desktop/harness/SessionBus.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TrustNoticeTest : public testing::Test {
protected:
    static void press(ServiceScript& desktop, const QString& number, const char* button) {
        desktop.ask(qPrintable(u"press %1 %2"_s.arg(number, QLatin1String(button))));
    }

    TemporaryHome m_home;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    SessionBus m_daemon{m_home.environment(), m_home.runtimeFolder()};
    Bus m_bus{Bus::atAddress(m_daemon.address()), m_runLoop, m_log};
    int m_allowed = 0;
    TrustNotice m_notice{m_bus, m_log, [this] { ++m_allowed; }};
};

TEST_F(TrustNoticeTest, theNotice_hasAButtonThatAllows) {
    ServiceScript desktop(m_home, u"notifications.py"_s, {m_daemon.address()});
    m_notice.show();
    EXPECT_EQ(desktop.hear(), u"7 0 Ticklog cannot see other programs’ windows [allow, Turn On]"_s);
    // The second notice replaces the first, which shows that its number has arrived.
    EXPECT_TRUE(waitFor([&] {
        m_notice.show();
        return desktop.hear().section(u' ', 1, 1) != u"0"_s;
    }));
    desktop.ask("press 3 allow");
    desktop.ask("press 99 allow");
    m_notice.show();
    const QString number = desktop.hear().section(u' ', 0, 0);
    // Answers arrive in order.
    EXPECT_TRUE(waitFor([&] {
        press(desktop, number, "allow");
        return m_allowed > 0;
    }));
}

TEST_F(TrustNoticeTest, otherAnswers_allowNothing) {
    ServiceScript desktop(m_home, u"notifications.py"_s, {m_daemon.address()});
    m_notice.show();
    const QString number = desktop.hear().section(u' ', 0, 0);
    press(desktop, number, "default");
    desktop.ask("press 6 allow");
    EXPECT_TRUE(roundTrip(m_bus));
    EXPECT_EQ(m_allowed, 0);
}

TEST_F(TrustNoticeTest, aDesktopWithoutNotices_isLogged) {
    m_notice.show();
    EXPECT_TRUE(waitFor([this] { return m_log.mentions(u"nobody here shows notices"_s); }));
}

} // namespace
