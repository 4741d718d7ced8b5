// SPDX-License-Identifier: MIT
#include "platform/linux/JournalLog.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// The journal's end of its socket.
class Journal {
public:
    Journal()
        : m_socket(socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray path = socketPath().toUtf8();
        std::memcpy(address.sun_path, path.constData(), path.size());
        if (bind(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
            qFatal("no socket for the journal");
    }

    ~Journal() { close(m_socket); }

    QString socketPath() const { return m_home.runtimeFolder() + QStringLiteral("/journal"); }

    // The next entry; empty when there is none.
    std::string receive() {
        std::array<char, 65536> buffer{};
        const auto size = recv(m_socket, buffer.data(), buffer.size(), 0);
        return size < 0 ? std::string() : std::string(buffer.data(), std::size_t(size));
    }

private:
    TemporaryHome m_home;
    int m_socket;
};

TEST(JournalLog, aLine_isAnEntryOfTheJournal) {
    Journal journal;
    JournalLog log({journal.socketPath(), false});
    log.log(QStringLiteral("the tray is gone: äöü"));
    EXPECT_EQ(journal.receive(),
              "PRIORITY=6\nSYSLOG_IDENTIFIER=ticklog\nMESSAGE=the tray is gone: \xC3\xA4\xC3\xB6\xC3\xBC\n");
}

TEST(JournalLog, aLineBreak_cannotForgeAField) {
    Journal journal;
    JournalLog log({journal.socketPath(), false});
    log.log(QStringLiteral("one\nPRIORITY=0"));
    const std::string length{14, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(journal.receive(),
              "PRIORITY=6\nSYSLOG_IDENTIFIER=ticklog\nMESSAGE\n" + length + "one\nPRIORITY=0\n");
}

TEST(JournalLog, aJournalThatDoesNotKeepUp_costsLinesButNoTime) {
    Journal journal;
    JournalLog log({journal.socketPath(), false});
    for (int i = 0; i < 100000; ++i)
        log.log(QStringLiteral("line %1").arg(i));
    EXPECT_NE(journal.receive().find("MESSAGE=line 0\n"), std::string::npos);
}

TEST(JournalLog, standardError_getsTheLineOnlyWhenWanted) {
    Journal journal;
    testing::internal::CaptureStderr();
    JournalLog({journal.socketPath(), false}).log(QStringLiteral("quiet"));
    JournalLog({journal.socketPath(), true}).log(QStringLiteral("loud"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "loud\n");
}

TEST(JournalLog, whatWouldCommandATerminal_isShownInstead) {
    testing::internal::CaptureStderr();
    JournalLog({QStringLiteral("/nowhere/journal"), true})
        .log(QStringLiteral("\x1b]0;title\x07 \u009b2J\r\u202e ä\nforged: all is well"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "\uFFFD]0;title\uFFFD \uFFFD2J\uFFFD\uFFFD ä\n"
                                                      "  forged: all is well\n");
}

TEST(JournalLog, withoutAJournal_standardErrorStillGetsTheLine) {
    testing::internal::CaptureStderr();
    JournalLog({QStringLiteral("/nowhere/journal"), true}).log(QStringLiteral("loud"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "loud\n");
}

TEST(JournalLog, whatIsPrinted_goesToStandardOutput) {
    testing::internal::CaptureStdout();
    JournalLog({QString(), false}).print(QStringLiteral("printed"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "printed\n");
}

TEST(JournalLog, theEnvironment_canAskForStandardError) {
    qputenv("TICKLOG_LOG_STDERR", "1");
    EXPECT_TRUE(JournalLog::usualDestinations().toStandardError);
}

} // namespace
