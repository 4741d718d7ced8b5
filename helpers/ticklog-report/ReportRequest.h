// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QDateTime>
#include <QStringList>

#include <optional>
#include <vector>

// By what time is summed up.
enum class ReportKey : unsigned char { App, Title, Project, Category, Day, Week, Month, Hour, Stretch };
// The word for it on the command line and in what is printed.
QString wordFor(ReportKey key);
inline bool isOfTime(ReportKey key) {
    return key >= ReportKey::Day;
}

enum class ReportPresence : unsigned char { Work, Idle, All };
enum class ReportFormat : unsigned char { Table, Csv, Json, Ics };

// What is wanted of ticklog-report.
struct ReportRequest {
    // Fails with what is wrong, in one line, for anything that is not understood. "help" and "version" have been answered
    // already; without the name of the program. `now` is in the user's zone, days begin at the hour `dayBegins`.
    static Result<ReportRequest> parse(const QStringList& arguments, const QDateTime& now, int dayBegins);
    // For people.
    static QString help();

    // From the first moment, and until just before the second.
    QDateTime from;
    QDateTime to;
    // Never empty; a stretch is the only one or not among them.
    std::vector<ReportKey> keys{ReportKey::App};
    // Absent: whatever it belongs to.
    std::optional<QString> project;
    // Part of the title or the program's name, whatever its case. Empty: everything.
    QString search;
    ReportPresence presence = ReportPresence::Work;
    ReportFormat format = ReportFormat::Table;
    // Absent: the user's own.
    std::optional<QString> file;
};
