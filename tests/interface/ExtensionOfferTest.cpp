// SPDX-License-Identifier: MIT
#include "interface/shell/ExtensionOffer.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/ManualRunLoop.h"
#include "tests/fakes/RecordingLog.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using State = ShellExtension::State;

class FakeShellExtension : public ShellExtension {
public:
    State state() const override { return m_state; }
    Subscription observe(News::Hearer hearer) override { return m_changes.observe(std::move(hearer)); }
    Outcome install() override {
        done << QStringLiteral("install");
        if (isDiskFull)
            return Failure{Failure::Kind::CannotWrite, QStringLiteral("the disk is full")};
        become(State::AwaitsLogin);
        return Done();
    }
    void switchOn() override {
        done << QStringLiteral("switch on");
        if (!isForbidden)
            become(State::On);
    }
    Outcome remove() override { return Done(); }

    void become(State state) {
        m_state = state;
        m_changes.tell();
    }

    QStringList done;
    bool isDiskFull = false;
    // Whether the shell keeps it off, whoever asks.
    bool isForbidden = false;

private:
    State m_state = State::Unknown;
    News m_changes;
};

class ExtensionOfferTest : public testing::Test {
protected:
    // A new launch of Ticklog, with a shell that reports this state of the extension.
    void launch(State state) {
        offer.reset();
        extension.become(State::Unknown);
        offer = std::make_unique<ExtensionOffer>(ExtensionOffer::Ground{
            extension, alerts, defaults, runLoop, log, [this](bool isOffered) { isShown = isOffered; }});
        extension.become(state);
        runLoop.advance(5s);
    }

    QTemporaryDir home;
    RecordingLog log;
    NotificationCenter notifications;
    HandClock clock;
    ManualRunLoop runLoop{clock};
    UserDefaults defaults{home.filePath(QStringLiteral("settings")), notifications, runLoop, log};
    FakeShellExtension extension;
    FakeAlerts alerts;
    // Whether there is a button beside the timers.
    bool isShown = false;
    std::unique_ptr<ExtensionOffer> offer;
};

} // namespace

TEST_F(ExtensionOfferTest, anExtensionThatRuns_isNotSpokenOf) {
    launch(State::On);
    EXPECT_EQ(alerts.questions, QStringList());
}

TEST_F(ExtensionOfferTest, aMissingExtension_isInstalledAndSwitchedOnAfterTheLogin) {
    alerts.answer = Alerts::Alternate;
    launch(State::Missing);
    EXPECT_EQ(alerts.questions.size(), 1);
    EXPECT_TRUE(alerts.last.informativeText.contains(QStringLiteral("log out")));
    EXPECT_EQ(extension.done, QStringList{QStringLiteral("install")});
    launch(State::Off);
    EXPECT_EQ(extension.done.last(), QStringLiteral("switch on"));
    EXPECT_EQ(alerts.questions.size(), 1) << "the user has answered already";
}

TEST_F(ExtensionOfferTest, switchedOffByTheUserLater_isAskedForAgainAndNotJustSwitchedOn) {
    alerts.answer = Alerts::Alternate;
    launch(State::Missing);
    launch(State::Off);
    alerts.answer = Alerts::Default;
    extension.done.clear();
    launch(State::Off);
    EXPECT_EQ(alerts.questions.size(), 2);
    EXPECT_EQ(extension.done, QStringList());
}

TEST_F(ExtensionOfferTest, notNow_asksAgainAtTheNextLaunch) {
    alerts.answer = Alerts::Default;
    launch(State::Missing);
    extension.become(State::Off);
    runLoop.advance(5s);
    EXPECT_EQ(alerts.questions.size(), 1) << "one question a launch";
    EXPECT_EQ(extension.done, QStringList());
    launch(State::Missing);
    EXPECT_EQ(alerts.questions.size(), 2);
}

TEST_F(ExtensionOfferTest, doNotAskAgain_isRemembered) {
    alerts.answer = Alerts::Other;
    launch(State::Missing);
    launch(State::Off);
    launch(State::Missing);
    EXPECT_EQ(alerts.questions.size(), 1);
    EXPECT_EQ(extension.done, QStringList());
}

TEST_F(ExtensionOfferTest, aFullDisk_isTold) {
    alerts.answer = Alerts::Alternate;
    extension.isDiskFull = true;
    launch(State::Missing);
    EXPECT_EQ(alerts.errors.size(), 1);
}

