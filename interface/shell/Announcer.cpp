// SPDX-License-Identifier: MIT
#include "interface/shell/Announcer.h"

#include "interface/shell/Named.h"
#include "interface/shell/SpokenRole.h"

void Announcer::say(const QString& text) {
    if (text.isEmpty() || !m_window.isActiveWindow())
        return;
    if (!m_notification) {
        m_notification = new QWidget(&m_window);
        speakAs(*m_notification, QAccessible::Notification);
        // Who is not shown is not heard.
        m_notification->resize(1, 1);
        m_notification->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    m_notification->hide();
    named(m_notification.data(), QStringLiteral("announcement"), text);
    m_notification->show();
}
