// SPDX-License-Identifier: MIT
#include "app/DesktopChooser.h"

#include "platform/foundation/LocalizedStrings.h"
#include "platform/wayland/PlasmaDesktop.h"
#include "platform/wayland/WlrootsDesktop.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11IdleTime.h"

#include <algorithm>

DesktopChooser::DesktopChooser(const Ground& ground)
    : m_ground(ground) {
    const bool isWayland = isUnderWayland();
    std::vector<Failure> refusals;
    auto desktop = firstThatWorks(desktops(isWayland), m_ground.log, refusals);
    m_desktop = desktop ? std::move(*desktop) : none(isWayland, refusals);
    m_idleTime = m_desktop.idleTime ? m_desktop.idleTime : std::make_shared<NoIdleTime>();
}

void DesktopChooser::setLostHandler(std::function<void()> handler) {
    m_desktop.setLostHandler(std::move(handler));
}

bool DesktopChooser::isUnderWayland() const {
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        qEnvironmentVariable("XDG_SESSION_TYPE") != QLatin1String("wayland"))
        return false;
    const auto compositor = WaylandConnection::tryConnect({}, m_ground.runLoop, m_ground.log);
    if (!compositor)
        m_ground.log.log(QStringLiteral("Wayland is not used: ") + compositor.failure().text);
    return bool(compositor);
}

std::vector<Candidate<DesktopChooser::Desktop>> DesktopChooser::desktops(bool isWayland) const {
    const auto& [runLoop, log, entries] = m_ground;
    // An X server beside a compositor knows only the programs that run through it, and would credit them for the time
    // in which others are in front.
    if (!isWayland)
        return {{QStringLiteral("The X11 desktop"),
                 [&] { return withIdleTime(X11Desktop::open({}, runLoop, log, entries)); }}};
    return {{QStringLiteral("The Plasma desktop"),
             [&] { return desktopOf(PlasmaDesktop::open({}, runLoop, log, entries)); }},
            {QStringLiteral("The wlroots desktop"),
             [&] { return desktopOf(WlrootsDesktop::open({}, runLoop, log, entries)); }}};
}

template<class BackEnd>
Result<DesktopChooser::Desktop> DesktopChooser::desktopOf(Result<std::unique_ptr<BackEnd>> opened) {
    if (!opened)
        return opened.failure();
    const std::shared_ptr<BackEnd> backEnd = std::move(*opened);
    return Desktop{backEnd, backEnd,
                   [backEnd](std::function<void()> handler) { backEnd->setLostHandler(std::move(handler)); },
                   nullptr};
}

Result<DesktopChooser::Desktop> DesktopChooser::withIdleTime(Result<std::unique_ptr<X11Desktop>> opened) {
    if (!opened)
        return opened.failure();
    auto idleTime = std::make_shared<X11IdleTime>((*opened)->connection());
    Result<Desktop> desktop = desktopOf(std::move(opened));
    (*desktop).idleTime = std::move(idleTime);
    return desktop;
}

DesktopChooser::Desktop DesktopChooser::none(bool isWayland, const std::vector<Failure>& refusals) {
    QString obstacle = isWayland
                           ? localized("This Wayland desktop does not tell other programs which window is in "
                                       "front, so that there is no time to credit.")
                           : localized("There is no window system that tells which window is in front.");
    // Who could tell but will not has said what can be done about it.
    const auto refusal = std::ranges::find(refusals, Failure::Kind::Refused, &Failure::kind);
    if (refusal != refusals.end())
        obstacle = refusal->text;
    const auto nothing = std::make_shared<NoDesktop>(obstacle);
    return {nothing, nothing, [](const std::function<void()>&) {}, nullptr};
}
