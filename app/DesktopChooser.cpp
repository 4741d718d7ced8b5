// SPDX-License-Identifier: MIT
#include "app/DesktopChooser.h"

#include "app/AssistedDesktop.h"
#include "app/StandInDesktop.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/gnome/GnomeExtension.h"
#include "platform/gnome/GnomeShell.h"
#include "platform/linux/LogindIdleTime.h"
#include "platform/linux/MutterIdleTime.h"
#include "platform/wayland/PlasmaDesktop.h"
#include "platform/wayland/WaylandIdleTime.h"
#include "platform/wayland/WlrootsDesktop.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11IdleTime.h"

#include <QDBusConnectionInterface>

#include <algorithm>

namespace {

template<class BackEnd>
Result<std::shared_ptr<IdleTime>> idleTimeOf(Result<std::unique_ptr<BackEnd>> opened) {
    if (!opened)
        return opened.failure();
    return std::shared_ptr<IdleTime>(std::move(*opened));
}

// GNOME's two sources, and the desktop that is made of them.
struct Gnome {
    explicit Gnome(const DesktopChooser::Ground& ground)
        : shell(ground.sessionBus, ground.ownName, ground.log, ground.entries)
        , programs(ground.sessionBus, ground.runLoop, ground.log, ground.entries)
        , desktop(shell, programs, ground.runLoop, ground.entries) {}

    GnomeShellDesktop shell;
    AtspiFrontDesktop programs;
    StandInDesktop desktop;
};

} // namespace

DesktopChooser::DesktopChooser(const Ground& ground)
    : m_ground(ground) {
    const bool isWayland = isUnderWayland();
    std::vector<Failure> refusals;
    auto desktop = firstThatWorks(desktops(isWayland), m_ground.log, refusals);
    m_desktop = desktop ? std::move(*desktop) : none(isWayland, refusals);
    m_idleTime = m_desktop.idleTime;
    if (!m_idleTime)
        m_idleTime =
            firstThatWorks(idleTimes(), m_ground.log, refusals).value_or(std::make_shared<NoIdleTime>());
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
    // Under a compositor, an X server knows only the programs that run through it, and would credit them
    // while others are in front.
    if (!isWayland)
        return {{QStringLiteral("The X11 desktop"), [this] {
                     return withIdleTime(
                         X11Desktop::open({}, m_ground.runLoop, m_ground.log, m_ground.entries));
                 }}};
    return {{QStringLiteral("The Plasma desktop"),
             [this] {
                 return desktopOf(PlasmaDesktop::open({}, m_ground.runLoop, m_ground.log, m_ground.entries));
             }},
            {QStringLiteral("The wlroots desktop"),
             [this] {
                 return desktopOf(WlrootsDesktop::open({}, m_ground.runLoop, m_ground.log, m_ground.entries));
             }},
            {QStringLiteral("The GNOME desktop"), [this] { return gnome(); }}};
}

std::vector<Candidate<std::shared_ptr<IdleTime>>> DesktopChooser::idleTimes() const {
    return {{QStringLiteral("The idle time by Wayland"),
             [this] {
                 return idleTimeOf(WaylandIdleTime::open({}, m_ground.runLoop, m_ground.log, m_ground.clock));
             }},
            {QStringLiteral("The idle time by GNOME"),
             [this] { return idleTimeOf(MutterIdleTime::open(m_ground.sessionBus, m_ground.clock)); }},
            {QStringLiteral("The idle time by logind"), [this]() -> Result<std::shared_ptr<IdleTime>> {
                 if (!m_ground.systemBus.isConnected())
                     return Failure{Failure::Kind::NotFound, QStringLiteral("there is no system bus")};
                 return std::shared_ptr<IdleTime>(
                     std::make_shared<LogindIdleTime>(m_ground.session, m_ground.clock));
             }}};
}

