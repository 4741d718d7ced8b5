// SPDX-License-Identifier: MIT
// All ways in which the built program may end, and what the next start finds: with a question open, by the
// session manager, by a crash.
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/Places.h"
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/harness/XClient.h"
#include "tests/desktop/services/ServiceScript.h"

#include <QElapsedTimer>

#include <csignal>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const QString kTicklog = QStringLiteral(TICKLOG_BINARY_DIR "/ticklog");
const QString kRestartFlag = QStringLiteral("startTicklogOnNextLaunch");
const QString kWriter = QStringLiteral("Writer");

// A session manager for programs that find it in SESSION_MANAGER.
class SessionManager {
public:
    explicit SessionManager(const TemporaryHome& home)
        : m_program(QStringLiteral(TICKLOG_BINARY_DIR "/session-manager"), {}, home.environment(),
                    Program::Output::Read)
        , m_address(QString::fromUtf8(m_program.readLine().value_or(QByteArray()))) {}

    const QString& address() const { return m_address; }

    // True when every program has done its part.
    bool tell(const char* command) {
        m_program.write(QByteArray(command) + '\n');
        return m_program.readLine() == "ok";
    }

private:
    Program m_program;
    QString m_address;
};

class ProductEndingTest : public testing::Test {
protected:
    void SetUp() override {
        desk.home().write(QStringLiteral("other.tkd"), PropertyList::xml(PropertyListDictionary{
                                                           {QStringLiteral("Version"), QStringLiteral("1.5")},
                                                           {QStringLiteral("Apps"), PropertyListArray{}}}));
    }

    void startRunning() {
        product.writeSettings(Product::runningSettings());
        letter = writer.open({.title = "Letter", .className = "Writer"});
        ASSERT_TRUE(product.start());
    }

    // Keeps the writer in front, then Ticklog, which gets all keys from then on. Losing the front makes
    // Ticklog save.
    void write(std::chrono::milliseconds duration) {
        ASSERT_TRUE(product.bringToFront(writer, letter));
        worked += passTime(duration);
        QElapsedTimer leaving;
        leaving.start();
        ASSERT_TRUE(product.bringToFront(writer, product.window()));
        worked += double(leaving.nsecsElapsed()) / 1e9;
    }

    double written() const { return product.applicationTimes().value(kWriter); }

    bool isToStartAgain() const { return product.settings().value(kRestartFlag).toBool(); }

    void press(const char* keys) {
        ASSERT_TRUE(desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QString::fromLatin1(keys)}));
    }

    QString otherAccount() const { return desk.home().path() + QStringLiteral("/other.tkd"); }

    bool startAgain(const QStringList& arguments = {}) {
        const auto second = desk.start(kTicklog, arguments);
        return second->waitUntilEnded() && second->exitStatus() == 0;
    }

    // Waits until there is one more window than `before`.
    bool waitForMoreWindowsThan(std::size_t before) {
        return waitFor([&] { return desk.probe().windows().size() > before; });
    }

    // How far a timer may be from the truth, in seconds.
    double offBy() const { return 0.4 + lateness.seconds(); }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
    XClient writer{desk};
    xcb_window_t letter = 0;
    // Seconds for which the writer was in front.
    double worked = 0;
    Lateness lateness;
};

// What is open when Ticklog is told to end, and how it was opened.
constexpr const char* kQuitQuestion = "quitQuestion";
constexpr const char* kDeleteQuestion = "deleteQuestion";
constexpr const char* kImportQuestion = "importQuestion";
constexpr const char* kSavePanel = "savePanel";

class OpenQuestion : public ProductEndingTest, public testing::WithParamInterface<const char*> {
protected:
    void work() {
        startRunning();
        write(500ms);
        const std::size_t windows = desk.probe().windows().size();
        const std::string_view question = GetParam();
        if (question == kQuitQuestion)
            press("ctrl+q");
        else if (question == kSavePanel)
            press("ctrl+shift+s");
        else if (question == kImportQuestion)
            ASSERT_TRUE(startAgain({otherAccount()}));
        else
            ASSERT_TRUE(
                desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("Tab"),
                                                     QStringLiteral("ctrl+a"), QStringLiteral("Delete")}));
        ASSERT_TRUE(waitForMoreWindowsThan(windows)) << "there is no question";
    }

    // Nothing was answered, so nothing may have been done.
    void expectSavedAsItWas() const {
        EXPECT_NEAR(written(), worked, offBy());
        EXPECT_TRUE(isToStartAgain());
    }
};

