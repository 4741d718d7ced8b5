// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>

class QMenu;
class QWidget;

// The commands that set the past right, made once for the menu, the context menus and the keyboard. They belong to
// `window`; what they do is connected from outside.
struct AmendActions {
    explicit AmendActions(QWidget* window);

    void fill(QMenu& menu) const;
    QList<QAction*> all() const;

    // Has an entry for each project, and one for none.
    QMenu* give;
    QAction* name;
    QAction* book;
    QAction* forget;
};
