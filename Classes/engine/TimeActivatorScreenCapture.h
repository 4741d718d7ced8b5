// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeActivator.h"

// Follows the front window through the window list, ten times a second for its whole life, and drives the tick: while
// a controller is attached, each poll ends with the controller's computeTime().
class TimeActivatorScreenCapture : public TimeActivator {
public:
    TimeActivatorScreenCapture(ActivityListener& tracker, ActivityServices& services);

    // Polls for the application in front and ticks.
    void fastUpdateWindowName();
    // Finds the front window of a process and notices when it changed its title. No process has no window.
    void fastUpdateWindowNameForPID(std::optional<std::int64_t> processIdentifier);

    // kPrivateName where nobody's name may be known.
    std::optional<QString> buildAppNameForDictionary(const std::optional<ApplicationRecord>& record) override;
    void computeInfoWithAppDict(const std::optional<ApplicationRecord>& record) override;
    void mainWindowDidChange() override;
    void resetObservations() override { restartPeriod(); }
    std::optional<QString> windowTitle() const override { return m_windowUpdatingName; }
    void createComputeTimerForController(ComputeTarget& controller) override {
        m_updateController = &controller;
    }
    void destroyComputeTimer() override { m_updateController = nullptr; }
    bool computeTimerIsValid() const override { return m_updateController != nullptr; }
    bool isAXEnabled() override { return true; }
    bool trackDocumentTiming() const override { return true; }

    // The title last seen of the front window; absent while the application in front has none.
    const std::optional<QString>& windowUpdatingName() const { return m_windowUpdatingName; }
    // The entry last seen of the front window.
    const std::optional<WindowListEntry>& lastUpdateWindowDict() const { return m_lastUpdateWindowDict; }

private:
    void setWindowUpdatingName(const std::optional<QString>& title);
    // Null when the application has none.
    const WindowListEntry* frontWindowOf(std::optional<std::int64_t> processIdentifier) const;
    // Absent where nobody's name may be known.
    const std::optional<QString>& allowedTitleOf(const WindowListEntry& window);
    const std::optional<QString>& allowedTitle(const QString& program, const QString& told);

    std::optional<QString> m_windowUpdatingName;
    // The document in that title: the tick asks for it every time, the title changes seldom.
    std::optional<QString> m_documentName;
    std::optional<WindowListEntry> m_lastUpdateWindowDict;
    // A title as the desktop tells it, whose it is, and what may be known of it: the rules are asked when one is new.
    struct Gate {
        QString told;
        QString program;
        int reading = -1;
        std::optional<QString> allowed;
    };
    Gate m_gate;
    // Not owned. Its presence is what a valid compute timer means here.
    ComputeTarget* m_updateController = nullptr;
    std::unique_ptr<RunLoopTimer> m_pollTimer;
};
