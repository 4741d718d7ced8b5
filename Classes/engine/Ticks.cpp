// SPDX-License-Identifier: MIT
#include "Classes/engine/Ticks.h"

#include <algorithm>

Ticks::Ticks(RunLoop& runLoop, Clock& clock, Work work)
    : m_runLoop(runLoop)
    , m_clock(clock)
    , m_work(std::move(work))
    , m_last(clock.instant())
    , m_waits(runLoop.observeWaits({[this] { catchUp(); }, [this] { plan(); }})) {
    if (!m_waits)
        m_timer = m_runLoop.scheduleRepeating(kInterval, kTolerance, [this] { m_work.tick(); });
}

void Ticks::creditMissed() {
    if (const Instant now = m_clock.instant(); m_waits)
        m_work.credit(std::min(m_due.value_or(now), now));
}

void Ticks::catchUp() {
    const Instant now = m_clock.instant();
    if (now - m_last < kInterval)
        return;
    const std::optional<Instant> due = std::exchange(m_due, std::nullopt);
    m_hasNews = false;
    m_last = now;
    if (m_timer)
        m_timer->invalidate();
    // Since a tick was due and did not come, nothing has run: that is a gap, as it is between steady ticks.
    m_work.credit(due ? std::min(*due, now) : now);
    m_work.tick();
}

void Ticks::plan() {
    if (m_work.look())
        m_hasNews = true;
    std::optional<Instant> due = m_work.needed();
    if (m_hasNews && m_work.isSeen())
        due = std::min(due.value_or(m_last), m_last);
    if (due)
        due = std::max(*due, m_last + kInterval);
    if (due == m_due && (!due || (m_timer && m_timer->isValid())))
        return;
    m_due = due;
    // The end of the wait is all that it is for.
    m_timer =
        due ? m_runLoop.scheduleOnce(std::max(*due - m_clock.instant(), std::chrono::nanoseconds(0)), [] {})
            : nullptr;
}
