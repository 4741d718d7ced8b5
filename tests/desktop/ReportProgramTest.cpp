// SPDX-License-Identifier: MIT
// ticklog-report as people and other programs call it.
#include "tests/Places.h"
#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace {

class ReportProgramTest : public testing::Test {
protected:
    struct Outcome {
        int status;
        QByteArray printed;
        QByteArray complaint;
    };

    Outcome run(const QStringList& arguments) const {
        QProcess program;
        program.setProcessEnvironment(m_home.environment());
        program.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog-report"), arguments);
        EXPECT_TRUE(program.waitForFinished());
        return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
    }

    TemporaryHome m_home;
};

TEST_F(ReportProgramTest, helpAndVersion_areAnsweredWithoutAHistory) {
    EXPECT_TRUE(run({QStringLiteral("--help")}).printed.startsWith("Usage: ticklog-report"));
    EXPECT_TRUE(run({QStringLiteral("--version")}).printed.startsWith("ticklog-report "));
}

TEST_F(ReportProgramTest, aWrongCommandLine_isTwoAndOneLine) {
    const Outcome outcome = run({QStringLiteral("--by"), QStringLiteral("colour")});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.printed, "");
    EXPECT_EQ(outcome.complaint.count('\n'), 1);
}

TEST_F(ReportProgramTest, aHistoryThatIsNotThereOrNone_isOneAndOneLine) {
    m_home.write(QStringLiteral("text"), "This is no history, but it is long enough to be taken for a file.");
    for (const QString& file :
         QStringList{m_home.path() + QStringLiteral("/text"), m_home.path(), QStringLiteral("/nowhere")}) {
        const Outcome outcome = run({QStringLiteral("--history"), file});
        EXPECT_EQ(outcome.status, 1) << qPrintable(file);
        EXPECT_EQ(outcome.printed, "");
        EXPECT_EQ(outcome.complaint.count('\n'), 1) << outcome.complaint.constData();
    }
}

} // namespace
