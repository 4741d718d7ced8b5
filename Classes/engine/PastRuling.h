// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/CountedTimers.h"

class PastTitles;

// Applies the rules for titles to the timers of the past, once. A window that is left out loses its row, while
// its application keeps the time; a replaced title renames the window; the time of a program that must not be
// known goes to kPrivateName. No hidden name is left anywhere, nor told as a removal, so it cannot come back.
class PastRuling {
public:
    // Both outlive it.
    PastRuling(CountedTimers& timers, const PastTitles& past)
        : m_timers(timers)
        , m_past(past) {}

    // How many timers have names that the rules do not allow.
    static int countOf(const TimerTree& tree, const PastTitles& past);

    // Takes the names from the tree. Nothing is counted on afterwards, until the tracker has looked again
    // what is in front.
    void hide();
    // The names' last traces, also those of timers that were cleared, which a project may still have. Answers
    // the identities that no timer has any more.
    std::unordered_set<Identity> forgetNames();

private:
    void hide(TimeStoreApp& app);
    void remove(TimeStoreApp& app);

    CountedTimers& m_timers;
    const PastTitles& m_past;
    std::unordered_set<Identity> m_identities;
    std::unordered_set<QString> m_names;
    TimerTree::AppSet m_applications;
    // Of programs that must not be known.
    Seconds m_time = 0;
};
