// SPDX-License-Identifier: MIT
#include "interface/shell/SingleInstance.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

struct SingleInstanceTest : testing::Test {
    // What a second start answers; the first must turn its loop meanwhile.
    bool handOver(const std::optional<QString>& file) {
        std::optional<bool> answer;
        std::thread second(
            [&] { answer = SingleInstance(InstanceAddress(folder.path(), display)).handOver(file); });
        const bool isHeard = QTest::qWaitFor([&] { return heard > 0; }, 20000);
        second.join();
        return isHeard && answer.value_or(false);
    }

    void listen(SingleInstance& first) {
        ASSERT_TRUE(first.isFirst());
        first.listen([this](const std::optional<QString>& file) {
            ++heard;
            last = file;
        });
    }

    QTemporaryDir folder;
    QString display = QStringLiteral(":7");
    int heard = 0;
    std::optional<QString> last;
};

} // namespace

TEST_F(SingleInstanceTest, theSecond_isNotTheFirst) {
    SingleInstance first(InstanceAddress(folder.path(), display));
    listen(first);
    EXPECT_FALSE(SingleInstance(InstanceAddress(folder.path(), display)).isFirst());
    EXPECT_TRUE(SingleInstance(InstanceAddress(folder.path(), QStringLiteral(":8"))).isFirst())
        << "another display";
}

TEST_F(SingleInstanceTest, whoeverOnlyLooks_isNotNoticed) {
    for (const QString& place : {folder.path(), QString()}) {
        const InstanceAddress address(place, display);
        EXPECT_FALSE(address.isServed());
        {
            SingleInstance first(address);
            listen(first);
            EXPECT_TRUE(address.isServed());
            EXPECT_FALSE(InstanceAddress(place, QStringLiteral("x") + display).isServed());
            QCoreApplication::processEvents();
            EXPECT_EQ(heard, 0);
        }
        EXPECT_FALSE(address.isServed());
    }
}

TEST_F(SingleInstanceTest, theSecond_handsOverItsFile) {
    SingleInstance first(InstanceAddress(folder.path(), display));
    listen(first);
    EXPECT_TRUE(handOver(QStringLiteral("/home/someone/Zeit für Übung.tkd")));
    EXPECT_EQ(last, QStringLiteral("/home/someone/Zeit für Übung.tkd"));
}

TEST_F(SingleInstanceTest, theSecondWithoutAFile_onlyKnocks) {
    SingleInstance first(InstanceAddress(folder.path(), display));
    listen(first);
    EXPECT_TRUE(handOver(std::nullopt));
    EXPECT_EQ(last, std::nullopt);
}

TEST_F(SingleInstanceTest, withoutAnyFolder_theKernelKeepsTheName) {
    display = QStringLiteral("test-%1").arg(::getpid());
    SingleInstance first(InstanceAddress(QString(), display));
    ASSERT_TRUE(first.isFirst());
    EXPECT_FALSE(SingleInstance(InstanceAddress(QString(), display)).isFirst());
}

TEST_F(SingleInstanceTest, whatACrashLeaves_isTakenOver) {
    const pid_t crashing = ::fork();
    if (crashing == 0) {
        auto* first = new SingleInstance(InstanceAddress(folder.path(), display));
        ::_exit(first->isFirst() ? 0 : 1);
    }
    int status = 1;
    ASSERT_EQ(::waitpid(crashing, &status, 0), crashing);
    ASSERT_EQ(status, 0);
    const QString socket = folder.filePath(QStringLiteral("org.ticklog.Ticklog-%1-:7").arg(::getuid()));
    ASSERT_TRUE(QFileInfo(socket).exists()) << "the socket is left behind";
    SingleInstance next(InstanceAddress(folder.path(), display));
    listen(next);
    EXPECT_TRUE(handOver(std::nullopt));
}

TEST_F(SingleInstanceTest, theSocket_isTheUsersAlone) {
    SingleInstance first(InstanceAddress(folder.path(), display));
    listen(first);
    const QString socket = folder.filePath(QStringLiteral("org.ticklog.Ticklog-%1-:7").arg(::getuid()));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_EQ(QFile::permissions(socket) & others, QFile::Permissions());
}
