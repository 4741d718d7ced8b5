// SPDX-License-Identifier: MIT
#include "interface/preferences/Preferences.h"

#include "interface/mainwindow/TKController.h"

Preferences::Preferences(TKController& tkController, Platform& platform, Alerts& alerts,
                         std::function<void(PrefWindow&)> didMake, std::optional<LoginItem> loginItem)
    : m_tkController(tkController)
    , m_platform(platform)
    , m_alerts(alerts)
    , m_didMake(std::move(didMake))
    , m_loginItem(std::move(loginItem)) {
    const MainActions& actions = tkController.window().actions();
    QObject::connect(actions.showPrefWindow, &QAction::triggered, &m_receiver,
                     [this] { made().showPrefWindow(); });
    QObject::connect(actions.editRules, &QAction::triggered, &m_receiver, [this] { made().editRules(); });
}

TKSetupController& Preferences::made() {
    if (!m_setup) {
        m_setup.emplace(m_tkController, m_platform, m_alerts, m_loginItem);
        m_didMake(m_setup->prefWindow());
    }
    return *m_setup;
}
