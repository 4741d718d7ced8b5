// SPDX-License-Identifier: MIT
#include "interface/outline/TimeTreeOrder.h"

#include <algorithm>
#include <numeric>

namespace {

int compareTimes(const TimeStoreItem& a, const TimeStoreItem& b) {
    return a.activeTimeString().compare(b.activeTimeString());
}

template<class IsBefore>
std::vector<int> sortedBy(std::size_t count, const IsBefore& isBefore) {
    std::vector<int> places(count);
    std::iota(places.begin(), places.end(), 0);
    std::ranges::stable_sort(places, isBefore);
    return places;
}

} // namespace

TimeTreeOrder::TimeTreeOrder() {
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

void TimeTreeOrder::set(By primary, Qt::SortOrder order) {
    m_primary = primary;
    m_order = order;
}

int TimeTreeOrder::compareNames(const TimeStoreItem& a, const TimeStoreItem& b) const {
    return m_collator.compare(a.sortName(), b.sortName());
}

bool TimeTreeOrder::isBefore(const TimeStoreItem& a, const TimeStoreItem& b) const {
    const bool byName = m_primary == By::Name;
    if (const int first = byName ? compareNames(a, b) : compareTimes(a, b))
        return directed(first) < 0;
    return (byName ? compareTimes(a, b) : compareNames(a, b)) < 0;
}

std::vector<int> TimeTreeOrder::sortedPlaces(const std::vector<const TimeStoreItem*>& items) const {
    return m_primary == By::Name ? sortedByName(items) : sortedByTime(items);
}

std::vector<int> TimeTreeOrder::sortedByName(const std::vector<const TimeStoreItem*>& items) const {
    std::vector<QCollatorSortKey> keys;
    keys.reserve(items.size());
    for (const TimeStoreItem* item : items)
        keys.push_back(m_collator.sortKey(item->sortName()));
    return sortedBy(items.size(), [&](int a, int b) {
        if (const int first = keys[std::size_t(a)].compare(keys[std::size_t(b)]))
            return directed(first) < 0;
        // Rare: two timers with the same name, for instance one of them frozen.
        return compareTimes(*items[std::size_t(a)], *items[std::size_t(b)]) < 0;
    });
}

std::vector<int> TimeTreeOrder::sortedByTime(const std::vector<const TimeStoreItem*>& items) const {
    std::vector<QString> times;
    times.reserve(items.size());
    for (const TimeStoreItem* item : items)
        times.push_back(item->activeTimeString());
    return sortedBy(items.size(), [&](int a, int b) {
        if (const int first = times[std::size_t(a)].compare(times[std::size_t(b)]))
            return directed(first) < 0;
        return compareNames(*items[std::size_t(a)], *items[std::size_t(b)]) < 0;
    });
}
