// SPDX-License-Identifier: MIT
#pragma once

#include <QSplitter>

// Two panes side by side, each with a least width. When the window is resized, the right pane changes and the
// left one keeps its width. The divider is a thin line, which can be grasped a little beside it.
class TKConstrainedSplitView : public QSplitter {
    Q_OBJECT
public:
    explicit TKConstrainedSplitView(QWidget* parent = nullptr);

    // The allowed position of the divider nearest to `proposed`, in pixels from the left of a view of this
    // width. If there is no room for both least widths, the left one holds.
    static int constrainSplitPosition(int proposed, int width);

protected:
    void childEvent(QChildEvent* event) override;
    QSplitterHandle* createHandle() override;
};
