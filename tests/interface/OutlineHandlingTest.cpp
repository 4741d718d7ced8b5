// SPDX-License-Identifier: MIT
// What pointer and keyboard do to the outline.
#include "interface/outline/OutlineRole.h"
#include "interface/outline/ProgramCell.h"
#include "tests/interface/Desk.h"

#include <QContextMenuEvent>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

#include <gtest/gtest.h>

#include <random>

namespace {

struct OutlineHandlingTest : testing::Test, Desk {
    QPoint freezeControl(const QModelIndex& index) {
        const QRect frame = table().frameOfCell(index);
        return {frame.right() - 3, frame.center().y()};
    }

    void press(TKOutlineDisplayView& view, const QPoint& point, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mousePress(view.viewport(), Qt::LeftButton, modifiers, point);
    }

    void release(TKOutlineDisplayView& view, const QPoint& point) {
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, point);
        settle();
    }

    void clickFreezeControl(const QModelIndex& index) {
        const QPoint point = freezeControl(index);
        press(table(), point);
        release(table(), point);
    }

    QLineEdit* editor() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return table().findChild<QLineEdit*>(QStringLiteral("programEditor"));
    }

    QPoint emptySpace() { return {20, table().viewport()->height() - 5}; }

    void mailAndNotes() {
        account("Mail", 10, {{QStringLiteral("Inbox"), 5}, {QStringLiteral("Sent"), 5}});
        account("Notes", 100);
        show();
    }
};

// A sidebar: rows without timers.
struct Sidebar {
    explicit Sidebar(TKOutlineDisplayView* redirect) {
        for (const char* name : {"All", "Thesis"})
            model.appendRow(new QStandardItem(QString::fromUtf8(name)));
        view.setModel(&model);
        view.setHeaderHidden(true);
        view.setRedirectToOutlineView(redirect);
        view.resize(200, 300);
        view.show();
        QCoreApplication::processEvents();
    }

    QStandardItemModel model;
    TKOutlineDisplayView view;
};

} // namespace

TEST_F(OutlineHandlingTest, aPressOnTheFreezeControl_doesNotSelect) {
    mailAndNotes();
    press(table(), freezeControl(row("Mail")));
    EXPECT_FALSE(table().selectionModel()->hasSelection());
    EXPECT_FALSE(controller.tracker().fullTimeSet()[0]->branched()) << "not before the release";
}

TEST_F(OutlineHandlingTest, fromRightToLeft_theFreezeControlIsAtTheLeft) {
    mailAndNotes();
    table().setLayoutDirection(Qt::RightToLeft);
    settle();
    const QRect frame = table().frameOfCell(row("Mail"));
    press(table(), QPoint(frame.right() - 3, frame.center().y()));
    EXPECT_TRUE(table().selectionModel()->hasSelection());
    table().clearSelection();
    press(table(), QPoint(frame.left() + 3, frame.center().y()));
    EXPECT_FALSE(table().selectionModel()->hasSelection());
}

TEST_F(OutlineHandlingTest, theFreezeControl_freezesAndLetsTheFrozenCopyBeNamed) {
    mailAndNotes();
    const auto mail = TKOutlineDisplayView::itemAt(row("Mail"));
    clickFreezeControl(row("Mail"));
    EXPECT_TRUE(mail->branched());
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), mail->renamedName());
    EXPECT_EQ(editor()->selectedText(), mail->renamedName());
    editor()->setText(QStringLiteral("First draft"));
    QTest::keyClick(editor(), Qt::Key_Return);
    settle();
    EXPECT_EQ(mail->renamedName(), QStringLiteral("First draft"));
}

TEST_F(OutlineHandlingTest, aWindowFrozen_isNamedBeneathItsApplication) {
    mailAndNotes();
    table().expand(row("Mail"));
    const auto inbox = TKOutlineDisplayView::itemAt(row("Inbox", row("Mail")));
    clickFreezeControl(row("Inbox", row("Mail")));
    EXPECT_TRUE(inbox->branched());
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(TKOutlineDisplayView::itemAt(table().currentIndex()), inbox);
    EXPECT_TRUE(table().isExpanded(row("Mail")));
}

