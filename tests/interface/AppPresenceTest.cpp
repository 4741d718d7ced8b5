// SPDX-License-Identifier: MIT
// Where Ticklog appears on the desktop, and how that is changed.
#include "interface/mainwindow/AppTypeControl.h"
#include "interface/shell/StatusItem.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/SetupDesk.h"

#include <QMenuBar>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using Offer = SystemTray::Offer;

// A Ticklog that is launched when the test has set everything up.
struct AppPresenceTest : testing::Test, Desk {
    void launch() {
        controller.awakeFromNib();
        show();
        controller.appDelegate().applicationDidFinishLaunching();
        settle();
    }

    AppPresence& presence() { return controller.appDelegate().presence(); }

    AppTypeControl& control() { return controller.window().appTypeToolbar(); }

    QMenuBar& menuBar() { return *controller.window().menuBar(); }

    // The main menu as text: "File, Edit".
    std::string menus() {
        QStringList titles;
        for (const QAction* action : menuBar().actions())
            titles << action->text().remove(u'&');
        return str(titles.join(QStringLiteral(", ")));
    }

    bool isMinimized() { return controller.window().isVisible() && controller.window().isMinimized(); }

    bool hasIcon() { return presence().statusBarItem() != nullptr; }

    // "Hide Dock Icon (Display-Dock-Hide)", with "off: " in front if it is disabled.
    static std::string text(const QAction& item) {
        return (item.isEnabled() ? "" : "off: ") + str(item.text()) + " (" + str(item.data().toString()) +
               ')';
    }

    std::int64_t storedType() { return fakes.defaults.integerForKey(kTKPrefAppType); }
    bool storesMenuItem() { return fakes.defaults.boolForKey(kTKPrefShowMenuItem); }

    void choose(QAction& item) { command(&item); }
};

const std::string kAllMenus = "File, Edit, View, History, Project, Timer, Help";

} // namespace

TEST_F(AppPresenceTest, anObstacle_isToldByTheTrayWhileTheTimerRuns) {
    launch();
    const QSystemTrayIcon& icon = presence().statusBarItem()->icon();
    fakes.frontApplication.obstacleText = QStringLiteral("Nobody tells.");
    controller.timer().startTimer();
    controller.refreshTimeSum();
    EXPECT_EQ(str(icon.toolTip()), "Nobody tells.");
    QMenu& menu = controller.appDelegate().statusMenu().mainMenu();
    Q_EMIT menu.aboutToShow();
    EXPECT_EQ(str(menu.actions().first()->text()), "Why Are Windows Not Counted?");
    Q_EMIT menu.aboutToHide();
    controller.window().hide();
    menu.actions().first()->trigger();
    settle();
    EXPECT_TRUE(controller.window().isVisible());
    fakes.frontApplication.obstacleText.clear();
    controller.refreshTimeSum();
    EXPECT_EQ(str(icon.toolTip()), "Ticklog is counting");
    Q_EMIT menu.aboutToShow();
    EXPECT_EQ(str(menu.actions().first()->text()), "Pause");
}

TEST_F(AppPresenceTest, theFirstLaunch_showsBothAndBothCanBeHidden) {
    launch();
    EXPECT_TRUE(presence().showDockIcon());
    EXPECT_TRUE(presence().showMenuBarItem());
    EXPECT_TRUE(hasIcon());
    EXPECT_EQ(menus(), kAllMenus);
    EXPECT_EQ(control().image(), QStringLiteral("Display-Both"));
    EXPECT_EQ(text(control().dockIconMenuItem()), "Hide Dock Icon (Display-Dock-Hide)");
    EXPECT_EQ(text(control().menuItemMenuItem()), "Hide Menubar Item (Display-Menubar-Hide)");
    EXPECT_EQ(fakes.taskBar.told.size(), 0) << "listed is what windows are by themselves";
}

