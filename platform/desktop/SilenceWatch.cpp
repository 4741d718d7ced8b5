// SPDX-License-Identifier: MIT
#include "platform/desktop/SilenceWatch.h"

#include "platform/foundation/text/LocalizedStrings.h"

namespace {

// The waiting time is counted in turns of the loop. A process that was itself kept waiting gets one turn for
// all that time, and handles the answer before the next turn.
constexpr int kTurns = 10;

} // namespace

SilenceWatch::SilenceWatch(const Desktop& desktop, RunLoop& runLoop, SystemLog& log,
                           std::function<bool()> isCounting, const Limits& limits)
    : FrontCover(desktop.front, std::nullopt)
    , m_desktop(desktop)
    , m_runLoop(runLoop)
    , m_log(log)
    , m_isCounting(std::move(isCounting))
    , m_limits(limits)
    , m_looks(runLoop.scheduleRepeating(limits.quiet, limits.quiet / 20, [this] { look(); }))
    , m_signs(desktop.signs.observeSigns([this] { hear(); })) {}

const std::optional<ApplicationRecord>& SilenceWatch::activeApplication() const {
    const auto& application = m_desktop.front.activeApplication();
    return application ? FrontCover::activeApplication() : application;
}

std::span<const WindowListEntry> SilenceWatch::onScreenWindows() const {
    return isSilent() ? std::span<const WindowListEntry>() : m_desktop.windows.onScreenWindows();
}

QString SilenceWatch::obstacle() const {
    const QString known = m_desktop.front.obstacle();
    if (!known.isEmpty() || !isSilent())
        return known;
    return localized("The desktop has stopped responding. Until it responds, no window’s time is counted.");
}

void SilenceWatch::look() {
    if (std::exchange(m_isHeard, false) || isSilent() || m_waiting || !isWorthAsking())
        return;
    m_desktop.signs.askForSign();
    if (m_isHeard)
        return;
    m_turnsLeft = kTurns;
    const std::chrono::nanoseconds turn = m_limits.patience / kTurns;
    m_waiting = m_runLoop.scheduleRepeating(turn, turn, [this] { wait(); });
}

bool SilenceWatch::isWorthAsking() const {
    // If it is already known that nothing is reported, nothing is credited either, so there is no need to
    // ask.
    const auto& front = m_desktop.front.activeApplication();
    const bool isTold = m_desktop.front.obstacle().isEmpty() || (front && *front != nothingInFront());
    return isTold && m_isCounting() && !isAbsent();
}

bool SilenceWatch::isAbsent() const {
    const auto absence = m_limits.absence();
    if (!absence)
        return false;
    const IdleReading reading = m_desktop.idleTime.read();
    return reading.idle && *reading.idle >= *absence;
}

void SilenceWatch::wait() {
    if (--m_turnsLeft == 0)
        fallSilent();
}

void SilenceWatch::fallSilent() {
    m_waiting.reset();
    m_log.log(QStringLiteral("The desktop does not answer: nothing is known to be in front until it does."));
    cover(nothingInFront());
}

void SilenceWatch::hear() {
    m_isHeard = true;
    m_waiting.reset();
    if (!isSilent())
        return;
    m_log.log(QStringLiteral("The desktop is heard of again."));
    cover(std::nullopt);
}
