// SPDX-License-Identifier: MIT
// What the secondary mouse button and the menu key offer, and what an empty outline says.
#include "interface/labels/TKLabelButton.h"
#include "interface/labels/TKLabelViewController.h"
#include "tests/interface/ProjectDesk.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>

#include <gtest/gtest.h>

namespace {

struct ContextMenuTest : testing::Test, ProjectDesk {
    QMenu* openedOver(TKOutlineDisplayView& outline, const QModelIndex& index, const char* name) {
        const QPoint place = outline.visualRect(index).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, outline.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(outline.viewport(), &event);
        return controller.window().findChild<QMenu*>(QLatin1String(name));
    }

    // Opens the menu of the project in that row; answers its colours.
    TKLabelViewController& labelsOver(int row) {
        QMenu* menu = openedOver(sidebar(), at(row), "projectContextMenu");
        auto* labels = menu ? menu->findChild<TKLabelViewController*>() : nullptr;
        return labels ? *labels : throw std::logic_error("there are no colours");
    }
};

} // namespace

TEST_F(ContextMenuTest, aTimersMenu_offersWhatCanBeDoneToIt) {
    account("Mail", 10);
    show();
    select({row("Mail")});
    const QMenu* menu = openedOver(table(), row("Mail"), "timerContextMenu");
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions().contains(actions().branch));
    EXPECT_TRUE(menu->actions().contains(actions().deleteRows));
    EXPECT_TRUE(actions().branch->isEnabled());
}

TEST_F(ContextMenuTest, aTimersMenu_putsItIntoAProjectWithoutTheMouse) {
    account("Mail", 10);
    account("Notes", 10);
    addProject("Poster");
    addProject("Letters & more", {QStringLiteral("Mail")});
    show();
    select({row("Mail"), row("Notes")});
    QMenu* menu = actions().addToProject->menu();
    EXPECT_TRUE(
        openedOver(table(), row("Mail"), "timerContextMenu")->actions().contains(actions().addToProject));
    Q_EMIT menu->aboutToShow();
    EXPECT_EQ(menu->actions()[1]->text(), QStringLiteral("Letters && more"));
    menu->actions()[0]->trigger();
    EXPECT_EQ(membersOf(0), "Mail, Notes");
    actions().undo->trigger();
    EXPECT_EQ(membersOf(0), "");
}

TEST_F(ContextMenuTest, aTimersMenu_showsWhichProjectHasItAlready) {
    account("Mail", 10);
    account("Notes", 10);
    addProject("Poster");
    addProject("Letters", {QStringLiteral("Mail")});
    show();
    select({row("Mail")});
    QMenu* menu = actions().addToProject->menu();
    Q_EMIT menu->aboutToShow();
    EXPECT_TRUE(menu->actions()[0]->isEnabled());
    EXPECT_FALSE(menu->actions()[1]->isEnabled());
    EXPECT_TRUE(menu->actions()[1]->isChecked());
    select({row("Mail"), row("Notes")});
    Q_EMIT menu->aboutToShow();
    EXPECT_TRUE(menu->actions()[1]->isEnabled()) << "only one of them is in it";
}

TEST_F(ContextMenuTest, aTimersMenu_makesAProjectOfItAndAsksForItsName) {
    account("Mail", 10);
    show();
    select({row("Mail")});
    QMenu* menu = actions().addToProject->menu();
    Q_EMIT menu->aboutToShow();
    menu->actions().constLast()->trigger();
    settle();
    EXPECT_EQ(membersOf(0), "Mail");
    EXPECT_NE(sidebar().findChild<QLineEdit*>(), nullptr);
}

TEST_F(ContextMenuTest, theMainItemsMenu_offersNothingThatOnlyProjectsHave) {
    show();
    auto& outline = controller.window().projectOutline();
    const QMenu* menu = openedOver(outline, outline.model()->index(0, 0), "projectContextMenu");
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(actions().addProject->isEnabled());
    EXPECT_FALSE(actions().removeProject->isEnabled());
    EXPECT_FALSE(actions().renameProject->isEnabled());
}

TEST_F(ContextMenuTest, aProjectsMenu_labelsItWithoutAMenuBar) {
    addProject("Work");
    show();
    controller.appDelegate().presence().setShowDockIcon(false, false);
    choose(1);
    projects().setSelectedColorTag(*projects().projects().front(), 2);
    QPointer labels(&labelsOver(1));
    EXPECT_TRUE(labels->isVisible());
    EXPECT_TRUE(labels->labels()[2]->selectedColor()) << "the one it has";
    QTest::mouseClick(labels->labels()[5], Qt::LeftButton);
    EXPECT_EQ(projects().projects().front()->colorTag(), 5);
    EXPECT_FALSE(labels && labels->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(labelsOver(1).labels()[5]->selectedColor());
}

TEST_F(ContextMenuTest, theMainItemsMenu_showsColoursThatCannotBeChosen) {
    show();
    for (const TKLabelButton* label : labelsOver(0).labels())
        EXPECT_FALSE(label->isEnabled());
}

TEST_F(ContextMenuTest, aClosedMenu_isGone) {
    account("Mail", 10);
    show();
    openedOver(table(), row("Mail"), "timerContextMenu")->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(controller.window().findChild<QMenu*>(QStringLiteral("timerContextMenu")), nullptr);
}

TEST_F(ContextMenuTest, shiftAndF10_openTheMenuOfWhateverHasTheKeys) {
    account("Mail", 10);
    addProject("Poster");
    show();
    controller.window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&controller.window()));
    const auto opened = [this](QWidget& focus) {
        focus.setFocus();
        QTest::keyClick(&focus, Qt::Key_F10, Qt::ShiftModifier);
        settle();
        const QWidget* menu = QApplication::activePopupWidget();
        const QString name = menu ? menu->objectName() : QStringLiteral("none");
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        return str(name);
    };
    table().setCurrentIndex(row("Mail"));
    EXPECT_EQ(opened(table()), "timerContextMenu");
    EXPECT_EQ(opened(sidebar()), "projectContextMenu");
}

TEST_F(ContextMenuTest, keysInTheHeadings_leaveTheRowsAlone) {
    account("Mail", 10);
    account("Notes", 20);
    account("Paint", 30);
    show();
    table().setCurrentIndex(row("Notes"));
    QHeaderView& header = *table().header();
    header.setFocus();
    for (const Qt::Key key :
         {Qt::Key_Home, Qt::Key_End, Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_P, Qt::Key_Escape}) {
        QTest::keyClick(&header, key);
        EXPECT_EQ(table().currentIndex().siblingAtColumn(0), row("Notes")) << key;
        EXPECT_EQ(table().selectedRows().size(), 1) << key;
    }
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&header, &event);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ContextMenuTest, freezingSelectedRows_canBeAskedForByTheKeyboardAlone) {
    account("Mail", 10);
    account("Notes", 20);
    show();
    select({row("Mail"), row("Notes")});
    command(actions().branch);
    for (const auto& app : controller.tracker().fullTimeSet())
        EXPECT_TRUE(app->branched()) << app->name().toStdString();
}
