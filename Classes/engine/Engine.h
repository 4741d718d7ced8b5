// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/common/AccountTrouble.h"
#include "Classes/engine/SystemIdleTime.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/rules/TitleRules.h"
#include "Classes/store/TKUUIDManager.h"
#include "platform/Platform.h"

// Builds the tracker and what it needs from what the desktop offers. All of it lives as long as the process;
// the platform outlives it.
class Engine {
public:
    struct Hooks {
        // Ends the process when there is no display at all.
        SystemIdleTime::Exit exit;
        // Asks for accessibility trust when a start is refused for want of it.
        std::function<void()> checkAccessibilityTrust;
        // Makes another activity source than the usual one.
        TimeTracker::MakeActivator makeActivator;
    };

    Engine(Platform& platform, Hooks hooks);
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    TimeTracker& tracker() { return m_tracker; }
    const TimeTracker& tracker() const { return m_tracker; }
    TKUUIDManager& registry() { return m_registry; }
    TrackerServices& services() { return m_trackerServices; }
    AccountTrouble& trouble() { return m_trouble; }

private:
    void tellSettings(const UserDefaults& defaults);

    AccountTrouble m_trouble;
    TKUUIDManager m_registry;
    SystemIdleTime m_idleTime;
    TimeStoreServices m_storeServices;
    TitleRules m_titleRules;
    ActivityServices m_activityServices;
    TrackerServices m_trackerServices;
    TimeTracker m_tracker;
    Subscription m_settingsFile;
    Subscription m_settings;
};
