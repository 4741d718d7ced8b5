// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"
#include "platform/PowerEvents.h"

// What shows the timer's state. Called by TimerControl alone; it decides nothing.
class TimerDisplay {
public:
    virtual ~TimerDisplay() = default;

    // The start button: which picture and which label (already in the user's language).
    virtual void showToggle(const QString& image, const QString& label) = 0;
    // The picture of the program in the task bar, with or without the badge of a running timer.
    virtual void showRecordingBadge(bool isRecording) = 0;
    virtual void updateMenuIconState() = 0;
    // At every tick.
    virtual void refreshTimeSum() = 0;
    virtual void updateMenus() = 0;
};

// Starts and stops the timer, and brings every tick to the tracker with the verdict whether the user is idle. It is
// stopped, running, or stopped for sleep. Main thread only.
class TimerControl : public ComputeTarget {
public:
    // Writes the main store; called when the timer stops, the session is left and the power goes.
    using Save = std::function<void()>;

    TimerControl(TimeTracker& tracker, TrackerServices& services, TimerDisplay& display, Save save);
    ~TimerControl() override;

    bool isRunning() const { return m_tracker.isRunning(); }
    void toggleCounting();
    void startTimer();
    void stopTimer();
    // Attaches the ticks and shows the timer as running, whatever the tracker says.
    void forceStartTimer();
    void setToRun() { m_tracker.setIsRunning(true); }

    // The tick.
    void computeTime() override;
    // Shows the sum and the menus anew, for whoever has changed the tree. Nothing is credited: a tick might find an absence
    // that was not spent in this tree.
    void refreshDisplay();
    bool isIdle();

    void destroyComputeTimer();
    void recreateComputeTimer();
    bool computeTimerIsValid() const;

    // Hears of sleep and wake from now on.
    void registerForSystemSleep(PowerEvents& power);
    // Before sleep: stops a running timer and remembers that it ran, also for a launch after a battery that went empty.
    void stopTimerWithCondition();
    // After sleep: starts it again if it ran.
    void conditionallyStartTimer();

    // The user's session went to the background, or came back.
    void sessionDidResignActive();
    void sessionDidBecomeActive();
    // Nobody is asked: a running timer is started again at the next launch.
    void willPowerOff();

    // Brings back a timer that should run, every 15 seconds and right after creation.
    void ticklogHeartbeat();

private:
    void halt();
    void handlePowerMessage(PowerMessage message, std::int64_t notification);

    TimeTracker& m_tracker;
    TrackerServices& m_services;
    TimerDisplay& m_display;
    Save m_save;
    // The timer ran when sleep stopped it.
    bool m_wasRunning = false;
    PowerEvents* m_power = nullptr;
    // Zero until registered.
    std::uint32_t m_rootPort = 0;
    std::unique_ptr<RunLoopTimer> m_heartbeat;
    std::unique_ptr<RunLoopTimer> m_firstHeartbeat;
};
