// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/ActivityListener.h"
#include "platform/FrontApplication.h"
#include "platform/WindowList.h"

#include <algorithm>
#include <vector>

// Time that waits until it turns out which program it belongs to: what was in front, piece by piece. The windows are
// known, only the program is not. Another program may come between for a moment, as when a dialogue closes before the
// window is there that it was opened for; then its time waits too, because time is credited in its order.
class UndecidedTime {
public:
    // How long another program may stay in front.
    static constexpr std::chrono::seconds kPatience{1};

    struct Piece {
        // Absent if it is the undecided one.
        std::optional<ApplicationRecord> program;
        // Absent while the program had no window.
        std::optional<WindowListEntry> window;
        CountedPeriod period;
    };

    // It belongs to `soFar` if nothing better turns out. `front` is its front window; null without one.
    UndecidedTime(const ApplicationRecord& soFar, const WindowListEntry* front) { follow(soFar, front); }

    const ApplicationRecord& soFar() const { return m_soFar; }
    const std::vector<Piece>& pieces() const { return m_pieces; }
    // The program in front.
    const ApplicationRecord& program() const { return m_between ? *m_between : m_soFar; }

    // Whether this is about the same program: its process, or one of the windows. Where a desktop tells no processes,
    // a window that says something else has another one.
    bool isAbout(const std::optional<ApplicationRecord>& record, const WindowListEntry* front) const {
        return record && (record->processIdentifier == m_soFar.processIdentifier ||
                          (front && std::ranges::count(m_windows, front->number) > 0));
    }

    // From now on, this window of the program is in front.
    void follow(const ApplicationRecord& soFar, const WindowListEntry* front) {
        m_soFar = soFar;
        m_between.reset();
        m_leftAt.reset();
        setFront(front);
        if (front && std::ranges::count(m_windows, front->number) == 0)
            m_windows.push_back(front->number);
    }

    // From now on, this window of another program is in front.
    void leaveFor(const ApplicationRecord& other, const WindowListEntry* front, Instant now) {
        m_between = other;
        m_leftAt = m_leftAt.value_or(now);
        setFront(front);
    }

    // Whether another program has been in front for too long.
    bool isLeft(Instant now) const { return m_leftAt && now - *m_leftAt >= kPatience; }

    // A period has passed with what was in front last.
    void add(const CountedPeriod& period) {
        if (!period.from || *period.from >= period.to)
            return;
        const bool goesOn = !m_pieces.empty() && m_pieces.back().program == m_between &&
                            m_pieces.back().window == m_front && m_pieces.back().period.to == *period.from;
        if (goesOn)
            m_pieces.back().period.to = period.to;
        else
            m_pieces.push_back({m_between, m_front, period});
    }

private:
    void setFront(const WindowListEntry* front) { m_front = front ? std::optional(*front) : std::nullopt; }

    ApplicationRecord m_soFar;
    std::optional<ApplicationRecord> m_between;
    std::optional<Instant> m_leftAt;
    std::optional<WindowListEntry> m_front;
    // Those of the undecided program.
    std::vector<std::int64_t> m_windows;
    std::vector<Piece> m_pieces;
};
