// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

// Timers as other programs can read them.
namespace ReadableForms {

// A document with one table: the timers, and below each its children. Names are escaped, so that no title can break it.
QString html(const TimeStoreItem::Children& timers);
// The same table as Rich Text.
QByteArray rtf(const TimeStoreItem::Children& timers);
// Tabs between the cells. An application and its windows run together in one line, which is deliberate; a window by
// itself gives an empty line.
QString tabular(const TimeStoreItem::Children& timers);
// "Work, 01:02:03 - Mail": the name shown, the time, and behind it the name it was found under if that is another. One
// line each; children are not listed.
QString plain(const TimeStoreItem::Children& timers);

} // namespace ReadableForms
