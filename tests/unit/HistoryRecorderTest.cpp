// SPDX-License-Identifier: MIT
// The stretches as they are in the file, compared with a plain account of the same days. TICKLOG_RANDOM_DAYS
// says how many.
#include "Classes/history/HistoryRecorder.h"
#include "Classes/store/TimeStoreWindow.h"
#include "tests/fakes/HistoryDiary.h"
#include "tests/fakes/TestEngine.h"

#include <QDateTime>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace std::chrono_literals;
using Time = std::chrono::milliseconds;

// By day, program, title and presence.
using Sums = std::map<std::string, std::int64_t>;

// What an honest journal holds: pieces of time, each with its owner.
class PlainJournal {
public:
    void credit(Instant from, Instant to, std::int64_t wall, const QString& who) {
        m_pieces.push_back({from, to, wall, who});
    }

    // All time since `since` belongs to nobody. `walls` has the moments at which the wall clock was set or
    // the machine woke, and what it showed then.
    void absent(Instant since, Instant noticed, const std::vector<std::pair<Instant, std::int64_t>>& walls) {
        while (!m_pieces.empty() && m_pieces.back().to > since) {
            m_pieces.back().to = std::max(m_pieces.back().from, since);
            if (m_pieces.back().from < since)
                break;
            m_pieces.pop_back();
        }
        for (std::size_t i = 0; i < walls.size(); ++i) {
            const Instant from = std::max(since, walls[i].first);
            const Instant to = i + 1 < walls.size() ? std::min(noticed, walls[i + 1].first) : noticed;
            if (from < to)
                credit(from, to,
                       walls[i].second + std::chrono::duration_cast<Time>(from - walls[i].first).count(),
                       QStringLiteral("Idle//1"));
        }
    }

    Sums sums() const {
        Sums sums;
        for (const Piece& piece : m_pieces) {
            std::int64_t wall = piece.wall;
            const std::int64_t end = wall + std::chrono::duration_cast<Time>(piece.to - piece.from).count();
            while (wall < end) {
                const QDate day = QDateTime::fromMSecsSinceEpoch(wall).date();
                const std::int64_t midnight = day.addDays(1).startOfDay().toMSecsSinceEpoch();
                const std::int64_t until = std::min(end, midnight);
                sums[day.toString(QStringLiteral("yyyyMMdd/")).toStdString() + piece.who.toStdString()] +=
                    until - wall;
                wall = until;
            }
        }
        return sums;
    }

private:
    struct Piece {
        Instant from;
        Instant to;
        std::int64_t wall;
        QString who;
    };

    std::vector<Piece> m_pieces;
};

Sums sumsIn(const QString& path) {
    Sums sums;
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
    for (SqliteQuery row(file, "SELECT day, programs.name, titles.text, presence, sum(length) FROM days "
                               "JOIN programs ON programs.id = program JOIN titles ON titles.id = title "
                               "GROUP BY 1, 2, 3, 4");
         row.next();)
        sums[QStringLiteral("%1/%2/%3/%4")
                 .arg(row.integer(0))
                 .arg(row.text(1), row.text(2))
                 .arg(row.integer(3))
                 .toStdString()] = row.integer(4);
    return sums;
}

// What differs: "20261120/Mail/Inbox/0 12 instead of 10".
QStringList differences(Sums found, const Sums& expected) {
    QStringList lines;
    for (const auto& [who, time] : expected)
        if (const auto other = found.extract(who); other.empty() || other.mapped() != time)
            lines << QStringLiteral("%1 %2 instead of %3")
                         .arg(QString::fromStdString(who))
                         .arg(other.empty() ? 0 : other.mapped())
                         .arg(time);
    for (const auto& [who, time] : found)
        lines << QStringLiteral("%1 %2 instead of 0").arg(QString::fromStdString(who)).arg(time);
    return lines;
}

class RandomJournal {
public:
    RandomJournal(unsigned seed, QDateTime begin)
        : m_random(seed) {
        m_engine.fakes.clock.setWall(Date(Time(begin.toMSecsSinceEpoch())));
        for (const char* name : {"Mail", "Editor", "Browser"})
            m_programs.push_back(std::make_shared<TimeStoreApp>(m_engine.store, QString::fromUtf8(name)));
        m_idle = std::make_shared<TimeStoreApp>(m_engine.store, kIdleName);
        wallIsAnother();
    }

    void live() {
        switch (pick(20)) {
        case 0:
            pass(pick(100'000'000) / 10);
            break;
        case 1:
            tickOnce();
            m_engine.fakes.clock.sleepFor(Time(2000 + pick(40'000'000)));
            wallIsAnother();
            tickOnce();
            break;
        case 2:
            tickOnce();
            // By more than a second and at most an hour, forwards or backwards.
            m_engine.fakes.clock.setWall(m_engine.fakes.clock.now() +
                                         Time(1500 + pick(3'600'000)) * (pick(2) ? 1 : -1));
            wallIsAnother();
            tickOnce();
            break;
        case 3:
            leave();
            break;
        case 4:
            write();
            break;
        case 5:
            // As at the end of the program.
            write();
            m_recorder.settle();
            m_keeper.emplace(m_path);
            m_mayCutFrom = m_engine.fakes.clock.instant();
            break;
        default:
            work();
        }
        if (pick(10) == 0)
            write();
    }

