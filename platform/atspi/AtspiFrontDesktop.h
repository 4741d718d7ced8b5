// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiLink.h"
#include "platform/desktop/EmptyMoment.h"
#include "platform/desktop/KnownWindows.h"

#include <unordered_map>

// The window in front, as far as programs tell assistive programs about theirs: the one that says it is
// active. If none does, the desktop is in front: some silent program may be, so the time must not go to the
// last one. Does nothing before begin(), and lists only the window in front. Main thread only.
class AtspiFrontDesktop : public KnownWindows {
public:
    // Longer than where a desktop tells of all windows: here each program tells of its own, and the one that
    // comes up may be busy.
    static constexpr std::chrono::milliseconds kEmptyMoment{250};
    // How often the program in front is asked for its title: Qt programs do not report changes, and a program
    // that hangs still counts as active.
    static constexpr std::chrono::seconds kTitlePace{1};

    // All arguments outlive this object.
    AtspiFrontDesktop(Bus& sessionBus, RunLoop& runLoop, SystemLog& log, DesktopEntries& entries,
                      std::chrono::milliseconds patience = AtspiApplication::kPatience);

    // Starts the accessibility bus if it does not run. Further calls do nothing.
    void begin();
    // Leaves the bus: nothing is known until begin() is called again. Do not call this from the switch
    // handler.
    void end();

    // Whether programs can report. A change of this is reported as a switch.
    bool isTelling() const { return programs(); }

    QString describe() const override;

private:
    // Null while there is no registry.
    AtspiDesktop* programs() const;
    void take(std::int64_t processIdentifier, AtspiApplication::Change change);
    void look();
    // Null when none has an active window.
    const AtspiApplication* findActive();
    void setLatest(const QString& connectionName);
    ApplicationRecord applicationOf(const AtspiApplication& program) const;
    void showProgram(const AtspiApplication& program);
    void showNothing(const std::optional<ApplicationRecord>& front);

    Bus& m_sessionBus;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    std::chrono::milliseconds m_patience;
    // Numbers of windows, by connection and path.
    std::unordered_map<QString, std::int64_t> m_numbers;
    // Above all numbers that a shell uses: when its extension begins to report, its windows must not be taken
    // for these.
    std::int64_t m_lastNumber = std::int64_t(1) << 32;
    // The connection of the program that became active last.
    QString m_latest;
    // Absent before begin().
    std::unique_ptr<AtspiLink> m_link;
    EmptyMoment m_emptyMoment;
    // Runs while a program is in front.
    std::unique_ptr<RunLoopTimer> m_rereading;
};
