// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <span>

// One window on the screen. Texts are clean: no control characters, no line breaks, at most 4,096 characters.
struct WindowListEntry {
    // Never used for another window while the program runs.
    std::int64_t number = 0;
    // As ApplicationRecord::processIdentifier.
    std::int64_t ownerProcessIdentifier = 0;
    // False for docks, desktops, splash screens and the like.
    bool isOrdinary = true;
    // The title; absent when the window has none.
    std::optional<QString> name;
    QString ownerName;

    friend bool operator==(const WindowListEntry&, const WindowListEntry&) = default;
};

// The windows on the screen as the desktop last reported them. Answers from memory: no round trip.
class WindowList {
public:
    virtual ~WindowList() = default;

    // Front to back; the window with the focus comes first. Empty while the desktop cannot be reached; never
    // an error. Valid until control returns to the event loop. Main thread only.
    virtual std::span<const WindowListEntry> onScreenWindows() const = 0;
};
