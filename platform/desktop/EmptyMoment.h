// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/RunLoop.h"

#include <functional>
#include <memory>

// Between two windows, desktops report for a moment that none is in front; that is not passed on. After the
// moment the desktop is asked again, because this process may have been kept waiting and not have heard what
// is in front now.
class EmptyMoment {
public:
    static constexpr std::chrono::milliseconds kLength{100};

    // `askAgain` asks the desktop what is in front. The loop outlives this object.
    EmptyMoment(RunLoop& runLoop, std::function<void()> askAgain, std::chrono::milliseconds length = kLength)
        : m_runLoop(runLoop)
        , m_askAgain(std::move(askAgain))
        , m_length(length) {}

    // Call it when the desktop says that nothing is in front. Answers whether to believe it: the moment is
    // over, and no answer of the desktop is missing, which `isAnswerOwed` says.
    bool isOver(bool isAnswerOwed) {
        if (!m_timer && !m_isAsked)
            m_timer = m_runLoop.scheduleOnce(m_length, [this] {
                m_isAsked = true;
                m_askAgain();
            });
        return m_isAsked && !isAnswerOwed;
    }

    // Something is in front, or it has been passed on that nothing is.
    void end() {
        m_isAsked = false;
        m_timer.reset();
    }

private:
    RunLoop& m_runLoop;
    std::function<void()> m_askAgain;
    std::chrono::milliseconds m_length;
    // Runs from the beginning of the moment.
    std::unique_ptr<RunLoopTimer> m_timer;
    bool m_isAsked = false;
};
