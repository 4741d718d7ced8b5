// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/RangeAnswer.h"

// How the window says that time was changed by hand.
namespace AmendTexts {

// "Changed by hand on 20 Nov 18:02, before: Inbox"; empty for what is as it was measured.
QString of(const RangeAnswer::Piece& piece);
// The program of what was booked, in the user's language; other names stay what they are.
QString shownProgram(const QString& name);
// The same backwards.
QString recordedProgram(const QString& shownName);
// Puts the user's language into an answer.
void translate(RangeAnswer& answer);

} // namespace AmendTexts
