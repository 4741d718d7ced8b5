// SPDX-License-Identifier: MIT
// The times in the sidebar, and what belongs to no project.
#include "Classes/common/Settings.h"
#include "interface/mainwindow/TKConstrainedSplitView.h"
#include "interface/sidebar/ProjectListModel.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/ProjectDesk.h"

#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct SidebarTimesTest : testing::Test, ProjectDesk {
    SidebarTimesTest() {
        account("Mail", 60, {{u"Inbox"_s, 20}, {u"Sent"_s, 30}});
        account("Notes", 100, {{u"List"_s, 40}, {u"Todo"_s, 60}});
        account("Paint", 30);
    }

    // "All Timers 00:03:10, Poster 00:01:40"
    std::string times() { return str(textOf(rows())); }

    std::string sumCaptionShown() {
        return str(controller.window().findChild<QLabel*>(u"timeSumCaption"_s)->text());
    }

    void frontWithoutWindow(const char* application) {
        front(application, "");
        fakes.windowList.windows.clear();
    }

    int restRow() { return rows().rowCount() - 1; }

    QModelIndex rest() { return at(restRow()); }

    void wish(const QString& key, bool isWanted) {
        fakes.defaults.setObject(key, isWanted);
        settle();
    }
};

} // namespace

TEST_F(SidebarTimesTest, eachProject_hasItsTimeBesideItsNameAndTheRestHasItsOwn) {
    addProject("Poster", {u"Mail"_s, u"List"_s});
    addProject("Nothing");
    show();
    EXPECT_EQ(times(), "All Timers 00:03:10, Poster 00:01:40, Nothing 00:00:00, No Project 00:01:30");
    choose(restRow());
    EXPECT_EQ(outlineText(), "Paint, Todo");
    EXPECT_EQ(str(sumShown()), "00:01:30");
}

TEST_F(SidebarTimesTest, withoutProjects_thereIsNoRest) {
    show();
    EXPECT_EQ(times(), "All Timers 00:03:10");
    addProject("Poster");
    settle();
    EXPECT_EQ(rows().rowCount(), 3);
    projects().removeProject(0);
    settle();
    EXPECT_EQ(rows().rowCount(), 1);
}

