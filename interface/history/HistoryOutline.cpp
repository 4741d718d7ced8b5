// SPDX-License-Identifier: MIT
#include "interface/history/HistoryOutline.h"

#include "interface/history/HistoryCell.h"
#include "interface/outline/KeyHolder.h"
#include "interface/outline/SortingHeader.h"
#include "interface/shell/ProgramIcons.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>

namespace {

constexpr int kIndentation = 20;
constexpr int kTimeWidth = 110;
constexpr int kShareWidth = 130;
constexpr int kColumnAir = 32;
constexpr int kInvitationMargin = 32;

// Whole seconds, as they are shown.
qint64 shownLength(const QModelIndex& row) {
    const qint64 length = row.data(HistoryModel::LengthRole).toLongLong();
    return length - length % 1000;
}

// Its texts stand above those of the cells.
class HistoryHeader : public SortingHeader {
public:
    using SortingHeader::SortingHeader;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
        QHeaderView::initStyleOptionForIndex(option, section);
        if (section == HistoryModel::NameColumn)
            option->text.prepend(QStringLiteral("     "));
        else if (section == HistoryModel::ShareColumn)
            option->text.append(QStringLiteral("   "));
    }
};

} // namespace

// Sorts, and leaves out what is below the cut-off.
class HistoryOutline::Order : public QSortFilterProxyModel {
public:
    Order(HistoryModel& rows, std::function<std::unique_ptr<QMimeData>()> dragged)
        : m_dragged(std::move(dragged)) {
        setSortRole(HistoryModel::SortRole);
        setSortLocaleAware(true);
        setSortCaseSensitivity(Qt::CaseInsensitive);
        setDynamicSortFilter(true);
        setSourceModel(&rows);
    }

    void setCutoff(qint64 length) {
        m_cutoff = length;
        invalidateFilter();
    }

    QMimeData* mimeData(const QModelIndexList&) const override { return m_dragged().release(); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        return sourceModel()->index(row, 0, parent).data(HistoryModel::LengthRole).toLongLong() >= m_cutoff;
    }

private:
    std::function<std::unique_ptr<QMimeData>()> m_dragged;
    qint64 m_cutoff = 0;
};

HistoryOutline::HistoryOutline(QWidget* parent)
    : QTreeView(parent)
    , m_order(new Order(m_rows, [this] { return HistoryForms::copied(heads(), lines(true)); }))
    , m_cells(new HistoryCell(this)) {
    setHeader(new HistoryHeader(this));
    header()->setSectionsMovable(true);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setModel(m_order.get());
    setItemDelegate(m_cells);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragOnly);
    setTextElideMode(Qt::ElideMiddle);
    setIndentation(kIndentation);
    setFrameShape(QFrame::NoFrame);
    setAllColumnsShowFocus(true);
    setVerticalScrollMode(ScrollPerPixel);
    setSortingEnabled(true);
    sortByColumn(HistoryModel::TimeSpentColumn, Qt::DescendingOrder);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(HistoryModel::NameColumn, QHeaderView::Stretch);
    fitColumns();
}

void HistoryOutline::fitColumns() {
    const auto wide = [this](const char* text) {
        return fontMetrics().horizontalAdvance(QLatin1String(text)) + kColumnAir;
    };
    header()->setMinimumSectionSize(wide("00:00:00"));
    header()->resizeSection(
        HistoryModel::TimeSpentColumn,
        std::max({kTimeWidth, wide("1000:00:00"), header()->sectionSizeHint(HistoryModel::TimeSpentColumn)}));
    header()->resizeSection(
        HistoryModel::ShareColumn,
        std::max({kShareWidth, wide("100.0 %"), header()->sectionSizeHint(HistoryModel::ShareColumn)}));
}

void HistoryOutline::restoreColumns(const QByteArray& state) {
    const int least = header()->minimumSectionSize();
    if (!header()->restoreState(state))
        return;
    // The state has brought its own.
    header()->setMinimumSectionSize(least);
    for (int section = 0; section < header()->count(); ++section)
        if (header()->sectionSize(section) < least)
            header()->resizeSection(section, least);
    sortByColumn(header()->sortIndicatorSection(), header()->sortIndicatorOrder());
}

void HistoryOutline::initViewItemOption(QStyleOptionViewItem* option) const {
    QTreeView::initViewItemOption(option);
    KeyHolder::paleUnlessHolder(*this, *option);
    if (m_isOnSelection)
        KeyHolder::inkOnSelection(*option);
}

