// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <QString>

class TimeStoreApp;
class TimeStoreWindow;

// What is known of the user during a stretch.
enum class Presence : unsigned char { Work, Idle };

// A span of time that belongs to one program, one title and one kind of presence. Stretches are told in the order of time
// and never overlap; what lies between two of them was slept, stopped or spent elsewhere, and is nobody's.
struct Stretch {
    Instant from;
    Instant to;
    // Both live as long as the call in which they are told. No window: null.
    const TimeStoreApp* program;
    const TimeStoreWindow* window;
    // Of the window in front, whole and cleaned, as it was during the stretch; empty where there was none.
    QString title;
    Presence presence;
};

// Who wants to know where the time goes, and not what is put right in the tree afterwards: joining, renaming and taking
// back are no work. Called in the midst of a tick, after the tree has its time; it changes neither tree nor timer.
class StretchListener {
public:
    virtual ~StretchListener() = default;

    virtual void credited(const Stretch& stretch) = 0;
    // It has turned out at `noticed` that nobody was there since `since`, the last input: whatever was told of the time
    // between was in truth an absence, and so is the time that has not been told of, since the end of the last stretch.
    // `booked` is what the tree has given to Idle for it, by seconds of its own.
    virtual void absent(Instant since, Instant noticed, Seconds booked) = 0;
};
