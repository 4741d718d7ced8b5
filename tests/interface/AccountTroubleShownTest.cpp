// SPDX-License-Identifier: MIT
// Where people see what troubles the account.
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/shell/StatusItem.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/Desk.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

struct AccountTroubleShownTest : testing::Test, Desk {
    AccountTroubleShownTest() {
        show();
        controller.appDelegate().applicationDidFinishLaunching();
        settle();
    }

    ObstacleBar& bar() { return controller.window().obstacleBar(); }

    std::string barText() {
        return bar().isVisible() ? str(bar().findChild<QLabel*>(QStringLiteral("obstacleText"))->text()) : "";
    }

    QPushButton& understood() {
        return *bar().findChild<QPushButton*>(QStringLiteral("obstacleAcknowledge"));
    }

    // The first entry of the tray's menu when it is opened.
    std::string trayText() {
        QMenu& menu = controller.appDelegate().statusMenu().mainMenu();
        Q_EMIT menu.aboutToShow();
        Q_EMIT menu.aboutToHide();
        return str(menu.actions().first()->text());
    }

    std::string toolTip() {
        return str(controller.appDelegate().presence().statusBarItem()->icon().toolTip());
    }

    void takeFolderAway() {
        ASSERT_TRUE(QDir().rename(fakes.folders.applicationSupport,
                                  fakes.folders.applicationSupport + QStringLiteral(" gone")));
    }

    void putFolderBack() {
        ASSERT_TRUE(QDir().rename(fakes.folders.applicationSupport + QStringLiteral(" gone"),
                                  fakes.folders.applicationSupport));
    }
};

const std::string kUnwritten = "“Primary Database.tkd” cannot be saved: its folder is missing.";

} // namespace

TEST_F(AccountTroubleShownTest, aStoreThatCannotBeSaved_isSaidInTheWindowAndTheTrayUntilItCan) {
    EXPECT_EQ(barText(), "");
    takeFolderAway();
    controller.saveSettingsToDisk();
    EXPECT_EQ(barText(), kUnwritten);
    EXPECT_EQ(trayText(), kUnwritten) << "also while the timer is paused";
    EXPECT_EQ(toolTip(), kUnwritten);
    EXPECT_FALSE(understood().isVisible()) << "it is still so";
    putFolderBack();
    seconds(60);
    EXPECT_EQ(barText(), "");
    EXPECT_EQ(trayText(), "Start");
    EXPECT_EQ(toolTip(), "Ticklog is paused");
}

TEST_F(AccountTroubleShownTest, theLineInTheTray_showsTheWindow) {
    controller.trouble().tell(AccountTrouble::Kind::StoreMissing, QStringLiteral("Tom & Jerry are missing."));
    EXPECT_EQ(trayText(), "Tom && Jerry are missing.");
    controller.window().hide();
    controller.appDelegate().statusMenu().mainMenu().actions().first()->trigger();
    settle();
    EXPECT_TRUE(controller.window().isVisible());
}

TEST_F(AccountTroubleShownTest, besideAnObstacle_bothAreSaid) {
    fakes.frontApplication.obstacleText = QStringLiteral("Nobody tells.");
    controller.trouble().tell(AccountTrouble::Kind::StoreMissing, QStringLiteral("Missing."));
    controller.trouble().tell(AccountTrouble::Kind::ArchiveKept, QStringLiteral("Kept."));
    EXPECT_EQ(barText(), "Nobody tells.\nMissing.\nKept.");
    controller.trouble().end(AccountTrouble::Kind::StoreMissing);
    EXPECT_EQ(barText(), "Nobody tells.\nKept.");
}

TEST_F(AccountTroubleShownTest, whatHasHappened_goesWhenTheUserKnowsIt) {
    controller.trouble().tell(AccountTrouble::Kind::StoreMissing, QStringLiteral("Missing."));
    controller.trouble().tell(AccountTrouble::Kind::StoreSetAside, QStringLiteral("Set aside."));
    EXPECT_TRUE(understood().isVisible());
    QTest::keyClick(&understood(), Qt::Key_Space);
    EXPECT_EQ(barText(), "Missing.");
    EXPECT_EQ(trayText(), "Missing.");
    EXPECT_FALSE(understood().isVisible());
}

TEST_F(AccountTroubleShownTest, whatComesWhileTheWindowIsHidden_isThereWhenItIsShown) {
    controller.window().hide();
    controller.trouble().tell(AccountTrouble::Kind::StoreMissing, QStringLiteral("Missing."));
    EXPECT_EQ(trayText(), "Missing.");
    show();
    EXPECT_EQ(barText(), "Missing.");
}

TEST(AccountTroubleAtLaunch, filesThatCannotBeRead_areNamedInTheWindow) {
    FakePlatform fakes;
    FakeAlerts alerts;
    const QStringList paths{fakes.folders.applicationSupport + QStringLiteral("/Primary Database.tkd"),
                            fakes.folders.documents + QStringLiteral("/Ticklog Projects")};
    for (const QString& path : paths) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("damaged");
    }
    fakes.idleTime.isBusy = true;
    TKController controller(fakes.platform, alerts, [](int) {});
    controller.displayMainWindow();
    QCoreApplication::processEvents();
    const auto* text = controller.window().obstacleBar().findChild<QLabel*>(QStringLiteral("obstacleText"));
    EXPECT_EQ(
        str(text->text()),
        "“Primary Database.tkd” could not be read. It was set aside, and Ticklog has started without it.\n"
        "“Ticklog Projects” could not be read. It was set aside, and Ticklog has started without it.");
}
