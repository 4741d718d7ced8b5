// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"

// Whether a desktop that reports changes by itself still runs. A desktop that hangs looks like one without
// news until it is asked. Main thread only.
class SignsOfLife {
public:
    virtual ~SignsOfLife() = default;

    // Calls `hearer` after each report or answer of the desktop, and when the desktop has gone.
    virtual Subscription observeSigns(News::Hearer hearer) = 0;
    // Asks for something that costs the desktop next to nothing. The answer is a sign of life, however late.
    virtual void askForSign() = 0;
};
