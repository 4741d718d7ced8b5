// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeActivator.h"

// Follows the front window through what applications tell assistive programs. A second source beside the window list, which
// nothing in the program makes: where a desktop tells nothing, AtspiFrontDesktop offers its windows as a list, so that the
// tick is the same everywhere. Kept whole, with its tests, for an engine that is to run without any window list. Without a
// controller's compute timer of its own nothing ticks.
class TimeActivatorUniversalAccess : public TimeActivator {
public:
    TimeActivatorUniversalAccess(ActivityListener& tracker, ActivityServices& services);
    ~TimeActivatorUniversalAccess() override;

    std::optional<QString> buildAppNameForDictionary(const std::optional<ApplicationRecord>& record) override;
    std::optional<ApplicationRecord> appDidChange() override;
    void mainWindowDidChange() override;
    void resetObservations() override { restartPeriod(); }
    void resetNotifications() override;
    std::optional<QString> windowTitle() const override { return m_currentObservation.title; }

private:
    void subscribe(std::int64_t processIdentifier);

    struct Observation {
        std::unique_ptr<AccessibilityObserver> observer;
        // The application in front.
        std::optional<WindowElement> element;
        // Its main window.
        std::optional<WindowElement> windowElement;
        // Absent when the subscription failed, and until the first one.
        std::optional<QString> notification;
        // Of the main window, as it was last told to the tracker.
        std::optional<QString> title;
    };

    Observation m_currentObservation;
};
