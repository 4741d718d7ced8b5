// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SignsOfLife.h"
#include "platform/desktop/KnownWindows.h"

// A desktop that reports its windows by itself, and may fall silent or go. Main thread only.
class TellingDesktop : public KnownWindows, public SignsOfLife {
public:
    Subscription observeSigns(News::Hearer hearer) override { return m_signs.observe(std::move(hearer)); }
    // Calls `hearer` when the display has gone, for this process perhaps for good. By then no window is
    // listed.
    Subscription observeLoss(News::Hearer hearer) { return m_loss.observe(std::move(hearer)); }

protected:
    using KnownWindows::KnownWindows;

    // The desktop has reported or answered something.
    void hear() const { m_signs.tell(); }
    // The display has gone: from now on there is no window, and `front` is in front.
    void lose(const std::optional<ApplicationRecord>& front) {
        const bool isSwitch = take({}, front);
        m_loss.tell();
        if (isSwitch)
            tellOfSwitch();
    }

private:
    News m_signs;
    News m_loss;
};
