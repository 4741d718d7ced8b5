// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

#include <QStringList>

// What a sum includes.
enum class SumMode : std::uint32_t { None = 0, Total, Project, Selected, Found, FoundInSelection };

// Removes rows whose time is counted through another row: the children of rows that are not leaves.
TimeStoreItem::Children withoutDoubleCounting(TimeStoreItem::Children rows);
// The rows that match the search; of a row that does not match, its children that do. All rows while nothing
// is searched.
TimeStoreItem::Children countedRows(TimeStoreItem::Children rows, const QString& searchString);
Seconds summedTime(const TimeStoreItem::Children& rows);

// The picture beside a sum; empty if it has none.
QString sumImage(SumMode mode);
// The word beside a sum, in the user's language. A total also names what it leaves out, at most two timers.
QString sumCaption(SumMode mode, const QStringList& leftOut = {});
// Both on two lines, in the user's language.
QString sumTitle(SumMode mode, const QString& time);
