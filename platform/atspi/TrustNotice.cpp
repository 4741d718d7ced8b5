// SPDX-License-Identifier: MIT
#include "platform/atspi/TrustNotice.h"

#include "platform/foundation/text/LocalizedStrings.h"

namespace {

const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
const QString kAllow = QStringLiteral("allow");
// The notice stays until the user has answered.
constexpr int kNeverExpires = 0;

} // namespace

TrustNotice::TrustNotice(Bus& sessionBus, SystemLog& log, std::function<void()> allow)
    : m_notifications(sessionBus, QStringLiteral("org.freedesktop.Notifications"))
    , m_log(log)
    , m_answers(
          m_notifications.listen({kPath, m_notifications.name(), QStringLiteral("ActionInvoked"), QString()},
                                 [this, allow = std::move(allow)](const QDBusMessage& signal) {
                                     const QVariantList arguments = signal.arguments();
                                     if (m_shown != 0 && arguments.value(0).toUInt() == m_shown &&
                                         arguments.value(1).toString() == kAllow)
                                         allow();
                                 })) {}

void TrustNotice::show() {
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("org.ticklog.Ticklog")}};
    m_notifications.call(
        kPath, m_notifications.name(), QStringLiteral("Notify"),
        {QStringLiteral("Ticklog"), m_shown, QStringLiteral("org.ticklog.Ticklog"),
         localized("Ticklog cannot see other programs’ windows"),
         localized(
             "To count the time spent in each window, it needs the accessibility services of the desktop. "
             "Start the timer again when they are turned on."),
         QStringList{kAllow, localized("Turn On")}, hints, kNeverExpires},
        [this](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage)
                m_shown = reply.arguments().value(0).toUInt();
            else
                m_log.log(
                    QStringLiteral("The accessibility services are off, and nobody here shows notices: %1")
                        .arg(reply.errorMessage()));
        });
}
