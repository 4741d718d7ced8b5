// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

#include <QCollator>

#include <vector>

// The order of rows: by one column, and for equal rows by the other, ascending. Names are compared as in the
// user's language, without regard to case. Times are compared as the texts that are shown, so 100:00:00 comes
// before 99:00:00.
class TimeTreeOrder {
public:
    enum class By { Name, Time };

    TimeTreeOrder();

    void set(By primary, Qt::SortOrder order);

    By primary() const { return m_primary; }

    // Whether `a` comes before `b`; false for equal rows.
    bool isBefore(const TimeStoreItem& a, const TimeStoreItem& b) const;
    // The places of `items` in sorted order; equal items keep their order. Much cheaper than many calls of
    // isBefore().
    std::vector<int> sortedPlaces(const std::vector<const TimeStoreItem*>& items) const;

private:
    int compareNames(const TimeStoreItem& a, const TimeStoreItem& b) const;
    std::vector<int> sortedByName(const std::vector<const TimeStoreItem*>& items) const;
    std::vector<int> sortedByTime(const std::vector<const TimeStoreItem*>& items) const;

    // A comparison of the primary column, reversed for descending order.
    int directed(int difference) const { return m_order == Qt::AscendingOrder ? difference : -difference; }

    QCollator m_collator;
    By m_primary = By::Name;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};
