// SPDX-License-Identifier: MIT
#include "app/AccountLock.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct AccountLockTest : testing::Test {
    QByteArray lockPath() const { return QFile::encodeName(folder + u"/.lock"_s); }

    TemporaryHome home;
    QString folder = home.path() + u"/Ticklog"_s;
};

TEST_F(AccountLockTest, anAccount_hasOneWriter) {
    {
        const AccountLock first(folder);
        EXPECT_TRUE(first.isHeld());
        EXPECT_FALSE(AccountLock(folder).isHeld());
    }
    EXPECT_TRUE(AccountLock(folder).isHeld());
}

TEST_F(AccountLockTest, aLinkInThePlaceOfTheLock_isNotFollowed) {
    ASSERT_EQ(::mkdir(QFile::encodeName(folder).constData(), 0700), 0);
    const QString elsewhere = home.path() + u"/elsewhere"_s;
    ASSERT_TRUE(QFile::link(elsewhere, folder + u"/.lock"_s));
    EXPECT_TRUE(AccountLock(folder).isHeld());
    EXPECT_FALSE(QFile::exists(elsewhere));
}

TEST_F(AccountLockTest, aLockOfSomebodyElse_keepsNobodyOut) {
    ASSERT_EQ(::mkdir(QFile::encodeName(folder).constData(), 0700), 0);
    const int file = ::open(lockPath().constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    ASSERT_GE(file, 0);
    ASSERT_EQ(::flock(file, LOCK_EX), 0);
    constexpr uid_t kNobody = 65534;
    // Root's files count as anybody's own.
    if (::geteuid() == 0) {
        ASSERT_EQ(::fchown(file, kNobody, kNobody), 0);
    }
    const uid_t theirs = ::geteuid() == 0 ? kNobody : ::geteuid();
    EXPECT_FALSE(AccountLock(folder, theirs).isHeld());
    EXPECT_TRUE(AccountLock(folder, theirs + 1).isHeld());
    ::close(file);
}

} // namespace