INSTANTIATE_TEST_SUITE_P(Product, OpenQuestion,
                         testing::Values(kQuitQuestion, kDeleteQuestion, kImportQuestion, kSavePanel),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(OpenQuestion, aSignal_endsItWithTheAccountSavedAndNothingAnswered) {
    work();
    EXPECT_EQ(product.end(SIGTERM), 0);
    expectSavedAsItWas();
}

TEST_P(OpenQuestion, theSessionsEnd_savesAtOnceAndEndsItWithNothingAnswered) {
    SessionManager session(desk.home());
    product.setVariable(QStringLiteral("SESSION_MANAGER"), session.address());
    work();
    ASSERT_TRUE(session.tell("leave"));
    expectSavedAsItWas();
    EXPECT_TRUE(product.program().isRunning());
    ASSERT_TRUE(session.tell("die"));
    ASSERT_TRUE(product.program().waitUntilEnded());
    EXPECT_EQ(product.program().exitStatus(), 0);
    expectSavedAsItWas();
}

TEST_P(OpenQuestion, thePowerGoing_savesAtOnceAndIsNotHeldUp) {
    LogindMachine machine;
    machine.ask("start-logind");
    product.setVariable(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), machine.address());
    work();
    ASSERT_TRUE(machine.waitForInhibitors(QStringLiteral("shutdown:Ticklog:delay sleep:Ticklog:delay")));
    machine.ask("prepare-for-shutdown true");
    ASSERT_TRUE(machine.waitForInhibitors(QStringLiteral("sleep:Ticklog:delay")));
    expectSavedAsItWas();
    EXPECT_EQ(product.end(SIGTERM), 0);
    expectSavedAsItWas();
}

TEST_P(OpenQuestion, theDisplayGoing_endsItWithTheAccountSavedAndNothingAnswered) {
    work();
    desk.killDisplay();
    ASSERT_TRUE(product.program().waitUntilEnded());
    EXPECT_EQ(product.program().exitStatus(), 0);
    expectSavedAsItWas();
}

TEST_F(ProductEndingTest, filesHandedOverWhileOneIsAskedAbout_areAskedAboutToo) {
    startRunning();
    write(500ms);
    const std::size_t windows = desk.probe().windows().size();
    for (int file = 0; file < 2; ++file)
        ASSERT_TRUE(startAgain({otherAccount()}));
    ASSERT_TRUE(waitForMoreWindowsThan(windows));
    const xcb_window_t first = desk.probe().windows().back();
    // One after the other; Return cancels each.
    ASSERT_TRUE(waitFor([&] { return desk.probe().activeWindow() == first; }));
    EXPECT_EQ(desk.probe().windows().size(), windows + 1);
    ASSERT_TRUE(desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("Return")}));
    ASSERT_TRUE(waitFor(
        [&] { return !desk.probe().isInWindowList(first) && desk.probe().windows().size() == windows + 1; }));
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_NEAR(written(), worked, offBy());
}

TEST_F(ProductEndingTest, theSessionsEnd_isSavedWithTheRestartFlagAndThenEndsIt) {
    SessionManager session(desk.home());
    product.setVariable(QStringLiteral("SESSION_MANAGER"), session.address());
    startRunning();
    write(500ms);
    ASSERT_TRUE(session.tell("leave"));
    EXPECT_NEAR(written(), worked, offBy());
    EXPECT_TRUE(isToStartAgain());
    ASSERT_TRUE(session.tell("die"));
    ASSERT_TRUE(product.program().waitUntilEnded());
    EXPECT_EQ(product.program().exitStatus(), 0);
}

TEST_F(ProductEndingTest, theSessionsEndWhileTheTimerIsStopped_leavesTheRestartFlagAsItWas) {
    SessionManager session(desk.home());
    product.setVariable(QStringLiteral("SESSION_MANAGER"), session.address());
    ASSERT_TRUE(product.start());
    ASSERT_TRUE(session.tell("leave"));
    ASSERT_TRUE(session.tell("die"));
    ASSERT_TRUE(product.program().waitUntilEnded());
    EXPECT_EQ(product.program().exitStatus(), 0);
    EXPECT_FALSE(product.settings().contains(kRestartFlag));
}

TEST_F(ProductEndingTest, aCrash_costsWhatCameAfterTheLastSaveAndTheNextRunGoesOn) {
    startRunning();
    write(500ms);
    // Losing the front makes Ticklog save.
    ASSERT_TRUE(product.bringToFront(writer, letter));
    ASSERT_TRUE(waitFor([this] { return written() >= worked - offBy(); }));
    const double unsaved = passTime(300ms);
    EXPECT_EQ(product.end(SIGKILL), std::nullopt);
    const double saved = written();
    EXPECT_NEAR(saved, worked, offBy()) << unsaved << " seconds came after the last save";

    ASSERT_TRUE(product.start());
    EXPECT_TRUE(startAgain()) << "the one after the crash is the first now";
    write(500ms);
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_NEAR(written(), worked, 2 * offBy()) << "the timer ran by itself";
    EXPECT_GT(written(), saved + 0.2);
}

TEST_F(ProductEndingTest, aBrokenPipe_isNoReasonToEnd) {
    startRunning();
    // As if the display went while something was written to it.
    ::kill(pid_t(product.program().processIdentifier()), SIGPIPE);
    write(300ms);
    EXPECT_TRUE(product.program().isRunning());
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_NEAR(written(), worked, offBy());
}

TEST_F(ProductEndingTest, twoStartsAtOnce_leaveOneWriter) {
    product.writeSettings(Product::runningSettings());
    const auto one = desk.start(kTicklog);
    const auto other = desk.start(kTicklog);
    ASSERT_TRUE(waitFor([&] { return one->isRunning() != other->isRunning(); }));
    ASSERT_TRUE(waitFor([this] { return product.hasWindow(); }));
    Program& left = one->isRunning() ? *one : *other;
    EXPECT_EQ(desk.probe().number(product.window(), "_NET_WM_PID"), left.processIdentifier());
    EXPECT_TRUE(left.terminate());
    EXPECT_EQ(left.exitStatus(), 0);
}

} // namespace
