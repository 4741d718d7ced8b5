// SPDX-License-Identifier: MIT
// Every window, dialogue, bar and menu as people hear it, and as they go through it by the keyboard.
#include "Classes/rules/RuleCategories.h"
#include "interface/absences/AbsenceBar.h"
#include "interface/history/DayPicture.h"
#include "interface/history/TimeSheetWindow.h"
#include "interface/labels/TKLabelButton.h"
#include "interface/mainwindow/AppTypeControl.h"
#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/FirstStart.h"
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/mainwindow/SumOfTimesLabel.h"
#include "interface/setup/SetupWindow.h"
#include "interface/setup/WelcomePage.h"
#include "interface/shell/PauseMenu.h"
#include "interface/shell/QtAlerts.h"
#include "interface/shell/SpokenItem.h"
#include "interface/sidebar/ProjectPatternsWindow.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/HeardWindow.h"
#include "tests/interface/HistoryViewDesk.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenuBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

// A desk on which every window has something to show.
struct HeardWindowsTest : testing::Test, HistoryViewDesk {
    HeardWindowsTest() {
        account("Mail", 60, {{QStringLiteral("Drafts"), 5}, {QStringLiteral("Inbox"), 20}});
        account("Paint", 30);
        addProject("Poster", 3);
        addProject("Letters", 0);
        fakes.clock.advance(std::chrono::hours(9));
        past(today(0, 10), 900, "Mail", "Inbox");
        past(today(1), 600, "Paint", "Plan");
    }

    void addProject(const char* label, int tag) {
        const auto project = controller.projects().addNewProjectWithItems(
            {*(*controller.tracker().fullTimeSet().begin())->uuid()});
        controller.projects().setLabel(*project, QString::fromUtf8(label));
        controller.projects().setSelectedColorTag(*project, tag);
    }

    MainWindow& window() { return controller.window(); }

    void chooseProject(int row) {
        auto& outline = window().projectOutline();
        outline.setCurrentIndex(outline.model()->index(row, 0));
        settle();
    }

    template<class Part>
    Part& child(QWidget& parent, const char* name) {
        auto* found = parent.findChild<Part*>(QLatin1String(name));
        return found ? *found : throw std::invalid_argument(name);
    }

    void listenTo(QWidget& heard, const char* where) {
        settle();
        ASSERT_TRUE(heard.isVisible()) << where;
        const QStringList complaints = HeardWindow(heard).complaints();
        EXPECT_TRUE(complaints.isEmpty()) << where << ":\n  " << str(complaints.join(QStringLiteral("\n  ")));
        ++heardOnes;
    }

    void listenToMenu(QMenu& menu, const char* where) {
        menu.popup({10, 10});
        listenTo(menu, where);
        menu.close();
        settle();
    }

    int heardOnes = 0;
};

} // namespace

TEST_F(HeardWindowsTest, theMainWindow_isSpokenAsPeopleSpeak) {
    show();
    window().obstacleBar().showObstacle(QStringLiteral("The disk is full."));
    window().obstacleBar().offerRemedy(true);
    window().obstacleBar().offerAcknowledgement(true);
    listenTo(window(), "all timers");
    chooseProject(1);
    listenTo(window(), "a project");
    window().absenceBar().setProjects({{QStringLiteral("Poster"), Qt::yellow}});
    window().absenceBar().ask({{2, QStringLiteral("14:12 – 14:40")}, {1, QStringLiteral("12:03 – 13:10")}});
    child<QLineEdit>(window().absenceBar(), "absenceName").setText(QStringLiteral("Visit"));
    listenTo(window(), "the absences");
    window().absenceBar().ask({});
    chooseProject(0);
    table().setCurrentIndex(row("Paint"));
    table().editName();
    settle();
    const auto* editor = table().findChild<QLineEdit*>(QStringLiteral("programEditor"));
    ASSERT_NE(editor, nullptr);
    EXPECT_FALSE(HeardWindow::isIdentifier(editor->accessibleName()));
    EXPECT_FALSE(editor->accessibleName().isEmpty());
}

TEST_F(HeardWindowsTest, theFirstStart_isSpokenAsPeopleSpeak) {
    const FirstStart first(controller, fakes.defaults,
                           {.isEnabled = [] { return false; }, .setEnabled = [](bool) {}}, [] {});
    show();
    listenTo(window(), "the first start");
    EXPECT_EQ(child<QPushButton>(window(), "welcomeStart").accessibleDescription(), WelcomePage::text());
}

