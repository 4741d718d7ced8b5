// SPDX-License-Identifier: MIT
#pragma once

#include <QPersistentModelIndex>

#include <optional>

class QTreeView;

// Keeps the row at a view's upper edge where it is while rows above it come, go or move. At the very top there is nothing
// to keep: what is new comes into view.
class SteadyScroll : public QObject {
    Q_OBJECT
public:
    // The view outlives this.
    explicit SteadyScroll(QTreeView& view);

    // Rows are about to change. Until the next layout further calls do nothing.
    void remember();
    // The place to return to, if there is any; forgets it. For before the layout, which may scroll by itself.
    struct Place {
        QPersistentModelIndex row;
        // Pixels below the upper edge of the viewport; not above 0.
        int top;
    };
    std::optional<Place> take();
    // After the layout. A row that has gone is nowhere to return to.
    void returnTo(const Place& place);

private:
    QTreeView& m_view;
    std::optional<Place> m_place;
};
