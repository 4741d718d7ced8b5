// SPDX-License-Identifier: MIT
// Keeping in memory what is forgotten, and bringing it back.
#include "Classes/history/HistoryFile.h"
#include "Classes/history/RuledTitles.h"

void HistoryFile::keep(const Key& key, RemovedRows& removed) {
    SqliteQuery row(m_database,
                    "SELECT length, offset, program, title, timer, presence FROM stretches "
                    "WHERE start = ? AND n = ?",
                    key.start, key.n);
    row.next();
    RemovedRows::Row& kept = removed.rows.emplace_back(
        RemovedRows::Row{key.start,
                         row.integer(0),
                         row.integer(1),
                         {row.integer(2), row.integer(3), row.integer(4), row.integer(5)},
                         {}});
    for (SqliteQuery before(
             m_database,
             "SELECT made, program, title, timer, presence FROM amended WHERE start = ? AND n = ?", key.start,
             key.n);
         before.next();)
        kept.before.push_back({before.integer(0),
                               {before.integer(1), before.integer(2), before.integer(3), before.integer(4)}});
    keepNames(kept.what, removed);
    for (const RemovedRows::Before& before : kept.before)
        keepNames(before.what, removed);
}

void HistoryFile::keepNames(const Before& what, RemovedRows& removed) {
    if (what.program == 0)
        return;
    const auto note = [](std::map<std::int64_t, QString>& texts, std::int64_t number, const auto& read) {
        if (const auto [place, isNew] = texts.try_emplace(number); isNew)
            place->second = read();
    };
    note(removed.programs, what.program, [&] {
        SqliteQuery row(m_database, "SELECT name FROM programs WHERE id = ?", what.program);
        return row.next() ? row.text(0) : QString();
    });
    note(removed.titles, what.title, [&] {
        SqliteQuery row(m_database, "SELECT text FROM titles WHERE id = ?", what.title);
        return row.next() ? row.text(0) : QString();
    });
    if (removed.timers.contains(what.timer))
        return;
    RemovedRows::Timer& timer = removed.timers[what.timer];
    SqliteQuery row(m_database,
                    "SELECT application, window, project, deleted, name FROM timers "
                    "LEFT JOIN projects ON projects.identity = project WHERE id = ?",
                    what.timer);
    if (!row.next())
        return;
    timer.timer = {Identity::fromBytes(row.bytes(0)), Identity::fromBytes(row.bytes(1)),
                   historyProject(row.bytes(2))};
    timer.deleted = row.integer(3);
    if (timer.timer.project && timer.timer.project->identity)
        removed.projects.emplace(row.bytes(2), row.text(4));
}

void HistoryFile::apply(const HistoryChange::PutBack& change) {
    RemovedRows removed = *change.removed;
    for (const HistoryChange::Later& later : change.since)
        std::visit([&removed](const auto& what) { removed.follow(what); }, later);
    const TitleRules rules(change.rules);
    std::map<Before, Before> known;
    const auto now = [&](const Before& then) {
        const auto [place, isNew] = known.try_emplace(then);
        if (isNew)
            place->second = numbersNow(then, removed, rules);
        return place->second;
    };
    for (const RemovedRows::Row& row : removed.rows) {
        const Before what = now(row.what);
        const Numbers numbers{
            row.length, dayOf(row.start, row.offset), what.program, what.title, what.timer, what.presence};
        addToSums(numbers, row.length);
        const Key key = insert(row.start, row.offset, numbers);
        for (const RemovedRows::Before& before : row.before)
            remember(key, now(before.what), before.made);
    }
    m_isToTellTimers = true;
    if (change.age)
        forgetOlder(*change.age);
}

// What the rules hide by now does not come back under its name.
HistoryFile::Before HistoryFile::numbersNow(const Before& then, const RemovedRows& removed,
                                            const TitleRules& rules) {
    if (then.program == 0)
        return then;
    QString program = removed.programs.at(then.program);
    const QString& title = removed.titles.at(then.title);
    auto [timer, deleted] = removed.timers.at(then.timer);
    const bool isIdle = then.presence == std::int64_t(RowPresence::Idle);
    const auto allowed = isIdle ? title : recordedTitleUnder(rules, program, title);
    if (!allowed)
        program = kPrivateName;
    if (deleted == 0 && allowed != title) {
        if (!allowed)
            timer.application.reset();
        if (!allowed || allowed->isEmpty())
            timer.window.reset();
    }
    if (timer.project && timer.project->identity)
        if (const QByteArray identity = historyBytes(timer.project); removed.projects.contains(identity))
            sqliteRun(m_database, "INSERT OR IGNORE INTO projects VALUES (?, ?)", identity,
                      removed.projects.at(identity));
    return {programId(program), titleId(allowed.value_or(QString())), timerId(timer, deleted), then.presence};
}
