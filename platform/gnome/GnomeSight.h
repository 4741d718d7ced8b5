// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusMessage>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// One message of the extension: everything there is to see.
struct GnomeSight {
    struct Window {
        // Numbered by the shell from 1, never the same twice while it runs.
        std::uint32_t number = 0;
        // 0 or negative if the shell does not know it.
        std::int32_t process = 0;
        QString title;
        // The id of the desktop entry; empty if the window has none.
        QString applicationId;
        QString windowClass;
        int layer = 0;
    };

    // The versions of messages that can be read here.
    static constexpr std::uint32_t kVersion = 1;
    static constexpr std::uint32_t kOldestVersion = 1;

    // The version of the extension's messages, and the oldest version of a reader that understands them.
    struct Versions {
        std::uint32_t spoken = 0;
        std::uint32_t oldest = 0;

        bool areUnderstood() const { return spoken >= kOldestVersion && oldest <= kVersion; }
        friend bool operator==(const Versions&, const Versions&) = default;
    };

    // 0 if no window on the screen has the focus.
    std::uint32_t focused = 0;
    // Those on the screen, front to back.
    std::vector<Window> windows;

    // Absent if it is no message of this extension.
    static std::optional<Versions> versionsOf(const QDBusMessage& message);
    // Absent if the message has an unknown form. Texts are clean.
    static std::optional<GnomeSight> read(const QDBusMessage& message);
};
