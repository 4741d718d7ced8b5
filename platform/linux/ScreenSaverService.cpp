// SPDX-License-Identifier: MIT
#include "platform/linux/ScreenSaverService.h"

ScreenSaverService::ScreenSaverService(Bus& sessionBus, const Name& name, std::function<void()> changed)
    : m_name(name)
    , m_service(sessionBus, name.service)
    , m_changed(std::move(changed))
    , m_presence(m_service.observe([this] { follow(); })) {
    // From any path: some services have the object twice and send the signal from the other one.
    m_activeChanged = m_service.listen(
        {QString(), name.interface, QStringLiteral("ActiveChanged"), QString()},
        [this](const QDBusMessage& signal) { setActive(signal.arguments().value(0).toBool()); });
}

void ScreenSaverService::follow() {
    if (!m_service.isServed()) {
        // A locker that has ended covers nothing.
        setActive(false);
        return;
    }
    m_service.call(
        m_name.path, m_name.interface, QStringLiteral("GetActive"), {}, [this](const QDBusMessage& reply) {
            // Some services only accept inhibitors, and answer this with an error.
            setActive(reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toBool());
        });
}

void ScreenSaverService::setActive(bool isActive) {
    if (std::exchange(m_isActive, isActive) != isActive)
        m_changed();
}