TEST_F(OutlineHandlingTest, theControlOfAFrozenTimer_neitherSelectsNorFreezesAgain) {
    mailAndNotes();
    clickFreezeControl(row("Notes"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    table().clearSelection();
    const auto count = controller.tracker().fullTimeSet().size();
    const auto frozen = table().currentIndex();
    const QPoint point = freezeControl(frozen);
    press(table(), point);
    EXPECT_FALSE(table().selectionModel()->hasSelection());
    release(table(), point);
    EXPECT_EQ(controller.tracker().fullTimeSet().size(), count);
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(OutlineHandlingTest, twoPressesOnTheControlOfAFrozenTimer_openNoEditor) {
    mailAndNotes();
    clickFreezeControl(row("Notes"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    const QModelIndex frozen = table().currentIndex();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(frozen).center());
    table().clearSelection();
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, freezeControl(frozen));
    settle();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_FALSE(table().selectionModel()->hasSelection());
}

TEST_F(OutlineHandlingTest, aPressAtTheRightOfAProject_doesNothing) {
    mailAndNotes();
    Sidebar sidebar(&table());
    bool isAsked = false;
    sidebar.view.serve({.branchNode = [&](const auto&) { isAsked = true; }});
    select({row("Notes")});
    const QRect frame = sidebar.view.frameOfCell(sidebar.model.index(1, 0));
    press(sidebar.view, {frame.right() - 3, frame.center().y()});
    release(sidebar.view, {frame.right() - 3, frame.center().y()});
    EXPECT_FALSE(sidebar.view.selectionModel()->hasSelection());
    EXPECT_FALSE(isAsked);
    EXPECT_TRUE(table().selectionModel()->hasSelection());
}

TEST_F(OutlineHandlingTest, theCell_reachesTheRightEdgeOfItsColumn) {
    mailAndNotes();
    table().expand(row("Mail"));
    for (const QModelIndex& index : {row("Mail"), row("Inbox", row("Mail"))})
        EXPECT_EQ(table().frameOfCell(index).right() + 1, table().columnWidth(0));
}

TEST_F(OutlineHandlingTest, aClickOnEmptySpace_deselects) {
    mailAndNotes();
    select({row("Mail")});
    press(table(), emptySpace());
    EXPECT_FALSE(table().selectionModel()->hasSelection());
}

TEST_F(OutlineHandlingTest, aClickOnEmptySpaceOfTheSidebar_deselectsTimersAndKeepsTheProject) {
    mailAndNotes();
    Sidebar sidebar(&table());
    sidebar.view.setSelectionMode(QAbstractItemView::SingleSelection);
    sidebar.view.setCurrentIndex(sidebar.model.index(1, 0));
    select({row("Mail")});
    QTest::mouseClick(sidebar.view.viewport(), Qt::LeftButton, {},
                      {20, sidebar.view.viewport()->height() - 5});
    EXPECT_FALSE(table().selectionModel()->hasSelection());
    EXPECT_TRUE(sidebar.view.selectionModel()->isSelected(sidebar.model.index(1, 0)));
    QTest::mouseClick(sidebar.view.viewport(), Qt::LeftButton, Qt::ControlModifier,
                      sidebar.view.visualRect(sidebar.model.index(1, 0)).center());
    EXPECT_TRUE(sidebar.view.selectionModel()->isSelected(sidebar.model.index(1, 0)));
}

TEST_F(OutlineHandlingTest, escape_tellsEvenWhenNothingWasSelected) {
    mailAndNotes();
    QSignalSpy told(&table(), &TKOutlineDisplayView::selectionDidChange);
    QTest::keyClick(&table(), Qt::Key_Escape);
    EXPECT_EQ(told.count(), 1);
    Sidebar sidebar(&table());
    sidebar.view.setCurrentIndex(sidebar.model.index(1, 0));
    select({row("Mail")});
    told.clear();
    QTest::keyClick(&sidebar.view, Qt::Key_Escape);
    EXPECT_EQ(told.count(), 1);
    EXPECT_FALSE(table().selectionModel()->hasSelection());
    EXPECT_TRUE(sidebar.view.selectionModel()->hasSelection()) << "the project stays chosen";
}

TEST_F(OutlineHandlingTest, escapeInAnEditor_endsItAndGivesTheViewTheFocus) {
    mailAndNotes();
    controller.window().activateWindow();
    table().setFocus();
    table().setCurrentIndex(row("Mail"));
    table().editName();
    ASSERT_NE(editor(), nullptr);
    editor()->setText(QStringLiteral("Post"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_TRUE(table().hasFocus());
    EXPECT_TRUE(row("Mail").isValid()) << "not renamed";
}

TEST_F(OutlineHandlingTest, altClickInTheSidebar_unfoldsAllAndFoldsAll) {
    account("Chess", 1);
    account("Mail", 10, {{QStringLiteral("Inbox"), 5}, {QStringLiteral("Sent"), 5}});
    account("Web", 10, {{QStringLiteral("A"), 5}, {QStringLiteral("B"), 5}});
    show();
    Sidebar sidebar(&table());
    QSignalSpy unfolded(&table(), &TKOutlineDisplayView::itemDidExpand);
    QSignalSpy folded(&table(), &TKOutlineDisplayView::itemDidCollapse);
    const QPoint thesis = sidebar.view.visualRect(sidebar.model.index(1, 0)).center();
    press(sidebar.view, thesis, Qt::AltModifier | Qt::ShiftModifier);
    release(sidebar.view, thesis);
    EXPECT_EQ(unfolded.count(), 0) << "with Alt alone";
    press(sidebar.view, thesis, Qt::AltModifier);
    release(sidebar.view, thesis);
    EXPECT_EQ(unfolded.count(), 2);
    EXPECT_TRUE(table().isExpanded(row("Mail")) && table().isExpanded(row("Web")));
    table().collapse(row("Web"));
    press(sidebar.view, thesis, Qt::AltModifier);
    release(sidebar.view, thesis);
    EXPECT_EQ(folded.count(), 2);
    EXPECT_FALSE(table().isExpanded(row("Mail")) || table().isExpanded(row("Web")));
    press(table(), table().visualRect(row("Mail")).center(), Qt::AltModifier);
    EXPECT_FALSE(table().isExpanded(row("Mail"))) << "nothing to redirect to";
}

TEST_F(OutlineHandlingTest, thePointer_highlightsItsRowAndRepaintsTwo) {
    mailAndNotes();
    struct Painted : QObject {
        bool eventFilter(QObject* object, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                region += static_cast<QPaintEvent*>(event)->region();
            return QObject::eventFilter(object, event);
        }
        QRegion region;
    } painted;
    EXPECT_EQ(table().highlightedRow(), -1);
    QTest::mouseMove(table().viewport(), table().visualRect(row("Mail")).center());
    EXPECT_EQ(table().highlightedRow(), 0);
    settle();
    table().viewport()->installEventFilter(&painted);
    QTest::mouseMove(table().viewport(), table().visualRect(row("Notes")).center());
    settle();
    EXPECT_EQ(table().highlightedRow(), 1);
    EXPECT_EQ(painted.region, QRegion(table().rectOfRow(0)) + table().rectOfRow(1));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(table().viewport(), &leave);
    EXPECT_EQ(table().highlightedRow(), 1) << "leaving alone changes nothing";
    QTest::mouseMove(table().viewport(), emptySpace());
    EXPECT_EQ(table().highlightedRow(), -1);
    table().setHighlightOnMouseOver(false);
    QTest::mouseMove(table().viewport(), table().visualRect(row("Mail")).center());
    EXPECT_EQ(table().highlightedRow(), -1);
}

TEST_F(OutlineHandlingTest, thePointerElsewhereInTheWindow_highlightsNoRow) {
    mailAndNotes();
    QTest::mouseMove(table().viewport(), table().visualRect(row("Mail")).center());
    EXPECT_EQ(table().highlightedRow(), 0);
    QCursor::setPos(table().window()->mapToGlobal(QPoint(5, 5)));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(table().viewport(), &leave);
    EXPECT_EQ(table().highlightedRow(), -1);
}

TEST_F(OutlineHandlingTest, rows_areNumberedAsTheyStandBeneathOneAnother) {
    mailAndNotes();
    table().expand(row("Mail"));
    EXPECT_EQ(table().indexOfRow(2), row("Sent", row("Mail")));
    EXPECT_EQ(table().indexOfRow(3), row("Notes"));
    EXPECT_FALSE(table().indexOfRow(4).isValid());
    EXPECT_FALSE(table().indexOfRow(-1).isValid());
    EXPECT_EQ(table().rowAtPoint(table().visualRect(row("Notes")).center()), 3);
}

TEST_F(OutlineHandlingTest, manyDraggedRows_hangAtThePointerAsAFew) {
    for (int i = 0; i < 40; ++i)
        account(qPrintable(QStringLiteral("Program %1").arg(i)), 1);
    show();
    table().selectAll();
    const QPixmap many = table().dragPixmap(table().selectedRows());
    const QPixmap one = table().dragPixmap({table().selectedRows().first()});
    EXPECT_EQ(many.height(), 7 * one.height());
}

TEST_F(OutlineHandlingTest, theMenuKey_asksForTheMenuAtTheRow) {
    mailAndNotes();
    table().setCurrentIndex(row("Notes"));
    QSignalSpy asked(&table(), &TKOutlineDisplayView::menuRequested);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(table().viewport(), &key);
    ASSERT_EQ(asked.count(), 1);
    const QPoint position = table().viewport()->mapFromGlobal(asked[0][0].toPoint());
    EXPECT_EQ(table().indexAt(position), row("Notes"));
}

TEST_F(OutlineHandlingTest, typing_findsTheRowOfThatName) {
    mailAndNotes();
    table().setCurrentIndex(row("Mail"));
    QTest::keyClicks(&table(), QStringLiteral("not"));
    EXPECT_EQ(table().currentIndex(), row("Notes"));
}

TEST_F(OutlineHandlingTest, leftAndRight_foldAndUnfold) {
    mailAndNotes();
    QSignalSpy unfolded(&table(), &TKOutlineDisplayView::itemDidExpand);
    QSignalSpy folded(&table(), &TKOutlineDisplayView::itemDidCollapse);
    table().setCurrentIndex(row("Mail"));
    QTest::keyClick(&table(), Qt::Key_Right);
    EXPECT_TRUE(table().isExpanded(row("Mail")));
    QTest::keyClick(&table(), Qt::Key_Left);
    EXPECT_FALSE(table().isExpanded(row("Mail")));
    EXPECT_EQ(unfolded.count(), 1);
    EXPECT_EQ(folded.count(), 1);
}

TEST_F(OutlineHandlingTest, aFrozenRow_isReadOutAsSuch) {
    mailAndNotes();
    EXPECT_EQ(row("Notes").data(Qt::AccessibleTextRole).toString(), QStringLiteral("Notes, 00:01:40"));
    TKOutlineDisplayView::itemAt(row("Notes"))->node().setBranched(true);
    EXPECT_EQ(row("Notes").data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("Notes, 00:01:40, frozen"));
}

TEST_F(OutlineHandlingTest, aSearchTypedWhileARowIsEdited_leavesItsEditorOpen) {
    mailAndNotes();
    table().setCurrentIndex(row("Notes"));
    table().editName();
    ASSERT_NE(editor(), nullptr);
    editor()->setText(QStringLiteral("Diary"));
    controller.tracker().setSearchString(QStringLiteral("not"));
    settle();
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:01:40"));
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("Diary"));
    controller.tracker().setSearchString(QString());
    settle();
    ASSERT_NE(editor(), nullptr);
    QTest::keyClick(editor(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(row("Diary").isValid());
}

TEST_F(OutlineHandlingTest, aRowThatGoesWhileItIsEdited_takesItsEditorWithIt) {
    mailAndNotes();
    table().setCurrentIndex(row("Notes"));
    table().editName();
    ASSERT_NE(editor(), nullptr);
    controller.tracker().setSearchString(QStringLiteral("Inbox"));
    settle();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(model().rowCount(), 1);
}

TEST_F(OutlineHandlingTest, aFreezeWhileAnotherRowIsEdited_keepsWhatWasTyped) {
    mailAndNotes();
    controller.window().activateWindow();
    const auto mail = TKOutlineDisplayView::itemAt(row("Mail"));
    table().setCurrentIndex(row("Mail"));
    table().editName();
    ASSERT_NE(editor(), nullptr);
    editor()->setText(QStringLiteral("Post"));
    table().setFocus();
    clickFreezeControl(row("Notes"));
    EXPECT_EQ(mail->renamedName(), QStringLiteral("Post"));
    ASSERT_NE(editor(), nullptr);
    EXPECT_TRUE(TKOutlineDisplayView::itemAt(table().currentIndex())->branched());
}

TEST_F(OutlineHandlingTest, anotherTreeOfTimers_keepsTheOrderChosen) {
    mailAndNotes();
    table().sortByColumn(TimeTreeModel::TimeSpentColumn, Qt::DescendingOrder);
    TimeTreeModel other(std::nullopt, fakes.runLoop, [](const auto&, const QString&) {});
    other.setSource(TimeTreeModel::sourceOf(controller.tracker()));
    EXPECT_EQ(textOf(other), QStringLiteral("Mail 00:00:10, Notes 00:01:40"));
    auto& first = static_cast<TimeTreeModel&>(model());
    table().setTimeModel(other);
    EXPECT_EQ(textOf(other), QStringLiteral("Notes 00:01:40, Mail 00:00:10"));
    table().sortByColumn(TimeTreeModel::TimeSpentColumn, Qt::AscendingOrder);
    table().setTimeModel(first);
    EXPECT_EQ(textOf(first), QStringLiteral("Mail 00:00:10, Notes 00:01:40"));
}

TEST_F(OutlineHandlingTest, anyFoldingAndFreezing_leavesTheViewAndTheTreeAgreed) {
    for (const char* name : {"Mail", "Notes", "Web", "Chess"})
        account(name, 10, {{QStringLiteral("A"), 5}, {QStringLiteral("B"), 4}, {QStringLiteral("C"), 3}});
    show();
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (int step = 0; step < 300; ++step) {
        const int count = model().rowCount();
        const QModelIndex top = count > 0 ? model().index(int(random() % unsigned(count)), 0) : QModelIndex();
        switch (random() % 8) {
        case 0:
            table().expandAllRows();
            break;
        case 1:
            table().collapseAllRows();
            break;
        case 2:
            table().setExpanded(top, !table().isExpanded(top));
            break;
        case 3:
            if (step % 4 == 0 && top.isValid())
                clickFreezeControl(top);
            break;
        case 4:
            controller.tracker().setSearchString(random() % 2 ? QStringLiteral("B") : QString());
            break;
        case 5:
            table().sortByColumn(int(random() % 2), Qt::AscendingOrder);
            break;
        case 6:
            account("Garden", double(random() % 50), {{QStringLiteral("B"), 1}, {QStringLiteral("D"), 2}});
            break;
        default:
            if (count > 12)
                controller.tracker().removeUUIDs({TKOutlineDisplayView::itemAt(top)->uuid().value()});
        }
        settle();
        // Each row is where the view says it is.
        int place = 0;
        for (int i = 0; i < model().rowCount(); ++i) {
            const QModelIndex parent = model().index(i, 0);
            ASSERT_EQ(table().indexOfRow(place++), parent) << "step " << step;
            for (int j = 0; table().isExpanded(parent) && j < model().rowCount(parent); ++j)
                ASSERT_EQ(table().indexOfRow(place++), model().index(j, 0, parent)) << "step " << step;
        }
        ASSERT_EQ(std::size_t(model().rowCount()), controller.tracker().timeSet().size());
    }
}

TEST_F(OutlineHandlingTest, chosenRows_areUnfoldedInOneGo) {
    account("Mail", 10, {{QStringLiteral("Inbox"), 5}, {QStringLiteral("Sent"), 5}});
    account("Web", 10, {{QStringLiteral("A"), 5}, {QStringLiteral("B"), 5}});
    show();
    table().expandRows(
        [](const QModelIndex& index) { return index.data().toString() == QStringLiteral("Web"); });
    EXPECT_FALSE(table().isExpanded(row("Mail")));
    EXPECT_TRUE(table().isExpanded(row("Web")));
    EXPECT_EQ(model().rowCount(row("Mail")), 0) << "nobody looked";
}
