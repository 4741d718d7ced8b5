// SPDX-License-Identifier: MIT
#include "Classes/history/HistorySchema.h"
#include "tests/Places.h"
#include "tests/fakes/HistoryDiary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using State = HistoryKeeper::State;

// 5 January 2026, 9:00 in UTC.
constexpr std::int64_t kNine = 1'767'603'600'000;
constexpr std::int64_t kMinute = 60'000;

const Identity kMail = *Identity::fromBytes("mailmail");
const Identity kInbox = *Identity::fromBytes("inboxinb");
const Identity kFrozen = *Identity::fromBytes("frozenfr");

class HistoryFileTest : public testing::Test {
protected:
    static HistoryRow row(std::int64_t start, std::int64_t length, const char* program,
                          const char* title = "", RowTimer timer = {}) {
        return {.start = start,
                .length = length,
                .offset = 60,
                .program = QString::fromUtf8(program),
                .title = QString::fromUtf8(title),
                .timer = timer,
                .presence = RowPresence::Work};
    }

    HistoryKeeper::Report write(std::map<std::uint64_t, HistoryRow> rows) {
        return keeper->write({.changes = {}, .rows = std::move(rows), .owed = {}, .settledBefore = 0});
    }

    HistoryKeeper::Report change(HistoryChange::Any what) {
        return keeper->write({.changes = {std::move(what)}, .rows = {}, .owed = {}, .settledBefore = 0});
    }

    std::string diary() const { return HistoryDiary::of(path); }

    void reopen() { keeper.emplace(path); }

    SqliteDatabase byHand() { return SqliteDatabase(path, SqliteDatabase::Mode::ReadWrite, 0); }

    void TearDown() override {
        if (QFileInfo(path).isFile() && expectsSound) {
            EXPECT_EQ(HistoryDiary::flaws(path), QStringList());
        }
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("History.sqlite"));
    std::optional<HistoryKeeper> keeper{std::in_place, path};
    bool expectsSound = true;
};

