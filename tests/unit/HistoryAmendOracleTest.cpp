// SPDX-License-Identifier: MIT
// Days full of amendments, held against a list of what each second was. TICKLOG_RANDOM_DAYS says how many.
#include "tests/fakes/HistoryDiary.h"
#include "tests/interface/InTimeZone.h"

#include <QDateTime>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

using Kind = Amendment::Kind;

const Identity kMail = *Identity::fromBytes("mailmail");
const Identity kMeier = *Identity::fromBytes("meiermei");
constexpr int kSeconds = 8 * 3600;
constexpr std::int64_t kHour = 3'600'000;

// What a second was; empty for nothing.
struct Second {
    QString program;
    QString title;
    QByteArray project;
    RowPresence presence = RowPresence::Work;

    friend auto operator<=>(const Second&, const Second&) = default;
};
using Seconds = std::vector<Second>;

struct AmendOracle {
    AmendOracle(const QDateTime& from, int dayBegin, unsigned seed)
        : start(from.toMSecsSinceEpoch())
        , random(seed) {
        HistoryFile(path).setDayBegin(dayBegin);
        record();
    }

    int below(int limit) { return int(random() % unsigned(limit)); }

    // Some hours as the recorder would write them.
    void record() {
        HistoryBatch batch;
        std::uint64_t serial = 0;
        for (int at = 0; at < kSeconds;) {
            const int length = std::min(1 + below(1500), kSeconds - at);
            const int what = below(8);
            HistoryRow row;
            row.start = start + at * 1000LL;
            row.program = what == 0  ? QStringLiteral("Idle")
                          : what < 4 ? QStringLiteral("Mail")
                                     : QStringLiteral("Draw");
            row.title = what == 0 ? QString() : QStringLiteral("Title %1").arg(below(3));
            row.presence = what == 0 ? RowPresence::Idle : RowPresence::Work;
            if (what > 0 && what < 4)
                row.timer = {kMail, std::nullopt};
            if (what < 6)
                addDivided(batch, row, length, serial);
            for (int second = at; second < at + length; ++second)
                seconds[std::size_t(second)] =
                    what < 6 ? Second{row.program, row.title, QByteArray(""), row.presence} : Second();
            at += length;
        }
        EXPECT_EQ(keeper.write(batch).state, HistoryKeeper::State::Written);
    }

    static void addDivided(HistoryBatch& batch, HistoryRow row, int length, std::uint64_t& serial) {
        for (std::int64_t left = length * 1000LL; left > 0;) {
            row.offset = QDateTime::fromMSecsSinceEpoch(row.start).offsetFromUtc() / 60;
            const std::int64_t local = row.start + row.offset * 60'000;
            row.length = std::min(left, kHour - local % kHour);
            batch.rows[++serial] = row;
            row.start += row.length;
            left -= row.length;
        }
    }

    Amendment anything() {
        Amendment what{.kind = below(3) ? Kind::Change : Kind::Book};
        for (int pieces = 1 + below(2); pieces > 0; --pieces) {
            const int from = below(kSeconds);
            what.pieces.push_back(
                {start + from * 1000LL, start + std::min(from + 1 + below(6000), kSeconds) * 1000LL});
        }
        if (below(3))
            what.name = QStringLiteral("Name %1").arg(below(3));
        if (below(2)) {
            what.project = below(3) ? RowProject{kMeier} : RowProject();
            what.projectName = QStringLiteral("Meier");
        }
        return what;
    }

    void amend(const Amendment& what) {
        before.push_back(seconds);
        for (const auto& [from, to] : what.pieces)
            for (auto second = (from - start) / 1000; second < (to - start) / 1000; ++second)
                change(seconds[std::size_t(second)], what);
        write(HistoryChange::Amended{what, start + kSeconds * 1000LL + std::int64_t(before.size())});
    }

    static void change(Second& second, const Amendment& what) {
        const bool isFree = second.program.isEmpty() || second.presence == RowPresence::Idle;
        if (isFree != (what.kind == Kind::Book))
            return;
        if (isFree)
            second = {kByHandName, QString(), QByteArray(""), RowPresence::ByHand};
        if (what.name)
            second.title = *what.name;
        if (what.project)
            second.project = historyBytes(what.project);
    }

