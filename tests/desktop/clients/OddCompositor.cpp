// SPDX-License-Identifier: MIT
// A compositor without screen, input or windows that tells of windows nevertheless, exactly as it is told
// line by line on standard input: what real ones do not do when they are asked to. Listens at the socket in
// $XDG_RUNTIME_DIR that its first argument names, and says "ok" when it has obeyed. A second argument,
// "mute": it offers nothing of the kind.
//   open                    a window; windows are numbered from 0
//   title N TEXT, app N TEXT   TEXT in percent signs, "=" before it
//   state N NUMBER...       the numbers of the states
//   done N, close N
//   many COUNT              as many windows, each with a title and an app id
//   finish                  no more windows are told of
//   idle, resume            to whoever asked about the idle time
//   asked                   says what was asked: "input 300" or "idle 300"
#include <ext-idle-notify-v1-server-protocol.h>
#include <wlr-foreign-toplevel-management-unstable-v1-server-protocol.h>

#include <poll.h>
#include <wayland-server.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr int kToplevelVersion = 3;
constexpr int kIdleVersion = 2;
// So many surely fit into the socket before the other side must read.
constexpr int kPiece = 50;

wl_display* display = nullptr;
wl_resource* manager = nullptr;
wl_resource* notification = nullptr;
std::string asked;
std::vector<wl_resource*> windows;

void destroy(wl_client*, wl_resource* resource) {
    wl_resource_destroy(resource);
}

void ignore(wl_client*, wl_resource*) {}

void ignoreObject(wl_client*, wl_resource*, wl_resource*) {}

const struct zwlr_foreign_toplevel_handle_v1_interface kHandle {
    ignore, ignore, ignore, ignore, ignoreObject, ignore,
        [](wl_client*, wl_resource*, wl_resource*, std::int32_t, std::int32_t, std::int32_t, std::int32_t) {},
        destroy, ignoreObject, ignore
};
const struct zwlr_foreign_toplevel_manager_v1_interface kManager { ignore };
const struct ext_idle_notification_v1_interface kNotification { destroy };

void notify(wl_client* client, std::uint32_t id, std::uint32_t timeout, const char* kind) {
    notification = wl_resource_create(client, &ext_idle_notification_v1_interface, kIdleVersion, id);
    wl_resource_set_implementation(notification, &kNotification, nullptr, [](wl_resource* resource) {
        if (notification == resource)
            notification = nullptr;
    });
    asked = std::string(kind) + ' ' + std::to_string(timeout);
}

const struct ext_idle_notifier_v1_interface kNotifier {
    destroy,
        [](wl_client* client, wl_resource*, std::uint32_t id, std::uint32_t timeout, wl_resource*) {
            notify(client, id, timeout, "idle");
        },
        [](wl_client* client, wl_resource*, std::uint32_t id, std::uint32_t timeout, wl_resource*) {
            notify(client, id, timeout, "input");
        }
};

void bindManager(wl_client* client, void*, std::uint32_t version, std::uint32_t id) {
    manager = wl_resource_create(client, &zwlr_foreign_toplevel_manager_v1_interface, int(version), id);
    wl_resource_set_implementation(manager, &kManager, nullptr, [](wl_resource* resource) {
        if (manager == resource)
            manager = nullptr;
    });
}

void bindNotifier(wl_client* client, void*, std::uint32_t version, std::uint32_t id) {
    wl_resource* resource = wl_resource_create(client, &ext_idle_notifier_v1_interface, int(version), id);
    wl_resource_set_implementation(resource, &kNotifier, nullptr, nullptr);
}

void bindSeat(wl_client* client, void*, std::uint32_t version, std::uint32_t id) {
    // Nothing is asked of the seat.
    wl_resource_create(client, &wl_seat_interface, int(version), id);
}

wl_resource* open() {
    wl_resource* window = wl_resource_create(wl_resource_get_client(manager),
                                             &zwlr_foreign_toplevel_handle_v1_interface, kToplevelVersion, 0);
    wl_resource_set_implementation(window, &kHandle, nullptr, [](wl_resource* resource) {
        std::ranges::replace(windows, resource, static_cast<wl_resource*>(nullptr));
    });
    zwlr_foreign_toplevel_manager_v1_send_toplevel(manager, window);
    windows.push_back(window);
    return window;
}

