// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKConstrainedSplitView.h"

#include <QChildEvent>
#include <QPainter>

namespace {

// The least width of a pane, in pixels.
constexpr int kMargin = 165;

class Line : public QSplitterHandle {
public:
    using QSplitterHandle::QSplitterHandle;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(contentsRect(), palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    }
};

} // namespace

TKConstrainedSplitView::TKConstrainedSplitView(QWidget* parent)
    : QSplitter(parent) {
    setChildrenCollapsible(false);
    setHandleWidth(1);
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

QSplitterHandle* TKConstrainedSplitView::createHandle() {
    return new Line(orientation(), this);
}

void TKConstrainedSplitView::childEvent(QChildEvent* event) {
    QSplitter::childEvent(event);
    for (int pane = 0; pane < count(); ++pane)
        setStretchFactor(pane, pane == count() - 1 ? 1 : 0);
}
