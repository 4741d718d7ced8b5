// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <sys/types.h>
#include <unistd.h>

// One writer for an account, whichever displays and sessions its user has: two would take turns at overwriting each
// other's time. Held for as long as it lives, and no longer than the process.
class AccountLock {
public:
    // `folder` is the application-support folder, which is made if it is missing. What others have put there is no lock.
    explicit AccountLock(const QString& folder, uid_t user = ::geteuid());
    AccountLock(const AccountLock&) = delete;
    AccountLock& operator=(const AccountLock&) = delete;
    ~AccountLock();

    // False only when somebody else holds it: where locks cannot be had, one instance is better than none.
    bool isHeld() const { return !m_isTaken; }

private:
    int m_file = -1;
    bool m_isTaken = false;
};
