// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectPatterns.h"

#include "platform/foundation/text/CleanText.h"

#include <algorithm>

ProjectPatterns::ProjectPatterns(const ProjectRecord& project) {
    for (const PropertyListValue& entry : project.patterns()) {
        const auto* record = entry.asDictionary();
        if (!record || m_patterns.size() == kMost ||
            record->value(kTitleRuleTitle).toString().size() > kLongestText)
            continue;
        TitlePattern pattern(*record);
        if (!pattern.fitsAll() && pattern.fault().isEmpty())
            m_patterns.push_back(std::move(pattern));
    }
}

bool ProjectPatterns::lookAtTitles() const {
    return std::ranges::any_of(m_patterns, &TitlePattern::looksAtTitle);
}

bool ProjectPatterns::fit(const QString& program, const SoughtTitle& title) const {
    return std::ranges::any_of(m_patterns, [&](const TitlePattern& pattern) {
        return pattern.fit(program, title) == TitlePattern::Fit::Yes;
    });
}
