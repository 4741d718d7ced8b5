// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"
#include "platform/foundation/values/SystemLog.h"

#include <functional>
#include <optional>
#include <vector>

// One way to get something, and its name in the log.
template<class Source>
struct Candidate {
    QString name;
    // Tries it once: a success means that it works.
    std::function<Result<Source>()> open;
};

// The first candidate that works; absent when none does. For each one that fails, logs the reason and adds
// its failure to `refusals`.
template<class Source>
std::optional<Source> firstThatWorks(const std::vector<Candidate<Source>>& candidates, SystemLog& log,
                                     std::vector<Failure>& refusals) {
    for (const Candidate<Source>& candidate : candidates) {
        Result<Source> opened = candidate.open();
        if (opened)
            return std::move(*opened);
        log.log(candidate.name + QStringLiteral(" is not used: ") + opened.failure().text);
        refusals.push_back(opened.failure());
    }
    return std::nullopt;
}
