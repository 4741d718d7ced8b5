// SPDX-License-Identifier: MIT
#include "tests/fakes/HistoryDiary.h"

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
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Meeting")) &&
                 number("SELECT count(*) FROM titles WHERE text = 'Meeting'") > 0);
    EXPECT_EQ(number("SELECT count(*) FROM amended"), 0);
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

} // namespace
