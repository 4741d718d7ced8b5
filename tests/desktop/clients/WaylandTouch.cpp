// SPDX-License-Identifier: MIT
// Moves the pointer a little on the KWin of the environment, as a hand would, and ends.
#include <fake-input-client-protocol.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

void takeIn(void* data, wl_registry* registry, std::uint32_t name, const char* interface, std::uint32_t) {
    if (std::strcmp(interface, org_kde_kwin_fake_input_interface.name) == 0)
        *static_cast<void**>(data) = wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 1);
}

} // namespace

int main() {
    wl_display* display = wl_display_connect(nullptr);
    if (!display)
        return EXIT_FAILURE;
    void* bound = nullptr;
    const wl_registry_listener listener{takeIn, [](void*, wl_registry*, std::uint32_t) {}};
    wl_registry* registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &listener, &bound);
    wl_display_roundtrip(display);
    auto* input = static_cast<org_kde_kwin_fake_input*>(bound);
    if (!input)
        return EXIT_FAILURE;
    org_kde_kwin_fake_input_authenticate(input, "Ticklog's tests", "to be somebody at the desk");
    org_kde_kwin_fake_input_pointer_motion(input, wl_fixed_from_int(3), wl_fixed_from_int(3));
    const bool isDone = wl_display_roundtrip(display) >= 0;
    org_kde_kwin_fake_input_destroy(input);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return isDone ? EXIT_SUCCESS : EXIT_FAILURE;
}