TEST_F(HeardWindowsTest, theHistory_isSpokenAsPeopleSpeak) {
    showHistory();
    for (QAction* kind : historyActions().kinds) {
        command(kind);
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        listenTo(window(), qPrintable(kind->objectName()));
        child<QToolButton>(window(), "historyTitle").click();
        settle();
        auto& calendar = child<QFrame>(window(), "historyCalendar");
        listenTo(calendar, "the calendar");
        calendar.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(heardOnes, 10);
}

TEST_F(HeardWindowsTest, everyMenu_isSpokenAsPeopleSpeak) {
    show();
    chooseProject(1);
    for (QAction* title : window().menuBar()->actions())
        listenToMenu(*title->menu(), qPrintable(title->text()));
    listenToMenu(*window().appTypeToolbar().menu(), "where Ticklog is found");
    listenToMenu(*actions().addToProject->menu(), "projects");
    listenToMenu(*historyActions().amend.give, "projects for the past");
    StatusMenu& status = controller.appDelegate().statusMenu();
    Q_EMIT status.mainMenu().aboutToShow();
    listenToMenu(status.mainMenu(), "the tray");
    listenToMenu(status.applicationTimesMenu(), "the tray's timers");
    for (const QWidget* outline :
         {static_cast<QWidget*>(&table()), static_cast<QWidget*>(&window().projectOutline())}) {
        const_cast<QWidget*>(outline)->setFocus();
        Q_EMIT static_cast<TKOutlineDisplayView*>(const_cast<QWidget*>(outline))->menuRequested({10, 10});
        settle();
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        listenTo(*QApplication::activePopupWidget(), "a context menu");
        QApplication::activePopupWidget()->close();
        settle();
    }
    EXPECT_GE(heardOnes, 13);
}

TEST_F(HeardWindowsTest, theDialogues_areSpokenAsPeopleSpeak) {
    showHistory();
    command(historyActions().today);
    command(historyActions().timeSheet);
    listenTo(*view.timeSheet(), "the time sheet");
    view.timeSheet()->close();
    view.showPiece(std::pair(today(2).toMSecsSinceEpoch(), today(4).toMSecsSinceEpoch()));
    settle();
    command(historyActions().amend.book);
    listenTo(child<QDialog>(window(), "bookingWindow"), "booking");
    child<QDialog>(window(), "bookingWindow").reject();
    view.showPiece(std::nullopt);
    settle();
    pane().dayPicture().setFocus();
    pane().dayPicture().setCurrentItem(0);
    command(historyActions().amend.name);
    listenTo(child<QDialog>(window(), "namingWindow"), "naming");
    child<QDialog>(window(), "namingWindow").reject();
    command(actions().showTimers);
    chooseProject(1);
    controller.projects().setPatterns(*controller.projects().projects().front(),
                                      {PropertyListDictionary{{kTitleRuleProgram, QStringLiteral("Paint")}}});
    command(actions().editPatterns);
    listenTo(*controller.projectController().patternsWindow(), "patterns");
    controller.projectController().patternsWindow()->close();
    command(actions().showManual);
    listenTo(child<QDialog>(window(), "manualWindow"), "the manual");
    child<QDialog>(window(), "manualWindow").close();
    EXPECT_EQ(heardOnes, 5);
}

TEST_F(HeardWindowsTest, thePreferences_areSpokenAsPeopleSpeak) {
    defaults().setObject(kSaveTimerPeriodically, true);
    defaults().setObject(
        kRulesetKey,
        PropertyListDictionary{
            {QStringLiteral("Paint"), PropertyListDictionary{{kRuleCategories, QStringLiteral("a,b")}}}});
    setup.showPrefWindow();
    for (const char* tab : {"General", "Lists", "Archive", "Match", "Titles", "History"}) {
        setup.prefWindow().selectTab(QLatin1String(tab));
        listenTo(setup.prefWindow(), tab);
    }
    setup.editRules();
    setup.rulesTab().select(0);
    setup.editRule();
    listenTo(setup.ruleWindow(), "a rule");
    setup.cancelEditingRule();
    setup.prefWindow().selectTab(QStringLiteral("Titles"));
    settle();
    setup.titlesTab().select(0);
    setup.titlesTab().showMet();
    ASSERT_NE(setup.titlesTab().metWindow(), nullptr);
    listenTo(*setup.titlesTab().metWindow(), "the titles that a rule meets");
    setup.titlesTab().metWindow()->close();
    setup.titlesTab().edit();
    listenTo(setup.titlesTab().sheet(), "a rule for titles");
    setup.titlesTab().sheet().reject();
    setup.forgetHistory();
    seconds(1);
    listenTo(*setup.forgetWindow(), "forgetting");
    setup.forgetWindow()->close();
    EXPECT_EQ(heardOnes, 10);
}

TEST_F(HeardWindowsTest, theAlerts_areSpokenAsPeopleSpeak) {
    show();
    QtAlerts boxes;
    boxes.setWindow(&window());
    const auto whenOpen = [&](const char* where) {
        QTimer::singleShot(0, qApp, [this, where] {
            QWidget* box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr) << where;
            listenTo(*box, where);
            box->close();
        });
    };
    whenOpen("a question");
    boxes.ask({QStringLiteral("Really?"), QStringLiteral("It cannot be undone."), QStringLiteral("Keep"),
               QStringLiteral("Delete"), QStringLiteral("Later"), Alerts::Default});
    whenOpen("an error");
    boxes.showError(QStringLiteral("It failed."), QStringLiteral("The disk is full."));
    boxes.showNotice(QStringLiteral("It is done."), QStringLiteral("All of it."));
    const auto windows = QApplication::topLevelWidgets();
    const auto notice =
        std::ranges::find_if(windows, [](const QWidget* each) { return each->objectName() == u"notice"; });
    ASSERT_NE(notice, windows.end());
    listenTo(**notice, "a notice");
    EXPECT_EQ(heardOnes, 3);
}

