// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"

#include <algorithm>

// A session that starts what it is told to, unless it refuses.
class FakeLoginItems : public LoginItems {
public:
    std::vector<LoginEntry> items() const override {
        ++looks;
        return known;
    }

    Outcome setEnabled(const QString& identifier, bool isEnabled) override {
        if (refuses)
            return Failure{Failure::Kind::CannotWrite, QStringLiteral("Read-only file system")};
        std::erase_if(known, [&](const LoginEntry& item) { return item.identifier == identifier; });
        if (isEnabled)
            known.push_back({identifier, true});
        return Done{};
    }

    std::vector<LoginEntry> known;
    bool refuses = false;
    // How often it was asked.
    mutable int looks = 0;
};
