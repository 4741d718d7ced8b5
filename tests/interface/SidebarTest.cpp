// SPDX-License-Identifier: MIT
// The sidebar of projects, as a person uses it.
#include "tests/interface/ProjectDesk.h"

#include <QClipboard>

#include <gtest/gtest.h>

namespace {

struct SidebarTest : testing::Test, ProjectDesk {
    SidebarTest() { mailNotesAndPaint(); }

    QAbstractItemModelTester tester{&controller.projectController().model(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(SidebarTest, withoutProjects_thereIsOneRowThatStaysAsItIs) {
    show();
    EXPECT_EQ(sidebarText(), "[All Timers]");
    EXPECT_FALSE(at(0).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(dropTimers({QStringLiteral("Mail")}, -1, at(0)));
    EXPECT_FALSE(actions().removeProject->isEnabled());
    controller.projectController().tableViewDidRecieveDeleteKey();
    controller.projectController().removeProject();
    EXPECT_TRUE(alerts.questions.isEmpty());
    EXPECT_EQ(sidebarText(), "[All Timers]");
}

TEST_F(SidebarTest, aNewProject_isNamedAtOnce) {
    show();
    command(actions().addProject);
    EXPECT_EQ(sidebarText(), "All Timers, [New Project]");
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->selectedText(), QStringLiteral("New Project"));
    QTest::keyClicks(editor(), QStringLiteral("Poster"));
    QTest::keyClick(editor(), Qt::Key_Return);
    settle();
    EXPECT_EQ(sidebarText(), "All Timers, [Poster]");
    command(actions().undo);
    EXPECT_EQ(sidebarText(), "All Timers, [New Project]");
    command(actions().undo);
    EXPECT_EQ(sidebarText(), "[All Timers]");
    command(actions().redo);
    command(actions().redo);
    EXPECT_EQ(sidebarText(), "[All Timers], Poster");
}

TEST_F(SidebarTest, timersDroppedTwice_areInTheProjectOnce) {
    addProject("Poster");
    show();
    EXPECT_TRUE(dropTimers({QStringLiteral("Paint"), QStringLiteral("Inbox")}, -1, at(1)));
    EXPECT_TRUE(dropTimers({QStringLiteral("Paint"), QStringLiteral("Notes")}, -1, at(1)));
    EXPECT_EQ(membersOf(0), "Inbox, Paint, Notes");
    command(actions().undo);
    EXPECT_EQ(membersOf(0), "Inbox, Paint");
    command(actions().undo);
    EXPECT_EQ(membersOf(0), "");
}

TEST_F(SidebarTest, timersDroppedBetweenRows_becomeAProjectThereThatIsNamedAtOnce) {
    addProject("First");
    addProject("Second");
    show();
    EXPECT_TRUE(dropTimers({QStringLiteral("Mail")}, 2));
    EXPECT_EQ(sidebarText(), "All Timers, First, [New Project], Second");
    EXPECT_EQ(membersOf(1), "Mail");
    EXPECT_NE(editor(), nullptr);
}

TEST_F(SidebarTest, timersDroppedAtTheTopOrBelowAll_becomeTheLastProject) {
    addProject("First");
    show();
    EXPECT_TRUE(dropTimers({QStringLiteral("Mail")}, 0));
    EXPECT_TRUE(dropTimers({QStringLiteral("Paint")}, -1));
    EXPECT_EQ(membersOf(1), "Mail");
    EXPECT_EQ(membersOf(2), "Paint");
}

TEST_F(SidebarTest, aDraggedRow_movesTheProjectBelowIt) {
    for (const char* label : {"A", "B", "C", "D"})
        addProject(label);
    show();
    // Deliberate: the row number counts the main item, but is used as a position.
    EXPECT_TRUE(dropProject(1, Qt::MoveAction, -1, at(4)));
    EXPECT_EQ(sidebarText(), "All Timers, A, C, [B], D");
    command(actions().undo);
    EXPECT_EQ(sidebarText().substr(0, 10), "All Timers");
    EXPECT_EQ(at(2).data().toString(), QStringLiteral("B"));
}

TEST_F(SidebarTest, aRowDraggedWithTheCopyKey_isCopied) {
    addProject("A");
    addProject("B", {QStringLiteral("Mail")});
    show();
    EXPECT_TRUE(dropProject(1, Qt::CopyAction, -1, at(1)));
    EXPECT_EQ(sidebarText(), "[All Timers], B, A, B");
    EXPECT_EQ(membersOf(0), "Mail");
}

TEST_F(SidebarTest, whatIsNeitherTimersNorAProject_isRefused) {
    addProject("A");
    show();
    QMimeData text;
    text.setText(QStringLiteral("Mail"));
    EXPECT_FALSE(rows().canDropMimeData(&text, Qt::CopyAction, -1, 0, at(1)));
    QMimeData damaged;
    damaged.setData(kTimerPasteboardType, "no list");
    EXPECT_FALSE(drop(damaged, Qt::CopyAction, -1, at(1)));
    EXPECT_FALSE(dropProject(7, Qt::MoveAction, -1, at(1)) && projects().count() != 1);
}

TEST_F(SidebarTest, deletingTheLastRow_asksAndSelectsTheNewLastRow) {
    addProject("A");
    addProject("B");
    show();
    choose(2);
    command(actions().removeProject);
    EXPECT_EQ(alerts.last.message, QStringLiteral("Delete selected timer set?"));
    EXPECT_EQ(alerts.last.informativeText, QStringLiteral("The timer set \"B\" will be deleted."));
    EXPECT_EQ(sidebarText(), "All Timers, A, [B]") << "cancelled";
    alerts.answer = Alerts::Alternate;
    command(actions().removeProject);
    EXPECT_EQ(sidebarText(), "All Timers, [A]");
    command(actions().undo);
    EXPECT_EQ(projects().count(), 2U);
}

TEST_F(SidebarTest, theDeleteKey_deletesTheProjectThatHasTheFocus) {
    addProject("A");
    addProject("B");
    show();
    choose(1);
    alerts.answer = Alerts::Alternate;
    QTest::keyClick(&sidebar(), Qt::Key_Delete);
    EXPECT_EQ(projects().count(), 1U);
    EXPECT_EQ(projects().projects().front()->label(), QStringLiteral("B"));
}

TEST_F(SidebarTest, removingWithoutAQuestion_selectsTheRowAbove) {
    addProject("A");
    addProject("B");
    show();
    choose(1);
    controller.projectController().removeProject();
    EXPECT_EQ(sidebarText(), "[All Timers], B");
    EXPECT_TRUE(alerts.questions.isEmpty());
}

TEST_F(SidebarTest, movingByTheMenu_movesTheSelectedProject) {
    for (const char* label : {"A", "B", "C"})
        addProject(label);
    show();
    choose(1);
    EXPECT_FALSE(actions().moveProjectUp->isEnabled());
    command(actions().moveProjectDown);
    EXPECT_EQ(sidebarText(), "All Timers, B, [A], C");
    command(actions().moveProjectDown);
    EXPECT_EQ(sidebarText(), "All Timers, B, C, [A]");
    EXPECT_FALSE(actions().moveProjectDown->isEnabled());
    command(actions().moveProjectUp);
    EXPECT_EQ(sidebarText(), "All Timers, B, [A], C");
}

TEST_F(SidebarTest, freezingAProject_freezesItsMembersAndKeepsThem) {
    addProject("Poster", {QStringLiteral("Paint"), QStringLiteral("Inbox")});
    addProject("Other", {QStringLiteral("Paint")});
    show();
    choose(1);
    command(actions().branchProject);
    for (const std::size_t position : {0, 1})
        for (const Identity& member : projects().projects().at(position)->flattenedMembers())
            for (const auto& item : controller.tracker().timeChildrenForChildUUIDs({member}, false))
                EXPECT_TRUE(item->branched()) << item->name().toStdString();
    EXPECT_EQ(projects().projects().at(0)->flattenedMembers().size(), 2U);
}

TEST_F(SidebarTest, withAllTimersShown_freezingTheProjectDoesNothing) {
    show();
    controller.projectController().branchProject();
    for (const auto& app : controller.tracker().fullTimeSet())
        EXPECT_FALSE(app->branched());
}

TEST_F(SidebarTest, aColour_isStoredShownAndUndone) {
    addProject("Poster", {QStringLiteral("Paint")});
    show();
    choose(1);
    controller.projectController().setSelectedColorTag(4);
    EXPECT_EQ(projects().projects().front()->colorTag(), 4);
    EXPECT_EQ(sidebar().dataCell(at(1)).selectedTags, ColorTags{4});
    choose(0);
    EXPECT_EQ(table().dataCell(row("Paint")).selectedTags, ColorTags{4});
    EXPECT_FALSE(table().dataCell(row("Mail")).selectedTags);
    command(actions().undo);
    EXPECT_FALSE(table().dataCell(row("Paint")).selectedTags);
}

TEST_F(SidebarTest, theMainItemsColour_isNeverWritten) {
    show();
    controller.projectController().setSelectedColorTag(2);
    EXPECT_EQ(projects().mainItem()->colorTag(), 2);
    EXPECT_FALSE(actions().undo->isEnabled());
}

TEST_F(SidebarTest, projectsOfAnotherFile_takeThePlaceOfTheOld) {
    addProject("Old");
    show();
    choose(1);
    projects().setProjects(PropertyListValue(PropertyListArray{PropertyListDictionary{
        {kProjectLabel, QStringLiteral("New")}, {kProjectSubtree, PropertyListArray()}}}));
    settle();
    EXPECT_EQ(sidebarText(), "All Timers, [New]");
}

TEST_F(SidebarTest, aRow_isCopiedAsItsTimersRead) {
    addProject("Poster", {QStringLiteral("Paint")});
    show();
    sidebar().setFocus();
    choose(0);
    command(actions().copy);
    EXPECT_EQ(str(QGuiApplication::clipboard()->text()),
              "Mail, 00:01:00\nNotes, 00:01:40\nPaint, 00:00:30\n");
    EXPECT_FALSE(actions().deleteRows->isEnabled());
    choose(1);
    command(actions().copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Paint, 00:00:30\n"));
}

TEST_F(SidebarTest, theEditMenu_isForTheRowsThatHadTheFocusLast) {
    addProject("Poster");
    show();
    select({row("Mail")});
    table().setFocus();
    EXPECT_TRUE(actions().rename->isEnabled());
    sidebar().setFocus();
    EXPECT_FALSE(actions().rename->isEnabled()) << "the main item keeps its name";
    choose(1);
    controller.window().searchAppField().setFocus();
    command(actions().rename);
    ASSERT_NE(editor(), nullptr) << "the project's name is edited";
    QTest::keyClick(editor(), Qt::Key_Escape);
    table().setFocus();
    EXPECT_FALSE(actions().rename->isEnabled()) << "the project shows no rows";
}

TEST_F(SidebarTest, aWindowOfAFrozenApplication_isReadOutAsFrozen) {
    addProject("Poster", {QStringLiteral("List")});
    show();
    choose(1);
    const auto heard = [&] { return str(row("List").data(Qt::AccessibleTextRole).toString()); };
    EXPECT_EQ(heard(), "List, 00:00:40");
    for (const auto& app : controller.tracker().fullTimeSet())
        if (app->name() == QLatin1String("Notes"))
            app->setBranched(true);
    EXPECT_EQ(heard(), "List, 00:00:40, frozen");
}

TEST_F(SidebarTest, whatChangesNothing_isNoStepToUndo) {
    addProject("Poster", {QStringLiteral("Mail")});
    addProject("Letters");
    show();
    choose(1);
    dropTimers({QStringLiteral("Mail")}, -1, at(1));
    controller.projectController().setSelectedColorTag(0);
    command(actions().renameProject);
    QTest::keyClick(editor(), Qt::Key_Return);
    dropProject(2, Qt::MoveAction, -1, at(1));
    dropProject(1, Qt::MoveAction, -1);
    controller.projectController().removeFromSelectedProject({Identity::brandNew()});
    select({});
    controller.tableViewDidReceiveDeleteKey(true);
    settle();
    EXPECT_FALSE(actions().undo->isEnabled());
    controller.projectController().setSelectedColorTag(3);
    EXPECT_TRUE(actions().undo->isEnabled());
}

TEST_F(SidebarTest, aDraggedProject_showsTheLineWhereItsRowWillLand) {
    for (const char* label : {"A", "B", "C"})
        addProject(label);
    show();
    // Where the line is: at the upper edge of this row.
    const auto lineWhileDragging = [&](int dragged, const QPoint& point) {
        QMimeData data;
        data.setData(kProjectPasteboardType, projectPasteboardData(dragged));
        const QImage before = sidebar().viewport()->grab().toImage();
        QDragEnterEvent enter(point, Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(sidebar().viewport(), &enter);
        QDragMoveEvent move(point, Qt::MoveAction, &data, Qt::LeftButton, {});
        // A real pointer is never still.
        for (int step = 0; step < 3; ++step)
            QCoreApplication::sendEvent(sidebar().viewport(), &move);
        const QImage after = sidebar().viewport()->grab().toImage();
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(sidebar().viewport(), &leave);
        EXPECT_EQ(sidebar().viewport()->grab().toImage(), before);
        for (int y = 0; y < after.height(); ++y)
            if (after.pixel(after.width() / 2, y) != before.pixel(before.width() / 2, y))
                return y;
        return -1;
    };
    const auto edgeOf = [&](int row) { return sidebar().visualRect(at(row)).top() - 1; };
    ASSERT_EQ(sidebarText(), "[All Timers], A, B, C");
    const auto middleOf = [&](int row) { return sidebar().visualRect(at(row)).center(); };
    EXPECT_EQ(lineWhileDragging(1, middleOf(3)), edgeOf(3));
    EXPECT_EQ(lineWhileDragging(2, middleOf(1)), edgeOf(1));
    EXPECT_EQ(lineWhileDragging(1, sidebar().visualRect(at(2)).topLeft()),
              sidebar().visualRect(at(3)).bottom())
        << "between two rows is no project: at the end";
    EXPECT_EQ(lineWhileDragging(1, middleOf(2)), edgeOf(1)) << "what stands there is what is moved";
    EXPECT_EQ(lineWhileDragging(3, middleOf(1)), -1) << "below the last row there is none to move";
}
