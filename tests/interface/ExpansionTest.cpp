// SPDX-License-Identifier: MIT
// Which rows are expanded is remembered, from project to project and from day to day.
#include "tests/interface/ProjectDesk.h"

#include <gtest/gtest.h>

namespace {

struct ExpansionTest : testing::Test, ProjectDesk {
    ExpansionTest() {
        mailNotesAndPaint();
        addProject("Poster", {QStringLiteral("Mail"), QStringLiteral("Notes")});
        show();
    }

    void expand(const char* name) {
        table().expand(row(name));
        settle();
    }
};

// What a controller shows that is started anew on this desk.
std::string shownAtTheNextStart(ProjectDesk& desk, int sidebarRow) {
    FakeAlerts alerts;
    TKController next(desk.fakes.platform, alerts, [](int) {});
    next.displayMainWindow();
    auto& sidebar = next.window().projectOutline();
    sidebar.setCurrentIndex(sidebar.model()->index(sidebarRow, 0));
    desk.settle();
    QStringList open;
    auto& table = next.window().mainTable();
    for (int row = 0; row < table.model()->rowCount(); ++row)
        if (const QModelIndex index = table.model()->index(row, 0); table.isExpanded(index))
            open << index.data().toString();
    return open.join(QStringLiteral(", ")).toStdString();
}

} // namespace

TEST_F(ExpansionTest, eachProject_hasItsOwnOpenRows) {
    expand("Notes");
    choose(1);
    EXPECT_EQ(outlineText(), "Mail, Notes");
    expand("Mail");
    choose(0);
    EXPECT_EQ(outlineText(), "Mail, +Notes(List, Todo), Paint");
    choose(1);
    EXPECT_EQ(outlineText(), "+Mail(Drafts, Inbox), Notes");
}

TEST_F(ExpansionTest, aProjectShownAnew_keepsWhatIsOpen) {
    choose(1);
    expand("Notes");
    expand("Mail");
    controller.projectController().refreshProject();
    controller.projectController().refreshProject();
    choose(0);
    choose(1);
    EXPECT_EQ(outlineText(), "+Mail(Drafts, Inbox), +Notes(List, Todo)");
}

TEST_F(ExpansionTest, aRowThatCannotBeOpenedForNow_isOpenedLater) {
    expand("Notes");
    select({row("List", row("Notes"))});
    controller.tableViewDidReceiveDeleteKey(true);
    settle();
    controller.projectController().refreshProject();
    EXPECT_EQ(outlineText(), "Mail, +Notes(), Paint");
    choose(1);
    command(actions().undo);
    choose(0);
    EXPECT_EQ(outlineText(), "Mail, +Notes(List, Todo), Paint");
}

TEST_F(ExpansionTest, aFoldedRow_isForgotten) {
    expand("Notes");
    table().collapse(row("Notes"));
    settle();
    choose(1);
    choose(0);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(ExpansionTest, openRows_areOpenAtTheNextStart) {
    expand("Notes");
    controller.saveSettingsToDisk();
    EXPECT_EQ(shownAtTheNextStart(*this, 0), "Notes");
}

TEST_F(ExpansionTest, openRowsOfAProject_areOpenAtTheNextStart) {
    choose(1);
    expand("Mail");
    controller.applicationWillTerminate();
    EXPECT_EQ(shownAtTheNextStart(*this, 1), "Mail");
}

TEST_F(ExpansionTest, aMemberRemovedLast_isNotThereAtTheNextStart) {
    choose(1);
    select({row("Notes")});
    command(actions().deleteRows);
    controller.applicationWillTerminate();
    FakeAlerts unused;
    TKController next(fakes.platform, unused, [](int) {});
    EXPECT_EQ(next.projects().projects().front()->members().size(), 1U);
}

TEST_F(ExpansionTest, whatIsOpenedWhileTheWindowIsHidden_isOpenWhenItIsShown) {
    expand("Notes");
    controller.window().hide();
    choose(1);
    choose(0);
    show();
    EXPECT_EQ(outlineText(), "Mail, +Notes(List, Todo), Paint");
}

TEST_F(ExpansionTest, rowsThatTwoProjectsShare_areOpenAsEachProjectHasThem) {
    addProject("Letters", {QStringLiteral("Mail"), QStringLiteral("Notes")});
    choose(1);
    expand("Mail");
    expand("Notes");
    choose(2);
    EXPECT_EQ(outlineText(), "Mail, Notes") << "nothing was opened here";
    expand("Notes");
    choose(1);
    EXPECT_EQ(outlineText(), "+Mail(Drafts, Inbox), +Notes(List, Todo)");
    table().collapse(row("Notes"));
    settle();
    choose(2);
    EXPECT_EQ(outlineText(), "Mail, +Notes(List, Todo)");
    choose(1);
    EXPECT_EQ(outlineText(), "+Mail(Drafts, Inbox), Notes");
}

TEST_F(ExpansionTest, rowsThatTwoProjectsShare_areTheirOwnAlsoWhenSeenLater) {
    addProject("Letters", {QStringLiteral("Mail"), QStringLiteral("Notes")});
    choose(1);
    expand("Mail");
    controller.window().hide();
    choose(2);
    show();
    EXPECT_EQ(outlineText(), "Mail, Notes");
}

TEST_F(ExpansionTest, aRowThatIsRememberedNoMore_staysOpenWhileItIsLookedAt) {
    expand("Notes");
    // Saving projects forgets expanded rows that are in no project.
    projects().removeMembers(*projects().projects().front(), {timers({QStringLiteral("Notes")}).front()});
    projects().saveData();
    controller.projectController().refreshProject();
    EXPECT_EQ(outlineText(), "Mail, +Notes(List, Todo), Paint");
}
