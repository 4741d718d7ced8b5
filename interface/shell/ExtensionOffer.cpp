// SPDX-License-Identifier: MIT
#include "interface/shell/ExtensionOffer.h"

#include "platform/foundation/text/LocalizedStrings.h"

namespace {

const QString kWanted = QStringLiteral("wanted");
const QString kDeclined = QStringLiteral("declined");
// By then the main window is shown and the shell is settled.
constexpr std::chrono::seconds kBeforeAsking{1};

using State = ShellExtension::State;

bool canHelp(State state) {
    return state == State::Missing || state == State::Off;
}

Alerts::Question questionFor(State state) {
    const QString reason =
        localized("GNOME Shell tells this only to its extensions. The one that comes with Ticklog "
                  "tells Ticklog, and no other program, which windows are on the screen. Without "
                  "it Ticklog sees only some programs.");
    Alerts::Question question;
    question.message =
        localized("Ticklog needs an extension of GNOME Shell to see which window is in front.");
    question.defaultButton = localized("Not Now");
    question.otherButton = localized("Don't Ask Again");
    if (state == State::Missing) {
        question.informativeText =
            reason + QStringLiteral("\n\n") +
            localized(
                "GNOME Shell finds new extensions at the login: log out and in again once it is installed.");
        question.alternateButton = localized("Install");
    } else {
        question.informativeText = reason;
        question.alternateButton = localized("Switch On");
    }
    return question;
}

} // namespace

ExtensionOffer::ExtensionOffer(const Ground& ground)
    : m_ground(ground) {
    m_ground.extension.observe([this] { consider(); });
    consider();
}

ExtensionOffer::~ExtensionOffer() {
    m_ground.extension.observe({});
    m_ground.showOffer({});
}

void ExtensionOffer::consider() {
    const State state = m_ground.extension.state();
    m_ground.showOffer(canHelp(state) ? [this] { offer(); } : std::function<void()>());
    if (state == State::On && isDecision(kWanted))
        // If the user disables it later, that is meant.
        decide(QString());
    else if (state == State::Off && isDecision(kWanted))
        m_ground.extension.switchOn();
    else if (canHelp(state))
        askSoon();
    else if (state == State::Refused)
        m_ground.log.log(QStringLiteral("GNOME Shell does not run Ticklog's extension."));
}

void ExtensionOffer::askSoon() {
    if (!m_isAsked && !isDecision(kDeclined))
        m_soon = m_ground.runLoop.scheduleOnce(kBeforeAsking, [this] { ask(); });
}

void ExtensionOffer::ask() {
    if (!m_isAsked && canHelp(m_ground.extension.state()))
        offer();
}

void ExtensionOffer::offer() {
    const State state = m_ground.extension.state();
    m_isAsked = true;
    switch (m_ground.alerts.ask(questionFor(state))) {
    case Alerts::Alternate:
        decide(kWanted);
        fulfil();
        break;
    case Alerts::Other:
        decide(kDeclined);
        break;
    default:
        break;
    }
}

void ExtensionOffer::fulfil() {
    // It may have been installed or enabled while the question was open.
    if (m_ground.extension.state() != State::Missing) {
        consider();
        return;
    }
    const Outcome installed = m_ground.extension.install();
    if (!installed)
        m_ground.alerts.showError(localized("The extension could not be installed."),
                                  installed.failure().text);
}

bool ExtensionOffer::isDecision(const QString& decision) const {
    return m_ground.defaults.object(kTKShellExtension) == PropertyListValue(decision);
}

void ExtensionOffer::decide(const QString& decision) {
    if (decision.isEmpty())
        m_ground.defaults.removeObject(kTKShellExtension);
    else
        m_ground.defaults.setObject(kTKShellExtension, decision);
}
