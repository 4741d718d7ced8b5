// SPDX-License-Identifier: MIT
#include "Classes/history/HistorySalvage.h"

#include "Classes/history/HistorySchema.h"

#include <limits>
#include <unordered_map>

namespace {

// Milliseconds. A damaged place is not narrowed down further: a span as short as this fits on a page or less.
constexpr std::int64_t kShortest = 600'000;
// After so many places that cannot be read, the rest is given up.
constexpr int kMostTries = 2000;

class Salvage {
public:
    Salvage(const QString& path, HistoryFile& into)
        : m_damaged(path, SqliteDatabase::Mode::ReadWrite, 0)
        , m_into(into) {
        m_damaged.closeWithoutCheckpoint();
    }

    int takeRows() {
        m_hasAmendments = HistorySchema::hasAmendments(m_damaged);
        // From 1970 to 2106.
        takeBetween(0, 1LL << 42);
        if (m_hasAmendments) {
            attempt([this] { takeProjects(); });
            attempt([this] { takeAmended(); });
        }
        return m_count;
    }

private:
    // False if it met damage.
    template<class Work>
    bool attempt(Work&& work) {
        try {
            work();
            return true;
        } catch (const SqliteError& error) {
            if (!error.isDamage())
                throw;
            return false;
        }
    }

    void takeBetween(std::int64_t from, std::int64_t to) {
        std::int64_t first = from;
        std::int64_t last = to;
        if (attempt([&] { takeForward(first, to); }) || attempt([&] { takeBackward(first, last); }) ||
            last - first < kShortest || ++m_tries > kMostTries)
            return;
        const std::int64_t middle = first + (last - first) / 2;
        takeBetween(first, middle);
        takeBetween(middle, last);
    }

    // Moves `from` behind each row that was taken. Rows with the same start, after the clock was set back,
    // are taken together or not at all.
    void takeForward(std::int64_t& from, std::int64_t to) {
        SqliteQuery row(m_damaged,
                        "SELECT start, length, offset, program, title, timer, presence, n FROM stretches "
                        "WHERE start >= ? AND start < ? ORDER BY start, n",
                        from, to);
        while (row.next()) {
            take(row);
            from = row.integer(0) + 1;
        }
    }

    void takeBackward(std::int64_t from, std::int64_t& to) {
        SqliteQuery row(m_damaged,
                        "SELECT start, length, offset, program, title, timer, presence, n FROM stretches "
                        "WHERE start >= ? AND start < ? ORDER BY start DESC, n DESC",
                        from, to);
        while (row.next()) {
            take(row);
            to = row.integer(0);
        }
    }

    void take(const SqliteQuery& row) {
        const auto timer = timerOf(row.integer(5));
        const HistoryRow taken{
            .start = row.integer(0),
            .length = row.integer(1),
            .offset = row.integer(2),
            .program = textOf("SELECT name FROM programs WHERE id = ?", row.integer(3), m_programs),
            .title = textOf("SELECT text FROM titles WHERE id = ?", row.integer(4), m_titles),
            .timer = timer.value_or(RowTimer()),
            .presence = RowPresence(row.integer(6))};
        const bool isPossible = taken.length > 0 && taken.length <= 3'600'000 && taken.offset > -1440 &&
                                taken.offset < 1440 && row.integer(6) >= 0 && row.integer(6) <= 2;
        if (!timer || !isPossible)
            return;
        const HistoryFile::Key key = m_into.add(taken);
        if (key.n != row.integer(7))
            m_moved.insert_or_assign({key.start, row.integer(7)}, key);
        ++m_count;
    }

    void takeProjects() {
        for (SqliteQuery row(m_damaged, "SELECT identity, name FROM projects"); row.next();)
            sqliteRun(m_into.database(), "INSERT OR IGNORE INTO projects VALUES (?, ?)", row.bytes(0),
                      row.text(1));
    }

    // The record of what was changed by hand, as far as the stretches themselves were taken.
    void takeAmended() {
        SqliteQuery row(m_damaged, "SELECT start, n, made, program, title, timer, presence FROM amended");
        while (row.next()) {
            const auto moved = m_moved.find({row.integer(0), row.integer(1)});
            const auto key =
                moved != m_moved.end() ? moved->second : HistoryFile::Key{row.integer(0), row.integer(1)};
            HistoryRow before;
            before.program = textOf("SELECT name FROM programs WHERE id = ?", row.integer(3), m_programs);
            before.title = textOf("SELECT text FROM titles WHERE id = ?", row.integer(4), m_titles);
            before.timer = timerOf(row.integer(5)).value_or(RowTimer());
            before.presence = RowPresence(row.integer(6));
            m_into.addBefore(key, row.integer(2),
                             row.integer(6) == HistoryFile::kNothing ? std::nullopt : std::optional(before));
        }
    }

    const QString& textOf(const char* sql, std::int64_t id,
                          std::unordered_map<std::int64_t, QString>& known) {
        const auto [place, isNew] = known.try_emplace(id);
        QString& text = place->second;
        if (isNew)
            attempt([&] {
                if (SqliteQuery row(m_damaged, sql, id); row.next())
                    text = row.text(0);
            });
        return text;
    }

    // Absent for a timer that was deleted.
    std::optional<RowTimer> timerOf(std::int64_t id) {
        const auto [place, isNew] = m_timers.try_emplace(id, RowTimer());
        std::optional<RowTimer>& timer = place->second;
        if (isNew)
            attempt([&] {
                SqliteQuery row(m_damaged,
                                m_hasAmendments
                                    ? "SELECT application, window, deleted, project FROM timers WHERE id = ?"
                                    : "SELECT application, window, deleted, x'' FROM timers WHERE id = ?",
                                id);
                if (!row.next())
                    return;
                if (row.integer(2))
                    timer.reset();
                else
                    timer = RowTimer{Identity::fromBytes(row.bytes(0)), Identity::fromBytes(row.bytes(1)),
                                     historyProject(row.bytes(3))};
            });
        return timer;
    }

    SqliteDatabase m_damaged;
    HistoryFile& m_into;
    std::unordered_map<std::int64_t, QString> m_programs;
    std::unordered_map<std::int64_t, QString> m_titles;
    std::unordered_map<std::int64_t, std::optional<RowTimer>> m_timers;
    // Where stretches of one moment lie now, if not all of them could be taken.
    std::map<std::pair<std::int64_t, std::int64_t>, HistoryFile::Key> m_moved;
    bool m_hasAmendments = false;
    int m_count = 0;
    int m_tries = 0;
};

} // namespace

namespace HistorySalvage {

int takeOver(const QString& path, HistoryFile& into) {
    SqliteTransaction transaction(into.database());
    int count = 0;
    try {
        Salvage salvage(path, into);
        count = salvage.takeRows();
    } catch (const SqliteError&) {
        // Not even the first page can be read: nothing can be rescued.
    }
    transaction.commit();
    return count;
}

} // namespace HistorySalvage
