// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

// Timers in forms that other programs read.
namespace ReadableForms {

// A document with one table: the timers, and below each its children. Names are escaped, so that no title can
// break it.
QString html(const TimeStoreItem::Children& timers);
// The same table as Rich Text.
QByteArray rtf(const TimeStoreItem::Children& timers);
// Cells with tabs between them. An application and its windows run together in one line, deliberately; a
// window by itself gives an empty line.
QString tabular(const TimeStoreItem::Children& timers);
// "Work, 01:02:03 - Mail": the name shown, the time, and the original name if it differs. One line for each
// timer; children are left out.
QString plain(const TimeStoreItem::Children& timers);

} // namespace ReadableForms
