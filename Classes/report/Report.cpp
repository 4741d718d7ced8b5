// SPDX-License-Identifier: MIT
#include "Classes/report/Report.h"

#include "Classes/common/ShownNames.h"

#include <QJsonArray>
#include <QTimeZone>

#include <algorithm>

namespace {

constexpr qint64 kMinute = 60'000;
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = 24 * kHour;
// 1 January 1970 was a Thursday, and weeks begin on Monday.
constexpr qint64 kFirstMonday = 3;

qint64 floorOf(qint64 number, qint64 unit) {
    return number >= 0 ? number / unit : -((-number + unit - 1) / unit);
}

QDate dateOf(qint64 day) {
    return QDate(1970, 1, 1).addDays(day);
}

qint64 localStart(const RecordedStretch& stretch) {
    return stretch.start + stretch.offset * kMinute;
}

QString isoTime(qint64 moment, int offset) {
    return QDateTime::fromMSecsSinceEpoch(moment, QTimeZone(offset * 60)).toString(Qt::ISODateWithMs);
}

QString wordFor(RecordedStretch::Presence presence) {
    switch (presence) {
    case RecordedStretch::Presence::Idle:
        return QStringLiteral("idle");
    case RecordedStretch::Presence::ByHand:
        return QStringLiteral("byhand");
    default:
        return QStringLiteral("work");
    }
}

qint64 stepOf(const std::vector<ReportKey>& keys) {
    if (std::ranges::count(keys, ReportKey::Hour) > 0)
        return kHour;
    const bool isByDays =
        std::ranges::any_of(keys, [](ReportKey key) { return isOfTime(key) && key != ReportKey::Stretch; });
    return isByDays ? kDay : 0;
}

} // namespace

qint64 Report::Texts::numberOf(const QString& text) {
    const auto known = m_numbers.constFind(text);
    if (known != m_numbers.constEnd())
        return *known;
    m_texts << text;
    return *m_numbers.insert(text, m_texts.size() - 1);
}

Report::Report(const ReportRequest& request, const ReportNames& names, int dayBegins)
    : m_request(request)
    , m_names(names)
    , m_dayBegins(dayBegins * kHour)
    , m_from(request.from.toMSecsSinceEpoch())
    , m_to(request.to.toMSecsSinceEpoch())
    , m_step(stepOf(request.keys)) {}

void Report::add(const RecordedStretch& stretch) {
    RecordedStretch piece = stretch;
    piece.start = std::max(stretch.start, m_from);
    piece.length = std::min(stretch.end(), m_to) - piece.start;
    if (piece.length <= 0 || !isWanted(piece))
        return;
    if (m_request.keys.front() == ReportKey::Stretch)
        addAlone(piece);
    else
        addPieces(piece);
}

void Report::addDay(QDate day, const RecordedStretch& sum) {
    if (!isWanted(sum))
        return;
    RecordedStretch piece = sum;
    // Any moment of that day serves.
    piece.offset = 0;
    piece.start = QDate(1970, 1, 1).daysTo(day) * kDay + m_dayBegins;
    addSums(piece);
}

QDate Report::dayOf(const RecordedStretch& stretch, int dayBegins) {
    return dateOf(floorOf(localStart(stretch) - dayBegins * kHour, kDay));
}

bool Report::isWanted(const RecordedStretch& stretch) {
    return isWanted(stretch.presence) && program(stretch.program).isShown &&
           (!m_request.project || belonging(stretch).isWanted) &&
           (program(stretch.program).isFound || title(stretch.title).isFound);
}

bool Report::isWanted(RecordedStretch::Presence presence) const {
    const bool isIdle = presence == RecordedStretch::Presence::Idle;
    return m_request.presence == ReportPresence::All ||
           isIdle == (m_request.presence == ReportPresence::Idle);
}

bool Report::isFound(const QString& text) const {
    return m_request.search.isEmpty() || text.contains(m_request.search, Qt::CaseInsensitive);
}

