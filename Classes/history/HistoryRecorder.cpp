// SPDX-License-Identifier: MIT
#include "Classes/history/HistoryRecorder.h"

#include "Classes/history/LocalHours.h"
#include "Classes/rules/SteadyTitle.h"
#include "Classes/store/TimeStoreApp.h"
#include "Classes/store/TimeStoreWindow.h"

#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

namespace {

// If the wall clock differs by more than this, it was set or the machine slept.
constexpr auto kMostOff = 1s;
// Two stretches in a row read the clock one after the other; a gap as short as this is no gap.
constexpr auto kBetweenReadings = 20ms;
// The longest absence that is cut out afterwards.
constexpr auto kLongestAbsence = 24h;
constexpr std::size_t kMostSpans = 8192;

std::int64_t milliseconds(Date date) {
    return std::chrono::floor<std::chrono::milliseconds>(date).time_since_epoch().count();
}

} // namespace

std::int64_t HistoryRecorder::Anchor::wallOf(Instant instant) const {
    return wall + std::chrono::floor<std::chrono::milliseconds>(instant - at).count();
}

Instant HistoryRecorder::Anchor::instantOf(std::int64_t time) const {
    return at + std::chrono::milliseconds(time - wall);
}

bool HistoryRecorder::Anchor::agrees(Instant instant, Date now) const {
    return std::chrono::abs(std::chrono::milliseconds(milliseconds(now) - wallOf(instant))) <= kMostOff;
}

void HistoryRecorder::holdAnchor(Instant since) {
    const Instant instant = m_clock.instant();
    const Date now = m_clock.now();
    if (m_anchor && m_anchor->agrees(instant, now))
        return;
    m_anchor = Anchor{since, milliseconds(now - std::chrono::floor<Date::duration>(instant - since))};
}

void HistoryRecorder::credited(const Stretch& stretch) {
    if (extend(stretch))
        return;
    const Who who = whoOf(stretch);
    if (who.presence == RowPresence::Idle)
        m_idleTimer = who.timer;
    owe(stretch);
    holdAnchor(stretch.from);
    append(stretch.from, stretch.to, *m_anchor, who);
}

HistoryRecorder::Who HistoryRecorder::whoOf(const Stretch& stretch) {
    const bool isIdle = stretch.presence == Presence::Idle;
    return {.program = stretch.program->name(),
            .title = steady(stretch.title),
            .timer = {stretch.program->uuid(), stretch.window ? stretch.window->uuid() : std::nullopt},
            .presence = isIdle ? RowPresence::Idle : RowPresence::Work};
}

void HistoryRecorder::waits(const Stretch& stretch) {
    settleDebt();
    m_application = {.generation = 0,
                     .program = stretch.program->name(),
                     .window = {},
                     .timer = {stretch.program->uuid(), std::nullopt}};
    m_waiting[m_application] += stretch.to - stretch.from;
    if (stretch.window) {
        OwedTime window = m_application;
        window.window = stretch.window->name();
        window.timer.window = stretch.window->uuid();
        m_waiting[window] += stretch.to - stretch.from;
    }
    // What is credited next does not go on with this.
    m_application = {};
    holdAnchor(stretch.from);
    append(stretch.from, stretch.to, *m_anchor, whoOf(stretch), true);
}

void HistoryRecorder::turnedOut(const std::vector<Stretch>& stretches) {
    settleDebt();
    for (const Stretch& stretch : stretches)
        owe(stretch);
    settleDebt();
    m_application = {};
    m_waiting.clear();
    m_hasNews = true;
    for (Span& span : m_spans) {
        if (!std::exchange(span.isWaiting, false))
            continue;
        const Instant middle = span.from + (span.to - span.from) / 2;
        const auto stretch =
            std::ranges::find_if(stretches, [&](const Stretch& each) { return each.to > middle; });
        if (stretch != stretches.end())
            give(span, whoOf(*stretch));
    }
}

// Rows that are written keep their values, except for the length.
void HistoryRecorder::give(Span& span, const Who& who) {
    if (span.who == who)
        return;
    span.who = who;
    if (!span.isHandedOver)
        return;
    HistoryRow gone = rowOf(span);
    gone.length = 0;
    m_settled.insert_or_assign(span.serial, std::move(gone));
    span.serial = ++m_lastSerial;
    m_settled.insert_or_assign(span.serial, rowOf(span));
}

bool HistoryRecorder::extend(const Stretch& stretch) {
    if (!m_isOpen || !isOwedToSame(stretch) || stretch.title != m_title)
        return false;
    Span& span = m_spans.back();
    const bool isIdle = stretch.presence == Presence::Idle;
    if (isIdle != (span.who.presence == RowPresence::Idle) || span.anchor != m_anchor ||
        stretch.from - span.to >= kBetweenReadings || stretch.to <= span.to || stretch.to > span.end ||
        !span.anchor.agrees(stretch.to, m_clock.now()))
        return false;
    span.to = stretch.to;
    span.hasChanged = true;
    m_hasNews = m_hasNews || !isIdle;
    m_running += stretch.to - stretch.from;
    return true;
}

