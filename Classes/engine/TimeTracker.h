// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/ActivityListener.h"
#include "Classes/engine/IdleBookings.h"
#include "Classes/engine/Narrowing.h"
#include "Classes/engine/Stretch.h"
#include "Classes/engine/TimeActivator.h"
#include "Classes/engine/TrackerServices.h"
#include "Classes/store/AccountEntries.h"
#include "Classes/store/FrozenTimer.h"
#include "Classes/store/TimerTree.h"
#include "platform/Sandbox.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/observing/Listeners.h"

#include <mutex>

class IncomingTimers;
class PastTitles;
class RuleCategories;
class TimeStoreCategory;

inline constexpr ObservedKey kTimeSetKey{"timeSet"};
inline constexpr ObservedKey kLastResetDateKey{"lastResetDate"};
inline constexpr ObservedKey kLastResetDateDisplayStringKey{"lastResetDateDisplayString"};

// What idle time is credited to.
inline const QString kIdleName = QStringLiteral("Idle");

// Owns the tree of timers and the activity source, and credits time: at every tick what has passed since the
// last one goes to the current application's node and, separately, to the current window's. There is one in
// the process. Main thread only; the lock is against re-entry.
class TimeTracker : public Observable, public ActivityListener {
public:
    using AppSet = TimerTree::AppSet;
    using MakeActivator = std::function<std::unique_ptr<TimeActivator>(TimeTracker&, ActivityServices&)>;

    explicit TimeTracker(TrackerServices& services, const MakeActivator& makeActivator = {});
    ~TimeTracker() override;

    bool isRunning() const { return m_isRunning; }

    // False when the source lacks its accessibility trust: then the user is asked for it, and nothing starts.
    bool setIsRunning(bool run);

    // What the source tells.
    void appDidChange() override;
    void mainWindowDidChangeToAppName(const std::optional<QString>& appName,
                                      const std::optional<WindowElement>& mainWindowName,
                                      const std::optional<QString>& documentName) override;
    void renameWindowToName(const std::optional<QString>& newName, const WindowElement& window) override;
    void creditTimeBeforeSwitch(bool hadWindow) override;
    bool isIdle() const override { return m_wasIdle; }

    // Tells where the time goes for as long as the subscription lives. The listener outlives it.
    Subscription listen(StretchListener& listener) { return m_listeners->add(&listener); }

    // The tick.
    void updateDisplayTime(bool idle);
    // Adds what has passed since `start`. Nothing happens without a node or a start.
    void updateActiveTimeInStore(TimeStoreNode* node, const std::optional<Instant>& start);
    // Finds or makes the node to credit. Without a name the last one stays.
    void setCurrentApp(const std::optional<QString>& name);
    void resetInternalTimes();
    void awakeFromSleep();

    // The sum over all applications, in seconds, without our own and the idle time where the settings say so.
    Seconds totalTime() const;
    // What survives the search and the cut-off; everything while there are none.
    TimeStoreItem::Children timeSet() const;

    // All of it.
    const TimerTree& tree() const { return m_tree; }
    const AppSet& fullTimeSet() const { return m_tree.applications(); }
    std::vector<Identity> primaryUUIDs() const { return m_tree.identities(); }
    // As TimerTree::timersOf().
    TimeStoreItem::Children timeChildrenForChildUUIDs(const std::unordered_set<Identity>& childUUIDs,
                                                      bool excludingIncludedChildren) const {
        return m_tree.timersOf(childUUIDs, excludingIncludedChildren);
    }
    // Gives a project's node the nodes of its members for children.
    void updateTimeStoreCategory(TimeStoreCategory& category, const std::vector<Identity>& childUUIDs) const;

    void setSearchString(const QString& searchString);
    // Seconds.
    void setCutoffTime(float cutoffTime);
    void reloadSearchFiltering();
    // What survives the search and the cut-off, and whether others may by now.
    const Narrowing& narrowing() const { return m_narrowing; }

    // Freezes a timer: it keeps its time under a dated name and a new identity, and counting goes on in a
    // fresh timer of the old name.
    FrozenTimer branchNode(TimeStoreNode& node);
    // Freezes the timers of these identities, as timeChildrenForChildUUIDs() finds them, but for those already frozen.
    std::vector<FrozenTimer> branchUUIDs(const std::vector<Identity>& childUUIDs);
    // Undoes a freezing: the frozen timer takes its name and its identity back, and whatever bears the name by now goes on
    // in it, with its time, its windows and the name that the user gave it meanwhile. False, and nothing happens, when
    // the frozen timer is no more.
    bool unbranchNode(FrozenTimer& frozen);
    // Freezes a timer anew, under the identities of the first time. False, and nothing happens, when it is no more.
    bool branchNodeAgain(FrozenTimer& frozen);
    // "Current App" (number): whether the frozen application was the current one; "Old Name": what it was
    // called.
    void refreshProjects(const PropertyListDictionary& info);
    // Adds an application timer, whatever its name says: old database files hold only those.
    void addWindowWithName(const PropertyListValue& name, const PropertyListValue& timeSpent);
    // Clears all timers.
    void reset();
    // The registry knows all timers by their names, whatever it has heard of others meanwhile.
    void enterNames() const;
    void removeUUIDs(const std::unordered_set<Identity>& identities);
    // As removeUUIDs(), but these and no others that share an identity with them.
    void removeTimers(const TimerReferences& timers);
    // Undoes a removal, of which these are the records that TimerTree::recordsOf() had made before. Where another timer of the same name has come since, the time goes to that one.
    void putBack(const PropertyListArray& entries);

