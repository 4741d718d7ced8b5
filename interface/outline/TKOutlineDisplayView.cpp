// SPDX-License-Identifier: MIT
#include "interface/outline/TKOutlineDisplayView.h"

#include "interface/outline/OutlineCellDelegate.h"
#include "interface/outline/TimeTreeModel.h"
#include "platform/foundation/LocalizedStrings.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kIndentation = 20;
constexpr int kInvitationMargin = 32;
// "1000:00:00" and the arrow of the header beside its text.
constexpr int kTimeDigits = 8;

// Its texts stand above those of the cells.
class OutlineHeader : public QHeaderView {
public:
    explicit OutlineHeader(QWidget* parent)
        : QHeaderView(Qt::Horizontal, parent) {
        setSectionsClickable(true);
        setHighlightSections(false);
    }

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
        QHeaderView::initStyleOptionForIndex(option, section);
        // Behind the sign that unfolds a row; before the digits' margin.
        option->text = section == TimeTreeModel::ProgramColumn ? QStringLiteral("     ") + option->text
                                                               : option->text + QStringLiteral("   ");
    }
};

} // namespace

TKOutlineDisplayView::TKOutlineDisplayView(QWidget* parent)
    : QTreeView(parent) {
    setHeader(new OutlineHeader(this));
    setItemDelegate(new OutlineCellDelegate(this));
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed | DoubleClicked);
    setTextElideMode(Qt::ElideMiddle);
    setIndentation(kIndentation);
    setFrameShape(QFrame::NoFrame);
    setAllColumnsShowFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    connect(this, &QTreeView::collapsed, this, &TKOutlineDisplayView::forgetCollapsed);
}

void TKOutlineDisplayView::setTimeModel(TimeTreeModel& model) {
    m_model = &model;
    header()->setSortIndicator(TimeTreeModel::ProgramColumn, Qt::AscendingOrder);
    setModel(&model);
    setSortingEnabled(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(TimeTreeModel::ProgramColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(TimeTreeModel::TimeSpentColumn, QHeaderView::Interactive);
    fitTimeColumn();
}

void TKOutlineDisplayView::fitTimeColumn() {
    if (!m_model)
        return;
    header()->resizeSection(TimeTreeModel::TimeSpentColumn,
                            std::max(OutlineCellDelegate::timeWidth(fontMetrics(), kTimeDigits),
                                     header()->sectionSizeHint(TimeTreeModel::TimeSpentColumn)));
}

TimeStoreItem::Children TKOutlineDisplayView::selectedItems() const {
    TimeStoreItem::Children items;
    if (!m_model)
        return items;
    QModelIndexList rows = selectionModel()->selectedRows();
    items.reserve(std::size_t(rows.size()));
    for (const QModelIndex& row : rows)
        items.push_back(m_model->item(row));
    return items;
}

void TKOutlineDisplayView::editName() {
    edit(currentIndex(), EditKeyPressed, nullptr);
}

bool TKOutlineDisplayView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    // The keyboard does not care which column is the current one.
    if (trigger == EditKeyPressed)
        return QTreeView::edit(index.siblingAtColumn(TimeTreeModel::ProgramColumn), trigger, event);
    return QTreeView::edit(index, trigger, event);
}

void TKOutlineDisplayView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (state() != EditingState && currentIndex().isValid()) {
            editName();
            return;
        }
        break;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        Q_EMIT deleteKeyPressed();
        return;
    case Qt::Key_Escape:
        clearSelection();
        return;
    default:
        break;
    }
    QTreeView::keyPressEvent(event);
}

void TKOutlineDisplayView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (!m_model || m_model->rowCount() == 0)
        drawInvitation();
}

void TKOutlineDisplayView::drawInvitation() {
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(kInvitationMargin, kInvitationMargin, -kInvitationMargin,
                                                 -kInvitationMargin),
                     Qt::AlignCenter | Qt::TextWordWrap,
                     localized("Press Start and work on; the programs you use will appear here."));
}

void TKOutlineDisplayView::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitTimeColumn();
}

void TKOutlineDisplayView::selectionChanged(const QItemSelection& selected,
                                            const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectionDidChange();
}

void TKOutlineDisplayView::forgetCollapsed(const QModelIndex& index) {
    // Not now: the view is still busy with folding.
    QMetaObject::invokeMethod(
        this,
        [this, folded = QPersistentModelIndex(index)] {
            if (m_model && folded.isValid() && !isExpanded(folded))
                m_model->releaseChildren(folded);
        },
        Qt::QueuedConnection);
}
