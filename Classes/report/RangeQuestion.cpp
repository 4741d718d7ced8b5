// SPDX-License-Identifier: MIT
#include "Classes/report/RangeQuestion.h"

#include "Classes/report/AmendedStretches.h"
#include "Classes/report/Moment.h"
#include "Classes/report/OverlaidTime.h"
#include "Classes/report/RecordedNames.h"
#include "Classes/report/ReportReading.h"

#include <QJsonArray>

#include <map>
#include <set>

namespace {

using Entry = RangeAnswer::Entry;

// Milliseconds.
constexpr qint64 kDay = 86'400'000;

// Reads one file for one question, once for each kind of sum.
class Reading {
public:
    Reading(const RangeQuestion& question, SqliteDatabase& history)
        : m_history(history)
        , m_unwritten(question.unwritten)
        , m_names(history, question.folders, m_unwritten)
        , m_dayBegins(int(history.number("SELECT value FROM settings WHERE name = 'day begins at'"))) {
        m_request.from = beginningOf(question.days.first(), m_dayBegins);
        m_request.to = beginningOf(question.days.last().addDays(1), m_dayBegins);
        if (question.piece) {
            m_request.from = QDateTime::fromMSecsSinceEpoch(question.piece->first);
            m_request.to = QDateTime::fromMSecsSinceEpoch(question.piece->second);
        }
        m_request.search = question.search;
        m_request.project = question.project;
    }

    std::vector<ReportLine> linesBy(const std::vector<ReportKey>& keys,
                                    ReportPresence presence = ReportPresence::Work,
                                    const std::optional<QString>& program = std::nullopt) {
        m_request.keys = keys;
        m_request.presence = presence;
        m_request.program = program;
        Report report(m_request, m_names, m_dayBegins);
        readInto(report, m_history, m_request, m_dayBegins, m_unwritten);
        m_byPlace = report.byPlace();
        return report.lines();
    }

    // By the places of the projects, as the last lines have added them up.
    std::vector<qint64> ofProjects() const {
        std::vector<qint64> lengths;
        for (qsizetype place = 0; place < m_names.projectCount(); ++place)
            lengths.push_back(m_byPlace.value(place));
        return lengths;
    }
    qint64 ofNoProject() const { return m_byPlace.value(-1); }

    qint64 from() const { return m_request.from.toMSecsSinceEpoch(); }
    qint64 to() const { return m_request.to.toMSecsSinceEpoch(); }

    // Stretches, by what people see of them.
    ChosenTimes chosen(const std::vector<ReportLine>& lines) {
        ChosenTimes times;
        std::set<Amendment::Whose> shown;
        for (const ReportLine& line : lines) {
            const Amendment::Piece time{line.start, line.start + line.milliseconds};
            if (!times.isEmpty() && times.pieces.back().to >= time.from)
                times.pieces.back().to = std::max(times.pieces.back().to, time.to);
            else
                times.pieces.push_back(time);
            shown.insert({line.cells[2].toString(), line.cells[3].toString()});
        }
        if (!times.isEmpty())
            times.only = overlaid(m_history, m_unwritten, m_names, times.pieces, shown);
        return times;
    }

