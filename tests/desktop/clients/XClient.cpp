// SPDX-License-Identifier: MIT
// A program with windows that does what its standard input says, a command a line, and answers "ok" when the
// X server has done it. The other end is tests/desktop/harness/XClient.
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

std::string decoded(const std::string& word) {
    std::string bytes;
    for (std::size_t i = 1; i < word.size(); ++i) {
        if (word[i] == '%' && i + 2 < word.size()) {
            bytes += char(std::stoi(word.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            bytes += word[i];
        }
    }
    return bytes;
}

class Client {
public:
    explicit Client(xcb_connection_t* connection)
        : m_connection(connection)
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root) {}

    // Answers what comes after "ok".
    std::string obey(const std::string& line) {
        std::istringstream words(line);
        std::string command;
        words >> command;
        if (command == "create")
            return std::to_string(create());
        std::uint32_t number = 0;
        words >> number;
        const xcb_window_t window = number == 0 ? m_root : number;
        if (command == "map")
            xcb_map_window(m_connection, window);
        else if (command == "destroy")
            xcb_destroy_window(m_connection, window);
        else if (command == "focus")
            xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
        else if (command == "raise")
            raise(window);
        else if (command == "activate")
            tellWindowManager(window, "_NET_ACTIVE_WINDOW", 2);
        else if (command == "minimise")
            tellWindowManager(window, "WM_CHANGE_STATE", 3);
        else
            setProperty(command, window, words);
        return {};
    }

    // Waits until the server has done everything.
    void finish() {
        const std::unique_ptr<xcb_get_input_focus_reply_t, Free> reply(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        while (void* event = xcb_poll_for_event(m_connection))
            std::free(event);
    }

private:
    xcb_atom_t atom(const std::string& name) {
        const auto cookie = xcb_intern_atom(m_connection, 0, std::uint16_t(name.size()), name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
            xcb_intern_atom_reply(m_connection, cookie, nullptr));
        return reply ? reply->atom : 0;
    }

    xcb_window_t create() {
        const xcb_window_t window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_root, 0, 0, 300, 200, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        return window;
    }

    void raise(xcb_window_t window) {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(m_connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    }

    void tellWindowManager(xcb_window_t window, const char* type, std::uint32_t value) {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = window;
        event.type = atom(type);
        event.data.data32[0] = value;
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_send_event(m_connection, 0, m_root, mask, reinterpret_cast<const char*>(&event));
    }

    void setProperty(const std::string& command, xcb_window_t window, std::istringstream& words) {
        std::string name;
        std::string type;
        words >> name >> type;
        if (command == "text") {
            std::string value;
            words >> value;
            const std::string bytes = decoded(value);
            xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(name), atom(type), 8,
                                std::uint32_t(bytes.size()), bytes.data());
        } else if (command == "numbers") {
            std::vector<std::uint32_t> values;
            for (std::uint32_t value = 0; words >> value;)
                values.push_back(value);
            setNumbers(window, name, type, values);
        } else if (command == "type") {
            setNumbers(window, "_NET_WM_WINDOW_TYPE", "ATOM", {atom(name)});
        } else if (command == "remove") {
            xcb_delete_property(m_connection, window, atom(name));
        }
    }

    void setNumbers(xcb_window_t window, const std::string& name, const std::string& type,
                    const std::vector<std::uint32_t>& values) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(name), atom(type), 32,
                            std::uint32_t(values.size()), values.data());
    }

    xcb_connection_t* m_connection;
    xcb_window_t m_root;
};

} // namespace

int main() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection))
        return EXIT_FAILURE;
    Client client(connection);
    for (std::string line; std::getline(std::cin, line);) {
        const std::string answer = client.obey(line);
        client.finish();
        if (xcb_connection_has_error(connection))
            break;
        std::cout << "ok " << answer << std::endl;
    }
    xcb_disconnect(connection);
}
