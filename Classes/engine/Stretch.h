// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

class TimeStoreApp;
class TimeStoreWindow;

// The name of the pseudo-application that idle time is credited to.
inline const QString kIdleName = QStringLiteral("Idle");

// Whether the user was at work or away during a stretch.
enum class Presence : unsigned char { Work, Idle };

// A span of time that belongs to one program, one title and one kind of presence. Stretches are told in order
// of time and never overlap. Time between two of them belongs to nobody: the machine slept or the timer was
// stopped.
struct Stretch {
    Instant from;
    Instant to;
    std::shared_ptr<TimeStoreApp> program;
    // Null when there was none.
    std::shared_ptr<TimeStoreWindow> window;
    // The whole, cleaned title of the front window during the stretch; empty when there was none.
    QString title;
    Presence presence;
};

// Hears where the time goes. It does not hear of corrections of the tree: joining, renaming and undoing are no
// work. Called in the middle of a tick, after the tree has got the same time; must change neither the tree nor
// the timer.
class StretchListener {
public:
    virtual ~StretchListener() = default;

    virtual void credited(const Stretch& stretch) = 0;
    // At `noticed` it turned out that nobody had been there since `since`, the last input. All time between
    // the two was an absence: what has already been told of it as work, and what has not been told yet since
    // the last stretch ended. `booked` is what the tree has given to Idle for it, in its own longer seconds.
    virtual void absent(Instant since, Instant noticed, Seconds booked) = 0;
    // It is not known yet whose this stretch is, and no timer has got it: so far it would be that of this program,
    // which is in no tree. Told in order of time among the others.
    virtual void waits(const Stretch&) {}
    // All that has waited turns out to be these stretches, in order of time; the tree has got them now.
    virtual void turnedOut(const std::vector<Stretch>&) {}
    // When it must be told what has passed by then, even if nothing happens; absent: whenever something does.
    virtual std::optional<Instant> awaited() const { return std::nullopt; }
};
