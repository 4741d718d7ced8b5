// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/RunLoop.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>

// The first moments of windows. Some programs say only when a window is on the screen which program it belongs to: an
// office suite's window has the suite's class first and the word processor's a moment later. Windows have the numbers
// of FollowedDesktop: a newer one has a higher number.
class FirstMoments {
public:
    // For any window.
    static constexpr std::chrono::milliseconds kLength{1000};
    // For a dialogue of a window that is not there yet: somebody has to answer it first.
    static constexpr std::chrono::milliseconds kLengthBeforeParent{60'000};

    // `askAgain` asks the desktop what is in front, when a moment has lasted long enough: this process may have been
    // kept waiting and not have heard what a window has said. The loop outlives this object.
    FirstMoments(RunLoop& runLoop, std::function<void()> askAgain)
        : m_runLoop(runLoop)
        , m_askAgain(std::move(askAgain)) {}

    // Windows up to this one have been there before.
    void skip(std::int64_t window) { m_old = std::max(m_old, window); }

    // This window is in front. Answers whether this is still its first moment, which begins with the first question and
    // takes this long, and longer if an answer of the desktop is missing then, which `isAnswerOwed` says.
    bool include(std::int64_t window, std::chrono::milliseconds length, bool isAnswerOwed) {
        if (window <= m_old)
            return false;
        if (window != m_window)
            skip(std::min(m_window, window - 1));
        if (window != m_window || length > m_length)
            begin(length);
        m_length = window == m_window ? std::max(m_length, length) : length;
        m_window = window;
        if (m_isLongEnough && !isAnswerOwed)
            skip(window);
        return window > m_old;
    }

private:
    void begin(std::chrono::milliseconds length) {
        m_isLongEnough = false;
        m_timer = m_runLoop.scheduleOnce(length, [this] {
            m_isLongEnough = true;
            m_askAgain();
        });
    }

    RunLoop& m_runLoop;
    std::function<void()> m_askAgain;
    // The newest window whose moment is over.
    std::int64_t m_old = 0;
    std::int64_t m_window = 0;
    std::chrono::milliseconds m_length{};
    bool m_isLongEnough = false;
    std::unique_ptr<RunLoopTimer> m_timer;
};
