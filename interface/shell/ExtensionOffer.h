// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/Alerts.h"
#include "platform/ShellExtension.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

// What the user has decided about the extension: "wanted" or "declined". Nothing until they have.
inline const QString kTKShellExtension = QStringLiteral("kTKShellExtension");

// Offers to install the desktop shell's extension where it is missing, and to switch it on where it is off: one question
// a launch at the most, and none any more once the user has said no; whoever looks for it finds it again. What it was
// given outlives it.
class ExtensionOffer {
public:
    struct Ground {
        ShellExtension& extension;
        Alerts& alerts;
        UserDefaults& defaults;
        RunLoop& runLoop;
        SystemLog& log;
        // Shows where the user finds the offer again, and no more when it is empty.
        std::function<void(std::function<void()> offer)> showOffer;
    };

    // Follows the state of the extension from now on.
    explicit ExtensionOffer(const Ground& ground);
    ~ExtensionOffer();

private:
    void consider();
    void askSoon();
    void ask();
    void offer();
    void fulfil();
    bool isDecision(const QString& decision) const;
    void decide(const QString& decision);

    Ground m_ground;
    bool m_isAsked = false;
    std::unique_ptr<RunLoopTimer> m_soon;
};
