// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"

#include <QDate>

#include <map>
#include <variant>
#include <vector>

// How a stretch is kept: work and idle time were measured, the third was entered by the user.
enum class RowPresence : std::int64_t { Work = 0, Idle = 1, ByHand = 2 };

// Whose stretch it is, by identity; none for what has no timer.
struct RowTimer {
    std::optional<Identity> application;
    std::optional<Identity> window;

    friend bool operator==(const RowTimer&, const RowTimer&) = default;
};

// A stretch as the history keeps it. None crosses a full hour of local time, so hours, days, and changes of the offset,
// never divide one.
struct HistoryRow {
    // Milliseconds since 1970, UTC.
    std::int64_t start = 0;
    // Milliseconds; 0 for one that is to go.
    std::int64_t length = 0;
    // What local time was ahead of UTC, in minutes.
    std::int64_t offset = 0;
    QString program;
    QString title;
    RowTimer timer;
    RowPresence presence = RowPresence::Work;
};

// What a timer of the tree got, and not yet the store on the disk. `generation` counts the saves.
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

// What happens to what is in the history already, in order.
namespace HistoryChange {

// A timer and its past go by another identity.
struct Renamed {
    Identity from;
    Identity to;
};

// Timers are deleted, or come back. What is deleted is gone for good when the file is opened next.
struct Deleted {
    TimerReferences timers;
    bool isDeleted;
};

// All that meets every condition given is gone at once, from the journal and the free pages as well.
struct Forgotten {
    std::optional<QString> program;
    std::optional<QString> title;
    // Milliseconds since 1970, UTC; the second is not in it.
    std::optional<std::int64_t> from;
    std::optional<std::int64_t> to;
    // Whether all titles are meant that contain it, whatever their case.
    bool isTitlePart = false;
};

// Of what is there no more is left than rules allow; what stood in its place goes as what is forgotten. `hidden` is whose
// timer it is where nobody's name may be known.
struct Ruled {
    PropertyListValue rules;
    std::optional<Identity> hidden;
};

// A store of this content is about to be on the disk: it lacks what is owed from this generation on.
struct StoreWhole {
    QByteArray content;
    std::int64_t generation;
};

// It is there, and no other.
struct StorePlaced {
    QByteArray content;
    std::int64_t generation;
};

// A store of this content has been read, and nothing is known of it: whatever is owed, is owed to another.
struct StoreUnknown {
    QByteArray content;
};

using Any = std::variant<Renamed, Deleted, Forgotten, Ruled, StoreWhole, StorePlaced, StoreUnknown>;

} // namespace HistoryChange

// What is to be written in one go. Of a row that is written again, by its serial number, the latest state holds: what waits
// is never more than what there is.
struct HistoryBatch {
    bool isEmpty() const { return changes.empty() && rows.empty() && owed.empty(); }

    std::vector<HistoryChange::Any> changes;
    std::map<std::uint64_t, HistoryRow> rows;
    // Milliseconds.
    std::map<OwedTime, std::int64_t> owed;
    // Rows with lower numbers will not be written again.
    std::uint64_t settledBefore = 0;
    // What is tried again goes by the same number as before, and is as it was; 0 for what is tried once.
    std::int64_t number = 0;
};
