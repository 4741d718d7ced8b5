// SPDX-License-Identifier: MIT
// Does to a window of the compositor of the environment what a task bar would, and ends:
//   activate TITLE, minimise TITLE
// Succeeds when there is such a window.
#include <wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <list>
#include <string>

namespace {

using Handle = zwlr_foreign_toplevel_handle_v1;
using Manager = zwlr_foreign_toplevel_manager_v1;

struct Window {
    Handle* handle;
    std::string title;
};

struct Offered {
    Manager* manager = nullptr;
    wl_seat* seat = nullptr;
    std::list<Window> windows;
};

void takeTitle(void* window, Handle*, const char* title) {
    static_cast<Window*>(window)->title = title;
}

void ignoreText(void*, Handle*, const char*) {}
void ignoreOutput(void*, Handle*, wl_output*) {}
void ignoreState(void*, Handle*, wl_array*) {}
void ignore(void*, Handle*) {}
void ignoreParent(void*, Handle*, Handle*) {}

constexpr zwlr_foreign_toplevel_handle_v1_listener kWindow{
    takeTitle, ignoreText, ignoreOutput, ignoreOutput, ignoreState, ignore, ignore, ignoreParent};

void takeWindow(void* offered, Manager*, Handle* handle) {
    auto& windows = static_cast<Offered*>(offered)->windows;
    windows.push_back({handle, {}});
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &kWindow, &windows.back());
}

constexpr zwlr_foreign_toplevel_manager_v1_listener kManager{takeWindow, [](void*, Manager*) {}};

void takeGlobal(void* data, wl_registry* registry, std::uint32_t name, const char* interface, std::uint32_t) {
    auto& offered = *static_cast<Offered*>(data);
    if (std::strcmp(interface, wl_seat_interface.name) == 0) {
        offered.seat = static_cast<wl_seat*>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
    } else if (std::strcmp(interface, zwlr_foreign_toplevel_manager_v1_interface.name) == 0) {
        offered.manager = static_cast<Manager*>(
            wl_registry_bind(registry, name, &zwlr_foreign_toplevel_manager_v1_interface, 1));
        zwlr_foreign_toplevel_manager_v1_add_listener(offered.manager, &kManager, &offered);
    }
}

constexpr wl_registry_listener kRegistry{takeGlobal, [](void*, wl_registry*, std::uint32_t) {}};

} // namespace

int main(int argc, char** argv) {
    wl_display* display = argc == 3 ? wl_display_connect(nullptr) : nullptr;
    if (!display)
        return EXIT_FAILURE;
    Offered offered;
    wl_registry_add_listener(wl_display_get_registry(display), &kRegistry, &offered);
    // Learns what is offered, which windows there are, and their titles.
    for (int i = 0; i < 3; ++i)
        wl_display_roundtrip(display);
    bool isThere = false;
    for (const Window& window : offered.windows) {
        if (!offered.seat || window.title != argv[2])
            continue;
        isThere = true;
        if (std::strcmp(argv[1], "activate") == 0)
            zwlr_foreign_toplevel_handle_v1_activate(window.handle, offered.seat);
        else
            zwlr_foreign_toplevel_handle_v1_set_minimized(window.handle);
    }
    isThere = wl_display_roundtrip(display) >= 0 && isThere;
    wl_display_disconnect(display);
    return isThere ? EXIT_SUCCESS : EXIT_FAILURE;
}
