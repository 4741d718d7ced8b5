// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <sys/types.h>
#include <unistd.h>

// Makes sure that only one process writes an account, on whatever display or session: two would overwrite
// each other's time. The lock lasts as long as this object, and ends with the process at the latest.
class AccountLock {
public:
    // `folder` is the application-support folder, which is made if it is missing. A lock file of another user
    // does not count.
    explicit AccountLock(const QString& folder, uid_t user = ::geteuid());
    AccountLock(const AccountLock&) = delete;
    AccountLock& operator=(const AccountLock&) = delete;
    ~AccountLock();

    // False only if another process holds the lock. Where locks do not work it is true: running without a
    // lock is better than not running.
    bool isHeld() const { return !m_isTaken; }

private:
    int m_file = -1;
    bool m_isTaken = false;
};
