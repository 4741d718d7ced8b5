// SPDX-License-Identifier: MIT
#include "Classes/engine/Engine.h"

#include "Classes/common/Settings.h"
#include "platform/foundation/text/LocalizedStrings.h"

namespace {

// The defaults must be there before anything reads a setting.
Platform& withRegisteredDefaults(Platform& platform) {
    platform.defaults.registerDefaults(registeredDefaults(platform.folders.applicationSupport));
    return platform;
}

} // namespace

Engine::Engine(Platform& platform, Hooks hooks)
    : m_registry(TKUUIDManager::savePath(withRegisteredDefaults(platform).folders.applicationSupport),
                 platform.runLoop, platform.log)
    , m_idleTime(platform.idleTime, platform.clock, platform.log, std::move(hooks.exit))
    , m_storeServices{m_registry, platform.notifications, platform.runLoop, platform.log, m_trouble}
    , m_activityServices{platform.frontApplication,
                         platform.windowList,
                         platform.accessibility,
                         platform.runLoop,
                         platform.clock,
                         platform.log,
                         &m_titleRules}
    , m_trackerServices{m_storeServices, m_activityServices, platform.defaults,
                        m_idleTime,      platform.sandbox,   std::move(hooks.checkAccessibilityTrust)}
    , m_tracker(m_trackerServices, hooks.makeActivator) {
    m_titleRules.read(platform.defaults.object(kTitleRules));
    m_settings = platform.notifications.observe(kUserDefaultsDidChangeNotification,
                                                [this, &defaults = platform.defaults](const Notification&) {
                                                    m_titleRules.read(defaults.object(kTitleRules));
                                                });
    m_settingsFile = platform.notifications.observe(
        kUserDefaultsFileNotification,
        [this, &defaults = platform.defaults](const Notification&) { tellSettings(defaults); });
    tellSettings(platform.defaults);
    if (platform.defaults.reading() == UserDefaults::Reading::LastGood)
        m_trouble.tell(
            AccountTrouble::Kind::SettingsSetAside,
            AccountTrouble::about(
                localized("“%@” could not be read. Ticklog continues with the last settings that it kept."),
                platform.defaults.path()));
    else if (platform.defaults.reading() == UserDefaults::Reading::Nothing)
        m_trouble.tell(AccountTrouble::Kind::SettingsSetAside,
                       AccountTrouble::setAside(platform.defaults.path()));
}

void Engine::tellSettings(const UserDefaults& defaults) {
    if (defaults.isUnwritten())
        m_trouble.tell(AccountTrouble::Kind::SettingsUnwritten, AccountTrouble::unwritten(defaults.path()));
    else
        m_trouble.end(AccountTrouble::Kind::SettingsUnwritten);
}
