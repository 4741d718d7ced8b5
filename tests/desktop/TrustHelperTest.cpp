// SPDX-License-Identifier: MIT
// The privileged helper on a system bus of its own, with a polkit that answers as told.
#include "platform/bus/BusService.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/linux/TrustRecord.h"
#include "tests/Places.h"
#include "tests/desktop/harness/SystemBus.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/RecordingLog.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kIdleMs = 60'000;
constexpr int kImpatientMs = 300;

class TrustHelperTest : public testing::Test {
protected:
    explicit TrustHelperTest(int idleMs = kIdleMs)
        : m_systemBus(m_home, idleMs)
        , m_polkit(m_home, u"polkit.py"_s, {m_systemBus.address()}) {
        m_home.write(u"bin/program"_s, "#!/bin/sh\n");
        permit(program(), 0755);
        permit(m_home.path() + u"/bin"_s, 0755);
    }

    QString program() const { return m_home.path() + u"/bin/program"_s; }

    static void permit(const QString& path, mode_t mode) {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
    }

    // A caller's connection of its own.
    std::unique_ptr<Bus> connect() {
        return std::make_unique<Bus>(Bus::atAddress(m_systemBus.address()), m_runLoop, m_log);
    }

    // Does not wait: the answer goes to `answers`.
    void send(Bus& bus, const char* member, const QVariantList& arguments, bool isInteractive = true,
              const QString& interface = u"org.ticklog.TKAXTrusted"_s) {
        auto message = QDBusMessage::createMethodCall(
            u"org.ticklog.TKAXTrusted"_s, u"/org/ticklog/TKAXTrusted"_s, interface, QLatin1String(member));
        message.setArguments(arguments);
        message.setInteractiveAuthorizationAllowed(isInteractive);
        bus.call(message, &m_receiver, [this](const QDBusMessage& answer) {
            answers << (answer.type() == QDBusMessage::ReplyMessage
                            ? u"done"_s
                            : answer.errorName().section(u'.', -1) + u": "_s + answer.errorMessage());
        });
    }

    QString ask(const char* member, const QString& path) {
        const auto bus = connect();
        const auto before = answers.size();
        send(*bus, member, {path});
        EXPECT_TRUE(waitFor([&] { return answers.size() > before; }));
        return answers.value(before);
    }

    QString authorize(const QString& path) { return ask("Authorize", path); }

    QStringList trusted() const { return TrustRecord(m_systemBus.recordFolder()).programs(); }

    bool waitForQuestion() {
        return waitFor([this] { return m_polkit.ask("asked") != u"nothing"_s; });
    }

    bool isServed() {
        const auto bus = connect();
        std::optional<bool> answer;
        auto message = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                                      u"NameHasOwner"_s);
        message << u"org.ticklog.TKAXTrusted"_s;
        bus->call(message, &m_receiver,
                  [&](const QDBusMessage& reply) { answer = reply.arguments().value(0).toBool(); });
        EXPECT_TRUE(waitFor([&] { return answer.has_value(); }));
        return answer.value_or(false);
    }

    TemporaryHome m_home;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    QObject m_receiver;
    SystemBus m_systemBus;
    ServiceScript m_polkit;
    QStringList answers;
};

TEST_F(TrustHelperTest, anAuthorizedCaller_hasTheProgramTrusted) {
    m_polkit.ask("allow");
    EXPECT_EQ(authorize(program()), u"done"_s);
    EXPECT_EQ(trusted(), QStringList{program()});
    QFile record(m_systemBus.recordFolder() + u"/trusted-programs"_s);
    ASSERT_TRUE(record.open(QFile::ReadOnly));
    EXPECT_EQ(record.readAll(), program().toUtf8() + '\n');
    EXPECT_TRUE(record.permissions() & QFile::ReadOther);
    EXPECT_FALSE(record.permissions() & (QFile::WriteGroup | QFile::WriteOther));
}