const QString& HistoryRecorder::steady(const QString& title) {
    if (title != m_title) {
        m_title = title;
        m_steadyTitle = steadyTitle(title);
    }
    return m_steadyTitle;
}

void HistoryRecorder::append(Instant from, Instant to, const Anchor& anchor, const Who& who, bool isWaiting) {
    if (!m_spans.empty() && m_spans.back().anchor == anchor && from - m_spans.back().to < kBetweenReadings)
        from = m_spans.back().to;
    while (from < to) {
        const bool isSameAgain = m_isOpen && m_spans.back().who == who && m_spans.back().to == from;
        if (!goesOn(from, anchor, who) || m_spans.back().isWaiting != isWaiting)
            begin(from, anchor, who);
        Span& span = m_spans.back();
        span.isWaiting = isWaiting;
        span.to = std::min(to, span.end);
        span.hasChanged = true;
        m_hasNews = m_hasNews || !isSameAgain || who.presence == RowPresence::Work;
        from = span.to;
    }
}

bool HistoryRecorder::goesOn(Instant at, const Anchor& anchor, const Who& who) const {
    if (!m_isOpen)
        return false;
    const Span& span = m_spans.back();
    return span.to == at && at < span.end && span.anchor == anchor && span.who == who;
}

void HistoryRecorder::begin(Instant at, const Anchor& anchor, const Who& who) {
    forgetOldSpans();
    const std::int64_t start = anchor.wallOf(at);
    const bool isSameHour =
        m_isOffsetKnown && !m_spans.empty() && m_spans.back().anchor == anchor && at < m_spans.back().end;
    const std::int64_t offset = isSameHour ? m_spans.back().offset : LocalHours::offsetAt(start);
    m_isOffsetKnown = true;
    m_spans.push_back({.serial = ++m_lastSerial,
                       .from = at,
                       .to = at,
                       .end = anchor.instantOf(LocalHours::after(start, offset)),
                       .anchor = anchor,
                       .offset = offset,
                       .who = who,
                       .isHandedOver = false,
                       .hasChanged = true,
                       .isWaiting = false});
    m_isOpen = true;
}

void HistoryRecorder::absent(Instant since, Instant noticed, Seconds booked) {
    struct Piece {
        Instant to;
        Anchor anchor;
    };
    // What is settled stays as it was told: a person has just done something about it, so somebody was there.
    if (m_settledTo)
        since = std::min(std::max(since, *m_settledTo), noticed);
    std::vector<Piece> pieces;
    holdAnchor(m_spans.empty() ? since : std::max(since, std::min(noticed, m_spans.back().to)));
    while (!m_spans.empty() && m_spans.back().to > since) {
        Span& span = m_spans.back();
        pieces.insert(pieces.begin(), {span.to, span.anchor});
        if (span.from < since) {
            span.to = since;
            span.hasChanged = true;
            break;
        }
        span.to = span.from;
        if (span.isHandedOver)
            m_settled.insert_or_assign(span.serial, rowOf(span));
        m_spans.pop_back();
    }
    pieces.push_back({noticed, *m_anchor});
    m_isOpen = false;
    const Who nobody{.program = kIdleName, .title = {}, .timer = m_idleTimer, .presence = RowPresence::Idle};
    Instant from = since;
    for (const auto& [to, anchor] : pieces) {
        append(from, std::max(from, to), anchor, nobody);
        from = std::max(from, to);
    }
    settleDebt();
    m_owed[{.generation = m_generation, .program = kIdleName, .window = {}, .timer = m_idleTimer}] +=
        std::chrono::nanoseconds(std::llround(booked * 1e9));
}

void HistoryRecorder::forgetOldSpans() {
    while (!m_spans.empty() &&
           (m_spans.size() >= kMostSpans || m_spans.back().to - m_spans.front().to > kLongestAbsence)) {
        if (m_spans.front().hasChanged)
            m_settled.insert_or_assign(m_spans.front().serial, rowOf(m_spans.front()));
        m_spans.pop_front();
    }
}

HistoryRow HistoryRecorder::rowOf(const Span& span) {
    const std::int64_t start = span.anchor.wallOf(span.from);
    return {.start = start,
            .length = span.anchor.wallOf(span.to) - start,
            .offset = span.offset,
            .program = span.who.program,
            .title = span.who.title,
            .timer = span.who.timer,
            .presence = span.who.presence};
}