Result<DesktopChooser::Desktop> DesktopChooser::gnome() const {
    const QStringList names = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    if (!names.contains(QLatin1String("GNOME")))
        return Failure{Failure::Kind::NotFound, QStringLiteral("this is not GNOME")};
    // The extension sees the sandbox's process instead of this one, and refuses it.
    if (m_ground.sandbox.isSandboxed())
        return Failure{
            Failure::Kind::Refused,
            localized("GNOME Shell does not tell programs in a sandbox which window is in front. Installed "
                      "outside of one, Ticklog can be told.")};
    if (!m_ground.sessionBus.isConnected())
        return Failure{Failure::Kind::NotFound, QStringLiteral("there is no session bus")};
    // Other desktops call themselves GNOME too. GNOME's own shell has its name on the bus before programs can
    // reach its display, so where the name is missing there is none.
    const QDBusConnectionInterface* bus = m_ground.sessionBus.connection().interface();
    if (!bus || !bus->isServiceRegistered(kGnomeShell).value())
        return Failure{Failure::Kind::NotFound, QStringLiteral("there is no GNOME Shell on the session bus")};
    // The extension is installed or updated before it is asked whether it serves this process.
    const auto extension = std::make_shared<GnomeExtension>(
        m_ground.sessionBus, m_ground.runLoop, m_ground.log,
        GnomeExtension::Places::forUser(QStringLiteral(":/gnome-extension")));
    const auto parts = std::make_shared<Gnome>(m_ground);
    // The shell is also the compositor: when it goes, the toolkit ends the process.
    return Desktop{std::shared_ptr<TellingDesktop>(parts, &parts->desktop), nullptr, extension};
}

template<class BackEnd>
Result<DesktopChooser::Desktop> DesktopChooser::desktopOf(Result<std::unique_ptr<BackEnd>> opened) {
    if (!opened)
        return opened.failure();
    return Desktop{std::move(*opened), nullptr, nullptr};
}

Result<DesktopChooser::Desktop> DesktopChooser::withIdleTime(Result<std::unique_ptr<X11Desktop>> opened) {
    if (!opened)
        return opened.failure();
    auto idleTime = std::make_shared<X11IdleTime>((*opened)->connection());
    Result<Desktop> desktop = desktopOf(std::move(opened));
    (*desktop).idleTime = std::move(idleTime);
    return desktop;
}

Result<DesktopChooser::Desktop> DesktopChooser::assisted(const QString& remedy) const {
    if (!m_ground.sessionBus.isConnected())
        return Failure{Failure::Kind::NotFound, QStringLiteral("there is no session bus")};
    auto compositor = WaylandConnection::tryConnect({}, m_ground.runLoop, m_ground.log);
    if (!compositor)
        return compositor.failure();
    return desktopOf(
        Result(std::make_unique<AssistedDesktop>(std::move(*compositor), remedy, m_ground.sessionBus,
                                                 m_ground.runLoop, m_ground.log, m_ground.entries)));
}

DesktopChooser::Desktop DesktopChooser::none(bool isWayland, const std::vector<Failure>& refusals) const {
    // A desktop that could tell but refuses has given a text that says what to do.
    const auto refusal = std::ranges::find(refusals, Failure::Kind::Refused, &Failure::kind);
    const bool isRefused = refusal != refusals.end();
    const QString remedy = isRefused ? refusal->text : QString();
    // A sandbox hides other programs' windows, so that only the text is of use there.
    if (isWayland && !(isRefused && m_ground.sandbox.isSandboxed())) {
        if (auto desktop = assisted(remedy))
            return std::move(*desktop);
    }
    QString obstacle = isWayland
                           ? localized("This Wayland desktop does not tell other programs which window is in "
                                       "front, so no time can be counted.")
                           : localized("There is no window system that tells which window is in front.");
    if (isRefused)
        obstacle = remedy;
    return {std::make_shared<NoDesktop>(m_ground.entries, obstacle), nullptr, nullptr};
}
