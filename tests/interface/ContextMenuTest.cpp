// SPDX-License-Identifier: MIT
// What the second mouse button and the menu key offer, and what an empty outline says.
#include "tests/interface/Desk.h"

#include <QContextMenuEvent>
#include <QMenu>

#include <gtest/gtest.h>

namespace {

struct ContextMenuTest : testing::Test, Desk {
    QMenu* openedOver(TKOutlineDisplayView& outline, const QModelIndex& index, const char* name) {
        const QPoint place = outline.visualRect(index).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, outline.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(outline.viewport(), &event);
        return controller.window().findChild<QMenu*>(QLatin1String(name));
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

TEST_F(ContextMenuTest, theMainItemsMenu_offersNothingThatOnlyProjectsHave) {
    show();
    auto& outline = controller.window().projectOutline();
    const QMenu* menu = openedOver(outline, outline.model()->index(0, 0), "projectContextMenu");
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(actions().addProject->isEnabled());
    EXPECT_FALSE(actions().removeProject->isEnabled());
    EXPECT_FALSE(actions().renameProject->isEnabled());
}

TEST_F(ContextMenuTest, aClosedMenu_isGone) {
    account("Mail", 10);
    show();
    openedOver(table(), row("Mail"), "timerContextMenu")->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(controller.window().findChild<QMenu*>(QStringLiteral("timerContextMenu")), nullptr);
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