    const AmendedStretches& amended() {
        if (!m_amended)
            m_amended = AmendedStretches::in(m_history, m_request.from.toMSecsSinceEpoch(),
                                             m_request.to.toMSecsSinceEpoch(), m_names);
        return *m_amended;
    }

private:
    SqliteDatabase& m_history;
    UnwrittenRows m_unwritten;
    RecordedNames m_names;
    int m_dayBegins;
    ReportRequest m_request;
    std::optional<AmendedStretches> m_amended;
    QHash<qsizetype, qint64> m_byPlace;
};

QString textIn(const ReportLine& line, std::size_t cell) {
    return line.cells[cell].toString();
}

void sortByLength(std::vector<Entry>& entries) {
    std::ranges::stable_sort(entries, std::ranges::greater(), &Entry::length);
}

// The lines' first cell names the entry, the second one its part. A part without a name adds only to the entry.
std::vector<Entry> entriesOf(const std::vector<ReportLine>& lines) {
    std::map<QString, Entry> byName;
    for (const ReportLine& line : lines) {
        Entry& entry = byName[textIn(line, 0)];
        entry.length += line.milliseconds;
        if (line.cells.size() > 1 && !textIn(line, 1).isEmpty())
            entry.parts.push_back({textIn(line, 1), line.milliseconds});
    }
    std::vector<Entry> entries;
    for (auto& [name, entry] : byName) {
        entry.name = name;
        entries.push_back(std::move(entry));
    }
    sortByLength(entries);
    return entries;
}

void markNamed(std::vector<Entry>& titles, const QString& program, const AmendedStretches& amended) {
    for (Entry& title : titles)
        title.isNamedByHand = amended.haveNamed(program, title.name);
}

bool isMeant(const RowChoice& row, const ReportLine& line) {
    const QString program = textIn(line, 2);
    if (!row.isProject)
        return program == row.name && (!row.part || *row.part == textIn(line, 3));
    const QJsonArray projects = line.cells[4].toArray();
    const bool isOfProject = projects.isEmpty() ? row.name == kNoProject : projects.contains(row.name);
    return isOfProject && (!row.part || *row.part == program);
}

std::vector<RangeAnswer::Piece> piecesOf(const std::vector<ReportLine>& lines,
                                         const AmendedStretches& amended) {
    std::vector<RangeAnswer::Piece> pieces;
    pieces.reserve(lines.size());
    for (const ReportLine& line : lines) {
        const QString presence = textIn(line, 5);
        pieces.push_back({line.start,
                          line.milliseconds,
                          textIn(line, 2),
                          textIn(line, 3),
                          {},
                          presence == QLatin1String("idle")     ? RecordedStretch::Presence::Idle
                          : presence == QLatin1String("byhand") ? RecordedStretch::Presence::ByHand
                                                                : RecordedStretch::Presence::Work});
        for (const QJsonValue& project : line.cells[4].toArray())
            pieces.back().projects << project.toString();
        pieces.back().amended = amended.in(line.start, line.start + line.milliseconds);
    }
    return pieces;
}

ReportKey keyOf(CalendarRange::Step step) {
    switch (step) {
    case CalendarRange::Step::Month:
        return ReportKey::Month;
    case CalendarRange::Step::Week:
        return ReportKey::Week;
    default:
        return ReportKey::Day;
    }
}

// "2026-11-20", "2026-W47" or "2026-11".
QDate firstDayOf(const QString& text, ReportKey key) {
    if (key == ReportKey::Day)
        return QDate::fromString(text, Qt::ISODate);
    if (key == ReportKey::Month)
        return QDate(text.left(4).toInt(), text.mid(5).toInt(), 1);
    // The week with 4 January in it is the first.
    const QDate fourth(text.left(4).toInt(), 1, 4);
    return fourth.addDays((text.mid(6).toInt() - 1) * 7 - (fourth.dayOfWeek() - 1));
}

void addBars(std::map<QDate, RangeAnswer::Bar>& bars, std::vector<Entry> RangeAnswer::Bar::*kind,
             ReportKey key, const std::vector<ReportLine>& lines, const std::vector<Entry>& order) {
    std::map<QString, std::size_t> places;
    for (const Entry& entry : order)
        places.emplace(entry.name, places.size());
    for (const ReportLine& line : lines) {
        const QDate first = firstDayOf(textIn(line, 0), key);
        bars[first].first = first;
        (bars[first].*kind).push_back({textIn(line, 1), line.milliseconds});
    }
    for (auto& [first, bar] : bars)
        std::ranges::sort(bar.*kind, std::ranges::less(),
                          [&](const Entry& entry) { return places[entry.name]; });
}

} // namespace

