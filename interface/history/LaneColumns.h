// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

// A piece of time in a lane; `entry` is the number of what it was spent with.
struct LaneSpan {
    qint64 start;
    qint64 end;
    int entry;
};

// One column of a lane, as wide as a pixel of the device.
struct LaneColumn {
    // What had the most time of the colour that had the most time; below 0 where nothing was.
    int entry = -1;
    // Less than half of the column's time was spent with anything at all.
    bool isSparse = false;

    friend bool operator==(const LaneColumn&, const LaneColumn&) = default;
};

// The time from `from` to `to` in so many columns. The spans are in order and do not overlap; `colorOf` says for
// each entry which colour it has. No span is too short to count.
std::vector<LaneColumn> laneColumns(const std::vector<LaneSpan>& spans, const std::vector<int>& colorOf,
                                    double from, double to, int count);
