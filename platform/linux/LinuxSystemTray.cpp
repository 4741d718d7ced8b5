// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxSystemTray.h"

#include <QDBusVariant>

namespace {

const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kWatcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString kHostRegistered = QStringLiteral("IsStatusNotifierHostRegistered");

} // namespace

LinuxSystemTray::LinuxSystemTray(Bus& sessionBus, RunLoop& runLoop, SystemLog& log)
    : m_runLoop(runLoop)
    , m_log(log)
    , m_watcher(sessionBus, kWatcher)
    , m_presence(m_watcher.observe([this] { follow(); })) {
    const auto ask = [this](const QDBusMessage&) { askForHost(); };
    m_hostRegistered =
        m_watcher.listen({kWatcherPath, kWatcher, QStringLiteral("StatusNotifierHostRegistered"), {}}, ask);
    m_hostUnregistered =
        m_watcher.listen({kWatcherPath, kWatcher, QStringLiteral("StatusNotifierHostUnregistered"), {}}, ask);
    m_waiting = runLoop.scheduleOnce(kPatience, [this] {
        m_waiting.reset();
        update();
    });
    follow();
}

void LinuxSystemTray::setEmbedding(bool isThere) {
    m_isEmbedding = isThere;
    update();
}

void LinuxSystemTray::follow() {
    if (m_watcher.isServed())
        askForHost();
    else
        setHost(false);
}

void LinuxSystemTray::askForHost() {
    // A watcher only keeps a list of icons; without a host nobody shows them.
    m_watcher.getProperty(kWatcherPath, kWatcher, kHostRegistered, [this](const QDBusMessage& reply) {
        const QVariant value = reply.arguments().value(0).value<QDBusVariant>().variant();
        setHost(reply.type() == QDBusMessage::ReplyMessage && m_watcher.isServed() && value.toBool());
    });
}

void LinuxSystemTray::setHost(bool isThere) {
    m_hasHost = isThere;
    update();
}

void LinuxSystemTray::update() {
    if (m_choice == Offer::None) {
        if (m_hasHost)
            m_choice = Offer::Exported;
        else if (m_isEmbedding && !m_waiting)
            m_choice = Offer::Embedded;
    }
    if (isThere()) {
        m_loss.reset();
        setOffer(m_choice);
    } else if (m_choice == Offer::None) {
        setOffer(m_waiting ? Offer::Unknown : Offer::None);
    } else if (m_offer != Offer::None && !m_loss) {
        m_loss = m_runLoop.scheduleOnce(kLossPatience, [this] {
            m_loss.reset();
            setOffer(Offer::None);
        });
    }
}

bool LinuxSystemTray::isThere() const {
    return (m_choice == Offer::Exported && m_hasHost) || (m_choice == Offer::Embedded && m_isEmbedding);
}

void LinuxSystemTray::setOffer(Offer offer) {
    if (std::exchange(m_offer, offer) == offer)
        return;
    m_log.log(describe());
    m_changes.tell();
}

QString LinuxSystemTray::describe() const {
    switch (m_offer) {
    case Offer::Unknown:
        return QStringLiteral("tray: not known yet");
    case Offer::None:
        return QStringLiteral("tray: none, neither a service for icons nor a program that embeds them");
    case Offer::Embedded:
        return QStringLiteral("tray: embedded in another program's window");
    case Offer::Exported:
        return QStringLiteral("tray: icon and menu handed to the desktop over the session bus");
    }
    return {};
}
