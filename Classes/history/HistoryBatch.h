// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Amendment.h"
#include "Classes/store/TimerReference.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QDate>

#include <map>
#include <memory>
#include <variant>
#include <vector>

// What kind of time a row holds. Work and idle time were measured; the user entered the third kind by hand.
enum class RowPresence : std::int64_t { Work = 0, Idle = 1, ByHand = 2 };

// The timer of a stretch, by identity. Absent where there is none.
struct RowTimer {
    std::optional<Identity> application;
    std::optional<Identity> window;
    // Absent while nobody has given the stretch to a project by hand.
    std::optional<RowProject> project = {};

    friend bool operator==(const RowTimer&, const RowTimer&) = default;
};

// A stretch as the history keeps it. No row crosses a full hour of local time, so the borders of hours and
// days, and changes of the offset from UTC, never fall inside one.
struct HistoryRow {
    // Milliseconds since 1970, UTC.
    std::int64_t start = 0;
    // Milliseconds; 0 for a row that is to be deleted.
    std::int64_t length = 0;
    // How many minutes local time was ahead of UTC.
    std::int64_t offset = 0;
    QString program;
    QString title;
    RowTimer timer;
    RowPresence presence = RowPresence::Work;
};

// Time that a timer in the tree has and the store on the disk does not have yet. `generation` counts the
// saves.
struct OwedTime {
    std::int64_t generation = 0;
    QString program;
    // Absent for the program itself.
    std::optional<QString> window;
    RowTimer timer;

    friend bool operator<(const OwedTime& a, const OwedTime& b) {
        return std::tie(a.generation, a.program, a.window, a.timer.application, a.timer.window) <
               std::tie(b.generation, b.program, b.window, b.timer.application, b.timer.window);
    }
};

// How old the history may get. Milliseconds, `now` since 1970 by the wall clock.
struct HistoryAge {
    std::int64_t now;
    std::int64_t kept;

    friend bool operator==(const HistoryAge&, const HistoryAge&) = default;
};

struct RemovedRows;

// Changes to what is already in the history, in order.
namespace HistoryChange {

// A timer, with its past, gets another identity. What is deleted stays what it was.
struct Moved {
    TimerMove move;
};

// Timers are deleted or come back. Rows of deleted timers are removed for good when the file is next opened.
struct Deleted {
    TimerReferences timers;
    bool isDeleted;
};

// Everything that meets all given conditions is deleted at once, also from SQLite's journal and free pages.
struct Forgotten {
    std::optional<QString> program;
    std::optional<QString> title;
    // Milliseconds since 1970, UTC; `to` itself is excluded.
    std::optional<std::int64_t> from;
    std::optional<std::int64_t> to;
    // Whether `title` means all titles that contain it, upper or lower case.
    bool isTitlePart = false;
    // Only what lies in one of these, if there are any. Without the conditions above.
    ChosenTimes times = {};
    // Gets what is removed from the pieces, so that it can be put back.
    std::shared_ptr<RemovedRows> removed = {};
};

// What may happen to rows while they are away.
using Later = std::variant<Moved, Deleted, Forgotten>;

// What Forgotten has removed comes back, as it were now if it had stayed; without what the rules hide by now,
// and without what is older than it may get.
struct PutBack {
    std::shared_ptr<const RemovedRows> removed;
    std::vector<Later> since;
    PropertyListValue rules;
    std::optional<HistoryAge> age;
};

// Applies the rules for titles to all rows; the texts that they hide are deleted as by Forgotten. `hidden` is
// the timer of the rows whose program must not be known.
struct Ruled {
    PropertyListValue rules;
    std::optional<Identity> hidden;
};

// A person has said what a piece of the past was. `made`, in milliseconds since 1970, tells it from all
// others.
struct Amended {
    Amendment what;
    std::int64_t made;
};

// That was undone: everything is as it was before.
struct TakenBack {
    std::int64_t made;
};

// A store with this content is about to be written. It lacks what is owed from this generation on.
struct StoreWhole {
    QByteArray content;
    std::int64_t generation;
};

// That store is on the disk now and has replaced the one before.
struct StorePlaced {
    QByteArray content;
    std::int64_t generation;
    // It stands in for another one that is away, and what is owed to that one stays.
    bool isAnotherAway = false;
};

// A store with this content was read, and the history does not know it. What is owed belongs to another
// store.
struct StoreUnknown {
    QByteArray content;
    // That other store is only away, and what is owed to it stays.
    bool isAnotherAway = false;
};

using Any = std::variant<Moved, Deleted, Forgotten, PutBack, Ruled, Amended, TakenBack, StoreWhole,
                         StorePlaced, StoreUnknown>;

} // namespace HistoryChange

// What is written in one transaction. When a row is written twice, by its serial number, only the latest
// state is kept, so a waiting batch stays small.
struct HistoryBatch {
    bool isEmpty() const { return changes.empty() && rows.empty() && owed.empty(); }

    std::vector<HistoryChange::Any> changes;
    std::map<std::uint64_t, HistoryRow> rows;
    // Milliseconds.
    std::map<OwedTime, std::int64_t> owed;
    // Rows with lower serial numbers will not change any more.
    std::uint64_t settledBefore = 0;
    // A batch that is tried again keeps its number and its content. 0 for one that is tried once.
    std::int64_t number = 0;
};