TEST_F(HistoryFileTest, aRowThatGrows_isOneRow) {
    EXPECT_EQ(write({{1, row(kNine, 15'000, "Mail", "Inbox")}}).state, State::Written);
    write({{1, row(kNine, 30'000, "Mail", "Inbox")}, {2, row(kNine + 30'000, 500, "Editor", "a.txt")}});
    EXPECT_EQ(diary(), "Mail [Inbox] 30, Editor [a.txt] 0.5");
    EXPECT_EQ(HistoryDiary::sums(path), "Editor [a.txt] 0.5, Mail [Inbox] 30");
}

TEST_F(HistoryFileTest, aRowThatShrinksOrGoes_leavesNoSumBehind) {
    write({{1, row(kNine, 60'000, "Mail", "Inbox")}, {2, row(kNine + 60'000, 60'000, "Editor")}});
    write({{1, row(kNine, 20'000, "Mail", "Inbox")}, {2, row(kNine + 60'000, 0, "Editor")}});
    EXPECT_EQ(diary(), "Mail [Inbox] 20");
    EXPECT_EQ(HistoryDiary::sums(path), "Mail [Inbox] 20");
}

TEST_F(HistoryFileTest, rowsOfOneMoment_afterTheClockWasSet_areBothKept) {
    write({{1, row(kNine, 1000, "Mail")}});
    reopen();
    write({{1, row(kNine, 2000, "Editor")}});
    write({{1, row(kNine, 3000, "Editor")}});
    EXPECT_EQ(HistoryDiary::sums(path), "Editor 3, Mail 1");
}

TEST_F(HistoryFileTest, aDay_isOneOfTheUsersCalendar) {
    // 23:30 and 0:30 of the next day, an hour ahead of UTC.
    write({{1, row(kNine + 13 * 60 * kMinute + 30 * kMinute, kMinute, "Mail")},
           {2, row(kNine + 14 * 60 * kMinute + 30 * kMinute, 2 * kMinute, "Mail")}});
    EXPECT_EQ(byHand().number("SELECT length FROM days WHERE day = 20260105"), kMinute);
    EXPECT_EQ(byHand().number("SELECT length FROM days WHERE day = 20260106"), 2 * kMinute);
    HistoryFile(path).setDayBegin(4);
    EXPECT_EQ(byHand().number("SELECT length FROM days WHERE day = 20260105"), 3 * kMinute);
    EXPECT_EQ(byHand().number("SELECT length FROM months WHERE month = 202601"), 3 * kMinute);
}

TEST_F(HistoryFileTest, theFile_isTheUsersAlone) {
    write({{1, row(kNine, 1000, "Mail")}});
    for (const QFileInfo& file : QDir(folder.path()).entryInfoList(QDir::Files))
        EXPECT_EQ(file.permissions() &
                      (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                  QFile::Permissions())
            << qPrintable(file.fileName());
}

TEST_F(HistoryFileTest, aFrozenTimer_takesItsPastAlong) {
    write({{1, row(kNine, 1000, "Mail", "Inbox", {kMail, kInbox})}});
    change(HistoryChange::Moved{{{kMail, kInbox}, {kMail, kFrozen}}});
    write({{2, row(kNine + 1000, 5000, "Mail", "Inbox", {kMail, kInbox})}});
    const auto timeOf = [&](const Identity& window) {
        SqliteDatabase file = byHand();
        SqliteQuery row(file,
                        "SELECT sum(length) FROM stretches JOIN timers ON timers.id = timer WHERE window = ?",
                        window.bytes());
        return row.next() ? row.integer(0) : 0;
    };
    EXPECT_EQ(timeOf(kFrozen), 1000);
    EXPECT_EQ(timeOf(kInbox), 5000);
    change(HistoryChange::Moved{{{kMail, kFrozen}, {kMail, kInbox}}});
    EXPECT_EQ(timeOf(kInbox), 6000);
}

TEST_F(HistoryFileTest, aDeletedTimersPast_comesBackUntilTheNextLaunch) {
    write({{1, row(kNine, 1000, "Mail", "Inbox", {kMail, kInbox})},
           {2, row(kNine + 1000, 2000, "Mail", "Private", {kMail, kFrozen})}});
    change(HistoryChange::Deleted{{{kMail, kFrozen}}, true});
    EXPECT_EQ(diary(), "Mail [Inbox] 1");
    change(HistoryChange::Deleted{{{kMail, kFrozen}}, false});
    EXPECT_EQ(diary(), "Mail [Inbox] 1, Mail [Private] 2");
    change(HistoryChange::Deleted{{{kMail, kFrozen}}, true});
    reopen();
    write({{1, row(kNine + 9000, 500, "Mail", "Inbox", {kMail, kInbox})}});
    change(HistoryChange::Deleted{{{kMail, kFrozen}}, false});
    EXPECT_EQ(diary(), "Mail [Inbox] 1, Mail [Inbox] 0.5");
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Private")));
}

TEST_F(HistoryFileTest, aNameThatComesBack_hasAPastOfItsOwn) {
    write({{1, row(kNine, 1000, "Mail", "Inbox", {kMail, kInbox})}});
    change(HistoryChange::Deleted{{{kMail, std::nullopt}}, true});
    write({{2, row(kNine + 1000, 2000, "Mail", "Inbox", {kMail, kInbox})}});
    EXPECT_EQ(diary(), "Mail [Inbox] 2");
    reopen();
    write({});
    EXPECT_EQ(diary(), "Mail [Inbox] 2");
}

TEST_F(HistoryFileTest, whatIsForgotten_isInNoFile) {
    for (std::uint64_t i = 0; i < 300; ++i)
        write({{i, row(kNine + std::int64_t(i) * 1000, 1000, i % 2 ? "Mail" : "Browser",
                       i % 3 ? "Inbox" : "Something very private", {kMail, kInbox})}});
    ASSERT_TRUE(HistoryDiary::holdsText(path, QStringLiteral("very private")));
    change(HistoryChange::Forgotten{
        .program = {}, .title = QStringLiteral("Something very private"), .from = {}, .to = {}});
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("very private")));
    EXPECT_EQ(HistoryDiary::sums(path), "Browser [Inbox] 100, Mail [Inbox] 100");
    change(HistoryChange::Forgotten{.program = QStringLiteral("Browser"), .title = {}, .from = {}, .to = {}});
    EXPECT_EQ(HistoryDiary::sums(path), "Mail [Inbox] 100");
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Browser")));
}

TEST_F(HistoryFileTest, aForgottenRange_cutsWhatLiesAcrossItsEnds) {
    write({{1, row(kNine, 60'000, "Mail", "Inbox")}, {2, row(kNine + 60'000, 60'000, "Editor", "a.txt")}});
    change(
        HistoryChange::Forgotten{.program = {}, .title = {}, .from = kNine + 20'000, .to = kNine + 50'000});
    EXPECT_EQ(diary(), "Mail [Inbox] 20, Mail [Inbox] 10, Editor [a.txt] 60");
    change(
        HistoryChange::Forgotten{.program = {}, .title = {}, .from = kNine + 55'000, .to = kNine + 70'000});
    EXPECT_EQ(diary(), "Mail [Inbox] 20, Mail [Inbox] 5, Editor [a.txt] 50");
}

TEST_F(HistoryFileTest, whatIsOlderThanItIsKept_goes) {
    write(
        {{1, row(kNine, 60'000, "Mail", "Inbox")}, {2, row(kNine + 90 * 60'000, 60'000, "Editor", "a.txt")}});
    keeper->write({}, HistoryAge{.now = kNine + 120 * 60'000, .kept = 60 * 60'000});
    EXPECT_EQ(diary(), "Editor [a.txt] 60");
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Inbox")));
}

TEST_F(HistoryFileTest, withoutAFile_nothingIsLeft) {
    write({{1, row(kNine, 60'000, "Mail", "Inbox")}});
    EXPECT_EQ(keeper->remove().state, State::Written);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

TEST_F(HistoryFileTest, aNewerProgramsFile_isLeftAlone) {
    write({{1, row(kNine, 60'000, "Mail", "Inbox")}});
    keeper.emplace(path);
    byHand().execute("PRAGMA user_version = 3");
    EXPECT_EQ(write({{2, row(kNine + 60'000, 60'000, "Mail", "Inbox")}}).state, State::Newer);
    EXPECT_EQ(byHand().number("SELECT count(*) FROM stretches"), 1);
    EXPECT_EQ(QDir(folder.path()).entryList({QStringLiteral("*damaged*")}), QStringList());
}

// Written by the first version, whatever today's program writes.
TEST_F(HistoryFileTest, aFileOfTheFirstForm_isOpened) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(TICKLOG_SOURCE_DIR "/tests/data/history/1.sqlite"), path));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_EQ(write({{1, row(kNine + 90'000, 1000, "Mail", "Inbox")}}).state, State::Written);
    EXPECT_EQ(diary(), "Mail [Inbox] 60, Editor [a.txt] 30, Mail [Inbox] 1");
    EXPECT_EQ(byHand().number("PRAGMA user_version"), HistorySchema::kNumber);
}

TEST_F(HistoryFileTest, whatIsNoHistory_isSetAside) {
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(QByteArray(8192, 'x'));
    file.close();
    const auto report = write({{1, row(kNine, 1000, "Mail", "Inbox")}});
    EXPECT_EQ(report.state, State::Written);
    ASSERT_TRUE(report.setAside);
    EXPECT_TRUE(QFileInfo(*report.setAside).isFile());
    EXPECT_EQ(report.takenOver, 0);
    EXPECT_EQ(diary(), "Mail [Inbox] 1");
}

TEST_F(HistoryFileTest, aFolderInItsPlace_isTold) {
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_EQ(write({{1, row(kNine, 1000, "Mail", "Inbox")}}).state, State::Unwritten);
    ASSERT_TRUE(QDir().rmdir(path));
    EXPECT_EQ(write({{1, row(kNine, 1000, "Mail", "Inbox")}}).state, State::Written);
    EXPECT_EQ(diary(), "Mail [Inbox] 1");
}

TEST_F(HistoryFileTest, aFolderThatMayNotBeWritten_isTold_andWrittenWhenItMay) {
    // Root may write everywhere, but for where a file system says no.
    if (::geteuid() == 0) {
        const QString nowhere = QStringLiteral("/proc/self/History.sqlite");
        EXPECT_EQ(HistoryKeeper(nowhere).write({}).state, State::Unwritten);
        return;
    }
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    const auto report = write({{1, row(kNine, 1000, "Mail", "Inbox")}});
    EXPECT_EQ(report.state, State::Unwritten);
    EXPECT_FALSE(report.why.isEmpty());
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(write({{1, row(kNine, 1000, "Mail", "Inbox")}}).state, State::Written);
    EXPECT_EQ(diary(), "Mail [Inbox] 1");
}

// No file may grow, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(qint64 size) {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = rlim_t(size);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

TEST_F(HistoryFileTest, whatAFullDiskRefuses_isWrittenWholeLater) {
    write({{1, row(kNine, 1000, "Mail", "Inbox")}});
    std::map<std::uint64_t, HistoryRow> rows;
    for (std::uint64_t i = 1; i < 2000; ++i)
        rows[i] = row(kNine + std::int64_t(i) * 1000 - 1000, 1000, "Mail",
                      qPrintable(QStringLiteral("A title of some length %1").arg(i)));
    int refusals = 0;
    for (qint64 size = 60'000; size < 1'000'000; size += 40'000) {
        const FullDisk disk(size);
        refusals += write(rows).state == State::Unwritten;
    }
    EXPECT_GT(refusals, 2);
    EXPECT_EQ(write(rows).state, State::Written);
    EXPECT_EQ(byHand().number("SELECT sum(length) FROM stretches"), 1'999'000);
    EXPECT_EQ(byHand().number("SELECT count(*) FROM stretches"), 1999);
}

TEST_F(HistoryFileTest, twoPrograms_writeInTurn) {
    HistoryKeeper other(path);
    for (std::int64_t i = 0; i < 20; ++i) {
        write({{std::uint64_t(i), row(kNine + i * 2000, 1000, "Mail", "Inbox")}});
        EXPECT_EQ(other
                      .write({.changes = {},
                              .rows = {{std::uint64_t(i), row(kNine + i * 2000 + 1000, 1000, "Editor")}},
                              .owed = {},
                              .settledBefore = 0})
                      .state,
                  State::Written);
    }
    EXPECT_EQ(HistoryDiary::sums(path), "Editor 20, Mail [Inbox] 20");
}

TEST_F(HistoryFileTest, aFileThatIsTakenAway_isMadeAnew) {
    write({{1, row(kNine, 1000, "Mail", "Inbox")}});
    for (const QFileInfo& file : QDir(folder.path()).entryInfoList(QDir::Files))
        QFile::remove(file.filePath());
    EXPECT_EQ(write({{1, row(kNine, 2000, "Mail", "Inbox")}}).state, State::Written);
    EXPECT_EQ(diary(), "Mail [Inbox] 2");
}

TEST_F(HistoryFileTest, whileAnotherProgramReads_itIsWritten) {
    write({{1, row(kNine, 1000, "Mail", "Inbox")}});
    SqliteDatabase reader(path, SqliteDatabase::Mode::Read, 0);
    SqliteQuery reading(reader, "SELECT count(*) FROM stretches");
    ASSERT_TRUE(reading.next());
    EXPECT_EQ(write({{2, row(kNine + 1000, 1000, "Mail", "Inbox")}}).state, State::Written);
    EXPECT_EQ(diary(), "Mail [Inbox] 2");
}

TEST_F(HistoryFileTest, textsOfEveryKind_areWhatTheyAre) {
    const QString odd = QStringLiteral("'); DROP TABLE stretches; -- =1+1 \U0001F600 \u05d0\u05d1 ") +
                        QString(4000, QChar(u'\u00e4'));
    write({{1, row(kNine, 1000, "Mail", odd.toUtf8())}});
    EXPECT_EQ(diary(), "Mail [" + odd.toStdString() + "] 1");
}

// With one page damaged, the content of the others is rescued.
TEST_F(HistoryFileTest, damagedAtAnyPage_whatCanBeReadIsTakenOver) {
    HistoryBatch batch;
    for (std::uint64_t i = 0; i < 1200; ++i)
        batch.rows[i] = row(kNine + std::int64_t(i) * 10'000, 10'000, i % 2 ? "Mail" : "Browser",
                            qPrintable(QStringLiteral("Title %1").arg(i % 50)), {kMail, kInbox});
    ASSERT_EQ(keeper->write(batch).state, State::Written);
    byHand().execute("PRAGMA wal_checkpoint(TRUNCATE)");
    keeper.emplace(path);
    ASSERT_TRUE(QFile::rename(path, path + QStringLiteral(".whole")));
    const qint64 pages = QFileInfo(path + QStringLiteral(".whole")).size() / 4096;
    int takenOver = 0;
    int setAside = 0;
    for (qint64 page = 0; page < pages; ++page) {
        for (const QFileInfo& file :
             QDir(folder.path()).entryInfoList({QStringLiteral("History.sqlite*")}, QDir::Files))
            if (file.suffix() != QLatin1String("whole"))
                QFile::remove(file.filePath());
        ASSERT_TRUE(QFile::copy(path + QStringLiteral(".whole"), path));
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::ReadWrite) && file.seek(page * 4096));
        file.write(QByteArray(4096, char(0xa5)));
        file.close();
        HistoryKeeper again(path);
        // Something that touches all of it.
        const auto report =
            again.write({.changes = {HistoryChange::Forgotten{
                             .program = QStringLiteral("Nothing"), .title = {}, .from = {}, .to = {}}},
                         .rows = {{1, row(kNine - 10'000, 1000, "Mail", "Title 1")}},
                         .owed = {},
                         .settledBefore = 0});
        EXPECT_EQ(report.state, State::Written) << "page " << page << qPrintable(report.why);
        setAside += report.setAside.has_value();
        takenOver += report.takenOver;
        if (report.setAside) {
            EXPECT_EQ(HistoryDiary::flaws(path), QStringList()) << "page " << page;
        }
    }
    EXPECT_GT(setAside, 5);
    EXPECT_GT(takenOver, setAside * 1200 / 2) << "more than half, on average";
    expectsSound = false;
}

} // namespace
