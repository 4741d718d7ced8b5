// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"
#include "platform/foundation/time/Clock.h"

#include <deque>

// Makes rows of the history from the stretches that the tracker tells: joined where they differ in nothing, put on the wall
// clock, divided at the full hours, and an absence cut out of what was told before it was noticed. Boundaries are rounded to
// milliseconds once, so neighbours share them and lengths add up. It also keeps account of what timers got, for the store.
// Main thread only; the clock outlives it.
class HistoryRecorder : public StretchListener {
public:
    explicit HistoryRecorder(const Clock& clock)
        : m_clock(clock) {}

    void credited(const Stretch& stretch) override;
    void absent(Instant since, Instant noticed, Seconds booked) override;

    // Whether anything is to be written within a quarter of a minute. That an absence goes on can wait.
    bool hasNews() const { return m_hasNews; }
    // Hands over what has changed.
    void takeInto(HistoryBatch& batch);
    // What was told is told: it is neither gone on with nor cut.
    void settle();
    // Timers of this identity go by another from now on, as do their rows that may still change.
    void rename(const Identity& from, const Identity& to);
    // What timers get from here on, the store lacks that is saved now.
    std::int64_t beginGeneration();
    std::int64_t generation() const { return m_generation; }
    void setGeneration(std::int64_t generation) { m_generation = generation; }

private:
    // Where the clock that only moves on lies on the wall clock. Holds until that one is set, or the machine sleeps.
    struct Anchor {
        std::int64_t wallOf(Instant instant) const;
        Instant instantOf(std::int64_t wall) const;
        friend bool operator==(const Anchor&, const Anchor&) = default;

        Instant at;
        std::int64_t wall = 0;
    };
    struct Who {
        friend bool operator==(const Who&, const Who&) = default;

        QString program;
        QString title;
        RowTimer timer;
        RowPresence presence = RowPresence::Work;
    };
    struct Span {
        std::uint64_t serial;
        Instant from;
        Instant to;
        // The full hour.
        Instant end;
        Anchor anchor;
        std::int64_t offset;
        Who who;
        bool isHandedOver;
        bool hasChanged;
    };

    void holdAnchor(Instant since);
    void append(Instant from, Instant to, const Anchor& anchor, const Who& who);
    bool goesOn(Instant at, const Anchor& anchor, const Who& who) const;
    void begin(Instant at, const Anchor& anchor, const Who& who);
    const QString& steady(const QString& title);
    void forgetOldSpans();
    void owe(const Stretch& stretch);
    void settleDebt();
    static HistoryRow rowOf(const Span& span);

    const Clock& m_clock;
    std::optional<Anchor> m_anchor;
    // In the order of time: what may still be gone on with or cut.
    std::deque<Span> m_spans;
    // Rows of before that are not written yet, or are to go.
    std::map<std::uint64_t, HistoryRow> m_settled;
    std::uint64_t m_lastSerial = 0;
    bool m_isOpen = false;
    bool m_hasNews = false;
    // A title is asked for ten times a second.
    QString m_title;
    QString m_steadyTitle;
    RowTimer m_idleTimer;
    std::int64_t m_generation = 0;
    // Who is being credited, and what has not been added to the debts yet.
    OwedTime m_application;
    std::optional<OwedTime> m_window;
    std::chrono::nanoseconds m_running{};
    std::map<OwedTime, std::chrono::nanoseconds> m_owed;
};
