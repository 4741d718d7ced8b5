// SPDX-License-Identifier: MIT
// The built program on a real desktop: what it records, and how it ends.
#include "tests/desktop/harness/Product.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/Places.h"
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/XClient.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <csignal>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const QString kRestartFlag = QStringLiteral("startTicklogOnNextLaunch");

class ProductTest : public testing::Test {
protected:
    void startRunning() {
        product.writeSettings(Product::runningSettings());
        ASSERT_TRUE(product.start());
    }

    // Brings a window to the front, keeps it there, and answers for how many seconds it was.
    double keepInFront(XClient& client, xcb_window_t window, std::chrono::milliseconds duration) {
        EXPECT_TRUE(product.bringToFront(client, window));
        return passTime(duration);
    }

    // How far a timer may be from the truth after so many switches, in seconds.
    double offBy(int switches) const { return switches * 0.15 + lateness.seconds(); }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
    Lateness lateness;
};

TEST_F(ProductTest, realWindowsInFront_areCreditedWithTheirTimes) {
    XClient writer(desk);
    XClient mailer(desk);
    const xcb_window_t letter = writer.open({.title = "Letter", .className = "Writer"});
    const xcb_window_t notes = writer.open({.title = "Notes", .className = "Writer"});
    const xcb_window_t inbox = mailer.open({.title = "Inbox", .className = "Mailer"});
    startRunning();
    double writing = 0;
    double noting = 0;
    double mailing = 0;
    for (int round = 0; round < 3; ++round) {
        writing += keepInFront(writer, letter, 400ms);
        mailing += keepInFront(mailer, inbox, 500ms);
        noting += keepInFront(writer, notes, 300ms);
    }
    keepInFront(mailer, inbox, 0ms);
    EXPECT_EQ(product.end(SIGTERM), 0);
    const auto applications = product.applicationTimes();
    EXPECT_NEAR(applications.value(QStringLiteral("Writer")), writing + noting, offBy(6));
    EXPECT_NEAR(applications.value(QStringLiteral("Mailer")), mailing, offBy(4));
    const auto windows = product.windowTimes(QStringLiteral("Writer"));
    EXPECT_NEAR(windows.value(QStringLiteral("Letter")), writing, offBy(4));
    EXPECT_NEAR(windows.value(QStringLiteral("Notes")), noting, offBy(4));
}

TEST_F(ProductTest, aRetitledWindow_keepsItsTimeUnderTheNewName) {
    XClient writer(desk);
    const xcb_window_t window = writer.open({.title = "Draft", .className = "Writer"});
    startRunning();
    double time = keepInFront(writer, window, 500ms);
    writer.setTitle(window, "Final");
    time += keepInFront(writer, window, 500ms);
    EXPECT_EQ(product.end(SIGTERM), 0);
    const auto windows = product.windowTimes(QStringLiteral("Writer"));
    EXPECT_FALSE(windows.contains(QStringLiteral("Draft")));
    EXPECT_NEAR(windows.value(QStringLiteral("Final")), time, offBy(3));
}

TEST_F(ProductTest, aTitleThatBeginsWithAParenthesis_getsNoWindow) {
    XClient writer(desk);
    const xcb_window_t window = writer.open({.title = "(unsaved)", .className = "Writer"});
    startRunning();
    const double time = keepInFront(writer, window, 600ms);
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_NEAR(product.applicationTimes().value(QStringLiteral("Writer")), time, offBy(2));
    EXPECT_TRUE(product.windowTimes(QStringLiteral("Writer")).isEmpty());
}

