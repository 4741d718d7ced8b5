// SPDX-License-Identifier: MIT
#include "platform/wayland/WlrootsDesktop.h"

#include "platform/foundation/text/CleanText.h"

#include <wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>

#include <algorithm>
#include <span>

namespace {

constexpr std::uint32_t kNewestVersion = 3;

std::span<const std::uint32_t> numbersOf(const wl_array& array) {
    return {static_cast<const std::uint32_t*>(array.data), array.size / sizeof(std::uint32_t)};
}

} // namespace

struct WlrootsDesktop::Events {
    using Handle = zwlr_foreign_toplevel_handle_v1;
    using Manager = zwlr_foreign_toplevel_manager_v1;

    static Toplevel& toplevel(void* data) { return *static_cast<Toplevel*>(data); }

    static void appeared(void* desktop, Manager*, Handle* handle) {
        static_cast<WlrootsDesktop*>(desktop)->add(handle);
    }

    static void finished(void* desktop, Manager*) { static_cast<WlrootsDesktop*>(desktop)->endTelling(); }

    static void title(void* data, Handle*, const char* title) {
        toplevel(data).pending.title = cleanTextFromUtf8(title);
    }

    static void appId(void* data, Handle*, const char* appId) {
        toplevel(data).pending.appId = cleanTextFromUtf8(appId);
    }

    static void state(void* data, Handle*, wl_array* states) {
        Window& pending = toplevel(data).pending;
        const auto numbers = numbersOf(*states);
        pending.isActive = std::ranges::count(numbers, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED) != 0;
        pending.isMinimised =
            std::ranges::count(numbers, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_MINIMIZED) != 0;
    }

    static void done(void* data, Handle*) {
        Toplevel& done = toplevel(data);
        done.desktop.setWindow(done.number, done.pending);
    }

    static void closed(void* data, Handle*) {
        Toplevel& closed = toplevel(data);
        WlrootsDesktop& desktop = closed.desktop;
        desktop.removeWindow(closed.number);
        std::erase_if(desktop.m_toplevels, [&](const auto& each) { return each.get() == &closed; });
    }

    static void output(void*, Handle*, wl_output*) {}
    // The compositor tells a dialogue after the window that it belongs to.
    static void parent(void* data, Handle*, Handle* parent) {
        Toplevel& dialogue = toplevel(data);
        const auto& all = dialogue.desktop.m_toplevels;
        const auto found =
            std::ranges::find(all, parent, [](const auto& each) { return each->handle.get(); });
        dialogue.pending.parent = parent && found != all.end() ? (*found)->number : 0;
    }

    static constexpr zwlr_foreign_toplevel_manager_v1_listener kManager{appeared, finished};
    static constexpr zwlr_foreign_toplevel_handle_v1_listener kHandle{title, appId, output, output,
                                                                      state, done,  closed, parent};
};

void WlrootsDesktop::Destroy::operator()(zwlr_foreign_toplevel_handle_v1* handle) const {
    zwlr_foreign_toplevel_handle_v1_destroy(handle);
}

void WlrootsDesktop::Destroy::operator()(zwlr_foreign_toplevel_manager_v1* manager) const {
    zwlr_foreign_toplevel_manager_v1_destroy(manager);
}

Result<std::unique_ptr<WlrootsDesktop>> WlrootsDesktop::open(const QByteArray& display, RunLoop& runLoop,
                                                             SystemLog& log, DesktopEntries& entries) {
    auto connection = WaylandConnection::tryConnect(display, runLoop, log);
    if (!connection)
        return connection.failure();
    if (!(*connection)->find(zwlr_foreign_toplevel_manager_v1_interface.name))
        return Failure{Failure::Kind::NotFound,
                       QStringLiteral("the compositor does not offer wlr-foreign-toplevel-management")};
    std::unique_ptr<WlrootsDesktop> desktop(
        new WlrootsDesktop(std::move(*connection), runLoop, log, entries));
    desktop->start();
    return desktop;
}

WlrootsDesktop::WlrootsDesktop(std::unique_ptr<WaylandConnection> connection, RunLoop& runLoop,
                               SystemLog& log, DesktopEntries& entries)
    : WaylandDesktop(std::move(connection), runLoop, log, entries) {}

WlrootsDesktop::~WlrootsDesktop() = default;

QString WlrootsDesktop::describe() const {
    if (!connection().isAlive())
        return QStringLiteral("Wayland: the compositor is gone");
    return isTelling() ? QStringLiteral("Wayland: the compositor tells of the windows (wlr-foreign-toplevel)")
                       : QStringLiteral("Wayland: the compositor tells no more of the windows");
}

bool WlrootsDesktop::bind() {
    const WaylandGlobal* global = connection().find(zwlr_foreign_toplevel_manager_v1_interface.name);
    if (!global)
        return false;
    m_manager.reset(connection().bind<zwlr_foreign_toplevel_manager_v1>(
        *global, zwlr_foreign_toplevel_manager_v1_interface, kNewestVersion));
    zwlr_foreign_toplevel_manager_v1_add_listener(m_manager.get(), &Events::kManager, this);
    return true;
}

void WlrootsDesktop::unbind() {
    m_toplevels.clear();
    m_manager.reset();
}

void WlrootsDesktop::add(zwlr_foreign_toplevel_handle_v1* handle) {
    m_toplevels.push_back(std::make_unique<Toplevel>(Toplevel{*this, nullptr, newNumber(), Window()}));
    m_toplevels.back()->handle.reset(handle);
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &Events::kHandle, m_toplevels.back().get());
}
