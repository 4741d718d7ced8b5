// SPDX-License-Identifier: MIT
#include "interface/shell/ClosingWindow.h"

#include <QCoreApplication>
#include <QEvent>

ClosingWindow::ClosingWindow(QWidget& window, std::function<void()> keptInTaskBar)
    : m_window(window)
    , m_keptInTaskBar(std::move(keptInTaskBar))
    , m_isClosed(!window.isVisible()) {
    qApp->installEventFilter(this);
}

void ClosingWindow::setWayBack(WayBack wayBack) {
    if (std::exchange(m_wayBack, wayBack) != wayBack)
        settle();
}

bool ClosingWindow::eventFilter(QObject* object, QEvent* event) {
    if (object == qApp && event->type() == QEvent::Quit) {
        // Qt first closes every window, and does not quit if one refuses.
        m_isQuitting = true;
        QMetaObject::invokeMethod(
            this, [this] { m_isQuitting = false; }, Qt::QueuedConnection);
    }
    if (object != &m_window)
        return false;
    switch (event->type()) {
    case QEvent::Close:
        return close(*event);
    case QEvent::Show:
    case QEvent::WindowStateChange:
        if (m_window.isVisible() && !m_window.isMinimized())
            m_isClosed = false;
        return false;
    default:
        return false;
    }
}

bool ClosingWindow::close(QEvent& event) {
    if (m_isQuitting || !m_window.isVisible())
        return false;
    m_isClosed = true;
    if (m_wayBack == WayBack::Icon)
        return false;
    event.ignore();
    m_isToBeSaid = true;
    m_window.showMinimized();
    settle();
    return true;
}

void ClosingWindow::settle() {
    if (!m_isClosed)
        return;
    if (m_wayBack == WayBack::Icon) {
        m_isToBeSaid = false;
        m_window.hide();
    } else if (m_wayBack == WayBack::None) {
        m_window.showMinimized();
        if (std::exchange(m_isToBeSaid, false))
            m_keptInTaskBar();
    }
}
