// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/SignsOfLife.h"
#include "platform/WindowList.h"
#include "platform/desktop/FrontCover.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

#include <memory>

// Notices that a desktop has fallen silent: a compositor that hangs, or a shell whose extension has stopped.
// That looks the same as a desktop without news, so when nothing has been heard for a while although a window
// is credited, it asks for a sign of life. Until one comes there is no window and the desktop itself is in
// front; otherwise the last application would go on being credited. At all other times it passes everything
// on. Main thread only.
class SilenceWatch : public FrontCover, public WindowList {
public:
    struct Desktop {
        FrontApplication& front;
        WindowList& windows;
        SignsOfLife& signs;
        // A desktop that hangs passes on no input, so this alone says that nobody is there, and may be wrong.
        IdleTime& idleTime;
    };

    struct Limits {
        // The desktop is asked when nothing was heard for this long, at most for twice as long; with the
        // patience below, two minutes at most.
        std::chrono::milliseconds quiet = std::chrono::seconds(55);
        // How long to wait for the answer.
        std::chrono::milliseconds patience = std::chrono::seconds(10);
        // After this time without input no window is credited any more, and the desktop is not asked. Absent
        // if windows are always credited.
        std::function<std::optional<std::chrono::nanoseconds>()> absence = [] {
            return std::optional<std::chrono::nanoseconds>();
        };
    };

    // `isCounting` says whether time is being credited; the desktop is asked only then. All arguments outlive
    // the watch.
    SilenceWatch(const Desktop& desktop, RunLoop& runLoop, SystemLog& log, std::function<bool()> isCounting,
                 const Limits& limits);

    const std::optional<ApplicationRecord>& activeApplication() const override;
    QString obstacle() const override;
    std::span<const WindowListEntry> onScreenWindows() const override;

private:
    void look();
    bool isWorthAsking() const;
    bool isAbsent() const;
    void wait();
    void fallSilent();
    void hear();
    bool isSilent() const { return isCovered(); }

    Desktop m_desktop;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    std::function<bool()> m_isCounting;
    Limits m_limits;
    // Since the last check.
    bool m_isHeard = false;
    std::unique_ptr<RunLoopTimer> m_looks;
    // Runs while waiting for an answer.
    std::unique_ptr<RunLoopTimer> m_waiting;
    int m_turnsLeft = 0;
    Subscription m_signs;
};
