// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKSearchField.h"

#include "interface/shell/Named.h"
#include "platform/foundation/LocalizedStrings.h"

#include <QKeyEvent>
#include <QToolButton>

TKSearchField::TKSearchField(QWidget* parent)
    : QLineEdit(parent) {
    setPlaceholderText(localized("Search"));
    setClearButtonEnabled(true);
    for (auto* button : findChildren<QToolButton*>())
        named(button, QStringLiteral("searchClearButton"));
}

void TKSearchField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier && m_outlineView)
        m_outlineView->setFocus(Qt::OtherFocusReason);
    else
        QLineEdit::keyPressEvent(event);
}
