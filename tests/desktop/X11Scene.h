// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/QtRunLoop.h"
#include "platform/x11/X11Desktop.h"
#include "tests/desktop/harness/XClient.h"
#include "tests/fakes/RecordingLog.h"

// A desk, and what Ticklog sees of it.
class X11Scene {
public:
    explicit X11Scene(const QString& windowManager = QStringLiteral("openbox"),
                      VirtualDisplay::Number number = VirtualDisplay::Number::Any)
        : desk(windowManager, Desk::Bus::None, number)
        , runLoop(log)
        , entries({{desk.home().dataFolder()}, {QStringLiteral("de_AT"), QStringLiteral("de")}}, clock) {
        open();
    }

    void open() {
        auto opened = X11Desktop::open(desk.display().name().toLatin1(), runLoop, log, entries);
        if (!opened)
            qFatal("%s", qPrintable(opened.failure().text));
        desktop = std::move(*opened);
        desktop->installSwitchHandler([this] { switches << front(); });
    }

    // The front application's name; "none" when it is not told.
    QString front() const {
        const auto& application = desktop->activeApplication();
        return application ? application->name : QStringLiteral("none");
    }

    // What the front application's first ordinary window says, as the tracker looks for it: "title",
    // "(untitled)" or "none".
    QString frontTitle() const {
        const WindowListEntry* window = frontWindow();
        return window ? window->name.value_or(QStringLiteral("(untitled)")) : QStringLiteral("none");
    }

    const WindowListEntry* frontWindow() const {
        const auto& application = desktop->activeApplication();
        for (const WindowListEntry& window : desktop->onScreenWindows()) {
            if (application && window.layer == 0 &&
                window.ownerProcessIdentifier == application->processIdentifier)
                return &window;
        }
        return nullptr;
    }

    // "Application: title" of what is in front.
    QString seen() const { return front() + QStringLiteral(": ") + frontTitle(); }

    // Waits until this is in front, and answers what is.
    QString seenAfterWaitingFor(const QString& expected) const {
        waitFor([&] { return seen() == expected; }, std::chrono::seconds(20));
        return seen();
    }

    Desk desk;
    RecordingLog log;
    QtRunLoop runLoop;
    SystemClock clock;
    DesktopEntries entries;
    std::unique_ptr<X11Desktop> desktop;
    // The front application at each call of the switch handler.
    QStringList switches;
};

// Passes when `expected` comes to the front, and says what was there instead when it does not.
#define EXPECT_SEEN(scene, expected)                                                                         \
    EXPECT_EQ((scene).seenAfterWaitingFor(QStringLiteral(expected)), QStringLiteral(expected))
