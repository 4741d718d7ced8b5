// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/ActivityListener.h"
#include "platform/FrontApplication.h"
#include "platform/WindowList.h"

#include <algorithm>
#include <vector>

// Time that waits until it turns out which program it belongs to: what was in front, piece by piece. The windows are
// known, only the program is not. Others may be in front meanwhile: who is asked how to read a file may want to look
// something up.
class UndecidedTime {
public:
    // How long others may be in front.
    static constexpr std::chrono::seconds kPatience{60};

    struct Piece {
        // Absent while the program had no window.
        std::optional<WindowListEntry> window;
        CountedPeriod period;
    };

    // It belongs to `soFar` if nothing better turns out. `front` is its front window; null without one.
    UndecidedTime(const ApplicationRecord& soFar, const WindowListEntry* front) { follow(soFar, front); }

    const ApplicationRecord& soFar() const { return m_soFar; }
    const std::vector<Piece>& pieces() const { return m_pieces; }
    bool isInFront() const { return !m_leftAt; }

    // Whether this is the same program: its process, or one of the windows. Where a desktop tells no processes, a
    // window that says something else has another one.
    bool isOf(const ApplicationRecord& record, const WindowListEntry* front) const {
        return record.processIdentifier == m_soFar.processIdentifier || has(front);
    }

    // Whether this, which is certain, says whose the time is: one of the windows, or a later one of the same process,
    // which they were for. One that was there before says nothing: each of a suite's programs may have a window.
    bool isSettledBy(const ApplicationRecord& record, const WindowListEntry* front) const {
        const bool isLater = m_windows.empty() || (front && isLaterThanAll(*front));
        return has(front) || (record.processIdentifier == m_soFar.processIdentifier && isLater);
    }

    // From now on, this window of the program is in front. One that was there before is not: the window in question
    // has just gone, and nothing else is in front yet.
    void follow(const ApplicationRecord& soFar, const WindowListEntry* front) {
        m_soFar = soFar;
        m_leftAt.reset();
        if (front && !has(front) && !isLaterThanAll(*front))
            return;
        m_front = front ? std::optional(*front) : std::nullopt;
        if (front && !has(front))
            m_windows.push_back(front->number);
    }

    // What one of its windows says by now, even behind others; absent if that is nothing else.
    std::optional<ApplicationRecord> saidBy(std::span<const WindowListEntry> all) const {
        const auto window = std::ranges::find_if(
            all, [&](const WindowListEntry& each) { return has(&each) && each.ownerName != m_soFar.name; });
        if (window == all.end())
            return std::nullopt;
        return ApplicationRecord{window->ownerName, m_soFar.path, window->ownerProcessIdentifier};
    }

    // From now on, something else is in front.
    void leave(Instant now) { m_leftAt = m_leftAt.value_or(now); }

    // Whether something else has been in front for too long.
    bool isLeft(Instant now) const { return m_leftAt && now - *m_leftAt >= kPatience; }

    // A period has passed with what is in front.
    const Piece& add(const CountedPeriod& period) {
        const bool goesOn = !m_pieces.empty() && m_pieces.back().window == m_front &&
                            m_pieces.back().period.to == period.from;
        if (goesOn)
            m_pieces.back().period.to = period.to;
        else
            m_pieces.push_back({m_front, period});
        return m_pieces.back();
    }

private:
    bool isLaterThanAll(const WindowListEntry& window) const {
        return std::ranges::all_of(m_windows, [&](std::int64_t each) { return each < window.number; });
    }

    bool has(const WindowListEntry* window) const {
        return window && std::ranges::count(m_windows, window->number) > 0;
    }

    ApplicationRecord m_soFar;
    std::optional<Instant> m_leftAt;
    std::optional<WindowListEntry> m_front;
    std::vector<std::int64_t> m_windows;
    std::vector<Piece> m_pieces;
};
