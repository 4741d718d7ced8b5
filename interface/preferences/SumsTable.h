// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFinding.h"

class QObject;
class QStandardItemModel;
class QTreeView;

// A table of programs and titles with their times, shown before something is done to them.
namespace SumsTable {

QStandardItemModel* make(QObject* parent);
void show(QStandardItemModel& table, const std::vector<HistorySum>& sums);
// `name` is what assistive programs call it.
QTreeView* view(QStandardItemModel& table, const QString& name);
// "Titles: 12 · Time spent: 01:00:00": how many titles there are, and their time. `length` is in
// milliseconds.
QString text(std::int64_t titles, std::int64_t length);

} // namespace SumsTable
