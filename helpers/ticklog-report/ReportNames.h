// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

// A stretch as the history has it. Programs, titles and timers are numbers that ReportNames knows.
struct RecordedStretch {
    // Milliseconds since 1970.
    qint64 start;
    // Milliseconds.
    qint64 length;
    // Minutes that the clock on the wall was before that of Greenwich.
    int offset;
    qint64 program;
    qint64 title;
    qint64 timer;
    enum class Presence : unsigned char { Work, Idle, ByHand } presence;

    qint64 end() const { return start + length; }
};

// What the numbers of a stretch stand for.
class ReportNames {
public:
    virtual ~ReportNames() = default;

    // As the user calls it. Absent: left out of everything, by a rule.
    virtual std::optional<QString> program(qint64 number) const = 0;
    virtual QString title(qint64 number) const = 0;
    // What of a stretch decides about its projects: each is asked beside the one before.
    enum class Belonging : unsigned char { Timer, Program, Title };
    virtual Belonging belonging() const { return Belonging::Timer; }
    // The projects that have the timer, or patterns that fit, in their order; empty for none.
    virtual QStringList projectsOf(qint64 timer, qint64 program, qint64 title) const = 0;
    virtual QStringList categoriesOf(qint64 program) const = 0;
};

inline const QString kNoProject = QStringLiteral("No project");
inline const QString kNoCategory = QStringLiteral("No category");
