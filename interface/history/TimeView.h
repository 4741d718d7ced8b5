// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>

// The piece of a day that is shown, within the whole of it. In milliseconds since 1970; fractions are kept, so
// that zooming in and out at one place ends where it began.
class TimeView {
public:
    // As far as one can zoom in.
    static constexpr double kShortest = 3 * 60 * 1000;

    TimeView() = default;
    // Shows all of it. An end before the beginning counts as the beginning.
    TimeView(qint64 begin, qint64 end)
        : m_begin(double(begin))
        , m_end(double(end > begin ? end : begin + 1)) {
        showAll();
    }

    double begin() const { return m_begin; }
    double end() const { return m_end; }
    double from() const { return m_from; }
    double to() const { return m_to; }
    double length() const { return m_to - m_from; }
    bool isZoomed() const { return m_from > m_begin || m_to < m_end; }

    void showAll() {
        m_from = m_begin;
        m_to = m_end;
    }
    // As much of this piece as lies within.
    void showPiece(double from, double to) { clamp(from, std::min(to, m_end) - std::max(from, m_begin)); }
    // Shows `factor` times as much; `moment` stays where it is, unless the day ends there.
    void zoom(double factor, double moment);
    void moveBy(double time);
    // Moves as little as is needed to show this piece, or its beginning if it is too long.
    void reveal(double from, double to);
    // The same piece of another day, or of one that has grown.
    void setWhole(qint64 begin, qint64 end);

private:
    void clamp(double from, double length);

    double m_begin = 0;
    double m_end = 1;
    double m_from = 0;
    double m_to = 1;
};
