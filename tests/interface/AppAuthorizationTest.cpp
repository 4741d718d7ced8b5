// SPDX-License-Identifier: MIT
#include "interface/shell/AppAuthorization.h"
#include "Classes/engine/TimeActivatorUniversalAccess.h"
#include "tests/interface/Desk.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList kInstallation{u"ask for the right"_s,
                                u"remove org.ticklog.TKAXTrusted"_s,
                                u"install org.ticklog.TKAXTrusted"_s,
                                u"find org.ticklog.TKAXTrusted"_s,
                                u"start org.ticklog.TKAXTrusted"_s,
                                u"connect to org.ticklog.TKAXTrusted"_s,
                                u"ask for /usr/bin/ticklog"_s};

struct AppAuthorizationTest : testing::Test, Desk {
    AppAuthorization& authorization() { return controller.appDelegate().authorization(); }

    FakeServiceManagement& machine() { return fakes.serviceManagement; }

    bool startsNextTime() { return fakes.defaults.boolForKey(kStartTicklogOnNextLaunch); }

    void failNext(int times, Failure::Kind kind = Failure::Kind::NotFound) {
        for (int i = 1; i <= times; ++i)
            machine().failures.push_back({kind, u"Nobody serves that name (%1)"_s.arg(i)});
    }

    // Starts the timer where the desktop cannot ask for trust.
    void startUntrusted(int answer) {
        fakes.accessibility.canPrompt = false;
        alerts.answer = answer;
        authorization().checkAccessibilityTrust();
        settle();
    }

    void authorize() {
        authorization().makeAppTrustedAndRelaunch();
        settle();
    }
};

// A person whose timer needs trust to start.
struct UntrustedTimerTest : testing::Test {
    bool start() {
        controller.timer().startTimer();
        return controller.timer().isRunning();
    }

    FakePlatform fakes;
    FakeAlerts alerts;
    TKController controller{fakes.platform, alerts, [](int) {},
                            [](TimeTracker& tracker, ActivityServices& services) {
                                return std::make_unique<TimeActivatorUniversalAccess>(tracker, services);
                            }};
};

} // namespace

TEST_F(UntrustedTimerTest, untilTrustIsGranted_theTimerStaysStopped) {
    fakes.accessibility.trusted = false;
    EXPECT_FALSE(start());
    EXPECT_EQ(fakes.accessibility.prompts, 1);
    EXPECT_EQ(fakes.accessibility.warnings, 1);
    fakes.accessibility.trusted = true;
    EXPECT_TRUE(start());
    EXPECT_EQ(fakes.accessibility.prompts, 1);
}

TEST_F(UntrustedTimerTest, inASandbox_theTimerStaysStoppedWhateverIsAnswered) {
    fakes.accessibility.trusted = false;
    fakes.sandbox.sandboxed = true;
    for (const int answer : {Alerts::Alternate, Alerts::Other, Alerts::Default}) {
        alerts.answer = answer;
        EXPECT_FALSE(start());
        fakes.runLoop.runPending();
    }
    EXPECT_EQ(alerts.questions.size(), 3);
    EXPECT_EQ(fakes.accessibility.preferencesOpened, 1);
    EXPECT_EQ(fakes.ownProgram.relaunched, 1);
}

TEST_F(AppAuthorizationTest, aStartWithoutTrust_hasTheDesktopAsk) {
    authorization().checkAccessibilityTrust();
    EXPECT_EQ(fakes.accessibility.prompts, 1);
    EXPECT_EQ(fakes.accessibility.warnings, 1);
    EXPECT_EQ(alerts.questions, QStringList());
    EXPECT_EQ(machine().calls, QStringList());
    EXPECT_FALSE(controller.window().isVisible());
}

