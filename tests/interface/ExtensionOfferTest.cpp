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
    void observe(std::function<void()> changed) override { m_changed = std::move(changed); }
    Outcome install() override {
        done << QStringLiteral("install");
        if (isDiskFull)
            return Failure{Failure::Kind::CannotWrite, QStringLiteral("the disk is full")};
        become(State::AwaitsLogin);
        return Done();
    }
    void switchOn() override {
        done << QStringLiteral("switch on");
        become(State::On);
    }
    Outcome remove() override { return Done(); }

    void become(State state) {
        m_state = state;
        if (m_changed)
            m_changed();
    }

    QStringList done;
    bool isDiskFull = false;

private:
    State m_state = State::Unknown;
    std::function<void()> m_changed;
};

class ExtensionOfferTest : public testing::Test {
protected:
    // A new launch of Ticklog, with a shell that says this of the extension.
    void launch(State state) {
        offer.reset();
        extension.become(State::Unknown);
        offer = std::make_unique<ExtensionOffer>(
            ExtensionOffer::Ground{extension, alerts, defaults, runLoop, log,
                                   [this](std::function<void()> offered) { shown = std::move(offered); }});
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
    // What a button beside the timers would do; empty where there is none.
    std::function<void()> shown;
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
    ASSERT_TRUE(shown);
    alerts.answer = Alerts::Alternate;
    shown();
    EXPECT_EQ(alerts.questions.size(), 2);
    EXPECT_EQ(extension.done, QStringList{QStringLiteral("install")});
    EXPECT_FALSE(shown) << "all that is missing is a login";
}

TEST_F(ExtensionOfferTest, whatCannotBeHelped_isNotOffered) {
    for (const State state : {State::Unknown, State::AwaitsLogin, State::On, State::Refused}) {
        launch(state);
        EXPECT_FALSE(shown);
    }
    launch(State::Off);
    EXPECT_TRUE(shown);
    offer.reset();
    EXPECT_FALSE(shown);
}
