// SPDX-License-Identifier: MIT
#include "Classes/engine/AbsenceWatch.h"

#include "Classes/common/Settings.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/store/TimeStoreApp.h"
#include "Classes/store/TimeStoreWindow.h"

using namespace std::chrono_literals;

namespace {

// Whoever has touched nothing since this short a time after coming back did not come back.
constexpr auto kMoment = 1s;
// If the wall clock tells another length than has passed by more than this, it was set meanwhile.
constexpr auto kMostOff = 1min;
// If the settings name no sensible length.
constexpr auto kUsual = 15min;
constexpr std::int64_t kMostMinutes = 10'000;

} // namespace

AbsenceWatch::AbsenceWatch(TimeTracker& tracker, NotificationCenter& notifications,
                           const UserDefaults& defaults, const Clock& clock, Hearer hearer)
    : m_tracker(tracker)
    , m_defaults(defaults)
    , m_clock(clock)
    , m_hearer(std::move(hearer)) {
    m_settings = notifications.observe(kUserDefaultsDidChangeNotification,
                                       [this](const Notification&) { settingsChanged(); });
    settingsChanged();
}

bool AbsenceWatch::isWished(const UserDefaults& defaults) {
    return defaults.boolForKey(kAskAfterAbsence);
}

std::chrono::minutes AbsenceWatch::shortestAbsence(const UserDefaults& defaults) {
    const std::int64_t minutes = defaults.integerForKey(kAskAfterMinutes);
    return minutes > 0 && minutes <= kMostMinutes ? std::chrono::minutes(minutes) : kUsual;
}

void AbsenceWatch::settingsChanged() {
    const bool isWished = AbsenceWatch::isWished(m_defaults);
    m_shortest = shortestAbsence(m_defaults);
    const bool isRunning = m_defaults.boolForKey(kTKWasTimerRunning);
    // Sleep stops the timer too, but does not say so here: that is left to the user.
    if (std::exchange(m_isRunning, isRunning) != isRunning || !isWished)
        forget();
    if (!isWished)
        m_stretches = {};
    else if (!m_stretches)
        m_stretches = m_tracker.listen(*this);
}

void AbsenceWatch::forget() {
    m_workedTo.reset();
    m_return.reset();
    m_told.reset();
}

void AbsenceWatch::credited(const Stretch& stretch) {
    if (stretch.presence == Presence::Idle)
        return;
    if (const Moment from = momentOf(stretch.from); !m_return && m_workedTo && isAbsence(*m_workedTo, from))
        m_return = Return{{m_workedTo->wall, from.wall, m_workedOn}, stretch.from};
    if (m_return && stretch.to - m_return->at < kUntilSure)
        return;
    if (m_return)
        tellReturn();
    m_workedTo = momentOf(stretch.to);
    m_workedOn = {stretch.program->name(), stretch.title, stretch.program->uuid(),
                  stretch.window ? stretch.window->uuid() : std::nullopt};
}

void AbsenceWatch::absent(Instant since, Instant, Seconds) {
    if (m_return && since > m_return->at + kMoment) {
        tellReturn();
        m_workedTo = momentOf(since);
        return;
    }
    if (!m_return && m_workedTo && since < m_workedTo->at)
        m_workedTo = momentOf(since);
    m_return.reset();
    if (!m_told || since > m_told->at + kMoment)
        return;
    const Absence absence = std::exchange(m_told, std::nullopt)->absence;
    if (m_workedTo && m_hearer.goesOn(absence)) {
        m_workedTo->sinceBoot -= m_workedTo->wall - absence.from;
        m_workedTo->wall = absence.from;
        m_workedOn = absence.before;
    }
}

AbsenceWatch::Moment AbsenceWatch::momentOf(Instant instant) const {
    const auto ago = m_clock.instant() - instant;
    return {instant, m_clock.now() - std::chrono::floor<Date::duration>(ago), m_clock.sinceBoot() - ago};
}

bool AbsenceWatch::isAbsence(const Moment& from, const Moment& to) const {
    const auto passed = to.sinceBoot - from.sinceBoot;
    return passed >= m_shortest && std::chrono::abs(to.wall - from.wall - passed) < kMostOff;
}

void AbsenceWatch::tellReturn() {
    m_told = std::exchange(m_return, std::nullopt);
    m_hearer.cameBack(m_told->absence);
}
