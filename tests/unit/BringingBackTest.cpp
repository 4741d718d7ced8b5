// SPDX-License-Identifier: MIT
// What is forgotten leaves the file for good, and comes back from memory when that is undone.
#include "Classes/rules/TitleRules.h"
#include "tests/fakes/HistoryDiary.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// 5 January 2026, 9:00 in UTC. Tests run in that zone.
constexpr std::int64_t kNine = 1'767'603'600'000;
constexpr std::int64_t kMinute = 60'000;
constexpr std::int64_t kHour = 60 * kMinute;

const Identity kMail = *Identity::fromBytes("mailmail");
const Identity kInbox = *Identity::fromBytes("inboxinb");
const Identity kOther = *Identity::fromBytes("otheroth");
const Identity kMeier = *Identity::fromBytes("meiermei");
const RowTimer kTimer{kMail, kInbox};

// Whole rows and what they were, whatever the numbers of their texts.
constexpr const char* kRows =
    "SELECT stretches.start || ' ' || stretches.n || ' ' || stretches.length || ' ' || offset || ' ' || "
    "p.name || "
    "' [' || t.text || '] ' || hex(m.application) || '/' || hex(m.window) || '/' || hex(m.project) || '/' || "
    "ifnull(projects.name, '') || ' ' || m.deleted || ' ' || stretches.presence || ifnull(' was ' || made || "
    "' ' || "
    "ifnull(wp.name, '') || ' [' || ifnull(wt.text, '') || '] ' || hex(wm.window) || ' ' || "
    "amended.presence, '') "
    "FROM stretches JOIN programs AS p ON p.id = stretches.program JOIN titles AS t ON t.id = "
    "stretches.title "
    "JOIN timers AS m ON m.id = stretches.timer LEFT JOIN projects ON projects.identity = m.project "
    "LEFT JOIN amended ON amended.start = stretches.start AND amended.n = stretches.n "
    "LEFT JOIN programs AS wp ON wp.id = amended.program LEFT JOIN titles AS wt ON wt.id = amended.title "
    "LEFT JOIN timers AS wm ON wm.id = amended.timer ORDER BY stretches.start, stretches.n, made";

class BringingBackTest : public testing::Test {
protected:
    void add(std::int64_t start, std::int64_t length, const char* program, const char* title,
             RowTimer timer = kTimer, RowPresence presence = RowPresence::Work) {
        HistoryBatch batch;
        batch.rows[++serial] = {.start = start,
                                .length = length,
                                .offset = 60,
                                .program = QString::fromUtf8(program),
                                .title = QString::fromUtf8(title),
                                .timer = std::move(timer),
                                .presence = presence};
        write(batch);
    }

    void write(const HistoryBatch& batch) {
        const auto report = keeper.write(batch);
        EXPECT_EQ(report.state, HistoryKeeper::State::Written) << qPrintable(report.why);
        if (!batch.changes.empty())
            isTold = report.isAmended;
    }

    void change(HistoryChange::Any what) {
        HistoryBatch batch;
        batch.changes.push_back(std::move(what));
        write(batch);
    }

    std::int64_t amend(const Amendment& what) {
        change(HistoryChange::Amended{what, ++made});
        return made;
    }

    static HistoryChange::Forgotten forgetting(std::int64_t from, std::int64_t to,
                                               const std::shared_ptr<RemovedRows>& removed) {
        HistoryChange::Forgotten what{.program = {}, .title = {}, .from = {}, .to = {}};
        what.times.pieces = {{from, to}};
        what.removed = removed;
        return what;
    }

    std::shared_ptr<RemovedRows> forget(std::int64_t from, std::int64_t to) {
        auto removed = std::make_shared<RemovedRows>();
        change(forgetting(from, to, removed));
        return removed;
    }

    void putBack(const std::shared_ptr<RemovedRows>& removed, std::vector<HistoryChange::Later> since = {},
                 PropertyListValue rules = PropertyListArray(), std::optional<HistoryAge> age = {}) {
        change(HistoryChange::PutBack{removed, std::move(since), std::move(rules), age});
        EXPECT_TRUE(isTold);
    }

    // About all titles with "private" in them.
    static PropertyListValue rule(const char* effect) {
        return PropertyListArray{PropertyListDictionary{{QStringLiteral("Title"), QStringLiteral("private")},
                                                        {kTitleRuleEffect, QString::fromUtf8(effect)}}};
    }

    static Amendment named(std::int64_t from, std::int64_t to, const char* name) {
        return {.pieces = {{from, to}}, .name = QString::fromUtf8(name)};
    }

    std::string diary() const { return HistoryDiary::of(path); }
    QStringList everything() const {
        QStringList all;
        SqliteDatabase file(path, SqliteDatabase::Mode::Read, 0);
        for (SqliteQuery row(file, kRows); row.next();)
            all << row.text(0);
        return all;
    }

    void TearDown() override { EXPECT_EQ(HistoryDiary::flaws(path), QStringList()); }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("History.sqlite"));
    HistoryKeeper keeper{path};
    std::uint64_t serial = 0;
    std::int64_t made = kNine + 1'000'000'000;
    bool isTold = false;
};

