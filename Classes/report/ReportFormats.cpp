// SPDX-License-Identifier: MIT
#include "Classes/report/ReportFormats.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextBoundaryFinder>
#include <QTimeZone>

#include <algorithm>

namespace {

// Characters; wider cells are cut.
constexpr qsizetype kWidestCell = 60;
// Octets in a line of a calendar.
constexpr qsizetype kLongestLine = 75;

// The elements of an array, with "; " between them.
QString textOf(const QJsonValue& cell) {
    if (!cell.isArray())
        return cell.toString();
    QStringList texts;
    for (const QJsonValue& each : cell.toArray())
        texts << each.toString();
    return texts.join(QStringLiteral("; "));
}

QString cutToColumn(const QString& text) {
    if (text.size() <= kWidestCell)
        return text;
    // Between two signs as people see them: many are several characters long.
    QTextBoundaryFinder sign(QTextBoundaryFinder::Grapheme, text);
    sign.setPosition(kWidestCell - 1);
    const qsizetype end = sign.isAtBoundary() ? sign.position() : sign.toPreviousBoundary();
    return text.left(end) + QChar(0x2026);
}

// Without needless digits: 1.5, not 1.500.
QByteArray secondsText(qint64 milliseconds) {
    return QByteArray::number(double(milliseconds) / 1000, 'g', 15);
}

// A line of a calendar, folded between characters.
QByteArray folded(const QString& line) {
    QByteArray result;
    qsizetype length = 0;
    for (qsizetype i = 0; i < line.size();) {
        const qsizetype units = line.at(i).isHighSurrogate() && i + 1 < line.size() ? 2 : 1;
        const QByteArray character = line.mid(i, units).toUtf8();
        if (length + character.size() > kLongestLine) {
            result += "\r\n ";
            length = 1;
        }
        result += character;
        length += character.size();
        i += units;
    }
    return result + "\r\n";
}

QString icsText(QString text) {
    return text.replace(u'\\', QLatin1String("\\\\"))
        .replace(u';', QLatin1String("\\;"))
        .replace(u',', QLatin1String("\\,"))
        .replace(u'\n', QLatin1String("\\n"));
}

QString icsTime(qint64 moment) {
    return QDateTime::fromMSecsSinceEpoch(moment, QTimeZone::utc())
        .toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
}

QByteArray event(const ReportLine& line, qint64 now) {
    const QString app = textOf(line.cells[2]);
    const QString title = textOf(line.cells[3]);
    const QByteArray identity = QCryptographicHash::hash(
        (QString::number(line.start) + app + u'\n' + title).toUtf8(), QCryptographicHash::Sha1);
    QByteArray text = "BEGIN:VEVENT\r\n";
    text += folded(QStringLiteral("UID:%1@ticklog").arg(QString::fromLatin1(identity.toHex())));
    text += folded(QStringLiteral("DTSTAMP:") + icsTime(now));
    text += folded(QStringLiteral("DTSTART:") + icsTime(line.start));
    text += folded(QStringLiteral("DTEND:") + icsTime(line.start + line.milliseconds));
    text += folded(QStringLiteral("SUMMARY:") +
                   icsText(title.isEmpty() ? app : app + QStringLiteral(": ") + title));
    QStringList projects;
    for (const QJsonValue& project : line.cells[4].toArray())
        projects << icsText(project.toString());
    if (!projects.isEmpty())
        text += folded(QStringLiteral("CATEGORIES:") + projects.join(u','));
    return text + "END:VEVENT\r\n";
}

} // namespace

QString ReportFormats::durationText(qint64 milliseconds) {
    const qint64 seconds = (milliseconds + 500) / 1000;
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString ReportFormats::disarmed(const QString& text) {
    static const QString kFormulas = QStringLiteral("=+-@\t\r");
    // Blanks in front may be left out by whoever reads it.
    const auto first =
        std::ranges::find_if(text, [](QChar c) { return !c.isSpace() || kFormulas.contains(c); });
    return first != text.end() && kFormulas.contains(*first) ? u'\'' + text : text;
}

QByteArray ReportFormats::csvCell(const QString& text) {
    QString cell = disarmed(text);
    // Spreadsheets may split at semicolons and tabs as well, and see a formula behind one.
    static const QString kQuoted = QStringLiteral("\",;\t\n\r");
    if (std::ranges::any_of(cell, [](QChar c) { return kQuoted.contains(c); }))
        cell = u'"' + cell.replace(u'"', QLatin1String("\"\"")) + u'"';
    return cell.toUtf8();
}

namespace ReportFormats {

QByteArray table(const Report& report) {
    std::vector<std::vector<QString>> rows(1);
    for (const QString& head : report.heads())
        rows[0].push_back(head);
    rows[0].push_back(QStringLiteral("time"));
    qint64 total = 0;
    for (const ReportLine& line : report.lines()) {
        std::vector<QString> row;
        for (const QJsonValue& cell : line.cells)
            row.push_back(cutToColumn(textOf(cell)));
        row.push_back(durationText(line.milliseconds));
        rows.push_back(std::move(row));
        total += line.milliseconds;
    }
    if (rows.size() == 1)
        return "Nothing was recorded in this time.\n";
    // A timer in two projects, or a program in two categories, is on two lines, so the lines are not added
    // up.
    const QStringList heads = report.heads();
    const bool isSum =
        !heads.contains(QStringLiteral("project")) && !heads.contains(QStringLiteral("category"));
    if (isSum) {
        std::vector<QString>& last = rows.emplace_back(heads.size() + 1);
        last.back() = durationText(total);
    }
    std::vector<qsizetype> widths(heads.size() + 1);
    for (const auto& row : rows)
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    QString text;
    for (const auto& row : rows) {
        for (std::size_t i = 0; i + 1 < row.size(); ++i)
            text += row[i].leftJustified(widths[i]) + QStringLiteral("  ");
        text += row.back().rightJustified(widths.back()) + u'\n';
    }
    return text.toUtf8();
}

QByteArray csv(const Report& report) {
    QByteArray text = (report.heads() << QStringLiteral("seconds")).join(u',').toUtf8() + "\r\n";
    for (const ReportLine& line : report.lines()) {
        for (const QJsonValue& cell : line.cells)
            text += csvCell(textOf(cell)) + ',';
        text += secondsText(line.milliseconds) + "\r\n";
    }
    return text;
}

QByteArray json(const Report& report) {
    const QStringList heads = report.heads();
    QByteArray text = "[";
    for (const ReportLine& line : report.lines()) {
        QJsonObject object;
        for (qsizetype i = 0; i < heads.size(); ++i)
            object.insert(heads[i], line.cells[i]);
        object.insert(QStringLiteral("seconds"), double(line.milliseconds) / 1000);
        text += (text.size() > 1 ? ",\n " : "\n ") + QJsonDocument(object).toJson(QJsonDocument::Compact);
    }
    return text + "\n]\n";
}

QByteArray ics(const Report& report, const QDateTime& now) {
    QByteArray text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Ticklog//ticklog-report//EN\r\n";
    for (const ReportLine& line : report.lines())
        // Calendars count in seconds, and an event must end after it begins.
        if (line.milliseconds >= 1000)
            text += event(line, now.toMSecsSinceEpoch());
    return text + "END:VCALENDAR\r\n";
}

QByteArray text(const Report& report, ReportFormat format, const QDateTime& now) {
    switch (format) {
    case ReportFormat::Csv:
        return csv(report);
    case ReportFormat::Json:
        return json(report);
    case ReportFormat::Ics:
        return ics(report, now);
    default:
        return table(report);
    }
}

} // namespace ReportFormats
