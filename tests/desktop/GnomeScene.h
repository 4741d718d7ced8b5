// SPDX-License-Identifier: MIT
#pragma once

#include "platform/gnome/GnomeShellDesktop.h"
#include "platform/linux/ActivationService.h"
#include "tests/desktop/WaylandScene.h"
#include "tests/desktop/harness/GnomeDesk.h"

// GNOME Shell, and what Ticklog sees of it by its extension.
class GnomeScene : public WaylandSceneDesk<GnomeDesk>, public Sight {
public:
    explicit GnomeScene(const GnomeDesk::Extension& extension = {},
                        WaylandDesk::XServer xServer = WaylandDesk::XServer::None)
        : WaylandSceneDesk{GnomeDesk(extension, xServer)}
        , Sight(desk.home().dataFolder())
        , bus(Bus::atAddress(desk.bus().address()), runLoop, log)
        , name(bus, kTicklogName, log) {
        open();
    }

    void open() {
        desktop = std::make_unique<GnomeShellDesktop>(bus, name, log, entries);
        lookThrough(*desktop);
    }

    Bus bus;
    BusName name;
    std::unique_ptr<GnomeShellDesktop> desktop;
};