TEST_F(AppPresenceTest, theDockIconHidden_emptiesTheMainMenuAndLeavesTheTaskBar) {
    launch();
    choose(control().dockIconMenuItem());
    EXPECT_EQ(storedType(), 0);
    EXPECT_EQ(menus(), "");
    EXPECT_EQ(presence().rootItemArray().size(), 7);
    EXPECT_FALSE(fakes.taskBar.isListed);
    EXPECT_EQ(fakes.taskBar.told.last(), controller.window().winId());
    EXPECT_EQ(control().image(), QStringLiteral("Display-Menubar"));
    EXPECT_EQ(text(control().dockIconMenuItem()), "Show Dock Icon (Display-Dock-Show)");
    EXPECT_EQ(text(control().menuItemMenuItem()), "off: Hide Menubar Item (Display-Menubar-Hide)");
}

TEST_F(AppPresenceTest, theDockIconShownAgain_bringsEverythingBackInItsOrder) {
    launch();
    choose(control().dockIconMenuItem());
    choose(control().dockIconMenuItem());
    EXPECT_EQ(storedType(), 1);
    EXPECT_EQ(menus(), kAllMenus);
    EXPECT_TRUE(menuBar().isVisible());
    EXPECT_TRUE(fakes.taskBar.isListed);
    EXPECT_EQ(control().image(), QStringLiteral("Display-Both"));
}

TEST_F(AppPresenceTest, everyWindowThatComesToTheScreen_isKeptOutOfTheTaskBar) {
    fakes.defaults.setObject(kTKPrefAppType, 0);
    Desk launched;
    launched.fakes.defaults.setObject(kTKPrefAppType, 0);
    launched.controller.appDelegate().presence().setShowDockIcon(false, true);
    launched.show();
    const auto count = [&](const QWidget& window) {
        return launched.fakes.taskBar.told.count(window.winId());
    };
    EXPECT_GE(count(launched.controller.window()), 1);
    const auto before = count(launched.controller.window());
    launched.controller.window().hide();
    launched.controller.window().show();
    launched.settle();
    EXPECT_GT(count(launched.controller.window()), before) << "desktops forget it";
    QWidget other;
    other.show();
    launched.settle();
    EXPECT_EQ(count(other), 1);
    EXPECT_FALSE(launched.fakes.taskBar.isListed);
}

TEST_F(AppPresenceTest, theMenuItemHidden_takesTheIconOutOfTheTray) {
    launch();
    choose(control().menuItemMenuItem());
    EXPECT_FALSE(hasIcon());
    EXPECT_FALSE(storesMenuItem());
    EXPECT_EQ(control().image(), QStringLiteral("Display-Dock"));
    EXPECT_EQ(text(control().dockIconMenuItem()), "off: Hide Dock Icon (Display-Dock-Hide)");
    EXPECT_EQ(text(control().menuItemMenuItem()), "Show Menubar Item (Display-Menubar-Show)");
    choose(control().menuItemMenuItem());
    EXPECT_TRUE(hasIcon());
    EXPECT_TRUE(storesMenuItem());
}

TEST_F(AppPresenceTest, theMenuItemToggledWithoutADockIcon_stays) {
    launch();
    controller.toggleDockIcon();
    controller.toggleMenuItem();
    EXPECT_TRUE(presence().showMenuBarItem());
    EXPECT_TRUE(hasIcon());
    EXPECT_EQ(storedType(), 0);
}

TEST_F(AppPresenceTest, theDockIconToggledWithoutAMenuItem_stays) {
    launch();
    controller.toggleMenuItem();
    controller.toggleDockIcon();
    EXPECT_TRUE(presence().showDockIcon());
    EXPECT_EQ(menus(), kAllMenus);
    EXPECT_FALSE(storesMenuItem());
}

TEST_F(AppPresenceTest, settingsThatLeaveNoWayIn_bringTheDockIconBack) {
    fakes.defaults.setObject(kTKPrefAppType, 0);
    fakes.defaults.setObject(kTKPrefShowMenuItem, false);
    FakeAlerts otherAlerts;
    // Like a program that finds these settings at its launch.
    TKController launched(fakes.platform, otherAlerts, [](int) {});
    EXPECT_EQ(storedType(), 1);
    EXPECT_EQ(launched.window().menuBar()->actions().size(), 7);
    EXPECT_EQ(launched.window().appTypeToolbar().image(), QStringLiteral("Display-Dock"));
}

