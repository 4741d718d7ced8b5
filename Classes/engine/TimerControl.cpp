// SPDX-License-Identifier: MIT
#include "Classes/engine/TimerControl.h"

#include "Classes/common/Settings.h"
#include "Classes/engine/SystemIdleTime.h"
#include "platform/foundation/text/LocalizedStrings.h"

using namespace std::chrono_literals;

namespace {

constexpr auto kHeartbeatInterval = 15s;
constexpr auto kHeartbeatTolerance = 1s;
// So that a clock that is set, or a sleep that nobody announces, puts no more than this at a wrong time of the day.
constexpr auto kLongestUntold = 60s;

const QString kImageStart = QStringLiteral("ToolbarStart");
const QString kImagePause = QStringLiteral("ToolbarPause");

} // namespace

TimerControl::TimerControl(TimeTracker& tracker, TrackerServices& services, TimerDisplay& display, Save save)
    : m_tracker(tracker)
    , m_services(services)
    , m_display(display)
    , m_save(std::move(save)) {
    RunLoop& runLoop = services.activity.runLoop;
    m_heartbeat =
        runLoop.scheduleRepeating(kHeartbeatInterval, kHeartbeatTolerance, [this] { ticklogHeartbeat(); });
    m_firstHeartbeat = runLoop.scheduleOnce(0s, [this] { ticklogHeartbeat(); });
    m_returns = services.idleTime.observeInput([this] {
        if (m_tracker.isIdle() && computeTimerIsValid())
            computeTime();
    });
}

TimerControl::~TimerControl() {
    destroyComputeTimer();
}

void TimerControl::toggleCounting() {
    if (isRunning())
        stopTimer();
    else
        startTimer();
}

void TimerControl::startTimer() {
    if (m_tracker.setIsRunning(true))
        forceStartTimer();
}

void TimerControl::forceStartTimer() {
    recreateComputeTimer();
    computeTime();
    m_display.showToggle(kImagePause, localized("Pause"));
    m_display.showRecordingBadge(true);
    m_display.updateMenuIconState();
    m_services.defaults.setObject(kTKWasTimerRunning, true);
    m_services.defaults.synchronize();
}

void TimerControl::stopTimer() {
    // Written at once: after a crash the next launch must not start the timer.
    m_services.defaults.setObject(kTKWasTimerRunning, false);
    m_services.defaults.synchronize();
    halt();
}

void TimerControl::halt() {
    m_tracker.timeActivator().creditMissedTicks();
    destroyComputeTimer();
    m_tracker.setIsRunning(false);
    m_display.showToggle(kImageStart, localized("Start"));
    m_display.showRecordingBadge(false);
    m_save();
    m_display.updateMenuIconState();
}

void TimerControl::computeTime() {
    m_tracker.updateDisplayTime(isIdle());
    refreshDisplay();
}

std::optional<Instant> TimerControl::neededTick() const {
    std::optional<Instant> first = m_display.nextTurn();
    if (!isRunning())
        return first;
    const auto untold = m_tracker.timeActivator().startDate();
    for (const std::optional<Instant> other :
         {m_tracker.awaited(), nextLookAtUser(), untold ? std::optional(*untold + kLongestUntold) : untold})
        if (other && (!first || *other < *first))
            first = other;
    return first;
}

std::optional<Instant> TimerControl::nextLookAtUser() const {
    const Instant now = m_services.activity.clock.instant();
    if (!m_services.defaults.boolForKey(kEnableIdleDetection))
        return m_tracker.isIdle() ? std::optional(now) : std::nullopt;
    if (m_tracker.isIdle())
        return m_services.idleTime.tellsOfInput() ? std::nullopt : std::optional(now);
    return m_services.idleTime.canReachMinutesAt(m_services.defaults.integerForKey(kMinutesUntilIdle));
}

void TimerControl::refreshDisplay() {
    m_display.refreshTimeSum();
    m_display.updateMenus();
}

bool TimerControl::isIdle() {
    if (!m_services.defaults.boolForKey(kEnableIdleDetection))
        return false;
    return m_services.idleTime.hasReachedMinutes(m_services.defaults.integerForKey(kMinutesUntilIdle));
}

void TimerControl::destroyComputeTimer() {
    m_tracker.timeActivator().destroyComputeTimer();
}

void TimerControl::recreateComputeTimer() {
    m_tracker.timeActivator().createComputeTimerForController(*this);
}

bool TimerControl::computeTimerIsValid() const {
    return m_tracker.timeActivator().computeTimerIsValid();
}

void TimerControl::registerForSystemSleep(PowerEvents& power) {
    if (m_sleeps)
        return;
    if (!power.tellsOfSleep()) {
        m_services.store.log.print(QStringLiteral("IORegisterForSystemPower failed"));
        return;
    }
    m_sleeps = power.observe({.aboutToSleep = [this] { stopTimerWithCondition(); },
                              .woke = [this] { conditionallyStartTimer(); }});
}

void TimerControl::stopTimerWithCondition() {
    if (!isRunning())
        return;
    m_wasRunning = true;
    halt();
}

void TimerControl::conditionallyStartTimer() {
    if (!m_wasRunning)
        return;
    m_wasRunning = false;
    m_services.idleTime.noteWakeUp();
    m_tracker.awakeFromSleep();
    recreateComputeTimer();
    startTimer();
}

void TimerControl::sessionDidResignActive() {
    destroyComputeTimer();
    m_save();
}

void TimerControl::sessionDidBecomeActive() {
    // Only if it runs: a paused timer would be shown as running.
    if (isRunning())
        recreateComputeTimer();
}

void TimerControl::willPowerOff() {
    if (computeTimerIsValid()) {
        m_services.defaults.setObject(kStartTicklogOnNextLaunch, true);
        m_services.defaults.synchronize();
    }
    m_tracker.waitNoLonger();
    m_save();
    destroyComputeTimer();
}

void TimerControl::ticklogHeartbeat() {
    if (m_wasRunning) {
        // The message that the machine woke up was lost.
        conditionallyStartTimer();
        return;
    }
    if (!isRunning() && !m_services.defaults.boolForKey(kTKWasTimerRunning))
        return;
    if (computeTimerIsValid())
        return;
    if (!isRunning())
        setToRun();
    forceStartTimer();
}
