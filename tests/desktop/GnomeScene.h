// SPDX-License-Identifier: MIT
#pragma once

#include "platform/gnome/GnomeShellDesktop.h"
#include "tests/desktop/WaylandScene.h"
#include "tests/desktop/harness/GnomeDesk.h"

// GNOME Shell, and what Ticklog sees of it by its extension.
class GnomeScene : public WaylandSceneDesk<GnomeDesk>, public Sight {
public:
    explicit GnomeScene(const GnomeDesk::Extension& extension = {})
        : WaylandSceneDesk{GnomeDesk(extension)}
        , Sight(desk.home().dataFolder())
        , bus(Bus::atAddress(desk.bus().address()), runLoop, log) {
        open();
    }

    void open() {
        desktop = std::make_unique<GnomeShellDesktop>(bus, log, entries);
        lookThrough(*desktop);
    }

    Bus bus;
    std::unique_ptr<GnomeShellDesktop> desktop;
};
