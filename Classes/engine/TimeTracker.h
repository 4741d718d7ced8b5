// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/ActivityListener.h"
#include "Classes/engine/CountedTimers.h"
#include "Classes/engine/IdleBookings.h"
#include "Classes/engine/Stretch.h"
#include "Classes/engine/TimeActivator.h"
#include "Classes/engine/TrackerServices.h"
#include "Classes/store/FrozenTimer.h"
#include "platform/Sandbox.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/observing/Listeners.h"

class Freezing;
class IncomingTimers;
class PastTitles;
class RuleCategories;
class SteadyRows;
class TimeStoreCategory;
class TitleRows;

inline constexpr ObservedKey kLastResetDateKey{"lastResetDate"};
inline constexpr ObservedKey kLastResetDateDisplayStringKey{"lastResetDateDisplayString"};

// Owns the tree of timers and the activity source, and credits time: at every tick, what has passed since the
// last one goes to the node of the current application and, separately, to the node of the current window.
// There is one tracker in the process. Main thread only; the lock guards against re-entry.
class TimeTracker : public Observable, public ActivityListener {
public:
    using AppSet = TimerTree::AppSet;
    using MakeActivator = std::function<std::unique_ptr<TimeActivator>(TimeTracker&, ActivityServices&)>;

    explicit TimeTracker(TrackerServices& services, const MakeActivator& makeActivator = {});
    ~TimeTracker() override;

    bool isRunning() const { return m_isRunning; }

    // False when the source lacks its accessibility trust: then the user is asked for it and nothing starts.
    bool setIsRunning(bool run);

    // The activity source calls these.
    void appDidChange() override;
    void mainWindowDidChangeToAppName(const std::optional<QString>& appName,
                                      const std::optional<WindowElement>& mainWindowName,
                                      const std::optional<QString>& documentName) override;
    void renameWindowToName(const std::optional<QString>& newName, const WindowElement& window) override;
    void letWait(const NamedPeriod& soFar) override;
    void creditPeriods(const std::vector<NamedPeriod>& periods) override;
    void creditTimeBeforeSwitch() override;
    void creditMissedTicks(Instant until) override;
    bool isIdle() const override { return m_wasIdle; }

    // The listener is told every stretch for as long as the subscription lives, and must outlive it.
    Subscription listen(StretchListener& listener) { return m_listeners->add(&listener); }
    // When the first listener awaits a stretch; absent if none does.
    std::optional<Instant> awaited() const;

    // The tick.
    void updateDisplayTime(bool idle);
    // Adds the time from `start` to `end`, or else to now, to the node. Does nothing without a node or a
    // start. In the program only addTimeOf() calls it.
    void updateActiveTimeInStore(TimeStoreNode* node, const std::optional<Instant>& start,
                                 const std::optional<Instant>& end = {});
    // Finds or makes the application to credit. Without a name the current one stays.
    void setCurrentApp(const std::optional<QString>& name) { m_timers.setCurrentApp(name); }
    void resetInternalTimes();
    void awakeFromSleep();
    // Credits what waits for a new window to say which program it belongs to, for whoever ends the counting. Who
    // writes the timers need not: the history keeps what waits.
    void waitNoLonger() { m_timeActivator->waitNoLonger(); }

    // The sum over all applications, in seconds. Leaves out Ticklog itself and Idle where the settings say
    // so.
    Seconds totalTime() const;
    // Answers for an application whether it is left out of that sum, as the settings are now.
    std::function<bool(const TimeStoreApp&)> isLeftOutOfTotal() const;
    // The applications that the search and the cut-off leave; all of them while neither is set.
    TimeStoreItem::Children timeSet() const;

    // All timers.
    const TimerTree& tree() const { return m_timers.tree(); }
    const AppSet& fullTimeSet() const { return tree().applications(); }
    std::vector<Identity> primaryUUIDs() const { return tree().identities(); }
    // As TimerTree::timersOf().
    TimeStoreItem::Children timeChildrenForChildUUIDs(const std::unordered_set<Identity>& childUUIDs,
                                                      bool excludingIncludedChildren) const {
        return tree().timersOf(childUUIDs, excludingIncludedChildren);
    }
    // Gives a project's node the nodes of its members as children.
    void updateTimeStoreCategory(TimeStoreCategory& category, const std::vector<Identity>& childUUIDs) const;

    void setSearchString(const QString& searchString);
    // In seconds: rows with less time are hidden.
    void setCutoffTime(float cutoffTime);
    void reloadSearchFiltering() { m_timers.reloadSearchFiltering(); }
    // What the search and the cut-off leave, and whether that is out of date.
    const Narrowing& narrowing() const { return m_timers.narrowing(); }