    void forget(const std::vector<Amendment::Piece>& pieces) {
        before.push_back(seconds);
        for (const auto& [from, to] : pieces)
            for (auto second = (from - start) / 1000; second < (to - start) / 1000; ++second)
                seconds[std::size_t(second)] = {};
        const auto rows = std::make_shared<RemovedRows>();
        removed.resize(before.size());
        removed.back() = rows;
        HistoryChange::Forgotten what{.program = {}, .title = {}, .from = {}, .to = {}};
        what.times.pieces = pieces;
        what.removed = rows;
        write(what);
    }

    // The latest step.
    void takeBack() {
        removed.resize(before.size());
        if (removed.back())
            write(HistoryChange::PutBack{removed.back(), {}, PropertyListArray(), {}});
        else
            write(HistoryChange::TakenBack{start + kSeconds * 1000LL + std::int64_t(before.size())});
        removed.pop_back();
        seconds = before.back();
        before.pop_back();
    }

    void write(HistoryChange::Any what) {
        HistoryBatch batch;
        batch.changes.push_back(std::move(what));
        EXPECT_EQ(keeper.write(batch).state, HistoryKeeper::State::Written);
    }

    // What the file says.
    Seconds recorded() {
        Seconds all(kSeconds);
        SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
        SqliteQuery row(file, "SELECT start, length, programs.name, titles.text, project, presence "
                              "FROM stretches JOIN programs ON programs.id = program "
                              "JOIN titles ON titles.id = title JOIN timers ON timers.id = timer");
        while (row.next())
            for (std::int64_t at = row.integer(0); at < row.integer(0) + row.integer(1); at += 1000) {
                Second& second = all.at(std::size_t((at - start) / 1000));
                EXPECT_TRUE(second.program.isEmpty()) << "booked twice";
                second = {row.text(2), row.text(3), row.bytes(4), RowPresence(row.integer(5))};
            }
        return all;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("History.sqlite"));
    HistoryKeeper keeper{path};
    std::int64_t start;
    std::mt19937 random;
    Seconds seconds = Seconds(kSeconds);
    // The latest last; with the rows of what was forgotten.
    std::vector<Seconds> before;
    std::vector<std::shared_ptr<RemovedRows>> removed;
};

// The nights in which clocks are set forward and back, across midnight, and days that begin at four.
TEST(HistoryAmendOracleTest, whateverIsSaid_everySecondIsOnce_andUndoingIsExact) {
    const InTimeZone berlin("Europe/Berlin");
    const int rounds = std::max(3, qEnvironmentVariableIntValue("TICKLOG_RANDOM_DAYS"));
    const QDate nights[] = {QDate(2026, 3, 28), QDate(2026, 10, 24), QDate(2026, 6, 10)};
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        AmendOracle oracle(QDateTime(nights[round % 3], QTime(21, 13)), round % 2 ? 4 : 0, unsigned(round));
        ASSERT_EQ(oracle.recorded(), oracle.seconds);
        for (int step = 0; step < 30; ++step) {
            if (oracle.below(4) == 0 && !oracle.before.empty())
                oracle.takeBack();
            else if (oracle.below(4) == 0)
                oracle.forget(oracle.anything().pieces);
            else
                oracle.amend(oracle.anything());
            ASSERT_EQ(oracle.recorded(), oracle.seconds) << "step " << step;
            ASSERT_EQ(HistoryDiary::flaws(oracle.path), QStringList()) << "step " << step;
        }
        while (!oracle.before.empty())
            oracle.takeBack();
        EXPECT_EQ(oracle.recorded(), oracle.seconds);
        EXPECT_EQ(HistoryDiary::flaws(oracle.path), QStringList());
        HistoryKeeper(oracle.path).write({});
        SqliteDatabase file(oracle.path, SqliteDatabase::Mode::Read, 0);
        EXPECT_EQ(file.number("SELECT count(*) FROM amended"), 0);
        EXPECT_EQ(file.number("SELECT count(*) FROM titles WHERE text LIKE 'Name%'"), 0);
    }
}

} // namespace
