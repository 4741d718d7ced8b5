// SPDX-License-Identifier: MIT
// The menu of the tray icon when it is opened.
#include "interface/shell/StatusMenu.h"
#include "tests/interface/ProjectDesk.h"

#include <gtest/gtest.h>

namespace {

using Offer = SystemTray::Offer;

struct StatusMenuTest : testing::Test, ProjectDesk {
    StatusMenuTest() { controller.appDelegate().applicationDidFinishLaunching(); }

    StatusMenu& menu() { return controller.appDelegate().statusMenu(); }

    QMenu& mainMenu() { return menu().mainMenu(); }

    QMenu& allTimers() { return menu().applicationTimesMenu(); }

    // Like a menu that signals its opening.
    static void open(QMenu& opened) { Q_EMIT opened.aboutToShow(); }

    static void close(QMenu& closed) { Q_EMIT closed.aboutToHide(); }

    void openAllTimers() {
        open(mainMenu());
        open(allTimers());
    }

    // "Start | Show Time Window | - | All Timers > | ...": the two lines of an entry are separated by a
    // slash.
    static std::string text(const QMenu& menu) {
        QStringList entries;
        for (const QAction* action : menu.actions())
            entries << (action->isSeparator() ? QStringLiteral("-")
                                              : action->text().replace(u'\n', u'/') +
                                                    (action->menu() ? QStringLiteral(" >") : QString()));
        return str(entries.join(QStringLiteral(" | ")));
    }

    static QAction* entry(const QMenu& menu, const char* beginning) {
        for (QAction* action : menu.actions())
            if (action->text().startsWith(QLatin1String(beginning)))
                return action;
        throw std::invalid_argument(beginning);
    }

    void pick(const char* text) {
        open(mainMenu());
        entry(mainMenu(), text)->trigger();
        close(mainMenu());
        settle();
    }

    // Counts how often an entry's text changes.
    struct Changes {
        explicit Changes(const QAction* action) {
            QObject::connect(action, &QAction::changed, &receiver, [this] { ++count; });
        }

        int count = 0;
        QObject receiver;
    };
};

} // namespace

TEST_F(StatusMenuTest, withoutProjects_holdsTheTimerTheTimesAndTheCommands) {
    open(mainMenu());
    EXPECT_EQ(text(mainMenu()),
              "Start | Show Time Window | - | All Timers > | - | Preferences... | About... | Quit");
    EXPECT_EQ(mainMenu().title(), QStringLiteral("Ticklog"));
    for (const QAction* action : mainMenu().actions())
        EXPECT_TRUE(action->shortcut().isEmpty()) << str(action->text());
}

TEST_F(StatusMenuTest, theRunningTimer_canBePausedFromIt) {
    pick("Start");
    EXPECT_TRUE(controller.timer().isRunning());
    open(mainMenu());
    EXPECT_EQ(entry(mainMenu(), "Pause"), mainMenu().actions().first());
    pick("Pause");
    EXPECT_FALSE(controller.timer().isRunning());
    EXPECT_EQ(mainMenu().actions().first()->text(), QStringLiteral("Start"));
}

TEST_F(StatusMenuTest, projects_areListedIndentedInTheirOrder) {
    mailNotesAndPaint();
    addProject("Work", {QStringLiteral("Notes"), QStringLiteral("Inbox")});
    addProject("R&D");
    open(mainMenu());
    EXPECT_EQ(text(mainMenu()), "Start | Show Time Window | - | All Timers > |   Work > |   R&&D > | - | "
                                "Preferences... | About... | Quit");
    QMenu& work = *entry(mainMenu(), "  Work")->menu();
    EXPECT_TRUE(work.isEmpty()) << "filled when it is shown";
    open(work);
    EXPECT_EQ(text(work), "Inbox/00:00:20 | Notes/00:01:40 >");
    projects().setLabel(*projects().projects().front(), QStringLiteral("Play"));
    open(mainMenu());
    EXPECT_EQ(mainMenu().actions().at(4)->text(), QStringLiteral("  Play"));
}

