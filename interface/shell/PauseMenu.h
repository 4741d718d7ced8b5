// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Clock.h"
#include "platform/foundation/time/RunLoop.h"

#include <QDateTime>
#include <QMenu>

class TimerControl;

// The tray menu's commands that pause the timer for a while: then it starts again by itself, unless the user has started
// it before. The wall clock decides, so a pause ends on time although the machine slept.
class PauseMenu {
public:
    // When the next day begins.
    using Tomorrow = std::function<QDateTime()>;

    // All arguments outlive the menu.
    PauseMenu(TimerControl& timer, RunLoop& runLoop, const Clock& clock, Tomorrow tomorrow);

    QMenu& menu() { return m_menu; }
    // Stops the timer, if it runs, until this moment.
    void pauseUntil(Date end);
    // Absent while no pause is going on.
    std::optional<Date> end() const { return m_end; }

private:
    void add(const char* name, const QString& text, std::function<Date()> end);
    void look();

    TimerControl& m_timer;
    RunLoop& m_runLoop;
    const Clock& m_clock;
    QMenu m_menu;
    std::optional<Date> m_end;
    std::unique_ptr<RunLoopTimer> m_nextLook;
};
