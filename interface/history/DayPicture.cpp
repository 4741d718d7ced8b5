// SPDX-License-Identifier: MIT
#include "interface/history/DayPicture.h"

#include "interface/history/AmendTexts.h"
#include "interface/history/HourTicks.h"
#include "interface/history/PictureTexts.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

constexpr int kMargin = 6;
constexpr int kBetweenLanes = 5;
constexpr int kHighestLane = 56;
constexpr int kSmallestHeight = 110;
constexpr int kNarrowestItem = 3;
// In milliseconds: beside the first work and the last, and what a working day has at the least.
constexpr qint64 kHour = 3600 * 1000;
constexpr qint64 kRoom = kHour / 6;
constexpr qint64 kShortestDay = 4 * kHour;
// What is shorter is a piece that somebody chose.
constexpr double kWholeDay = 22 * kHour;

} // namespace

DayPicture::DayPicture(const PictureColors& colors, QWidget* parent)
    : TimePicture(colors, parent) {
    setObjectName(QStringLiteral("dayPicture"));
    setAccessibleName(localized("The day"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    measureNames();
}

void DayPicture::show(qint64 begin, qint64 end, std::vector<Piece> pieces, qint64 now) {
    const bool isSame = m_view.begin() == double(begin);
    const int current = isSame && currentItem() < int(pieces.size()) ? currentItem() : -1;
    m_pieces = std::move(pieces);
    m_now = now;
    if (isSame)
        m_view.setWhole(begin, end);
    else
        m_view = TimeView(begin, end);
    m_isAsOpened = m_isAsOpened || !isSame;
    if (m_isAsOpened)
        std::apply([this](double from, double to) { m_view.showPiece(from, to); }, workingDay());
    if (!isSame)
        m_drag.reset();
    // Who hears of a choice shows that piece as the whole, or else lets it be marked.
    if (!isSame || m_chosen == std::pair(m_view.begin(), m_view.end()))
        m_chosen.reset();
    m_hovered = -1;
    for (const Lane lane : {Programs, Projects})
        fillLane(lane);
    itemsChanged(current);
}

void DayPicture::setNow(qint64 now) {
    m_now = now;
    update();
}

QStringList DayPicture::namesIn(Lane lane, const Piece& piece) const {
    if (piece.presence == RecordedStretch::Presence::Idle)
        return {};
    if (lane == Programs)
        return {piece.program};
    return piece.projects.isEmpty() ? QStringList(QString()) : piece.projects;
}

void DayPicture::fillLane(Lane lane) {
    LaneContent& content = m_lanes[lane];
    content = {};
    QHash<QStringList, int> numbers;
    for (const Piece& piece : m_pieces) {
        const QStringList names = namesIn(lane, piece);
        auto number = numbers.find(names);
        if (number == numbers.end()) {
            number = numbers.insert(names, int(content.entries.size()));
            content.entries.push_back({names, names.isEmpty()});
        }
        content.spans.push_back({piece.start, piece.end(), *number});
    }
    findColors(content);
}

void DayPicture::findColors(LaneContent& lane) const {
    const auto kind =
        &lane == &m_lanes[Programs] ? PictureColors::Kind::Program : PictureColors::Kind::Project;
    // Who has most of the day chooses first.
    std::vector<qint64> times(lane.entries.size());
    for (const LaneSpan& span : lane.spans)
        times[std::size_t(span.entry)] += span.end - span.start;
    std::vector<std::size_t> order(lane.entries.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::ranges::stable_sort(order, std::ranges::greater(), [&](std::size_t i) { return times[i]; });
    QStringList names;
    for (const std::size_t i : order)
        names += lane.entries[i].names;
    const QList<QColor> found = colors().colors(kind, names, palette());
    qsizetype next = 0;
    for (const std::size_t i : order) {
        LaneEntry& entry = lane.entries[i];
        entry.colors = entry.isIdle ? QList<QColor>{PictureColors::idle(palette())}
                                    : found.sliced(next, entry.names.size());
        next += entry.names.size();
        entry.fills.clear();
        for (const QColor& color : entry.colors)
            entry.fills.push_back(color.rgb());
        entry.edge = PictureColors::outline(entry.colors.front(), palette()).rgb();
    }
    lane.colorOf.clear();
    for (const LaneEntry& entry : lane.entries) {
        const auto same = std::ranges::find(lane.entries, entry.colors, &LaneEntry::colors);
        lane.colorOf.push_back(int(same - lane.entries.begin()));
    }
}

QColor DayPicture::colorOf(Lane lane, const QString& name) const {
    for (const LaneEntry& entry : m_lanes[lane].entries)
        if (const qsizetype place = entry.names.indexOf(name); place >= 0)
            return entry.colors[place];
    return {};
}

void DayPicture::lookChanged() {
    measureNames();
    for (LaneContent& lane : m_lanes)
        findColors(lane);
}

void DayPicture::zoomIn() {
    m_view.zoom(0.5, (m_view.from() + m_view.to()) / 2);
    viewChanged();
}

void DayPicture::zoomOut() {
    m_view.zoom(2, (m_view.from() + m_view.to()) / 2);
    viewChanged();
}

void DayPicture::showAll() {
    m_view.showAll();
    viewChanged();
}

void DayPicture::showWorkingDay() {
    std::apply([this](double from, double to) { m_view.showPiece(from, to); }, workingDay());
    viewChanged();
    m_isAsOpened = true;
}

std::pair<double, double> DayPicture::workingDay() const {
    const auto isWork = [](const Piece& piece) { return piece.presence != RecordedStretch::Presence::Idle; };
    const auto first = std::ranges::find_if(m_pieces, isWork);
    const std::pair all(m_view.begin(), m_view.end());
    if (first == m_pieces.end() || m_view.end() - m_view.begin() < kWholeDay)
        return all;
    const auto last = std::ranges::find_if(m_pieces.rbegin(), m_pieces.rend(), isWork);
    const qint64 from = HourTicks::fullHour(first->start - kRoom);
    const qint64 to = HourTicks::fullHour(last->end() + kRoom + kHour - 1);
    const double length = std::max(double(to - from), double(kShortestDay));
    // What is added lies ahead, unless the day is over by then.
    const double begin = std::clamp(double(from), all.first, std::max(all.first, all.second - length));
    return {begin, std::min(begin + length, all.second)};
}

void DayPicture::viewChanged() {
    m_isAsOpened = false;
    tellNothing();
    m_hovered = -1;
    stillChanged();
}

QSize DayPicture::sizeHint() const {
    const int lines = fontMetrics().height();
    return {600, std::max(kSmallestHeight + 10, axisHeight() + 2 * (lines * 5 / 2) + 3 * kBetweenLanes)};
}

QSize DayPicture::minimumSizeHint() const {
    const int lines = fontMetrics().height();
    return {nameWidth() + 160, std::max(kSmallestHeight, axisHeight() + 2 * (lines + 8) + 3 * kBetweenLanes)};
}

QString DayPicture::nameOf(Lane lane) const {
    return lane == Programs ? localized("Programs") : localized("Projects");
}

void DayPicture::measureNames() {
    const QFontMetrics metrics = fontMetrics();
    m_nameWidth =
        kMargin + 10 +
        std::max(metrics.horizontalAdvance(nameOf(Programs)), metrics.horizontalAdvance(nameOf(Projects)));
}

int DayPicture::axisHeight() const {
    return fontMetrics().height() + 8;
}

int DayPicture::laneHeight() const {
    return std::min((height() - axisHeight() - 2 * kBetweenLanes) / 2, kHighestLane);
}

QRect DayPicture::chart() const {
    const QRect rect(nameWidth(), 0, std::max(1, width() - nameWidth() - kMargin),
                     axisHeight() + 2 * laneHeight() + kBetweenLanes);
    return isMirrored() ? rect.translated(width() - rect.right() - 1 - rect.left(), 0) : rect;
}

QRect DayPicture::laneRect(Lane lane) const {
    const QRect all = chart();
    const int top = axisHeight() + (lane == Projects ? laneHeight() + kBetweenLanes : 0);
    return {all.left(), top, all.width(), laneHeight()};
}

std::optional<DayPicture::Lane> DayPicture::laneAt(const QPoint& position) const {
    for (const Lane lane : {Programs, Projects})
        if (laneRect(lane).adjusted(-3, 0, 3, 0).contains(position))
            return lane;
    return std::nullopt;
}

double DayPicture::timePerPixel() const {
    return m_view.length() / chart().width();
}

double DayPicture::xOf(double moment) const {
    const QRect rect = chart();
    const double along = (moment - m_view.from()) / timePerPixel();
    return isMirrored() ? rect.left() + rect.width() - along : rect.left() + along;
}

double DayPicture::momentAt(double x) const {
    const QRect rect = chart();
    const double along = isMirrored() ? rect.left() + rect.width() - x : x - rect.left();
    return m_view.from() + along * timePerPixel();
}

void DayPicture::reveal(int item) {
    const Piece& piece = m_pieces[std::size_t(item)];
    const double from = m_view.from();
    m_view.reveal(double(piece.start), double(piece.end()));
    m_isAsOpened = m_isAsOpened && m_view.from() == from;
    stillChanged();
}

QString DayPicture::projectsText(const Piece& piece) const {
    return piece.projects.join(QStringLiteral(", "));
}

QString DayPicture::itemText(int item) const {
    const Piece& piece = m_pieces[std::size_t(item)];
    QStringList parts{PictureTexts::fromTo(piece.start, piece.end())};
    if (piece.presence == RecordedStretch::Presence::Idle)
        parts << localized("Idle");
    else
        parts << piece.program;
    if (!piece.projects.isEmpty())
        parts << localized("Project %@").replace(QLatin1String("%@"), projectsText(piece));
    parts << PictureTexts::lengthInWords(piece.length);
    return parts.join(QStringLiteral(", "));
}

QString DayPicture::itemDetail(int item) const {
    const Piece& piece = m_pieces[std::size_t(item)];
    QStringList details{piece.title, AmendTexts::of(piece)};
    details.removeAll(QString());
    return details.join(QStringLiteral(". "));
}

QRect DayPicture::itemRect(int item) const {
    const Piece& piece = m_pieces[std::size_t(item)];
    const QRect lane = laneRect(m_lane);
    const double one = xOf(double(piece.start));
    const double other = xOf(double(piece.end()));
    int left = int(std::floor(std::min(one, other)));
    int right = int(std::ceil(std::max(one, other)));
    if (right - left < kNarrowestItem) {
        left -= 1;
        right = left + kNarrowestItem;
    }
    return {left, lane.top(), right - left, lane.height()};
}

void DayPicture::choose(int item) {
    const Piece piece = m_pieces[std::size_t(item)];
    if (m_lane == Programs)
        Q_EMIT programChosen(piece.program);
    else if (piece.presence != RecordedStretch::Presence::Idle)
        Q_EMIT projectChosen(piece.projects.isEmpty() ? kNoProject : piece.projects.front());
}
