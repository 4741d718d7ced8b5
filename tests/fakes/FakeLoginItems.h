// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"

#include <algorithm>

// A session that starts what it is told, unless it refuses.
class FakeLoginItems : public LoginItems {
public:
    std::vector<LoginJob> copyAllJobDictionaries() const override {
        ++looks;
        return jobs;
    }

    Outcome setEnabled(const QString& identifier, bool isEnabled) override {
        if (refuses)
            return Failure{Failure::Kind::CannotWrite, QStringLiteral("Read-only file system")};
        std::erase_if(jobs, [&](const LoginJob& job) { return job.label == identifier; });
        if (isEnabled)
            jobs.push_back({identifier, true});
        return Done{};
    }

    std::vector<LoginJob> jobs;
    bool refuses = false;
    // How often it was asked.
    mutable int looks = 0;
};
