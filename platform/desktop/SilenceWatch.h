// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/SignsOfLife.h"
#include "platform/WindowList.h"
#include "platform/desktop/FrontCover.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

#include <memory>

// Notices that a desktop has fallen silent, where it could as well have nothing to tell: a compositor that hangs, a shell
// whose extension has stopped. When nothing has been heard for a while though a window is credited, it is asked for a sign
// of life. As long as none comes there is no window, and the desktop itself is in front, or whoever was there last would
// be credited for it. Otherwise everything is passed on as it is. Main thread only.
class SilenceWatch : public FrontCover, public WindowList {
public:
    struct Desktop {
        FrontApplication& front;
        WindowList& windows;
        SignsOfLife& signs;
        // A desktop that hangs passes no input on, so that this alone says nobody is there, and may be wrong.
        IdleTime& idleTime;
    };

    struct Limits {
        // Nothing has been heard for so long, up to twice that; with the patience two minutes at the most.
        std::chrono::milliseconds quiet = std::chrono::seconds(55);
        // For the answer.
        std::chrono::milliseconds patience = std::chrono::seconds(10);
        // After so long without input no window is credited any more, and nobody is asked; absent where one always is.
        std::function<std::optional<std::chrono::nanoseconds>()> absence = [] {
            return std::optional<std::chrono::nanoseconds>();
        };
    };

    // `isCounting` says whether time is being credited; while it is not, nobody is asked. All outlive the watch.
    SilenceWatch(const Desktop& desktop, RunLoop& runLoop, SystemLog& log, std::function<bool()> isCounting,
                 const Limits& limits);
    ~SilenceWatch() override;

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
    // Since the last look.
    bool m_isHeard = false;
    std::unique_ptr<RunLoopTimer> m_looks;
    // Runs while an answer is waited for.
    std::unique_ptr<RunLoopTimer> m_waiting;
    int m_turnsLeft = 0;
};
