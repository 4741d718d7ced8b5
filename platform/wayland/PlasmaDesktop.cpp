// SPDX-License-Identifier: MIT
#include "platform/wayland/PlasmaDesktop.h"

#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <plasma-window-management-client-protocol.h>

#include <algorithm>

namespace {

// From the first version on, names of windows are never used twice; up to the second one, all events are
// known here.
constexpr std::uint32_t kOldestVersion = 13;
constexpr std::uint32_t kNewestVersion = 16;
// KWin offers this to everybody.
constexpr const char* kPlasmaShell = "org_kde_plasma_shell";

bool isShell(const QString& appId) {
    return appId == QLatin1String("org.kde.plasmashell") || appId == QLatin1String("plasmashell");
}

} // namespace

struct PlasmaDesktop::Events {
    using Handle = org_kde_plasma_window;
    using Management = org_kde_plasma_window_management;

    static PlasmaWindow& window(void* data) { return *static_cast<PlasmaWindow*>(data); }

    static void appeared(void* data, Management*, std::uint32_t, const char* uuid) {
        static_cast<PlasmaDesktop*>(data)->add(uuid);
    }

    static void order(void* data, Management*, const char* uuids) {
        auto& desktop = *static_cast<PlasmaDesktop*>(data);
        desktop.m_order = QByteArray(uuids).split(';');
        desktop.applyOrder();
    }

    static void title(void* data, Handle*, const char* title) {
        window(data).window.title = cleanTextFromUtf8(title);
        apply(data);
    }

    static void appId(void* data, Handle*, const char* appId) {
        window(data).window.appId = cleanTextFromUtf8(appId);
        apply(data);
    }

    static void process(void* data, Handle*, std::uint32_t process) {
        if (process != 0)
            window(data).window.process = process;
        apply(data);
    }

    static void state(void* data, Handle*, std::uint32_t state) {
        PlasmaWindow& changed = window(data);
        changed.window.isActive = (state & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE) != 0;
        changed.window.isMinimised = (state & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_MINIMIZED) != 0;
        changed.keepsOutOfTaskBar = (state & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_SKIPTASKBAR) != 0;
        apply(data);
    }

    static void parent(void* data, Handle*, Handle* parent) {
        const auto& all = window(data).desktop.m_plasmaWindows;
        const auto found =
            std::ranges::find(all, parent, [](const auto& each) { return each->handle.get(); });
        window(data).window.parent = parent && found != all.end() ? (*found)->number : 0;
        apply(data);
    }

    static void known(void* data, Handle*) {
        window(data).isKnown = true;
        apply(data);
        window(data).desktop.applyOrder();
    }

    static void unmapped(void* data, Handle*) { window(data).desktop.remove(window(data)); }

    static void apply(void* data) { window(data).desktop.apply(window(data)); }

    static org_kde_plasma_window_management_listener managementListener() {
        org_kde_plasma_window_management_listener listener{};
        listener.show_desktop_changed = [](void*, Management*, std::uint32_t) {};
        listener.window = [](void*, Management*, std::uint32_t) {};
        listener.stacking_order_changed = [](void*, Management*, wl_array*) {};
        listener.stacking_order_uuid_changed = order;
        listener.window_with_uuid = appeared;
        return listener;
    }

    static org_kde_plasma_window_listener windowListener() {
        const auto ignoreText = [](void*, Handle*, const char*) {};
        org_kde_plasma_window_listener listener{};
        listener.title_changed = title;
        listener.app_id_changed = appId;
        listener.state_changed = state;
        listener.virtual_desktop_changed = [](void*, Handle*, std::int32_t) {};
        listener.themed_icon_name_changed = ignoreText;
        listener.unmapped = unmapped;
        listener.initial_state = known;
        listener.parent_window = parent;
        listener.geometry = [](void*, Handle*, std::int32_t, std::int32_t, std::uint32_t, std::uint32_t) {};
        listener.icon_changed = [](void*, Handle*) {};
        listener.pid_changed = process;
        listener.virtual_desktop_entered = ignoreText;
        listener.virtual_desktop_left = ignoreText;
        listener.application_menu = [](void*, Handle*, const char*, const char*) {};
        listener.activity_entered = ignoreText;
        listener.activity_left = ignoreText;
        listener.resource_name_changed = ignoreText;
        return listener;
    }
};

