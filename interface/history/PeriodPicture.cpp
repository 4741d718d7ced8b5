// SPDX-License-Identifier: MIT
#include "interface/history/PeriodPicture.h"

#include "interface/history/PictureTexts.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QHash>
#include <QPointer>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int kMargin = 6;
constexpr int kSmallestHeight = 150;
constexpr std::size_t kMostInLegend = 8;
constexpr int kWidestBar = 64;
constexpr double kBarShare = 0.76;
constexpr int kWidestLegend = 170;
// Narrower pictures do without the legend, and the tips tell.
constexpr int kNarrowestWithLegend = 360;
constexpr int kRowAir = 2;
constexpr qint64 kMinute = 60 * 1000;
constexpr qint64 kHour = 60 * kMinute;
constexpr std::array<qint64, 17> kSteps{kMinute,      5 * kMinute, 15 * kMinute, 30 * kMinute, kHour,
                                        2 * kHour,    4 * kHour,   8 * kHour,    10 * kHour,   20 * kHour,
                                        40 * kHour,   50 * kHour,  100 * kHour,  200 * kHour,  500 * kHour,
                                        1000 * kHour, 2000 * kHour};

} // namespace

PeriodPicture::PeriodPicture(const PictureColors& colors, QWidget* parent)
    : TimePicture(colors, parent) {
    setObjectName(QStringLiteral("periodPicture"));
    setAccessibleName(localized("The period"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void PeriodPicture::show(const CalendarRange& range, const std::vector<RangeAnswer::Bar>& bars, By by,
                         QDate today) {
    const PeriodPlaces places(range);
    std::optional<Item> current;
    if (places == m_places && by == m_by && currentItem() >= 0)
        current = m_items[std::size_t(currentItem())];
    m_places = places;
    m_by = by;
    m_today = today;
    m_hovered.reset();
    m_hoveredEntry.reset();
    findLegend(bars);
    fillBars(bars);
    findColors();
    m_measures.reset();
    itemsChanged(current ? numberOf(*current) : -1);
    updateGeometry();
}

QString PeriodPicture::LegendEntry::shownName() const {
    return name == kNoProject ? localized("No Project") : name;
}

void PeriodPicture::findLegend(const std::vector<RangeAnswer::Bar>& bars) {
    m_legend.clear();
    QHash<QString, std::size_t> known;
    for (const RangeAnswer::Bar& bar : bars)
        for (const RangeAnswer::Entry& entry : entriesOf(bar)) {
            const auto place = known.find(entry.name);
            if (place != known.end()) {
                m_legend[*place].length += entry.length;
                continue;
            }
            known.insert(entry.name, m_legend.size());
            m_legend.push_back({entry.name, entry.length});
        }
    std::ranges::stable_sort(m_legend, std::ranges::greater(), &LegendEntry::length);
    // A single small one needs no other name.
    if (m_legend.size() <= kMostInLegend + 1)
        return;
    LegendEntry other{.name = localized("Other"), .isOther = true};
    for (std::size_t i = kMostInLegend; i < m_legend.size(); ++i)
        other.length += m_legend[i].length;
    m_legend.resize(kMostInLegend);
    m_legend.push_back(other);
}

void PeriodPicture::fillBars(const std::vector<RangeAnswer::Bar>& bars) {
    m_bars.assign(m_places.count(), {});
    for (std::size_t place = 0; place < m_bars.size(); ++place)
        m_bars[place].first = m_places.first(place);
    QHash<QString, std::size_t> known;
    for (std::size_t i = 0; i < m_legend.size(); ++i)
        if (!m_legend[i].isOther)
            known.insert(m_legend[i].name, i);
    qint64 sum = 0;
    qint64 count = 0;
    for (const RangeAnswer::Bar& given : bars) {
        const auto place = m_places.placeOf(given.first);
        if (!place)
            continue;
        Bar& bar = m_bars[*place];
        std::vector<qint64> lengths(m_legend.size());
        for (const RangeAnswer::Entry& entry : entriesOf(given))
            lengths[known.value(entry.name, m_legend.size() - 1)] += entry.length;
        for (const RangeAnswer::Entry& entry : given.programs)
            bar.length += entry.length;
        for (std::size_t i = 0; i < lengths.size(); ++i)
            if (lengths[i] > 0)
                bar.parts.push_back({i, lengths[i], bar.height()});
        sum += bar.length;
        count += bar.length > 0 ? 1 : 0;
    }
    m_average = count > 0 ? sum / count : 0;
    m_items.clear();
    for (std::size_t place = 0; place < m_bars.size(); ++place) {
        m_items.push_back({place, {}});
        for (std::size_t part = 0; part < m_bars[place].parts.size(); ++part)
            m_items.push_back({place, part});
    }
}

void PeriodPicture::findColors() {
    QStringList names;
    for (const LegendEntry& entry : m_legend)
        if (!entry.isOther)
            names << entry.name;
    const auto kind = m_by == By::Programs ? PictureColors::Kind::Program : PictureColors::Kind::Project;
    const QList<QColor> found = colors().colors(kind, names, palette());
    for (qsizetype i = 0; i < qsizetype(m_legend.size()); ++i) {
        LegendEntry& entry = m_legend[std::size_t(i)];
        entry.color = i < found.size() ? found[i] : PictureColors::other(palette());
        entry.outline = PictureColors::outline(entry.color, palette());
    }
}

void PeriodPicture::lookChanged() {
    findColors();
    m_measures.reset();
}

void PeriodPicture::resizeEvent(QResizeEvent* event) {
    TimePicture::resizeEvent(event);
    m_measures.reset();
}

QColor PeriodPicture::colorOf(const QString& name) const {
    const auto entry = std::ranges::find_if(
        m_legend, [&](const LegendEntry& each) { return !each.isOther && each.name == name; });
    return entry != m_legend.end() ? entry->color : PictureColors::other(palette());
}

QStringList PeriodPicture::legend() const {
    QStringList names;
    for (const LegendEntry& entry : m_legend)
        names << entry.shownName();
    return names;
}

QSize PeriodPicture::sizeHint() const {
    return {600, std::max(minimumSizeHint().height(), kSmallestHeight + 50)};
}

QSize PeriodPicture::minimumSizeHint() const {
    const int rows = int(kMostInLegend + 1) * legendRowHeight() + 2 * kMargin;
    return {240, std::max(kSmallestHeight, rows)};
}

int PeriodPicture::legendRowHeight() const {
    return fontMetrics().height() + kRowAir;
}

int PeriodPicture::axisWidth(qint64 each, qint64 top) const {
    int widest = 0;
    for (qint64 length = 0; length <= top; length += each)
        widest = std::max(widest, fontMetrics().horizontalAdvance(PictureTexts::length(length)));
    return kMargin + widest + 6;
}

int PeriodPicture::averageWidth() const {
    if (m_average <= 0)
        return kMargin;
    const QFontMetrics metrics = fontMetrics();
    return 6 +
           std::max(metrics.horizontalAdvance(localized("Average")),
                    metrics.horizontalAdvance(PictureTexts::length(m_average))) +
           10;
}

int PeriodPicture::legendWidth() const {
    if (width() < kNarrowestWithLegend || m_legend.empty())
        return 0;
    int widest = 0;
    for (const LegendEntry& entry : m_legend)
        widest = std::max(widest, fontMetrics().horizontalAdvance(entry.shownName().left(100)));
    return std::min({widest, kWidestLegend, width() / 4}) + legendRowHeight() + 2 * kMargin;
}

QRect PeriodPicture::mirrored(const QRect& rect) const {
    return isMirrored() ? rect.translated(width() - rect.right() - 1 - rect.left(), 0) : rect;
}

const PeriodPicture::Measures& PeriodPicture::measures() const {
    if (m_measures)
        return *m_measures;
    Measures found{.step = step(), .averageWidth = averageWidth(), .legendWidth = legendWidth()};
    found.top = (highest() + found.step - 1) / found.step * found.step;
    const int left = axisWidth(found.step, found.top);
    const int bottom = fontMetrics().height() + 8;
    const int up = fontMetrics().height() + 2;
    found.plot = {left, up, std::max(1, width() - left - found.averageWidth - found.legendWidth),
                  std::max(1, height() - up - bottom)};
    return m_measures.emplace(found);
}

qint64 PeriodPicture::highest() const {
    qint64 highest = 0;
    for (const Bar& bar : m_bars)
        highest = std::max(highest, bar.height());
    return highest > 0 ? highest : kHour;
}

// The shortest round step whose lines are far enough apart.
qint64 PeriodPicture::step() const {
    const double lines =
        double(std::max(1, height() - 2 * fontMetrics().height() - 12)) / (fontMetrics().height() * 1.7);
    const auto found = std::ranges::find_if(kSteps, [&](qint64 each) {
        return std::ceil(double(highest()) / double(each)) <= std::max(1.0, lines);
    });
    return found != kSteps.end() ? *found : highest();
}

double PeriodPicture::yOf(qint64 length) const {
    const QRect rect = plot();
    return rect.bottom() + 1 - double(length) / double(measures().top) * rect.height();
}

QRect PeriodPicture::placeRect(std::size_t place) const {
    const QRect rect = plot();
    const double each = double(rect.width()) / double(std::max<std::size_t>(1, m_places.count()));
    const int left = rect.left() + int(std::round(double(place) * each));
    const int right = rect.left() + int(std::round(double(place + 1) * each));
    return mirrored({left, rect.top(), std::max(1, right - left), rect.height()});
}

QRect PeriodPicture::placeRect(QDate first) const {
    const auto place = m_places.placeOf(first);
    return place ? placeRect(*place) : QRect();
}

QRect PeriodPicture::partRect(std::size_t place, const Part& part) const {
    const QRect whole = placeRect(place);
    const int wide = std::max(1, std::min(kWidestBar, int(std::round(whole.width() * kBarShare))));
    const int top = int(std::round(yOf(part.below + part.length)));
    const int bottom = int(std::round(yOf(part.below)));
    return {whole.left() + (whole.width() - wide) / 2, top, wide, bottom - top};
}

QRect PeriodPicture::partRect(QDate first, const QString& name) const {
    const auto place = m_places.placeOf(first);
    if (!place)
        return {};
    for (const Part& part : m_bars[*place].parts)
        if (m_legend[part.entry].name == name)
            return partRect(*place, part);
    return {};
}

QRect PeriodPicture::legendRow(std::size_t entry) const {
    const int wide = measures().legendWidth;
    const int rows = int(m_legend.size()) * legendRowHeight();
    const int top = std::max(0, (plot().top() + plot().bottom() + 1 - rows) / 2);
    return mirrored({width() - wide + kMargin, top + int(entry) * legendRowHeight(), wide - 2 * kMargin,
                     legendRowHeight()});
}

QRect PeriodPicture::legendRect(const QString& name) const {
    const auto entry = std::ranges::find(m_legend, name, &LegendEntry::name);
    return entry != m_legend.end() ? legendRow(std::size_t(entry - m_legend.begin())) : QRect();
}

int PeriodPicture::numberOf(const Item& item) const {
    const auto found = std::ranges::find(m_items, item);
    return found != m_items.end() ? int(found - m_items.begin()) : -1;
}

QString PeriodPicture::itemText(int number) const {
    const Item& item = m_items[std::size_t(number)];
    const Bar& bar = m_bars[item.bar];
    if (!item.part)
        return m_places.name(item.bar) + QStringLiteral(": ") + PictureTexts::lengthInWords(bar.length);
    const Part& part = bar.parts[*item.part];
    return QStringList{m_legend[part.entry].shownName(), PictureTexts::lengthInWords(part.length),
                       PictureTexts::share(part.length, bar.length), m_places.name(item.bar)}
        .join(QStringLiteral(", "));
}

QString PeriodPicture::itemDetail(int) const {
    return {};
}

QRect PeriodPicture::itemRect(int number) const {
    const Item& item = m_items[std::size_t(number)];
    if (!item.part)
        return placeRect(item.bar);
    return partRect(item.bar, m_bars[item.bar].parts[*item.part]);
}

void PeriodPicture::choose(int number) {
    const Item item = m_items[std::size_t(number)];
    const Bar& bar = m_bars[item.bar];
    const std::optional<LegendEntry> entry =
        item.part ? std::optional(m_legend[bar.parts[*item.part].entry]) : std::nullopt;
    // Whoever hears of the bar may show another range.
    const QPointer<PeriodPicture> alive(this);
    Q_EMIT barChosen(bar.first);
    if (alive && entry && !entry->isOther)
        Q_EMIT entryChosen(entry->name);
}