    // Freezes a timer, undoes it, and freezes it again: see Freezing.
    FrozenTimer branchNode(TimeStoreNode& node);
    bool unbranchNode(FrozenTimer& frozen);
    bool branchNodeAgain(FrozenTimer& frozen);
    // Freezes the timers of these identities, found as timeChildrenForChildUUIDs() finds them. Leaves out
    // those already frozen.
    std::vector<FrozenTimer> branchUUIDs(const std::vector<Identity>& childUUIDs);
    // Adds an application, despite its name, with this name and time. The oldest database files hold nothing
    // but such pairs; they come in by take(), like all others.
    void addWindowWithName(const PropertyListValue& name, const PropertyListValue& timeSpent);
    // Clears all timers.
    void reset();
    // Enters all timers in the registry under their names, in place of whatever it holds for them.
    void enterNames() const;
    void removeUUIDs(const std::unordered_set<Identity>& identities);
    // Like removeUUIDs(), but removes exactly these timers and no others that share an identity with them.
    void removeTimers(const TimerReferences& timers);
    // Undoes a removal. `entries` are what TimerTree::recordsOf() answered before it. Where a timer of the
    // same name has come since, it takes the time.
    void putBack(const PropertyListArray& entries);

    // How many timers have names that the rules for titles do not allow.
    int countSayingMoreThan(const PastTitles& past) const;
    // Applies the rules to the timers: see PastRuling. Answers the identities that no timer has any more.
    std::unordered_set<Identity> sayNoMoreThan(const PastTitles& past);

    PropertyListArray arrayRepresentation() const;
    // Writes the records of all timers, piece by piece.
    void writeArrayRepresentation(PropertyListSink& sink) const { tree().write(sink); }
    // Adds the applications in `entries` to the tree. Leaves out entries of other types and logs how many;
    // answers that number.
    int setArrayRepresentation(const PropertyListArray& entries);
    // The same for timers that are already made.
    int take(IncomingTimers& timers);

    // After an import: takes out applications that were made since the tree was cleared, where the file
    // brought one of the same name. That one gets their time.
    void dissolve(const AppSet& applications);

    // When the timers were last cleared.
    Date lastResetDate() const { return m_lastResetDate; }

    void setLastResetDate(Date date);
    // "Database file (reset …):" in the user's language.
    QString lastResetDateDisplayString() const;

    // Reads the rules again.
    void userDefaultsChanged();
    const RuleCategories& categories() const { return *m_categories; }
    bool isAXEnabled() { return m_timeActivator->isAXEnabled(); }
    void openUniversalAccessPreferences() { m_timeActivator->openUniversalAccessPreferences(); }
    bool isSandboxed() const { return m_services.sandbox.isSandboxed(); }
    TimeActivator& timeActivator() { return *m_timeActivator; }
    const TimeActivator& timeActivator() const { return *m_timeActivator; }

    // The nodes being credited; null when there is none. Valid until the tree changes.
    TimeStoreApp* activeStoreApp() const { return m_timers.app().get(); }
    TimeStoreWindow* activeStoreWindow() const { return m_timers.window().get(); }

    static Identity brandNewUUID() { return Identity::brandNew(); }

    // "00:00:00", hours unbounded.
    static QString timeStringForDouble(Seconds seconds);
    // "2 hours, 1 minute", with seconds where the settings want them.
    QString humanTimeStringForDouble(Seconds seconds) const;

private:
    Date now() const { return m_services.activity.clock.now(); }
    Instant instant() const { return m_services.activity.clock.instant(); }

    // The only door for work: gives the stretch to its window, then to its application, and then tells it.
    // Does nothing if no time has passed.
    void credit(const Stretch& stretch);
    void addTimeOf(const Stretch& stretch);
    // Credits the time since the last credit, up to now or to `until`, to what is in front.
    void creditSoFar(const std::optional<Instant>& until = {});
    std::optional<Stretch> stretchOf(const TimeActivator::Period& period) const;
    void lookAtWindow();
    bool adopt(const std::optional<QString>& appName, const std::optional<WindowElement>& element,
               const std::optional<QString>& documentName);
    std::shared_ptr<TimeStoreWindow> rowFor(TimeStoreApp& app, const std::optional<QString>& title,
                                            const std::optional<WindowElement>& element) const;
    void bookIdleOnset();
    Seconds unbookedIdle(Seconds idle, Instant lastInput) const;
    void creditGap(Stretch stretch, Seconds worked);
    void remove(const TimerTree::IsMeant& isMeant);
    Freezing freezing();

    TrackerServices& m_services;
    CountedTimers m_timers;
    std::unique_ptr<RuleCategories> m_categories;
    std::unique_ptr<TitleRows> m_titleRows;
    std::unique_ptr<SteadyRows> m_steadyRows;
    Date m_lastResetDate;
    // When the timer was last started or the timers were last cleared, whichever is later. No absence from
    // before is booked.
    Instant m_countingSince;
    IdleBookings m_idleBookings;
    const QExplicitlySharedDataPointer<Listeners<StretchListener*>> m_listeners{
        new Listeners<StretchListener*>};
    bool m_isRunning = false;
    bool m_wasIdle = false;
    // The program that waits, as it would be so far. In no tree.
    std::shared_ptr<TimeStoreApp> m_waiting;
    // Asks what is in front, in order to credit the time itself.
    bool m_isLooking = false;
    std::unique_ptr<TimeActivator> m_timeActivator;
    Subscription m_defaultsChanges;
    Subscription m_namesToKeep;
};