TEST_F(ExtensionOfferTest, anExtensionThatIsNotRun_isToldToTheLogAlone) {
    launch(State::Refused);
    EXPECT_EQ(alerts.questions, QStringList());
    EXPECT_TRUE(log.mentions(QStringLiteral("does not run")));
}

TEST_F(ExtensionOfferTest, whoHasSaidNo_findsTheOfferAgain) {
    alerts.answer = Alerts::Other;
    launch(State::Missing);
    launch(State::Missing);
    EXPECT_EQ(alerts.questions.size(), 1);
    ASSERT_TRUE(isShown);
    alerts.answer = Alerts::Alternate;
    offer->offer();
    EXPECT_EQ(alerts.questions.size(), 2);
    EXPECT_EQ(extension.done, QStringList{QStringLiteral("install")});
    EXPECT_FALSE(isShown) << "all that is missing is a login";
}

TEST_F(ExtensionOfferTest, whileTheScreenIsLocked_nothingIsAskedOfAnExtensionThatRuns) {
    launch(State::On);
    extension.become(State::Paused);
    runLoop.advance(1min);
    EXPECT_FALSE(isShown);
    // Unlocked, it may be off for a moment.
    extension.become(State::Off);
    extension.become(State::On);
    runLoop.advance(1min);
    EXPECT_EQ(alerts.questions, QStringList());
}

TEST_F(ExtensionOfferTest, aQuestionThatDoesNotHoldAnyMore_closesByItself) {
    for (const State state : {State::On, State::Paused, State::Unknown}) {
        alerts.questions.clear();
        extension.done.clear();
        alerts.answer = Alerts::Alternate;
        alerts.whileAsking = [&] { extension.become(state); };
        launch(State::Off);
        EXPECT_EQ(alerts.questions.size(), 1);
        EXPECT_EQ(extension.done, QStringList()) << "nobody has answered";
        alerts.whileAsking = {};
        alerts.answer = Alerts::Default;
        extension.become(State::Off);
        runLoop.advance(5s);
        EXPECT_EQ(alerts.questions.size(), 2) << "so that it is asked when it holds again";
    }
}

TEST_F(ExtensionOfferTest, aQuestionAboutWhatIsStillSo_isLeftToTheUser) {
    alerts.answer = Alerts::Alternate;
    alerts.whileAsking = [&] { extension.become(State::Off); };
    launch(State::Off);
    EXPECT_EQ(extension.done, QStringList{QStringLiteral("switch on")});
}

TEST_F(ExtensionOfferTest, whereAllExtensionsAreOff_theQuestionSaysSoWhateverWasDecidedOfOurs) {
    alerts.answer = Alerts::Alternate;
    launch(State::Missing);
    extension.done.clear();
    launch(State::AllOff);
    ASSERT_EQ(alerts.questions.size(), 2) << "others are switched on with it";
    EXPECT_TRUE(alerts.last.informativeText.contains(QStringLiteral("switch for all extensions")));
    EXPECT_EQ(extension.done, QStringList{QStringLiteral("switch on")});
    runLoop.advance(1min);
    EXPECT_EQ(alerts.errors, QStringList());
}

TEST_F(ExtensionOfferTest, switchedOnInVain_isTold) {
    extension.isForbidden = true;
    alerts.answer = Alerts::Alternate;
    for (const State state : {State::Off, State::AllOff}) {
        defaults.removeObject(kTKShellExtension);
        alerts.errors.clear();
        launch(state);
        runLoop.advance(1min);
        EXPECT_EQ(alerts.errors.size(), 1);
    }
}

TEST_F(ExtensionOfferTest, switchedOffAgainAtOnce_isNotToldToBeInVain) {
    alerts.answer = Alerts::Alternate;
    launch(State::Off);
    EXPECT_EQ(extension.done, QStringList{QStringLiteral("switch on")});
    extension.become(State::AllOff);
    runLoop.advance(1min);
    EXPECT_EQ(alerts.errors, QStringList());
}

TEST_F(ExtensionOfferTest, whatCannotBeHelped_isNotOffered) {
    for (const State state : {State::Unknown, State::AwaitsLogin, State::Paused, State::On, State::Refused}) {
        launch(state);
        EXPECT_FALSE(isShown);
    }
    launch(State::Off);
    EXPECT_TRUE(isShown);
    offer.reset();
    EXPECT_FALSE(isShown);
}
