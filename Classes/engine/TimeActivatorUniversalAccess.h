// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeActivator.h"

// Follows the front window through what applications tell assistive programs. A second source with the same
// interface; the program does not choose it. Where a desktop tells nothing, AtspiFrontDesktop offers the same
// facts as a window list, so the tick is the same everywhere. This source has no tick of its own: only a
// controller's compute timer makes it tick.
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
        // Absent when the subscription failed, and before the first one.
        std::optional<QString> notification;
        // The main window's title; absent while nothing is to be credited to a window.
        std::optional<QString> title;
    };

    Observation m_currentObservation;
};