void PlasmaDesktop::Destroy::operator()(org_kde_plasma_window* window) const {
    org_kde_plasma_window_destroy(window);
}

void PlasmaDesktop::Destroy::operator()(org_kde_plasma_window_management* management) const {
    org_kde_plasma_window_management_destroy(management);
}

Result<std::unique_ptr<PlasmaDesktop>> PlasmaDesktop::open(const QByteArray& display, RunLoop& runLoop,
                                                           SystemLog& log, DesktopEntries& entries) {
    auto connection = WaylandConnection::tryConnect(display, runLoop, log);
    if (!connection)
        return connection.failure();
    const WaylandGlobal* global = (*connection)->find(org_kde_plasma_window_management_interface.name);
    if (!global && (*connection)->find(kPlasmaShell))
        return Failure{
            Failure::Kind::Refused,
            localized("Plasma tells only installed programs which window is in front. Install Ticklog, "
                      "and start it from the menu.")};
    if (!global || global->version < kOldestVersion)
        return Failure{Failure::Kind::NotFound,
                       QStringLiteral("the compositor does not offer Plasma's window management")};
    std::unique_ptr<PlasmaDesktop> desktop(new PlasmaDesktop(std::move(*connection), runLoop, log, entries));
    desktop->start();
    return desktop;
}

PlasmaDesktop::PlasmaDesktop(std::unique_ptr<WaylandConnection> connection, RunLoop& runLoop, SystemLog& log,
                             DesktopEntries& entries)
    : WaylandDesktop(std::move(connection), runLoop, log, entries) {}

PlasmaDesktop::~PlasmaDesktop() = default;

QString PlasmaDesktop::describe() const {
    if (!connection().isAlive())
        return QStringLiteral("Plasma: the compositor is gone");
    return isTelling() ? QStringLiteral("Plasma: the compositor tells of the windows")
                       : QStringLiteral("Plasma: the compositor tells no more of the windows");
}

bool PlasmaDesktop::bind() {
    const WaylandGlobal* global = connection().find(org_kde_plasma_window_management_interface.name);
    if (!global || global->version < kOldestVersion)
        return false;
    m_management.reset(connection().bind<org_kde_plasma_window_management>(
        *global, org_kde_plasma_window_management_interface, kNewestVersion));
    static const auto kListener = Events::managementListener();
    org_kde_plasma_window_management_add_listener(m_management.get(), &kListener, this);
    return true;
}

void PlasmaDesktop::unbind() {
    m_plasmaWindows.clear();
    m_order.clear();
    m_management.reset();
}

void PlasmaDesktop::add(const char* uuid) {
    auto* handle = org_kde_plasma_window_management_get_window_by_uuid(m_management.get(), uuid);
    m_plasmaWindows.push_back(
        std::make_unique<PlasmaWindow>(PlasmaWindow{*this, uuid, nullptr, newNumber(), Window()}));
    PlasmaWindow& added = *m_plasmaWindows.back();
    added.handle.reset(handle);
    static const auto kListener = Events::windowListener();
    org_kde_plasma_window_add_listener(handle, &kListener, &added);
}

void PlasmaDesktop::apply(PlasmaWindow& window) {
    if (!window.isKnown)
        return;
    // The wallpaper and the panels are windows of the shell. While one of them has the focus, nobody works in
    // a program.
    window.window.isDesktop = window.keepsOutOfTaskBar && isShell(window.window.appId);
    setWindow(window.number, window.window);
}

void PlasmaDesktop::remove(const PlasmaWindow& window) {
    removeWindow(window.number);
    std::erase_if(m_plasmaWindows, [&](const auto& each) { return each.get() == &window; });
}

void PlasmaDesktop::applyOrder() {
    std::vector<std::int64_t> frontToBack;
    for (auto uuid = m_order.crbegin(); uuid != m_order.crend(); ++uuid) {
        const auto found =
            std::ranges::find(m_plasmaWindows, *uuid, [](const auto& each) { return each->uuid; });
        if (found != m_plasmaWindows.end())
            frontToBack.push_back((*found)->number);
    }
    setOrder(frontToBack);
}
