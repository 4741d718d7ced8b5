// SPDX-License-Identifier: MIT
#include "interface/labels/TKProjectFooterBox.h"

#include "interface/shell/SpokenRole.h"

#include <QEvent>

TKProjectFooterBox::TKProjectFooterBox(QWidget& ovView)
    : m_ovView(ovView) {
    // What only holds something is not spoken of.
    speakAs(*this, QAccessible::Client);
    setAutoFillBackground(true);
    m_ovView.installEventFilter(this);
    windowRefreshColor();
}

QColor TKProjectFooterBox::fillColor() const {
    return palette().color(QPalette::Window);
}

bool TKProjectFooterBox::eventFilter(QObject* object, QEvent* event) {
    if (object == &m_ovView && event->type() == QEvent::PaletteChange)
        windowRefreshColor();
    return QFrame::eventFilter(object, event);
}

void TKProjectFooterBox::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    // Outlines may look different in an inactive window.
    if (event->type() == QEvent::ActivationChange)
        windowRefreshColor();
}

void TKProjectFooterBox::windowRefreshColor() {
    const QColor background = m_ovView.palette().color(
        m_ovView.isActiveWindow() ? QPalette::Active : QPalette::Inactive, QPalette::Base);
    if (background == fillColor())
        return;
    QPalette own = palette();
    own.setColor(QPalette::Window, background);
    setPalette(own);
}
