// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Stretch.h"
#include "Classes/history/HistoryBatch.h"
#include "platform/foundation/time/Clock.h"

#include <deque>

// Turns the tracker's stretches into rows of the history. Joins stretches that differ in nothing, puts them
// on the wall clock, divides them at full hours, and cuts out an absence that was told as work before it was
// noticed. Rounds each border to milliseconds once, so neighbours share it and lengths add up. It also adds
// up what the store owes the timers. Main thread only; the clock outlives it.
class HistoryRecorder : public StretchListener {
public:
    explicit HistoryRecorder(const Clock& clock)
        : m_clock(clock) {}

    void credited(const Stretch& stretch) override;
    void absent(Instant since, Instant noticed, Seconds booked) override;
    // Makes rows of what waits, which are others when it has turned out, and owes it to whom it would be so far.
    void waits(const Stretch& stretch) override;
    void turnedOut(const std::vector<Stretch>& stretches) override;

    // The serial number of the row that was begun last.
    std::uint64_t lastSerial() const { return m_lastSerial; }
    // Whether something must be written within a quarter of a minute. An absence that only goes on does not
    // count.
    bool hasNews() const { return m_hasNews; }
    // Hands over what has changed.
    void takeInto(HistoryBatch& batch);
    // The same, by serial numbers, but still to be handed over.
    void addNewsTo(std::map<std::uint64_t, HistoryRow>& rows) const;
    // No row so far will be extended or cut any more.
    void settle();
    // Up to when something was told, in milliseconds since 1970; absent before the first stretch.
    std::optional<std::int64_t> recordedTo() const;
    // A timer gets another identity; so do its rows that may still change.
    void move(const TimerMove& timer);
    // A save begins: what timers get from now on is not in it. Answers the new generation.
    std::int64_t beginGeneration();
    std::int64_t generation() const { return m_generation; }
    void setGeneration(std::int64_t generation) { m_generation = generation; }

private:
    // Ties the clock that only moves on to the wall clock. Valid until the wall clock is set or the machine
    // sleeps.
    struct Anchor {
        std::int64_t wallOf(Instant instant) const;
        Instant instantOf(std::int64_t wall) const;
        // Whether the wall clock that shows `now` at `instant` has neither been set nor missed a sleep.
        bool agrees(Instant instant, Date now) const;
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
        // The full hour at which this row must end.
        Instant end;
        Anchor anchor;
        std::int64_t offset;
        Who who;
        bool isHandedOver;
        bool hasChanged;
        bool isWaiting;
    };

    // Nearly every stretch goes on with the last one, ten times a second: the way that touches least.
    // Answers whether it did.
    bool extend(const Stretch& stretch);
    void holdAnchor(Instant since);
    Who whoOf(const Stretch& stretch);
    void append(Instant from, Instant to, const Anchor& anchor, const Who& who, bool isWaiting = false);
    bool goesOn(Instant at, const Anchor& anchor, const Who& who) const;
    void begin(Instant at, const Anchor& anchor, const Who& who);
    void give(Span& span, const Who& who);
    // The changed spans are always the last ones.
    std::size_t firstChanged() const;
    const QString& steady(const QString& title);
    void forgetOldSpans();
    bool isOwedToSame(const Stretch& stretch) const;
    void owe(const Stretch& stretch);
    void settleDebt();
    void tellWaitingDebt(std::map<OwedTime, std::int64_t>& owed);
    static HistoryRow rowOf(const Span& span);

    const Clock& m_clock;
    std::optional<Anchor> m_anchor;
    // In order of time: rows that may still be extended or cut.
    std::deque<Span> m_spans;
    // Older rows that are not written yet, or are to be deleted.
    std::map<std::uint64_t, HistoryRow> m_settled;
    // Where the last row that was settled ends.
    std::optional<Instant> m_settledTo;
    std::uint64_t m_lastSerial = 0;
    bool m_isOpen = false;
    // Whether the last span's distance from UTC holds until its hour ends: to ask anew is to ask the disk.
    bool m_isOffsetKnown = false;
    bool m_hasNews = false;
    // The last title and what is left of it, because titles are asked for ten times a second.
    QString m_title;
    QString m_steadyTitle;
    RowTimer m_idleTimer;
    std::int64_t m_generation = 0;
    // Who gets the time in m_running, which is not yet part of m_owed.
    OwedTime m_application;
    std::optional<OwedTime> m_window;
    std::chrono::nanoseconds m_running{};
    std::map<OwedTime, std::chrono::nanoseconds> m_owed;
    // What waits is owed as well, but not for good: what of it was handed over is taken back, to the millisecond.
    std::map<OwedTime, std::chrono::nanoseconds> m_waiting;
    std::map<OwedTime, std::int64_t> m_waitingTold;
};
