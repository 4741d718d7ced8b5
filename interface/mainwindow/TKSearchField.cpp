// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKSearchField.h"

#include "interface/shell/Contrast.h"
#include "interface/shell/Named.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QKeyEvent>
#include <QStyleOptionFrame>
#include <QToolButton>

TKSearchField::TKSearchField(QWidget* parent)
    : QLineEdit(parent) {
    setPlaceholderText(localized("Search"));
    setAccessibleName(placeholderText());
    setClearButtonEnabled(true);
    for (auto* button : findChildren<QToolButton*>())
        named(button, QStringLiteral("searchClearButton"), localized("Clear Search"));
}

bool TKSearchField::event(QEvent* event) {
    // Ctrl+E would move to the end of the line; the End key does that too, and exporting what was found is
    // wanted here most of all.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->keyCombination() == (Qt::CTRL | Qt::Key_E)) {
        event->ignore();
        return false;
    }
    return QLineEdit::event(event);
}

void TKSearchField::initStyleOption(QStyleOptionFrame* option) const {
    QLineEdit::initStyleOption(option);
    Contrast::showLines(option->palette);
}

void TKSearchField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier && m_outlineView)
        m_outlineView->setFocus(Qt::OtherFocusReason);
    else
        QLineEdit::keyPressEvent(event);
}