void HistoryOutline::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const {
    const QScopedValueRollback drawn(m_isOnSelection,
                                     selectionModel() && selectionModel()->isSelected(index));
    QTreeView::drawBranches(painter, rect, index);
}

void HistoryOutline::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitColumns();
}

HistoryOutline::~HistoryOutline() = default;

void HistoryOutline::forgetParts() {
    if (!m_rows.arePartsAsked())
        return;
    collapseAll();
    m_rows.forgetParts();
}

void HistoryOutline::setIcons(ProgramIcons* icons) {
    disconnect(m_iconsFound);
    m_cells->setIcons(icons);
    if (icons)
        m_iconsFound = connect(icons, &ProgramIcons::found, viewport(), qOverload<>(&QWidget::update));
    viewport()->update();
}

void HistoryOutline::setColors(std::function<QColor(const QString& name)> colorOf) {
    m_cells->setColors(std::move(colorOf));
    viewport()->update();
}

void HistoryOutline::setCutoff(qint64 length) {
    m_order->setCutoff(length);
}

void HistoryOutline::choose(const QString& name) {
    for (int row = 0; row < m_order->rowCount(); ++row) {
        const QModelIndex top = m_order->index(row, HistoryModel::NameColumn);
        if (top.data(Qt::EditRole).toString() != name)
            continue;
        selectionModel()->setCurrentIndex(top,
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        scrollTo(top);
    }
}

std::optional<qint64> HistoryOutline::selectedLength() const {
    const QModelIndexList selected = selectionModel()->selectedRows();
    if (selected.isEmpty())
        return std::nullopt;
    qint64 length = 0;
    for (const QModelIndex& row : selected)
        if (!row.parent().isValid() || !selectionModel()->isRowSelected(row.parent().row(), {}))
            length += row.data(HistoryModel::LengthRole).toLongLong();
    return length;
}

void HistoryOutline::copy() const {
    if (m_order->rowCount() == 0)
        return;
    const bool isSelectedOnly = selectionModel()->hasSelection();
    QGuiApplication::clipboard()->setMimeData(HistoryForms::copied(heads(), lines(isSelectedOnly)).release());
}

QByteArray HistoryOutline::csv() const {
    return HistoryForms::csv(heads(), lines(false));
}

QStringList HistoryOutline::heads() const {
    const auto head = [this](HistoryModel::Column column) {
        return m_rows.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    };
    return {head(HistoryModel::NameColumn), m_rows.isByProject() ? localized("Program") : localized("Title"),
            head(HistoryModel::TimeSpentColumn)};
}

std::vector<HistoryOutline::Line> HistoryOutline::lines(bool isSelectedOnly) const {
    std::vector<Line> lines;
    addLines({}, isSelectedOnly, lines);
    return lines;
}

void HistoryOutline::addLines(const QModelIndex& parent, bool isSelectedOnly,
                              std::vector<Line>& lines) const {
    const QString above = parent.data(Qt::EditRole).toString();
    qint64 rest = shownLength(parent);
    for (int row = 0; row < m_order->rowCount(parent); ++row) {
        const QModelIndex each = m_order->index(row, HistoryModel::NameColumn, parent);
        const QString name = each.data(Qt::EditRole).toString();
        const qint64 length = shownLength(each);
        const bool isTop = !parent.isValid();
        rest -= length;
        if (isSelectedOnly && selectionModel()->isRowSelected(row, parent))
            lines.push_back({isTop ? name : above, isTop ? QString() : name, length});
        else if (isTop && isExpanded(each) && m_order->hasChildren(each))
            addLines(each, isSelectedOnly, lines);
        else if (!isSelectedOnly)
            lines.push_back({isTop ? name : above, isTop ? QString() : name, length});
    }
    // The time without a title, and of titles that are left out.
    if (parent.isValid() && !isSelectedOnly && rest > 0)
        lines.push_back({above, {}, rest});
}

void HistoryOutline::setInvitation(const QString& text) {
    m_invitation = text;
    setAccessibleDescription(m_order->rowCount() == 0 ? text : QString());
    viewport()->update();
}

void HistoryOutline::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (m_order->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(kInvitationMargin, 0, -kInvitationMargin, 0),
                     Qt::AlignCenter | Qt::TextWordWrap, m_invitation);
}

void HistoryOutline::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectionDidChange();
}
