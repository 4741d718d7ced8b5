// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

// What an honest account of a day says, worked out from what happened and from nothing else: no ticks, no nodes, no clock
// but a sum of durations. Seconds throughout.
class PlainDay {
public:
    using Account = std::map<std::string, double>;

    // An application in front, with a window that has a document or without.
    void front(const std::string& name, bool hasDocument);
    // Its window shows something else.
    void retitle(bool hasDocument) { m_hasDocument = hasDocument; }
    void start();
    void stop();
    // The timers are empty from here on.
    void clear();
    void forget(const std::string& name);
    // What an application has is put aside.
    void freeze(const std::string& name);
    // The person touches something.
    void input();

    // Time in which somebody is there.
    void work(double time);
    // Time in which nobody is.
    void away(double time);
    // The same, but Ticklog does not come to run meanwhile.
    void stalled(double time);

    // Goes on from these, so that small differences do not add up.
    void adopt(const Account& applications, const Account& windows);

    const Account& applications() const { return m_applications; }
    // What the windows of an application have together.
    const Account& windows() const { return m_windows; }

private:
    void credit(double time);
    void creditIdle(double time);
    // At the end of a stretch in which nothing was looked at, which is zero while Ticklog runs.
    void noticeAbsence(double gap);
    // What the display counts: 2^30 nanoseconds are one.
    double counted() const;

    Account m_applications;
    Account m_windows;
    std::string m_front;
    bool m_hasDocument = false;
    bool m_isRunning = false;
    bool m_isNoticed = false;
    // Since the last input, and since the timer was started or the timers were cleared.
    double m_sinceInput = 0;
    double m_sinceStart = 0;
    // What Idle got since the last input.
    double m_bookedSinceInput = 0;
};
