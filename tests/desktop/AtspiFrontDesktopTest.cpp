// SPDX-License-Identifier: MIT
// What is in front, as real programs tell assistive programs.
#include "platform/atspi/AtspiFrontDesktop.h"
#include "platform/atspi/Atspi.h"
#include "tests/Places.h"
#include "tests/desktop/RoundTrip.h"
#include "tests/desktop/Sight.h"
#include "tests/desktop/harness/Desk.h"
#include "tests/desktop/services/ServiceScript.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

class AtspiFrontDesktopTest : public testing::Test, public Sight {
protected:
    AtspiFrontDesktopTest()
        : Sight(QStringLiteral("/nowhere")) {
        lookThrough(m_front);
        m_front.begin();
    }

    std::unique_ptr<Program> start(const QString& executable) {
        QProcessEnvironment environment = m_desk.environment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_daemon.address());
        environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
        return std::make_unique<Program>(executable, QStringList(), environment, Program::Output::Read);
    }

    // A program of Qt with one window.
    std::unique_ptr<Program> startWith(const QString& title) {
        auto client = start(QStringLiteral(TICKLOG_BINARY_DIR "/qt-client"));
        tell(*client, QStringLiteral("open ") + title);
        return client;
    }

    testing::AssertionResult seesMousepad() {
        // By its bare name or, in newer releases, by its whole id.
        if (waitFor([this] { return seen().endsWith(QStringLiteral("mousepad: Untitled 1 - Mousepad")); }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << qPrintable(seen());
    }

    static void tell(Program& client, const QString& command) {
        client.write(command.toUtf8() + '\n');
        EXPECT_EQ(client.readLine(), QByteArray("ok"));
    }

    // Asks on the launcher's accessibility bus, and answers the first value.
    QVariant askBus(Bus& bus, const QString& service, const QString& path, const QString& member,
                    const QVariantList& arguments) {
        auto question = QDBusMessage::createMethodCall(service, path, service, member);
        question.setArguments(arguments);
        std::optional<QVariant> answer;
        QObject context;
        bus.call(question, &context, [&](const QDBusMessage& reply) { answer = reply.arguments().value(0); });
        EXPECT_TRUE(waitFor([&] { return answer.has_value(); }));
        return answer.value_or(QVariant());
    }

    QString accessibilityBus() {
        return askBus(m_bus, kAtspiLauncher, kAtspiLauncherPath, QStringLiteral("GetAddress"), {}).toString();
    }

    pid_t registrysProcess() {
        Bus bus(Bus::atAddress(accessibilityBus()), runLoop, log);
        return pid_t(askBus(bus, kBusServiceName, kBusServicePath,
                            QStringLiteral("GetConnectionUnixProcessID"), {kAtspiRegistry})
                         .toUInt());
    }

    Desk m_desk;
    SessionBus m_daemon{m_desk.environment(), m_desk.home().runtimeFolder()};
    Bus m_bus{Bus::atAddress(m_daemon.address()), runLoop, log};
    AtspiFrontDesktop m_front{m_bus, runLoop, log, entries, std::chrono::seconds(1)};
};

TEST_F(AtspiFrontDesktopTest, programsThatTell_areInFrontWithTheirWindows) {
    EXPECT_SEEN(*this, "Desktop: none");
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    EXPECT_EQ(frontProcess(), writer->processIdentifier());
    EXPECT_EQ(m_front.activeApplication()->path, QStringLiteral(TICKLOG_BINARY_DIR "/qt-client"));
    const auto editor = start(QStringLiteral("mousepad"));
    EXPECT_TRUE(seesMousepad());
    tell(*writer, QStringLiteral("activate 0"));
    EXPECT_SEEN(*this, "qt-client: Letter");
}

TEST_F(AtspiFrontDesktopTest, betweenTwoPrograms_theDesktopIsNotToldOf) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    const auto editor = start(QStringLiteral("mousepad"));
    EXPECT_TRUE(seesMousepad());
    switches.clear();
    tell(*writer, QStringLiteral("activate 0"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    EXPECT_EQ(switches, QStringList(QStringLiteral("qt-client")));
}

TEST_F(AtspiFrontDesktopTest, aTitleOfWhichNobodyTells_isNoticed) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    ASSERT_TRUE(frontWindow());
    const auto number = frontWindow()->number;
    tell(*writer, QStringLiteral("title 0 Answer"));
    EXPECT_SEEN(*this, "qt-client: Answer");
    ASSERT_TRUE(frontWindow());
    EXPECT_EQ(frontWindow()->number, number) << "the window is the same";
    tell(*writer, QStringLiteral("open Envelope"));
    EXPECT_SEEN(*this, "qt-client: Envelope");
    EXPECT_NE(frontWindow()->number, number);
}

TEST_F(AtspiFrontDesktopTest, aProgramThatTellsNothing_isNotTakenForTheLastThatDid) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    const auto terminal = start(QStringLiteral("xterm"));
    EXPECT_SEEN(*this, "Desktop: none");
    terminal->kill();
    EXPECT_SEEN(*this, "qt-client: Letter");
}

