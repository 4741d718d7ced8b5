// SPDX-License-Identifier: MIT
// The power goes at any call to the disk, and what was not synced is partly lost. TICKLOG_POWER_CUTS says how
// often.
#include "Classes/history/History.h"
#include "tests/fakes/CrashingVfs.h"
#include "tests/fakes/Day.h"
#include "tests/fakes/HistoryDiary.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

using Fault = CrashingDisk::Fault;
using State = HistoryKeeper::State;

constexpr std::int64_t kNine = 1'767'603'600'000;
const QString kFile = QStringLiteral("History.sqlite");

int cuts(int least) {
    return std::max(least, qEnvironmentVariableIntValue("TICKLOG_POWER_CUTS"));
}

// What a keeper is told from its first write to its last, always the same for the same seed.
class Telling {
public:
    static constexpr int kBatches = 24;

    explicit Telling(unsigned seed)
        : m_random(seed) {}

    // Rows of before grow, new ones come, some are forgotten; now and then it is closed and opened.
    HistoryBatch next() {
        HistoryBatch batch;
        batch.settledBefore = m_serial;
        batch.number = ++m_number;
        for (int i = 0; i < 1 + pick(8); ++i)
            batch.rows[m_serial + std::uint64_t(i)] = row(m_serial + std::uint64_t(i), 1000 + pick(9000));
        m_serial += 1 + std::uint64_t(pick(8));
        if (pick(5) == 0)
            batch.changes.emplace_back(HistoryChange::Forgotten{
                .program = {}, .title = QStringLiteral("Title %1").arg(pick(20)), .from = {}, .to = {}});
        batch.owed[{.generation = 0, .program = QStringLiteral("Mail"), .window = {}, .timer = {}}] = 5;
        return batch;
    }

    bool isToBeReopened() { return pick(6) == 0; }

private:
    int pick(int count) { return int(m_random() % unsigned(count)); }

    HistoryRow row(std::uint64_t serial, std::int64_t length) {
        return {.start = kNine + std::int64_t(serial) * 10'000,
                .length = length,
                .offset = 60,
                .program = QStringLiteral("Mail"),
                .title = QStringLiteral("Title %1").arg(serial % 20) + QString(pick(900), QChar(u'x')),
                .timer = {},
                .presence = RowPresence::Work};
    }

    std::mt19937 m_random;
    std::uint64_t m_serial = 0;
    std::int64_t m_number = 0;
};

class HistoryPowerCutTest : public testing::Test {
protected:
    // Writes until the power goes. Answers after how many batches, each of which was said to be written;
    // `states` are what the file says after each.
    static int write(const QString& path, Telling telling, const CrashingDisk& disk,
                     std::vector<std::string>* states = nullptr) {
        std::optional<HistoryKeeper> keeper(std::in_place, path);
        for (int batch = 0; batch < Telling::kBatches; ++batch) {
            if (telling.isToBeReopened())
                keeper.emplace(path);
            const auto report = keeper->write(telling.next());
            EXPECT_EQ(report.setAside, std::nullopt);
            if (report.state != State::Written || disk.happened)
                return batch + (report.state == State::Written);
            if (states)
                states->push_back(HistoryDiary::of(path));
        }
        return Telling::kBatches;
    }
};

TEST_F(HistoryPowerCutTest, whateverWasNotSynced_whatIsSaidToBeWrittenIsThere) {
    int inTheMiddle = 0;
    for (unsigned seed = 1; seed <= unsigned(cuts(12)) && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 chance(seed);
        std::vector<std::string> states{"no file"};
        int calls = 0;
        {
            const QTemporaryDir folder;
            CrashingDisk disk(folder.path());
            const CrashingVfs vfs(disk);
            write(folder.filePath(kFile), Telling(seed), disk, &states);
            calls = disk.calls;
        }
        const QTemporaryDir folder;
        const QString path = folder.filePath(kFile);
        CrashingDisk disk(folder.path());
        int written = 0;
        {
            const CrashingVfs vfs(disk);
            disk.arm(Fault::Crashes, 1 + int(chance() % unsigned(calls)));
            written = write(path, Telling(seed), disk);
        }
        disk.losePower(chance);
        inTheMiddle += written > 0 && written < Telling::kBatches;
        HistoryKeeper again(path);
        const auto report = again.write({});
        EXPECT_EQ(report.state, State::Written) << qPrintable(report.why);
        EXPECT_EQ(report.setAside, std::nullopt);
        EXPECT_EQ(HistoryDiary::flaws(path), QStringList());
        const std::string found = HistoryDiary::of(path);
        const auto last = std::size_t(written);
        EXPECT_TRUE((last == 0 && found.empty()) || found == states[last] ||
                    (last + 1 < states.size() && found == states[last + 1]))
            << "after " << written << " batches: " << found << "\ninstead of: " << states[last];
    }
    EXPECT_GT(inTheMiddle, cuts(12) / 3);
}

