// SPDX-License-Identifier: MIT
#include "platform/atspi/AtspiAccessibility.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "tests/Places.h"
#include "tests/desktop/RoundTrip.h"
#include "tests/desktop/harness/Desk.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/RecordingLog.h"

#include <QDBusVariant>

#include <gtest/gtest.h>

#include <csignal>

namespace {

class AtspiAccessibilityTest : public testing::Test {
protected:
    AtspiAccessibilityTest() {
        callLauncher(QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"), {});
    }

    void callLauncher(const QString& interface, const QString& member, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"),
                                                      QStringLiteral("/org/a11y/bus"), interface, member);
        message.setArguments(arguments);
        bool isAnswered = false;
        m_bus.call(message, &m_context, [&](const QDBusMessage&) { isAnswered = true; });
        EXPECT_TRUE(waitFor([&] { return isAnswered; }));
    }

    QString accessibilityBus() {
        QString address;
        auto question = QDBusMessage::createMethodCall(kAtspiLauncher, kAtspiLauncherPath, kAtspiLauncher,
                                                       QStringLiteral("GetAddress"));
        m_bus.call(question, &m_context,
                   [&](const QDBusMessage& reply) { address = reply.arguments().value(0).toString(); });
        EXPECT_TRUE(waitFor([&] { return !address.isEmpty(); }));
        return address;
    }

    void setEnabled(bool isEnabled) {
        callLauncher(kPropertiesInterface, QStringLiteral("Set"),
                     {QStringLiteral("org.a11y.Status"), QStringLiteral("IsEnabled"),
                      QVariant::fromValue(QDBusVariant(isEnabled))});
    }

    QProcessEnvironment environmentOfPrograms() const {
        auto environment = m_desk.environment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_daemon.address());
        return environment;
    }

    std::unique_ptr<Program> start(const QString& executable) {
        return std::make_unique<Program>(executable, QStringList(), environmentOfPrograms());
    }

    std::unique_ptr<Program> startQtClient() {
        auto environment = environmentOfPrograms();
        environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
        return std::make_unique<Program>(QStringLiteral(TICKLOG_BINARY_DIR "/qt-client"), QStringList(),
                                         environment, Program::Output::Read);
    }

    static void tell(Program& client, const char* command) {
        client.write(QByteArray(command) + '\n');
        EXPECT_EQ(client.readLine(), QByteArray("ok"));
    }

    // The title of a program's main window, empty when there is none.
    template<class Started>
    QString mainTitle(const Started& program) {
        const auto window =
            m_accessibility.mainWindow(m_accessibility.applicationElement(program.processIdentifier()));
        return window ? m_accessibility.title(*window).value_or(QString()) : QString();
    }

    template<class Started>
    bool waitForMainTitle(const Started& program, const char* title) {
        const bool isSo = waitFor([&] { return mainTitle(program) == QString::fromUtf8(title); });
        EXPECT_EQ(mainTitle(program), QString::fromUtf8(title));
        return isSo;
    }

    template<class Started>
    std::unique_ptr<AccessibilityObserver> observe(const Started& program, const QStringList& notifications) {
        const auto element = m_accessibility.applicationElement(program.processIdentifier());
        auto observer = m_accessibility.makeObserver(program.processIdentifier(), [this] { ++m_calls; });
        for (const QString& notification : notifications)
            EXPECT_TRUE(observer->addNotification(element, notification));
        observer->begin();
        return observer;
    }

    Desk m_desk;
    // Knows the display, as on every desktop: programs started by the bus announce the accessibility bus
    // there.
    SessionBus m_daemon{m_desk.environment(), m_desk.home().runtimeFolder()};
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    QObject m_context;
    Bus m_bus{Bus::atAddress(m_daemon.address()), m_runLoop, m_log};
    AtspiAccessibility m_accessibility{m_bus, m_runLoop, m_log, std::chrono::seconds(1)};
    int m_calls = 0;
};

TEST_F(AtspiAccessibilityTest, trust_isTheDesktopsSwitch) {
    EXPECT_FALSE(m_accessibility.isProcessTrusted());
    setEnabled(true);
    EXPECT_TRUE(waitFor([this] { return m_accessibility.isProcessTrusted(); }));
    setEnabled(false);
    EXPECT_TRUE(waitFor([this] { return !m_accessibility.isProcessTrusted(); }));
    m_accessibility.openPreferences();
    EXPECT_TRUE(waitFor([this] { return m_accessibility.isProcessTrusted(); }));
}

TEST_F(AtspiAccessibilityTest, trustGrantedByAnAdministrator_turnsTheSwitchOn) {
    m_accessibility.grantTrust();
    EXPECT_TRUE(m_accessibility.isProcessTrusted()) << "from the first moment";
    AtspiAccessibility another{m_bus, m_runLoop, m_log};
    EXPECT_TRUE(waitFor([&] { return another.isProcessTrusted(); })) << "the switch is the session's";
}

TEST_F(AtspiAccessibilityTest, aWarning_wakesTheServiceWithoutTurningAnythingOn) {
    SessionBus daemon(m_desk.environment(), m_desk.home().runtimeFolder());
    Bus bus(Bus::atAddress(daemon.address()), m_runLoop, m_log);
    AtspiAccessibility accessibility(bus, m_runLoop, m_log);
    EXPECT_EQ(accessibility.describe(), QStringLiteral("AT-SPI (not there now)"));
    accessibility.sendTrustWarning();
    EXPECT_TRUE(waitFor([&] { return accessibility.describe() == QStringLiteral("AT-SPI"); }));
    // It asks, too, as soon as the service is there.
    EXPECT_TRUE(roundTrip(bus, kAtspiLauncher, kAtspiLauncherPath, QStringLiteral("org.a11y.Status"),
                          QStringLiteral("IsEnabled")));
    EXPECT_FALSE(accessibility.isProcessTrusted());
}

