// SPDX-License-Identifier: MIT
#include "Classes/history/HistoryFinding.h"
#include "tests/Places.h"
#include "tests/fakes/HistoryDiary.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using Kind = Amendment::Kind;
using State = HistoryKeeper::State;

// 5 January 2026, 9:00 in UTC. Tests run in that zone.
constexpr std::int64_t kNine = 1'767'603'600'000;
constexpr std::int64_t kMinute = 60'000;

const Identity kMail = *Identity::fromBytes("mailmail");
const Identity kInbox = *Identity::fromBytes("inboxinb");
const Identity kFrozen = *Identity::fromBytes("frozenfr");
const Identity kMeier = *Identity::fromBytes("meiermei");

class HistoryAmendingTest : public testing::Test {
protected:
    static HistoryRow row(std::int64_t start, std::int64_t length, const char* program,
                          const char* title = "", RowPresence presence = RowPresence::Work) {
        return {.start = start,
                .length = length,
                .offset = 0,
                .program = QString::fromUtf8(program),
                .title = QString::fromUtf8(title),
                .timer = presence == RowPresence::Work ? RowTimer{kMail, kInbox} : RowTimer(),
                .presence = presence};
    }

    void write(std::vector<HistoryRow> rows) {
        HistoryBatch batch;
        for (HistoryRow& each : rows)
            batch.rows[++serial] = std::move(each);
        EXPECT_EQ(keeper.write(batch).state, State::Written);
    }

    HistoryKeeper::Report change(HistoryChange::Any what) {
        return keeper.write({.changes = {std::move(what)}, .rows = {}, .owed = {}, .settledBefore = 0});
    }

    // Answers by what it is taken back.
    std::int64_t amend(const Amendment& what) {
        const auto report = change(HistoryChange::Amended{what, ++made});
        EXPECT_EQ(report.state, State::Written) << qPrintable(report.why);
        EXPECT_TRUE(report.isAmended);
        return made;
    }

    void takeBack(std::int64_t amendment) { change(HistoryChange::TakenBack{amendment}); }

    // About all titles with "private" in them.
    static HistoryChange::Any rule(const char* effect) {
        const PropertyListDictionary rule{{QStringLiteral("Title"), QStringLiteral("private")},
                                          {QStringLiteral("Effect"), QString::fromUtf8(effect)}};
        return HistoryChange::Ruled{PropertyListArray{rule}, std::nullopt};
    }

    static Amendment named(std::int64_t from, std::int64_t to, const char* name) {
        return {.kind = Kind::Change, .pieces = {{from, to}}, .name = QString::fromUtf8(name)};
    }
    static Amendment given(std::int64_t from, std::int64_t to, std::optional<Identity> project = kMeier) {
        return {.kind = Kind::Change,
                .pieces = {{from, to}},
                .name = {},
                .project = RowProject{project},
                .projectName = QStringLiteral("Meier")};
    }
    static Amendment booked(std::int64_t from, std::int64_t to, const char* name) {
        return {.kind = Kind::Book, .pieces = {{from, to}}, .name = QString::fromUtf8(name)};
    }

    std::string diary() const { return HistoryDiary::of(path); }
    std::int64_t number(const char* sql) {
        return SqliteDatabase(path, SqliteDatabase::Mode::Read, 0).number(sql);
    }
    std::int64_t lengthOfMeier() {
        return number("SELECT ifnull(sum(length), 0) FROM days JOIN timers ON timers.id = timer "
                      "WHERE NOT deleted AND project = CAST('meiermei' AS BLOB)");
    }

    void TearDown() override {
        EXPECT_EQ(HistoryDiary::flaws(path), QStringList());
        EXPECT_EQ(HistoryDiary::sums(path).empty(), diary().empty());
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("History.sqlite"));
    HistoryKeeper keeper{path};
    std::uint64_t serial = 0;
    std::int64_t made = kNine + 1'000'000'000;
};

