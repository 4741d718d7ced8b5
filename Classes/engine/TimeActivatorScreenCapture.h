// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Ticks.h"
#include "Classes/engine/TimeActivator.h"
#include "Classes/engine/UndecidedTime.h"

// Follows the front window through the window list, and drives the tick. It polls for as long as it exists, as Ticks
// says; while a controller is attached, each poll ends with the controller's computeTime().
// It takes no picture of the screen. While a new window may still say which program it belongs to, the time waits, for
// as long as the desktop says.
class TimeActivatorScreenCapture : public TimeActivator {
public:
    TimeActivatorScreenCapture(ActivityListener& tracker, ActivityServices& services);

    // One poll: looks which application is in front, and ticks.
    void fastUpdateWindowName();
    // Finds the front window of a process and notices a change of its title. Without a process there is no
    // window.
    void fastUpdateWindowNameForPID(std::optional<std::int64_t> processIdentifier);

    // kPrivateName if the program must not be known.
    std::optional<QString> buildAppNameForDictionary(const std::optional<ApplicationRecord>& record) override;
    std::optional<ApplicationRecord> appDidChange() override;
    void computeInfoWithAppDict(const std::optional<ApplicationRecord>& record) override;
    Period endPeriod(const std::optional<Instant>& at = {}) override;
    void waitNoLonger() override;
    void mainWindowDidChange() override;
    void resetObservations() override { restartPeriod(); }
    std::optional<QString> windowTitle() const override { return m_windowUpdatingName; }
    void createComputeTimerForController(ComputeTarget& controller) override {
        m_isFirstTickDue = m_isFirstTickDue || !m_updateController;
        m_updateController = &controller;
    }
    void destroyComputeTimer() override { m_updateController = nullptr; }
    bool computeTimerIsValid() const override { return m_updateController != nullptr; }
    void creditMissedTicks() override { m_ticks.creditMissed(); }
    bool isAXEnabled() override { return true; }
    bool trackDocumentTiming() const override { return true; }

    // When it polls.
    const Ticks& ticks() const { return m_ticks; }
    // The last title seen of the front window, which is what windowTitle() answers.
    const std::optional<QString>& windowUpdatingName() const { return m_windowUpdatingName; }
    // The last entry seen of the front window. The next poll is compared with it.
    const std::optional<WindowListEntry>& lastUpdateWindowDict() const { return m_lastUpdateWindowDict; }

private:
    std::optional<Instant> neededTick() const;
    bool look();
    void lookAtFront();
    // Whether what is in front may still turn out to be another program.
    bool mayTurnOut() const;
    // Whether the time that passes waits for that.
    bool isWaiting() const { return m_undecided && m_undecided->isInFront(); }
    void followUndecided();
    // The time that has waited belongs to this program.
    void decide(const ApplicationRecord& record);
    // Nothing better has turned out in front.
    void giveUp();
    NamedPeriod periodOf(const ApplicationRecord& record, const UndecidedTime::Piece& piece);
    void setWindowUpdatingName(const std::optional<QString>& title);
    // Null when the application has none.
    const WindowListEntry* frontWindowOf(std::optional<std::int64_t> processIdentifier) const;
    // Absent if not even the program may be known.
    const std::optional<QString>& allowedTitleOf(const WindowListEntry& window);
    const std::optional<QString>& allowedTitle(const QString& program, const QString& told);

    std::optional<QString> m_windowUpdatingName;
    // The document in that title. Kept, because every tick asks for it and the title seldom changes.
    std::optional<QString> m_documentName;
    std::optional<WindowListEntry> m_lastUpdateWindowDict;
    // A title as the desktop told it, its program, and what the rules leave of it. Kept, so that the rules
    // are asked only when one of them changes.
    struct Gate {
        QString told;
        QString program;
        int reading = -1;
        std::optional<QString> allowed;
    };
    Gate m_gate;
    // What has passed with an undecided program in front.
    std::optional<UndecidedTime> m_undecided;
    // Not owned. Set while there is a compute timer.
    ComputeTarget* m_updateController = nullptr;
    // There was none until now: no tick has missed what passed meanwhile.
    bool m_isFirstTickDue = false;
    Ticks m_ticks;
};
