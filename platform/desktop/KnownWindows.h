// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WindowList.h"
#include "platform/desktop/SwitchTeller.h"
#include "platform/foundation/programs/DesktopEntries.h"

#include <vector>

// The windows and the application in front, as last reported by the desktop. Answers from memory, reports
// switches, and finds the names of programs. A back end works out what there is, and calls show(). Main
// thread only.
class KnownWindows : public WindowList, public SwitchTeller {
public:
    std::span<const WindowListEntry> onScreenWindows() const override { return m_windows; }
    const std::optional<ApplicationRecord>& activeApplication() const override { return m_front; }
    bool isUndecided() const override { return m_isUndecided; }
    QString nameOfProgram(const QString& path) const override;

protected:
    // `entries` outlive this object.
    explicit KnownWindows(DesktopEntries& entries)
        : m_desktopEntries(entries) {}

    DesktopEntries& desktopEntries() const { return m_desktopEntries; }

    // The record of a program, by its process. `classes` come from its window, in the order that
    // DesktopEntries expects. Ticklog itself has its own name. Any other program has its `installed` name,
    // else its class, else its file name.
    ApplicationRecord recordOf(std::int64_t process, const QStringList& classes, bool isOwn) const;
    static ApplicationRecord recordOf(std::int64_t process, const QStringList& classes, bool isOwn,
                                      const std::optional<QString>& installed);

    // From now on this is what there is. Reports a switch if another application is in front, or if it has become
    // undecided or decided which one.
    void show(std::vector<WindowListEntry> frontToBack, const std::optional<ApplicationRecord>& front,
              bool isUndecided = false);
    // The same when the window with the focus may not be the front one.
    void show(std::vector<WindowListEntry> frontToBack, std::int64_t focused,
              const std::optional<ApplicationRecord>& front, bool isUndecided = false);
    // What is in front when the desktop stops reporting: the desktop itself, because a window that may be
    // gone must not go on being credited. Absent if the desktop has not reported anything yet.
    std::optional<ApplicationRecord> frontAfterwards() const;
    // Like show(), but does not report. Answers whether it is a switch.
    [[nodiscard]] bool take(std::vector<WindowListEntry> frontToBack,
                            const std::optional<ApplicationRecord>& front, bool isUndecided = false);

private:
    DesktopEntries& m_desktopEntries;
    std::optional<ApplicationRecord> m_front;
    bool m_isUndecided = false;
    std::vector<WindowListEntry> m_windows;
};