TEST_F(AppPresenceTest, aStrangeAppType_countsAsHidden) {
    fakes.defaults.setObject(kTKPrefAppType, 7);
    FakeAlerts otherAlerts;
    TKController launched(fakes.platform, otherAlerts, [](int) {});
    EXPECT_EQ(storedType(), 0);
    EXPECT_TRUE(launched.window().menuBar()->actions().isEmpty());
}

TEST_F(AppPresenceTest, theWindow_comesToTheFrontOnlyAfterTheLaunch) {
    controller.appDelegate().presence().setShowDockIcon(false, true);
    EXPECT_FALSE(controller.window().isVisible());
    launch();
    controller.window().hide();
    controller.toggleDockIcon();
    EXPECT_TRUE(controller.window().isVisible());
}

TEST_F(AppPresenceTest, theIconsPictureAndItsToolTip_tellWhetherTheTimerRuns) {
    launch();
    const StatusItem& item = *presence().statusBarItem();
    EXPECT_EQ(item.image(), QStringLiteral("MenuBar-Idle"));
    EXPECT_EQ(item.alternateImage(), QStringLiteral("MenuBar-Pressed"));
    EXPECT_EQ(item.icon().toolTip(), QStringLiteral("Ticklog is paused"));
    controller.timer().startTimer();
    EXPECT_EQ(item.image(), QStringLiteral("MenuBar-Active"));
    EXPECT_EQ(item.alternateImage(), QStringLiteral("MenuBar-Pressed"));
    EXPECT_EQ(item.icon().toolTip(), QStringLiteral("Ticklog is counting"));
    const auto difference = item.icon().icon().pixmap(22).toImage();
    controller.timer().stopTimer();
    EXPECT_NE(item.icon().icon().pixmap(22).toImage(), difference);
}

TEST_F(AppPresenceTest, aClickOnTheIcon_showsTheTimeWindow) {
    launch();
    controller.window().hide();
    auto& icon = const_cast<QSystemTrayIcon&>(presence().statusBarItem()->icon());
    Q_EMIT icon.activated(QSystemTrayIcon::Context);
    EXPECT_FALSE(controller.window().isVisible()) << "that opens the menu";
    Q_EMIT icon.activated(QSystemTrayIcon::Trigger);
    EXPECT_TRUE(controller.window().isVisible());
}

TEST_F(AppPresenceTest, whileTheDesktopStarts_noIconIsMadeAndNothingIsMissed) {
    fakes.systemTray.give(Offer::Unknown);
    launch();
    EXPECT_FALSE(hasIcon());
    EXPECT_EQ(menus(), kAllMenus);
    EXPECT_EQ(alerts.notices, QStringList());
    fakes.systemTray.give(Offer::Exported);
    EXPECT_TRUE(hasIcon());
    EXPECT_GT(controller.appDelegate().statusMenu().mainMenu().actions().size(), 0)
        << "desktops do not show an empty menu";
}

TEST_F(AppPresenceTest, withoutATray_theStatusMenuIsInTheWindow) {
    fakes.systemTray.give(Offer::None);
    launch();
    EXPECT_EQ(menus(), kAllMenus + ", Ticklog");
    EXPECT_FALSE(hasIcon());
    EXPECT_TRUE(fakes.log.mentions(QStringLiteral("has no tray")));
    EXPECT_EQ(alerts.notices, QStringList()) << "the task bar has it";
    EXPECT_EQ(text(control().dockIconMenuItem()), "off: Hide Dock Icon (Display-Dock-Hide)");
}

TEST_F(AppPresenceTest, withoutATrayForWhoWantsNothingElse_theTaskBarStaysAndOneNoticeSaysSo) {
    controller.appDelegate().presence().setShowDockIcon(false, true);
    fakes.systemTray.give(Offer::None);
    launch();
    EXPECT_EQ(menus(), kAllMenus + ", Ticklog");
    EXPECT_TRUE(fakes.taskBar.isListed);
    EXPECT_EQ(storedType(), 0) << "what the user wants is kept";
    EXPECT_EQ(alerts.notices, QStringList{QStringLiteral("There is no system tray.")});
    fakes.systemTray.give(Offer::Embedded);
    EXPECT_TRUE(hasIcon());
    EXPECT_EQ(menus(), "");
    EXPECT_FALSE(fakes.taskBar.isListed);
    fakes.systemTray.give(Offer::None);
    EXPECT_EQ(menus(), kAllMenus + ", Ticklog");
    EXPECT_TRUE(fakes.taskBar.isListed);
    EXPECT_EQ(alerts.notices.size(), 1) << "once is enough";
}

