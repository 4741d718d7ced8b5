// SPDX-License-Identifier: MIT
// What the window keeps from one start to the next.
#include "interface/mainwindow/WindowMemory.h"

#include "Classes/common/Settings.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/mainwindow/TKConstrainedSplitView.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/ProjectDesk.h"

#include <QHeaderView>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Account = WindowMemory::Account;

// One life of the program, with the settings of the one before.
struct Life : ProjectDesk {
    explicit Life(Account account, const Life* before = nullptr) {
        if (before)
            for (const QString& key : {kWindowFrame, kSidebarWidth, kSidebarHidden, kTimesWidth,
                                       kTimersSorting, kTimersSortedDown, kHistoryColumns, kOpenTimers})
                fakes.defaults.setObject(key, before->fakes.defaults.object(key));
        work();
        memory.emplace(controller.window(), fakes.defaults, account);
    }

    void work() {
        account("Mail", 60, {{u"Inbox"_s, 20}, {u"Sent"_s, 40}});
        account("Notes", 100, {{u"List"_s, 40}, {u"Todo"_s, 60}});
        account("Paint", 30);
    }

    QHeaderView& columns() { return *table().header(); }

    HistoryOutline& history() { return controller.window().historyPane().outline(); }

    void end() { memory.reset(); }

    std::optional<WindowMemory> memory;
};

} // namespace

TEST(WindowMemoryTest, aNewAccount_isSortedByTimeAndTheMostComesFirst) {
    Life life(Account::New);
    life.show();
    EXPECT_EQ(life.outlineText(), "Notes, Mail, Paint");
}

TEST(WindowMemoryTest, anExistingAccount_keepsTheOrderThatItHas) {
    Life life(Account::Existing);
    life.show();
    EXPECT_EQ(life.outlineText(), "Mail, Notes, Paint");
}

TEST(WindowMemoryTest, theOrderThatTheUserChose_comesBack) {
    Life first(Account::New);
    first.show();
    first.table().sortByColumn(0, Qt::DescendingOrder);
    first.history().sortByColumn(0, Qt::AscendingOrder);
    first.end();
    Life second(Account::New, &first);
    second.show();
    EXPECT_EQ(second.outlineText(), "Paint, Notes, Mail");
    EXPECT_EQ(second.history().header()->sortIndicatorSection(), 0);
    EXPECT_EQ(second.history().header()->sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST(WindowMemoryTest, sizesOfWindowSidebarAndColumns_comeBack) {
    Life first(Account::New);
    first.show();
    first.controller.window().resize(777, 444);
    first.settle();
    first.controller.window().splitView().setSizes({280, 490});
    first.columns().resizeSection(1, 160);
    first.history().header()->resizeSection(2, 99);
    first.settle();
    first.end();
    Life second(Account::New, &first);
    second.show();
    second.settle();
    EXPECT_EQ(second.controller.window().size(), QSize(777, 444));
    EXPECT_EQ(second.controller.window().splitView().sizes().first(),
              first.controller.window().splitView().sizes().first());
    EXPECT_EQ(second.columns().sectionSize(1), 160);
    EXPECT_EQ(second.history().header()->sectionSize(2), 99);
    second.addProject("Poster", {u"Mail"_s});
    second.choose(1);
    EXPECT_EQ(second.columns().sectionSize(1), 160) << "whatever is shown";
}

TEST(WindowMemoryTest, aHiddenSidebar_staysHiddenWithItsWidth) {
    Life first(Account::New);
    first.show();
    first.controller.window().splitView().setSizes({280, 620});
    first.settle();
    const int width = first.controller.window().splitView().sizes().first();
    first.memory.reset();
    first.memory.emplace(first.controller.window(), first.fakes.defaults, Account::New);
    first.actions().showSidebar->setChecked(false);
    first.end();
    Life second(Account::New, &first);
    second.show();
    EXPECT_FALSE(second.sidebar().isVisible());
    second.actions().showSidebar->setChecked(true);
    second.settle();
    EXPECT_EQ(second.controller.window().splitView().sizes().first(), width);
}

TEST(WindowMemoryTest, rowsLeftOpen_areOpenAgainWhetherInAProjectOrNot) {
    Life first(Account::New);
    first.show();
    first.table().expand(first.row("Notes"));
    // Projects forget what is in none of them.
    first.projects().saveData();
    first.end();
    Life second(Account::New, &first);
    WindowMemory::openRows(second.fakes.defaults);
    EXPECT_EQ(second.fakes.defaults.object(kTopLevelExpandedUUIDs), first.fakes.defaults.object(kOpenTimers));
    EXPECT_EQ(second.fakes.defaults.object(kOpenTimers).asArray()->size(), 1U);
}

TEST(WindowMemoryTest, whatASearchOpens_isNotKept) {
    Life first(Account::New);
    first.show();
    first.type("in");
    first.end();
    EXPECT_TRUE(first.fakes.defaults.object(kOpenTimers).isAbsent());
}

TEST(WindowMemoryTest, whateverHasChanged_isStoredInOneGo) {
    Life life(Account::New);
    life.show();
    life.table().expand(life.row("Notes"));
    int told = 0;
    const Subscription watching = life.fakes.notifications.observe(kUserDefaultsDidChangeNotification,
                                                                   [&](const Notification&) { ++told; });
    life.controller.window().resize(777, 444);
    life.table().sortByColumn(0, Qt::DescendingOrder);
    life.end();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(life.fakes.defaults.object(kOpenTimers).asArray()->size(), 1U);
}

TEST(WindowMemoryTest, columnsTooNarrowForATime_areNotTaken) {
    Life first(Account::New);
    first.show();
    const int fitting = first.columns().sectionSize(1);
    first.fakes.defaults.setObject(kTimesWidth, 26);
    first.history().header()->setMinimumSectionSize(5);
    first.history().header()->resizeSection(1, 9);
    const QByteArray state = first.history().header()->saveState();
    first.end();
    first.fakes.defaults.setObject(kTimesWidth, 26);
    first.fakes.defaults.setObject(kHistoryColumns, state);
    Life second(Account::New, &first);
    second.show();
    EXPECT_EQ(second.columns().sectionSize(1), fitting);
    EXPECT_GE(second.history().header()->sectionSize(1), second.history().header()->minimumSectionSize());
    EXPECT_GE(second.history().header()->sectionSize(1),
              second.history().fontMetrics().horizontalAdvance(u"00:00:00"_s));
}

TEST(WindowMemoryTest, nonsenseInTheSettings_leavesAUsableWindow) {
    for (const PropertyListValue& strange :
         {PropertyListValue(u"text"_s), PropertyListValue(std::int64_t(-9000000000)),
          PropertyListValue(std::numeric_limits<std::int64_t>::max()), PropertyListValue(QByteArray("x")),
          PropertyListValue(PropertyListArray{7})}) {
        Desk desk;
        for (const QString& key : {kWindowFrame, kSidebarWidth, kSidebarHidden, kTimesWidth, kTimersSorting,
                                   kTimersSortedDown, kHistoryColumns, kOpenTimers})
            desk.fakes.defaults.setObject(key, strange);
        WindowMemory::openRows(desk.fakes.defaults);
        {
            const WindowMemory memory(desk.controller.window(), desk.fakes.defaults, Account::Existing);
            desk.show();
            EXPECT_GE(desk.controller.window().width(), 480);
            EXPECT_LE(desk.table().header()->sectionSize(1), 600);
            EXPECT_GT(desk.table().header()->sectionSize(0), 0);
        }
    }
}