TEST_F(AppAuthorizationTest, aStartWhereTheDesktopCannotAsk_asksTheUser) {
    startUntrusted(Alerts::Alternate);
    EXPECT_EQ(fakes.accessibility.prompts, 0);
    EXPECT_EQ(fakes.accessibility.warnings, 0);
    EXPECT_TRUE(controller.window().isVisible()) << "the question needs somebody to see it";
    EXPECT_EQ(alerts.last.message,
              u"Ticklog monitors the active time spent in each application. To enable this tracking you must "
              "give Ticklog permission to gather this data from the system."_s);
    EXPECT_EQ(alerts.last.informativeText,
              u"Security protections built into OS X prevent monitoring the status of other applications "
              "without user authorization. In order to protect your privacy, this action will authorize "
              "Ticklog to track your applications while maintaining the normal system wide security "
              "precautions."_s);
    EXPECT_EQ(alerts.last.defaultButton, u"Authorize Ticklog"_s);
    EXPECT_EQ(alerts.last.alternateButton, u"Cancel Start"_s);
    EXPECT_EQ(alerts.last.otherButton, QString());
    EXPECT_EQ(alerts.last.whenClosed, Alerts::Alternate);
}

TEST_F(AppAuthorizationTest, aStartInASandbox_asksTheUserThoughTheDesktopCould) {
    fakes.sandbox.sandboxed = true;
    alerts.answer = Alerts::Alternate;
    authorization().checkAccessibilityTrust();
    EXPECT_EQ(fakes.accessibility.prompts, 0);
    EXPECT_EQ(alerts.questions.size(), 1);
}

TEST_F(AppAuthorizationTest, cancelStart_doesNothing) {
    startUntrusted(Alerts::Alternate);
    EXPECT_EQ(machine().calls, QStringList());
    EXPECT_EQ(fakes.accessibility.preferencesOpened, 0);
    EXPECT_FALSE(startsNextTime());
}

TEST_F(AppAuthorizationTest, authorizingTwice_isOneAttemptUntilThatHasFailed) {
    machine().holdsInstallation = true;
    authorize();
    const QStringList calls = machine().calls;
    authorize();
    EXPECT_EQ(machine().calls, calls) << "a person is looking for the password";
    machine().failures = {{Failure::Kind::Refused, u"No."_s}};
    machine().heldInstallation(true);
    settle();
    EXPECT_EQ(alerts.last.message, u"No."_s);
    authorize();
    EXPECT_GT(machine().calls.count(u"ask for the right"_s), calls.count(u"ask for the right"_s));
}

TEST_F(AppAuthorizationTest, theThirdAnswer_opensThePreferences) {
    startUntrusted(Alerts::Other);
    EXPECT_EQ(fakes.accessibility.preferencesOpened, 1);
    EXPECT_EQ(machine().calls, QStringList());
}

TEST_F(AppAuthorizationTest, authorizeTicklog_installsTheHelperAsksItAndStartsAnew) {
    startUntrusted(Alerts::Default);
    EXPECT_EQ(machine().calls, kInstallation);
    EXPECT_EQ(fakes.ownProgram.relaunched, 1);
    EXPECT_EQ(alerts.questions.size(), 1);
    EXPECT_EQ(machine().authorizations, 0) << "the right is given back";
}

TEST_F(AppAuthorizationTest, theNextLaunch_findsOnTheDiskThatItIsToStartTheTimer) {
    authorize();
    ASSERT_EQ(fakes.ownProgram.relaunched, 1);
    const QByteArray settings = fakes.ownProgram.settingsLeftBehind.simplified();
    EXPECT_TRUE(settings.contains("<key>startTicklogOnNextLaunch</key> <true/>")) << settings.constData();
}

TEST_F(AppAuthorizationTest, startingAnew_doesNotSaveTheTimers) {
    account("Mail", 30);
    authorization().relaunchApp();
    EXPECT_EQ(fakes.ownProgram.relaunched, 1);
    EXPECT_FALSE(QFileInfo::exists(controller.database().mainStoreURL()));
}

TEST_F(AppAuthorizationTest, aProgramThatCannotStartAnew_goesOnAndLogsIt) {
    fakes.ownProgram.relaunches = false;
    authorization().relaunchApp();
    EXPECT_TRUE(fakes.log.mentions(u"Ticklog could not be started anew: /usr/bin/ticklog"_s));
}

TEST_F(AppAuthorizationTest, aHelperThatCannotBeReachedOnce_isInstalledOnceMore) {
    failNext(1);
    authorize();
    EXPECT_EQ(machine().calls, kInstallation + kInstallation);
    EXPECT_EQ(fakes.ownProgram.relaunched, 1);
    EXPECT_EQ(alerts.questions, QStringList());
}

