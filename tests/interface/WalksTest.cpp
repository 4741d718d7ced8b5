// SPDX-License-Identifier: MIT
// Every menu command, reached as people do: by the mouse alone and by the keyboard alone.
#include "tests/interface/ProjectDesk.h"

#include <QAccessible>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A desk on which every command has something to do.
struct Walk : ProjectDesk {
    Walk() {
        mailNotesAndPaint();
        addProject("Poster", {QStringLiteral("Mail"), QStringLiteral("Paint")});
        addProject("Letters");
        addProject("Garden");
        show();
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        model().setData(row("Paint"), QStringLiteral("Sketches"));
        model().setData(row("Notes"), QStringLiteral("Ideas"));
        command(actions().undo);
        choose(1);
        command(actions().moveProjectDown);
        table().setFocus();
        table().setCurrentIndex(model().index(0, 0));
        settle();
    }

    ~Walk() { closeAll(); }

    MainWindow& window() { return controller.window(); }

    QList<QMenu*> menus() {
        QList<QMenu*> found;
        for (QAction* title : window().menuBar()->actions())
            found << title->menu();
        return found;
    }

    // The commands of a menu; separators, rows of widgets and menus below it are none.
    static QList<QAction*> commands(const QMenu& menu) {
        QList<QAction*> found;
        for (QAction* action : menu.actions())
            if (!action->isSeparator() && !action->menu() && !action->objectName().isEmpty())
                found << action;
        return found;
    }

    void closeAll() {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        settle();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window(), Qt::Key(key), modifiers);
        settle();
    }

    QString focused() {
        const QWidget* focus = QApplication::focusWidget();
        return focus ? focus->objectName() : QString();
    }
};

struct WalksTest : testing::Test, Walk {};

// Goes to every enabled command, each time on a new desk.
void forEachCommand(const std::function<void(Walk&, QMenu&, QAction&)>& reach) {
    int walked = 0;
    for (int menu = 0, command = 0;; ++command) {
        Walk walk;
        const QList<QMenu*> menus = walk.menus();
        if (menu == menus.size())
            break;
        const QList<QAction*> commands = Walk::commands(*menus[menu]);
        if (command == commands.size()) {
            ++menu;
            command = -1;
            continue;
        }
        QAction& action = *commands[command];
        if (!action.isEnabled())
            continue;
        QSignalSpy triggered(&action, &QAction::triggered);
        reach(walk, *menus[menu], action);
        walk.settle();
        EXPECT_EQ(triggered.count(), 1) << qPrintable(action.objectName());
        ++walked;
    }
    EXPECT_GE(walked, 24);
}

// Every name in the tree that assistive programs walk.
void collectNames(QAccessibleInterface* node, QStringList& names) {
    names << node->text(QAccessible::Name);
    // The rows of a view are many, and named by their own test.
    if (node->role() == QAccessible::Tree)
        return;
    for (int i = 0; i < node->childCount(); ++i)
        if (QAccessibleInterface* child = node->child(i))
            collectNames(child, names);
}

} // namespace

TEST(Walks, everyCommand_canBeReachedByTheMouseAlone) {
    forEachCommand([](Walk& walk, QMenu& menu, QAction& action) {
        QMenuBar& bar = *walk.window().menuBar();
        // If the mouse has not moved since a menu opened, a click closes the menu; so it moves first.
        const QPoint title = bar.actionGeometry(menu.menuAction()).center();
        QTest::mouseMove(&bar, title);
        walk.settle();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, title);
        ASSERT_TRUE(menu.isVisible()) << qPrintable(menu.title());
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    });
}

TEST(Walks, everyCommand_canBeReachedByTheKeyboardAlone) {
    forEachCommand([](Walk& walk, QMenu& menu, QAction& action) {
        const qsizetype mnemonic = menu.title().indexOf(u'&');
        ASSERT_GE(mnemonic, 0) << qPrintable(menu.title());
        walk.press(menu.title()[mnemonic + 1].toUpper().unicode(), Qt::AltModifier);
        ASSERT_TRUE(menu.isVisible()) << qPrintable(menu.title());
        for (int step = 0; step < 30 && menu.activeAction() != &action; ++step)
            QTest::keyClick(&menu, Qt::Key_Down);
        ASSERT_EQ(menu.activeAction(), &action) << qPrintable(action.objectName());
        QTest::keyClick(&menu, Qt::Key_Return);
    });
}

