// SPDX-License-Identifier: MIT
#include "interface/shell/SingleInstance.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using Answer = SingleInstance::Answer;

struct SingleInstanceTest : testing::Test {
    // What a second start answers; the first one's loop must turn meanwhile.
    bool handOver(const std::optional<QString>& file) { return answerTo(file) == Answer::Heard; }

    Answer answerTo(const std::optional<QString>& file) {
        std::atomic<bool> isAnswered = false;
        Answer answer = Answer::None;
        std::thread second([&] {
            answer = SingleInstance(InstanceAddress(folder.path(), display)).handOver(file);
            isAnswered = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return isAnswered.load(); }, 20000));
        second.join();
        return answer;
    }

    // A connection of somebody who knows the socket.
    int connectTo(const QByteArray& path) const {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
        const int guest = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_EQ(::connect(guest, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        return guest;
    }

    QByteArray path() const { return InstanceAddress(folder.path(), display).name(); }

    // What it receives before the other side hangs up.
    static bool hasHungUp(int guest) {
        char byte = 0;
        return ::recv(guest, &byte, 1, MSG_DONTWAIT) == 0;
    }

    void listen(SingleInstance& first) {
        ASSERT_TRUE(first.isFirst());
        first.listen(admission, [this](const std::optional<QString>& file, const Admission::Ticket& ticket) {
            ++heard;
            last = file;
            if (isAsking)
                asking.push_back(ticket);
        });
    }

    Admission admission;
    // Questions that nobody has answered.
    bool isAsking = false;
    std::vector<Admission::Ticket> asking;
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

TEST_F(SingleInstanceTest, moreHandOversThanCanWait_areRefusedUntilOneIsAnswered) {
    SingleInstance first(InstanceAddress(folder.path(), display));
    listen(first);
    isAsking = true;
    for (int i = 0; i < Admission::kMost; ++i)
        EXPECT_EQ(answerTo(QStringLiteral("/a.tkd")), Answer::Heard);
    EXPECT_EQ(answerTo(QStringLiteral("/a.tkd")), Answer::Busy);
    EXPECT_EQ(heard, Admission::kMost);
    EXPECT_EQ(admission.admit(), nullptr) << "nor by another way";
    asking.pop_back();
    EXPECT_EQ(answerTo(std::nullopt), Answer::Heard);
}

TEST_F(SingleInstanceTest, aGuestWhoSaysAByteNowAndThen_isSentAwayAndHoldsNobodyUp) {
    SingleInstance first(InstanceAddress(folder.path(), display));
    listen(first);
    const int slow = connectTo(path());
    int turns = 0;
    EXPECT_TRUE(handOver(std::nullopt)) << "others are heard meanwhile";
    EXPECT_TRUE(QTest::qWaitFor([&] {
        ++turns;
        (void)::send(slow, "a", 1, MSG_NOSIGNAL);
        return hasHungUp(slow);
    }));
    EXPECT_GT(turns, 5) << "the loop turned all the while";
    EXPECT_EQ(heard, 1);
    ::close(slow);
}

TEST_F(SingleInstanceTest, aCrowdOfSilentGuests_onlyDelays) {
    SingleInstance first(InstanceAddress(folder.path(), display));
    listen(first);
    std::vector<int> guests;
    for (std::size_t i = 0; i < 2 * SingleInstance::kMostGuests - 1; ++i) {
        QCoreApplication::processEvents();
        guests.push_back(connectTo(path()));
    }
    EXPECT_TRUE(handOver(QStringLiteral("/a.tkd")));
    EXPECT_EQ(last, QStringLiteral("/a.tkd"));
    for (const int guest : guests)
        ::close(guest);
}

TEST_F(SingleInstanceTest, aGuestWhoTalksOnAndOn_isSentAway) {
    SingleInstance first(InstanceAddress(folder.path(), display));
    listen(first);
    const int guest = connectTo(path());
    const QByteArray talk(8192, 'a');
    EXPECT_EQ(::send(guest, talk.constData(), std::size_t(talk.size()), MSG_NOSIGNAL), talk.size());
    EXPECT_TRUE(QTest::qWaitFor([&] {
        char byte = 0;
        const ssize_t count = ::recv(guest, &byte, 1, MSG_DONTWAIT);
        return count == 0 || (count < 0 && errno == ECONNRESET);
    }));
    EXPECT_EQ(heard, 0);
    ::close(guest);
}
