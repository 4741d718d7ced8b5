// SPDX-License-Identifier: MIT
#pragma once

#include <QSplitter>

// Two panes side by side, of which neither can be made narrower than a hand's breadth. When the window grows or shrinks,
// the last one does, and the first keeps its width.
class TKConstrainedSplitView : public QSplitter {
    Q_OBJECT
public:
    explicit TKConstrainedSplitView(QWidget* parent = nullptr);

    // Where the divider may be if somebody wants it at `proposed`, in pixels from the left of a view so wide. The left
    // bound holds where both cannot.
    static int constrainSplitPosition(int proposed, int width);

protected:
    void childEvent(QChildEvent* event) override;
};
