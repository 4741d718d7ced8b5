// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SignsOfLife.h"
#include "platform/desktop/KnownWindows.h"

// A desktop that reports its windows by itself, and may fall silent or go. Main thread only.
class TellingDesktop : public KnownWindows, public SignsOfLife {
public:
    void setHeardHandler(std::function<void()> heard) override { m_heardHandler = std::move(heard); }
    // Called when the display has gone, for this process perhaps for good. By then no window is listed.
    void setLostHandler(std::function<void()> lost) { m_lostHandler = std::move(lost); }

protected:
    using KnownWindows::KnownWindows;

    // The desktop has reported or answered something.
    void hear() const {
        if (m_heardHandler)
            m_heardHandler();
    }
    // The display has gone: from now on there is no window, and `front` is in front.
    void lose(const std::optional<ApplicationRecord>& front) {
        const bool isSwitch = take({}, front);
        if (m_lostHandler)
            m_lostHandler();
        if (isSwitch)
            tellOfSwitch();
    }

private:
    std::function<void()> m_heardHandler;
    std::function<void()> m_lostHandler;
};
