// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FrontApplication.h"
#include "platform/linux/ScreenLock.h"

#include <limits>

// Puts the screen saver in front while the screen is locked, and the login window while nobody has logged in,
// whatever the window system says: their windows are not among those it lists, so their process has no window
// of layer 0. Both must outlive it.
class LockAwareFrontApplication : public FrontApplication {
public:
    // No back end gives these numbers to a client.
    static constexpr std::int64_t kScreenSaverProcess = std::numeric_limits<std::int64_t>::min();
    static constexpr std::int64_t kLoginWindowProcess = kScreenSaverProcess + 1;

    LockAwareFrontApplication(FrontApplication& unlocked, ScreenLock& lock);

    const std::optional<ApplicationRecord>& activeApplication() const override;
    // Called at the edges of the lock too, whatever this answers; while locked, for nothing else.
    bool installSwitchHandler(std::function<void()> handler) override;

    QString bundleName(const QString& path) const override { return m_unlocked.bundleName(path); }

    QString describe() const override { return m_unlocked.describe(); }

    QString obstacle() const override { return m_unlocked.obstacle(); }

private:
    void follow();
    void callHandler();

    FrontApplication& m_unlocked;
    ScreenLock& m_lock;
    // Present while something covers the programs.
    std::optional<ApplicationRecord> m_cover;
    std::function<void()> m_handler;
    Subscription m_lockChanges;
};
