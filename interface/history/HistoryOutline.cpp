// SPDX-License-Identifier: MIT
#include "interface/history/HistoryOutline.h"

#include "Classes/report/ReportFormats.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int kRowAir = 10;
constexpr int kIndentation = 20;
constexpr int kTimeWidth = 110;
constexpr int kShareWidth = 130;
constexpr int kBarMargin = 4;
constexpr double kBarStrength = 0.28;
constexpr int kInvitationMargin = 32;

// Rows with some space, and behind a share a bar as long.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {0, option.fontMetrics.height() + kRowAir};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        if (index.column() == HistoryModel::ShareColumn && !option.state.testFlag(QStyle::State_Selected))
            drawBar(*painter, option, index.data(HistoryModel::ShareRole).toDouble());
        QStyledItemDelegate::paint(painter, option, index);
    }

private:
    static void drawBar(QPainter& painter, const QStyleOptionViewItem& option, double share) {
        QRect bar = option.rect.adjusted(kBarMargin, kBarMargin, -kBarMargin, -kBarMargin);
        bar.setWidth(int(std::lround(bar.width() * std::clamp(share, 0.0, 1.0))));
        QColor color = option.palette.color(QPalette::Highlight);
        color.setAlphaF(float(kBarStrength));
        painter.fillRect(QStyle::visualRect(option.direction, option.rect, bar), color);
    }
};

} // namespace

// Sorts, and leaves out what is below the cut-off.
class HistoryOutline::Order : public QSortFilterProxyModel {
public:
    explicit Order(HistoryModel& rows) {
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

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        return sourceModel()->index(row, 0, parent).data(HistoryModel::LengthRole).toLongLong() >= m_cutoff;
    }

private:
    qint64 m_cutoff = 0;
};

HistoryOutline::HistoryOutline(QWidget* parent)
    : QTreeView(parent)
    , m_order(new Order(m_rows)) {
    setModel(m_order.get());
    setItemDelegate(new CellDelegate(this));
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setIndentation(kIndentation);
    setFrameShape(QFrame::NoFrame);
    setAllColumnsShowFocus(true);
    setVerticalScrollMode(ScrollPerPixel);
    setSortingEnabled(true);
    sortByColumn(HistoryModel::TimeSpentColumn, Qt::DescendingOrder);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(HistoryModel::NameColumn, QHeaderView::Stretch);
    header()->resizeSection(HistoryModel::TimeSpentColumn, kTimeWidth);
    header()->resizeSection(HistoryModel::ShareColumn, kShareWidth);
}

HistoryOutline::~HistoryOutline() = default;

void HistoryOutline::forgetParts() {
    if (!m_rows.arePartsAsked())
        return;
    collapseAll();
    m_rows.forgetParts();
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
    QString text;
    QString html;
    for (const Line& line : lines(selectionModel()->hasSelection())) {
        const QStringList cells{ReportFormats::disarmed(line.name), ReportFormats::disarmed(line.part),
                                ReportFormats::durationText(line.length)};
        text += cells.join(u'\t') + u'\n';
        html += QStringLiteral("<tr>");
        for (const QString& cell : cells)
            html += QStringLiteral("<td>%1</td>").arg(cell.toHtmlEscaped());
        html += QStringLiteral("</tr>");
    }
    auto* forms = new QMimeData;
    forms->setText(text);
    forms->setHtml(
        QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>%1</table></body></html>")
            .arg(html));
    QGuiApplication::clipboard()->setMimeData(forms);
}

QByteArray HistoryOutline::csv() const {
    using ReportFormats::csvCell;
    const auto heading = [this](HistoryModel::Column column) {
        return csvCell(m_rows.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    };
    QByteArray text = heading(HistoryModel::NameColumn) + ',' + csvCell(localized("Title")) + ',' +
                      heading(HistoryModel::TimeSpentColumn) + "\r\n";
    for (const Line& line : lines(false))
        text += csvCell(line.name) + ',' + csvCell(line.part) + ',' +
                ReportFormats::durationText(line.length).toLatin1() + "\r\n";
    return text;
}

std::vector<HistoryOutline::Line> HistoryOutline::lines(bool isSelectedOnly) const {
    std::vector<Line> lines;
    addLines({}, isSelectedOnly, lines);
    return lines;
}

void HistoryOutline::addLines(const QModelIndex& parent, bool isSelectedOnly,
                              std::vector<Line>& lines) const {
    const QString above = parent.data(Qt::EditRole).toString();
    qint64 rest = parent.data(HistoryModel::LengthRole).toLongLong();
    for (int row = 0; row < m_order->rowCount(parent); ++row) {
        const QModelIndex each = m_order->index(row, HistoryModel::NameColumn, parent);
        const QString name = each.data(Qt::EditRole).toString();
        const qint64 length = each.data(HistoryModel::LengthRole).toLongLong();
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
