// SPDX-License-Identifier: MIT
#include "interface/outline/SortingHeader.h"

#include "interface/shell/SpokenItem.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kFocusInset = 2;

} // namespace

SortingHeader::SortingHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent) {
    // Not as a column's header: a tree takes whatever says so for one of its own, whose place it reads unasked.
    speakAs(*this, QAccessible::Button);
    setSectionsClickable(true);
    setHighlightSections(false);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QHeaderView::sortIndicatorChanged, this, &SortingHeader::nameSection);
}

void SortingHeader::goTo(int section) {
    m_section = std::clamp(section, 0, std::max(0, count() - 1));
    nameSection();
    speakItem(*this, accessibleName());
    viewport()->update();
}

void SortingHeader::sort() {
    const bool isSorted = sortIndicatorSection() == m_section;
    const bool isDescending = isSorted && sortIndicatorOrder() == Qt::AscendingOrder;
    setSortIndicator(m_section, isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
    speakItem(*this, accessibleName());
}

void SortingHeader::nameSection() {
    if (!model())
        return;
    const QString title = model()->headerData(m_section, Qt::Horizontal).toString();
    if (sortIndicatorSection() != m_section)
        setAccessibleName(title);
    else
        setAccessibleName(title + QStringLiteral(", ") +
                          (sortIndicatorOrder() == Qt::AscendingOrder ? localized("sorted, ascending")
                                                                      : localized("sorted, descending")));
}

// Qt drags a border for the column before it, and not at all where that one takes what is left.
std::optional<int> SortingHeader::sectionBesideBorder(int x) const {
    const int reach = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    for (int place = 1; place < count(); ++place) {
        const int section = logicalIndex(place);
        const int before = logicalIndex(place - 1);
        if (sectionResizeMode(before) != Stretch || isSectionHidden(section))
            continue;
        const int start = sectionViewportPosition(section);
        if (std::abs(x - (isRightToLeft() ? start + sectionSize(section) : start)) <= reach)
            return section;
    }
    return std::nullopt;
}

void SortingHeader::drag(int x) {
    const int moved = isRightToLeft() ? x - m_dragged->x : m_dragged->x - x;
    int others = 0;
    for (int section = 0; section < count(); ++section)
        if (section != m_dragged->section && !isSectionHidden(section))
            others += sectionResizeMode(section) == Stretch ? minimumSectionSize() : sectionSize(section);
    const int most = std::max(minimumSectionSize(), viewport()->width() - others);
    resizeSection(m_dragged->section, std::clamp(m_dragged->width + moved, minimumSectionSize(), most));
}

void SortingHeader::mousePressEvent(QMouseEvent* event) {
    const int x = qRound(event->position().x());
    const auto section = event->button() == Qt::LeftButton ? sectionBesideBorder(x) : std::nullopt;
    if (section)
        m_dragged = Dragged{*section, sectionSize(*section), x};
    else
        QHeaderView::mousePressEvent(event);
}

void SortingHeader::mouseMoveEvent(QMouseEvent* event) {
    const int x = qRound(event->position().x());
    if (m_dragged)
        return drag(x);
    QHeaderView::mouseMoveEvent(event);
    if (event->buttons() == Qt::NoButton && sectionBesideBorder(x))
        setCursor(Qt::SplitHCursor);
}

void SortingHeader::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_dragged || event->button() != Qt::LeftButton)
        return QHeaderView::mouseReleaseEvent(event);
    m_dragged.reset();
}

void SortingHeader::keyPressEvent(QKeyEvent* event) {
    const int step = isRightToLeft() ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        goTo(m_section - step);
        break;
    case Qt::Key_Right:
        goTo(m_section + step);
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        sort();
        break;
    default:
        // Not the keys of an item view: the header has no rows. What it ignored, the outline around it would take
        // for its own.
        break;
    }
}

void SortingHeader::contextMenuEvent(QContextMenuEvent* event) {
    // The outline's menu is about its rows.
    event->setAccepted(event->reason() == QContextMenuEvent::Keyboard);
}

void SortingHeader::focusInEvent(QFocusEvent* event) {
    nameSection();
    QHeaderView::focusInEvent(event);
    viewport()->update();
}

void SortingHeader::focusOutEvent(QFocusEvent* event) {
    QHeaderView::focusOutEvent(event);
    viewport()->update();
}

void SortingHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    // The style of a header may leave the painter as it likes.
    painter->save();
    QHeaderView::paintSection(painter, rect, section);
    painter->restore();
    if (!hasFocus() || section != m_section)
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect.adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset);
    focus.state |= QStyle::State_KeyboardFocusChange;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, this);
}