TEST_F(AppPresenceTest, withoutATrayAndWithoutAWishForOne_nothingIsSaid) {
    fakes.defaults.setObject(kTKPrefShowMenuItem, false);
    fakes.systemTray.give(Offer::None);
    launch();
    EXPECT_EQ(menus(), kAllMenus);
    EXPECT_FALSE(fakes.log.mentions(QStringLiteral("has no tray")));
}

TEST_F(AppPresenceTest, closedWithAnIconInTheTray_theWindowGoes) {
    launch();
    controller.window().close();
    EXPECT_FALSE(controller.window().isVisible());
    EXPECT_EQ(alerts.notices, QStringList());
}

TEST_F(AppPresenceTest, closedWithoutATray_theWindowIsMinimisedAndThatIsSaidOnce) {
    fakes.systemTray.give(Offer::None);
    launch();
    for (int time = 0; time < 2; ++time) {
        command(actions().closeWindow);
        EXPECT_TRUE(isMinimized()) << "or nothing would lead back to it";
        EXPECT_EQ(alerts.notices, QStringList{QStringLiteral("Ticklog keeps running in the task bar.")});
        controller.displayMainWindow();
        EXPECT_FALSE(controller.window().isMinimized());
    }
}

TEST_F(AppPresenceTest, closedWhileOnlyTheTaskBarHasIt_theWindowIsMinimised) {
    launch();
    choose(control().menuItemMenuItem());
    controller.window().close();
    EXPECT_TRUE(isMinimized());
    choose(control().menuItemMenuItem());
    EXPECT_FALSE(controller.window().isVisible()) << "it was closed, and now there is an icon";
}

TEST_F(AppPresenceTest, closedBeforeTheTrayIsKnown_theWindowIsMinimisedAndThatIsSaidWhenItIs) {
    fakes.systemTray.give(Offer::Unknown);
    launch();
    controller.window().close();
    EXPECT_TRUE(isMinimized());
    EXPECT_EQ(alerts.notices, QStringList());
    fakes.systemTray.give(Offer::None);
    EXPECT_EQ(alerts.notices.size(), 1) << "nor will it have one";
}

TEST_F(AppPresenceTest, theTrayGoingWhileTheWindowIsClosed_bringsTheTaskBarsEntryBack) {
    controller.appDelegate().presence().setShowDockIcon(false, true);
    launch();
    controller.window().close();
    EXPECT_FALSE(controller.window().isVisible());
    fakes.systemTray.give(Offer::None);
    EXPECT_TRUE(isMinimized());
    fakes.systemTray.give(Offer::Embedded);
    EXPECT_FALSE(controller.window().isVisible()) << "as it was before";
}

TEST_F(AppPresenceTest, aWindowBroughtBackWithoutTheTray_staysWhenTheTrayReturns) {
    launch();
    controller.window().close();
    fakes.systemTray.give(Offer::None);
    controller.displayMainWindow();
    fakes.systemTray.give(Offer::Embedded);
    EXPECT_TRUE(controller.window().isVisible());
    EXPECT_FALSE(controller.window().isMinimized());
}