const Report::Program& Report::program(qint64 number) {
    const auto known = m_programs.constFind(number);
    if (known != m_programs.constEnd())
        return *known;
    const auto name = m_names.program(number);
    const bool isShown = name && (!m_request.program || *name == *m_request.program);
    const bool isFound = ShownNames::contains(name.value_or(QString()), m_request.search);
    Program program{isShown, isFound, m_texts.numberOf(name.value_or(QString())), {}};
    for (const QString& category : m_names.categoriesOf(number))
        program.categories.push_back(m_texts.numberOf(category));
    if (program.categories.empty())
        program.categories.push_back(m_texts.numberOf(kNoCategory));
    return *m_programs.insert(number, program);
}

const Report::Title& Report::title(qint64 number) {
    const auto known = m_titles.constFind(number);
    if (known != m_titles.constEnd())
        return *known;
    const QString text = m_names.title(number);
    return *m_titles.insert(number, {isFound(text), m_texts.numberOf(text)});
}

bool Report::needsTitles() const {
    const bool isByProject =
        m_request.project || std::ranges::find(m_request.keys, ReportKey::Project) != m_request.keys.end();
    return isByProject && m_names.belonging() == ReportNames::Belonging::Title;
}

const Report::Belonging& Report::belonging(const RecordedStretch& stretch) {
    Codes key;
    key.numbers[0] = stretch.timer;
    if (m_names.belonging() >= ReportNames::Belonging::Program)
        key.numbers[1] = stretch.program;
    if (m_names.belonging() >= ReportNames::Belonging::Title)
        key.numbers[2] = stretch.title;
    const auto known = m_belongings.constFind(key);
    if (known != m_belongings.constEnd())
        return *known;
    const QStringList projects = m_names.projectsOf(stretch.timer, stretch.program, stretch.title);
    Belonging belonging{true, projects, {}, m_names.placesOf(stretch.timer, stretch.program, stretch.title)};
    if (belonging.places.isEmpty())
        belonging.places = {-1};
    if (m_request.project)
        belonging.isWanted =
            projects.contains(*m_request.project) || (projects.isEmpty() && *m_request.project == kNoProject);
    for (const QString& project : projects.isEmpty() ? QStringList(kNoProject) : projects)
        // If one project was asked for, the stretch's other projects are left out.
        if (!m_request.project || project == *m_request.project)
            belonging.projects.push_back(m_texts.numberOf(project));
    return *m_belongings.insert(key, belonging);
}

void Report::addAlone(const RecordedStretch& stretch) {
    m_alone.push_back({stretch.start, stretch.length, stretch.offset, stretch.presence,
                       program(stretch.program).name, title(stretch.title).text, belonging(stretch).names});
}

bool Report::Alone::goesOnIn(const Alone& next) const {
    return end() == next.start && offset == next.offset && presence == next.presence &&
           program == next.program && title == next.title && projects == next.projects;
}

// In order of time.
std::vector<Report::Alone> Report::joined() const {
    std::vector<Alone> stretches = m_alone;
    std::ranges::stable_sort(stretches, std::ranges::less(), &Alone::start);
    std::vector<Alone> whole;
    for (const Alone& stretch : stretches)
        if (!whole.empty() && whole.back().goesOnIn(stretch))
            whole.back().length += stretch.length;
        else
            whole.push_back(stretch);
    return whole;
}

ReportLine Report::lineOf(const Alone& stretch) const {
    return {{isoTime(stretch.start, stretch.offset), isoTime(stretch.end(), stretch.offset),
             m_texts[stretch.program], m_texts[stretch.title], QJsonArray::fromStringList(stretch.projects),
             wordFor(stretch.presence)},
            stretch.length,
            stretch.start};
}

void Report::addPieces(const RecordedStretch& stretch) {
    if (m_step == 0)
        return addSums(stretch);
    RecordedStretch piece = stretch;
    while (piece.start < stretch.end()) {
        const qint64 local = localStart(piece) - m_dayBegins;
        const qint64 left = (floorOf(local, m_step) + 1) * m_step - local;
        piece.length = std::min(left, stretch.end() - piece.start);
        addSums(piece);
        piece.start += piece.length;
    }
}

void Report::addSums(const RecordedStretch& piece) {
    Codes codes;
    addSum(piece, 0, codes);
    if (std::ranges::count(m_request.keys, ReportKey::Project) > 0)
        for (const qsizetype place : belonging(piece).places)
            m_byPlace[place] += piece.length;
}

