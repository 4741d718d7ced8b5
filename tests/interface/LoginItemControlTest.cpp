// SPDX-License-Identifier: MIT
#include "interface/preferences/Preferences.h"
#include "tests/interface/Desk.h"

#include <QCheckBox>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString kHelper = u"org.ticklog.TicklogLaunchHelper"_s;

struct LoginItemControlTest : testing::Test, Desk {
    LoginItemControl& loginItem() { return controller.loginItem(); }

    std::vector<LoginEntry>& jobs() { return fakes.loginItems.known; }

    bool isOnWith(std::vector<LoginEntry> known) {
        jobs() = std::move(known);
        loginItem().loginItemStateChanged();
        return loginItem().isOn();
    }

    // Shows the preferences.
    QCheckBox& box() {
        command(actions().showPrefWindow);
        return *preferences.setup()->prefWindow().findChild<QCheckBox*>(u"loginItemCheckbox"_s);
    }

    Preferences preferences{controller, fakes.platform, alerts, [](PrefWindow&) {}};
};

} // namespace

TEST_F(LoginItemControlTest, aSessionThatDoesNotKnowTheHelper_isOff) {
    EXPECT_FALSE(loginItem().isOn()) << "nobody has asked yet";
    EXPECT_FALSE(isOnWith({}));
    EXPECT_FALSE(isOnWith({{u"org.example.Mail"_s, true}}));
}

TEST_F(LoginItemControlTest, aHelperThatIsKnownButNotStarted_isOff) {
    EXPECT_FALSE(isOnWith({{u"org.example.Mail"_s, true}, {kHelper, false}}));
    EXPECT_TRUE(isOnWith({{u"org.example.Mail"_s, false}, {kHelper, true}}));
    EXPECT_FALSE(isOnWith({{kHelper, false}, {kHelper, true}})) << "the first counts";
}

TEST_F(LoginItemControlTest, theEndOfTheLaunch_asksTheSession) {
    jobs() = {{kHelper, true}};
    controller.appDelegate().applicationDidFinishLaunching();
    settle();
    EXPECT_EQ(fakes.loginItems.looks, 1);
    EXPECT_TRUE(loginItem().isOn());
}

TEST_F(LoginItemControlTest, theBox_setsAndShowsWhatTheSessionStarts) {
    EXPECT_FALSE(box().isChecked());
    box().click();
    EXPECT_TRUE(box().isChecked());
    ASSERT_EQ(jobs().size(), 1U);
    EXPECT_EQ(jobs().front().identifier, kHelper);
    box().click();
    EXPECT_TRUE(jobs().empty());
    jobs() = {{kHelper, true}};
    EXPECT_TRUE(box().isChecked()) << "somebody else has set it, and the preferences are shown again";
    EXPECT_EQ(alerts.errors, QStringList());
}

TEST_F(LoginItemControlTest, aSessionThatRefuses_isToldAndTheBoxSaysTheTruth) {
    fakes.loginItems.refuses = true;
    box().click();
    EXPECT_FALSE(box().isChecked());
    EXPECT_EQ(alerts.errors, QStringList{u"Ticklog cannot be started at login.: Read-only file system"_s});
    jobs() = {{kHelper, true}};
    box().click();
    EXPECT_TRUE(box().isChecked());
    EXPECT_EQ(alerts.errors.last(), u"Ticklog is still started at login.: Read-only file system"_s);
}
