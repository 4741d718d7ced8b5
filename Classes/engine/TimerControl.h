// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"
#include "platform/PowerEvents.h"

// Shows the timer's state. Only TimerControl calls it; it decides nothing.
class TimerDisplay {
public:
    virtual ~TimerDisplay() = default;

    // The start button: its picture, and its label in the user's language.
    virtual void showToggle(const QString& image, const QString& label) = 0;
    // The program's picture in the task bar, with or without the badge of a running timer.
    virtual void showRecordingBadge(bool isRecording) = 0;
    virtual void updateMenuIconState() = 0;
    // Called at every tick.
    virtual void refreshTimeSum() = 0;
    virtual void updateMenus() = 0;
    // When a time that is shown grows by a second, if things stay as they are; absent while none can be seen.
    virtual std::optional<Instant> nextTurn() const { return std::nullopt; }
};

// Starts and stops the timer. At every tick it tells the tracker whether the user is idle. The timer is
// stopped, running, or stopped for sleep. Main thread only.
class TimerControl : public ComputeTarget {
public:
    // Writes the main store. Called when the timer stops, when the session is left and when the machine
    // powers off.
    using Save = std::function<void()>;

    TimerControl(TimeTracker& tracker, TrackerServices& services, TimerDisplay& display, Save save);
    ~TimerControl() override;

    bool isRunning() const { return m_tracker.isRunning(); }
    void toggleCounting();
    void startTimer();
    void stopTimer();
    // Attaches the tick and shows the timer as running, whether the tracker runs or not.
    void forceStartTimer();
    void setToRun() { m_tracker.setIsRunning(true); }

    // One tick.
    void computeTime() override;
    std::optional<Instant> neededTick() const override;
    bool isSeen() const override { return m_display.nextTurn().has_value(); }
    // Shows the sum and the menus anew after the tree has changed. Credits nothing: a tick here could book an
    // absence to timers that have only just been loaded.
    void refreshDisplay();
    bool isIdle();

    void destroyComputeTimer();
    void recreateComputeTimer();
    bool computeTimerIsValid() const;

    // From now on hears of sleep and waking.
    void registerForSystemSleep(PowerEvents& power);
    // Before sleep: stops a running timer and remembers that it ran. A later launch knows it too, should the
    // battery go empty.
    void stopTimerWithCondition();
    // After sleep: starts the timer again if it ran before.
    void conditionallyStartTimer();

    // The user's session went to the background, or came back from it.
    void sessionDidResignActive();
    void sessionDidBecomeActive();
    // The machine powers off. Asks the user nothing; the next launch starts a running timer again.
    void willPowerOff();

    // Restarts a timer that should run and does not. Called every 15 seconds and right after construction.
    void ticklogHeartbeat();

private:
    void halt();
    // When it must be asked whether the user is away, or is back; absent if the desktop tells.
    std::optional<Instant> nextLookAtUser() const;

    TimeTracker& m_tracker;
    TrackerServices& m_services;
    TimerDisplay& m_display;
    Save m_save;
    // The timer ran when the machine went to sleep.
    bool m_wasRunning = false;
    Subscription m_sleeps;
    Subscription m_returns;
    std::unique_ptr<RunLoopTimer> m_heartbeat;
    std::unique_ptr<RunLoopTimer> m_firstHeartbeat;
};