TEST_F(AtspiFrontDesktopTest, aProgramThatDies_isNotInFrontAnyMore) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    writer->kill();
    EXPECT_SEEN(*this, "Desktop: none");
}

TEST_F(AtspiFrontDesktopTest, aProgramThatHangsInFront_isCreditedAgainWhenItAnswers) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    writer->pause();
    EXPECT_SEEN(*this, "Desktop: none");
    writer->resume();
    EXPECT_SEEN(*this, "qt-client: Letter");
}

TEST_F(AtspiFrontDesktopTest, aProgramThatHangsBehindOthers_isNotInFrontForLong) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    // The paused program still says that its window is active.
    writer->pause();
    const auto editor = start(QStringLiteral("mousepad"));
    EXPECT_TRUE(seesMousepad());
    const auto terminal = start(QStringLiteral("xterm"));
    EXPECT_SEEN(*this, "Desktop: none");
    terminal->kill();
    EXPECT_TRUE(seesMousepad());
    writer->resume();
}

TEST_F(AtspiFrontDesktopTest, aProgramThatHangsBehindOthers_isNotBelievedForAMoment) {
    ServiceScript odd(m_desk.home(), QStringLiteral("odd_program.py"),
                      {accessibilityBus(), QStringLiteral("well")});
    EXPECT_SEEN(*this, "Odd: Window");
    // Just after it was asked for its title, so that the next such question does not reveal it.
    const int before = odd.ask("asked").toInt();
    EXPECT_TRUE(waitFor([&] { return odd.ask("asked").toInt() > before; }));
    odd.ask("hang");
    const int atTheHang = odd.ask("asked").toInt();
    const auto editor = start(QStringLiteral("mousepad"));
    EXPECT_TRUE(seesMousepad());
    // Twice to be read, and when it has been found out that it does not answer, to be told when it does.
    EXPECT_TRUE(waitFor([&] { return odd.ask("asked").toInt() >= atTheHang + 3; }));
    switches.clear();
    const auto terminal = start(QStringLiteral("xterm"));
    EXPECT_SEEN(*this, "Desktop: none");
    EXPECT_EQ(switches, QStringList(kDesktopName));
}

TEST_F(AtspiFrontDesktopTest, aProgramThatHangsAtItsStart_isSeenWhenItAnswers) {
    ServiceScript odd(m_desk.home(), QStringLiteral("odd_program.py"),
                      {accessibilityBus(), QStringLiteral("late")});
    EXPECT_TRUE(waitFor([&] { return odd.ask("asked").toInt() > 0; }));
    // Twice at first, once when it has not answered, and twice more some seconds later.
    EXPECT_TRUE(waitFor([&] { return odd.ask("asked").toInt() >= 5; }));
    EXPECT_EQ(seen(), QStringLiteral("Desktop: none"));
    odd.ask("answer");
    EXPECT_SEEN(*this, "Odd: Window");
}

