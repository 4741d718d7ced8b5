// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiLink.h"
#include "platform/desktop/KnownWindows.h"

#include <unordered_map>

// The window in front as far as programs tell assistive programs of theirs: the one that says it is active. Where none
// does, the desktop is in front: somebody may be there who tells nothing, and that time is not the last one's. Looks at
// nothing until it is begun, and lists the window in front alone. Main thread only.
class AtspiFrontDesktop : public KnownWindows {
public:
    // Between two windows of different programs, each of which tells when it comes to it, none is active for a moment,
    // which is not told.
    static constexpr std::chrono::milliseconds kEmptyMoment{250};
    // How often the program in front, while there is one, is asked for its title: Qt programs do not tell of it, and one
    // that hangs goes on saying that it is active.
    static constexpr std::chrono::seconds kTitlePace{1};

    // The others outlive this.
    AtspiFrontDesktop(Bus& sessionBus, RunLoop& runLoop, SystemLog& log, DesktopEntries& entries);

    // Starts the accessibility bus where it does not run. Does nothing when it has been begun already.
    void begin();
    // Leaves the bus: nothing is known until it is begun anew. Not to be called from the switch handler.
    void end();

    // Whether programs can tell. Changes are told as those of the front.
    bool isTelling() const { return programs(); }

    QString describe() const override;

private:
    // Null while nobody knows them.
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
    // Of windows, by connection and path.
    std::unordered_map<QString, std::int64_t> m_numbers;
    // Above all that a shell counts: when it begins to tell, its windows are not to be taken for others.
    std::int64_t m_lastNumber = std::int64_t(1) << 32;
    // The connection of the program that became active last.
    QString m_latest;
    // Absent until it is begun.
    std::unique_ptr<AtspiLink> m_link;
    std::unique_ptr<RunLoopTimer> m_emptyMoment;
    // Runs while a program is in front.
    std::unique_ptr<RunLoopTimer> m_rereading;
};