TEST_F(StatusMenuTest, aMemberThatIsTakenOut_isGoneAtTheNextOpening) {
    mailNotesAndPaint();
    addProject("Work", {QStringLiteral("Notes"), QStringLiteral("Paint")});
    open(mainMenu());
    open(*entry(mainMenu(), "  Work")->menu());
    const auto members = timers({QStringLiteral("Notes")});
    projects().removeMembers(*projects().projects().front(), {members.begin(), members.end()});
    close(mainMenu());
    open(mainMenu());
    QMenu& work = *entry(mainMenu(), "  Work")->menu();
    open(work);
    EXPECT_EQ(text(work), "Paint/00:00:30");
}

TEST_F(StatusMenuTest, allTimers_listsApplicationsWithTheirWindowsAndTheSum) {
    mailNotesAndPaint();
    openAllTimers();
    EXPECT_EQ(allTimers().title(), QStringLiteral("All Timers"));
    EXPECT_EQ(text(allTimers()), "Mail/00:01:00 > | Notes/00:01:40 > | Paint/00:00:30 | - | total/00:03:10");
    QMenu& mail = *entry(allTimers(), "Mail")->menu();
    open(mail);
    EXPECT_EQ(text(mail), "Drafts/00:00:05 | Inbox/00:00:20");
    open(mail);
    EXPECT_EQ(mail.actions().size(), 2) << "not filled twice";
}

TEST_F(StatusMenuTest, nothingTimed_leavesASeparatorAndTheSum) {
    openAllTimers();
    EXPECT_EQ(text(allTimers()), "- | total/00:00:00");
    openAllTimers();
    EXPECT_EQ(text(allTimers()), "- | total/00:00:00");
}

TEST_F(StatusMenuTest, aSearchInTheWindow_narrowsAllTimersAndTheSum) {
    mailNotesAndPaint();
    show();
    type("inbox");
    openAllTimers();
    EXPECT_EQ(text(allTimers()), "Mail/00:01:00 > | - | found/00:00:20");
    QMenu& mail = *entry(allTimers(), "Mail")->menu();
    open(mail);
    EXPECT_EQ(text(mail), "Inbox/00:00:20");
    type("");
    openAllTimers();
    EXPECT_EQ(allTimers().actions().size(), 5);
}

TEST_F(StatusMenuTest, aProjectInTheWindow_isWhatTheSumTells) {
    mailNotesAndPaint();
    addProject("Work", {QStringLiteral("Notes")});
    show();
    choose(1);
    openAllTimers();
    EXPECT_EQ(text(allTimers()),
              "Mail/00:01:00 > | Notes/00:01:40 > | Paint/00:00:30 | - | project/00:01:40");
}

TEST_F(StatusMenuTest, whileTheWindowIsClosed_theTimersAreUpToDateAllTheSame) {
    account("Mail", 5);
    controller.timer().startTimer();
    for (const char* name : {"Zeta", "Alpha"}) {
        front(name, "Window");
        seconds(3);
    }
    openAllTimers();
    EXPECT_EQ(text(allTimers()).substr(0, 24), "Alpha/00:00:03 > | Mail/") << text(allTimers());
    EXPECT_FALSE(controller.window().isVisible());
}

TEST_F(StatusMenuTest, timesMoveWhileItIsOpen_andStopAtItsClosing) {
    account("Mail", 5);
    account("Paint", 7);
    controller.timer().startTimer();
    front("Mail", "Inbox");
    seconds(0.5);
    openAllTimers();
    EXPECT_TRUE(menu().displayingAppMenu());
    const QAction* mail = entry(allTimers(), "Mail");
    Changes paint(entry(allTimers(), "Paint"));
    seconds(2);
    EXPECT_EQ(mail->text(), QStringLiteral("Mail\n00:00:07"));
    EXPECT_EQ(entry(allTimers(), "total")->text(), QStringLiteral("total\n00:00:14"));
    EXPECT_EQ(paint.count, 0) << "what has not changed is left alone";
    close(allTimers());
    EXPECT_TRUE(menu().displayingAppMenu());
    close(mainMenu());
    EXPECT_FALSE(menu().displayingAppMenu());
    Changes closed(mail);
    seconds(10);
    EXPECT_EQ(closed.count, 0);
}

