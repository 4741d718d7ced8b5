// SPDX-License-Identifier: MIT
#include "interface/shell/AppAuthorization.h"

#include "Classes/common/Settings.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QPointer>

namespace {

const QString kHelperLabel = QStringLiteral("org.ticklog.TKAXTrusted");

} // namespace

AppAuthorization::AppAuthorization(Platform& platform, Alerts& alerts, Actions actions)
    : m_platform(platform)
    , m_alerts(alerts)
    , m_actions(std::move(actions)) {}

void AppAuthorization::checkAccessibilityTrust() {
    if (m_platform.accessibility.canPromptForTrust() && !m_platform.sandbox.isSandboxed()) {
        m_platform.accessibility.promptForTrust();
        m_platform.accessibility.sendTrustWarning();
        return;
    }
    m_actions.activate();
    const int answer = m_alerts.ask(
        {.message = localized(
             "Ticklog monitors the active time spent in each application. To enable this tracking you "
             "must give Ticklog permission to gather this data from the system."),
         .informativeText =
             localized("Security protections built into OS X prevent monitoring the status of other "
                       "applications without "
                       "user authorization. In order to protect your privacy, this action will authorize "
                       "Ticklog to track "
                       "your applications while maintaining the normal system wide security precautions."),
         .defaultButton = localized("Authorize Ticklog"),
         .alternateButton = localized("Cancel Start"),
         .otherButton = {},
         .whenClosed = Alerts::Alternate});
    if (answer == Alerts::Default)
        makeAppTrustedAndRelaunch();
    else if (answer == Alerts::Other)
        m_actions.openUniversalAccessPreferences();
}

void AppAuthorization::makeAppTrustedAndRelaunch() {
    if (!std::exchange(m_isUnderWay, true))
        installBlessing(false);
}

void AppAuthorization::installBlessing(bool secondAttempt) {
    m_platform.defaults.setObject(kStartTicklogOnNextLaunch, true);
    ServiceManagement& services = m_platform.serviceManagement;
    const std::shared_ptr<ServiceRight> right = services.requestRight();
    if (!right) {
        authFailError(std::nullopt);
        return;
    }
    services.removeService(kHelperLabel, *right);
    services.installService(kHelperLabel, *right,
                            [receiver = QPointer(&m_receiver), this, secondAttempt, right](bool isInstalled) {
                                if (receiver)
                                    installed(isInstalled, secondAttempt, *right);
                            });
}

void AppAuthorization::installed(bool isInstalled, bool secondAttempt, const ServiceRight& right) {
    ServiceManagement& services = m_platform.serviceManagement;
    // A helper of another version may answer all the same; if none does, the connection reports it.
    if (!isInstalled)
        m_platform.log.log(QStringLiteral("Error (null)"));
    if (const auto service = services.findService(kHelperLabel))
        services.startService(*service, right);
    retrust(secondAttempt);
}

bool AppAuthorization::retrust(bool secondAttempt) {
    m_helper = m_platform.serviceManagement.connectToHelper(
        kHelperLabel, [this, secondAttempt](const Failure& error) {
            // A user who has refused is not asked again.
            if (secondAttempt || error.kind == Failure::Kind::Refused)
                authFailError(error);
            else
                installBlessing(true);
        });
    if (!m_helper) {
        m_isUnderWay = false;
        return false;
    }
    m_helper->authorize(m_platform.ownProgram.executable(), [this] { trustedReply(); });
    return true;
}

void AppAuthorization::relaunchApp() {
    m_isUnderWay = false;
    // Now, because the new process may read them before this one would write them.
    m_platform.defaults.synchronize();
    if (const Outcome relaunched = m_platform.ownProgram.relaunch(); !relaunched)
        m_platform.log.log(
            QStringLiteral("Ticklog could not be started anew: %1").arg(relaunched.failure().text));
}

void AppAuthorization::authFailError(const std::optional<Failure>& error) {
    const QString explanation =
        m_platform.accessibility.canPromptForTrust()
            ? localized("Please choose the 'Enable access for assistive devices.' checkbox in the Secuirty > "
                        "Privacy > Accessibility system preferences.")
            : localized("Please choose the 'Enable access for assistive devices.' checkbox in the Universal "
                        "Access system preferences.");
    m_isUnderWay = false;
    m_platform.defaults.setObject(kStartTicklogOnNextLaunch, false);
    m_actions.activate();
    const int answer = m_alerts.ask({.message = error ? error->text : localized("An error was encountered."),
                                     .informativeText = explanation,
                                     .defaultButton = localized("Open Preference Panel"),
                                     .alternateButton = localized("Cancel"),
                                     .otherButton = {},
                                     .whenClosed = Alerts::Alternate});
    if (answer == Alerts::Default)
        m_actions.openUniversalAccessPreferences();
}
