// SPDX-License-Identifier: MIT
// What launchers ask of Ticklog over a session bus, and how it is answered.
#include "platform/bus/BusName.h"
#include "tests/desktop/ActivationCaller.h"
#include "tests/desktop/harness/SessionBus.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/fakes/ManualRunLoop.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ActivationServiceTest : public testing::Test {
protected:
    void SetUp() override {
        // An earlier program may have been started with a token.
        qunsetenv("XDG_ACTIVATION_TOKEN");
        ASSERT_TRUE(waitFor([this] { return m_name->isOwned(); }));
    }

    void listen() {
        m_service.listen([this](const QStringList& files, const Admission::Ticket&) {
            heard << u'[' + files.join(u' ') + u']' + qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
        });
    }

    TemporaryHome m_home;
    SessionBus m_daemon{m_home.environment(), m_home.runtimeFolder()};
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    Bus m_bus{Bus::atAddress(m_daemon.address()), m_runLoop, m_log};
    Admission m_admission;
    ActivationService m_service{m_bus, m_admission, m_runLoop, m_log};
    std::unique_ptr<BusName> m_name = std::make_unique<BusName>(m_bus, kTicklogName, m_log);
    ActivationCaller m_caller{m_daemon.address()};
    // "[/a /b]token" for each request.
    QStringList heard;
};

TEST_F(ActivationServiceTest, activate_comesWithoutFiles) {
    listen();
    EXPECT_EQ(m_caller.activate(), u"done");
    EXPECT_TRUE(waitFor([&] { return heard == QStringList{u"[]"_s}; }));
}

TEST_F(ActivationServiceTest, requestsBeforeAnybodyListens_areKept) {
    EXPECT_EQ(m_caller.activate(), u"done");
    EXPECT_EQ(m_caller.open({u"file:///a"_s}), u"done");
    listen();
    EXPECT_TRUE(waitFor([&] {
        return heard == QStringList{u"[]"_s, u"[/a]"_s};
    })) << heard.join(u',').toStdString();
}

TEST_F(ActivationServiceTest, endlessRequestsBeforeAnybodyListens_areRefusedInTheEnd) {
    for (int i = 0; i < Admission::kMost; ++i)
        EXPECT_EQ(m_caller.activate(), u"done");
    EXPECT_EQ(m_caller.activate(), u"LimitsExceeded");
}

TEST_F(ActivationServiceTest, moreRequestsThanCanWaitForTheUser_areRefusedUntilOthersHaveEnded) {
    HandClock clock;
    ManualRunLoop loop{clock};
    Bus bus{Bus::atAddress(m_daemon.address()), m_runLoop, m_log};
    ActivationService service{bus, m_admission, loop, m_log};
    m_name.reset();
    const BusName name{bus, kTicklogName, m_log};
    ASSERT_TRUE(waitFor([&] { return name.isOwned(); }));
    std::vector<Admission::Ticket> asking;
    service.listen([&](const QStringList&, const Admission::Ticket& ticket) { asking.push_back(ticket); });
    for (int i = 0; i < Admission::kMost; ++i)
        EXPECT_EQ(m_caller.activate(), u"done");
    EXPECT_EQ(m_caller.activate(), u"LimitsExceeded");
    loop.runPending();
    EXPECT_EQ(int(asking.size()), Admission::kMost);
    EXPECT_EQ(m_caller.activate(), u"LimitsExceeded") << "the questions are still open";
    asking.clear();
    EXPECT_EQ(m_caller.activate(), u"done");
}

TEST_F(ActivationServiceTest, filesOfThisMachine_areOpenedByTheirPaths) {
    listen();
    EXPECT_EQ(m_caller.open({u"file:///home/me/My%20times%20%C3%A4.tkd"_s, u"file://localhost/b.tkd"_s}),
              u"done");
    EXPECT_TRUE(waitFor([&] { return heard == QStringList{u"[/home/me/My times ä.tkd /b.tkd]"_s}; }))
        << heard.join(u',').toStdString();
}

