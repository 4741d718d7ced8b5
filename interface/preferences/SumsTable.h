// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFinding.h"

class QObject;
class QStandardItemModel;
class QTreeView;

// Programs and titles with their times, as they are shown before something happens to them.
namespace SumsTable {

QStandardItemModel* make(QObject* parent);
void show(QStandardItemModel& table, const std::vector<HistorySum>& sums);
// `name` is what assistive programs call it.
QTreeView* view(QStandardItemModel& table, const QString& name);
// "Titles: 12 · Time spent: 01:00:00": how many there are in all, and how long, in milliseconds.
QString text(std::int64_t titles, std::int64_t length);

} // namespace SumsTable