RangeAnswer RangeQuestion::answeredBy(SqliteDatabase& history) const {
    // So that all sums come from one state of the file.
    const SqliteTransaction reading(history);
    Reading range(*this, history);
    RangeAnswer answer;
    answer.programs = entriesOf(hasTitles() ? range.linesBy({ReportKey::App, ReportKey::Title})
                                            : range.linesBy({ReportKey::App}));
    answer.projects = entriesOf(range.linesBy({ReportKey::Project, ReportKey::App}));
    answer.ofProjects = range.ofProjects();
    answer.ofNoProject = range.ofNoProject();
    for (Entry& program : answer.programs) {
        answer.work += program.length;
        markNamed(program.parts, program.name, range.amended());
    }
    if (days.step() == CalendarRange::Step::Stretch) {
        answer.pieces = piecesOf(range.linesBy({ReportKey::Stretch}, ReportPresence::All), range.amended());
        return answer;
    }
    const ReportKey key = keyOf(days.step());
    std::map<QDate, RangeAnswer::Bar> bars;
    addBars(bars, &RangeAnswer::Bar::programs, key, range.linesBy({key, ReportKey::App}), answer.programs);
    addBars(bars, &RangeAnswer::Bar::projects, key, range.linesBy({key, ReportKey::Project}),
            answer.projects);
    for (auto& [first, bar] : bars)
        answer.bars.push_back(std::move(bar));
    return answer;
}

std::vector<RangeAnswer::Entry> RangeQuestion::titlesOf(const QString& program,
                                                        SqliteDatabase& history) const {
    const SqliteTransaction reading(history);
    Reading range(*this, history);
    std::vector<Entry> titles = entriesOf(range.linesBy({ReportKey::Title}, ReportPresence::Work, program));
    std::erase_if(titles, [](const Entry& title) { return title.name.isEmpty(); });
    markNamed(titles, program, range.amended());
    return titles;
}

qint64 RangeQuestion::workIn(SqliteDatabase& history) const {
    const SqliteTransaction reading(history);
    qint64 work = 0;
    for (const ReportLine& line : Reading(*this, history).linesBy({ReportKey::App}))
        work += line.milliseconds;
    return work;
}

qint64 RangeQuestion::freeIn(SqliteDatabase& history) const {
    const SqliteTransaction reading(history);
    Reading range(*this, history);
    qint64 free = 0;
    qint64 from = range.from();
    // In order of time; they may lie over each other.
    for (const ReportLine& line : range.linesBy({ReportKey::Stretch})) {
        free += std::max<qint64>(0, line.start - from);
        from = std::max(from, line.start + line.milliseconds);
    }
    return free + std::max<qint64>(0, range.to() - from);
}

ChosenTimes RangeQuestion::timesOf(const std::vector<RowChoice>& rows, SqliteDatabase& history) const {
    const SqliteTransaction reading(history);
    Reading range(*this, history);
    std::vector<ReportLine> lines = range.linesBy({ReportKey::Stretch});
    if (!rows.empty())
        std::erase_if(lines, [&](const ReportLine& line) {
            return std::ranges::none_of(rows, [&](const RowChoice& row) { return isMeant(row, line); });
        });
    return range.chosen(lines);
}

ChosenTimes RangeQuestion::wholeStretch(qint64 moment, const QString& program, const QString& title,
                                        SqliteDatabase& history) const {
    const SqliteTransaction reading(history);
    RangeQuestion around = *this;
    around.piece = {moment - kDay, moment + kDay};
    Reading range(around, history);
    for (const ReportLine& line : range.linesBy({ReportKey::Stretch}, ReportPresence::All))
        if (line.start <= moment && moment < line.start + line.milliseconds && textIn(line, 2) == program &&
            textIn(line, 3) == title)
            return range.chosen({line});
    return {};
}