TEST_F(AppPresenceTest, aQuitThatClosesAllWindows_isNotHeldUp) {
    fakes.systemTray.give(Offer::None);
    launch();
    constexpr int kHeldUp = 1;
    QTimer::singleShot(0, qApp, [] {
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        if (!quit.isAccepted())
            QCoreApplication::exit(kHeldUp);
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_FALSE(controller.window().isVisible());
    EXPECT_EQ(alerts.notices, QStringList());
}

TEST_F(AppPresenceTest, begunWithoutItsWindow_aTrayThatComesLateGetsTheIconAndNothingIsSaid) {
    presence().setShowDockIcon(false, true);
    fakes.systemTray.give(Offer::Unknown);
    controller.awakeFromNib();
    controller.appDelegate().applicationDidFinishLaunching();
    settle();
    EXPECT_FALSE(controller.window().isVisible());
    fakes.systemTray.give(Offer::None);
    EXPECT_TRUE(isMinimized()) << "something must lead to it meanwhile";
    EXPECT_TRUE(fakes.taskBar.isListed);
    fakes.systemTray.give(Offer::Exported);
    EXPECT_TRUE(hasIcon());
    EXPECT_FALSE(controller.window().isVisible());
    EXPECT_EQ(alerts.notices, QStringList());
}

TEST_F(AppPresenceTest, theDisplayStateMenu_togglesTheDockIcon) {
    // Small enough that the menu fits below the control.
    controller.window().resize(controller.window().minimumSize());
    launch();
    controller.showDisplayStateMenu(&control());
    auto* menu = controller.window().findChild<QMenu*>(QStringLiteral("displayStateMenu"));
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().first()->text(), QStringLiteral("Test"));
    EXPECT_TRUE(menu->actions().first()->shortcut().isEmpty());
    EXPECT_EQ(menu->pos(), control().mapToGlobal(QPoint(0, 0)));
    menu->actions().first()->trigger();
    menu->close();
    EXPECT_EQ(storedType(), 0);
    controller.showDisplayStateMenu(nullptr);
    settle();
    menu = controller.window().findChild<QMenu*>(QStringLiteral("displayStateMenu"));
    EXPECT_EQ(menu->pos(), controller.window().mapToGlobal(QPoint(0, 0)));
    menu->close();
}

TEST_F(AppPresenceTest, theControl_isReachedByKeyboardAndNamed) {
    EXPECT_EQ(control().objectName(), QStringLiteral("appTypeToolbar"));
    EXPECT_FALSE(control().accessibleName().isEmpty());
    EXPECT_TRUE(control().focusPolicy() & Qt::TabFocus);
}

TEST(AppPresencePreferences, aChoiceInThePreferences_holdsAtOnce) {
    SetupDesk desk;
    desk.show();
    desk.controller.appDelegate().applicationDidFinishLaunching();
    AppPresence& presence = desk.controller.appDelegate().presence();
    auto& choice = desk.control<QComboBox>("presence");
    const auto choose = [&](const char* text) {
        choice.setCurrentText(QLatin1String(text));
        Q_EMIT choice.activated(choice.currentIndex());
        desk.settle();
    };
    choose("System tray");
    EXPECT_FALSE(desk.fakes.taskBar.isListed);
    EXPECT_TRUE(desk.controller.window().menuBar()->actions().isEmpty());
    EXPECT_NE(presence.statusBarItem(), nullptr);
    choose("Task bar");
    EXPECT_TRUE(desk.fakes.taskBar.isListed);
    EXPECT_EQ(desk.controller.window().menuBar()->actions().size(), 7);
    EXPECT_EQ(presence.statusBarItem(), nullptr);
    choose("Task bar and system tray");
    EXPECT_NE(presence.statusBarItem(), nullptr);
    desk.controller.toggleDockIcon();
    EXPECT_EQ(choice.currentText(), QStringLiteral("System tray"));
}

TEST(AppPresencePreferences, aChoiceInThePreferences_neverBringsTheWindowOverThem) {
    SetupDesk desk;
    desk.show();
    desk.controller.appDelegate().applicationDidFinishLaunching();
    desk.setup.showPrefWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desk.setup.prefWindow()));
    auto& choice = desk.control<QComboBox>("presence");
    for (const char* text : {"System tray", "Task bar", "System tray", "Task bar and system tray"}) {
        choice.setCurrentText(QLatin1String(text));
        Q_EMIT choice.activated(choice.currentIndex());
        desk.settle();
        EXPECT_TRUE(desk.setup.prefWindow().isActiveWindow()) << text;
    }
    desk.controller.window().close();
    choice.setCurrentText(QStringLiteral("System tray"));
    Q_EMIT choice.activated(choice.currentIndex());
    EXPECT_FALSE(desk.controller.window().isVisible());
    choice.setCurrentText(QStringLiteral("Task bar"));
    Q_EMIT choice.activated(choice.currentIndex());
    desk.settle();
    EXPECT_TRUE(desk.controller.window().isMinimized()) << "the icon is gone, and something must lead to it";
}