TEST_F(ProductTest, awkwardWindows_doNoHarm) {
    XClient writer(desk);
    startRunning();
    const std::vector<XWindowLook> looks = {
        {.title = "Nobody's", .hasProcessIdentifier = false},
        {},
        {.title = QByteArray(10'000, 'x')},
        {.title = "bad \xff\xfe bytes"},
        {.title = "two\nlines\tand\x01more"},
    };
    for (const XWindowLook& look : looks) {
        const xcb_window_t window = writer.open(look);
        keepInFront(writer, window, 250ms);
    }
    writer.die();
    // What it tells of this one it has learned after the other's end.
    XClient next(desk);
    keepInFront(next, next.open({.title = "Letter", .className = "Mailer"}), 250ms);
    EXPECT_TRUE(product.program().isRunning());
    EXPECT_EQ(product.end(SIGTERM), 0);
    const auto applications = product.applicationTimes();
    EXPECT_GT(applications.value(QStringLiteral("Mailer")), 0.0);
    EXPECT_GT(applications.value(QStringLiteral("Client")), 1.0);
    for (const QString& name : product.windowTimes(QStringLiteral("Client")).keys())
        EXPECT_LE(name.size(), 4096);
}

class EndingSignal : public ProductTest, public testing::WithParamInterface<int> {};

TEST_P(EndingSignal, whileTheTimerRuns_savesSetsTheRestartFlagAndExitsWithZero) {
    XClient writer(desk);
    const xcb_window_t window = writer.open({.title = "Letter", .className = "Writer"});
    startRunning();
    keepInFront(writer, window, 300ms);
    EXPECT_EQ(product.end(GetParam()), 0);
    EXPECT_GT(product.applicationTimes().value(QStringLiteral("Writer")), 0.0);
    EXPECT_TRUE(product.settings().value(kRestartFlag).toBool());
}

INSTANTIATE_TEST_SUITE_P(Product, EndingSignal, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_F(ProductTest, aSignalWhileTheTimerIsStopped_leavesTheRestartFlagAsItWas) {
    ASSERT_TRUE(product.start());
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_FALSE(product.settings().contains(kRestartFlag));
    EXPECT_TRUE(QFileInfo::exists(product.databasePath()));
}

TEST_F(ProductTest, theFilesItWrites_areTheUsersAlone) {
    startRunning();
    EXPECT_EQ(product.end(SIGTERM), 0);
    const QFileInfo database(product.databasePath());
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                        QFile::WriteOther | QFile::ExeOther;
    EXPECT_FALSE(database.permissions() & others);
    EXPECT_FALSE(QFileInfo(database.path()).permissions() & others);
    EXPECT_FALSE(QFileInfo(desk.home().configurationFolder() + QStringLiteral("/org.ticklog.Ticklog.plist"))
                     .permissions() &
                 others);
}

TEST_F(ProductTest, theXServerDying_endsInASavedCleanExit) {
    XClient writer(desk);
    const xcb_window_t window = writer.open({.title = "Letter", .className = "Writer"});
    startRunning();
    const double time = keepInFront(writer, window, 700ms);
    desk.killDisplay();
    ASSERT_TRUE(product.program().waitUntilEnded());
    EXPECT_EQ(product.program().exitStatus(), 0);
    EXPECT_NEAR(product.applicationTimes().value(QStringLiteral("Writer")), time, offBy(3));
}

TEST_F(ProductTest, theBusDying_doesNotDisturbTheCounting) {
    XClient writer(desk);
    const xcb_window_t window = writer.open({.title = "Letter", .className = "Writer"});
    startRunning();
    double time = keepInFront(writer, window, 300ms);
    desk.bus().kill();
    time += keepInFront(writer, window, 700ms);
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_NEAR(product.applicationTimes().value(QStringLiteral("Writer")), time, offBy(3));
}

TEST_F(ProductTest, aSecondRun_goesOnFromTheLastDigit) {
    XClient writer(desk);
    writer.open({.title = "Letter", .className = "Writer"});
    startRunning();
    keepInFront(writer, writer.open({.title = "Notes", .className = "Writer"}), 300ms);
    EXPECT_EQ(product.end(SIGTERM), 0);
    const PropertyListValue first = product.database();
    // Without a running timer nothing is added.
    product.writeSettings({});
    ASSERT_TRUE(product.start());
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_EQ(PropertyList::xml(product.database()), PropertyList::xml(first));
}

TEST_F(ProductTest, theRestartFlag_startsTheTimerOnceAndIsCleared) {
    XClient writer(desk);
    const xcb_window_t window = writer.open({.title = "Letter", .className = "Writer"});
    product.writeSettings({{kRestartFlag, true}, {QStringLiteral("enableIdleDetection"), false}});
    ASSERT_TRUE(product.start());
    keepInFront(writer, window, 500ms);
    EXPECT_FALSE(product.settings().value(kRestartFlag).toBool());
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_GT(product.applicationTimes().value(QStringLiteral("Writer")), 0.2);
}

TEST_F(ProductTest, aSecondStart_handsOverToTheFirstAndExitsWithZero) {
    startRunning();
    const auto second = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"));
    ASSERT_TRUE(second->waitUntilEnded());
    EXPECT_EQ(second->exitStatus(), 0);
    EXPECT_TRUE(product.program().isRunning());
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTest, aStartOnAnotherDisplay_leavesTheAccountToTheFirst) {
    startRunning();
    const VirtualDisplay other(desk.home().environment());
    QProcessEnvironment environment = desk.environment();
    environment.insert(QStringLiteral("DISPLAY"), other.name());
    Program second(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"), {}, environment);
    ASSERT_TRUE(second.waitUntilEnded());
    EXPECT_EQ(second.exitStatus(), 1);
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTest, aSessionManagersOption_isNoReasonNotToStart) {
    product.writeSettings(Product::runningSettings());
    EXPECT_TRUE(product.start({QStringLiteral("-session"), QStringLiteral("10c0ffee")}));
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTest, aDamagedDatabase_isSetAsideAndNotLost) {
    desk.home().write(QStringLiteral("data/Ticklog/Primary Database.tkd"), "<plist><dict><key>Apps</key>");
    startRunning();
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_EQ(product.database().value(QStringLiteral("Version")).toString(), QStringLiteral("1.5"));
    const QDir folder = QFileInfo(product.databasePath()).dir();
    bool isKept = false;
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        isKept = isKept || (file.open(QFile::ReadOnly) && file.readAll().startsWith("<plist><dict>"));
    }
    EXPECT_TRUE(isKept);
}

TEST_F(ProductTest, optionsOfTheToolkit_areNotRefusedAsUnknown) {
    const auto answered = [this](const QStringList& options) {
        const auto program =
            desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"),
                       options + QStringList{QStringLiteral("--version")}, Program::Output::Read);
        const bool isVersion = program->readLine().value_or(QByteArray()).startsWith("ticklog ");
        return program->waitUntilEnded() && program->exitStatus() == 0 && isVersion;
    };
    for (const char* options :
         {"-reverse", "--reverse", "-style fusion", "--style fusion", "-style=fusion", "--style=fusion",
          "-platform xcb", "--platform=xcb", "-stylesheet none.qss", "-reverse -style fusion -platform xcb"})
        EXPECT_TRUE(answered(QString::fromLatin1(options).split(u' '))) << options;
    EXPECT_FALSE(answered({QStringLiteral("--styles")}));
}

TEST_F(ProductTest, helpAndVersion_areAnsweredWithoutAWindow) {
    for (const QString& option : {QStringLiteral("--help"), QStringLiteral("--version")}) {
        const auto program =
            desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"), {option}, Program::Output::Read);
        const auto line = program->readLine();
        ASSERT_TRUE(line);
        EXPECT_TRUE(line->contains("icklog")) << line->constData();
        ASSERT_TRUE(program->waitUntilEnded());
        EXPECT_EQ(program->exitStatus(), 0);
    }
}

} // namespace