TEST(Walks, everyShortcut_doesWhatItsMenuSays) {
    forEachCommand([](Walk& walk, QMenu&, QAction& action) {
        if (action.shortcut().isEmpty()) {
            action.trigger();
            return;
        }
        const QKeyCombination keys = action.shortcut()[0];
        walk.press(keys.key(), keys.keyboardModifiers());
    });
}

TEST_F(WalksTest, tab_goesThroughEveryControlAndComesRound) {
    choose(0);
    table().setFocus();
    QStringList visited;
    do {
        visited << focused();
        press(Qt::Key_Tab);
        ASSERT_LT(visited.size(), 30) << visited.join(u' ').toStdString();
    } while (focused() != QLatin1String("mainTable"));
    for (const char* control :
         {"toggleCounting", "clearTimersItem", "searchAppField", "projectOutline", "cutOffSlider", "timeSum"})
        EXPECT_TRUE(visited.contains(QLatin1String(control))) << control << " of " << str(visited.join(u' '));
}

TEST_F(WalksTest, aProject_canBeMadeNamedMovedAndChosenByTheKeyboardAlone) {
    press(Qt::Key_N, Qt::ControlModifier);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), QStringLiteral("Taxes"));
    QTest::keyClick(editor(), Qt::Key_Return);
    settle();
    EXPECT_EQ(sidebarText(), "All Timers, Letters, Poster, Garden, [Taxes]");
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(sidebarText(), "All Timers, Letters, Poster, [Taxes], Garden");
    sidebar().setFocus();
    press(Qt::Key_Home);
    EXPECT_EQ(sidebarText(), "[All Timers], Letters, Poster, Taxes, Garden");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(sidebarText(), "All Timers, Letters, [Poster], Taxes, Garden");
    EXPECT_EQ(outlineText(), "Mail, Sketches");
}

TEST_F(WalksTest, aTimer_canBePutIntoAProjectByTheKeyboardAlone) {
    choose(0);
    table().setFocus();
    select({row("Notes")});
    actions().addToProject->menu()->popup({});
    settle();
    QMenu& projectsMenu = *actions().addToProject->menu();
    QTest::keyClick(&projectsMenu, Qt::Key_Down);
    QTest::keyClick(&projectsMenu, Qt::Key_Down);
    QTest::keyClick(&projectsMenu, Qt::Key_Return);
    settle();
    EXPECT_EQ(membersOf(1), "Mail, Paint, Notes");
}

TEST_F(WalksTest, theToolbar_startsPausesAndClearsByTheMouse) {
    auto* start = window().findChild<QWidget*>(QStringLiteral("toggleCounting"));
    QTest::mouseClick(start, Qt::LeftButton);
    EXPECT_TRUE(controller.timer().isRunning());
    QTest::mouseClick(start, Qt::LeftButton);
    EXPECT_FALSE(controller.timer().isRunning());
    QTest::mouseClick(window().findChild<QWidget*>(QStringLiteral("clearTimersItem")), Qt::LeftButton);
    EXPECT_EQ(alerts.questions, QStringList{QStringLiteral("Clear Timers")});
}

TEST_F(WalksTest, theTreeOfAssistivePrograms_namesEveryControl) {
    QStringList names;
    collectNames(QAccessible::queryAccessibleInterface(&window()), names);
    for (const char* control : {"mainTable", "projectOutline", "searchAppField", "cutOffSlider", "timeSum",
                                "toggleCounting", "clearTimersItem"}) {
        const auto* widget = window().findChild<QWidget*>(QLatin1String(control));
        ASSERT_NE(widget, nullptr) << control;
        QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        const QString name = heard->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty()) << control;
        EXPECT_TRUE(names.contains(name)) << control << " is not in the tree: " << str(name);
    }
}
