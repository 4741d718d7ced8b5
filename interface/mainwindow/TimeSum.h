// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

// What a sum of times is the sum of.
enum class SumMode : std::uint32_t { None = 0, Total, Project, Selected, Found, FoundInSelection };

// The rows of `rows` that are not counted through another of them: the children of rows that are no leaf go.
TimeStoreItem::Children withoutDoubleCounting(TimeStoreItem::Children rows);
// Those of `rows` that match a search, and of the others the children that do; all rows while nothing is searched.
TimeStoreItem::Children countedRows(TimeStoreItem::Children rows, const QString& searchString);
Seconds summedTime(const TimeStoreItem::Children& rows);

// The picture beside a sum; empty where there is none.
QString sumImage(SumMode mode);
// The word beside a sum, in the user's language.
QString sumCaption(SumMode mode);
// Word and time on two lines, in the user's language.
QString sumTitle(SumMode mode, const QString& time);
