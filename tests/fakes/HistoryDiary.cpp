// SPDX-License-Identifier: MIT
#include "tests/fakes/HistoryDiary.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString who(const SqliteQuery& row) {
    const QString title = row.text(1);
    return row.text(0) + (title.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(title)) +
           (row.integer(2) == 2 ? QStringLiteral(" by hand") : QString());
}

QString told(const QString& what, std::int64_t length) {
    return QStringLiteral("%1 %2").arg(what).arg(double(length) / 1000);
}

} // namespace

namespace HistoryDiary {

std::string of(const QString& path) {
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
    QStringList lines;
    QString last;
    std::int64_t end = 0;
    std::int64_t length = 0;
    const auto finish = [&] {
        if (length > 0)
            lines << told(last, length);
        length = 0;
    };
    for (SqliteQuery row(file, "SELECT programs.name, titles.text, presence, start, length FROM stretches "
                               "JOIN programs ON programs.id = program JOIN titles ON titles.id = title "
                               "JOIN timers ON timers.id = timer WHERE NOT deleted ORDER BY start, n");
         row.next();) {
        if (who(row) != last || row.integer(3) != end)
            finish();
        last = who(row);
        length += row.integer(4);
        end = row.integer(3) + row.integer(4);
    }
    finish();
    return lines.join(QStringLiteral(", ")).toStdString();
}

std::string sums(const QString& path) {
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
    QStringList lines;
    for (SqliteQuery row(file, "SELECT programs.name, titles.text, presence, sum(length) FROM days "
                               "JOIN programs ON programs.id = program JOIN titles ON titles.id = title "
                               "JOIN timers ON timers.id = timer WHERE NOT deleted GROUP BY 1, 2, 3");
         row.next();)
        lines << told(who(row), row.integer(3));
    return lines.join(QStringLiteral(", ")).toStdString();
}

QStringList flaws(const QString& path) {
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
    QStringList found;
    SqliteQuery check(file, "PRAGMA integrity_check");
    while (check.next())
        if (check.text(0) != QLatin1String("ok"))
            found << check.text(0);
    const std::pair<const char*, const char*> counts[] = {
        {"a day's sum is another",
         "SELECT count(*) FROM (SELECT CAST(strftime('%Y%m%d', (start + offset * 60000) / 1000 - 3600 * "
         "(SELECT value "
         "FROM settings WHERE name = 'day begins at'), 'unixepoch') AS INTEGER), program, title, timer, "
         "presence, "
         "sum(length) FROM stretches GROUP BY 1, 2, 3, 4, 5 EXCEPT SELECT * FROM days)"},
        {"a day's sum is too many",
         "SELECT (SELECT count(*) FROM days) - (SELECT count(*) FROM (SELECT 1 FROM stretches GROUP BY "
         "strftime('%Y%m%d', (start + offset * 60000) / 1000 - 3600 * (SELECT value FROM settings WHERE name "
         "= 'day "
         "begins at'), 'unixepoch'), program, title, timer, presence))"},
        {"a month's sum is another", "SELECT count(*) FROM (SELECT day / 100, program, timer, presence, "
                                     "sum(length) FROM days GROUP BY 1, 2, 3, 4 "
                                     "EXCEPT SELECT * FROM months)"},
        {"a month's sum is too many", "SELECT (SELECT count(*) FROM months) - (SELECT count(*) FROM (SELECT "
                                      "1 FROM days GROUP BY day / 100, program, "
                                      "timer, presence))"},
        {"a stretch crosses an hour", "SELECT count(*) FROM stretches WHERE (start + offset * 60000) / "
                                      "3600000 <> (start + offset * 60000 + length "
                                      "- 1) / 3600000"},
        {"a stretch has no length", "SELECT count(*) FROM stretches WHERE length <= 0"},
        {"a text is nobody's",
         "SELECT count(*) FROM stretches WHERE program NOT IN (SELECT id FROM programs) OR "
         "title NOT IN (SELECT id FROM titles) OR timer NOT IN (SELECT id FROM timers)"},
        {"something that was amended is nothing's",
         "SELECT count(*) FROM amended LEFT JOIN stretches USING (start, n) WHERE stretches.length IS NULL OR "
         "amended.title NOT IN (SELECT id FROM titles) OR amended.timer NOT IN (SELECT id FROM timers) OR "
         "(amended.program <> 0 AND amended.program NOT IN (SELECT id FROM programs))"},
        {"a project is unknown", "SELECT count(*) FROM timers WHERE length(project) = 8 AND "
                                 "project NOT IN (SELECT identity FROM projects)"},
    };
    for (const auto& [flaw, sql] : counts)
        if (const auto count = file.number(sql); count != 0)
            found << QStringLiteral("%1: %2").arg(QLatin1String(flaw)).arg(count);
    return found;
}

bool holdsText(const QString& path, const QString& text) {
    const QFileInfo info(path);
    const QByteArray bytes = text.toUtf8();
    for (const QFileInfo& entry : info.dir().entryInfoList({info.fileName() + u'*'}, QDir::Files)) {
        QFile file(entry.filePath());
        if (file.open(QFile::ReadOnly) && file.readAll().contains(bytes))
            return true;
    }
    return false;
}

} // namespace HistoryDiary
