// SPDX-License-Identifier: MIT
#include "platform/atspi/AtspiLink.h"

AtspiLink::AtspiLink(Bus& sessionBus, RunLoop& runLoop, SystemLog& log, AtspiApplication::Changed changed,
                     std::chrono::milliseconds patience)
    : m_runLoop(runLoop)
    , m_log(log)
    , m_changed(std::move(changed))
    , m_patience(patience)
    , m_launcher(sessionBus, kAtspiLauncher)
    , m_presence(m_launcher.observe([this] {
        if (m_launcher.isServed())
            ask();
    })) {}

void AtspiLink::ask() {
    m_launcher.call(
        kAtspiLauncherPath, kAtspiLauncher, QStringLiteral("GetAddress"), {},
        [this](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage)
                connectTo(reply.arguments().value(0).toString());
        },
        Bus::kHoweverLate);
}

void AtspiLink::connectTo(const QString& address) {
    // If the address is the same, the connection reconnects by itself.
    if (std::exchange(m_address, address) == address)
        return;
    m_desktop.reset();
    m_bus = std::make_unique<Bus>(Bus::atAddress(address), m_runLoop, m_log);
    m_desktop = std::make_unique<AtspiDesktop>(*m_bus, m_runLoop, m_changed, m_patience);
    m_connection = m_bus->observe([this] {
        // A launcher that restarts its bus does so at another address.
        if (!m_bus->isConnected())
            m_askingAgain = m_runLoop.scheduleOnce(kAskingAgain, [this] { ask(); });
    });
    // The programs of the former bus are no longer known.
    m_changed(0, {});
}
