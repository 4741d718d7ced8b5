// SPDX-License-Identifier: MIT
#include "platform/linux/LockAwareFrontApplication.h"

namespace {

std::optional<ApplicationRecord> coverOf(const ScreenLock& lock) {
    if (lock.isGreeter())
        return ApplicationRecord{kLoginWindowName, QString(), LockAwareFrontApplication::kLoginWindowProcess};
    if (lock.isLocked())
        return ApplicationRecord{kScreenSaverName, QString(), LockAwareFrontApplication::kScreenSaverProcess};
    return std::nullopt;
}

} // namespace

LockAwareFrontApplication::LockAwareFrontApplication(FrontApplication& unlocked, ScreenLock& lock)
    : m_unlocked(unlocked)
    , m_lock(lock)
    , m_cover(coverOf(lock))
    , m_lockChanges(lock.observe([this] { follow(); })) {}

const std::optional<ApplicationRecord>& LockAwareFrontApplication::activeApplication() const {
    return m_cover ? m_cover : m_unlocked.activeApplication();
}

bool LockAwareFrontApplication::installSwitchHandler(std::function<void()> handler) {
    m_handler = std::move(handler);
    if (!m_handler)
        return m_unlocked.installSwitchHandler({});
    return m_unlocked.installSwitchHandler([this] {
        // What goes on behind the lock is no switch of the one in front.
        if (!m_cover)
            callHandler();
    });
}

void LockAwareFrontApplication::follow() {
    const auto cover = coverOf(m_lock);
    if (cover == m_cover)
        return;
    m_cover = cover;
    callHandler();
}

void LockAwareFrontApplication::callHandler() {
    // A copy: the handler may replace itself.
    const auto handler = m_handler;
    if (handler)
        handler();
}