TEST_F(AtspiAccessibilityTest, aQtProgram_isSeenWithItsMainWindow) {
    const auto client = startQtClient();
    tell(*client, "open First");
    const auto observer = observe(*client, {kAXMainWindowChanged});
    ASSERT_TRUE(waitForMainTitle(*client, "First"));
    const auto element = m_accessibility.applicationElement(client->processIdentifier());
    EXPECT_EQ(m_accessibility.title(element), QStringLiteral("qt-client"));
    tell(*client, "open Second");
    EXPECT_TRUE(waitForMainTitle(*client, "Second"));
    tell(*client, "activate 0");
    EXPECT_TRUE(waitForMainTitle(*client, "First"));
    tell(*client, "close 0");
    EXPECT_TRUE(waitForMainTitle(*client, "Second"));
}

TEST_F(AtspiAccessibilityTest, aQtProgramThatDoesNotTellOfItsTitle_isReadWhileItIsObserved) {
    const auto client = startQtClient();
    const auto observer = observe(*client, {kAXTitleChanged});
    tell(*client, "open Other");
    ASSERT_TRUE(waitForMainTitle(*client, "Other"));
    // A program that has sent an event is no longer read as a whole.
    tell(*client, "open Before");
    ASSERT_TRUE(waitForMainTitle(*client, "Before"));
    const int callsBefore = m_calls;
    tell(*client, "title 1 After");
    EXPECT_TRUE(waitForMainTitle(*client, "After"));
    EXPECT_EQ(m_calls, callsBefore + 1);
}

TEST_F(AtspiAccessibilityTest, anObserver_isToldOfWhatItAskedForWhileItIsOnTheRunLoop) {
    const auto client = startQtClient();
    tell(*client, "open First");
    ASSERT_TRUE(waitForMainTitle(*client, "First"));
    const auto observer = observe(*client, {kAXMainWindowChanged, kAXFocusedWindowChanged});
    const auto silent = observe(*client, {});
    tell(*client, "open Second");
    ASSERT_TRUE(waitForMainTitle(*client, "Second"));
    EXPECT_EQ(m_calls, 1);
    observer->end();
    tell(*client, "activate 0");
    ASSERT_TRUE(waitForMainTitle(*client, "First"));
    EXPECT_EQ(m_calls, 1);
    const auto element = m_accessibility.applicationElement(client->processIdentifier());
    EXPECT_TRUE(observer->removeNotification(element, kAXMainWindowChanged));
    EXPECT_FALSE(observer->removeNotification(element, kAXMainWindowChanged));
}

TEST_F(AtspiAccessibilityTest, aGtkProgram_tellsOfItsTitleItself) {
    const auto editor = start(QStringLiteral("mousepad"));
    const auto observer = observe(*editor, {kAXTitleChanged});
    ASSERT_TRUE(waitForMainTitle(*editor, "Untitled 1 - Mousepad"));
    // A window has a title before it has the keyboard.
    ASSERT_TRUE(
        m_desk.run(QStringLiteral("xdotool"), {QStringLiteral("windowactivate"), QStringLiteral("--sync"),
                                               QString::number(m_desk.waitForWindow(*editor))}));
    ASSERT_TRUE(m_desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("x")}));
    EXPECT_TRUE(waitForMainTitle(*editor, "*Untitled 1 - Mousepad"));
}

TEST_F(AtspiAccessibilityTest, aProgramOfQt5_isSeenToo) {
    setEnabled(true);
    const auto editor = start(QStringLiteral("featherpad"));
    EXPECT_TRUE(waitForMainTitle(*editor, "Untitled"));
}

TEST_F(AtspiAccessibilityTest, aProgramThatIsGone_hasNoWindow) {
    const auto client = startQtClient();
    tell(*client, "open First");
    ASSERT_TRUE(waitForMainTitle(*client, "First"));
    const auto window =
        m_accessibility.mainWindow(m_accessibility.applicationElement(client->processIdentifier()));
    const auto observer = observe(*client, {kAXMainWindowChanged});
    client->kill();
    EXPECT_TRUE(waitFor([&] { return !m_accessibility.title(*window); }));
    EXPECT_EQ(m_calls, 1);
}

TEST_F(AtspiAccessibilityTest, aProgramThatHangs_keepsItsLastTitleAndStopsNobody) {
    setEnabled(true);
    ServiceScript odd(m_desk.home(), QStringLiteral("odd_program.py"),
                      {accessibilityBus(), QStringLiteral("well")});
    ASSERT_TRUE(waitForMainTitle(odd, "Window"));
    const auto observer = observe(odd, {kAXTitleChanged});
    odd.ask("hang");
    const int atTheHang = odd.ask("asked").toInt();
    const auto other = startQtClient();
    tell(*other, "open Other");
    EXPECT_TRUE(waitForMainTitle(*other, "Other"));
    // Twice to be read, and when it has been found out that it does not answer, to be told when it does.
    EXPECT_TRUE(waitFor([&] { return odd.ask("asked").toInt() >= atTheHang + 3; }));
    EXPECT_EQ(mainTitle(odd), QStringLiteral("Window"));
    EXPECT_EQ(m_calls, 0);
}

TEST_F(AtspiAccessibilityTest, aSessionBusThatIsLost_leavesNothingToTrust) {
    setEnabled(true);
    ASSERT_TRUE(waitFor([this] { return m_accessibility.isProcessTrusted(); }));
    m_daemon.kill();
    EXPECT_TRUE(waitFor([this] { return !m_accessibility.isProcessTrusted(); }));
    EXPECT_EQ(m_accessibility.makeObserver(1, [] {}), nullptr);
}

} // namespace
