// SPDX-License-Identifier: MIT
#include "tests/interface/Desk.h"

#include <gtest/gtest.h>

namespace {

struct TKApplicationDelegateTest : testing::Test, Desk {
    TKApplicationDelegateTest() {
        account("Mail", 30);
        controller.appDelegate().applicationDidFinishLaunching();
        front("Mail", "Inbox");
    }

    bool isStored() { return QFileInfo::exists(controller.database().mainStoreURL()); }

    bool startsNextTime() { return fakes.defaults.boolForKey(kStartTicklogOnNextLaunch); }
};

} // namespace

TEST_F(TKApplicationDelegateTest, quittingWhileNothingRuns_asksNobody) {
    EXPECT_TRUE(controller.appDelegate().applicationShouldTerminate());
    EXPECT_EQ(alerts.questions, QStringList());
    EXPECT_FALSE(startsNextTime());
}

TEST_F(TKApplicationDelegateTest, quittingWhileTheTimerRuns_asksAndMayRemain) {
    controller.timer().startTimer();
    EXPECT_FALSE(controller.appDelegate().applicationShouldTerminate());
    EXPECT_EQ(alerts.last.message, QStringLiteral("Timer still running."));
    EXPECT_EQ(alerts.last.informativeText,
              QStringLiteral("There is a timer currently running. Ticklog must remain open in order to keep "
                             "track of time. Are you sure you wish to quit?"));
    EXPECT_EQ(alerts.last.defaultButton, QStringLiteral("Remain Open"));
    EXPECT_EQ(alerts.last.alternateButton, QStringLiteral("Quit"));
    EXPECT_FALSE(startsNextTime());
    alerts.answer = Alerts::Other;
    EXPECT_FALSE(controller.appDelegate().applicationShouldTerminate());
    alerts.answer = Alerts::Alternate;
    EXPECT_TRUE(controller.appDelegate().applicationShouldTerminate());
    EXPECT_TRUE(startsNextTime());
    EXPECT_TRUE(isStored());
}

TEST_F(TKApplicationDelegateTest, aLaunchThatWasAskedTo_startsTheTimerOnce) {
    fakes.defaults.setObject(kStartTicklogOnNextLaunch, true);
    controller.awakeFromNib();
    EXPECT_TRUE(controller.timer().isRunning());
    EXPECT_FALSE(startsNextTime());
}

TEST_F(TKApplicationDelegateTest, aFailingPower_savesAndAsksNobody) {
    controller.timer().startTimer();
    fakes.session.powerOff();
    EXPECT_TRUE(startsNextTime());
    EXPECT_TRUE(isStored());
    EXPECT_FALSE(controller.timer().computeTimerIsValid());
    EXPECT_EQ(alerts.questions, QStringList());
}

TEST_F(TKApplicationDelegateTest, aFailingPowerWhileNothingRuns_leavesTheFlag) {
    fakes.session.powerOff();
    EXPECT_FALSE(startsNextTime());
    EXPECT_TRUE(isStored());
}

TEST_F(TKApplicationDelegateTest, aSessionThatGoesAndComes_bringsTheTicksBack) {
    controller.timer().startTimer();
    fakes.session.resignActive();
    EXPECT_FALSE(controller.timer().computeTimerIsValid());
    EXPECT_TRUE(isStored());
    fakes.session.becomeActive();
    EXPECT_TRUE(controller.timer().computeTimerIsValid());
}

TEST_F(TKApplicationDelegateTest, everyNineHundredSeconds_theTimersAreSaved) {
    seconds(899);
    EXPECT_FALSE(isStored());
    seconds(1);
    EXPECT_TRUE(isStored());
}

TEST_F(TKApplicationDelegateTest, losingTheFocus_saves) {
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_FALSE(isStored());
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_TRUE(isStored());
}

TEST_F(TKApplicationDelegateTest, quitting_savesNamesThatWereGivenSince) {
    controller.tracker().fullTimeSet().front()->setRenamedNameFormatted(
        {{kRecordName, QStringLiteral("Post")}});
    controller.appDelegate().terminate();
    QFile store(controller.database().mainStoreURL());
    ASSERT_TRUE(store.open(QIODevice::ReadOnly));
    EXPECT_TRUE(store.readAll().contains("Post"));
}

TEST_F(TKApplicationDelegateTest, startedASecondTime_theWindowComesBack) {
    EXPECT_FALSE(controller.appDelegate().applicationShouldHandleReopen(true));
    EXPECT_FALSE(controller.window().isVisible()) << "others are there";
    EXPECT_FALSE(controller.appDelegate().applicationShouldHandleReopen(false));
    EXPECT_TRUE(controller.window().isVisible());
}

TEST_F(TKApplicationDelegateTest, theClosedWindow_leavesTheTimerRunning) {
    controller.displayMainWindow();
    controller.timer().startTimer();
    command(actions().closeWindow);
    EXPECT_FALSE(controller.window().isVisible());
    EXPECT_TRUE(controller.timer().isRunning());
    EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
}