TEST_F(TrustHelperTest, polkit_isToldWhoAsksForWhat) {
    m_polkit.ask("allow");
    const auto bus = connect();
    send(*bus, "Authorize", {program()});
    ASSERT_TRUE(waitFor([this] { return answers.size() == 1; }));
    const QString caller = bus->connection().baseService();
    EXPECT_EQ(m_polkit.ask("asked"),
              u"system-bus-name %1 org.ticklog.TKAXTrusted.authorize program=%2 1"_s.arg(caller, program()));
    send(*bus, "Revoke", {program()}, false);
    ASSERT_TRUE(waitFor([this] { return answers.size() == 2; }));
    EXPECT_EQ(m_polkit.ask("asked"),
              u"system-bus-name %1 org.ticklog.TKAXTrusted.revoke program=%2 0"_s.arg(caller, program()));
}

TEST_F(TrustHelperTest, anUnauthorizedCaller_isRefused) {
    m_polkit.ask("deny");
    EXPECT_EQ(authorize(program()), u"NotAuthorized: This was not authorized."_s);
    EXPECT_EQ(trusted(), QStringList());
}

TEST_F(TrustHelperTest, withoutPolkit_nobodyIsAuthorized) {
    m_polkit.kill();
    EXPECT_EQ(authorize(program()), u"NotAuthorized: This was not authorized."_s);
    EXPECT_EQ(trusted(), QStringList());
}

TEST_F(TrustHelperTest, whatIsNoPathOfAProgram_isRefusedBeforeAnybodyIsAsked) {
    m_polkit.ask("allow");
    EXPECT_EQ(authorize(u"bin/program"_s), u"BadProgram: bin/program: not a full path"_s);
    EXPECT_EQ(ask("Revoke", u"/bin/<b>true</b>"_s),
              u"BadProgram: the path holds characters that a dialogue may take for markup"_s);
    EXPECT_EQ(m_polkit.ask("asked"), u"nothing"_s);
    EXPECT_EQ(trusted(), QStringList());
}

TEST_F(TrustHelperTest, whatIsNoProgramToTrust_isRefusedWhenSomebodyHasAgreed) {
    m_polkit.ask("allow");
    const QString missing = m_home.path() + u"/missing"_s;
    EXPECT_EQ(authorize(missing), u"BadProgram: %1: No such file or directory"_s.arg(missing));
    EXPECT_EQ(trusted(), QStringList());
}

TEST_F(TrustHelperTest, whoIsNotAuthorized_learnsNothingOfWhatLiesAtAPath) {
    m_polkit.ask("deny");
    m_home.write(u"bin/text"_s, "no program");
    const QString folder = m_home.path() + u"/bin"_s;
    for (const QString& path :
         QStringList{program(), folder, folder + u"/text"_s, folder + u"/missing"_s, u"/missing/program"_s})
        EXPECT_EQ(authorize(path), u"NotAuthorized: This was not authorized."_s) << qPrintable(path);
}

TEST_F(TrustHelperTest, aRecordThatCannotBeRead_isNotWrittenOver) {
    m_polkit.ask("allow");
    EXPECT_EQ(authorize(program()), u"done"_s);
    QFile record(m_systemBus.recordFolder() + u"/trusted-programs"_s);
    ASSERT_TRUE(record.resize(8 << 20));
    EXPECT_TRUE(authorize(u"/usr/bin/env"_s).startsWith(u"Failed: "_s));
    EXPECT_TRUE(ask("Revoke", program()).startsWith(u"Failed: "_s));
    EXPECT_EQ(record.size(), 8 << 20);
}

TEST_F(TrustHelperTest, whatAnAdministratorHasWritten_staysAsItIs) {
    m_polkit.ask("allow");
    EXPECT_EQ(authorize(program()), u"done"_s);
    QFile record(m_systemBus.recordFolder() + u"/trusted-programs"_s);
    ASSERT_TRUE(record.open(QFile::ReadWrite));
    const QByteArray kept = "# by the administrator\n/opt/caf\xe9/x\n" + program().toUtf8() + '\n';
    record.resize(0);
    record.write(kept);
    record.close();
    EXPECT_EQ(authorize(u"/usr/bin/env"_s), u"done"_s);
    EXPECT_EQ(ask("Revoke", u"/usr/bin/env"_s), u"done"_s);
    ASSERT_TRUE(record.open(QFile::ReadOnly));
    EXPECT_EQ(record.readAll(), kept);
}