    void write() {
        HistoryBatch batch;
        m_recorder.takeInto(batch);
        const auto report = m_keeper->write(batch);
        ASSERT_EQ(report.state, HistoryKeeper::State::Written) << qPrintable(report.why);
    }

    const QString& path() const { return m_path; }

    PlainJournal plain;

private:
    int pick(int count) { return int(m_random() % unsigned(count)); }

    void pass(int milliseconds) { m_engine.fakes.clock.advance(Time(milliseconds)); }

    Instant now() const { return m_engine.fakes.clock.instant(); }

    std::int64_t wall() const {
        return std::chrono::floor<Time>(m_engine.fakes.clock.now()).time_since_epoch().count();
    }

    void wallIsAnother() { m_walls.emplace_back(now(), wall()); }

    void work() {
        const auto& program = m_programs[std::size_t(pick(int(m_programs.size())))];
        const QString title =
            pick(3) == 0 ? QString() : QStringLiteral("Title %1").arg(QChar(u'a' + pick(6)));
        const bool isAway = pick(12) == 0;
        for (int ticks = 1 + pick(20); ticks > 0; --ticks)
            tick(isAway ? m_idle : program, isAway ? QString() : title, isAway,
                 pick(40) == 0 ? pick(9'000'000) : 1 + pick(300));
    }

    // While the timer runs, changes of the wall clock are seen within a tick.
    void tickOnce() { tick(m_programs.front(), QString(), false, 100); }

    void tick(const std::shared_ptr<TimeStoreApp>& program, const QString& title, bool isIdle,
              int milliseconds) {
        const Instant from = now();
        const std::int64_t begin = wall();
        pass(milliseconds);
        if (from == now())
            return;
        m_recorder.credited({from, now(), program, nullptr, title, isIdle ? Presence::Idle : Presence::Work});
        plain.credit(from, now(), begin,
                     QStringLiteral("%1/%2/%3").arg(program->name(), title).arg(isIdle ? 1 : 0));
        m_hasTold = true;
    }

    void leave() {
        if (!m_hasTold)
            return;
        const Instant since = std::max(m_mayCutFrom, now() - Time(pick(5'000'000)));
        pass(pick(1000));
        m_recorder.absent(since, now(), 0);
        plain.absent(since, now(), m_walls);
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("History.sqlite"));
    std::mt19937 m_random;
    TestEngine m_engine;
    std::vector<std::shared_ptr<TimeStoreApp>> m_programs;
    std::shared_ptr<TimeStoreApp> m_idle;
    HistoryRecorder m_recorder{m_engine.fakes.clock};
    std::optional<HistoryKeeper> m_keeper{std::in_place, m_path};
    std::vector<std::pair<Instant, std::int64_t>> m_walls;
    Instant m_mayCutFrom = m_engine.fakes.clock.instant();
    bool m_hasTold = false;
};

class RandomHistoryTest : public testing::TestWithParam<unsigned> {
protected:
    void SetUp() override {
        m_zone = qgetenv("TZ");
        setZone("Europe/Berlin");
    }

    void TearDown() override { setZone(m_zone); }

    static void setZone(const QByteArray& zone) {
        if (zone.isEmpty())
            qunsetenv("TZ");
        else
            qputenv("TZ", zone);
        ::tzset();
    }

private:
    QByteArray m_zone;
};

TEST_P(RandomHistoryTest, whateverIsTold_theSumsAgreeToTheMillisecond) {
    // Through a day of 23 hours, one of 25, and the turn of a year.
    const QDate begins[] = {QDate(2026, 3, 28), QDate(2026, 10, 24), QDate(2026, 12, 31), QDate(2026, 6, 1)};
    const unsigned days = unsigned(qEnvironmentVariableIntValue("TICKLOG_RANDOM_DAYS"));
    for (unsigned seed = GetParam(); seed <= std::max(GetParam(), days); seed += 12) {
        RandomJournal journal(seed, QDateTime(begins[seed % 4], QTime(9, 0)));
        for (int round = 0; round < 6 && !HasFailure(); ++round) {
            for (int step = 0; step < 60; ++step)
                journal.live();
            journal.write();
            EXPECT_EQ(differences(sumsIn(journal.path()), journal.plain.sums()).join(u'\n').toStdString(), "")
                << "of seed " << seed << ", round " << round;
            EXPECT_EQ(HistoryDiary::flaws(journal.path()), QStringList()) << "of seed " << seed;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Days, RandomHistoryTest, testing::Range(1U, 13U));

} // namespace
