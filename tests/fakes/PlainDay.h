// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

// The true account of a day, computed only from what happened: no ticks, no nodes, no clock but a sum of
// durations. Everything is in seconds.
class PlainDay {
public:
    using Account = std::map<std::string, double>;

    // An application comes to the front, with a window that shows a document, or without.
    void front(const std::string& name, bool hasDocument);
    // Its window shows something else.
    void retitle(bool hasDocument) { m_hasDocument = hasDocument; }
    void start();
    void stop();
    // The timers are empty from here on.
    void clear();
    void forget(const std::string& name);
    // Freezes an application: what it has is put aside.
    void freeze(const std::string& name);
    // The person touches something.
    void input();

    // Time passes while somebody is there.
    void work(double time);
    // Time passes while nobody is there.
    void away(double time);
    // The same, but Ticklog does not run meanwhile.
    void stalled(double time);

    // Continues from these values, so that small differences do not add up.
    void adopt(const Account& applications, const Account& windows);

    const Account& applications() const { return m_applications; }
    // The sum of an application's windows.
    const Account& windows() const { return m_windows; }

private:
    void credit(double time);
    void creditIdle(double time);
    // The end of a time without ticks; `gap` is 0 while Ticklog runs.
    void noticeAbsence(double gap);
    // In the display's seconds of 2^30 nanoseconds.
    double counted() const;

    Account m_applications;
    Account m_windows;
    std::string m_front;
    bool m_hasDocument = false;
    bool m_isRunning = false;
    bool m_isNoticed = false;
    // Since the last input; and since the timer was started or the timers were cleared.
    double m_sinceInput = 0;
    double m_sinceStart = 0;
    // What Idle got since the last input.
    double m_bookedSinceInput = 0;
};
