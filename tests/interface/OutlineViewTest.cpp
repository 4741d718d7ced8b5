// SPDX-License-Identifier: MIT
// What the person sees of the outline while time passes.
#include "interface/outline/TimeTreeModel.h"
#include "tests/interface/Desk.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Records which parts of a widget were painted.
class PaintSpy : public QObject {
public:
    explicit PaintSpy(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            painted << static_cast<QPaintEvent*>(event)->rect();
        return QObject::eventFilter(object, event);
    }

    QList<QRect> painted;
};

struct OutlineViewTest : testing::Test, Desk {
    void forty(const char* application) {
        std::vector<std::pair<QString, double>> windows;
        for (int i = 0; i < 40; ++i)
            windows.emplace_back(QStringLiteral("Window %1").arg(i, 2, 10, QLatin1Char('0')), i);
        account(application, 1000, windows);
    }
};

} // namespace

TEST_F(OutlineViewTest, aRunningTimer_repaintsItsTwoCellsOnceASecond) {
    account("Mail", 10, {{QStringLiteral("Inbox"), 5}, {QStringLiteral("Sent"), 5}});
    account("Notes", 100);
    show();
    table().expandAll();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(0.5);
    PaintSpy spy(*table().viewport());
    seconds(10);
    // The application and its window need not change in the same tick.
    EXPECT_GE(spy.painted.size(), 1);
    for (const QRect& painted : spy.painted)
        EXPECT_LE(painted.height(), 2 * table().visualRect(row("Mail")).height()) << "only what changed";
    EXPECT_EQ(row("Mail").siblingAtColumn(1).data().toString(), QStringLiteral("00:00:20"));
}

TEST_F(OutlineViewTest, aTickWithoutANewSecond_tellsNothing) {
    account("Mail", 10);
    show();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(0.1);
    QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    PaintSpy spy(*table().viewport());
    seconds(0.5);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(spy.painted.size(), 0);
    seconds(10);
    EXPECT_EQ(changed.count(), 10) << "one cell, once a second";
}

TEST_F(OutlineViewTest, selectionUnfoldedRowsAndScrolling_outliveTicksAndNewRows) {
    forty("Mail");
    forty("Notes");
    show();
    table().expand(row("Mail"));
    table().expand(row("Notes"));
    select({row("Window 07", row("Notes"))});
    table().verticalScrollBar()->setValue(200);
    front("Notes", "Window 03");
    controller.timer().startTimer();
    seconds(3);
    account("Zebra", 1);
    front("Notes", "Window 99");
    seconds(3);
    EXPECT_EQ(table().verticalScrollBar()->value(), 200);
    EXPECT_TRUE(table().isExpanded(row("Mail")));
    EXPECT_TRUE(table().isExpanded(row("Notes")));
    EXPECT_EQ(table().selectionModel()->selectedRows(), QModelIndexList{row("Window 07", row("Notes"))});
    controller.tracker().removeUUIDs({controller.tracker().fullTimeSet()[0]->uuid().value()});
    settle();
    EXPECT_EQ(table().selectionModel()->selectedRows(), QModelIndexList{row("Window 07", row("Notes"))});
    EXPECT_TRUE(table().isExpanded(row("Notes")));
}

TEST_F(OutlineViewTest, anEditor_staysOpenWhileTimePasses) {
    account("Mail", 10);
    account("Notes", 10);
    show();
    table().setCurrentIndex(row("Mail"));
    front("Mail", "Inbox");
    controller.timer().startTimer();
    QTest::keyClick(&table(), Qt::Key_Return);
    auto* editor = table().findChild<QLineEdit*>(QStringLiteral("programEditor"));
    ASSERT_NE(editor, nullptr);
    editor->setText(QStringLiteral("Pos"));
    seconds(3);
    account("Aardvark", 1);
    editor = table().findChild<QLineEdit*>(QStringLiteral("programEditor"));
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), QStringLiteral("Pos"));
    QTest::keyClick(editor, Qt::Key_T);
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_TRUE(textOf(model()).contains(QStringLiteral("Post – Mail"))) << qPrintable(textOf(model()));
}

TEST_F(OutlineViewTest, aFoldedApplication_dropsItsRowsAndTheirSelection) {
    account("Mail", 10, {{QStringLiteral("Inbox"), 5}, {QStringLiteral("Sent"), 5}});
    show();
    table().expand(row("Mail"));
    select({row("Inbox", row("Mail"))});
    table().collapse(row("Mail"));
    settle();
    EXPECT_FALSE(table().selectionModel()->hasSelection());
    EXPECT_EQ(model().rowCount(row("Mail")), 0);
    table().expand(row("Mail"));
    EXPECT_EQ(model().rowCount(row("Mail")), 2);
}

TEST_F(OutlineViewTest, aClickOnTimeSpent_sortsByTime) {
    account("Mail", 20);
    account("Notes", 10);
    show();
    table().sortByColumn(TimeTreeModel::TimeSpentColumn, Qt::AscendingOrder);
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:00:10, Mail 00:00:20"));
}

TEST_F(OutlineViewTest, escape_clearsTheSelection) {
    account("Mail", 20);
    show();
    select({row("Mail")});
    QTest::keyClick(&table(), Qt::Key_Escape);
    EXPECT_FALSE(table().selectionModel()->hasSelection());
}

TEST_F(OutlineViewTest, anEmptyOutline_invites) {
    show();
    const QImage empty = table().viewport()->grab().toImage();
    account("Mail", 20);
    controller.tracker().reset();
    settle();
    EXPECT_EQ(table().viewport()->grab().toImage(), empty);
    QImage blank = empty;
    blank.fill(table().palette().color(QPalette::Base));
    EXPECT_NE(empty, blank) << "the invitation is drawn";
}
