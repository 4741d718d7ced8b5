// SPDX-License-Identifier: MIT
#include "interface/outline/SteadyScroll.h"

#include <QScrollBar>
#include <QTreeView>

#include <utility>

SteadyScroll::SteadyScroll(QTreeView& view)
    : m_view(view) {
    // The user scrolls: do not scroll back.
    connect(view.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { m_place.reset(); });
}

void SteadyScroll::remember() {
    if (m_place || m_view.verticalScrollBar()->value() == 0)
        return;
    const QModelIndex row = m_view.indexAt(QPoint(0, 0));
    if (row.isValid())
        m_place = Place{row.siblingAtColumn(0), m_view.visualRect(row.siblingAtColumn(0)).top()};
}

std::optional<SteadyScroll::Place> SteadyScroll::take() {
    return std::exchange(m_place, std::nullopt);
}

void SteadyScroll::returnTo(const Place& place) {
    const QRect now = place.row.isValid() ? m_view.visualRect(place.row) : QRect();
    if (now.isValid())
        m_view.verticalScrollBar()->setValue(m_view.verticalScrollBar()->value() + now.top() - place.top);
}
