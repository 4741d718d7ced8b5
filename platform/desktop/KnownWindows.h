// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WindowList.h"
#include "platform/desktop/SwitchTeller.h"
#include "platform/foundation/programs/DesktopEntries.h"

#include <vector>

// The windows and the application in front, as they were last told: answers from memory, tells of switches, and knows what
// programs are called. A back end finds out what is to be shown, and says so. Main thread only.
class KnownWindows : public WindowList, public SwitchTeller {
public:
    std::span<const WindowListEntry> onScreenWindows() const override { return m_windows; }
    const std::optional<ApplicationRecord>& activeApplication() const override { return m_front; }
    QString nameOfProgram(const QString& path) const override;

protected:
    // The entries outlive this.
    explicit KnownWindows(DesktopEntries& entries)
        : m_desktopEntries(entries) {}

    DesktopEntries& desktopEntries() const { return m_desktopEntries; }

    // A program by its process. `classes` are what a window of it says, as DesktopEntries has them. Our own is called by our
    // name, any other as it is `installed`; failing that as it calls itself, and last after its file.
    ApplicationRecord recordOf(std::int64_t process, const QStringList& classes, bool isOwn) const;
    static ApplicationRecord recordOf(std::int64_t process, const QStringList& classes, bool isOwn,
                                      const std::optional<QString>& installed);

    // From now on this is what there is. Tells of a switch if another application is in front.
    void show(std::vector<WindowListEntry> frontToBack, const std::optional<ApplicationRecord>& front);
    // The same, where the window that has the focus may not be the one that lies in front.
    void show(std::vector<WindowListEntry> frontToBack, std::int64_t focused,
              const std::optional<ApplicationRecord>& front);
    // What is in front when nobody tells any more. The account goes on crediting whoever was told last, and that must not
    // be a window that is gone; of a desktop that has told nothing yet nothing is known.
    std::optional<ApplicationRecord> frontAfterwards() const;
    // As `show`, without telling. Answers whether it is a switch.
    [[nodiscard]] bool take(std::vector<WindowListEntry> frontToBack,
                            const std::optional<ApplicationRecord>& front);

private:
    DesktopEntries& m_desktopEntries;
    std::optional<ApplicationRecord> m_front;
    std::vector<WindowListEntry> m_windows;
};
