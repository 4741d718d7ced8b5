// SPDX-License-Identifier: MIT
#include "Classes/Engine.h"

#include "Classes/Settings.h"

namespace {

// Before anything reads a setting.
Platform& withRegisteredDefaults(Platform& platform) {
    platform.defaults.registerDefaults(registeredDefaults(platform.folders.applicationSupport));
    return platform;
}

} // namespace

Engine::Engine(Platform& platform, Hooks hooks)
    : m_registry(TKUUIDManager::savePath(withRegisteredDefaults(platform).folders.applicationSupport),
                 platform.runLoop, platform.log)
    , m_idleTime(platform.idleTime, platform.clock, platform.log, std::move(hooks.exit))
    , m_storeServices{m_registry, platform.notifications, platform.runLoop, platform.log}
    , m_activityServices{platform.frontApplication, platform.windowList, platform.accessibility,
                         platform.runLoop,          platform.clock,      platform.log}
    , m_trackerServices{m_storeServices, m_activityServices, platform.defaults,
                        m_idleTime,      platform.sandbox,   std::move(hooks.checkAccessibilityTrust)}
    , m_tracker(m_trackerServices, hooks.makeActivator) {}
