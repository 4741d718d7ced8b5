// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/SystemIdleTime.h"
#include "Classes/TKUUIDManager.h"
#include "Classes/TimeTracker.h"
#include "platform/Platform.h"

// The tracker with all it needs, put together in the order of dependence. The platform must outlive it.
struct TrackingEngine {
    // `exit` ends the process when there is no display at all.
    TrackingEngine(Platform& platform, SystemIdleTime::Exit exit);
    TrackingEngine(const TrackingEngine&) = delete;
    TrackingEngine& operator=(const TrackingEngine&) = delete;

    TKUUIDManager registry;
    TimeStoreServices store;
    ActivityServices activity;
    SystemIdleTime idleTime;
    TrackerServices services;
    TimeTracker tracker;
};