TEST_F(HeardWindowsTest, theSetup_isSpokenAsPeopleSpeak) {
    SetupWindow setupWindow({[] {}, [] {}});
    setupWindow.makeKeyAndOrderFront();
    for (int step = 0; step <= 4; ++step) {
        setupWindow.instructionView().moveToStep(step, false);
        listenTo(setupWindow, qPrintable(QString::number(step)));
    }
}

TEST_F(HeardWindowsTest, theSum_saysItsKindAndHasNothingThatAnnouncesItsChanges) {
    show();
    auto& sum = child<QLabel>(window(), "timeSum");
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&sum);
    EXPECT_EQ(str(heard->text(QAccessible::Name)), "Total, 00:01:30");
    table().setCurrentIndex(row("Paint"));
    EXPECT_EQ(str(heard->text(QAccessible::Name)), "Selected, 00:00:30");
    table().clearSelection();
    // A field announces each change of its text, twice; so does a label without a name of its own, once.
    EXPECT_FALSE(qobject_cast<QLineEdit*>(&sum));
    EXPECT_FALSE(sum.accessibleName().isEmpty());
    EXPECT_EQ(heard->textInterface(), nullptr);
}

TEST_F(HeardWindowsTest, theSum_standsStillForWhoSelectsOrListens) {
    show();
    window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    auto& sum = child<QLabel>(window(), "timeSum");
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(2);
    sum.setFocus();
    QTest::keyClick(&sum, Qt::Key_A, Qt::ControlModifier);
    const QString held = sum.text();
    EXPECT_EQ(str(sum.selectedText()), str(held));
    seconds(3);
    EXPECT_EQ(str(sum.selectedText()), str(held));
    QTest::keyClick(&sum, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(str(QApplication::clipboard()->text()), str(held));
    sum.setSelection(0, 0);
    table().setFocus();
    EXPECT_NE(str(sum.text()), str(held));
}

TEST(SumOfTimesLabelTest, withTheFocus_itStandsStillForListenersAlone) {
    for (const bool isHeard : {false, true}) {
        QWidget window;
        auto* sum = new SumOfTimesLabel([isHeard] { return isHeard; });
        auto* other = new QLineEdit;
        auto* rows = new QVBoxLayout(&window);
        rows->addWidget(sum);
        rows->addWidget(other);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        sum->showTime(QStringLiteral("00:00:01"));
        sum->setFocus();
        sum->showTime(QStringLiteral("00:00:02"));
        EXPECT_EQ(str(sum->text()), isHeard ? "00:00:01" : "00:00:02");
        other->setFocus();
        EXPECT_EQ(str(sum->text()), "00:00:02");
    }
}

TEST_F(HeardWindowsTest, whatHappensElsewhere_isAnnounced) {
    show();
    window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    const auto announced = [this] {
        auto* said = window().findChild<QWidget*>(QStringLiteral("announcement"));
        if (!said || !said->isVisible())
            return std::string("nothing");
        EXPECT_EQ(QAccessible::queryAccessibleInterface(said)->role(), QAccessible::Notification);
        return str(QAccessible::queryAccessibleInterface(said)->text(QAccessible::Name));
    };
    EXPECT_EQ(announced(), "nothing");
    command(actions().toggleCounting);
    EXPECT_EQ(announced(), "Ticklog is counting");
    command(actions().toggleCounting);
    EXPECT_EQ(announced(), "Ticklog is paused");
    table().setCurrentIndex(row("Paint"));
    command(actions().copy);
    chooseProject(2);
    command(actions().paste);
    EXPECT_EQ(announced(), "Add to Project");
    command(actions().undo);
    EXPECT_EQ(announced(), "Undo: Add to Project");
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    command(actions().redo);
    EXPECT_EQ(announced(), "Undo: Add to Project") << "whoever is elsewhere is not disturbed";
}

TEST_F(HeardWindowsTest, theCutOff_speaksTimesAndNotSteps) {
    show();
    CutoffSlider& cutoff = window().sumBar().cutoff();
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&cutoff);
    ASSERT_NE(heard->valueInterface(), nullptr);
    heard->valueInterface()->setCurrentValue(290);
    EXPECT_EQ(cutoff.seconds(), 300);
    EXPECT_EQ(heard->valueInterface()->currentValue().toDouble(), 300);
    EXPECT_EQ(str(heard->text(QAccessible::Value)), "5 minutes");
    EXPECT_EQ(str(heard->text(QAccessible::Name)), "At least 5 minutes");
    EXPECT_EQ(heard->role(), QAccessible::Slider);
    cutoff.setFocus();
    QTest::keyClick(&cutoff, Qt::Key_Right);
    EXPECT_EQ(str(spokenItem(cutoff)), "7 minutes");
}