// A disk that is full, or a cable that is loose, at any call and for some more: what was refused is written
// by the next try, as a thread that writes for the history tries.
TEST_F(HistoryPowerCutTest, whateverIsRefused_theNextTryWritesItOnce) {
    const auto live = [](const QString& path, CrashingDisk& disk, int failing, int error) {
        disk.arm(failing > 0 ? Fault::Fails : Fault::None, failing, error);
        disk.failing = 1 + failing % 14;
        const CrashingVfs vfs(disk);
        Telling telling(3);
        std::optional<HistoryKeeper> keeper(std::in_place, path);
        int tries = 0;
        for (int batch = 0; batch < Telling::kBatches; ++batch) {
            const HistoryBatch next = telling.next();
            HistoryKeeper::Report report;
            do {
                report = keeper->write(next);
                EXPECT_EQ(report.setAside, std::nullopt);
                ++tries;
            } while (report.state != State::Written && tries < 2 * Telling::kBatches);
        }
        keeper->close();
        return tries - Telling::kBatches;
    };
    const auto owed = [](const QString& path) {
        SqliteDatabase file(path, SqliteDatabase::Mode::Read, 0);
        return file.number("SELECT sum(length) FROM owed");
    };
    const QTemporaryDir folder;
    CrashingDisk sound(folder.path());
    live(folder.filePath(kFile), sound, 0, 0);
    const std::string expected = HistoryDiary::of(folder.filePath(kFile));
    int refused = 0;
    for (int call = 1; call <= sound.calls && !HasFailure(); call += 1 + sound.calls / cuts(60)) {
        const int error = call % 2 ? ENOSPC : EIO;
        SCOPED_TRACE("call " + std::to_string(call) + " of " + std::to_string(sound.calls));
        const QTemporaryDir again;
        const QString path = again.filePath(kFile);
        CrashingDisk disk(again.path());
        refused += live(path, disk, call, error);
        EXPECT_EQ(HistoryDiary::of(path), expected);
        EXPECT_EQ(owed(path), owed(folder.filePath(kFile)));
        EXPECT_EQ(HistoryDiary::flaws(path), QStringList());
    }
    EXPECT_GT(refused, 20);
}

// Tracker, store and history on a disk that crashes.
class Launched {
public:
    Launched(const QString& folder, CrashingDisk& disk, Date wall)
        : m_folder(folder)
        , m_database(day.tracker, day.store, day.fakes.defaults,
                     Folders{folder, day.fakes.folders.settingsFile, day.fakes.folders.documents}, {},
                     kMostTimers, disk) {
        day.fakes.clock.setWall(wall);
        day.fakes.defaults.setObject(kMinutesUntilIdle, 1);
        m_database.loadMainStore();
        m_history.emplace(History::Services{day.tracker, m_database, day.trouble, day.fakes.notifications,
                                            day.fakes.defaults, day.fakes.runLoop, day.fakes.clock,
                                            day.fakes.log},
                          [](const std::function<void()>& work) { work(); });
        day.fakes.runLoop.runPending();
    }

    void finish() { m_history->finish(); }

    // Until the power goes, if it does.
    void live(std::mt19937& chance, const CrashingDisk& disk) {
        day.start();
        for (int step = 0; step < 60 && !disk.hasCrashed(); ++step) {
            day.front(chance() % 2 ? "Mail" : "Editor", chance() % 3 ? "a" : "b");
            for (auto seconds = chance() % 20; seconds > 0 && !disk.hasCrashed(); --seconds)
                day.seconds(1);
            for (int seconds = chance() % 8 == 0 ? 40 : 0; seconds > 0 && !disk.hasCrashed(); --seconds)
                day.idle(1);
            if (chance() % 4 == 0)
                save();
        }
    }