std::size_t HistoryRecorder::firstChanged() const {
    std::size_t first = m_spans.size();
    while (first > 0 && m_spans[first - 1].hasChanged)
        --first;
    return first;
}

void HistoryRecorder::takeInto(HistoryBatch& batch) {
    for (auto& [serial, row] : m_settled)
        batch.rows.insert_or_assign(serial, std::move(row));
    m_settled.clear();
    for (std::size_t i = firstChanged(); i < m_spans.size(); ++i) {
        Span& span = m_spans[i];
        span.hasChanged = false;
        span.isHandedOver = true;
        batch.rows.insert_or_assign(span.serial, rowOf(span));
    }
    settleDebt();
    for (const auto& [to, time] : m_owed)
        batch.owed[to] += std::chrono::round<std::chrono::milliseconds>(time).count();
    m_owed.clear();
    tellWaitingDebt(batch.owed);
    // What has turned out late got a new number.
    const auto first = std::ranges::min_element(m_spans, {}, &Span::serial);
    batch.settledBefore = first == m_spans.end() ? m_lastSerial + 1 : first->serial;
    m_hasNews = false;
    // Who has come to another zone may have the same window in front. To ask at each tick or row would be to ask
    // the disk.
    if (!m_spans.empty() &&
        LocalHours::offsetAt(m_spans.back().anchor.wallOf(m_spans.back().to)) != m_spans.back().offset)
        m_isOpen = m_isOffsetKnown = false;
}

void HistoryRecorder::addNewsTo(std::map<std::uint64_t, HistoryRow>& rows) const {
    for (const auto& [serial, row] : m_settled)
        rows.insert_or_assign(serial, row);
    for (std::size_t i = firstChanged(); i < m_spans.size(); ++i)
        rows.insert_or_assign(m_spans[i].serial, rowOf(m_spans[i]));
}

std::optional<std::int64_t> HistoryRecorder::recordedTo() const {
    if (!m_anchor)
        return std::nullopt;
    return m_spans.empty() ? m_settledTo ? std::optional(m_anchor->wallOf(*m_settledTo)) : std::nullopt
                           : std::optional(m_spans.back().anchor.wallOf(m_spans.back().to));
}

void HistoryRecorder::settle() {
    if (!m_spans.empty())
        m_settledTo = m_spans.back().to;
    for (std::size_t i = firstChanged(); i < m_spans.size(); ++i)
        m_settled.insert_or_assign(m_spans[i].serial, rowOf(m_spans[i]));
    m_spans.clear();
    m_isOpen = false;
}

void HistoryRecorder::move(const TimerMove& timer) {
    const auto& [from, to] = timer;
    for (Span& span : m_spans) {
        RowTimer& whose = span.who.timer;
        if (whose.application != from.application || (from.window && whose.window != from.window))
            continue;
        whose.application = to.application;
        if (from.window)
            whose.window = to.window;
    }
}

std::int64_t HistoryRecorder::beginGeneration() {
    settleDebt();
    m_application = {};
    return ++m_generation;
}

bool HistoryRecorder::isOwedToSame(const Stretch& stretch) const {
    const bool isSameWindow = stretch.window ? m_window && m_window->timer.window == stretch.window->uuid() &&
                                                   *m_window->window == stretch.window->name()
                                             : !m_window;
    return isSameWindow && m_application.timer.application == stretch.program->uuid() &&
           stretch.program->isNamed(m_application.program);
}

void HistoryRecorder::owe(const Stretch& stretch) {
    if (!isOwedToSame(stretch)) {
        settleDebt();
        m_application = {.generation = m_generation,
                         .program = stretch.program->name(),
                         .window = {},
                         .timer = {stretch.program->uuid(), std::nullopt}};
        m_window.reset();
        if (stretch.window) {
            m_window = m_application;
            m_window->window = stretch.window->name();
            m_window->timer.window = stretch.window->uuid();
        }
    }
    m_running += stretch.to - stretch.from;
}

void HistoryRecorder::settleDebt() {
    const auto time = std::exchange(m_running, {});
    if (time <= time.zero())
        return;
    m_application.generation = m_generation;
    m_owed[m_application] += time;
    if (!m_window)
        return;
    m_window->generation = m_generation;
    m_owed[*m_window] += time;
}

// It is owed to the store of the present generation, whichever it was owed to before.
void HistoryRecorder::tellWaitingDebt(std::map<OwedTime, std::int64_t>& owed) {
    for (const auto& [to, told] : std::exchange(m_waitingTold, {}))
        owed[to] -= told;
    for (const auto& [soFar, time] : m_waiting) {
        OwedTime to = soFar;
        to.generation = m_generation;
        const auto told = std::chrono::round<std::chrono::milliseconds>(time).count();
        m_waitingTold[to] = told;
        owed[to] += told;
    }
}
