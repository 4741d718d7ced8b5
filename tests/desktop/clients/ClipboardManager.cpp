// SPDX-License-Identifier: MIT
// The least that keeps a clipboard alive. Says "ready" when it is the display's clipboard manager. When a
// program ends, takes over every form of what it had copied, and serves them from then on.
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

struct Free {
    void operator()(void* allocated) const { std::free(allocated); }
};
template<class T>
using Reply = std::unique_ptr<T, Free>;

struct Form {
    xcb_atom_t type;
    std::uint8_t format;
    std::vector<std::uint8_t> bytes;
};

class Manager {
public:
    Manager()
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_window(xcb_generate_id(m_connection)) {
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        xcb_create_window(m_connection, 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          screen->root_visual, 0, nullptr);
        xcb_set_selection_owner(m_connection, m_window, atom("CLIPBOARD_MANAGER"), XCB_CURRENT_TIME);
        xcb_flush(m_connection);
    }

    void run() {
        while (const Reply<xcb_generic_event_t> event{xcb_wait_for_event(m_connection)})
            if ((event->response_type & 0x7F) == XCB_SELECTION_REQUEST)
                answer(reinterpret_cast<xcb_selection_request_event_t&>(*event));
    }

private:
    xcb_atom_t atom(const char* name) {
        const auto cookie = xcb_intern_atom(m_connection, 0, std::uint16_t(std::strlen(name)), name);
        return Reply<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(m_connection, cookie, nullptr))->atom;
    }

    // Empty if nobody answers.
    Form fetch(xcb_atom_t target) {
        xcb_convert_selection(m_connection, m_window, atom("CLIPBOARD"), target, target, XCB_CURRENT_TIME);
        xcb_flush(m_connection);
        while (const Reply<xcb_generic_event_t> event{xcb_wait_for_event(m_connection)}) {
            if ((event->response_type & 0x7F) != XCB_SELECTION_NOTIFY)
                continue;
            if (reinterpret_cast<xcb_selection_notify_event_t&>(*event).property == XCB_NONE)
                break;
            const auto cookie = xcb_get_property(m_connection, 1, m_window, target, XCB_ATOM_ANY, 0, 1 << 20);
            const Reply<xcb_get_property_reply_t> reply{
                xcb_get_property_reply(m_connection, cookie, nullptr)};
            const auto* bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
            return {reply->type, reply->format, {bytes, bytes + xcb_get_property_value_length(reply.get())}};
        }
        return {};
    }

    void saveTargets() {
        const Form targets = fetch(atom("TARGETS"));
        std::vector<xcb_atom_t> names(targets.bytes.size() / sizeof(xcb_atom_t));
        std::memcpy(names.data(), targets.bytes.data(), names.size() * sizeof(xcb_atom_t));
        m_forms.clear();
        for (const xcb_atom_t name : names)
            if (name != atom("TARGETS") && name != atom("MULTIPLE") && name != atom("TIMESTAMP") &&
                name != atom("SAVE_TARGETS"))
                if (Form form = fetch(name); !form.bytes.empty())
                    m_forms[name] = std::move(form);
        xcb_set_selection_owner(m_connection, m_window, atom("CLIPBOARD"), XCB_CURRENT_TIME);
    }

    void answer(const xcb_selection_request_event_t& request) {
        xcb_selection_notify_event_t reply = {};
        reply.response_type = XCB_SELECTION_NOTIFY;
        reply.time = request.time;
        reply.requestor = request.requestor;
        reply.selection = request.selection;
        reply.target = request.target;
        reply.property = request.property;
        if (request.target == atom("SAVE_TARGETS")) {
            saveTargets();
        } else if (request.target == atom("TARGETS")) {
            std::vector<xcb_atom_t> names{atom("TARGETS")};
            for (const auto& [name, form] : m_forms)
                names.push_back(name);
            xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                                XCB_ATOM_ATOM, 32, std::uint32_t(names.size()), names.data());
        } else if (const auto form = m_forms.find(request.target); form != m_forms.end()) {
            const auto& [type, format, bytes] = form->second;
            xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                                type, format, std::uint32_t(bytes.size() / (format / 8)), bytes.data());
        } else {
            reply.property = XCB_NONE;
        }
        // As long as every event on the wire.
        char event[32] = {};
        std::memcpy(event, &reply, sizeof reply);
        xcb_send_event(m_connection, 0, request.requestor, 0, event);
        xcb_flush(m_connection);
    }

    xcb_connection_t* m_connection;
    xcb_window_t m_window;
    std::map<xcb_atom_t, Form> m_forms;
};

} // namespace

int main() {
    Manager manager;
    std::cout << "ready" << std::endl;
    manager.run();
    return 0;
}
