// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QDateTime>
#include <QStringList>

#include <optional>
#include <vector>

// By what time is added up.
enum class ReportKey : unsigned char { App, Title, Project, Category, Day, Week, Month, Hour, Stretch };
// The key's word on the command line and in the output.
QString wordFor(ReportKey key);
inline bool isOfTime(ReportKey key) {
    return key >= ReportKey::Day;
}

enum class ReportPresence : unsigned char { Work, Idle, All };
enum class ReportFormat : unsigned char { Table, Csv, Json, Ics };

// What ticklog-report is asked for.
struct ReportRequest {
    // Parses the command line without the program's name. "--help" and "--version" were handled before.
    // Fails, with one line that says what is wrong, for anything that is not understood. `now` is in the
    // user's time zone; days begin at the hour `dayBegins`.
    static Result<ReportRequest> parse(const QStringList& arguments, const QDateTime& now, int dayBegins);
    // The usage, for people.
    static QString help();

    // `from` is included, `to` is not.
    QDateTime from;
    QDateTime to;
    // Never empty. If Stretch is in it, it is the only key.
    std::vector<ReportKey> keys{ReportKey::App};
    // Absent: time of all projects and of none.
    std::optional<QString> project;
    // Absent: time of all programs. As the user knows it.
    std::optional<QString> program;
    // Part of the title or the program's name, upper or lower case. Empty matches everything.
    QString search;
    ReportPresence presence = ReportPresence::Work;
    ReportFormat format = ReportFormat::Table;
    // Absent: the user's own history.
    std::optional<QString> file;
};
