// SPDX-License-Identifier: MIT
#include "interface/history/AmendActions.h"

#include "interface/shell/ButtonText.h"
#include "interface/shell/Named.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QMenu>

namespace {

QAction* make(QWidget* window, const char* name, const QString& text, const QKeySequence& shortcut) {
    auto* action = new QAction(text, window);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    return action;
}

} // namespace

AmendActions::AmendActions(QWidget* window)
    : give(new QMenu(localized("&Give to Project"), window))
    , name(make(window, "nameTime", localized("&Name This Time…"), Qt::CTRL | Qt::SHIFT | Qt::Key_N))
    , book(make(window, "bookTime", localized("Boo&k Time…"), Qt::CTRL | Qt::SHIFT | Qt::Key_B))
    , forget(make(window, "forgetTime", localized("Forg&et This Time…"),
                  Qt::CTRL | Qt::SHIFT | Qt::Key_Delete)) {
    named(give, QStringLiteral("giveMenu"), buttonText(give->title()));
    give->menuAction()->setObjectName(QStringLiteral("giveTime"));
}

void AmendActions::fill(QMenu& menu) const {
    menu.addActions(all());
}

QList<QAction*> AmendActions::all() const {
    return {give->menuAction(), name, book, forget};
}