TEST_F(TrustHelperTest, aTextOfMillions_isRefusedWithoutBeingSentBack) {
    m_polkit.ask("deny");
    EXPECT_EQ(authorize(QString(8 << 20, u'x')), u"BadProgram: the path is too long"_s);
}

TEST_F(TrustHelperTest, aProgramThatIsReplacedWhileAPersonIsAsked_isLookedAtAgain) {
    m_polkit.ask("hold");
    const auto bus = connect();
    send(*bus, "Authorize", {program()});
    ASSERT_TRUE(waitForQuestion());
    ASSERT_TRUE(QFile::remove(program()));
    ASSERT_TRUE(QFile::link(u"/bin/true"_s, program()));
    m_polkit.ask("decide yes");
    ASSERT_TRUE(waitFor([this] { return answers.size() == 1; }));
    EXPECT_EQ(answers.first(), u"BadProgram: %1: a link"_s.arg(program()));
    EXPECT_EQ(trusted(), QStringList());
}

TEST_F(TrustHelperTest, aRevokedProgram_isStruckOutAlone) {
    m_polkit.ask("allow");
    EXPECT_EQ(authorize(program()), u"done"_s);
    EXPECT_EQ(authorize(u"/usr/bin/env"_s), u"done"_s);
    ASSERT_TRUE(QFile::remove(program()));
    EXPECT_EQ(ask("Revoke", program()), u"done"_s) << "a program that is gone too";
    EXPECT_EQ(trusted(), QStringList{u"/usr/bin/env"_s});
    EXPECT_EQ(ask("Revoke", u"/usr/bin/env"_s), u"done"_s);
    EXPECT_EQ(QDir(m_systemBus.recordFolder()).entryList(QDir::Files | QDir::Hidden), QStringList());
    EXPECT_EQ(ask("Revoke", u"/usr/bin/env"_s), u"done"_s) << "what is not there";
    m_polkit.ask("deny");
    EXPECT_EQ(ask("Revoke", u"/usr/bin/env"_s), u"NotAuthorized: This was not authorized."_s);
}

TEST_F(TrustHelperTest, aCallerThatLeavesInTheMiddle_isForgottenWithItsRequest) {
    m_polkit.ask("hold");
    auto bus = connect();
    send(*bus, "Authorize", {program()});
    ASSERT_TRUE(waitForQuestion());
    bus.reset();
    EXPECT_TRUE(waitFor([this] { return m_polkit.ask("cancelled") == u"1"_s; }));
    m_polkit.ask("decide yes");
    m_polkit.ask("allow");
    EXPECT_EQ(authorize(u"/usr/bin/env"_s), u"done"_s) << "the helper goes on";
    EXPECT_EQ(trusted(), QStringList{u"/usr/bin/env"_s});
}

TEST_F(TrustHelperTest, aCallerWithARequestOpen_getsNoSecond) {
    m_polkit.ask("hold");
    const auto bus = connect();
    send(*bus, "Authorize", {program()});
    send(*bus, "Authorize", {program()});
    ASSERT_TRUE(waitFor([this] { return answers.size() == 1; }));
    EXPECT_EQ(answers.first(), u"Busy: One request at a time."_s);
    ASSERT_TRUE(waitForQuestion());
    m_polkit.ask("decide yes");
    ASSERT_TRUE(waitFor([this] { return answers.size() == 2; }));
    EXPECT_EQ(answers.last(), u"done"_s);
}

TEST_F(TrustHelperTest, aUserWithTwoRequestsOpen_leavesRoomForOthers) {
    m_polkit.ask("hold");
    const auto one = connect();
    const auto other = connect();
    send(*one, "Authorize", {program()});
    ASSERT_TRUE(waitFor([this] { return m_polkit.ask("asked").contains(u".authorize "_s); }));
    send(*other, "Revoke", {program()});
    ASSERT_TRUE(waitFor([this] { return m_polkit.ask("asked").contains(u".revoke "_s); }));
    EXPECT_EQ(authorize(program()), u"Busy: Answer the other requests first."_s);
    m_polkit.ask("decide yes");
    EXPECT_TRUE(waitFor([this] { return answers.count(u"done"_s) == 2; }));
}

