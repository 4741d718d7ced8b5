// SPDX-License-Identifier: MIT
#pragma once

#include "platform/wayland/PlasmaDesktop.h"
#include "platform/wayland/WlrootsDesktop.h"
#include "tests/desktop/Sight.h"
#include "tests/desktop/harness/WaylandClient.h"

// Made before what is seen of it.
template<class AnyDesk>
struct WaylandSceneDesk {
    AnyDesk desk;
};

// A Wayland desk, and what Ticklog sees of it by one of its back ends.
template<class AnyDesk, class Desktop>
class WaylandScene : public WaylandSceneDesk<AnyDesk>, public Sight {
public:
    WaylandScene()
        : Sight(this->desk.home().dataFolder()) {
        open();
    }

    void open() {
        auto opened = Desktop::open(this->desk.display().toLocal8Bit(), runLoop, log, entries);
        if (!opened)
            qFatal("%s", qPrintable(opened.failure().text));
        desktop = std::move(*opened);
        lookThrough(*desktop);
    }

    std::unique_ptr<Desktop> desktop;
};

using SwayScene = WaylandScene<SwayDesk, WlrootsDesktop>;
using KWinScene = WaylandScene<KWinDesk, PlasmaDesktop>;
