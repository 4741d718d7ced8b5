// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"
#include "platform/foundation/text/LocalizedStrings.h"

// Inside a sandbox, nothing can be written that the session reads at login.
class SandboxedLoginItems : public LoginItems {
public:
    std::vector<LoginEntry> items() const override { return {}; }
    Outcome setEnabled(const QString&, bool isEnabled) override {
        if (!isEnabled)
            return Done{};
        return Failure{Failure::Kind::Refused,
                       localized("Ticklog runs in a sandbox and cannot change what starts with your session. "
                                 "The desktop’s settings can.")};
    }
};
