// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/CalendarRange.h"
#include "interface/history/AmendActions.h"

#include <QAction>

#include <array>

class QMenu;

// The commands of the history, made once for the menu, the buttons and the keyboard. They belong to `window`; what
// they do is connected from outside.
struct HistoryActions {
    explicit HistoryActions(QWidget* window);

    void fill(QMenu& menu) const;
    QList<QAction*> all() const;
    // The zoom has keys that mean something else beside the timers, so it has them only while it is offered.
    void offerZoom(bool isOffered) const;
    QAction* forKind(CalendarRange::Kind kind) const { return kinds[std::size_t(kind)]; }

    QAction* back;
    QAction* forward;
    QAction* today;
    // By CalendarRange::Kind. One is checked.
    std::array<QAction*, 5> kinds;
    // What the picture and the outline go by. One of the two is checked.
    QAction* byProgram;
    QAction* byProject;
    // In the picture of a day.
    QAction* zoomIn;
    QAction* zoomOut;
    QAction* resetZoom;
    // Of the days that are shown, or of the week around them.
    QAction* timeSheet;
    AmendActions amend;
};
