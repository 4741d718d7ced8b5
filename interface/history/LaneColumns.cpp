// SPDX-License-Identifier: MIT
#include "interface/history/LaneColumns.h"

#include <algorithm>

namespace {

struct Share {
    int number;
    double time;
};

void add(std::vector<Share>& shares, int number, double time) {
    const auto known = std::ranges::find(shares, number, &Share::number);
    if (known != shares.end())
        known->time += time;
    else
        shares.push_back({number, time});
}

// Adds up one column. Keeps its memory from one to the next.
class ColumnSum {
public:
    explicit ColumnSum(const std::vector<int>& colorOf)
        : m_colorOf(colorOf) {}

    void clear() {
        m_entries.clear();
        m_used = 0;
    }

    void add(int entry, double time) {
        ::add(m_entries, entry, time);
        m_used += time;
    }

    LaneColumn column(double width) {
        if (m_entries.empty())
            return {};
        const bool isSparse = m_used < width / 2;
        if (m_entries.size() == 1)
            return {m_entries.front().number, isSparse};
        m_colors.clear();
        for (const Share& entry : m_entries)
            ::add(m_colors, colorOf(entry), entry.time);
        const int color = std::ranges::max_element(m_colors, {}, &Share::time)->number;
        const Share* most = nullptr;
        for (const Share& entry : m_entries)
            if (colorOf(entry) == color && (!most || entry.time > most->time))
                most = &entry;
        return {most->number, isSparse};
    }

private:
    int colorOf(const Share& entry) const { return m_colorOf[std::size_t(entry.number)]; }

    const std::vector<int>& m_colorOf;
    std::vector<Share> m_entries;
    std::vector<Share> m_colors;
    double m_used = 0;
};

} // namespace

std::vector<LaneColumn> laneColumns(const std::vector<LaneSpan>& spans, const std::vector<int>& colorOf,
                                    double from, double to, int count) {
    std::vector<LaneColumn> columns(std::size_t(std::max(count, 0)));
    const double width = (to - from) / count;
    auto span = std::ranges::upper_bound(spans, from, {}, [](const LaneSpan& s) { return double(s.end); });
    ColumnSum sum(colorOf);
    for (std::size_t i = 0; i < columns.size() && span != spans.end(); ++i) {
        const double left = from + double(i) * width;
        const double right = left + width;
        sum.clear();
        while (span != spans.end() && double(span->start) < right) {
            const double time = std::min(right, double(span->end)) - std::max(left, double(span->start));
            if (time > 0)
                sum.add(span->entry, time);
            if (double(span->end) > right)
                break;
            ++span;
        }
        columns[i] = sum.column(width);
    }
    return columns;
}
