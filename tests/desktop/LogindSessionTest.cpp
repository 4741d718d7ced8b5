// SPDX-License-Identifier: MIT
#include "platform/linux/LogindSession.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

namespace {

const QString kHeld = QStringLiteral("shutdown:Ticklog:delay");

class LogindSessionTest : public testing::Test {
protected:
    void begin(const QString& sessionId = QString()) {
        m_ownSession.emplace(m_bus, m_log, sessionId);
        m_session.emplace(*m_ownSession, m_log);
        m_news = m_session->observe({[this] { m_told << QStringLiteral("resigned"); },
                                     [this] { m_told << QStringLiteral("became active"); },
                                     [this] {
                                         m_wasDelayedAtPowerOff = m_session->isDelaying();
                                         m_told << QStringLiteral("power off");
                                     }});
    }

    bool waitUntilKnown() {
        return waitFor([this] { return m_ownSession->isKnown(); });
    }

    bool waitForTold(const QStringList& told) {
        return waitFor([&] { return m_told == told; });
    }

    LogindMachine m_machine;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    Bus m_bus{Bus::atAddress(m_machine.address()), m_runLoop, m_log};
    std::optional<OwnSession> m_ownSession;
    std::optional<LogindSession> m_session;
    Subscription m_news;
    QStringList m_told;
    bool m_wasDelayedAtPowerOff = false;
};

TEST_F(LogindSessionTest, anotherSessionInFront_isToldBothWays) {
    m_machine.ask("start-logind");
    begin();
    ASSERT_TRUE(waitUntilKnown());
    m_machine.ask("active false");
    EXPECT_TRUE(waitForTold({QStringLiteral("resigned")}));
    m_machine.ask("active true");
    EXPECT_TRUE(waitForTold({QStringLiteral("resigned"), QStringLiteral("became active")}));
}

TEST_F(LogindSessionTest, aSessionThatIsKnownByName_isFound) {
    m_machine.ask("start-logind");
    m_machine.ask("find name");
    begin(QStringLiteral("c1"));
    ASSERT_TRUE(waitUntilKnown());
    m_machine.ask("active false");
    EXPECT_TRUE(waitForTold({QStringLiteral("resigned")}));
}

TEST_F(LogindSessionTest, aNameOfNoSession_isNotTheEndOfTheSearch) {
    m_machine.ask("start-logind");
    m_machine.ask("find name");
    begin(QStringLiteral("c99"));
    EXPECT_TRUE(waitUntilKnown());
}

TEST_F(LogindSessionTest, aProcessOutsideOfEverySession_belongsToTheUsersDisplay) {
    m_machine.ask("start-logind");
    m_machine.ask("find user");
    begin();
    ASSERT_TRUE(waitUntilKnown());
    m_machine.ask("active false");
    EXPECT_TRUE(waitForTold({QStringLiteral("resigned")}));
}

TEST_F(LogindSessionTest, aLogindThatIsStartedAnew_isFollowedAgain) {
    begin();
    m_machine.ask("start-logind");
    ASSERT_TRUE(waitUntilKnown());
    m_machine.ask("active false");
    ASSERT_TRUE(waitForTold({QStringLiteral("resigned")}));
    m_machine.ask("stop-logind");
    m_machine.ask("start-logind");
    EXPECT_TRUE(waitForTold({QStringLiteral("resigned"), QStringLiteral("became active")}));
}

TEST_F(LogindSessionTest, theMachineGoingDown_waitsForTheHandler) {
    m_machine.ask("start-logind");
    begin();
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-shutdown true");
    ASSERT_TRUE(waitForTold({QStringLiteral("power off")}));
    EXPECT_TRUE(m_wasDelayedAtPowerOff);
    EXPECT_TRUE(m_machine.waitForInhibitors(QString()));
    // The shutdown is cancelled.
    m_machine.ask("prepare-for-shutdown false");
    EXPECT_TRUE(m_machine.waitForInhibitors(kHeld));
}

} // namespace
