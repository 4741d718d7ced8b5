// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/Alerts.h"
#include "platform/ShellExtension.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

// The user's decision about the extension: "wanted" or "declined". Absent while there is none.
inline const QString kTKShellExtension = QStringLiteral("kTKShellExtension");

// Offers to install the desktop shell's extension if it is missing, and to enable it if it is disabled. Asks
// at most once in a launch, and never again after a no; a user who looks for the offer finds it again. A
// question closes by itself once it no longer applies. Its arguments outlive it.
class ExtensionOffer {
public:
    struct Ground {
        ShellExtension& extension;
        Alerts& alerts;
        UserDefaults& defaults;
        RunLoop& runLoop;
        SystemLog& log;
        // Shows or hides where the user finds the offer again.
        std::function<void(bool isOffered)> showOffer;
    };

    // Follows the extension's state from now on.
    explicit ExtensionOffer(const Ground& ground);
    ~ExtensionOffer();

    // Asks now, because the user has looked for the offer.
    void offer();

private:
    void consider();
    // Closes the question on the screen if it is about what is not so any more; then it has not been asked.
    void withdraw();
    void askSoon();
    void ask();
    void fulfil();
    void switchOn();
    bool isDecision(const QString& decision) const;
    void decide(const QString& decision);

    Ground m_ground;
    bool m_isAsked = false;
    std::unique_ptr<RunLoopTimer> m_soon;
    // While the question is on the screen: what it is about, and what closes it.
    ShellExtension::State m_questioned = ShellExtension::State::Unknown;
    std::function<void()> m_close;
    std::unique_ptr<RunLoopTimer> m_inVain;
    Subscription m_changes;
};