TEST_F(BringingBackTest, whatIsForgotten_isNowhereInTheFile_andComesBackExactly) {
    add(kNine, 60'000, "Mail", "Doctor Huber");
    add(kNine, 30'000, "Editor", "a.txt", {kOther, std::nullopt});
    add(kNine + 60'000, 60'000, "Idle", "", {}, RowPresence::Idle);
    add(kNine + 120'000, 60'000, "Mail", "Doctor Huber", {kMail, kOther});
    change(HistoryChange::Deleted{{{kMail, kOther}}, true});
    amend({.pieces = {{kNine, kNine + 60'000}},
           .name = QStringLiteral("Consultation"),
           .project = RowProject{kMeier},
           .projectName = QStringLiteral("Practice")});
    amend(named(kNine, kNine + 30'000, "Called"));
    amend({.kind = Amendment::Kind::Book, .pieces = {{kNine + 300'000, kNine + 400'000}}});
    const QStringList before = everything();
    const std::string sums = HistoryDiary::sums(path);
    ASSERT_EQ(before.size(), 8) << qPrintable(before.join(u'\n'));
    const auto removed = forget(kNine, kNine + kHour);
    EXPECT_EQ(everything(), QStringList());
    for (const char* name : {"Huber", "Consultation", "Called", "Practice", "Mail", "mailmail", "By Hand"})
        EXPECT_FALSE(HistoryDiary::holdsText(path, QLatin1String(name))) << name;
    putBack(removed);
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(HistoryDiary::sums(path), sums);
    change(HistoryChange::Deleted{{{kMail, kOther}}, false});
    for (; made > kNine + 1'000'000'000; --made)
        change(HistoryChange::TakenBack{made});
    EXPECT_EQ(HistoryDiary::sums(path), "Editor [a.txt] 30, Idle 60, Mail [Doctor Huber] 120");
}

TEST_F(BringingBackTest, aPieceOfAStretch_isForgottenBroughtBackAndForgottenAgain) {
    add(kNine, 60'000, "Mail", "Inbox");
    add(kNine + 60'000, 60'000, "Editor", "a.txt");
    const auto meeting = amend(named(kNine + 10'500, kNine + 90'000, "Meeting"));
    const std::string whole = diary();
    for (int round = 0; round < 2; ++round) {
        const auto removed = forget(kNine + 20'250, kNine + 100'000);
        EXPECT_EQ(diary(), "Mail [Inbox] 10.5, Mail [Meeting] 9.75, Editor [a.txt] 20");
        EXPECT_EQ(HistoryDiary::flaws(path), QStringList());
        putBack(removed);
        EXPECT_EQ(diary(), whole);
        EXPECT_EQ(HistoryDiary::flaws(path), QStringList());
    }
    change(HistoryChange::TakenBack{meeting});
    EXPECT_EQ(diary(), "Mail [Inbox] 60, Editor [a.txt] 60");
}

TEST_F(BringingBackTest, aTimerThatMovedMeanwhile_isFollowed) {
    add(kNine, 60'000, "Mail", "Inbox");
    add(kNine + kHour, 60'000, "Mail", "Inbox");
    const auto removed = forget(kNine, kNine + 60'000);
    const HistoryChange::Moved move{{{kMail, kInbox}, {kMail, kOther}}};
    change(move);
    putBack(removed, {move});
    for (const QString& row : everything())
        EXPECT_TRUE(row.contains(QLatin1String(kOther.bytes().toHex().toUpper()))) << qPrintable(row);
}

TEST_F(BringingBackTest, aTimerThatWasDeletedMeanwhile_staysDeletedUntilItComesBack) {
    add(kNine, 60'000, "Mail", "Inbox");
    add(kNine + kHour, 60'000, "Mail", "Inbox");
    const QStringList before = everything();
    const auto removed = forget(kNine, kNine + 60'000);
    const HistoryChange::Deleted deleted{{{kMail, std::nullopt}}, true};
    change(deleted);
    putBack(removed, {deleted});
    EXPECT_EQ(diary(), "");
    change(HistoryChange::Deleted{{{kMail, std::nullopt}}, false});
    EXPECT_EQ(everything(), before);
}

TEST_F(BringingBackTest, whatWasForgottenForGoodMeanwhile_doesNotComeBack) {
    add(kNine, 60'000, "Mail", "Doctor Huber");
    add(kNine + 60'000, 60'000, "Mail", "Inbox");
    add(kNine + 120'000, 60'000, "Editor", "a.txt");
    add(kNine + 180'000, 60'000, "Draw", "Poster");
    add(kNine + 240'000, 60'000, "Draw", "Flyer");
    const auto meeting = amend(named(kNine + 60'000, kNine + 120'000, "Doctor"));
    amend(named(kNine + 240'000, kNine + 300'000, "About the doctor"));
    change(HistoryChange::TakenBack{made});
    const auto other = amend(named(kNine + 180'000, kNine + 240'000, "Sketch"));
    const auto removed = forget(kNine, kNine + kHour);
    HistoryChange::Forgotten title{.program = {}, .title = QStringLiteral("doctor"), .from = {}, .to = {}};
    title.isTitlePart = true;
    const HistoryChange::Forgotten was{
        .program = {}, .title = QStringLiteral("Poster"), .from = {}, .to = {}};
    const HistoryChange::Forgotten program{
        .program = QStringLiteral("Editor"), .title = {}, .from = {}, .to = {}};
    const HistoryChange::Forgotten range{
        .program = {}, .title = {}, .from = kNine + 270'000, .to = kNine + kHour};
    putBack(removed, {title, was, program, range});
    EXPECT_EQ(diary(), "Draw [Sketch] 60");
    for (const char* name : {"Huber", "Poster", "Editor", "Inbox"})
        EXPECT_FALSE(HistoryDiary::holdsText(path, QLatin1String(name))) << name;
    change(HistoryChange::TakenBack{meeting});
    change(HistoryChange::TakenBack{other});
    EXPECT_EQ(diary(), "Draw [Sketch] 60") << "what it was before is not known any more";
}

TEST_F(BringingBackTest, aPieceInOneThatWasForgottenForGood_doesNotComeBack) {
    add(kNine, 60'000, "Mail", "Inbox");
    const auto removed = forget(kNine, kNine + 30'000);
    putBack(removed, {forgetting(kNine, kNine + kHour, nullptr)});
    EXPECT_EQ(diary(), "Mail [Inbox] 30");
}

TEST_F(BringingBackTest, whatARuleHidesByNow_comesBackAsTheRuleWants) {
    add(kNine, 60'000, "Mail", "Very private");
    add(kNine + 60'000, 60'000, "Mail", "Inbox");
    const auto meeting = amend(named(kNine, kNine + 120'000, "Meeting"));
    add(kNine + 120'000, 60'000, "Idle", "private", {}, RowPresence::Idle);
    add(kNine + 180'000, 60'000, "Mail", "Very private");
    const auto removed = forget(kNine, kNine + kHour);
    putBack(removed, {}, rule("leave out"));
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Very private")));
    EXPECT_EQ(diary(), "Mail [Meeting] 120, Idle [private] 60, Mail 60");
    change(HistoryChange::TakenBack{meeting});
    EXPECT_EQ(diary(), "Mail 60, Mail [Inbox] 60, Idle [private] 60, Mail 60");
    EXPECT_TRUE(everything().front().contains(QLatin1String(kMail.bytes().toHex().toUpper() + "/// ")))
        << qPrintable(everything().front());
}

TEST_F(BringingBackTest, aProgramThatMustNotBeKnownByNow_comesBackAsPrivate) {
    add(kNine, 60'000, "Secret", "Very private");
    const auto removed = forget(kNine, kNine + kHour);
    putBack(removed, {}, rule("private"));
    EXPECT_EQ(diary(), "Private 60");
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Secret")));
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("mailmail")));
}

TEST_F(BringingBackTest, whatIsTooOldByNow_doesNotComeBack) {
    add(kNine, 60'000, "Mail", "Inbox");
    add(kNine + kHour, 60'000, "Editor", "a.txt");
    const auto removed = forget(kNine, kNine + 2 * kHour);
    putBack(removed, {}, PropertyListArray(), HistoryAge{.now = kNine + 2 * kHour, .kept = kHour});
    EXPECT_EQ(diary(), "Editor [a.txt] 60");
    EXPECT_FALSE(HistoryDiary::holdsText(path, QStringLiteral("Inbox")));
}

TEST_F(BringingBackTest, aBatchThatIsTriedAgain_forgetsAndBringsBackOnce) {
    add(kNine, 60'000, "Mail", "Inbox");
    const auto removed = std::make_shared<RemovedRows>();
    HistoryBatch batch;
    batch.changes = {forgetting(kNine, kNine + kHour, removed)};
    batch.number = 7;
    write(batch);
    write(batch);
    batch.changes = {HistoryChange::PutBack{removed, {}, PropertyListArray(), {}}};
    batch.number = 8;
    write(batch);
    write(batch);
    EXPECT_EQ(diary(), "Mail [Inbox] 60");
}

// The first try removes the rows, and then the transaction fails.
TEST_F(BringingBackTest, aTryThatFailed_leavesNothingThatComesBackTwice) {
    add(kNine, 60'000, "Mail", "Inbox");
    SqliteDatabase(path, SqliteDatabase::Mode::ReadWrite, 0)
        .execute("CREATE TRIGGER full BEFORE DELETE ON stretches BEGIN SELECT raise(ABORT, 'full'); END");
    const auto removed = std::make_shared<RemovedRows>();
    HistoryBatch batch;
    batch.changes = {forgetting(kNine, kNine + kHour, removed)};
    EXPECT_EQ(keeper.write(batch).state, HistoryKeeper::State::Unwritten);
    EXPECT_EQ(removed->rows.size(), 1U);
    SqliteDatabase(path, SqliteDatabase::Mode::ReadWrite, 0).execute("DROP TRIGGER full");
    write(batch);
    EXPECT_EQ(diary(), "");
    putBack(removed);
    EXPECT_EQ(diary(), "Mail [Inbox] 60");
}

} // namespace
