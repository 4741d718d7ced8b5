// SPDX-License-Identifier: MIT
#include "interface/preferences/Preferences.h"

#include "interface/mainwindow/TKController.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/text/LocalizedStrings.h"

Preferences::Preferences(TKController& tkController, Platform& platform, Alerts& alerts,
                         std::function<void(PrefWindow&)> didMake, History* history)
    : m_tkController(tkController)
    , m_platform(platform)
    , m_alerts(alerts)
    , m_didMake(std::move(didMake))
    , m_history(history) {
    const MainActions& actions = tkController.window().actions();
    QObject::connect(actions.showPrefWindow, &QAction::triggered, &m_receiver,
                     [this] { made().showPrefWindow(); });
    QObject::connect(actions.editRules, &QAction::triggered, &m_receiver, [this] { made().editRules(); });
}

TKSetupController& Preferences::made() {
    if (!m_setup) {
        m_setup.emplace(m_tkController, m_platform, m_alerts, loginItem(), m_history);
        m_didMake(m_setup->prefWindow());
    }
    return *m_setup;
}

LoginItem Preferences::loginItem() {
    LoginItemControl& control = m_tkController.loginItem();
    return {.isEnabled =
                [&control] {
                    control.loginItemStateChanged();
                    return control.isOn();
                },
            .setEnabled =
                [this, &control](bool isWanted) {
                    if (const Outcome done = control.toggleLoginItem(isWanted); !done)
                        m_alerts.showError(isWanted ? localized("Ticklog cannot be started at login.")
                                                    : localized("Ticklog is still started at login."),
                                           done.failure().text);
                }};
}