TEST_F(HeardWindowsTest, theHeadings_areHeardAsOneGoesAlongThemAndSorts) {
    show();
    QHeaderView& header = *table().header();
    header.setFocus();
    QTest::keyClick(&header, Qt::Key_Right);
    EXPECT_EQ(str(spokenItem(header)), "Time Spent");
    QTest::keyClick(&header, Qt::Key_Space);
    EXPECT_EQ(str(spokenItem(header)), "Time Spent, sorted, ascending");
    QTest::keyClick(&header, Qt::Key_Space);
    EXPECT_EQ(str(spokenItem(header)), "Time Spent, sorted, descending");
}

TEST_F(HeardWindowsTest, aColour_isHeardInTheSidebarAndInTheRows) {
    show();
    const QAbstractItemModel& projects = *window().projectOutline().model();
    EXPECT_EQ(str(projects.index(1, 0).data(Qt::AccessibleTextRole).toString()), "Poster, Yellow, 00:01:00");
    EXPECT_EQ(str(projects.index(2, 0).data(Qt::AccessibleTextRole).toString()), "Letters, 00:01:00");
    EXPECT_FALSE(projects.headerData(0, Qt::Horizontal, Qt::DisplayRole).isValid()) << "it is hidden";
    const QString first = row("Mail").data(Qt::AccessibleTextRole).toString() +
                          row("Paint").data(Qt::AccessibleTextRole).toString();
    EXPECT_EQ(first.count(QStringLiteral("Yellow")), 1) << str(first);
}

TEST_F(HeardWindowsTest, theColours_areChoicesThatSayWhichHolds) {
    show();
    chooseProject(1);
    QMenu& menu = window().projectMenu();
    menu.popup({10, 10});
    auto& yellow = child<TKLabelButton>(menu, "color3");
    auto& red = child<TKLabelButton>(menu, "color1");
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&yellow);
    EXPECT_EQ(heard->role(), QAccessible::RadioButton);
    EXPECT_EQ(str(heard->text(QAccessible::Name)), "Yellow");
    EXPECT_TRUE(heard->state().checked);
    EXPECT_TRUE(heard->state().focusable);
    QAccessibleInterface* other = QAccessible::queryAccessibleInterface(&red);
    EXPECT_FALSE(other->state().checked);
    const QImage unfocused = yellow.grab().toImage();
    yellow.setFocus();
    EXPECT_NE(yellow.grab().toImage(), unfocused) << "the one that is chosen shows the focus, too";
    other->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    settle();
    EXPECT_EQ(controller.projects().projects().front()->colorTag(), 1);
}

TEST_F(HeardWindowsTest, fromRightToLeft_theArrowsFollowTheColoursAsTheyAreSeen) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    show();
    chooseProject(1);
    QMenu& menu = window().projectMenu();
    menu.popup({10, 10});
    auto& yellow = child<TKLabelButton>(menu, "color3");
    yellow.setFocus();
    QTest::keyClick(&yellow, Qt::Key_Left);
    const QWidget* next = QApplication::focusWidget();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(str(next->objectName()), "color4");
    menu.close();
}
