// SPDX-License-Identifier: MIT
#include "interface/history/HistoryActions.h"

#include "interface/shell/ButtonText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QActionGroup>
#include <QMenu>

namespace {

// The object name lets tests find the command.
QAction* make(QObject* window, const char* name, const QString& text, const QKeySequence& shortcut = {}) {
    auto* action = new QAction(text, window);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    return action;
}

} // namespace

HistoryActions::HistoryActions(QWidget* window)
    : back(make(window, "historyBack", localized("&Back"), Qt::ALT | Qt::Key_Left))
    , forward(make(window, "historyForward", localized("&Forward"), Qt::ALT | Qt::Key_Right))
    , today(make(window, "historyToday", localized("&Today"), Qt::ALT | Qt::Key_Home))
    , kinds{make(window, "historyDay", localized("&Day"), Qt::ALT | Qt::Key_1),
            make(window, "historyWeek", localized("&Week"), Qt::ALT | Qt::Key_2),
            make(window, "historyMonth", localized("&Month"), Qt::ALT | Qt::Key_3),
            make(window, "historyYear", localized("&Year"), Qt::ALT | Qt::Key_4),
            make(window, "historySpan", localized("F&rom – To…"), Qt::ALT | Qt::Key_5)}
    , byProgram(make(window, "historyByProgram", localized("By &Program"), Qt::ALT | Qt::Key_6))
    , byProject(make(window, "historyByProject", localized("By Pro&ject"), Qt::ALT | Qt::Key_7))
    , zoomIn(make(window, "historyZoomIn", localized("Zoom &In")))
    , zoomOut(make(window, "historyZoomOut", localized("Zoom &Out")))
    , resetZoom(make(window, "historyResetZoom", localized("Reset &Zoom")))
    , timeSheet(make(window, "timeSheet", localized("Time &Sheet…"), Qt::CTRL | Qt::SHIFT | Qt::Key_T))
    , amend(window) {
    auto* kindGroup = new QActionGroup(window);
    for (QAction* kind : kinds)
        kindGroup->addAction(kind);
    auto* byGroup = new QActionGroup(window);
    for (QAction* by : {byProgram, byProject})
        byGroup->addAction(by);
    for (const QActionGroup* group : {kindGroup, byGroup})
        for (QAction* action : group->actions())
            action->setCheckable(true);
    byProgram->setChecked(true);
    for (QAction* action : all())
        action->setIconText(buttonText(action->text()));
    // Shorter, for the buttons; beside each other they say the same.
    byProgram->setIconText(localized("Programs"));
    byProject->setIconText(localized("Projects"));
}

void HistoryActions::fill(QMenu& menu) const {
    for (QAction* kind : kinds)
        menu.addAction(kind);
    menu.addSeparator();
    for (QAction* step : {back, forward, today})
        menu.addAction(step);
    menu.addSeparator();
    for (QAction* by : {byProgram, byProject})
        menu.addAction(by);
    menu.addSeparator();
    amend.fill(menu);
    menu.addSeparator();
    for (QAction* zoom : {zoomIn, zoomOut, resetZoom})
        menu.addAction(zoom);
    menu.addSeparator();
    menu.addAction(timeSheet);
}

void HistoryActions::offerZoom(bool isOffered) const {
    using Keys = QList<QKeySequence>;
    // A plus is typed with Shift on many keyboards, without which the key is an equals sign.
    zoomIn->setShortcuts(isOffered ? Keys{Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal} : Keys());
    zoomOut->setShortcuts(isOffered ? Keys{Qt::CTRL | Qt::Key_Minus} : Keys());
    resetZoom->setShortcuts(isOffered ? Keys{Qt::CTRL | Qt::Key_0} : Keys());
    for (QAction* zoom : {zoomIn, zoomOut, resetZoom})
        zoom->setEnabled(isOffered);
}

QList<QAction*> HistoryActions::all() const {
    QList<QAction*> all{back, forward, today, byProgram, byProject, zoomIn, zoomOut, resetZoom, timeSheet};
    for (QAction* kind : kinds)
        all << kind;
    return all + amend.all();
}
