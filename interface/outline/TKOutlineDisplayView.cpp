// SPDX-License-Identifier: MIT
#include "interface/outline/TKOutlineDisplayView.h"

#include "interface/outline/KeyHolder.h"
#include "interface/outline/OutlineCellDelegate.h"
#include "interface/outline/OutlineRole.h"
#include "interface/outline/SortingHeader.h"
#include "interface/outline/TimeTreeModel.h"
#include "interface/shell/ProgramIcons.h"
#include "platform/foundation/values/Assertions.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int kIndentation = 20;
constexpr int kInvitationMargin = 32;
// "1000:00:00", or the header's text with its arrow.
constexpr int kTimeDigits = 8;
// "00:00:00".
constexpr int kFewestDigits = 6;

// A header whose texts stand exactly above those of the cells.
class OutlineHeader : public SortingHeader {
public:
    using SortingHeader::SortingHeader;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
        QHeaderView::initStyleOptionForIndex(option, section);
        // Begins right of the arrows that expand rows.
        if (section == TimeTreeModel::ProgramColumn)
            option->text.prepend(QStringLiteral("     "));
        else
            option->text.append(QStringLiteral("   "));
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
    setAnimated(false);
    header()->setSortIndicator(TimeTreeModel::ProgramColumn, Qt::AscendingOrder);
    connect(header(), &QHeaderView::sectionResized, this, [this](int section, int, int width) {
        if (section == TimeTreeModel::TimeSpentColumn && m_model && !m_isFitting && isVisible())
            m_chosenTimeWidth = width;
    });
    connect(this, &QTreeView::collapsed, this, &TKOutlineDisplayView::rowFolded);
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        if (const auto item = itemAt(index))
            Q_EMIT itemDidExpand(item);
    });
}

void TKOutlineDisplayView::setTimeModel(TimeTreeModel& model) {
    m_model = &model;
    m_folded.clear();
    setModel(&model);
    connect(&model, &QAbstractItemModel::rowsInserted, this, &TKOutlineDisplayView::readOutInvitation,
            Qt::UniqueConnection);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, &TKOutlineDisplayView::readOutInvitation,
            Qt::UniqueConnection);
    connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, &m_steadyScroll, &SteadyScroll::remember,
            Qt::UniqueConnection);
    connect(&model, &QAbstractItemModel::rowsAboutToBeMoved, &m_steadyScroll, &SteadyScroll::remember,
            Qt::UniqueConnection);
    connect(&model, &QAbstractItemModel::layoutAboutToBeChanged, &m_steadyScroll, &SteadyScroll::remember,
            Qt::UniqueConnection);
    // Sorts by the column that the header shows.
    setSortingEnabled(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(TimeTreeModel::ProgramColumn, QHeaderView::Stretch);
    // The user drags the border between the two.
    header()->setSectionResizeMode(TimeTreeModel::TimeSpentColumn, QHeaderView::Fixed);
    fitTimeColumn();
}

void TKOutlineDisplayView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
    m_steadyScroll.remember();
    QTreeView::rowsAboutToBeRemoved(parent, first, last);
}

void TKOutlineDisplayView::doItemsLayout() {
    const auto place = m_steadyScroll.take();
    QTreeView::doItemsLayout();
    if (place)
        m_steadyScroll.returnTo(*place);
}

void TKOutlineDisplayView::fitTimeColumn() {
    if (!m_model)
        return;
    const int fitting = std::max(OutlineCellDelegate::timeWidth(fontMetrics(), kTimeDigits),
                                 header()->sectionSizeHint(TimeTreeModel::TimeSpentColumn));
    m_isFitting = true;
    header()->setMinimumSectionSize(leastTimeWidth());
    header()->resizeSection(TimeTreeModel::TimeSpentColumn,
                            std::max(m_chosenTimeWidth.value_or(fitting), leastTimeWidth()));
    m_isFitting = false;
}

int TKOutlineDisplayView::leastTimeWidth() const {
    return OutlineCellDelegate::timeWidth(fontMetrics(), kFewestDigits);
}

void TKOutlineDisplayView::setChosenTimeWidth(std::optional<int> width) {
    m_chosenTimeWidth = width >= leastTimeWidth() ? width : std::nullopt;
    fitTimeColumn();
}

void TKOutlineDisplayView::setIcons(ProgramIcons* icons) {
    disconnect(m_iconsFound);
    m_icons = icons;
    if (icons)
        m_iconsFound = connect(icons, &ProgramIcons::found, viewport(), qOverload<>(&QWidget::update));
    viewport()->update();
}

void TKOutlineDisplayView::setShareBars(bool areShown) {
    m_hasShareBars = areShown;
    viewport()->update();
}

QModelIndexList TKOutlineDisplayView::selectedRows() const {
    QModelIndexList rows = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    const auto place = [](const QModelIndex& index) {
        const QModelIndex parent = index.parent();
        return parent.isValid() ? std::pair(parent.row(), index.row()) : std::pair(index.row(), -1);
    };
    std::ranges::sort(rows, {}, place);
    return rows;
}

