// SPDX-License-Identifier: MIT
#pragma once

class QFrame;

// A thin line between what is above and what is below it. Assistive programs pass it over.
QFrame* dividingLine();
