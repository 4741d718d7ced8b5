// SPDX-License-Identifier: MIT
#include "Classes/engine/NotificationHandOff.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/ManualRunLoop.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

class NotificationHandOffTest : public testing::Test {
protected:
    void receive(const Notification& notification) {
        EXPECT_EQ(std::this_thread::get_id(), m_mainThread);
        m_received << notification.name;
        if (notification.name == u"first")
            m_handOff->processNotification({u"nested"_s, {}});
    }

    // Sends from another thread and waits for that thread to end.
    void sendFromElsewhere(const QStringList& names) {
        std::thread([&] {
            for (const QString& name : names)
                m_handOff->processNotification({name, {}});
        }).join();
    }

    std::string received() const { return str(m_received.join(u' ')); }

    std::thread::id m_mainThread = std::this_thread::get_id();
    HandClock m_clock;
    ManualRunLoop m_runLoop{m_clock};
    QStringList m_received;
    std::unique_ptr<NotificationHandOff> m_handOff = std::make_unique<NotificationHandOff>(
        m_runLoop, [this](const Notification& notification) { receive(notification); });
};

TEST_F(NotificationHandOffTest, onItsOwnThread_itIsProcessedAtOnce) {
    m_handOff->processNotification({u"here"_s, {}});
    EXPECT_EQ(received(), "here");
}

TEST_F(NotificationHandOffTest, fromAnotherThread_itIsProcessedInTheNextTurnInOrder) {
    sendFromElsewhere({u"a"_s, u"b"_s, u"c"_s});
    EXPECT_EQ(received(), "");
    m_runLoop.runPending();
    EXPECT_EQ(received(), "a b c");
    m_runLoop.runPending();
    EXPECT_EQ(received(), "a b c");
}

TEST_F(NotificationHandOffTest, aNotificationThatBringsAnother_isNotHeldUpByTheLock) {
    sendFromElsewhere({u"first"_s, u"second"_s});
    m_runLoop.runPending();
    EXPECT_EQ(received(), "first nested second");
}

TEST_F(NotificationHandOffTest, manyThreads_loseNothing) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&] {
            for (int n = 0; n < 250; ++n)
                m_handOff->processNotification({u"x"_s, {}});
        });
    for (std::thread& thread : threads)
        thread.join();
    m_runLoop.runPending();
    EXPECT_EQ(m_received.size(), 2000);
}

TEST_F(NotificationHandOffTest, whatIsUnderWayWhenItGoes_isDropped) {
    sendFromElsewhere({u"late"_s});
    m_handOff.reset();
    m_runLoop.runPending();
    EXPECT_EQ(received(), "");
}

} // namespace
