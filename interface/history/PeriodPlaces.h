// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/CalendarRange.h"

#include <QFontMetrics>
#include <QString>

#include <optional>
#include <vector>

// The places of the bars in the picture of a range: one for each of its days, weeks or months. Weeks begin on
// Mondays.
class PeriodPlaces {
public:
    PeriodPlaces() = default;
    explicit PeriodPlaces(const CalendarRange& range);

    std::size_t count() const { return m_firsts.size(); }
    // The first day of a place; of the first place it may lie before the range.
    QDate first(std::size_t place) const { return m_firsts[place]; }
    // Absent for days outside of the range.
    std::optional<std::size_t> placeOf(QDate day) const;

    // What stands below each place if each has this many pixels: as many labels as there is room for, at
    // regular distances, the others empty.
    std::vector<QString> labels(const QFontMetrics& metrics, double pixels) const;
    // "Monday, November 16, 2026", "Week of Nov 16", "November 2026"
    QString name(std::size_t place) const;

    friend bool operator==(const PeriodPlaces&, const PeriodPlaces&) = default;

private:
    QDate firstOf(QDate day) const;
    QDate after(QDate first) const;
    // Finer ones have lower numbers; none is too coarse to have a label.
    std::optional<QString> labelOf(std::size_t place, int coarseness) const;
    std::optional<QString> dayLabel(QDate day, int coarseness) const;
    std::optional<QString> weekLabel(std::size_t place, int coarseness) const;
    std::optional<QString> monthLabel(QDate day, int coarseness) const;

    CalendarRange::Step m_step = CalendarRange::Step::Day;
    std::vector<QDate> m_firsts;
};
