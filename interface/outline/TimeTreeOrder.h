// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

#include <QCollator>

#include <vector>

// In which order rows are shown: by one column, and among equals by the other, ascending. Names compare as
// the user's language does, whatever their case. Times compare as the texts they are shown as, so that
// 100:00:00 comes before 99:00:00.
class TimeTreeOrder {
public:
    enum class By { Name, Time };

    TimeTreeOrder();

    void set(By primary, Qt::SortOrder order);

    By primary() const { return m_primary; }

    // Whether `a` belongs before `b`; false for equals.
    bool isBefore(const TimeStoreItem& a, const TimeStoreItem& b) const;
    // The places of `items` in order; equals keep theirs. Much cheaper than isBefore() where there are many.
    std::vector<int> sortedPlaces(const std::vector<const TimeStoreItem*>& items) const;

private:
    int compareNames(const TimeStoreItem& a, const TimeStoreItem& b) const;
    std::vector<int> sortedByName(const std::vector<const TimeStoreItem*>& items) const;
    std::vector<int> sortedByTime(const std::vector<const TimeStoreItem*>& items) const;

    // `difference` of the primary column, turned round where that is wanted.
    int directed(int difference) const { return m_order == Qt::AscendingOrder ? difference : -difference; }

    QCollator m_collator;
    By m_primary = By::Name;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};
