// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/ActivityListener.h"
#include "platform/Accessibility.h"
#include "platform/FrontApplication.h"
#include "platform/WindowList.h"
#include "platform/foundation/observing/KeyValueObserving.h"
#include "platform/foundation/time/Clock.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

#include <memory>
#include <mutex>
#include <optional>

class TitleRules;

inline constexpr ObservedKey kIsAXEnabledKey{"isAXEnabled"};

// What activity sources ask. It outlives them.
struct ActivityServices {
    FrontApplication& frontApplication;
    WindowList& windowList;
    Accessibility& accessibility;
    RunLoop& runLoop;
    Clock& clock;
    SystemLog& log;
    // Which titles may be recorded. Null: all.
    const TitleRules* titleRules = nullptr;
};

// While attached to a source, this is called at every tick.
class ComputeTarget {
public:
    virtual ~ComputeTarget() = default;
    virtual void computeTime() = 0;
    // When the next tick is needed; absent: when something happens. Ticks that come sooner do no harm.
    virtual std::optional<Instant> neededTick() const { return std::nullopt; }
    // Whether somebody may be looking at the times.
    virtual bool isSeen() const { return true; }
};

// Tells the tracker which application and which of its windows is in front, and keeps the instant from which
// the next credit is measured. This base class knows applications only. Belongs to one tracker, which
// outlives it or calls teardown().
class TimeActivator : public Observable {
public:
    // The source that every tracker gets, with accessibility trust or without.
    static std::unique_ptr<TimeActivator> activatorForTracker(ActivityListener& tracker,
                                                              ActivityServices& services);

    TimeActivator(ActivityListener& tracker, ActivityServices& services);
    ~TimeActivator() override;

    // Forgets the tracker and tells it nothing from now on.
    void teardown() { m_timeTracker = nullptr; }

    // The name to credit for an application record; absent when neither the record nor the program has one.
    virtual std::optional<QString> buildAppNameForDictionary(const std::optional<ApplicationRecord>& record);
    // Takes from the record what the source needs to know about the application.
    virtual void computeInfoWithAppDict(const std::optional<ApplicationRecord>& record);
    // Another application is in front. Answers its record.
    virtual std::optional<ApplicationRecord> appDidChange();
    // Reads the front window again and tells the tracker.
    virtual void mainWindowDidChange() {}
    // The document that a title names: the title up to the first "(" or "@", trimmed. Absent when nothing is
    // left.
    static std::optional<QString> getDocStringNameForName(const std::optional<QString>& title);

    // Begins a new period to credit, in sources that credit.
    virtual void resetObservations() {}
    // Ends what the source has subscribed to.
    virtual void resetNotifications() {}
    // When the period to credit began. Absent until the first reset; nothing can be credited until then.
    std::optional<Instant> startDate() const { return m_startDate; }
    // The whole title of the front window, cleaned; absent while the application in front has none.
    virtual std::optional<QString> windowTitle() const { return std::nullopt; }
    using Period = CountedPeriod;
    // Ends the period to credit, now or `at` an instant since it began; the next one begins there.
    virtual Period endPeriod(const std::optional<Instant>& at = {});
    // From now on, nothing waits for a new window to say which program it belongs to: tells the tracker the time that
    // has waited.
    virtual void waitNoLonger() {}

    // With a compute timer, the controller's computeTime() is called ten times a second, or when it is needed.
    virtual void createComputeTimerForController(ComputeTarget& controller);
    virtual void destroyComputeTimer();
    virtual bool computeTimerIsValid() const;
    // Credits what steady ticks would have credited so far, where ticks are not steady.
    virtual void creditMissedTicks() {}

    // Opens the desktop's settings where the user grants accessibility.
    void openUniversalAccessPreferences();
    // Whether the program has the accessibility trust that this source needs.
    virtual bool isAXEnabled();
    // Whether windows are credited as well as applications.
    virtual bool trackDocumentTiming() const { return m_trackDocumentTiming; }

    // The application that the tracker was last told of.
    const std::optional<QString>& currentAppName() const { return m_currentAppName; }
    void setCurrentAppName(const std::optional<QString>& name) { m_currentAppName = name; }

protected:
    ActivityListener* timeTracker() const { return m_timeTracker; }
    ActivityServices& services() const { return m_services; }
    std::recursive_mutex& lock() { return m_lock; }
    void restartPeriod() { m_startDate = m_services.clock.instant(); }

    bool m_isAXEnabled;
    bool m_trackDocumentTiming;
    // The user was sent to the settings to grant accessibility: check again at the next switch.
    bool m_waitForUniversalAccessChange = false;

private:
    void setupAppChangeNotification();

    ActivityListener* m_timeTracker;
    ActivityServices& m_services;
    std::optional<QString> m_currentAppName;
    std::optional<Instant> m_startDate;
    std::unique_ptr<RunLoopTimer> m_updateTimer;
    Subscription m_switches;
    // Guards against re-entry from observers and timers, not against other threads.
    std::recursive_mutex m_lock;
};
