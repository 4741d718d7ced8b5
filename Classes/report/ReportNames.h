// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

// A stretch from the history. Programs, titles and timers are numbers; ReportNames knows what they mean.
struct RecordedStretch {
    // Milliseconds since 1970.
    qint64 start;
    // Milliseconds.
    qint64 length;
    // How many minutes local time was ahead of UTC.
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

    // The user's own name for it. Absent if a rule leaves it out of everything.
    virtual std::optional<QString> program(qint64 number) const = 0;
    virtual QString title(qint64 number) const = 0;
    // What decides about a stretch's projects. Each value includes those before it.
    enum class Belonging : unsigned char { Timer, Program, Title };
    virtual Belonging belonging() const { return Belonging::Timer; }
    // The projects that have the timer, or have a pattern that matches, in their order; empty for none.
    virtual QStringList projectsOf(qint64 timer, qint64 program, qint64 title) const = 0;
    // The same as places in the list of projects, in ascending order: several projects may have one name.
    virtual QList<qsizetype> placesOf(qint64 /*timer*/, qint64 /*program*/, qint64 /*title*/) const {
        return {};
    }
    virtual QStringList categoriesOf(qint64 program) const = 0;
};

inline const QString kNoProject = QStringLiteral("No project");
inline const QString kNoCategory = QStringLiteral("No category");
