// SPDX-License-Identifier: MIT
#pragma once

#include <QPersistentModelIndex>

#include <optional>

class QTreeView;

// Keeps the top visible row of a view in its place while rows above it come, go or move. A view that is
// scrolled to the very top stays there, so new rows come into sight.
class SteadyScroll : public QObject {
    Q_OBJECT
public:
    // The view outlives this.
    explicit SteadyScroll(QTreeView& view);

    // Call it before rows change. Further calls before the next layout do nothing.
    void remember();
    // Answers the place to return to, if any, and forgets it. Call it before the layout, which may scroll by
    // itself.
    struct Place {
        QPersistentModelIndex row;
        // Pixels below the upper edge of the viewport, at most 0.
        int top;
    };
    std::optional<Place> take();
    // Call it after the layout. Does nothing if the row has gone.
    void returnTo(const Place& place);

private:
    QTreeView& m_view;
    std::optional<Place> m_place;
};
