// SPDX-License-Identifier: MIT
#include "Classes/history/HistoryDebts.h"

#include "Classes/engine/TimeTracker.h"
#include "Classes/history/HistorySchema.h"
#include "Classes/history/Sqlite.h"
#include "Classes/rules/SteadyTitle.h"
#include "Classes/store/AccountEntries.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace {

// The launch must not wait for other programs.
constexpr int kWaitMs = 20;
// So many are looked through for the titles that windows had last: more than are made between two saves.
constexpr std::int64_t kLatestStretches = 5000;

PropertyListDictionary record(const QString& name, const std::optional<Identity>& identity, Seconds time) {
    PropertyListDictionary record{{kRecordName, name}, {kRecordActiveTime, time}};
    if (identity)
        record.insert(kRecordUUID, identity->bytes());
    return record;
}

std::shared_ptr<TimeStoreApp> applicationOf(const TimeTracker& tracker, const OwedTime& to) {
    const auto& all = tracker.fullTimeSet();
    const auto same = std::ranges::find_if(
        all, [&](const auto& app) { return to.timer.application && app->uuid() == to.timer.application; });
    if (same != all.end())
        return *same;
    const auto named = std::ranges::find_if(
        all, [&](const auto& app) { return !app->branched() && app->isNamed(to.program); });
    return named != all.end() ? *named : nullptr;
}

} // namespace

HistoryDebts HistoryDebts::of(const QString& path, const QByteArray& content) {
    HistoryDebts debts;
    if (!QFileInfo(path).isFile())
        return debts;
    try {
        SqliteDatabase file(path, SqliteDatabase::Mode::ReadWrite, kWaitMs);
        // Leaves SQLite's journal as the crash left it: the history's own thread will bring it into the file.
        file.closeWithoutCheckpoint();
        if (HistorySchema::formOf(file) != HistorySchema::Form::Ours ||
            file.number("PRAGMA user_version") == 0)
            return debts;
        SqliteQuery store(file, "SELECT since FROM stores WHERE content = ?", content);
        if (!store.next())
            return debts;
        const std::int64_t since = store.integer(0);
        // What is owed to a store that is away lies below zero.
        const std::int64_t end = since < 0 ? 0 : std::numeric_limits<std::int64_t>::max();
        debts.m_generation = std::max<std::int64_t>(since, 0);
        for (SqliteQuery row(file,
                             "SELECT generation, application, program, window, document, length FROM owed "
                             "WHERE generation >= ? AND generation < ? AND length > 0",
                             since, end);
             row.next();) {
            const auto window = Identity::fromBytes(row.bytes(3));
            debts.m_debts.push_back(
                {{.generation = row.integer(0),
                  .program = row.text(2),
                  .window = window || !row.text(4).isEmpty() ? std::optional(row.text(4)) : std::nullopt,
                  .timer = {Identity::fromBytes(row.bytes(1)), window}},
                 double(row.integer(5)) / 1000});
            debts.m_generation = std::max(debts.m_generation, row.integer(0));
        }
        debts.putLatestTitlesFirst(file);
        debts.m_isKnown = true;
    } catch (const SqliteError& error) {
        // The thread that writes the file will notice and report what is wrong.
        debts = {};
        debts.m_isBusy = error.isBusy();
    }
    return debts;
}

void HistoryDebts::putLatestTitlesFirst(SqliteDatabase& file) {
    std::unordered_map<Identity, int> titles;
    for (const Debt& debt : m_debts)
        if (debt.to.timer.window)
            ++titles[*debt.to.timer.window];
    std::erase_if(titles, [](const auto& window) { return window.second < 2; });
    if (titles.empty())
        return;
    SqliteQuery row(
        file,
        "SELECT timers.window, titles.text FROM stretches JOIN timers ON timers.id = timer "
        "JOIN titles ON titles.id = title WHERE length(window) > 0 ORDER BY start DESC, n DESC LIMIT ?",
        kLatestStretches);
    while (!titles.empty() && row.next()) {
        const auto window = Identity::fromBytes(row.bytes(0));
        const auto document = TimeActivator::getDocStringNameForName(row.text(1));
        if (!window || !document || !titles.contains(*window))
            continue;
        const auto latest = std::ranges::find_if(m_debts, [&](const Debt& debt) {
            return debt.to.timer.window == window && debt.to.window &&
                   steadyTitle(*debt.to.window) == steadyTitle(*document);
        });
        if (latest == m_debts.end())
            continue;
        std::rotate(m_debts.begin(), latest, std::next(latest));
        titles.erase(*window);
    }
}

Seconds HistoryDebts::pay(TimeTracker& tracker) const {
    Seconds paid = 0;
    for (const Debt& debt : m_debts)
        if (!debt.to.window) {
            payApplication(tracker, debt);
            paid += debt.time;
        }
    for (const Debt& debt : m_debts)
        if (debt.to.window)
            payWindow(tracker, debt);
    return paid;
}

void HistoryDebts::payApplication(TimeTracker& tracker, const Debt& debt) const {
    if (const auto app = applicationOf(tracker, debt.to))
        return app->correctTime(debt.time);
    tracker.putBack(
        {PropertyListDictionary{{kEntryApp, record(debt.to.program, debt.to.timer.application, debt.time)},
                                {kEntryWindows, PropertyListArray()}}});
}

// Applications are paid first, so this one exists.
void HistoryDebts::payWindow(TimeTracker& tracker, const Debt& debt) const {
    const auto app = applicationOf(tracker, debt.to);
    if (!app)
        return;
    const auto window = debt.to.timer.window ? app->windowOfIdentity(*debt.to.timer.window) : nullptr;
    if (window)
        return window->correctTime(debt.time);
    app->putBack(record(*debt.to.window, debt.to.timer.window, debt.time));
}