std::string decoded(const std::string& text) {
    std::string bytes;
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (text[at] == '%') {
            bytes += char(std::strtol(text.substr(at + 1, 2).c_str(), nullptr, 16));
            at += 2;
        } else {
            bytes += text[at];
        }
    }
    return bytes;
}

void setState(wl_resource* window, std::istringstream& words) {
    wl_array states;
    wl_array_init(&states);
    for (std::uint32_t state = 0; words >> state;)
        *static_cast<std::uint32_t*>(wl_array_add(&states, sizeof state)) = state;
    zwlr_foreign_toplevel_handle_v1_send_state(window, &states);
    wl_array_release(&states);
}

void openMany(int count) {
    for (int i = 0; i < count; ++i) {
        wl_resource* window = open();
        zwlr_foreign_toplevel_handle_v1_send_title(window, ("Window " + std::to_string(i)).c_str());
        zwlr_foreign_toplevel_handle_v1_send_app_id(window, ("app" + std::to_string(i % 100)).c_str());
        zwlr_foreign_toplevel_handle_v1_send_done(window);
        if (i % kPiece != 0)
            continue;
        wl_display_flush_clients(display);
        pollfd socket{wl_client_get_fd(wl_resource_get_client(manager)), POLLOUT, 0};
        ::poll(&socket, 1, -1);
    }
}

std::string obeyAboutWindow(const std::string& command, std::istringstream& words) {
    std::size_t number = 0;
    words >> number;
    wl_resource* window = windows.at(number);
    if (!window)
        return "ok";
    std::string text;
    if (command == "title" && words >> text)
        zwlr_foreign_toplevel_handle_v1_send_title(window, decoded(text).c_str());
    else if (command == "app" && words >> text)
        zwlr_foreign_toplevel_handle_v1_send_app_id(window, decoded(text).c_str());
    else if (command == "state")
        setState(window, words);
    else if (command == "done")
        zwlr_foreign_toplevel_handle_v1_send_done(window);
    else if (command == "close")
        zwlr_foreign_toplevel_handle_v1_send_closed(window);
    else
        return "unknown: " + command;
    return "ok";
}

std::string obey(const std::string& line) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "asked")
        return "ok " + asked;
    if (command == "idle")
        ext_idle_notification_v1_send_idled(notification);
    else if (command == "resume")
        ext_idle_notification_v1_send_resumed(notification);
    else if (command == "open")
        open();
    else if (command == "finish")
        zwlr_foreign_toplevel_manager_v1_send_finished(manager);
    else if (int count = 0; command == "many" && words >> count)
        openMany(count);
    else
        return obeyAboutWindow(command, words);
    return "ok";
}

int readLine(int, std::uint32_t, void*) {
    std::string line;
    if (!std::getline(std::cin, line)) {
        wl_display_terminate(display);
        return 0;
    }
    const std::string answer = obey(line);
    wl_display_flush_clients(display);
    std::cout << answer << std::endl;
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    display = wl_display_create();
    if (argc < 2 || wl_display_add_socket(display, argv[1]) != 0)
        return EXIT_FAILURE;
    if (argc == 2)
        wl_global_create(display, &zwlr_foreign_toplevel_manager_v1_interface, kToplevelVersion, nullptr,
                         bindManager);
    wl_global_create(display, &ext_idle_notifier_v1_interface, kIdleVersion, nullptr, bindNotifier);
    wl_global_create(display, &wl_seat_interface, 1, nullptr, bindSeat);
    wl_event_loop_add_fd(wl_display_get_event_loop(display), fileno(stdin), WL_EVENT_READABLE, readLine,
                         nullptr);
    std::cout << "ok" << std::endl;
    wl_display_run(display);
    wl_display_destroy_clients(display);
    wl_display_destroy(display);
    return EXIT_SUCCESS;
}
