// SPDX-License-Identifier: MIT
// ticklog-report as people and other programs call it.
#include "Classes/history/HistoryKeeper.h"
#include "tests/Places.h"
#include "tests/desktop/harness/Packaged.h"
#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/fakes/HistoryDiary.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

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

    // A second of work each, one behind the other from 5 January 2026, 9:00.
    static HistoryBatch batch(int first, int count) {
        HistoryBatch batch;
        for (int i = first; i < first + count; ++i)
            batch.rows[std::uint64_t(i)] = {.start = 1'767'603'600'000 + std::int64_t(i) * 1000,
                                            .length = 1000,
                                            .offset = 0,
                                            .program = QStringLiteral("Mail"),
                                            .title = QStringLiteral("Letter to %1").arg(i % 100),
                                            .timer = {},
                                            .presence = RowPresence::Work};
        batch.settledBefore = std::uint64_t(first + count);
        return batch;
    }

    // What finds the file busy is written again, as Ticklog does; any other refusal counts.
    static int refusalsOf60Writes(const QString& file, int first) {
        HistoryKeeper keeper(file);
        int refusals = 0;
        for (int i = 0; i < 60; ++i) {
            HistoryKeeper::Report report;
            do
                report = keeper.write(batch(first + i * 3, 3));
            while (report.isBusy);
            refusals += report.state != HistoryKeeper::State::Written;
        }
        return refusals;
    }

    TemporaryHome m_home;
};

// Readers see whole states only, and hinder nobody: each of three seconds of work.
TEST_F(ReportProgramTest, whileTicklogWrites_itAndAnyOtherReaderSeeWholeStates) {
    SKIP_WHERE_NOT_PACKAGED(QStringLiteral("sqlite3"));
    const QString file = m_home.path() + QStringLiteral("/History.sqlite");
    HistoryKeeper keeper(file);
    int written = 0;
    const auto write = [&] {
        ASSERT_EQ(keeper.write(batch(written * 3, 3)).state, HistoryKeeper::State::Written);
        ++written;
    };
    write();
    const QProcessEnvironment environment = m_home.environment();
    for (int round = 0; round < 12; ++round) {
        QProcess shell;
        shell.start(QStringLiteral("sqlite3"),
                    {QStringLiteral("-readonly"), file,
                     QStringLiteral("BEGIN; SELECT count(*), sum(seconds) FROM diary; SELECT "
                                    "sum(length) FROM days; PRAGMA integrity_check;")});
        QProcess report;
        report.setProcessEnvironment(environment);
        report.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog-report"),
                     {QStringLiteral("--from=2026-01-05"), QStringLiteral("--to=2026-01-06"),
                      QStringLiteral("--format=csv"), QStringLiteral("--history"), file});
        const int before = written;
        while (shell.state() != QProcess::NotRunning || report.state() != QProcess::NotRunning) {
            write();
            shell.waitForFinished(1);
            report.waitForFinished(1);
        }
        const QList<QByteArray> told = shell.readAllStandardOutput().trimmed().split('\n');
        ASSERT_EQ(told.size(), 3) << shell.readAllStandardError().constData();
        const int seen = told[0].split('|').first().toInt();
        EXPECT_EQ(seen % 3, 0);
        EXPECT_GE(seen, before * 3);
        EXPECT_EQ(told[0].split('|').last().toDouble(), seen);
        EXPECT_EQ(told[1].toInt(), seen * 1000);
        EXPECT_EQ(told[2], "ok");
        const QByteArray printed = report.readAllStandardOutput();
        ASSERT_TRUE(printed.startsWith("app,seconds\r\nMail,")) << printed.constData();
        EXPECT_EQ(printed.trimmed().split(',').last().toInt() % 3, 0);
    }
    EXPECT_EQ(HistoryDiary::flaws(file), QStringList());
}

// Two programs at once, as two of one user on two screens: each has what it wrote.
TEST_F(ReportProgramTest, twoProgramsThatWriteAtOnce_loseNothing) {
    const QString file = m_home.path() + QStringLiteral("/History.sqlite");
    const pid_t other = ::fork();
    if (other == 0)
        ::_exit(refusalsOf60Writes(file, 100'000));
    EXPECT_EQ(refusalsOf60Writes(file, 0), 0);
    int status = -1;
    ::waitpid(other, &status, 0);
    EXPECT_EQ(status, 0) << "writes that were refused";
    EXPECT_EQ(SqliteDatabase(file, SqliteDatabase::Mode::Read, 0).number("SELECT count(*) FROM stretches"),
              360);
    EXPECT_EQ(HistoryDiary::flaws(file), QStringList());
}

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