TEST_F(AtspiFrontDesktopTest, theShellsOwnPrograms_areNobodyAtWork) {
    for (const char* name : {"gnome-shell", "mutter-x11-frames"}) {
        const auto writer = startWith(QStringLiteral("Letter"));
        EXPECT_SEEN(*this, "qt-client: Letter");
        ServiceScript shells(m_desk.home(), QStringLiteral("odd_program.py"),
                             {accessibilityBus(), QStringLiteral("well"), QLatin1String(name)});
        EXPECT_TRUE(waitFor([&] { return shells.ask("asked").toInt() > 1; }));
        // Four questions make a reading, and the second begins when the first has been taken in.
        const int before = shells.ask("asked").toInt();
        for (const int asked : {4, 8}) {
            shells.ask("activate");
            EXPECT_TRUE(waitFor([&] { return shells.ask("asked").toInt() >= before + asked; }));
        }
        EXPECT_EQ(seen(), QStringLiteral("qt-client: Letter")) << "which says that it is active, too";
        writer->kill();
        EXPECT_SEEN(*this, "Desktop: none");
    }
}

TEST_F(AtspiFrontDesktopTest, aProgramThatTellsAllTheTime_isReadNevertheless) {
    ServiceScript odd(m_desk.home(), QStringLiteral("odd_program.py"),
                      {accessibilityBus(), QStringLiteral("well")});
    EXPECT_SEEN(*this, "Odd: Window");
    const int before = odd.ask("asked").toInt();
    EXPECT_TRUE(waitFor([&] {
        odd.ask("activate");
        return odd.ask("asked").toInt() > before + 50;
    }));
}

TEST_F(AtspiFrontDesktopTest, aProgramWithEndlessWindows_isAskedAboutTheFirst) {
    ServiceScript odd(m_desk.home(), QStringLiteral("odd_program.py"),
                      {accessibilityBus(), QStringLiteral("many")});
    EXPECT_SEEN(*this, "Odd: Window");
    EXPECT_LT(odd.ask("asked").toInt(), 2 * 1000) << "two questions for each";
}

class OddProgram : public AtspiFrontDesktopTest, public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(AtspiFrontDesktopTest, OddProgram, testing::Values("children", "states"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(OddProgram, anAnswerOfAnotherKind_isNotReadAsOne) {
    ServiceScript odd(m_desk.home(), QStringLiteral("odd_program.py"),
                      {accessibilityBus(), QString::fromLatin1(GetParam())});
    EXPECT_TRUE(waitFor([&] { return odd.ask("asked").toInt() > 1; }));
    odd.ask("activate");
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
}

TEST_F(AtspiFrontDesktopTest, aRegistryThatDies_isStartedAgainAndNobodyIsCreditedMeanwhile) {
    const auto editor = start(QStringLiteral("mousepad"));
    EXPECT_TRUE(seesMousepad());
    ASSERT_EQ(::kill(registrysProcess(), SIGKILL), 0);
    EXPECT_SEEN(*this, "none: none");
    EXPECT_FALSE(m_front.isTelling());
    EXPECT_TRUE(waitFor([this] { return m_front.isTelling(); }));
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
}

TEST_F(AtspiFrontDesktopTest, whatWasEnded_knowsNothingUntilItIsBegunAnew) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    ASSERT_TRUE(frontWindow());
    const auto number = frontWindow()->number;
    m_front.end();
    EXPECT_EQ(seen(), QStringLiteral("none: none"));
    EXPECT_FALSE(m_front.isTelling());
    m_front.begin();
    EXPECT_SEEN(*this, "qt-client: Letter");
    ASSERT_TRUE(frontWindow());
    EXPECT_EQ(frontWindow()->number, number);
}

TEST_F(AtspiFrontDesktopTest, aSessionBusThatIsLost_takesTheOtherBusWithIt) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    m_daemon.kill();
    EXPECT_SEEN(*this, "none: none");
}

TEST(AtspiFrontDesktop, aSessionWithoutABus_tellsNothing) {
    Sight sight(QStringLiteral("/nowhere"));
    Bus bus(Bus::atAddress(QStringLiteral("unix:path=/nowhere")), sight.runLoop, sight.log);
    AtspiFrontDesktop front(bus, sight.runLoop, sight.log, sight.entries);
    sight.lookThrough(front);
    front.begin();
    EXPECT_TRUE(roundTrip(bus)) << "that there is no bus is told by now";
    EXPECT_FALSE(front.isTelling());
    EXPECT_EQ(sight.seen(), QStringLiteral("none: none"));
}

} // namespace
