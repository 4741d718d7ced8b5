// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectRecord.h"
#include "Classes/rules/TitlePattern.h"

// How a project recognises its time in the history, beside the timers that are its members: by patterns of
// programs and titles, which apply to the past as well. A pattern whose expression is wrong, or that asks for
// nothing, matches nothing.
class ProjectPatterns {
public:
    // Further patterns of a project are ignored, because files come from anywhere.
    static constexpr std::size_t kMost = 200;

    explicit ProjectPatterns(const ProjectRecord& project);

    bool isEmpty() const { return m_patterns.empty(); }
    // Whether any pattern looks at titles.
    bool lookAtTitles() const;
    bool fit(const QString& program, const SoughtTitle& title) const;

private:
    std::vector<TitlePattern> m_patterns;
};
