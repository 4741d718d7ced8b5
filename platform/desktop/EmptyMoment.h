// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/RunLoop.h"

#include <functional>
#include <memory>

// Between two windows desktops say for a moment that none is in front, which is not told. When the moment is over the
// desktop is asked again: this program may have been kept waiting, and not have heard yet what is in front by now.
class EmptyMoment {
public:
    static constexpr std::chrono::milliseconds kLength{100};

    // `askAgain` asks the desktop what is in front. The loop outlives this.
    EmptyMoment(RunLoop& runLoop, std::function<void()> askAgain)
        : m_runLoop(runLoop)
        , m_askAgain(std::move(askAgain)) {}

    // Nothing is in front, as far as has been told. Answers whether that is so: the moment is over and the desktop, which
    // `isAnswerOwed` says, has no answer left to give.
    bool isOver(bool isAnswerOwed) {
        if (!m_timer && !m_isAsked)
            m_timer = m_runLoop.scheduleOnce(kLength, [this] {
                m_isAsked = true;
                m_askAgain();
            });
        return m_isAsked && !isAnswerOwed;
    }

    // Something is in front, or it is known that nothing is.
    void end() {
        m_isAsked = false;
        m_timer.reset();
    }

private:
    RunLoop& m_runLoop;
    std::function<void()> m_askAgain;
    // Since the moment has begun.
    std::unique_ptr<RunLoopTimer> m_timer;
    bool m_isAsked = false;
};
