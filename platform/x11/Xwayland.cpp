// SPDX-License-Identifier: MIT
#include "platform/x11/Xwayland.h"

#include <xcb/randr.h>

#include <string_view>

namespace {

constexpr std::string_view kExtension = "XWAYLAND";

bool hasItsExtension(X11Connection& connection) {
    const auto cookie =
        xcb_query_extension(connection.xcb(), std::uint16_t(kExtension.size()), kExtension.data());
    const auto reply = connection.wait(cookie.sequence);
    return reply && static_cast<const xcb_query_extension_reply_t*>(reply.get())->present;
}

// Versions without the extension are recognised by the names of their screens: XWAYLAND0 and so on.
bool isNameOfItsScreen(X11Connection& connection, xcb_randr_output_t output, xcb_timestamp_t since) {
    const auto cookie = xcb_randr_get_output_info(connection.xcb(), output, since);
    const auto reply = connection.wait(cookie.sequence);
    const auto* info = static_cast<const xcb_randr_get_output_info_reply_t*>(reply.get());
    if (!info)
        return false;
    const std::string_view name(reinterpret_cast<const char*>(xcb_randr_get_output_info_name(info)),
                                std::size_t(xcb_randr_get_output_info_name_length(info)));
    return name.starts_with(kExtension);
}

} // namespace

bool isXwayland(X11Connection& connection) {
    if (hasItsExtension(connection))
        return true;
    if (!connection.extension(xcb_randr_id))
        return false;
    const auto cookie = xcb_randr_get_screen_resources_current(connection.xcb(), connection.root());
    const auto reply = connection.wait(cookie.sequence);
    const auto* resources = static_cast<const xcb_randr_get_screen_resources_current_reply_t*>(reply.get());
    return resources && xcb_randr_get_screen_resources_current_outputs_length(resources) > 0 &&
           isNameOfItsScreen(connection, *xcb_randr_get_screen_resources_current_outputs(resources),
                             resources->config_timestamp);
}
