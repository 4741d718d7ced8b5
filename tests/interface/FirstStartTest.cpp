// SPDX-License-Identifier: MIT
// The page of the very first start.
#include "interface/mainwindow/FirstStart.h"

#include "Classes/common/Settings.h"
#include "interface/setup/WelcomePage.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/Desk.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct FirstStartTest : testing::Test, Desk {
    void begin() {
        first.emplace(controller, fakes.defaults,
                      LoginItem{.isEnabled = [this] { return startsAtLogin; },
                                .setEnabled =
                                    [this](bool isWanted) {
                                        if (!isRefused)
                                            startsAtLogin = isWanted;
                                    }},
                      [this] { ++titlesShown; });
        show();
    }

    WelcomePage* page() { return controller.window().findChild<WelcomePage*>(); }

    bool isShown() {
        settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_NE(page() && page()->isVisible(), table().isVisible()) << "one of them";
        return page() && page()->isVisible();
    }

    void press(const char* name) { page()->findChild<QPushButton*>(QLatin1String(name))->click(); }

    bool startsAtLogin = false;
    bool isRefused = false;
    int titlesShown = 0;
    std::optional<FirstStart> first;
};

} // namespace

TEST_F(FirstStartTest, inFourSentences_saysWhatIsRecordedAndWhereItStays) {
    begin();
    ASSERT_TRUE(isShown());
    EXPECT_EQ(WelcomePage::text().split(u"\n\n"_s).size(), 4);
    EXPECT_EQ(page()->findChild<QLabel*>(u"welcomeText"_s)->text(), WelcomePage::text());
}

TEST_F(FirstStartTest, theTimerStartedThere_endsThePage) {
    begin();
    press("welcomeStart");
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(controller.timer().isRunning());
    EXPECT_TRUE(table().hasFocus());
}

TEST_F(FirstStartTest, theTimerStartedElsewhere_endsThePageToo) {
    begin();
    controller.timer().startTimer();
    EXPECT_FALSE(isShown());
}

TEST_F(FirstStartTest, whoDoesNotWantToBeginYet_seesTheTimers) {
    begin();
    press("welcomeLater");
    EXPECT_FALSE(isShown());
    EXPECT_FALSE(controller.timer().isRunning());
}

TEST_F(FirstStartTest, onceSeen_itNeverComesAgain) {
    begin();
    first.reset();
    controller.window().showInsteadOfTimers(nullptr);
    delete page();
    begin();
    EXPECT_FALSE(isShown());
}

TEST_F(FirstStartTest, whileTheWindowIsNotSeen_itDoesNotCountAsSeen) {
    first.emplace(controller, fakes.defaults,
                  LoginItem{.isEnabled = [] { return false; }, .setEnabled = [](bool) {}}, [] {});
    EXPECT_FALSE(fakes.defaults.boolForKey(kWelcomed));
    show();
    EXPECT_TRUE(fakes.defaults.boolForKey(kWelcomed));
}

TEST_F(FirstStartTest, itsBox_startsTicklogAtLoginIfTheDesktopLets) {
    begin();
    page()->loginBox().click();
    EXPECT_TRUE(startsAtLogin);
    isRefused = true;
    page()->loginBox().click();
    EXPECT_TRUE(page()->loginBox().isChecked()) << "as the desktop says";
}

TEST_F(FirstStartTest, theRulesForTitles_areOneButtonAway) {
    begin();
    press("welcomeTitles");
    EXPECT_EQ(titlesShown, 1);
    EXPECT_TRUE(isShown());
}

TEST_F(FirstStartTest, theKeyboard_reachesEverythingFromTheStartButton) {
    begin();
    EXPECT_TRUE(page()->startButton().hasFocus());
    QStringList reached;
    for (int step = 0; step < 3; ++step) {
        reached << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    }
    EXPECT_EQ(str(reached.join(u' ')), "welcomeStart welcomeLogin welcomeText");
    page()->startButton().setFocus();
    QTest::keyClick(&page()->startButton(), Qt::Key_Return);
    EXPECT_FALSE(isShown());
}