TEST_F(StatusMenuTest, submenus_joinTheEntriesThatMoveWhenTheyOpen) {
    mailNotesAndPaint();
    controller.timer().startTimer();
    front("Mail", "Inbox");
    open(mainMenu());
    EXPECT_EQ(menu().menuItemUpdateSet().size(), 0U) << "of the last opening nothing is left";
    open(allTimers());
    EXPECT_EQ(menu().menuItemUpdateSet().size(), 3U);
    QMenu& mail = *entry(allTimers(), "Mail")->menu();
    open(mail);
    EXPECT_EQ(menu().menuItemUpdateSet().size(), 5U);
    seconds(5);
    EXPECT_EQ(entry(mail, "Inbox")->text(), QStringLiteral("Inbox\n00:00:25"));
    close(mainMenu());
    EXPECT_EQ(menu().menuItemUpdateSet().size(), 5U) << "kept until it is opened again";
}

TEST_F(StatusMenuTest, timersClearedWhileItIsOpen_doNoHarm) {
    mailNotesAndPaint();
    controller.timer().startTimer();
    front("Mail", "Inbox");
    openAllTimers();
    alerts.answer = Alerts::Alternate;
    controller.clearTimers();
    seconds(2);
    openAllTimers();
    EXPECT_EQ(text(allTimers()), "Mail/00:00:02 > | - | total/00:00:02");
}

TEST_F(StatusMenuTest, aRenamedTimer_tellsBothNames) {
    account("Mail", 30);
    controller.tracker().fullTimeSet().front()->setRenamedNameFormatted(
        {{kRecordName, QStringLiteral("Post & more")}});
    openAllTimers();
    auto* mail = dynamic_cast<TimerMenuItem*>(allTimers().actions().first());
    EXPECT_EQ(str(mail->text()), str(QStringLiteral("Post && more – Mail\n00:00:30")));
    EXPECT_EQ(mail->dimmedLength(), 7);
}

TEST_F(StatusMenuTest, aTimerRenamedBetweenTwoOpenings_showsItsNewName) {
    account("Mail", 30);
    openAllTimers();
    close(mainMenu());
    controller.tracker().fullTimeSet().front()->setRenamedNameFormatted(
        {{kRecordName, QStringLiteral("Post")}});
    openAllTimers();
    EXPECT_EQ(text(allTimers()), "Post \u2013 Mail/00:00:30 | - | total/00:00:30");
}

TEST_F(StatusMenuTest, aWindowFrozenBetweenTwoOpenings_showsItsFrozenName) {
    account("Mail", 60, {{QStringLiteral("Inbox"), 20}});
    const auto windows = [&] {
        openAllTimers();
        QMenu& mail = *entry(allTimers(), "Mail")->menu();
        open(mail);
        return text(mail);
    };
    EXPECT_EQ(windows(), "Inbox/00:00:20");
    close(mainMenu());
    const auto inbox = controller.tracker().fullTimeSet().front()->windows().front();
    controller.branchNode(*inbox);
    EXPECT_TRUE(windows().starts_with(str(QStringLiteral("Inbox \u2013 Inbox (Frozen")))) << windows();
}

TEST_F(StatusMenuTest, anApplicationThatGotItsFirstWindowSince_hasASubmenu) {
    account("Mail", 60);
    controller.timer().startTimer();
    openAllTimers();
    EXPECT_EQ(text(allTimers()), "Mail/00:01:00 | - | total/00:01:00");
    close(mainMenu());
    front("Mail", "Inbox");
    seconds(2);
    openAllTimers();
    ASSERT_EQ(text(allTimers()), "Mail/00:01:02 > | - | total/00:01:02");
    QMenu& mail = *entry(allTimers(), "Mail")->menu();
    open(mail);
    EXPECT_EQ(text(mail), "Inbox/00:00:02");
}

TEST_F(StatusMenuTest, anApplicationThatLostItsLastWindow_hasNoSubmenuAnyMore) {
    account("Mail", 60, {{QStringLiteral("Inbox"), 20}});
    openAllTimers();
    close(mainMenu());
    controller.tracker().removeUUIDs(
        {*controller.tracker().fullTimeSet().front()->windows().front()->uuid()});
    openAllTimers();
    EXPECT_EQ(text(allTimers()), "Mail/00:01:00 | - | total/00:01:00");
}

