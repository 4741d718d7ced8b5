// SPDX-License-Identifier: MIT
#include "interface/history/PeriodPlaces.h"

#include "interface/history/PictureTexts.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace {

using Step = CalendarRange::Step;

constexpr int kAir = 6;
constexpr std::array kDayStrides{1, 2, 5, 10};
constexpr std::array kMonthStrides{1, 2, 3, 6};
constexpr std::array kYearStrides{1, 2, 5, 10, 20, 50};
constexpr int kMostCoarse = 1 + int(kMonthStrides.size() + kYearStrides.size());
// Up to so many days have their weekdays written.
constexpr std::size_t kFewDays = 14;

QString monthName(QDate day) {
    return QLocale().standaloneMonthName(day.month(), QLocale::ShortFormat);
}

QString yearName(QDate day) {
    return QLocale().toString(day, QStringLiteral("yyyy"));
}

} // namespace

PeriodPlaces::PeriodPlaces(const CalendarRange& range)
    : m_step(range.step() == Step::Stretch ? Step::Day : range.step()) {
    for (QDate first = firstOf(range.first()); first <= range.last(); first = after(first))
        m_firsts.push_back(first);
}

QDate PeriodPlaces::firstOf(QDate day) const {
    return m_step == Step::Week    ? day.addDays(1 - day.dayOfWeek())
           : m_step == Step::Month ? QDate(day.year(), day.month(), 1)
                                   : day;
}

QDate PeriodPlaces::after(QDate first) const {
    return m_step == Step::Week    ? first.addDays(7)
           : m_step == Step::Month ? first.addMonths(1)
                                   : first.addDays(1);
}

std::optional<std::size_t> PeriodPlaces::placeOf(QDate day) const {
    const auto place = std::ranges::upper_bound(m_firsts, day);
    if (place == m_firsts.begin() || day >= after(m_firsts.back()))
        return std::nullopt;
    return std::size_t(place - m_firsts.begin()) - 1;
}

std::vector<QString> PeriodPlaces::labels(const QFontMetrics& metrics, double pixels) const {
    for (int coarseness = 0; coarseness <= kMostCoarse; ++coarseness) {
        std::vector<QString> labels(count());
        double free = -1e9;
        bool hasRoom = true;
        for (std::size_t place = 0; place < count() && hasRoom; ++place) {
            labels[place] = labelOf(place, coarseness).value_or(QString());
            if (labels[place].isEmpty())
                continue;
            const double wide = metrics.horizontalAdvance(labels[place]) + kAir;
            const double middle = (double(place) + 0.5) * pixels;
            hasRoom = middle - wide / 2 >= free;
            free = middle + wide / 2;
        }
        if (hasRoom)
            return labels;
    }
    return std::vector<QString>(count());
}

std::optional<QString> PeriodPlaces::labelOf(std::size_t place, int coarseness) const {
    return m_step == Step::Week    ? weekLabel(place, coarseness)
           : m_step == Step::Month ? monthLabel(m_firsts[place], coarseness)
                                   : dayLabel(m_firsts[place], coarseness);
}

std::optional<QString> PeriodPlaces::dayLabel(QDate day, int coarseness) const {
    if (coarseness == 0 && count() <= kFewDays)
        return QLocale().toString(day, QStringLiteral("ddd d"));
    const auto finer = std::size_t(std::max(coarseness - 1, 0));
    if (finer >= kDayStrides.size())
        return day.day() == 1 ? std::optional(monthName(day)) : std::nullopt;
    const int stride = kDayStrides[finer];
    // The last ones of a month would be too close to the next month's first.
    const bool isRegular = (day.day() - 1) % stride == 0 && day.daysInMonth() - day.day() + 1 >= stride;
    if (!isRegular && day.day() != 1)
        return std::nullopt;
    const bool isMonth = day.day() == 1 && m_firsts.front().month() != m_firsts.back().month();
    return isMonth ? PictureTexts::shortDay(day) : QLocale().toString(day.day());
}

std::optional<QString> PeriodPlaces::weekLabel(std::size_t place, int coarseness) const {
    const QDate first = m_firsts[place];
    if (coarseness == 0)
        return PictureTexts::shortDay(first);
    // Where a month begins.
    const QDate last = first.addDays(6);
    if (last.day() > 7)
        return std::nullopt;
    return monthLabel(QDate(last.year(), last.month(), 1), coarseness - 1);
}

std::optional<QString> PeriodPlaces::monthLabel(QDate day, int coarseness) const {
    const bool hasYears = m_firsts.front().year() != m_firsts.back().year();
    if (coarseness < int(kMonthStrides.size())) {
        if ((day.month() - 1) % kMonthStrides[std::size_t(coarseness)] != 0)
            return std::nullopt;
        return day.month() == 1 && hasYears ? yearName(day) : monthName(day);
    }
    const int finer = std::min(coarseness - int(kMonthStrides.size()), int(kYearStrides.size()) - 1);
    if (day.month() != 1 || day.year() % kYearStrides[std::size_t(finer)] != 0)
        return std::nullopt;
    return yearName(day);
}

QString PeriodPlaces::name(std::size_t place) const {
    const QDate first = m_firsts[place];
    const QLocale locale;
    switch (m_step) {
    case Step::Week:
        return localized("Week of %@").replace(QLatin1String("%@"), PictureTexts::shortDay(first));
    case Step::Month:
        return locale.standaloneMonthName(first.month()) + u' ' + yearName(first);
    default:
        return locale.toString(first, QLocale::LongFormat);
    }
}
