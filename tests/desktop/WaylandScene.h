// SPDX-License-Identifier: MIT
#pragma once

#include "platform/wayland/PlasmaDesktop.h"
#include "platform/wayland/WlrootsDesktop.h"
#include "tests/desktop/Sight.h"
#include "tests/desktop/harness/WaylandClient.h"

// A Wayland desk of any kind, and what Ticklog sees of it.
class AnyWaylandScene : public Sight {
public:
    using Sight::Sight;
    virtual ~AnyWaylandScene() = default;
    virtual WaylandDesk& anyDesk() = 0;
};

// Made before the back end that looks at it.
template<class AnyDesk>
struct WaylandSceneDesk {
    AnyDesk desk;
};

// A Wayland desk, and what Ticklog sees of it by one of its back ends.
template<class AnyDesk, class Desktop>
class WaylandScene : public WaylandSceneDesk<AnyDesk>, public AnyWaylandScene {
public:
    WaylandScene()
        : AnyWaylandScene(this->desk.home().dataFolder()) {
        open();
    }

    WaylandDesk& anyDesk() override { return this->desk; }

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
using LabwcScene = WaylandScene<LabwcDesk, WlrootsDesktop>;
using PhocScene = WaylandScene<PhocDesk, WlrootsDesktop>;
using MiriwayScene = WaylandScene<MiriwayDesk, WlrootsDesktop>;
using KWinScene = WaylandScene<KWinDesk, PlasmaDesktop>;

// `compositor` is "sway", "labwc", "phoc" or "kwin".
inline std::unique_ptr<AnyWaylandScene> makeWaylandScene(const QString& compositor) {
    if (compositor == QLatin1String("sway"))
        return std::make_unique<SwayScene>();
    if (compositor == QLatin1String("labwc"))
        return std::make_unique<LabwcScene>();
    if (compositor == QLatin1String("phoc"))
        return std::make_unique<PhocScene>();
    return std::make_unique<KWinScene>();
}