    // How many timers say more than may be known.
    int countSayingMoreThan(const PastTitles& past) const;
    // Takes from the past what may not be known of it. A window that is left out loses its row, while its application keeps
    // the time; one that is called otherwise is renamed; the time of what has nobody's name goes to kPrivateName. No
    // name is left anywhere, nor told as a removal: it cannot come back. Answers whose identity is no timer's any more.
    std::unordered_set<Identity> sayNoMoreThan(const PastTitles& past);

    PropertyListArray arrayRepresentation() const;
    // The same, piece by piece.
    void writeArrayRepresentation(PropertyListSink& sink) const { m_tree.write(sink); }
    // Adds the applications of `entries` to what is there. Entries of other types are left out, and counted in the log;
    // answers how many.
    int setArrayRepresentation(const PropertyListArray& entries);
    // The same, of what has been made of them already.
    int take(IncomingTimers& timers);

    // Takes applications out of the tree that have been made since it was cleared, where another of the same name has
    // come in from a file; their time goes to that one.
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
    TimeStoreApp* activeStoreApp() const { return m_activeStoreApp.lock().get(); }
    TimeStoreWindow* activeStoreWindow() const { return m_activeStoreWindow.lock().get(); }

    static Identity brandNewUUID() { return Identity::brandNew(); }

    // "00:00:00", hours unbounded.
    static QString timeStringForDouble(Seconds seconds);
    // "2 hours, 1 minute", with seconds where the settings want them.
    QString humanTimeStringForDouble(Seconds seconds) const;

private:
    Date now() const { return m_services.activity.clock.now(); }
    Instant instant() const { return m_services.activity.clock.instant(); }

    void creditCurrentApp();
    void tellOfStretch(const std::shared_ptr<TimeStoreApp>& app, Instant from, Instant to);
    void addTime(TimeStoreNode& node, Seconds seconds);
    void bookIdleOnset();
    Seconds unbookedIdle(Seconds idle, Instant lastInput) const;
    void takeAbsenceFromGap(Seconds gap, Seconds idle);
    std::shared_ptr<TimeStoreApp> addApplication(std::shared_ptr<TimeStoreApp> app);
    void branch(TimeStoreNode& node, FrozenTimer& frozen);
    void branchWindow(TimeStoreWindow& window, FrozenTimer& frozen);
    void branchApplication(TimeStoreApp& app, FrozenTimer& frozen);
    std::optional<Identity> tellApart(const TimeStoreWindow& window);
    void postBranching(const FrozenTimer::Pair& identities);
    void bringSuccessorsBack(const FrozenTimer& frozen) const;
    // What has become one, as kTicklogUnbranchNodeNotification tells it.
    FrozenIdentities unbranchWindow(TimeStoreWindow& window, TimeStoreApp& app, FrozenTimer& frozen);
    FrozenIdentities unbranchApplication(const std::shared_ptr<TimeStoreApp>& app, FrozenTimer& frozen);
    void enterNamesAgain(const FrozenIdentities& joined) const;
    void joinInto(TimeStoreNode& node, TimeStoreNode& other, FrozenTimer& frozen, FrozenIdentities& joined);
    void remove(const TimerTree::IsMeant& isMeant);
    // What sayNoMoreThan() takes away.
    struct Gone {
        std::unordered_set<Identity> identities;
        std::unordered_set<QString> names;
        AppSet applications;
        Seconds time = 0;
    };
    void hide(TimeStoreApp& app, const PastTitles& past, Gone& gone);
    void forgetNames(const PastTitles& past, Gone& gone);

    TrackerServices& m_services;
    mutable std::recursive_mutex m_lock;
    TimerTree m_tree;
    std::unique_ptr<RuleCategories> m_categories;
    Date m_lastResetDate;
    // Not owned: observers may take any node out of the tree, also the one being credited.
    std::weak_ptr<TimeStoreApp> m_activeStoreApp;
    std::weak_ptr<TimeStoreWindow> m_activeStoreWindow;
    // The last start of the timer or clearing of the timers, whichever is later: no absence is booked from before.
    Instant m_countingSince;
    IdleBookings m_idleBookings;
    Narrowing m_narrowing;
    const QExplicitlySharedDataPointer<Listeners<StretchListener*>> m_listeners{
        new Listeners<StretchListener*>};
    bool m_isRunning = false;
    bool m_wasIdle = false;
    std::unique_ptr<TimeActivator> m_timeActivator;
    Subscription m_defaultsChanges;
    Subscription m_namesToKeep;
};