    void save() {
        try {
            static_cast<void>(m_database.saveSettingsToDiskAtURL());
            day.fakes.runLoop.runPending();
        } catch (const CrashingDisk::Crash&) {
            // There is nobody any more.
        }
    }

    std::map<std::string, double> totals() const {
        std::map<std::string, double> totals;
        for (const auto& app : day.tracker.fullTimeSet()) {
            totals[app->name().toStdString()] = app->activeTime();
            for (const auto& window : app->windows())
                totals[QString(app->name() + u'/' + window->name()).toStdString()] = window->activeTime();
        }
        return totals;
    }

    const QString history() const { return m_folder + u'/' + kFile; }

    Day day;

private:
    QString m_folder;
    TimeDatabase m_database;
    std::optional<History> m_history;
};

TEST_F(HistoryPowerCutTest, whateverFailsForAWhile_theHistoryIsTheSame) {
    const auto live = [](const QString& folder, CrashingDisk& disk) {
        const CrashingVfs vfs(disk);
        Launched launched(folder, disk, Date(std::chrono::milliseconds(kNine)));
        std::mt19937 chance(1);
        launched.live(chance, disk);
        // After each refusal it waits for a minute.
        launched.day.seconds(1000);
        launched.finish();
        return HistoryDiary::of(launched.history());
    };
    const QTemporaryDir folder;
    CrashingDisk sound(folder.path());
    const std::string expected = live(folder.path(), sound);
    // Those of the end come too late to be tried again.
    const int most = sound.calls / 2;
    for (int call = 1; call <= most && !HasFailure(); call += 1 + most / cuts(15)) {
        SCOPED_TRACE("call " + std::to_string(call) + " of " + std::to_string(sound.calls));
        const QTemporaryDir again;
        CrashingDisk disk(again.path());
        disk.arm(Fault::Fails, call, call % 2 ? ENOSPC : EIO);
        disk.failing = 1 + call % 14;
        EXPECT_EQ(live(again.path(), disk), expected);
        EXPECT_EQ(HistoryDiary::flaws(again.filePath(kFile)), QStringList());
    }
}

// What the one before had, and no more.
void expectMadeUpFor(const std::map<std::string, double>& found, const std::map<std::string, double>& before,
                     double missing) {
    for (const auto& [who, time] : before) {
        const auto other = found.find(who);
        const double now = other == found.end() ? 0 : other->second;
        EXPECT_LE(now, time + 0.01) << who;
        // An absence that is noticed by the tick in which the power goes has been booked in memory alone.
        EXPECT_GE(now, time - missing - (who == "Idle" ? 65 : 0)) << who;
    }
    for (const auto& [who, time] : found)
        EXPECT_TRUE(before.contains(who)) << who;
}

TEST_F(HistoryPowerCutTest, storeAndHistory_haveFifteenSecondsLessAtMostAndNothingTwice) {
    int betweenTheTwo = 0;
    for (unsigned seed = 1; seed <= unsigned(cuts(12)) && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 chance(seed);
        const QTemporaryDir folder;
        CrashingDisk disk(folder.path());
        Date wall = Date(std::chrono::milliseconds(kNine));
        std::map<std::string, double> known;
        for (int cut = 0; cut < 4 && !HasFailure(); ++cut) {
            disk.settle();
            disk.arm(Fault::None, 0);
            {
                const CrashingVfs vfs(disk);
                Launched launched(folder.path(), disk, wall);
                // It goes on for up to a second after the crash.
                expectMadeUpFor(launched.totals(), known, 16);
                EXPECT_TRUE(launched.day.fakes.log.lines.filter(QStringLiteral("damaged")).isEmpty())
                    << qPrintable(launched.day.fakes.log.lines.join(u'\n'));
                disk.arm(Fault::Crashes, 1 + int(chance() % 400));
                launched.live(chance, disk);
                known = launched.totals();
                wall = launched.day.fakes.clock.now() + std::chrono::hours(1);
            }
            betweenTheTwo += QFile::exists(folder.filePath(QStringLiteral("Primary Database.tkd.new")));
            disk.losePower(chance);
        }
    }
    EXPECT_GT(betweenTheTwo, 3);
}

} // namespace