TEST_F(StatusMenuTest, itsCommands_reachWhatTheyName) {
    pick("Show Time Window");
    EXPECT_TRUE(controller.window().isVisible());
    pick("About...");
    for (const char* part : {"Ticklog 0.", "MIT", "a fake"})
        EXPECT_TRUE(alerts.about.contains(QLatin1String(part))) << part;
    bool wasAsked = false;
    QObject::connect(actions().showPrefWindow, &QAction::triggered, &controller.window(),
                     [&] { wasAsked = true; });
    pick("Preferences...");
    EXPECT_TRUE(wasAsked);
    controller.timer().startTimer();
    pick("Quit");
    EXPECT_EQ(alerts.questions, QStringList{QStringLiteral("Timer still running.")});
}

TEST_F(StatusMenuTest, aDesktopThatDrawsIt_getsTextThatItCannotMisread) {
    fakes.systemTray.give(Offer::Exported);
    account("my_tool & A&B", 30);
    account(QByteArray(200, 'x'), 5);
    openAllTimers();
    EXPECT_EQ(str(allTimers().actions().at(0)->text()),
              str(QStringLiteral("&my__tool & A&B\u2003\n00:00:30")));
    EXPECT_LT(allTimers().actions().at(1)->text().size(), 80);
}

TEST_F(StatusMenuTest, aDesktopThatNeverSaysItIsClosed_isNotToldForEver) {
    fakes.systemTray.give(Offer::Exported);
    account("Mail", 5);
    controller.timer().startTimer();
    front("Mail", "Inbox");
    openAllTimers();
    const QAction* mail = entry(allTimers(), "Mail");
    seconds(100);
    Changes changes(mail);
    seconds(10);
    EXPECT_EQ(changes.count, 10);
    seconds(30);
    EXPECT_FALSE(menu().displayingAppMenu());
    const int told = changes.count;
    seconds(60);
    EXPECT_EQ(changes.count, told);
    open(allTimers());
    EXPECT_TRUE(menu().displayingAppMenu()) << "a submenu opens in an open menu";
    seconds(5);
    EXPECT_GT(changes.count, told);
}

TEST_F(StatusMenuTest, aMenuOfOurOwn_staysAliveHoweverLongItIsOpen) {
    account("Mail", 5);
    controller.timer().startTimer();
    front("Mail", "Inbox");
    openAllTimers();
    seconds(600);
    EXPECT_EQ(entry(allTimers(), "Mail")->text(), QStringLiteral("Mail\n00:10:05"));
}

TEST_F(StatusMenuTest, openedAgainUnchanged_keepsItsEntries) {
    fakes.systemTray.give(Offer::Exported);
    mailNotesAndPaint();
    addProject("Work", {QStringLiteral("Notes")});
    openAllTimers();
    const auto entries = mainMenu().actions();
    const auto timers = allTimers().actions();
    openAllTimers();
    EXPECT_EQ(mainMenu().actions(), entries)
        << "a desktop that draws the menu is told of each that is another";
    EXPECT_EQ(allTimers().actions(), timers);
}

TEST_F(StatusMenuTest, manyTimers_costNothingWhileItIsClosedAndTheirWindowsOnlyWhenLookedAt) {
    for (int app = 0; app < 50; ++app) {
        std::vector<std::pair<QString, double>> windows;
        for (int window = 0; window < 100; ++window)
            windows.emplace_back(QString::number(window), 1);
        account(("App" + std::to_string(app)).c_str(), 100, windows);
    }
    openAllTimers();
    EXPECT_EQ(menu().menuItemUpdateSet().size(), 50U);
    QMenu& app = *entry(allTimers(), "App7")->menu();
    open(app);
    EXPECT_EQ(app.actions().size(), 100);
}

TEST_F(StatusMenuTest, drawn_hasTwoLinesAnEntryAndOneACommand) {
    mailNotesAndPaint();
    open(mainMenu());
    allTimers().popup(QPoint(0, 0));
    settle();
    const QRect mail = allTimers().actionGeometry(allTimers().actions().first());
    const int lineHeight = allTimers().fontMetrics().height();
    EXPECT_GT(mail.height(), lineHeight * 3 / 2);
    EXPECT_GT(allTimers().actionGeometry(entry(allTimers(), "total")).height(), lineHeight * 3 / 2);
    allTimers().close();
    mainMenu().popup(QPoint(0, 0));
    EXPECT_LT(mainMenu().actionGeometry(entry(mainMenu(), "Quit")).height(), 2 * lineHeight);
    mainMenu().close();
}
