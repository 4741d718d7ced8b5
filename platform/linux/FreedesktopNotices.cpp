// SPDX-License-Identifier: MIT
#include "platform/linux/FreedesktopNotices.h"

#include "platform/linux/ActivationService.h"
#include "platform/linux/ActivationToken.h"

namespace {

const QString kName = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
// A click on the notice itself.
const QString kDefaultKey = QStringLiteral("default");
// The desktop knows best for how long.
constexpr int kUsualTime = -1;

} // namespace

struct FreedesktopNotices::Service {
    explicit Service(Bus& bus)
        : notifications(bus, kName) {}

    void listen(const QString& member, Bus::Receiver receiver) {
        signalsOfIt.push_back(notifications.listen({kPath, kName, member, QString()}, std::move(receiver)));
    }

    BusService notifications;
    std::vector<std::unique_ptr<BusSignal>> signalsOfIt;
};

FreedesktopNotices::FreedesktopNotices(Bus& sessionBus, SystemLog& log)
    : m_bus(sessionBus)
    , m_log(log) {}

FreedesktopNotices::~FreedesktopNotices() {
    withdraw();
}

void FreedesktopNotices::show(const Notice& notice, Answered answered) {
    if (!m_service) {
        m_service = std::make_unique<Service>(m_bus);
        const auto isOurs = [this](const QDBusMessage& signal) {
            return m_number != 0 && signal.arguments().value(0).toUInt() == m_number;
        };
        m_service->listen(QStringLiteral("ActivationToken"), [this, isOurs](const QDBusMessage& signal) {
            if (isOurs(signal))
                m_token = ActivationToken::from(signal.arguments().value(1).toString());
        });
        m_service->listen(QStringLiteral("ActionInvoked"), [this, isOurs](const QDBusMessage& signal) {
            if (isOurs(signal))
                answer(signal);
        });
        m_service->listen(QStringLiteral("NotificationClosed"), [this, isOurs](const QDBusMessage& signal) {
            if (isOurs(signal))
                settle();
        });
    }
    ++m_turn;
    m_answered = std::move(answered);
    m_usualKey = notice.usualKey;
    ++m_onTheirWay;
    m_service->notifications.call(kPath, kName, QStringLiteral("GetCapabilities"), {},
                                  [this, notice, turn = m_turn](const QDBusMessage& reply) {
                                      --m_onTheirWay;
                                      if (turn == m_turn)
                                          sendIfAnswerable(notice, reply);
                                  });
}

void FreedesktopNotices::sendIfAnswerable(const Notice& notice, const QDBusMessage& abilities) {
    const QStringList known = abilities.arguments().value(0).toStringList();
    if (known.contains(QLatin1String("actions")))
        send(notice, known.contains(QLatin1String("body-markup")));
    else
        m_log.log(QStringLiteral("Notices with buttons are not shown here%1")
                      .arg(abilities.type() == QDBusMessage::ErrorMessage
                               ? QStringLiteral(": ") + abilities.errorMessage()
                               : QString()));
}

void FreedesktopNotices::send(const Notice& notice, bool isMarkupRead) {
    QStringList buttons;
    for (const Notice::Button& button : notice.buttons) {
        if (button.key == notice.usualKey)
            buttons << kDefaultKey << button.text;
        buttons << button.key << button.text;
    }
    const QVariantMap hints{{QStringLiteral("desktop-entry"), kTicklogName}};
    ++m_onTheirWay;
    m_service->notifications.call(kPath, kName, QStringLiteral("Notify"),
                                  {QStringLiteral("Ticklog"), m_number, kTicklogName, notice.title,
                                   isMarkupRead ? notice.text.toHtmlEscaped() : notice.text, buttons, hints,
                                   kUsualTime},
                                  [this, turn = m_turn](const QDBusMessage& reply) {
                                      --m_onTheirWay;
                                      sent(reply, turn);
                                  });
}

void FreedesktopNotices::sent(const QDBusMessage& reply, int turn) {
    if (reply.type() == QDBusMessage::ErrorMessage) {
        m_log.log(QStringLiteral("The desktop shows no notice: ") + reply.errorMessage());
        return;
    }
    const quint32 number = reply.arguments().value(0).toUInt();
    if (turn == m_turn)
        m_number = number;
    else if (number != m_number)
        close(number);
}

void FreedesktopNotices::withdraw() {
    ++m_turn;
    if (m_number != 0)
        close(m_number);
    settle();
}

void FreedesktopNotices::close(quint32 number) {
    m_service->notifications.call(kPath, kName, QStringLiteral("CloseNotification"), {number});
}

void FreedesktopNotices::answer(const QDBusMessage& signal) {
    QString key = signal.arguments().value(1).toString();
    if (key == kDefaultKey)
        key = m_usualKey;
    const Answered answered = std::exchange(m_answered, {});
    if (!answered)
        return;
    const ActivationToken token(std::exchange(m_token, {}));
    // Last: this may withdraw the notice.
    answered(key);
}

void FreedesktopNotices::settle() {
    m_number = 0;
    m_answered = {};
    m_token.clear();
    // What is on its way must still be closed.
    if (m_onTheirWay == 0)
        m_service.reset();
}
