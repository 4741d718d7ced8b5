// SPDX-License-Identifier: MIT
#include "interface/shell/ExtensionOffer.h"

#include "platform/foundation/text/LocalizedStrings.h"

namespace {

const QString kWanted = QStringLiteral("wanted");
const QString kDeclined = QStringLiteral("declined");
// By then the main window is shown and the shell is settled: while it locks the screen, it disables
// extensions first and says that it is locked as soon as the screen is covered.
constexpr std::chrono::seconds kBeforeAsking{2};

using State = ShellExtension::State;

// For what the shell has been told to switch on.
constexpr std::chrono::seconds kUntilInVain{5};

bool isOff(State state) {
    return state == State::Off || state == State::AllOff;
}

bool canHelp(State state) {
    return state == State::Missing || isOff(state);
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
                "GNOME Shell finds new extensions at login: log out and in again once it is installed.");
        question.alternateButton = localized("Install");
    } else if (state == State::AllOff) {
        question.informativeText =
            reason + QStringLiteral("\n\n") +
            localized("GNOME Shell’s switch for all extensions is off. It is turned on as well, and with it "
                      "the other extensions that are chosen there.");
        question.alternateButton = localized("Turn On");
    } else {
        question.informativeText = reason;
        question.alternateButton = localized("Turn On");
    }
    return question;
}

} // namespace

ExtensionOffer::ExtensionOffer(const Ground& ground)
    : m_ground(ground)
    , m_changes(ground.extension.observe([this] { consider(); })) {
    consider();
}

ExtensionOffer::~ExtensionOffer() {
    m_ground.showOffer(false);
}

void ExtensionOffer::consider() {
    withdraw();
    const State state = m_ground.extension.state();
    if (!isOff(state))
        m_inVain.reset();
    m_ground.showOffer(canHelp(state));
    if (state == State::On && isDecision(kWanted))
        // If the user disables it later, that is meant.
        decide(QString());
    else if (state == State::Off && isDecision(kWanted))
        switchOn();
    else if (canHelp(state))
        askSoon();
    else if (state == State::Refused)
        m_ground.log.log(QStringLiteral("GNOME Shell does not run Ticklog's extension."));
}

void ExtensionOffer::withdraw() {
    if (!m_close || m_ground.extension.state() == m_questioned)
        return;
    m_isAsked = false;
    std::exchange(m_close, {})();
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
    Alerts::Question question = questionFor(state);
    bool isOpen = false;
    question.opened = [&](std::function<void()> close) {
        isOpen = m_isAsked = true;
        m_questioned = state;
        m_close = std::move(close);
    };
    const int answer = m_ground.alerts.ask(question);
    if (isOpen)
        m_close = {};
    switch (answer) {
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
    if (m_ground.extension.state() != State::Missing) {
        switchOn();
        return;
    }
    const Outcome installed = m_ground.extension.install();
    if (!installed)
        m_ground.alerts.showError(localized("The extension could not be installed."),
                                  installed.failure().text);
}

void ExtensionOffer::switchOn() {
    m_inVain = m_ground.runLoop.scheduleOnce(kUntilInVain, [this] {
        if (isOff(m_ground.extension.state()))
            m_ground.alerts.showError(
                localized("GNOME Shell has not turned the extension on."),
                localized(
                    "Turn it on in the program “Extensions”, together with the switch for all extensions. If "
                    "you cannot, the administrator of this computer does not allow it."));
    });
    m_ground.extension.switchOn();
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
