// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Stretch.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/observing/Listeners.h"
#include "platform/foundation/time/Clock.h"
#include "platform/foundation/values/Identity.h"

#include <optional>

class TimeTracker;

// What somebody worked on, as the tracker credited it.
struct WorkedOn {
    QString program;
    QString title;
    std::optional<Identity> application;
    std::optional<Identity> window;
};

// A time in which nobody was there: nothing was touched, the screen was locked, or the machine slept.
struct Absence {
    Date from;
    Date to;
    WorkedOn before;
};

// Notices when somebody comes back after an absence of the length that the settings ask about. A pause that
// the user has ordered is no absence, nor is the time before the first work. Hears of nothing while the
// settings do not ask, and never needs a timer of its own. Main thread only.
class AbsenceWatch : private StretchListener {
public:
    // Both are called in the middle of a tick: they must change neither the tree nor the timer.
    struct Hearer {
        std::function<void(const Absence&)> cameBack;
        // Nobody had been there after all: this absence goes on, and is told once more when it ends. If it
        // answers false, only what comes now is told then.
        std::function<bool(const Absence&)> goesOn;
    };

    // A window that comes up by itself looks like somebody at work, until the next tick.
    static constexpr std::chrono::seconds kUntilSure{2};

    // Everything outlives the watch.
    AbsenceWatch(TimeTracker& tracker, NotificationCenter& notifications, const UserDefaults& defaults,
                 const Clock& clock, Hearer hearer);
    AbsenceWatch(const AbsenceWatch&) = delete;
    AbsenceWatch& operator=(const AbsenceWatch&) = delete;

    // Whether the settings ask what an absence was.
    static bool isWished(const UserDefaults& defaults);
    // From which length on they would.
    static std::chrono::minutes shortestAbsence(const UserDefaults& defaults);

private:
    // One moment on all clocks.
    struct Moment {
        Instant at;
        Date wall;
        std::chrono::nanoseconds sinceBoot{};
    };
    struct Return {
        Absence absence;
        Instant at;
    };

    void credited(const Stretch& stretch) override;
    void waits(const Stretch& stretch) override { credited(stretch); }
    void absent(Instant since, Instant noticed, Seconds booked) override;
    std::optional<Instant> awaited() const override {
        return m_return ? std::optional(m_return->at + kUntilSure) : std::nullopt;
    }
    void settingsChanged();
    void forget();
    Moment momentOf(Instant instant) const;
    bool isAbsence(const Moment& from, const Moment& to) const;
    void tellReturn();

    TimeTracker& m_tracker;
    const UserDefaults& m_defaults;
    const Clock& m_clock;
    Hearer m_hearer;
    std::chrono::nanoseconds m_shortest{};
    bool m_isRunning = false;
    // Until when somebody worked, and on what.
    std::optional<Moment> m_workedTo;
    WorkedOn m_workedOn;
    // Somebody seems to be back.
    std::optional<Return> m_return;
    // The absence that was told last.
    std::optional<Return> m_told;
    Subscription m_stretches;
    Subscription m_settings;
};
