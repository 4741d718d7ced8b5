// SPDX-License-Identifier: MIT
// Sorting without the mouse.
#include "interface/outline/SortingHeader.h"
#include "tests/interface/HistoryViewDesk.h"
#include "tests/interface/ProjectDesk.h"

#include <QAccessible>
#include <QMenuBar>

#include <gtest/gtest.h>

namespace {

struct SortingTest : testing::Test, HistoryViewDesk {
    SortingTest() {
        account("Mail", 60);
        account("Notes", 100);
        account("Paint", 30);
        past(today(0), 60, "Mail", "Inbox");
        past(today(0, 2), 300, "Notes", "List");
        past(today(0, 8), 180, "Paint", "Plan");
        fakes.clock.advance(std::chrono::hours(9));
        show();
        controller.window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&controller.window()));
    }

    std::string order(const QAbstractItemModel& rows) {
        QStringList names;
        for (int row = 0; row < rows.rowCount(); ++row)
            names << rows.index(row, 0).data(Qt::EditRole).toString();
        return str(names.join(u' '));
    }

    // Opens View > Sort By and chooses.
    void choose(const char* entry) {
        auto* menu = controller.window().menuBar()->findChild<QMenu*>(QStringLiteral("sortMenu"));
        menu->popup({10, 10});
        for (QAction* line : menu->actions())
            if (line->objectName() == QLatin1String(entry))
                line->trigger();
        menu->close();
        settle();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
};

// Drags the border that is at the side of the column where the names end.
void dragBorder(QHeaderView& header, int section, int by) {
    const bool isMirrored = header.isRightToLeft();
    const int x = header.sectionViewportPosition(section) + (isMirrored ? header.sectionSize(section) : 0);
    QWidget* area = header.viewport();
    QTest::mousePress(area, Qt::LeftButton, {}, {x, 5});
    QTest::mouseMove(area, {x + by / 2, 5});
    QTest::mouseMove(area, {x + by, 5});
    QTest::mouseRelease(area, Qt::LeftButton, {}, {x + by, 5});
}

} // namespace

TEST_F(SortingTest, theMenu_sortsTheTimersByColumnAndUpOrDown) {
    EXPECT_EQ(order(model()), "Mail Notes Paint");
    choose("sortByColumn1");
    EXPECT_EQ(order(model()), "Paint Mail Notes");
    choose("sortDescending");
    EXPECT_EQ(order(model()), "Notes Mail Paint");
    choose("sortByColumn0");
    EXPECT_EQ(order(model()), "Paint Notes Mail");
    choose("sortAscending");
    EXPECT_EQ(order(model()), "Mail Notes Paint");
}

TEST_F(SortingTest, theMenu_sortsTheHistoryWhileThatIsShown) {
    showHistory();
    command(historyActions().today);
    EXPECT_EQ(order(*outline().model()), "Notes Paint Mail");
    choose("sortAscending");
    EXPECT_EQ(order(*outline().model()), "Mail Paint Notes");
    choose("sortByColumn0");
    EXPECT_EQ(order(*outline().model()), "Mail Notes Paint");
    EXPECT_EQ(order(model()), "Mail Notes Paint") << "the timers stay as they are";
}

TEST_F(SortingTest, theHeader_isReachedByTabAndSortsByItsKeys) {
    table().setFocus();
    QStringList stops;
    while (!qobject_cast<SortingHeader*>(QApplication::focusWidget()) && stops.size() < 30) {
        press(Qt::Key_Tab);
        stops << QApplication::focusWidget()->objectName();
    }
    ASSERT_EQ(str(stops.last()), "mainTableHeader");
    const auto heard = [] {
        return str(
            QAccessible::queryAccessibleInterface(QApplication::focusWidget())->text(QAccessible::Name));
    };
    EXPECT_EQ(heard(), "Program, sorted, ascending");
    press(Qt::Key_Right);
    EXPECT_EQ(heard(), "Time Spent");
    const QImage before = table().header()->grab().toImage();
    press(Qt::Key_Space);
    EXPECT_EQ(order(model()), "Paint Mail Notes");
    EXPECT_EQ(heard(), "Time Spent, sorted, ascending");
    press(Qt::Key_Return);
    EXPECT_EQ(order(model()), "Notes Mail Paint");
    EXPECT_EQ(heard(), "Time Spent, sorted, descending");
    press(Qt::Key_Left);
    EXPECT_EQ(heard(), "Program");
    EXPECT_NE(table().header()->grab().toImage(), before);
}

TEST_F(SortingTest, theSelection_showsWhichOutlineTheKeysGoTo) {
    auto& sidebar = controller.window().projectOutline();
    table().setFocus();
    table().setCurrentIndex(row("Mail"));
    settle();
    const auto ground = [](const TKOutlineDisplayView& outlined, const QModelIndex& shown) {
        const QRect place = outlined.visualRect(shown);
        return outlined.viewport()->grab().toImage().pixelColor(place.right() - 2, place.top() + 2);
    };
    const QColor strong = ground(table(), row("Mail"));
    const QColor pale = ground(sidebar, sidebar.model()->index(0, 0));
    EXPECT_NE(strong, pale);
    sidebar.setFocus();
    settle();
    EXPECT_EQ(ground(sidebar, sidebar.model()->index(0, 0)), strong);
    EXPECT_EQ(ground(table(), row("Mail")), pale);
}

TEST_F(SortingTest, theBorderBesideTheTimes_isDraggedToMakeThemWiderAndNeverTooNarrow) {
    QHeaderView& columns = *table().header();
    const int width = columns.sectionSize(1);
    const std::string before = order(model());
    dragBorder(columns, 1, -40);
    EXPECT_EQ(columns.sectionSize(1), width + 40);
    EXPECT_EQ(table().chosenTimeWidth(), width + 40) << "as the user wants it";
    EXPECT_EQ(columns.length(), columns.viewport()->width()) << "the names have the rest";
    dragBorder(columns, 1, 300);
    EXPECT_GE(columns.sectionSize(1), table().fontMetrics().horizontalAdvance(QStringLiteral("00:00:00")));
    dragBorder(columns, 1, -3000);
    EXPECT_GE(columns.sectionSize(0), columns.minimumSectionSize());
    EXPECT_EQ(order(model()), before) << "to drag is not to sort";
}

TEST_F(SortingTest, inAMirroredWindow_theBorderIsAtTheOtherSide) {
    table().setLayoutDirection(Qt::RightToLeft);
    settle();
    QHeaderView& columns = *table().header();
    const int width = columns.sectionSize(1);
    dragBorder(columns, 1, 40);
    EXPECT_EQ(columns.sectionSize(1), width + 40);
}

TEST_F(SortingTest, inTheHistory_theBorderBesideTheTimesIsDraggedToo) {
    command(actions().showHistory);
    settle();
    QHeaderView& columns = *controller.window().historyPane().outline().header();
    const int width = columns.sectionSize(1);
    dragBorder(columns, 1, -30);
    EXPECT_EQ(columns.sectionSize(1), width + 30);
    EXPECT_EQ(columns.length(), columns.viewport()->width());
}
