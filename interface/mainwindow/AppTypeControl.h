// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QToolButton>

// The toolbar's pull-down that shows where Ticklog is found, and lets it be found elsewhere: with a task bar icon (the
// Dock icon), a tray icon (the menu bar item), or both. What its items do is connected from outside.
class AppTypeControl : public QToolButton {
    Q_OBJECT
public:
    struct State {
        bool showsDockIcon;
        bool showsMenuBarItem;
        // Without one the task bar cannot be left.
        bool hasTray;
    };

    AppTypeControl();

    void reload(const State& state);

    QAction& dockIconMenuItem() { return m_dockIconMenuItem; }
    QAction& menuItemMenuItem() { return m_menuItemMenuItem; }
    // The name of the picture that is shown: of what Ticklog is now.
    const QString& image() const { return m_image; }

    // Pops up a menu of one command where `sender` begins, or this without one.
    void showDisplayStateMenu(QWidget* sender, QAction& command);

private:
    QMenu m_pullDown;
    QAction m_dockIconMenuItem;
    QAction m_menuItemMenuItem;
    QString m_image;
};
