// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TrackingEngine.h"

#include "Classes/Settings.h"

// Before anything reads a setting.
static const Folders& withRegisteredDefaults(Platform& platform) {
    platform.defaults.registerDefaults(registeredDefaults(platform.folders.applicationSupport));
    return platform.folders;
}

TrackingEngine::TrackingEngine(Platform& platform, SystemIdleTime::Exit exit)
    : registry(TKUUIDManager::savePath(withRegisteredDefaults(platform).applicationSupport), platform.runLoop,
               platform.log)
    , store{registry, platform.notifications, platform.runLoop, platform.log}
    , activity{platform.frontApplication, platform.windowList, platform.accessibility,
               platform.runLoop,          platform.clock,      platform.log}
    , idleTime(platform.idleTime, platform.clock, platform.log, std::move(exit))
    , services{store, activity, platform.defaults, idleTime, platform.sandbox, {}}
    , tracker(services) {}
