// SPDX-License-Identifier: MIT
#pragma once

class QDir;
struct Desk;

// The bar that asks what an absence was, over the timers of this desk.
void drawAbsences(Desk& desk, const QDir& folder);