TEST_F(HistoryAmendingTest, aNamedPiece_isCutOutOfItsStretches_andComesBackWhenUndone) {
    write({row(kNine, 60'000, "Mail", "Inbox"), row(kNine + 60'000, 60'000, "Editor", "a.txt")});
    const auto meeting = amend(named(kNine + 20'000, kNine + 90'000, "Meeting"));
    EXPECT_EQ(diary(), "Mail [Inbox] 20, Mail [Meeting] 40, Editor [Meeting] 30, Editor [a.txt] 30");
    EXPECT_EQ(HistoryDiary::sums(path),
              "Editor [Meeting] 30, Editor [a.txt] 30, Mail [Inbox] 20, Mail [Meeting] 40");
    takeBack(meeting);
    EXPECT_EQ(diary(), "Mail [Inbox] 60, Editor [a.txt] 60");
    EXPECT_EQ(number("SELECT count(*) FROM amended"), 0);
    HistoryKeeper(path).write({});
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Meeting"))) << "after the next launch";
}

TEST_F(HistoryAmendingTest, idleTime_isNeitherNamedNorGiven) {
    write({row(kNine, 60'000, "Mail", "Inbox"), row(kNine + 60'000, 60'000, "Idle", "", RowPresence::Idle)});
    amend(named(kNine, kNine + 120'000, "Meeting"));
    amend(given(kNine, kNine + 120'000));
    EXPECT_EQ(diary(), "Mail [Meeting] 60, Idle 60");
    EXPECT_EQ(lengthOfMeier(), 60'000);
}

TEST_F(HistoryAmendingTest, aGivenPiece_keepsItsTimer_andGoesWhereThatGoes) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    const auto gift = amend(given(kNine, kNine + 30'000));
    EXPECT_EQ(diary(), "Mail [Inbox] 60");
    EXPECT_EQ(lengthOfMeier(), 30'000);
    EXPECT_EQ(number("SELECT count(*) FROM projects WHERE name = 'Meier'"), 1);
    change(HistoryChange::Moved{{{kMail, kInbox}, {kMail, kFrozen}}});
    change(HistoryChange::Deleted{{{kMail, kFrozen}}, true});
    EXPECT_EQ(diary(), "");
    change(HistoryChange::Deleted{{{kMail, kFrozen}}, false});
    EXPECT_EQ(lengthOfMeier(), 30'000);
    takeBack(gift);
    EXPECT_EQ(lengthOfMeier(), 0);
    HistoryKeeper(path).write({});
    EXPECT_EQ(number("SELECT count(*) FROM projects"), 0);
    EXPECT_EQ(number("SELECT sum(length) FROM stretches JOIN timers ON timers.id = timer "
                     "WHERE window = CAST('frozenfr' AS BLOB) AND project = x''"),
              60'000);
}

TEST_F(HistoryAmendingTest, givenToNone_isNotTheSameAsNotGiven) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    amend(given(kNine, kNine + 60'000, std::nullopt));
    EXPECT_EQ(number("SELECT count(*) FROM timers WHERE project = x'00'"), 1);
    EXPECT_EQ(number("SELECT count(*) FROM projects"), 0);
}

TEST_F(HistoryAmendingTest, whatIsNamedTwice_isUndoneStepByStep) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    const auto first = amend(named(kNine, kNine + 40'000, "One"));
    const auto second = amend(named(kNine + 20'000, kNine + 60'000, "Two"));
    EXPECT_EQ(diary(), "Mail [One] 20, Mail [Two] 40");
    takeBack(second);
    EXPECT_EQ(diary(), "Mail [One] 40, Mail [Inbox] 20");
    takeBack(first);
    EXPECT_EQ(diary(), "Mail [Inbox] 60");
}

TEST_F(HistoryAmendingTest, whatIsBooked_fillsGapsAndIdleTime_andLeavesWork) {
    write({row(kNine, 60'000, "Mail", "Inbox"), row(kNine + 60'000, 60'000, "Idle", "", RowPresence::Idle),
           row(kNine + 180'000, 60'000, "Editor", "a.txt")});
    const auto booking = amend(booked(kNine + 30'000, kNine + 300'000, "Meeting"));
    EXPECT_EQ(diary(), "Mail [Inbox] 60, By Hand [Meeting] by hand 120, Editor [a.txt] 60, "
                       "By Hand [Meeting] by hand 60");
    EXPECT_EQ(number("SELECT count(*) FROM amendments WHERE was_presence = 'nothing'"), 2);
    takeBack(booking);
    EXPECT_EQ(diary(), "Mail [Inbox] 60, Idle 60, Editor [a.txt] 60");
}

// The clock was set back: nobody gets ninety minutes out of an hour.
TEST_F(HistoryAmendingTest, whereIdleTimeLiesOverWork_onlyWhatIsFreeIsBooked) {
    write({row(kNine, 30 * kMinute, "Writer"), row(kNine, 30 * kMinute, "Idle", "", RowPresence::Idle)});
    const auto before = HistoryDiary::sums(path);
    const auto booking = amend(booked(kNine, kNine + 60 * kMinute, "Call"));
    EXPECT_EQ(HistoryDiary::sums(path), "By Hand [Call] by hand 1800, Idle 1800, Writer 1800");
    takeBack(booking);
    EXPECT_EQ(HistoryDiary::sums(path), before);
}

TEST_F(HistoryAmendingTest, idleTimeThatLiesOverItself_isBookedOnce) {
    write({row(kNine, 30 * kMinute, "Idle", "", RowPresence::Idle),
           row(kNine + 10 * kMinute, 30 * kMinute, "Idle", "", RowPresence::Idle),
           row(kNine + 35 * kMinute, 15 * kMinute, "Idle", "", RowPresence::Idle)});
    const auto before = HistoryDiary::sums(path);
    const auto booking = amend(booked(kNine, kNine + 59 * kMinute, "Call"));
    EXPECT_EQ(HistoryDiary::sums(path), "By Hand [Call] by hand 3540, Idle 1500");
    takeBack(booking);
    EXPECT_EQ(HistoryDiary::sums(path), before);
}

TEST_F(HistoryAmendingTest, whatIsBooked_isDividedAtFullHours) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    const auto booking = amend(booked(kNine + 50 * kMinute, kNine + 130 * kMinute, "Meeting"));
    EXPECT_EQ(number("SELECT count(*) FROM stretches WHERE presence = 2"), 3);
    EXPECT_EQ(number("SELECT sum(length) FROM days WHERE presence = 2"), 80 * kMinute);
    amend(named(kNine + 60 * kMinute, kNine + 120 * kMinute, "Lunch"));
    EXPECT_EQ(diary(), "Mail [Inbox] 60, By Hand [Meeting] by hand 600, By Hand [Lunch] by hand 3600, "
                       "By Hand [Meeting] by hand 600");
    takeBack(made);
    takeBack(booking);
    EXPECT_EQ(diary(), "Mail [Inbox] 60");
}

TEST_F(HistoryAmendingTest, whatIsForgotten_leavesNoTraceInWhatWasBefore) {
    write({row(kNine, 60'000, "Mail", "Very private"), row(kNine + 60'000, 60'000, "Editor", "a.txt")});
    const auto meeting = amend(named(kNine, kNine + 120'000, "Meeting"));
    const HistoryChange::Forgotten what{
        .program = {}, .title = QStringLiteral("Very private"), .from = {}, .to = {}};
    {
        SqliteDatabase file(path, SqliteDatabase::Mode::Read, 0);
        const HistoryFinding found = HistoryFinding::of(file, what);
        EXPECT_EQ(found.sums, 1) << "so that the window offers to forget it";
        EXPECT_EQ(found.length, 60'000);
    }
    change(what);
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Very private")));
    EXPECT_EQ(diary(), "Mail [Meeting] 60, Editor [Meeting] 60");
    EXPECT_EQ(number("SELECT count(*) FROM amendments"), 2) << "that it was changed stays known";
    takeBack(meeting);
    EXPECT_EQ(diary(), "Mail [Meeting] 60, Editor [a.txt] 60") << "what was forgotten stays forgotten";
}

TEST_F(HistoryAmendingTest, aForgottenPiece_takesItsRecordAlong) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    const auto meeting = amend(named(kNine, kNine + 60'000, "Meeting"));
    change(
        HistoryChange::Forgotten{.program = {}, .title = {}, .from = kNine + 20'000, .to = kNine + 40'000});
    EXPECT_EQ(diary(), "Mail [Meeting] 20, Mail [Meeting] 20");
    EXPECT_EQ(number("SELECT count(*) FROM amended"), 2);
    takeBack(meeting);
    EXPECT_EQ(diary(), "Mail [Inbox] 20, Mail [Inbox] 20");
}

TEST_F(HistoryAmendingTest, forgottenPieces_areGoneAtOnce_andNothingElseIs) {
    write({row(kNine, 60'000, "Mail", "Very private"), row(kNine + 60'000, 60'000, "Editor", "a.txt"),
           row(kNine + 120'000, 60'000, "Mail", "Very private")});
    amend(given(kNine + 30'000, kNine + 180'000));
    HistoryChange::Forgotten what{.program = {}, .title = {}, .from = {}, .to = {}};
    what.times.pieces = {{kNine, kNine + 60'000}, {kNine + 120'000, kNine + 200'000}};
    change(what);
    EXPECT_EQ(diary(), "Editor [a.txt] 60");
    EXPECT_EQ(HistoryDiary::sums(path), "Editor [a.txt] 60");
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Very private")));
}

TEST_F(HistoryAmendingTest, whatWasForgottenByItsNewName_doesNotComeBack) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    const auto meeting = amend(named(kNine, kNine + 30'000, "Meeting"));
    change(HistoryChange::Forgotten{.program = {}, .title = QStringLiteral("Meeting"), .from = {}, .to = {}});
    takeBack(meeting);
    EXPECT_EQ(diary(), "Mail [Inbox] 30");
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Meeting")));
}

TEST_F(HistoryAmendingTest, whatIsTooOld_takesItsRecordAlong) {
    write({row(kNine, 60'000, "Mail", "Inbox"), row(kNine + 90 * kMinute, 60'000, "Editor", "a.txt")});
    amend(named(kNine, kNine + 120'000, "Meeting"));
    keeper.write({}, HistoryAge{.now = kNine + 120 * kMinute, .kept = 60 * kMinute});
    EXPECT_EQ(diary(), "Editor [a.txt] 60");
    EXPECT_EQ(number("SELECT count(*) FROM amended"), 0);
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Inbox")));
}

TEST_F(HistoryAmendingTest, whatARuleHides_isHiddenInWhatWasBefore) {
    write({row(kNine, 60'000, "Mail", "Very private"), row(kNine + 60'000, 60'000, "Mail", "Inbox")});
    const auto meeting = amend(named(kNine, kNine + 120'000, "Meeting"));
    const auto gift = amend(given(kNine, kNine + 120'000));
    change(rule("leave out"));
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Very private")));
    EXPECT_EQ(diary(), "Mail [Meeting] 120");
    EXPECT_EQ(lengthOfMeier(), 120'000);
    takeBack(gift);
    takeBack(meeting);
    EXPECT_EQ(diary(), "Mail 60, Mail [Inbox] 60");
}

TEST_F(HistoryAmendingTest, aRuleForItsNewName_leavesTheProject) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    amend(named(kNine, kNine + 60'000, "Very private"));
    amend(given(kNine, kNine + 60'000));
    change(rule("private"));
    EXPECT_EQ(diary(), "Private 60");
    EXPECT_EQ(lengthOfMeier(), 60'000);
}

TEST_F(HistoryAmendingTest, aDeletedTimersPast_isNeitherChangedNorInTheWay) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    change(HistoryChange::Deleted{{{kMail, kInbox}}, true});
    const auto booking = amend(booked(kNine, kNine + 60'000, "Meeting"));
    EXPECT_EQ(diary(), "By Hand [Meeting] by hand 60");
    takeBack(booking);
    change(HistoryChange::Deleted{{{kMail, kInbox}}, false});
    EXPECT_EQ(diary(), "Mail [Inbox] 60");
}

// The wall clock was set back: two stretches begin at the same moment, and each keeps its own past.
TEST_F(HistoryAmendingTest, stretchesOfOneMoment_comeBackAsTheyWere) {
    write({row(kNine, 60'000, "Mail", "Inbox"), row(kNine, 30'000, "Editor", "a.txt")});
    const auto meeting = amend(named(kNine + 10'000, kNine + 20'000, "Meeting"));
    EXPECT_EQ(HistoryDiary::sums(path),
              "Editor [Meeting] 10, Editor [a.txt] 20, Mail [Inbox] 50, Mail [Meeting] 10");
    takeBack(meeting);
    EXPECT_EQ(HistoryDiary::sums(path), "Editor [a.txt] 30, Mail [Inbox] 60");
}

TEST_F(HistoryAmendingTest, ofStretchesThatLieOverEachOther_onlyThoseThatAreMeantChange) {
    write({row(kNine, 60'000, "Mail", "Inbox"), row(kNine + 10'000, 30'000, "Editor"),
           row(kNine + 40'000, 20'000, "Mail", "Sent")});
    Amendment meeting = named(kNine, kNine + 60'000, "Meeting");
    meeting.only = {{QStringLiteral("Editor"), QString()}, {QStringLiteral("Mail"), QStringLiteral("Sent")}};
    const auto before = HistoryDiary::sums(path);
    const auto number = amend(meeting);
    EXPECT_EQ(HistoryDiary::sums(path), "Editor [Meeting] 30, Mail [Inbox] 60, Mail [Meeting] 20");
    takeBack(number);
    EXPECT_EQ(HistoryDiary::sums(path), before);
    meeting.only = {{QStringLiteral("Gone"), QStringLiteral("Gone")}};
    amend(meeting);
    EXPECT_EQ(HistoryDiary::sums(path), before);
}

TEST_F(HistoryAmendingTest, aBatchThatIsTriedAgain_amendsOnce) {
    write({row(kNine, 60'000, "Mail", "Inbox")});
    HistoryBatch batch;
    batch.changes = {HistoryChange::Amended{named(kNine, kNine + 60'000, "Meeting"), ++made}};
    batch.number = 7;
    EXPECT_EQ(keeper.write(batch).state, State::Written);
    EXPECT_EQ(keeper.write(batch).state, State::Written);
    takeBack(made);
    EXPECT_EQ(diary(), "Mail [Inbox] 60");
}

// Written by the first version, whatever today's program writes.
TEST_F(HistoryAmendingTest, aFileOfTheFirstForm_isAmended) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(TICKLOG_SOURCE_DIR "/tests/data/history/1.sqlite"), path));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    const auto first = number("SELECT min(start) FROM stretches");
    amend(named(first, first + 30'000, "Meeting"));
    amend(given(first, first + 120'000));
    EXPECT_EQ(diary(), "Mail [Meeting] 30, Mail [Inbox] 30, Editor [a.txt] 30");
    EXPECT_EQ(lengthOfMeier(), 90'000);
}

// With one page damaged, what was changed by hand is still told from what was measured.
TEST_F(HistoryAmendingTest, damagedAtAnyPage_theRecordIsTakenOver) {
    std::vector<HistoryRow> rows;
    for (std::int64_t i = 0; i < 600; ++i)
        rows.push_back(row(kNine + i * 20'000, 10'000, i % 2 ? "Mail" : "Browser",
                           qPrintable(QStringLiteral("Title %1").arg(i % 50))));
    write(std::move(rows));
    for (std::int64_t i = 0; i < 300; ++i)
        amend(i % 2 ? named(kNine + i * 40'000, kNine + i * 40'000 + 15'000, "Meeting")
                    : booked(kNine + i * 40'000, kNine + i * 40'000 + 40'000, "By phone"));
    amend(given(kNine, kNine + 3 * 3'600'000));
    const auto amended = number("SELECT count(*) FROM amended");
    SqliteDatabase(path, SqliteDatabase::Mode::ReadWrite, 0).execute("PRAGMA wal_checkpoint(TRUNCATE)");
    keeper.close();
    ASSERT_TRUE(QFile::rename(path, path + QStringLiteral(".whole")));
    const qint64 pages = QFileInfo(path + QStringLiteral(".whole")).size() / 4096;
    std::int64_t tries = 0;
    std::int64_t taken = 0;
    for (qint64 page = 0; page < pages; ++page) {
        keeper.remove();
        ASSERT_TRUE(QFile::copy(path + QStringLiteral(".whole"), path));
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::ReadWrite) && file.seek(page * 4096));
        file.write(QByteArray(4096, char(0xa5)));
        file.close();
        HistoryKeeper again(path);
        const auto report =
            again.write({.changes = {HistoryChange::Forgotten{
                             .program = QStringLiteral("Nothing"), .title = {}, .from = {}, .to = {}}},
                         .rows = {},
                         .owed = {},
                         .settledBefore = 0});
        EXPECT_EQ(report.state, State::Written) << "page " << page << qPrintable(report.why);
        if (!report.setAside)
            continue;
        ++tries;
        taken += number("SELECT count(*) FROM amended");
        EXPECT_EQ(number("SELECT count(*) FROM amended LEFT JOIN stretches USING (start, n) "
                         "WHERE stretches.length IS NULL"),
                  0);
    }
    EXPECT_GT(tries, 5);
    EXPECT_GT(taken, tries * amended / 2) << "more than half, on average";
    keeper.remove();
    write({});
}

} // namespace
