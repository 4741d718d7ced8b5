// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxOwnProgram.h"
#include "tests/Places.h"
#include "tests/desktop/harness/Product.h"

#include <QFile>

#include <csignal>
#include <gtest/gtest.h>

namespace {

const QString kTicklog = QStringLiteral(TICKLOG_BINARY_DIR "/ticklog");
const QString kPredecessor = QStringLiteral(TICKLOG_BINARY_DIR "/predecessor");

class LinuxOwnProgramTest : public testing::Test {
protected:
    // A program that holds Ticklog's locks starts the new one and ends.
    void succeed(const QString& program) {
        const auto predecessor = desk.start(kPredecessor, {program}, Program::Output::Read);
        ASSERT_EQ(predecessor->readLine(), "ready");
        predecessor->write("\n");
        ASSERT_TRUE(predecessor->waitUntilEnded());
        EXPECT_EQ(predecessor->exitStatus(), 0);
    }

    bool isLeft(const char* verdict) const {
        return QFile::exists(desk.home().path() + u'/' + QLatin1String(verdict));
    }

    // It is no longer anybody's child, so the machine decides when its process entry goes.
    static bool isGone(pid_t process) {
        QFile state(QStringLiteral("/proc/%1/stat").arg(process));
        return !state.open(QFile::ReadOnly) || state.readAll().contains(") Z ");
    }

    static void end(pid_t process) {
        ::kill(process, SIGTERM);
        EXPECT_TRUE(waitFor([process] { return isGone(process); }));
    }

    Desk desk;
    Product product{desk};
};

TEST_F(LinuxOwnProgramTest, theNewInstance_beginsWhenEveryLockIsFree) {
    succeed(kPredecessor);
    EXPECT_TRUE(waitFor([this] { return isLeft("free") || isLeft("taken"); }));
    EXPECT_FALSE(isLeft("taken"));
}

TEST_F(LinuxOwnProgramTest, ticklogStartedAnew_isTheOneThatLaterStartsHandOverTo) {
    succeed(kTicklog);
    ASSERT_TRUE(waitFor([this] { return product.hasWindow(); }));
    const auto successor = pid_t(desk.probe().number(product.window(), "_NET_WM_PID"));
    const auto second = desk.start(kTicklog);
    EXPECT_TRUE(second->waitUntilEnded());
    EXPECT_EQ(second->exitStatus(), 0);
    EXPECT_FALSE(isGone(successor));
    end(successor);
}

TEST_F(LinuxOwnProgramTest, aProgramThatIsGone_isTold) {
    LinuxOwnProgram program(desk.home().path() + QStringLiteral("/ticklog"));
    const Outcome relaunched = program.relaunch();
    ASSERT_FALSE(relaunched);
    EXPECT_TRUE(relaunched.failure().text.endsWith(QStringLiteral("/ticklog: No such file or directory")));
}

} // namespace
