// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusMessage>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// What the extension tells in one message: everything there is to see.
struct GnomeSight {
    struct Window {
        // Counted by the shell, from 1, and never twice while it runs.
        std::uint32_t number = 0;
        // Not above zero when the shell does not know.
        std::int32_t process = 0;
        QString title;
        // The id of the desktop entry; empty when the window belongs to none.
        QString applicationId;
        QString windowClass;
        int layer = 0;
    };

    // The versions of the messages that we read.
    static constexpr std::uint32_t kVersion = 1;
    static constexpr std::uint32_t kOldestVersion = 1;

    // Of the messages, as the extension says: what it speaks, and the oldest that a reader of it may know.
    struct Versions {
        std::uint32_t spoken = 0;
        std::uint32_t oldest = 0;

        bool areUnderstood() const { return spoken >= kOldestVersion && oldest <= kVersion; }
        friend bool operator==(const Versions&, const Versions&) = default;
    };

    // 0 when no window on the screen has the focus.
    std::uint32_t focused = 0;
    // Those on the screen, front to back.
    std::vector<Window> windows;

    // Absent when it is no message of this extension at all.
    static std::optional<Versions> versionsOf(const QDBusMessage& message);
    // Absent when the message is made differently from what is known here. Texts are clean.
    static std::optional<GnomeSight> read(const QDBusMessage& message);
};
