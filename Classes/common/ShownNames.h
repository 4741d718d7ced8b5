// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Some programs are none: idle time, the desktop itself, what rules hide, what was booked by hand. The record has their
// English names; people read them in their own language.
namespace ShownNames {

// Other names stay what they are.
QString of(const QString& recorded);
// The same backwards.
QString recorded(const QString& shown);
// Whether a program is found by a text, upper or lower case: what people read is searched, and what the record has.
bool contains(const QString& recorded, const QString& search);

} // namespace ShownNames
