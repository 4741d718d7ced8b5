// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectRecord.h"
#include "Classes/rules/TitlePattern.h"

// By what a project knows its own in the history, beside the timers that are its members: patterns of programs and titles,
// which hold for the past as well. Those whose expression is wrong, and those that ask for nothing, fit nothing.
class ProjectPatterns {
public:
    // What more there is of a project is not looked at: files come from anywhere.
    static constexpr std::size_t kMost = 200;

    explicit ProjectPatterns(const ProjectRecord& project);

    bool isEmpty() const { return m_patterns.empty(); }
    // Whether any asks what a title says.
    bool lookAtTitles() const;
    bool fit(const QString& program, const QString& title) const;

private:
    std::vector<TitlePattern> m_patterns;
};
