// SPDX-License-Identifier: MIT
#include "interface/history/TimeView.h"

#include <algorithm>

void TimeView::zoom(double factor, double moment) {
    const double whole = m_end - m_begin;
    const double wanted = std::clamp(length() * factor, std::min(kShortest, whole), whole);
    clamp(moment - (moment - m_from) * wanted / length(), wanted);
}

void TimeView::moveBy(double time) {
    clamp(m_from + time, length());
}

void TimeView::reveal(double from, double to) {
    if (from < m_from || to - from > length())
        clamp(from, length());
    else if (to > m_to)
        clamp(to - length(), length());
}

void TimeView::setWhole(qint64 begin, qint64 end) {
    const bool wasZoomed = isZoomed();
    m_begin = double(begin);
    m_end = double(std::max(end, begin + 1));
    if (wasZoomed)
        clamp(m_from, std::min(length(), m_end - m_begin));
    else
        showAll();
}

void TimeView::clamp(double from, double length) {
    m_from = std::clamp(from, m_begin, std::max(m_begin, m_end - length));
    m_to = std::min(m_from + length, m_end);
}