TEST_F(TrustHelperTest, aFlood_isHeldBackUntilLater) {
    m_polkit.ask("deny");
    QStringList seen;
    for (int request = 0; request < 20; ++request)
        seen << authorize(program()).section(u':', 0, 0);
    EXPECT_EQ(seen.count(u"NotAuthorized"_s), 6);
    EXPECT_EQ(seen.count(u"Busy"_s), 14);
}

TEST_F(TrustHelperTest, aFloodOfOpenRequests_isBounded) {
    m_polkit.ask("hold");
    std::vector<std::unique_ptr<Bus>> callers;
    for (int caller = 0; caller < 30; ++caller) {
        callers.push_back(connect());
        send(*callers.back(), "Authorize", {program()});
    }
    EXPECT_TRUE(waitFor([this] { return answers.size() == 28; }));
    for (const QString& answer : answers)
        EXPECT_TRUE(answer.startsWith(u"Busy"_s)) << qPrintable(answer);
    callers.clear();
    m_polkit.ask("deny");
    EXPECT_TRUE(authorize(program()).startsWith(u"Busy"_s)) << "the user has asked too often";
    EXPECT_EQ(trusted(), QStringList());
}

TEST_F(TrustHelperTest, otherMessages_doNotReachIt) {
    const auto bus = connect();
    send(*bus, "Introspect", {}, true, u"org.freedesktop.DBus.Introspectable"_s);
    send(*bus, "GetAll", {u"org.ticklog.TKAXTrusted"_s}, true, kPropertiesInterface);
    send(*bus, "deleteLater", {});
    send(*bus, "Authorize", {42});
    ASSERT_TRUE(waitFor([this] { return answers.size() == 4; }));
    for (const QString& answer : answers)
        EXPECT_TRUE(answer.startsWith(u"AccessDenied"_s) || answer.startsWith(u"UnknownMethod"_s))
            << qPrintable(answer);
}

struct ImpatientHelperTest : TrustHelperTest {
    ImpatientHelperTest()
        : TrustHelperTest(kImpatientMs) {}
};

TEST_F(ImpatientHelperTest, aHelperThatNobodyCalls_endsAndComesAgain) {
    m_polkit.ask("allow");
    EXPECT_EQ(authorize(program()), u"done"_s);
    EXPECT_TRUE(waitFor([this] { return !isServed(); }));
    EXPECT_EQ(ask("Revoke", program()), u"done"_s);
    EXPECT_EQ(trusted(), QStringList());
}

TEST_F(ImpatientHelperTest, aHelperWithARequestOpen_stays) {
    m_polkit.ask("hold");
    const auto bus = connect();
    send(*bus, "Authorize", {program()});
    ASSERT_TRUE(waitForQuestion());
    // Another one, started later, of which nobody asks anything, has lost its patience meanwhile.
    const TemporaryHome home;
    const SystemBus machine(home, kImpatientMs);
    Bus otherBus(Bus::atAddress(machine.address()), m_runLoop, m_log);
    BusService other(otherBus, u"org.ticklog.TKAXTrusted"_s);
    bool hasCome = false;
    bool hasGone = false;
    const Subscription presence = other.observe([&] {
        hasGone = hasCome && !other.isServed();
        hasCome |= other.isServed();
    });
    auto start = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                                u"StartServiceByName"_s);
    start << u"org.ticklog.TKAXTrusted"_s << 0U;
    otherBus.call(start, &m_receiver, {});
    EXPECT_TRUE(waitFor([&] { return hasGone; }));
    EXPECT_TRUE(isServed());
    m_polkit.ask("decide yes");
    EXPECT_TRUE(waitFor([this] { return answers == QStringList{u"done"_s}; }));
}

TEST(TrustPolicy, everyRequest_isAskedAbout) {
    // With "auth_admin_keep", a caller could name one program in the dialogue and then get another one
    // trusted.
    QFile policy(QStringLiteral(TICKLOG_SOURCE_DIR "/resources/system/org.ticklog.TKAXTrusted.policy"));
    ASSERT_TRUE(policy.open(QFile::ReadOnly));
    const QByteArray text = policy.readAll();
    EXPECT_EQ(text.count("<allow_active>auth_admin</allow_active>"), 2);
    EXPECT_EQ(text.count("<allow_"), 6);
    EXPECT_EQ(text.count(">no</allow_"), 4);
}

} // namespace