// Adds the time once for each project and each category, if these are among the keys.
void Report::addSum(const RecordedStretch& piece, std::size_t key, Codes& codes) {
    if (key == m_request.keys.size()) {
        m_sums[codes] += piece.length;
        return;
    }
    const auto addEach = [&](const std::vector<qint64>& numbers) {
        for (const qint64 number : numbers) {
            codes.numbers[key] = number;
            addSum(piece, key + 1, codes);
        }
    };
    switch (m_request.keys[key]) {
    case ReportKey::App:
        return addEach({program(piece.program).name});
    case ReportKey::Title:
        return addEach({title(piece.title).text});
    case ReportKey::Project:
        return addEach(belonging(piece).projects);
    case ReportKey::Category:
        return addEach(program(piece.program).categories);
    default:
        return addEach({timeCode(m_request.keys[key], piece)});
    }
}

qint64 Report::timeCode(ReportKey key, const RecordedStretch& piece) const {
    const qint64 local = localStart(piece);
    if (key == ReportKey::Hour)
        return floorOf(local, kHour);
    const qint64 day = floorOf(local - m_dayBegins, kDay);
    if (key == ReportKey::Day)
        return day;
    if (key == ReportKey::Week)
        return floorOf(day + kFirstMonday, 7);
    const QDate date = dateOf(day);
    return qint64(date.year()) * 12 + date.month() - 1;
}

QString Report::textOf(ReportKey key, qint64 code) const {
    switch (key) {
    case ReportKey::Day:
        return dateOf(code).toString(Qt::ISODate);
    case ReportKey::Week: {
        int year = 0;
        const int week = dateOf(code * 7 - kFirstMonday).weekNumber(&year);
        return QStringLiteral("%1-W%2").arg(year).arg(week, 2, 10, QLatin1Char('0'));
    }
    case ReportKey::Month:
        return QStringLiteral("%1-%2").arg(code / 12).arg(code % 12 + 1, 2, 10, QLatin1Char('0'));
    case ReportKey::Hour:
        return dateOf(floorOf(code, 24)).toString(Qt::ISODate) +
               QStringLiteral("T%1").arg(code - floorOf(code, 24) * 24, 2, 10, QLatin1Char('0'));
    default:
        return m_texts[code];
    }
}

QStringList Report::heads() const {
    if (m_request.keys.front() == ReportKey::Stretch)
        return {QStringLiteral("start"), QStringLiteral("end"),     QStringLiteral("app"),
                QStringLiteral("title"), QStringLiteral("project"), QStringLiteral("presence")};
    QStringList heads;
    for (const ReportKey key : m_request.keys)
        heads << ::wordFor(key);
    return heads;
}

std::vector<ReportLine> Report::lines() const {
    std::vector<ReportLine> lines;
    if (m_request.keys.front() == ReportKey::Stretch) {
        for (const Alone& stretch : joined())
            lines.push_back(lineOf(stretch));
        return lines;
    }
    struct Sum {
        Codes codes;
        std::vector<qint64> times;
        ReportLine line;
    };
    std::vector<Sum> sums;
    sums.reserve(m_sums.size());
    for (auto each = m_sums.begin(); each != m_sums.end(); ++each) {
        Sum sum{each.key(), {}, {{}, *each}};
        for (std::size_t i = 0; i < m_request.keys.size(); ++i) {
            sum.line.cells.emplace_back(textOf(m_request.keys[i], sum.codes.numbers[i]));
            if (isOfTime(m_request.keys[i]))
                sum.times.push_back(sum.codes.numbers[i]);
        }
        sums.push_back(std::move(sum));
    }
    std::ranges::sort(sums, [](const Sum& a, const Sum& b) {
        if (a.times != b.times)
            return a.times < b.times;
        if (a.line.milliseconds != b.line.milliseconds)
            return a.line.milliseconds > b.line.milliseconds;
        return std::ranges::lexicographical_compare(
            a.line.cells, b.line.cells,
            [](const QJsonValue& x, const QJsonValue& y) { return x.toString() < y.toString(); });
    });
    lines.reserve(sums.size());
    for (Sum& sum : sums)
        lines.push_back(std::move(sum.line));
    return lines;
}
