// SPDX-License-Identifier: MIT
// Ten minutes with a running timer: the passing of time must not disturb what the user has selected,
// expanded, scrolled to or begun to type.
#include "tests/interface/ProjectDesk.h"

#include <QScrollBar>

#include <gtest/gtest.h>

namespace {

constexpr int kMinutes = 10;

struct LongRunTest : testing::Test, ProjectDesk {
    LongRunTest() {
        for (int app = 0; app < 40; ++app) {
            std::vector<std::pair<QString, double>> windows;
            for (int window = 0; window < 5; ++window)
                windows.emplace_back(QStringLiteral("Page %1 of %2").arg(window).arg(app), 10 + window);
            account(qPrintable(QStringLiteral("Program %1").arg(app, 2, 10, QLatin1Char('0'))), 60, windows);
        }
        addProject("Poster", {QStringLiteral("Program 03"), QStringLiteral("Program 17")});
        addProject("Letters", {QStringLiteral("Program 20"), QStringLiteral("Page 2 of 5")});
        show();
        front("Program 12", "Page 0 of 12");
        controller.timer().startTimer();
        seconds(0.5);
    }

    std::string selection() {
        QStringList names;
        for (const QModelIndex& index : table().selectedRows())
            names << index.data(Qt::EditRole).toString();
        return names.join(QStringLiteral(", ")).toStdString();
    }

    int scroll() { return table().verticalScrollBar()->value(); }

    // Somebody works: now in one window, now in another, some of them new.
    void work(int second) {
        if (second % 7 == 0)
            front("Program 12", second % 14 == 0 ? "Page 1 of 12" : "Page 0 of 12");
        if (second % 60 == 0)
            front(qPrintable(QStringLiteral("Newcomer %1").arg(second)), "First page");
        seconds(1);
    }
};

} // namespace

TEST_F(LongRunTest, selectionUnfoldedRowsAndPlace_stayForTenMinutes) {
    table().expandAllRows();
    settle();
    select({row("Program 30"), row("Page 3 of 12", row("Program 12"))});
    table().scrollTo(row("Program 20"), QAbstractItemView::PositionAtTop);
    const QModelIndex top = table().indexAt(QPoint(5, 5));
    const QString shownAtTheTop = top.data(Qt::EditRole).toString();
    const int offset = table().visualRect(top).top();
    for (int second = 1; second <= kMinutes * 60; ++second) {
        work(second);
        ASSERT_EQ(selection(), "Page 3 of 12, Program 30") << second;
        ASSERT_TRUE(table().isExpanded(row("Program 12"))) << second;
    }
    // New rows above may push the list, but what is on the screen moves by no more than their height.
    EXPECT_EQ(model().rowCount(), 50);
    EXPECT_EQ(str(table().indexAt(QPoint(5, 5)).data(Qt::EditRole).toString()), str(shownAtTheTop));
    EXPECT_EQ(table().visualRect(table().indexAt(QPoint(5, 5))).top(), offset);
}

TEST_F(LongRunTest, anEditor_staysOpenForTenMinutesWithWhatWasTyped) {
    table().setCurrentIndex(row("Program 08"));
    command(actions().rename);
    auto* field = table().findChild<QLineEdit*>(QStringLiteral("programEditor"));
    ASSERT_NE(field, nullptr);
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("Half a na"));
    const QPointer<QLineEdit> editor = field;
    for (int second = 1; second <= kMinutes * 60; ++second) {
        work(second);
        ASSERT_FALSE(editor.isNull()) << second;
        ASSERT_EQ(str(editor->text()), "Half a na") << second;
        ASSERT_TRUE(editor->isVisible()) << second;
    }
    QTest::keyClicks(editor, QStringLiteral("me"));
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_NO_THROW(row("Half a name"));
}

TEST_F(LongRunTest, aSearchTypedSlowly_isNeitherLostNorDisturbed) {
    table().expand(row("Program 12"));
    const QString text = QStringLiteral("Page 1 of 12");
    QLineEdit& field = controller.window().searchAppField();
    field.setFocus();
    int typed = 0;
    for (int second = 1; second <= kMinutes * 60; ++second) {
        work(second);
        if (second % 50 == 0)
            QTest::keyClicks(&field, text.mid(typed++, 1));
        ASSERT_EQ(field.text(), text.first(typed)) << second;
        ASSERT_TRUE(field.hasFocus()) << second;
    }
    EXPECT_EQ(typed, 12);
    EXPECT_EQ(outlineText(), "+Program 12(Page 1 of 12)");
    field.clear();
    settle();
    EXPECT_TRUE(table().isExpanded(row("Program 12")));
    EXPECT_FALSE(table().isExpanded(row("Program 13")));
}

TEST_F(LongRunTest, projectsSwitchedAllTheTime_keepTheirRowsOpen) {
    choose(1);
    table().expand(row("Program 17"));
    settle();
    for (int second = 1; second <= kMinutes * 60; ++second) {
        work(second);
        if (second % 3 != 0)
            continue;
        choose(second % 2 + 1);
        if (chosen() == 1) {
            ASSERT_EQ(outlineText(), "Program 03, +Program 17(Page 0 of 17, Page 1 of 17, Page 2 of 17, "
                                     "Page 3 of 17, Page 4 of 17)")
                << second;
        } else {
            ASSERT_EQ(outlineText(), "Page 2 of 5, Program 20") << second;
        }
    }
}

TEST_F(LongRunTest, aProjectsSelection_staysForTenMinutes) {
    choose(1);
    table().expand(row("Program 17"));
    settle();
    select({row("Program 03"), row("Page 4 of 17", row("Program 17"))});
    for (int second = 1; second <= kMinutes * 60; ++second) {
        work(second);
        // As another program may ask, or when a member is frozen.
        if (second % 30 == 0)
            controller.projectController().refreshProject();
        ASSERT_EQ(selection(), "Program 03, Page 4 of 17") << second;
    }
}

TEST_F(LongRunTest, whatIsSelectedAmongAllTimers_isSelectedAgainAfterEveryProject) {
    table().expand(row("Program 12"));
    settle();
    select({row("Program 30"), row("Page 3 of 12", row("Program 12"))});
    for (int second = 1; second <= kMinutes * 60; ++second) {
        work(second);
        if (second % 5 != 0)
            continue;
        choose(second % 3);
        if (chosen() == 0) {
            ASSERT_EQ(selection(), "Page 3 of 12, Program 30") << second;
        }
    }
}

TEST_F(LongRunTest, ticks_repaintNoMoreThanTheRowsThatChange) {
    table().expandAllRows();
    settle();
    table().scrollTo(row("Program 12"), QAbstractItemView::PositionAtTop);
    settle();
    struct Painted : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                area += static_cast<QPaintEvent*>(event)->region().boundingRect().height();
            return false;
        }
        int area = 0;
    } painted;
    table().viewport()->installEventFilter(&painted);
    seconds(60);
    // Two rows that are next to each other, the application's and its window's, once a second.
    EXPECT_GT(painted.area, 0);
    EXPECT_LE(painted.area, 61 * 3 * table().visualRect(row("Program 12")).height());
}
