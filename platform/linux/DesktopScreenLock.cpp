// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopScreenLock.h"

#include <algorithm>
#include <tuple>

namespace {

// A service whose interface has the same name, as most have.
ScreenSaverService::Name named(const QString& service, const QString& path) {
    return {service, path, service};
}

std::vector<ScreenSaverService::Name> screenSaverNames() {
    const QString gnomes = QStringLiteral("org.gnome.ScreenSaver");
    const QString gnomesPath = QStringLiteral("/org/gnome/ScreenSaver");
    return {
        named(QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("/org/freedesktop/ScreenSaver")),
        named(gnomes, gnomesPath),
        // GNOME Shell itself, because the service with the other name runs only while somebody uses it.
        {QStringLiteral("org.gnome.Shell.ScreenShield"), gnomesPath, gnomes},
        named(QStringLiteral("org.cinnamon.ScreenSaver"), QStringLiteral("/org/cinnamon/ScreenSaver")),
        named(QStringLiteral("org.mate.ScreenSaver"), QStringLiteral("/org/mate/ScreenSaver"))};
}

} // namespace

DesktopScreenLock::DesktopScreenLock(OwnSession& session, Bus& sessionBus, RunLoop& runLoop)
    : m_session(session)
    , m_runLoop(runLoop)
    , m_sessionChanges(session.observe([this] { follow(); }))
    , m_requests(session.observeRequests([this](bool shallLock) { request(shallLock); })) {
    for (const auto& name : screenSaverNames())
        m_screenSavers.push_back(
            std::make_unique<ScreenSaverService>(sessionBus, name, [this] { follow(); }));
    follow();
}

Subscription DesktopScreenLock::observe(std::function<void()> observer) {
    return m_observers.observe(std::move(observer));
}

void DesktopScreenLock::request(bool shallLock) {
    m_request.reset();
    if (shallLock)
        m_request = m_runLoop.scheduleOnce(kRequestBelieved, [this] {
            m_request.reset();
            follow();
        });
    follow();
}

void DesktopScreenLock::follow() {
    const auto before = std::tuple(m_isLocked, m_isGreeter);
    const bool isTold = m_session.isLocked() || std::ranges::any_of(m_screenSavers, [](const auto& saver) {
                            return saver->isActive();
                        });
    // Once a locker has locked, it also reports the end.
    if (isTold)
        m_request.reset();
    m_isLocked = isTold || m_request;
    m_isGreeter = m_session.isGreeter();
    if (before != std::tuple(m_isLocked, m_isGreeter))
        m_observers.tell();
}
