// SPDX-License-Identifier: MIT
// A receiver may destroy whatever called it.
#include "platform/bus/BusService.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "tests/desktop/harness/SessionBus.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

class BusTest : public testing::Test {
protected:
    void emitChange() {
        m_other.connection().send(
            QDBusMessage::createSignal(kChange.path, kChange.interface, kChange.member));
    }

    // Waits until the bus has handled everything asked on this connection.
    void settle() {
        QObject witness;
        bool isOver = false;
        m_bus.call(
            QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName, u"GetId"_s),
            &witness, [&](const QDBusMessage&) { isOver = true; });
        ASSERT_TRUE(waitFor([&] { return isOver; }));
    }

    const BusMatch kChange{u"/org/ticklog/Test"_s, u"org.ticklog.Test"_s, u"Changed"_s, {}};
    TemporaryHome m_home;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    SessionBus m_daemon{m_home.environment(), m_home.runtimeFolder()};
    Bus m_bus{Bus::atAddress(m_daemon.address()), m_runLoop, m_log};
    Bus m_other{Bus::atAddress(m_daemon.address()), m_runLoop, m_log};
};

TEST_F(BusTest, aReceiverThatEndsItsListening_isToldNoMore) {
    std::unique_ptr<BusSignal> listening;
    QStringList told;
    listening = std::make_unique<BusSignal>(m_bus, kChange, [&, name = u"once"_s](const QDBusMessage&) {
        listening.reset();
        told << name;
    });
    const BusSignal witness(m_bus, kChange, [&](const QDBusMessage&) { told << u"always"_s; });
    settle();
    emitChange();
    emitChange();
    EXPECT_TRUE(waitFor([&] { return told.count(u"always"_s) == 2; }));
    EXPECT_EQ(told.count(u"once"_s), 1);
}

TEST_F(BusTest, aReplyThatEndsTheService_isItsLast) {
    auto service = std::make_unique<BusService>(m_bus, kBusServiceName);
    QStringList replies;
    for (int call = 0; call < 3; ++call)
        service->call(kBusServicePath, kBusServiceName, u"GetId"_s, {},
                      [&, name = u"reply"_s](const QDBusMessage&) {
                          service.reset();
                          replies << name;
                      });
    settle();
    EXPECT_EQ(replies, QStringList{u"reply"_s});
}

TEST_F(BusTest, aBusThatIsLostWithCallsOpen_forgetsThoseOfWhoIsGone) {
    auto service = std::make_unique<BusService>(m_bus, m_other.connection().baseService());
    // Nobody answers before the loop turns, and by then the bus is gone.
    service->call(kChange.path, kChange.interface, u"Wait"_s, {},
                  [](const QDBusMessage&) { ADD_FAILURE() << "who asked is gone"; });
    QStringList errors;
    QObject witness;
    auto message = QDBusMessage::createMethodCall(m_other.connection().baseService(), kChange.path,
                                                  kChange.interface, u"Wait"_s);
    m_bus.call(message, &witness, [&](const QDBusMessage& reply) { errors << reply.errorName(); });
    service.reset();
    m_daemon.kill();
    EXPECT_TRUE(waitFor([&] { return !errors.isEmpty() && !m_bus.isConnected(); }));
    EXPECT_EQ(errors.size(), 1);
    m_bus.call(message, &witness, [&](const QDBusMessage& reply) { errors << reply.errorName(); });
    EXPECT_TRUE(waitFor([&] { return errors.size() == 2; })) << "without a bus too";
}

} // namespace