TimeStoreItem::Children TKOutlineDisplayView::topItems() const {
    TimeStoreItem::Children items;
    for (int row = 0; row < model()->rowCount(); ++row)
        if (auto item = itemAt(model()->index(row, 0)))
            items.push_back(std::move(item));
    return items;
}

TimeStoreItem::Children TKOutlineDisplayView::selectedItems() const {
    TimeStoreItem::Children items;
    for (const QModelIndex& row : selectedRows())
        if (auto item = itemAt(row))
            items.push_back(std::move(item));
    return items;
}

std::shared_ptr<TimeStoreItem> TKOutlineDisplayView::itemAt(const QModelIndex& row) {
    return row.data(OutlineRole::Item).value<std::shared_ptr<TimeStoreItem>>();
}

TKTableLabelCell TKOutlineDisplayView::dataCell(const QModelIndex& row) const {
    TKTableLabelCell cell = m_owner.dataCell ? m_owner.dataCell(row) : TKTableLabelCell();
    if (m_icons && !cell.program.isEmpty())
        cell.programIcon = m_icons->icon(cell.program, TKTableLabelCell::kIconSize, devicePixelRatioF());
    return cell;
}

void TKOutlineDisplayView::serve(Owner owner) {
    if (std::exchange(m_isServing, true))
        throw InternalInconsistency(QStringLiteral("interface/TKOutlineDisplayView"), __LINE__,
                                    QStringLiteral("the view serves somebody already"));
    m_owner = std::move(owner);
    setDragEnabled(bool(m_owner.writeItems));
    readOutInvitation();
}

QString TKOutlineDisplayView::shownInvitation() const {
    const bool isEmpty = !model() || model()->rowCount() == 0;
    return m_owner.invitation && isEmpty ? m_owner.invitation() : QString();
}

void TKOutlineDisplayView::readOutInvitation() {
    const QString shown = shownInvitation();
    if (accessibleDescription() == shown)
        return;
    setAccessibleDescription(shown);
    viewport()->update();
}

void TKOutlineDisplayView::copy() {
    if (!m_owner.writeItems)
        return;
    if (auto written = m_owner.writeItems(selectedRows()))
        QGuiApplication::clipboard()->setMimeData(written.release());
}

void TKOutlineDisplayView::askToDelete(bool forceDelete) {
    if (m_owner.deleteKey)
        m_owner.deleteKey(forceDelete);
}

void TKOutlineDisplayView::deselectAndTell() {
    // Listeners are told even if nothing was selected.
    if (selectionModel() && selectionModel()->hasSelection())
        clearSelection();
    else
        Q_EMIT selectionDidChange();
}

void TKOutlineDisplayView::editName() {
    edit(currentIndex(), EditKeyPressed, nullptr);
}

bool TKOutlineDisplayView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    // From the keyboard, the name is edited whichever column is current.
    if (trigger == EditKeyPressed)
        return QTreeView::edit(index.siblingAtColumn(TimeTreeModel::ProgramColumn), trigger, event);
    return QTreeView::edit(index, trigger, event);
}

void TKOutlineDisplayView::keyPressEvent(QKeyEvent* event) {
    // Nothing happens to rows that nobody sees.
    if (!isVisible())
        return event->ignore();
    switch (event->key()) {
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (state() != EditingState && currentIndex().isValid()) {
            editName();
            return;
        }
        break;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (!offersDelete())
            break;
        askToDelete(event->modifiers().testFlag(Qt::ShiftModifier));
        return;
    case Qt::Key_Escape:
        redirectTarget().deselectAndTell();
        return;
    default:
        break;
    }
    QTreeView::keyPressEvent(event);
}

void TKOutlineDisplayView::contextMenuEvent(QContextMenuEvent* event) {
    QPoint position = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid()) {
        // Opened by the keyboard: the menu appears at the current row.
        scrollTo(currentIndex());
        position = viewport()->mapToGlobal(frameOfCell(currentIndex()).bottomLeft());
    }
    Q_EMIT menuRequested(position);
}

void TKOutlineDisplayView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (const QString invitation = shownInvitation(); !invitation.isEmpty())
        drawInvitation(invitation);
    if (m_shownDropLine)
        drawDropLine();
}

void TKOutlineDisplayView::drawInvitation(const QString& text) {
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(kInvitationMargin, kInvitationMargin, -kInvitationMargin,
                                                 -kInvitationMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, text);
}

void TKOutlineDisplayView::initViewItemOption(QStyleOptionViewItem* option) const {
    QTreeView::initViewItemOption(option);
    KeyHolder::paleUnlessHolder(*this, *option);
    if (m_isOnSelection)
        KeyHolder::inkOnSelection(*option);
}

void TKOutlineDisplayView::drawBranches(QPainter* painter, const QRect& rect,
                                        const QModelIndex& index) const {
    const QScopedValueRollback drawn(m_isOnSelection,
                                     selectionModel() && selectionModel()->isSelected(index));
    QTreeView::drawBranches(painter, rect, index);
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
