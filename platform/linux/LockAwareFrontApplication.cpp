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
    : FrontCover(unlocked, coverOf(lock))
    , m_lockChanges(lock.observe([this, &lock] { cover(coverOf(lock)); })) {}
