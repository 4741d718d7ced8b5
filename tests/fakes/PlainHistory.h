// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// What an honest journal says of when it was, worked out from what happened and from nothing else: somebody
// looks each tenth of a second, what has passed since the last look is whose the look finds there, and an
// absence is one from the last input on. Milliseconds throughout, by a clock that only moves on and by one on
// the wall.
class PlainHistory {
public:
    using Time = std::int64_t;
    // "20260329/14/Mail/Inbox/0": what that hour has of it, by the clock on the wall, and the presence as in
    // the file.
    using Sums = std::map<std::string, Time>;

    explicit PlainHistory(Time wall)
        : m_wall(wall) {}

    // A program that is launched looks from now on, each tenth of a second.
    void launch();
    void start();
    void stop();

    // Time passes, and somebody is there or nobody.
    void pass(Time time, bool isThere);
    // Time passes, but the program does not come to look.
    void stand(Time time);
    // Nothing passes but on the wall.
    void slumber(Time time) { m_wall += time; }
    void setWall(Time wall) { m_wall = wall; }
    Time wall() const { return m_wall; }
    // Somebody touches something.
    void input() { m_lastInput = m_now; }

    // What is in front from now on is seen at once, or by the next look. "Idle" is nobody.
    void front(const std::string& program, const std::string& title);
    void frontUnseen(const std::string& program, const std::string& title) { m_front = {program, title}; }

    const Sums& sums() const { return m_sums; }
    // All that passed, without the sleep.
    Time passed() const { return m_now; }
    // What nobody has: the timer was stopped, or the next look has not come.
    Time gaps() const { return m_gaps + (m_isRunning ? m_now - m_from : 0); }
    Time of(const std::string& program) const;
    // What the totals of a program have beyond that: it was in front until its absence was noticed, by a
    // second of 2^30 nanoseconds.
    double beforeAbsences(const std::string& program) const;

private:
    struct Who {
        std::string program;
        std::string title;
    };
    // Within one hour.
    struct Piece {
        Time from;
        Time to;
        std::string program;
        std::string key;
    };
    // From this moment on the wall's clock went on from there.
    struct Anchor {
        Time at;
        Time wall;
    };

    void moveTo(Time moment, bool isThere);
    void look();
    void credit(const Who& who);
    void absent();
    void noteWall();
    void put(Time from, Time to, const Who& who);
    bool isReached() const;

    Time m_now = 0;
    Time m_wall;
    Time m_firstLook = 0;
    // Since when what passes has not been credited.
    Time m_from = 0;
    Time m_lastInput = 0;
    Time m_countingSince = 0;
    bool m_isRunning = false;
    bool m_isNoticed = false;
    Who m_seen;
    Who m_front;
    std::vector<Anchor> m_anchors;
    // Of the last days.
    std::vector<Piece> m_pieces;
    Sums m_sums;
    std::map<std::string, Time> m_programs;
    std::map<std::string, double> m_before;
    Time m_gaps = 0;
};
