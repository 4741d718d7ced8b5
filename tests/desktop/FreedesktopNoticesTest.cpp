// SPDX-License-Identifier: MIT
#include "platform/linux/FreedesktopNotices.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "tests/desktop/RoundTrip.h"
#include "tests/desktop/harness/SessionBus.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class FreedesktopNoticesTest : public testing::Test {
protected:
    // A desktop with a service that can do this.
    std::unique_ptr<ServiceScript> desktop(const QStringList& abilities) {
        return std::make_unique<ServiceScript>(m_home, u"notifications.py"_s,
                                               QStringList{m_daemon.address()} + abilities);
    }

    void show(const QString& title) {
        m_notices.show({.title = title,
                        .text = u"9:00 & <b>later</b>"_s,
                        .buttons = {{u"break"_s, u"Break"_s}, {u"say"_s, u"Say…"_s}},
                        .usualKey = u"say"_s},
                       [this, title](const QString& key) {
                           m_token = qgetenv("XDG_ACTIVATION_TOKEN");
                           m_answers << title + u' ' + key;
                       });
    }

    // The service has said the number before this process has it.
    void waitForNumber() {
        const QString name = u"org.freedesktop.Notifications"_s;
        EXPECT_TRUE(roundTrip(m_bus, name, u"/org/freedesktop/Notifications"_s, name, u"nothing"_s));
    }

    bool waitForAnswers(const QString& answers) {
        return waitFor([&] { return m_answers.join(u", "_s) == answers; });
    }

    TemporaryHome m_home;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    SessionBus m_daemon{m_home.environment(), m_home.runtimeFolder()};
    Bus m_bus{Bus::atAddress(m_daemon.address()), m_runLoop, m_log};
    FreedesktopNotices m_notices{m_bus, m_log};
    QStringList m_answers;
    QByteArray m_token;
};

TEST_F(FreedesktopNoticesTest, aButtonThatIsPressed_isTheAnswer) {
    const auto service = desktop({u"actions"_s});
    show(u"First"_s);
    EXPECT_EQ(service->hear(), u"7 0 First [break, Break, default, Say…, say, Say…]"_s);
    EXPECT_EQ(service->ask("body"), u"9:00 & <b>later</b>"_s);
    waitForNumber();
    service->ask("press 6 break");
    service->ask("press 7 break");
    EXPECT_TRUE(waitForAnswers(u"First break"_s));
    service->ask("press 7 say");
    EXPECT_TRUE(roundTrip(m_bus));
    EXPECT_EQ(m_answers, QStringList{u"First break"_s}) << "a question is answered once";
}

TEST_F(FreedesktopNoticesTest, theNoticeItself_meansItsUsualButtonAndMayBringUsToTheFront) {
    const auto service = desktop({u"actions"_s, u"body-markup"_s});
    show(u"First"_s);
    service->hear();
    EXPECT_EQ(service->ask("body"), u"9:00 &amp; &lt;b&gt;later&lt;/b&gt;"_s) << "a text is no markup";
    waitForNumber();
    service->ask("token 7 default come");
    EXPECT_TRUE(waitForAnswers(u"First say"_s));
    EXPECT_EQ(m_token, "come");
    EXPECT_TRUE(qgetenv("XDG_ACTIVATION_TOKEN").isEmpty()) << "nobody else inherits it";
}

TEST_F(FreedesktopNoticesTest, aSecondNotice_replacesTheFirst) {
    const auto service = desktop({u"actions"_s});
    show(u"First"_s);
    service->hear();
    waitForNumber();
    show(u"Second"_s);
    EXPECT_EQ(service->hear().section(u' ', 0, 2), u"8 7 Second"_s);
    waitForNumber();
    service->ask("press 8 break");
    EXPECT_TRUE(waitForAnswers(u"Second break"_s));
}

TEST_F(FreedesktopNoticesTest, withdrawn_itIsTakenAwayAndNobodyIsTold) {
    const auto service = desktop({u"actions"_s});
    show(u"First"_s);
    service->hear();
    waitForNumber();
    m_notices.withdraw();
    EXPECT_TRUE(waitFor([&] { return service->ask("closed") == u"7"_s; }));
    service->ask("press 7 break");
    // The first of these may have been sent before the answer.
    show(u"Second"_s);
    EXPECT_EQ(service->hear().section(u' ', 0, 2), u"8 0 Second"_s);
    EXPECT_EQ(m_answers, QStringList());
}

TEST_F(FreedesktopNoticesTest, withdrawnOnItsWay_itIsTakenAwayWhenItHasComeUp) {
    const auto service = desktop({u"actions"_s});
    show(u"First"_s);
    // What it can do is known; the notice goes out, and its number is not back.
    EXPECT_TRUE(waitFor([&] { return service->ask("asked") == u"1"_s; }));
    EXPECT_TRUE(roundTrip(m_bus));
    m_notices.withdraw();
    service->hear();
    EXPECT_TRUE(waitFor([&] { return service->ask("closed") == u"7"_s; }));
}

TEST_F(FreedesktopNoticesTest, closedByThePerson_itStaysClosed) {
    const auto service = desktop({u"actions"_s});
    show(u"First"_s);
    service->hear();
    waitForNumber();
    service->ask("close 7");
    show(u"Second"_s);
    EXPECT_TRUE(service->hear().endsWith(u"Second [break, Break, default, Say…, say, Say…]"_s));
    EXPECT_EQ(m_answers, QStringList());
}

TEST_F(FreedesktopNoticesTest, aServiceWithoutButtons_showsNothing) {
    const auto service = desktop({u"body"_s});
    show(u"First"_s);
    EXPECT_TRUE(waitFor([this] { return m_log.mentions(u"Notices with buttons are not shown here"_s); }));
    EXPECT_EQ(service->ask("body"), u""_s);
}

TEST_F(FreedesktopNoticesTest, aDesktopWithoutNotices_isLogged) {
    show(u"First"_s);
    EXPECT_TRUE(waitFor([this] { return m_log.mentions(u"Notices with buttons are not shown here: "_s); }));
}

TEST_F(FreedesktopNoticesTest, beforeTheFirstNotice_theServiceIsAskedNothing) {
    const auto service = desktop({u"actions"_s});
    m_notices.withdraw();
    EXPECT_TRUE(roundTrip(m_bus));
    EXPECT_EQ(service->ask("asked"), u"0"_s);
}

} // namespace
