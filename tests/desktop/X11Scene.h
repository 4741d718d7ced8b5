// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Desktop.h"
#include "tests/desktop/Sight.h"
#include "tests/desktop/harness/XClient.h"

// Made before the back end that looks at it.
struct X11SceneDesk {
    Desk desk;
};

// A desk, and what Ticklog sees of it.
class X11Scene : public X11SceneDesk, public Sight {
public:
    explicit X11Scene(const QString& windowManager = QStringLiteral("openbox"),
                      VirtualDisplay::Number number = VirtualDisplay::Number::Any)
        : X11SceneDesk{Desk(windowManager, busFor(windowManager), number)}
        , Sight(desk.home().dataFolder()) {
        open();
    }

    void open() { open(runLoop); }
    // Anew, with timers that outlive the scene's use of it.
    void open(RunLoop& timers) {
        auto opened = X11Desktop::open(desk.display().name().toLatin1(), timers, log, entries);
        if (!opened)
            qFatal("%s", qPrintable(opened.failure().text));
        desktop = std::move(*opened);
        lookThrough(*desktop);
    }

    std::unique_ptr<X11Desktop> desktop;

private:
    // Window managers of whole desktops keep their settings on a bus.
    static Desk::Bus busFor(const QString& windowManager) {
        static const QStringList kDesktops{QStringLiteral("xfwm4"), QStringLiteral("kwin_x11"),
                                           QStringLiteral("muffin"), QStringLiteral("mutter")};
        return kDesktops.contains(windowManager) ? Desk::Bus::Own : Desk::Bus::None;
    }
};
