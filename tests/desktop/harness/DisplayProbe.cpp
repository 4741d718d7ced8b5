// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/DisplayProbe.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

// Whether an atom is in a property that is a list of them.
bool namesAtom(const QByteArray& bytes, xcb_atom_t wanted) {
    for (qsizetype at = 0; at + qsizetype(sizeof wanted) <= bytes.size(); at += sizeof wanted)
        if (std::memcmp(bytes.constData() + at, &wanted, sizeof wanted) == 0)
            return true;
    return false;
}

} // namespace

DisplayProbe::DisplayProbe(const QString& display)
    : m_connection(xcb_connect(display.toLocal8Bit().constData(), nullptr)) {
    if (xcb_connection_has_error(m_connection.get()))
        qFatal("cannot reach the display %s", qPrintable(display));
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
}

xcb_atom_t DisplayProbe::atom(const char* name) const {
    const auto cookie = xcb_intern_atom(m_connection.get(), 0, quint16(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
        xcb_intern_atom_reply(m_connection.get(), cookie, nullptr));
    return reply ? reply->atom : 0;
}

QByteArray DisplayProbe::property(xcb_window_t window, const char* name) const {
    xcb_connection_t* connection = m_connection.get();
    const auto cookie = xcb_get_property(connection, 0, window, atom(name), XCB_ATOM_ANY, 0, 65536);
    const std::unique_ptr<xcb_get_property_reply_t, Free> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

quint32 DisplayProbe::number(xcb_window_t window, const char* name) const {
    const QByteArray bytes = property(window, name);
    quint32 value = 0;
    if (bytes.size() >= qsizetype(sizeof value))
        std::memcpy(&value, bytes.constData(), sizeof value);
    return value;
}

QByteArray DisplayProbe::text(xcb_window_t window, const char* name) const {
    return property(window, name);
}

bool DisplayProbe::hasWindowManager() const {
    const xcb_window_t check = number(m_root, "_NET_SUPPORTING_WM_CHECK");
    return check != 0 && number(check, "_NET_SUPPORTING_WM_CHECK") == check &&
           number(m_root, "_NET_SUPPORTED") != 0;
}

void DisplayProbe::askWindowManager() {
    xcb_connection_t* connection = m_connection.get();
    if (m_asking != 0)
        xcb_destroy_window(connection, m_asking);
    m_asking = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_asking, m_root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t question{};
    question.response_type = XCB_CLIENT_MESSAGE;
    question.format = 32;
    question.window = m_asking;
    question.type = atom("_NET_REQUEST_FRAME_EXTENTS");
    const quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_send_event(connection, 0, m_root, mask, reinterpret_cast<const char*>(&question));
    xcb_flush(connection);
}

bool DisplayProbe::windowManagerHasAnswered() const {
    return property(m_asking, "_NET_FRAME_EXTENTS").size() > 0 ||
           !namesAtom(property(m_root, "_NET_SUPPORTED"), atom("_NET_REQUEST_FRAME_EXTENTS"));
}

xcb_window_t DisplayProbe::activeWindow() const {
    return number(m_root, "_NET_ACTIVE_WINDOW");
}

void DisplayProbe::sayActiveWindow(xcb_window_t window) const {
    xcb_connection_t* connection = m_connection.get();
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, m_root, atom("_NET_ACTIVE_WINDOW"),
                        XCB_ATOM_WINDOW, 32, 1, &window);
    // Any answer means that everything before it is done.
    activeWindow();
}

std::vector<xcb_window_t> DisplayProbe::windows() const {
    const QByteArray bytes = property(m_root, "_NET_CLIENT_LIST");
    std::vector<xcb_window_t> windows(std::size_t(bytes.size()) / sizeof(xcb_window_t));
    std::copy_n(bytes.constData(), windows.size() * sizeof(xcb_window_t),
                reinterpret_cast<char*>(windows.data()));
    return windows;
}

bool DisplayProbe::isInWindowList(xcb_window_t window) const {
    return std::ranges::count(windows(), window) > 0;
}

bool DisplayProbe::hasState(xcb_window_t window, const char* state) const {
    return namesAtom(property(window, "_NET_WM_STATE"), atom(state));
}

std::vector<xcb_window_t> DisplayProbe::children(xcb_window_t window) const {
    xcb_connection_t* connection = m_connection.get();
    const std::unique_ptr<xcb_query_tree_reply_t, Free> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
    if (!tree)
        return {};
    const xcb_window_t* first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

std::size_t DisplayProbe::popups() const {
    xcb_connection_t* connection = m_connection.get();
    std::size_t count = 0;
    for (const xcb_window_t child : children(m_root)) {
        const std::unique_ptr<xcb_get_window_attributes_reply_t, Free> look(xcb_get_window_attributes_reply(
            connection, xcb_get_window_attributes(connection, child), nullptr));
        if (look && look->override_redirect && look->map_state == XCB_MAP_STATE_VIEWABLE)
            ++count;
    }
    return count;
}

std::optional<DisplayArea> DisplayProbe::areaOf(const char* instanceName, xcb_window_t within) const {
    for (const xcb_window_t child : children(within)) {
        if (text(child, "WM_CLASS").startsWith(instanceName))
            return areaOf(child);
        if (const auto deeper = areaOf(instanceName, child))
            return deeper;
    }
    return std::nullopt;
}

std::optional<DisplayArea> DisplayProbe::areaOf(xcb_window_t window) const {
    xcb_connection_t* connection = m_connection.get();
    const std::unique_ptr<xcb_get_geometry_reply_t, Free> size(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    const std::unique_ptr<xcb_translate_coordinates_reply_t, Free> place(xcb_translate_coordinates_reply(
        connection, xcb_translate_coordinates(connection, window, m_root, 0, 0), nullptr));
    const std::unique_ptr<xcb_get_window_attributes_reply_t, Free> look(
        xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window), nullptr));
    if (!size || !place || !look || look->map_state != XCB_MAP_STATE_VIEWABLE)
        return std::nullopt;
    return DisplayArea{place->dst_x, place->dst_y, size->width, size->height};
}

QByteArray DisplayProbe::picture(const DisplayArea& area) const {
    const auto cookie = xcb_get_image(m_connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, qint16(area.x),
                                      qint16(area.y), quint16(area.width), quint16(area.height), ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, Free> image(
        xcb_get_image_reply(m_connection.get(), cookie, nullptr));
    if (!image)
        return {};
    return {reinterpret_cast<const char*>(xcb_get_image_data(image.get())),
            xcb_get_image_data_length(image.get())};
}
