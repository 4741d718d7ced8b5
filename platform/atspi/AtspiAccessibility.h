// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Accessibility.h"
#include "platform/atspi/AtspiLink.h"
#include "platform/atspi/TrustNotice.h"
#include "platform/bus/BusService.h"

// What programs tell assistive programs over AT-SPI. Trust is the desktop's own switch, org.a11y.Status
// IsEnabled. Does not look at programs before it is first asked about one, so asking a desktop only for trust
// costs nothing. All arguments must outlive it; observers may outlive it and are silent then.
class AtspiAccessibility : public Accessibility {
public:
    // How often an observed program is asked for the title of its main window, because Qt programs do not
    // report changes.
    static constexpr std::chrono::seconds kTitlePace{1};

    AtspiAccessibility(Bus& sessionBus, RunLoop& runLoop, SystemLog& log,
                       std::chrono::milliseconds patience = AtspiApplication::kPatience);
    ~AtspiAccessibility() override;

    bool isProcessTrusted() const override { return m_isEnabled || m_isGranted; }

    // An administrator trusts this program in every session: it turns the switch on by itself instead of
    // waiting for the user.
    void grantTrust();

    WindowElement applicationElement(std::int64_t processIdentifier) override;
    std::optional<WindowElement> mainWindow(const WindowElement& application) override;
    std::optional<QString> title(const WindowElement& element) override;
    // Null only while there is no accessibility bus: a program may begin to describe itself at any time.
    std::unique_ptr<AccessibilityObserver> makeObserver(std::int64_t processIdentifier,
                                                        std::function<void()> callback) override;
    // Turns the desktop's switch on, because hardly any desktop has settings where the user could.
    void openPreferences() override;

    bool canPromptForTrust() const override { return true; }

    // A notice with a button that turns the switch on.
    void promptForTrust() override { m_notice.show(); }

    // Starts the service that has the switch.
    void sendTrustWarning() override;
    QString describe() const override;

private:
    struct Watcher {
        std::int64_t processIdentifier;
        std::function<void(AtspiApplication::Change)> told;
    };
    class Observer;
    using Watchers = Listeners<Watcher>;

    void followPresence();
    void setEnabled(const QVariant& value);
    // Begins to look at programs.
    void begin();
    void tell(std::int64_t processIdentifier, AtspiApplication::Change change);
    void rereadObserved();
    void startRereading();

    // Null for a process that does not describe itself.
    AtspiApplication* application(std::int64_t processIdentifier) const;

    Bus& m_sessionBus;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    std::chrono::milliseconds m_patience;
    BusService m_launcher;
    TrustNotice m_notice;
    bool m_isEnabled = false;
    bool m_isGranted = false;
    // Absent until programs are looked at.
    std::unique_ptr<AtspiLink> m_link;
    QExplicitlySharedDataPointer<Watchers> m_watchers;
    std::unique_ptr<RunLoopTimer> m_rereading;
    std::unique_ptr<BusSignal> m_statusChanged;
    Subscription m_presence;
    // Set to null at the end, for observers that outlive this object.
    std::shared_ptr<AtspiAccessibility*> m_self;
};
