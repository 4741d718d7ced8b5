// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/FrontCover.h"
#include "platform/linux/ScreenLock.h"

#include <limits>

// Puts the screen saver in front while the screen is locked, and the login window while nobody has logged in,
// whatever the window system says. Their windows are not in the window list, so their process has no ordinary
// window. Both must outlive it.
class LockAwareFrontApplication : public FrontCover {
public:
    // No back end gives a client these numbers.
    static constexpr std::int64_t kScreenSaverProcess = std::numeric_limits<std::int64_t>::min();
    static constexpr std::int64_t kLoginWindowProcess = kScreenSaverProcess + 1;

    LockAwareFrontApplication(FrontApplication& unlocked, ScreenLock& lock);

private:
    Subscription m_lockChanges;
};