TEST_F(AppAuthorizationTest, aHelperThatCannotBeReachedTwice_isTheConnectionsError) {
    failNext(2);
    authorize();
    EXPECT_EQ(machine().calls, kInstallation + kInstallation);
    EXPECT_EQ(alerts.questions, QStringList{u"Nobody serves that name (2)"_s});
    EXPECT_EQ(fakes.ownProgram.relaunched, 0);
    EXPECT_FALSE(startsNextTime());
    EXPECT_EQ(machine().authorizations, 0);
}

TEST_F(AppAuthorizationTest, aHelperThatRefuses_isNotAskedAgain) {
    failNext(1, Failure::Kind::Refused);
    authorize();
    EXPECT_EQ(machine().calls, kInstallation);
    EXPECT_EQ(alerts.questions.size(), 1);
}

TEST_F(AppAuthorizationTest, aRightThatCannotBeHad_isAnErrorOfWhichNothingIsKnown) {
    machine().grantsRight = false;
    authorize();
    EXPECT_EQ(machine().calls, QStringList{u"ask for the right"_s});
    EXPECT_EQ(alerts.questions, QStringList{u"An error was encountered."_s});
    EXPECT_FALSE(startsNextTime());
}

TEST_F(AppAuthorizationTest, aHelperThatIsNotInstalled_isLoggedAndAskedAllTheSame) {
    machine().installs = false;
    authorize();
    EXPECT_TRUE(fakes.log.mentions(u"Error (null)"_s));
    QStringList withoutJob = kInstallation;
    withoutJob.removeAll(u"start org.ticklog.TKAXTrusted"_s);
    EXPECT_EQ(machine().calls, withoutJob);
    EXPECT_EQ(fakes.ownProgram.relaunched, 1);
}

TEST_F(AppAuthorizationTest, anInstallationThatAsksAPerson_isWaitedForWhileTheTimerRuns) {
    machine().holdsInstallation = true;
    authorize();
    EXPECT_EQ(machine().calls.last(), u"install org.ticklog.TKAXTrusted"_s);
    EXPECT_EQ(machine().authorizations, 1);
    std::exchange(machine().heldInstallation, {})(true);
    settle();
    EXPECT_EQ(machine().calls, kInstallation);
    EXPECT_EQ(machine().authorizations, 0);
}

TEST_F(AppAuthorizationTest, aMachineWithoutAHelperToSendTo_isToldFromOneWith) {
    EXPECT_TRUE(authorization().retrust(false));
    machine().connects = false;
    EXPECT_FALSE(authorization().retrust(false));
}

TEST_F(AppAuthorizationTest, theErrorAlert_namesThePlaceWhereTrustIsGranted) {
    alerts.answer = Alerts::Alternate;
    authorization().authFailError(Failure{Failure::Kind::NotFound, u"Gone"_s});
    EXPECT_EQ(alerts.last.message, u"Gone"_s);
    EXPECT_EQ(
        alerts.last.informativeText,
        u"Please choose the 'Enable access for assistive devices.' checkbox in the Secuirty > Privacy > "
        "Accessibility system preferences."_s);
    EXPECT_EQ(alerts.last.defaultButton, u"Open Preference Panel"_s);
    EXPECT_EQ(alerts.last.alternateButton, u"Cancel"_s);
    EXPECT_EQ(alerts.last.whenClosed, Alerts::Alternate);
    EXPECT_TRUE(controller.window().isVisible());
    EXPECT_EQ(fakes.accessibility.preferencesOpened, 0);
    fakes.accessibility.canPrompt = false;
    authorization().authFailError(std::nullopt);
    EXPECT_EQ(alerts.last.informativeText,
              u"Please choose the 'Enable access for assistive devices.' checkbox in the Universal Access "
              "system preferences."_s);
}

TEST_F(AppAuthorizationTest, openPreferencePanel_opensIt) {
    authorization().authFailError(std::nullopt);
    EXPECT_EQ(fakes.accessibility.preferencesOpened, 1);
}
