// SPDX-License-Identifier: MIT
#include "interface/preferences/SumsTable.h"

#include "Classes/engine/TimeTracker.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QHeaderView>
#include <QLocale>
#include <QStandardItemModel>
#include <QTreeView>

namespace {

constexpr int kProgramWidth = 130;
constexpr int kTimeWidth = 90;

QStandardItem* cell(const QString& text) {
    auto* item = new QStandardItem(PlainText::cut(text, PlainText::kLongestEntry));
    item->setToolTip(PlainText::toolTip(text));
    item->setEditable(false);
    return item;
}

} // namespace

QStandardItemModel* SumsTable::make(QObject* parent) {
    auto* table = new QStandardItemModel(parent);
    table->setHorizontalHeaderLabels({localized("Program"), localized("Title"), localized("Time Spent")});
    return table;
}

void SumsTable::show(QStandardItemModel& table, const std::vector<HistorySum>& sums) {
    table.setRowCount(0);
    for (const HistorySum& sum : sums) {
        auto* time = cell(TimeTracker::timeStringForDouble(double(sum.length) / 1000));
        time->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table.appendRow({cell(sum.program), cell(sum.title), time});
    }
}

QTreeView* SumsTable::view(QStandardItemModel& table, const QString& name) {
    auto* view = new QTreeView;
    view->setModel(&table);
    view->setAccessibleName(name);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setTextElideMode(Qt::ElideMiddle);
    QHeaderView& header = *view->header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(1, QHeaderView::Stretch);
    header.resizeSection(0, kProgramWidth);
    header.resizeSection(2, kTimeWidth);
    return view;
}

QString SumsTable::text(std::int64_t titles, std::int64_t length) {
    if (titles == 0)
        return localized("Nothing was found.");
    const QString count = localized("Titles: %@");
    const QString time = localized("Time spent: %@");
    return QString(count).replace(QLatin1String("%@"), QLocale().toString(qlonglong(titles))) +
           QStringLiteral(" · ") +
           QString(time).replace(QLatin1String("%@"),
                                 TimeTracker::timeStringForDouble(double(length) / 1000));
}