TEST_F(ActivationServiceTest, whatIsNoFileOfThisMachine_isLeftOutAndLogged) {
    listen();
    EXPECT_EQ(m_caller.open({u"sftp://host/a.tkd"_s, u"file:///b.tkd"_s}), u"done");
    EXPECT_TRUE(waitFor([&] { return heard == QStringList{u"[/b.tkd]"_s}; }))
        << heard.join(u',').toStdString();
    EXPECT_TRUE(m_log.mentions(u"no file of this machine"_s));
}

TEST_F(ActivationServiceTest, nothingThatCanBeOpened_isAnError) {
    listen();
    for (const QString& uri :
         QStringList{u"https://ticklog.org/a.tkd"_s, u"file://elsewhere/a.tkd"_s, u"/a.tkd"_s, u""_s,
                     u"file:///a%00b"_s, u"file:a.tkd"_s, u"file:///"_s + QString(100'000, u'a')})
        EXPECT_EQ(m_caller.open({uri}), u"InvalidArgs") << uri.left(40).toStdString();
    EXPECT_EQ(m_caller.open(QStringList(100'000, u"file:///a.tkd"_s)), u"LimitsExceeded");
    EXPECT_EQ(m_caller.activate(), u"done");
    EXPECT_TRUE(waitFor([&] { return !heard.isEmpty(); }));
    EXPECT_EQ(heard, QStringList{u"[]"_s});
}

TEST_F(ActivationServiceTest, openingNothing_isToComeToTheFront) {
    listen();
    EXPECT_EQ(m_caller.open({}), u"done");
    EXPECT_TRUE(waitFor([&] { return heard == QStringList{u"[]"_s}; }));
}

TEST_F(ActivationServiceTest, actionsAndWrongMessages_areErrorsAndChangeNothing) {
    listen();
    EXPECT_EQ(m_caller.ask(u"ActivateAction"_s, {u"start-timer"_s, QVariantList(), QVariantMap()}),
              u"InvalidArgs");
    EXPECT_EQ(m_caller.ask(u"ActivateAction"_s, {u""_s, QVariantList{1, u"x"_s}, QVariantMap()}),
              u"InvalidArgs");
    EXPECT_EQ(m_caller.ask(u"Activate"_s, {}), u"UnknownMethod");
    EXPECT_EQ(m_caller.ask(u"Activate"_s, {u"x"_s}), u"UnknownMethod");
    EXPECT_EQ(m_caller.ask(u"Open"_s, {u"file:///a.tkd"_s, QVariantMap()}), u"UnknownMethod");
    EXPECT_EQ(m_caller.ask(u"ActivateAction"_s, {u"start-timer"_s, QVariantMap()}), u"UnknownMethod");
    EXPECT_EQ(m_caller.ask(u"deleteLater"_s, {}), u"UnknownMethod");
    EXPECT_EQ(m_caller.activate(), u"done");
    EXPECT_TRUE(waitFor([&] { return !heard.isEmpty(); }));
    EXPECT_EQ(heard, QStringList{u"[]"_s});
}

TEST_F(ActivationServiceTest, theTokenToComeToTheFront_isThereForThatRequestAlone) {
    listen();
    EXPECT_EQ(m_caller.activate({{u"activation-token"_s, u"token-7"_s}}), u"done");
    EXPECT_EQ(m_caller.activate({{u"activation-token"_s, 7}}), u"done");
    EXPECT_EQ(m_caller.activate({{u"activation-token"_s, QString(1000, u'x')}}), u"done");
    EXPECT_TRUE(waitFor([&] {
        return heard == QStringList{u"[]token-7"_s, u"[]"_s, u"[]"_s};
    })) << heard.join(u',').toStdString();
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST_F(ActivationServiceTest, aStrangerWithTheName_isLoggedAndWaitedFor) {
    RecordingLog log;
    BusName second(m_caller.bus(), kTicklogName, log);
    EXPECT_TRUE(
        waitFor([&] { return log.mentions(u"Another program goes by the name org.ticklog.Ticklog"_s); }));
    int told = 0;
    const Subscription subscription = second.observe([&] { ++told; });
    EXPECT_FALSE(second.isOwned());
    m_name.reset();
    EXPECT_TRUE(waitFor([&] { return second.isOwned(); }));
    EXPECT_EQ(told, 1);
}

} // namespace