TEST_F(SidebarTimesTest, theLastProjectGoing_takesTheRestThatIsShownWithIt) {
    addProject("Poster", {u"Mail"_s});
    show();
    choose(restRow());
    EXPECT_EQ(outlineText(), "Notes, Paint");
    projects().removeProject(0);
    settle();
    EXPECT_EQ(chosen(), 0);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(SidebarTimesTest, switchedOff_thereAreNeitherTimesNorARest) {
    addProject("Poster", {u"Mail"_s});
    show();
    choose(restRow());
    wish(kListProjectTimes, false);
    EXPECT_EQ(rows().rowCount(), 2);
    EXPECT_TRUE(sidebar().header()->isSectionHidden(ProjectListModel::TimeColumn));
    EXPECT_LE(chosen(), 1) << "something is shown";
    wish(kListProjectTimes, true);
    EXPECT_FALSE(sidebar().header()->isSectionHidden(ProjectListModel::TimeColumn));
    EXPECT_EQ(times(), "All Timers 00:03:10, Poster 00:01:00, No Project 00:02:10");
}

TEST_F(SidebarTimesTest, theyFollowTheSearch) {
    addProject("Poster", {u"Mail"_s, u"List"_s});
    show();
    type("in");
    EXPECT_EQ(times(), "All Timers 00:00:50, Poster 00:00:20, No Project 00:00:30") << "Inbox and Paint";
    type("");
    EXPECT_EQ(times(), "All Timers 00:03:10, Poster 00:01:40, No Project 00:01:30");
}

TEST_F(SidebarTimesTest, whileTimeIsCounted_theyMoveOnceASecondAndOnlyWhereItGoes) {
    addProject("Poster", {u"Mail"_s});
    show();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(0.5);
    QSignalSpy told(&rows(), &QAbstractItemModel::dataChanged);
    seconds(10);
    EXPECT_EQ(times(), "All Timers 00:03:20, Poster 00:01:10, No Project 00:02:10");
    EXPECT_GE(told.size(), 18);
    EXPECT_LE(told.size(), 22) << "all timers and the project, ten times";
    controller.window().hide();
    told.clear();
    seconds(10);
    EXPECT_EQ(told.size(), 0) << "nobody looks";
}

TEST_F(SidebarTimesTest, whatNoWindowHasOfADividedProgram_belongsToNoProject) {
    account("Web", 100, {{u"Bank"_s, 50}, {u"News"_s, 20}});
    addProject("Poster", {u"Bank"_s, u"Mail"_s, u"Notes"_s});
    show();
    EXPECT_EQ(times(), "All Timers 00:04:50, Poster 00:03:30, No Project 00:01:20");
    choose(restRow());
    EXPECT_EQ(outlineText(), "News, Paint, Web");
    EXPECT_EQ(str(sumShown()), "00:01:20");
    EXPECT_EQ(str(row("Web").siblingAtColumn(1).data().toString()), "00:00:30");
    type("web");
    EXPECT_EQ(times(), "All Timers 00:01:40, Poster 00:00:00, No Project 00:00:30");
    EXPECT_EQ(outlineText(), "Web");
    type("news");
    EXPECT_EQ(times(), "All Timers 00:00:20, Poster 00:00:00, No Project 00:00:20");
    EXPECT_EQ(outlineText(), "News");
}

TEST_F(SidebarTimesTest, timeThatNoWindowHas_isNoTimerThatOneCouldDeleteOrMove) {
    account("Web", 100, {{u"Bank"_s, 50}, {u"News"_s, 20}});
    addProject("Poster", {u"Bank"_s});
    show();
    choose(restRow());
    select({row("Web")});
    alerts.answer = Alerts::Alternate;
    controller.tableViewDidReceiveDeleteKey(false);
    controller.branchSelected();
    settle();
    EXPECT_EQ(controller.undoStack().count(), 0);
    EXPECT_TRUE(alerts.questions.isEmpty()) << "about what cannot be done";
    EXPECT_FALSE(row("Web").flags() & Qt::ItemIsEditable);
    EXPECT_FALSE(actions().addToProject->isEnabled());
    EXPECT_FALSE(actions().branch->isEnabled());
    select({row("Web"), row("Paint")});
    EXPECT_TRUE(actions().addToProject->isEnabled()) << "with a timer beside it";
    EXPECT_EQ(str(sumShown()), "00:01:00");
}

TEST_F(SidebarTimesTest, timeThatNoWindowHas_isCountedWhileItPasses) {
    account("Web", 70, {{u"Bank"_s, 50}, {u"News"_s, 20}});
    addProject("Poster", {u"Bank"_s});
    show();
    choose(restRow());
    controller.timer().startTimer();
    frontWithoutWindow("Web");
    seconds(5.5);
    EXPECT_EQ(times(), "All Timers 00:04:25, Poster 00:00:50, No Project 00:03:35");
    EXPECT_EQ(str(row("Web").siblingAtColumn(1).data().toString()), "00:00:05");
    front("Web", "Bank");
    seconds(3);
    EXPECT_EQ(times(), "All Timers 00:04:28, Poster 00:00:53, No Project 00:03:35");
}

TEST_F(SidebarTimesTest, whileTimeIsCounted_theyAreThoseOfTheSumAtEveryTick) {
    account("Web", 10.37, {{u"Bank"_s, 3.21}, {u"News"_s, 7.16}});
    addProject("Poster", {u"Bank"_s, u"Paint"_s});
    addProject("Office", {u"Mail"_s, u"Bank"_s});
    show();
    controller.timer().startTimer();
    for (int chosenRow = 0; chosenRow < rows().rowCount(); ++chosenRow) {
        choose(chosenRow);
        for (const auto& [program, title] :
             {std::pair("Web", "Bank"), std::pair("Mail", "Inbox"), std::pair("Web", "News")}) {
            front(program, title);
            for (int tick = 0; tick < 15; ++tick) {
                seconds(0.1);
                ASSERT_EQ(str(rows().index(chosenRow, 1).data().toString()), str(sumShown()))
                    << "row " << chosenRow << ", tick " << tick << " of " << title;
            }
        }
    }
}

TEST_F(SidebarTimesTest, anAbsence_isInTheTimesAtOnce) {
    account("Idle", 5);
    addProject("Away", {u"Idle"_s});
    show();
    choose(1);
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(1);
    fakes.idleTime.isBusy = false;
    for (int tick = 0; tick < 20 * 600; ++tick) {
        seconds(0.1);
        ASSERT_EQ(str(rows().index(1, 1).data().toString()), str(sumShown())) << "tick " << tick;
    }
    EXPECT_GE(str(sumShown()), "00:15:00");
}

TEST_F(SidebarTimesTest, theSum_saysThatItIsOfNoProject) {
    addProject("Poster", {u"Mail"_s});
    show();
    choose(1);
    EXPECT_EQ(sumCaptionShown(), "Project");
    choose(restRow());
    EXPECT_EQ(sumCaptionShown(), "No Project");
    choose(0);
    choose(1);
    EXPECT_EQ(sumCaptionShown(), "Project");
}

TEST_F(SidebarTimesTest, whatTheSettingsCount_isCountedAtOnce) {
    account("Idle", 25);
    addProject("Poster", {u"Mail"_s});
    show();
    EXPECT_EQ(times(), "All Timers 00:03:10, Poster 00:01:00, No Project 00:02:10");
    wish(kIncludeIdleInSumofTimes, true);
    EXPECT_EQ(times(), "All Timers 00:03:35, Poster 00:01:00, No Project 00:02:35");
}

TEST_F(SidebarTimesTest, aRestWithoutTimers_saysSo) {
    addProject("Poster", {u"Mail"_s, u"Notes"_s, u"Paint"_s});
    show();
    choose(restRow());
    EXPECT_EQ(table().accessibleDescription(), u"All time is in your projects."_s);
}

TEST_F(SidebarTimesTest, aNewWindow_countsForTheRestAtOnce) {
    addProject("Poster", {u"Mail"_s});
    show();
    choose(restRow());
    controller.timer().startTimer();
    front("Web", "News");
    seconds(3.5);
    EXPECT_EQ(times(), "All Timers 00:03:13, Poster 00:01:00, No Project 00:02:13");
    EXPECT_EQ(outlineText(), "Notes, Paint, Web");
}

TEST_F(SidebarTimesTest, aTimerPutIntoAProject_leavesTheRestAndComesBackByUndoing) {
    addProject("Poster");
    show();
    choose(restRow());
    EXPECT_TRUE(dropTimers({u"Paint"_s}, -1, at(1)));
    seconds(0.1);
    EXPECT_EQ(outlineText(), "Mail, Notes");
    command(actions().undo);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(SidebarTimesTest, theRest_isNoTargetForTimersAndHasNoNameToChange) {
    addProject("Poster", {u"Mail"_s});
    addProject("Garden");
    show();
    EXPECT_FALSE(dropTimers({u"Paint"_s}, -1, rest()));
    EXPECT_FALSE(rest().flags() & (Qt::ItemIsEditable | Qt::ItemIsDragEnabled));
    EXPECT_FALSE(rows().setData(rest(), u"Mine"_s));
    choose(restRow());
    for (const QAction* action : {actions().renameProject, actions().editPatterns, actions().exportProject,
                                  actions().branchProject, actions().removeProject, actions().moveProjectUp})
        EXPECT_FALSE(action->isEnabled()) << str(action->text());
    controller.projectController().tableViewDidRecieveDeleteKey();
    controller.projectController().removeProject();
    EXPECT_EQ(projects().count(), 2U);
    EXPECT_TRUE(alerts.questions.empty());
}

TEST_F(SidebarTimesTest, aProjectDroppedOnTheRest_goesBelowTheOthers) {
    addProject("Poster");
    addProject("Garden");
    show();
    EXPECT_TRUE(dropProject(0, Qt::MoveAction, -1, rest()));
    EXPECT_EQ(times(), "All Timers 00:03:10, Garden 00:00:00, Poster 00:00:00, No Project 00:03:10");
}

TEST_F(SidebarTimesTest, deletingAmongTheRest_asksAndDeletes) {
    addProject("Poster", {u"Mail"_s});
    show();
    choose(restRow());
    select({row("Paint")});
    alerts.answer = Alerts::Alternate;
    controller.tableViewDidReceiveDeleteKey(false);
    settle();
    EXPECT_EQ(outlineText(), "Notes");
    EXPECT_EQ(controller.tracker().fullTimeSet().size(), 2U);
}

TEST_F(SidebarTimesTest, theLastProjectDeleted_choosesTheOneAboveItNotTheRest) {
    addProject("Poster", {u"Mail"_s});
    addProject("Garden");
    show();
    choose(2);
    alerts.answer = Alerts::Alternate;
    controller.projectController().tableViewDidRecieveDeleteKey();
    settle();
    EXPECT_EQ(chosen(), 1);
}

TEST_F(SidebarTimesTest, rowsOpenedAmongTheRest_stayOpen) {
    addProject("Poster", {u"Mail"_s});
    show();
    choose(restRow());
    table().expand(row("Notes"));
    choose(0);
    choose(restRow());
    EXPECT_EQ(outlineText(), "+Notes(List, Todo), Paint");
}

TEST_F(SidebarTimesTest, copyingTheRest_copiesItsTimers) {
    addProject("Poster", {u"Mail"_s});
    show();
    choose(restRow());
    sidebar().setFocus();
    sidebar().copy();
    const QString text = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(text.contains(u"Paint"_s) && text.contains(u"Notes"_s)) << str(text);
    EXPECT_FALSE(text.contains(u"Mail"_s)) << str(text);
}

TEST_F(SidebarTimesTest, besideTheHistory_projectsOfOneNameHaveEachItsOwn) {
    for (const char* label : {"Poster", "Poster", "No project"})
        addProject(label);
    show();
    RangeAnswer answer;
    answer.projects = {{u"Poster"_s, 90'000}, {u"No project"_s, 300'000}};
    answer.ofProjects = {60'000, 30'000, 120'000};
    answer.ofNoProject = 180'000;
    answer.work = 390'000;
    controller.sidebarTimes().showRange(answer);
    EXPECT_EQ(times(), "All Timers 00:06:30, Poster 00:01:00, Poster 00:00:30, No project 00:02:00, "
                       "No Project 00:03:00");
}

TEST_F(SidebarTimesTest, assistivePrograms_readTheTimeWithTheName) {
    addProject("Poster", {u"Mail"_s});
    show();
    EXPECT_EQ(at(1).data(Qt::AccessibleTextRole).toString(), u"Poster, 00:01:00"_s);
}

TEST_F(SidebarTimesTest, whateverHappensToTheProjects_theRowsStaySound) {
    const QAbstractItemModelTester tester(&rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    addProject("Poster", {u"Mail"_s});
    show();
    choose(restRow());
    addProject("Garden", {u"Paint"_s});
    projects().removeProject(1);
    projects().removeProject(0);
    addProject("Again");
    projects().setProjects(ProjectList::Projects());
    wish(kListProjectTimes, false);
    addProject("Off");
    wish(kListProjectTimes, true);
    EXPECT_EQ(rows().rowCount(), 3);
}

TEST_F(SidebarTimesTest, inANarrowSidebar_namesComeBeforeTimes) {
    addProject("Poster", {u"Mail"_s});
    show();
    const auto hasTimes = [&] { return !sidebar().header()->isSectionHidden(ProjectListModel::TimeColumn); };
    controller.window().splitView().setSizes({120, 700});
    settle();
    EXPECT_FALSE(hasTimes());
    controller.window().splitView().setSizes({165, 700});
    settle();
    EXPECT_TRUE(hasTimes());
    controller.window().splitView().setSizes({300, 600});
    settle();
    EXPECT_TRUE(hasTimes());
}
