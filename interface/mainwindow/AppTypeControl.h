// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QToolButton>

// The toolbar's pull-down that shows and changes where Ticklog appears: with a task bar icon (the Dock icon),
// a tray icon (the menu bar item), or both. Its items are connected from outside.
class AppTypeControl : public QToolButton {
    Q_OBJECT
public:
    struct State {
        bool showsDockIcon;
        bool showsMenuBarItem;
        // Without a tray the task bar icon cannot be hidden.
        bool hasTray;
    };

    AppTypeControl();

    void reload(const State& state);

    QAction& dockIconMenuItem() { return m_dockIconMenuItem; }
    QAction& menuItemMenuItem() { return m_menuItemMenuItem; }
    // The name of the picture that shows where Ticklog appears now.
    const QString& image() const { return m_image; }

    // Opens a menu with one command at the start edge of `sender`, or of this control if that is null.
    void showDisplayStateMenu(QWidget* sender, QAction& command);

private:
    QMenu m_pullDown;
    QAction m_dockIconMenuItem;
    QAction m_menuItemMenuItem;
    QString m_image;
};
