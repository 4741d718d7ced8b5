// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Ticks.h"
#include "tests/fakes/TestEngine.h"

#include <QMap>

// A person's day at the desktop, told in sentences, and the account that Ticklog made of it:
//
//   Day day;
//   day.start();
//   day.front("Mail", "Inbox");
//   day.seconds(40);
//   day.idle(1200);
//   EXPECT_EQ(day.tree(), "Idle 1133.6, Mail 1006.3 [Inbox 1006.3]");
//
// The clock stands at 9:00 on 5 January 2026 and passes only as told, with a tick every 0.1 seconds.
class Day : public TestEngine {
public:
    // Ten times a second, or as the program does where the loop tells of its waits.
    enum class Ticking { Steady, OnDemand };

    explicit Day(Ticking ticking = Ticking::Steady);
    explicit Day(const TimeTracker::MakeActivator& makeActivator)
        : TestEngine(makeActivator) {}

    const Ticks& ticks() const;

    void start() {
        fakes.runLoop.wake();
        control.startTimer();
    }

    void stop() {
        fakes.runLoop.wake();
        control.stopTimer();
    }

    // An application comes to the front with one of its windows, or without any. Its other windows stay
    // behind.
    void front(const char* application, const char* title = nullptr);

    // The same, but the window may still say that it belongs to another program.
    void frontUndecided(const char* application, const char* title);
    // It does: all windows of `application`, with the same numbers and the same process, are those of `program`.
    void turnOut(const char* application, const char* program);

    // The same as front(), but the desktop does not tell: the next poll has to notice.
    void frontSilently(const char* application, const char* title = nullptr);

    // Another window of the application in front.
    void window(const char* title);

    // Time passes while the person works.
    void retitle(const char* title);

    void closeAllWindows() { fakes.windowList.windows.clear(); }

    // Time passes while the person works.
    void seconds(double time);

    // Time passes without input. A second idle() directly afterwards continues the same pause.
    void idle(double time) { advance(time); }

    // The machine sleeps, announces it before and after, and is woken by the person.
    void asleep(double time);

    // Time passes while nothing runs, not even timers.
    void stall(double time) { fakes.clock.advance(nanoseconds(time)); }

    void freeze(const char* application, const char* title = nullptr);

    void remove(const char* application, const char* title = nullptr);

    // The timer of that name (not the one shown). If two have the name: the later one.
    TimeStoreNode& node(const char* application, const char* title = nullptr);

    double secondsOf(const char* application, const char* title = nullptr);

    // "Idle 20, Mail 40 [Inbox 40]": timers by name with their seconds to a tenth, windows in brackets; with
    // the name shown behind a "~" where it is another.
    std::string tree() const;

    // The number of the window that has this title on the screen.
    std::int64_t windowNumber(const char* application, const char* title);

    static std::chrono::nanoseconds nanoseconds(double time);

    void advance(double time) { fakes.runLoop.advance(nanoseconds(time)); }

    ApplicationRecord recordOf(const char* application);

private:
    std::int64_t numberOf(const QString& key);

    void arrange(const char* application, const char* title);

    QMap<QString, std::int64_t> m_processes;
    QMap<QString, std::int64_t> m_numbers;
    std::int64_t m_lastNumber = 100;
};
