// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/RangeAnswer.h"

// How the window says that time was changed by hand.
namespace AmendTexts {

// "Changed by hand on 20 Nov 18:02, before: Inbox"; empty for what is as it was measured.
QString of(const RangeAnswer::Piece& piece);
// Puts the user's language into an answer.
void translate(RangeAnswer& answer);

} // namespace AmendTexts
