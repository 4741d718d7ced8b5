// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKConstrainedSplitView.h"

#include <QChildEvent>

namespace {

// The least width of a pane, in pixels.
constexpr int kMargin = 165;

} // namespace

TKConstrainedSplitView::TKConstrainedSplitView(QWidget* parent)
    : QSplitter(parent) {
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, [this](int position, int index) {
        // A pane that needs more room holds against it: that is said again and again otherwise.
        const int allowed = closestLegalPosition(constrainSplitPosition(position, width()), index);
        if (allowed != position)
            moveSplitter(allowed, index);
    });
}

int TKConstrainedSplitView::constrainSplitPosition(int proposed, int width) {
    if (proposed < kMargin)
        return kMargin;
    return std::min(proposed, std::max(kMargin, width - kMargin));
}

void TKConstrainedSplitView::childEvent(QChildEvent* event) {
    QSplitter::childEvent(event);
    for (int pane = 0; pane < count(); ++pane)
        setStretchFactor(pane, pane == count() - 1 ? 1 : 0);
}
