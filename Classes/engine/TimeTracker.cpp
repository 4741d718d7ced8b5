// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeTracker.h"

#include "Classes/common/Settings.h"
#include "Classes/engine/SteadyRows.h"
#include "Classes/engine/SystemIdleTime.h"
#include "Classes/rules/RuleCategories.h"
#include "Classes/rules/SteadyTitle.h"
#include "Classes/rules/TitleRows.h"
#include "Classes/store/TKUUIDManager.h"
#include "Classes/store/TimeStoreCategory.h"
#include "platform/foundation/values/Assertions.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace {

// A title that only counts or ticks on is no other title.
bool isAnotherTitle(const QString& title, const QString& next) {
    return title != next && steadyTitle(title) != steadyTitle(next);
}

} // namespace

TimeTracker::TimeTracker(TrackerServices& services, const MakeActivator& makeActivator)
    : m_services(services)
    , m_timers(services.store, *this)
    , m_categories(std::make_unique<RuleCategories>())
    , m_titleRows(std::make_unique<TitleRows>())
    , m_steadyRows(std::make_unique<SteadyRows>())
    , m_lastResetDate(now())
    , m_countingSince(instant()) {
    m_timeActivator = makeActivator ? makeActivator(*this, services.activity)
                                    : TimeActivator::activatorForTracker(*this, services.activity);
    m_defaultsChanges = services.store.notifications.observe(
        kUserDefaultsDidChangeNotification, [this](const Notification&) { userDefaultsChanged(); });
    m_namesToKeep = services.store.notifications.observe(
        kTicklogKeepNamesNotification, [this](const Notification& notification) {
            if (const auto* used = std::any_cast<std::unordered_set<Identity>>(&notification.object))
                m_timers.tree().enterInRegistry(m_services.store.registry, used);
        });
    userDefaultsChanged();
}

TimeTracker::~TimeTracker() {
    m_timeActivator->teardown();
}

bool TimeTracker::setIsRunning(bool run) {
    if (run && !m_timeActivator->isAXEnabled()) {
        if (m_services.checkAccessibilityTrust)
            m_services.checkAccessibilityTrust();
        return false;
    }
    const std::lock_guard guard(m_timers.lock());
    if (!run)
        waitNoLonger();
    if (!m_isRunning) {
        resetInternalTimes();
        m_countingSince = instant();
    }
    m_isRunning = run;
    if (run)
        appDidChange();
    else
        resetInternalTimes();
    return true;
}

void TimeTracker::appDidChange() {
    if (!m_isRunning)
        return;
    const std::lock_guard guard(m_timers.lock());
    updateDisplayTime(false);
    setCurrentApp(m_timeActivator->currentAppName());
    resetInternalTimes();
    lookAtWindow();
}

// For whoever credits the time itself: this answer of the source does not.
void TimeTracker::lookAtWindow() {
    const QScopedValueRollback looking(m_isLooking, true);
    m_timeActivator->mainWindowDidChange();
}

void TimeTracker::mainWindowDidChangeToAppName(const std::optional<QString>& appName,
                                               const std::optional<WindowElement>& mainWindowName,
                                               const std::optional<QString>& documentName) {
    const std::lock_guard guard(m_timers.lock());
    // Freezing and removing timers come through here too. During an absence, the window in front gets no
    // time.
    if (m_isRunning && m_wasIdle)
        return;
    if (adopt(appName, mainWindowName, documentName) && !m_isLooking)
        creditSoFar();
}

void TimeTracker::letWait(const NamedPeriod& soFar) {
    const auto& [name, element, document, period] = soFar;
    if (!m_isRunning || m_wasIdle || !name || !period.from)
        return;
    // A node of its own, so that nobody sees a program that may turn out to be none. The names find its identity.
    if (!m_waiting || !m_waiting->isNamed(*name))
        m_waiting = std::make_shared<TimeStoreApp>(m_services.store, *name);
    const Stretch stretch{*period.from,
                          period.to,
                          m_waiting,
                          m_waiting->windowStoreForName(document, std::nullopt),
                          period.title.value_or(QString()),
                          Presence::Work};
    m_listeners->forEach([&](StretchListener* listener) { listener->waits(stretch); });
}

void TimeTracker::creditPeriods(const std::vector<NamedPeriod>& periods) {
    const std::lock_guard guard(m_timers.lock());
    const CountedTimers::Counted inFront = m_timers.counted();
    std::vector<Stretch> stretches;
    for (const auto& [name, element, document, period] : periods) {
        if (!m_isRunning || m_wasIdle || !name)
            continue;
        adopt(name, element, document);
        if (const auto stretch = stretchOf(period)) {
            addTimeOf(*stretch);
            stretches.push_back(*stretch);
        }
    }
    // Without a name, they are what is in front.
    if (m_timeActivator->currentAppName())
        m_timers.setCounted(inFront);
    m_waiting.reset();
    m_listeners->forEach([&](StretchListener* listener) { listener->turnedOut(stretches); });
}

// Answers whether there is a window to credit.
bool TimeTracker::adopt(const std::optional<QString>& appName, const std::optional<WindowElement>& element,
                        const std::optional<QString>& documentName) {
    setCurrentApp(appName);
    const auto app = m_timers.app();
    const auto window = app ? rowFor(*app, documentName, element) : nullptr;
    m_timers.setWindow(window);
    if (!m_isRunning || !window)
        return false;
    // The title has changed while the window was behind others, or while the timer was stopped.
    if (!window->isNamed(*documentName)) {
        window->setName(*documentName);
        m_timers.narrowing().noteChange();
    }
    return true;
}

std::shared_ptr<TimeStoreWindow> TimeTracker::rowFor(TimeStoreApp& app, const std::optional<QString>& title,
                                                     const std::optional<WindowElement>& element) const {
    if (!title || !element || !m_titleRows->areFor(app.name()))
        return app.windowStoreForName(title, element);
    if (const auto row = app.windowOfElement(*element); row && !isAnotherTitle(row->name(), *title))
        return row;
    app.forgetElement(*element);
    return m_steadyRows->rowFor(app, *title, *element);
}

void TimeTracker::renameWindowToName(const std::optional<QString>& newName, const WindowElement& window) {
    // A title without a document in it does not rename the window.
    const auto app = m_timers.app();
    const auto current = m_timers.window();
    if (!newName || !app || !current)
        return;
    const bool isCurrent = current->windowElement() && *current->windowElement() == window;
    if (!m_isRunning && !isCurrent)
        return;
    // The window being credited belongs to another application, so this title is not its new one.
    if (!isCurrent && m_timers.tree().applicationHolding(*current) != app)
        return;
    // The next look finds the new title's row; what has passed was under the old one.
    if (m_titleRows->areFor(app->name()) && isAnotherTitle(current->name(), *newName)) {
        creditTimeBeforeSwitch();
        return;
    }
    if (const auto found = isCurrent ? nullptr : app->windowStoreForName(newName, window);
        found && found != current)
        app->join(*current, *found);
    // If another window of the application has this name, setName() joins the two.
    if (current->name() != *newName)
        current->setName(*newName);
    m_timers.narrowing().noteChange();
}

void TimeTracker::creditTimeBeforeSwitch() {
    if (!m_isRunning)
        return;
    const std::lock_guard guard(m_timers.lock());
    creditSoFar();
}

void TimeTracker::creditMissedTicks(Instant until) {
    if (!m_isRunning)
        return;
    const std::lock_guard guard(m_timers.lock());
    if (m_timeActivator->trackDocumentTiming() && !m_wasIdle)
        lookAtWindow();
    creditSoFar(until);
}

std::optional<Instant> TimeTracker::awaited() const {
    std::optional<Instant> first;
    m_listeners->forEach([&](const StretchListener* listener) {
        if (const auto at = listener->awaited(); at && (!first || *at < *first))
            first = at;
    });
    return first;
}

void TimeTracker::updateDisplayTime(bool idle) {
    const std::lock_guard guard(m_timers.lock());
    // While the timer is stopped, no absence begins.
    if (!m_wasIdle && idle && m_isRunning) {
        waitNoLonger();
        m_wasIdle = true;
        bookIdleOnset();
    } else if (m_wasIdle && !idle) {
        m_wasIdle = false;
        appDidChange();
    }
    if (!m_isRunning)
        return;
    if (m_timeActivator->trackDocumentTiming() && !idle)
        lookAtWindow();
    creditSoFar();
}

void TimeTracker::creditSoFar(const std::optional<Instant>& until) {
    if (const auto stretch = stretchOf(m_timeActivator->endPeriod(until)))
        credit(*stretch);
}

std::optional<Stretch> TimeTracker::stretchOf(const TimeActivator::Period& period) const {
    const auto app = m_timers.app();
    if (!app || !period.from)
        return std::nullopt;
    if (app->isNamed(kIdleName))
        return Stretch{*period.from, period.to, app, nullptr, QString(), Presence::Idle};
    const auto window = period.title ? m_timers.windowOfApp() : nullptr;
    return Stretch{*period.from, period.to, app, window, period.title.value_or(QString()), Presence::Work};
}

void TimeTracker::credit(const Stretch& stretch) {
    if (stretch.from >= stretch.to)
        return;
    addTimeOf(stretch);
    if (stretch.presence == Presence::Idle)
        m_idleBookings.add(stretch.from, stretch.to);
    m_listeners->forEach([&](StretchListener* listener) { listener->credited(stretch); });
}

void TimeTracker::addTimeOf(const Stretch& stretch) {
    updateActiveTimeInStore(stretch.window.get(), stretch.from, stretch.to);
    updateActiveTimeInStore(stretch.program.get(), stretch.from, stretch.to);
}

void TimeTracker::updateActiveTimeInStore(TimeStoreNode* node, const std::optional<Instant>& start,
                                          const std::optional<Instant>& end) {
    if (!node || !start)
        return;
    m_timers.addTime(*node, secondsBetween(*start, end.value_or(instant())));
}

void TimeTracker::bookIdleOnset() {
    const std::uint64_t idleCount = m_services.idleTime.seconds();
    const Seconds idle = float(idleCount);
    const Instant lastInput = m_services.idleTime.lastInput(idleCount);
    const TimeActivator::Period period = m_timeActivator->endPeriod();
    const Seconds gap = secondsBetween(period.from.value_or(period.to), period.to);
    // The time since the last tick has not been credited to anybody yet.
    const Seconds unbooked = std::max(unbookedIdle(idle, lastInput), std::min(gap, idle));
    const auto window = m_timers.windowOfApp();
    const Seconds windowTime = window ? window->activeTime() : idle;
    // Normally only one tick has passed, less than any idle time. More means that the ticks stood still for a
    // while.
    const bool isGap = gap > idle;
    if (const auto stretch = isGap ? stretchOf(period) : std::nullopt)
        creditGap(*stretch, gap - idle);
    const Instant since = std::max(m_services.idleTime.lastInput(), m_countingSince);
    m_listeners->forEach([&](StretchListener* listener) { listener->absent(since, period.to, unbooked); });
    setCurrentApp(kIdleName);
    m_timers.forgetWindow();
    if (const auto app = m_timers.app())
        m_timers.correctTime(*app, unbooked);
    m_idleBookings.settle(lastInput, period.to);
    // Thrown last, when all bookings are done.
    if (isGap && windowTime - idle < 0)
        throw InternalInconsistency(QStringLiteral("Classes/TimeTracker"), 432,
                                    QString::asprintf("%f, %f", windowTime, idle));
}

// Books an absence to Idle only once, and only as far as the timer ran during it.
Seconds TimeTracker::unbookedIdle(Seconds idle, Instant lastInput) const {
    const Seconds counted = std::min(idle, secondsBetween(m_countingSince, instant()));
    return std::max(0.0, counted - m_idleBookings.bookedSince(lastInput));
}

// The ticks stood still for longer than the user has been away: until the last input it was work. The tree
// counts an absence in longer and so fewer seconds; what they leave of the gap is the application's as well.
void TimeTracker::creditGap(Stretch stretch, Seconds worked) {
    stretch.to = std::clamp(m_services.idleTime.lastInput(), stretch.from, stretch.to);
    credit(stretch);
    const Seconds rest = worked - secondsBetween(stretch.from, stretch.to);
    m_timers.correctTime(*stretch.program, rest);
    if (stretch.window)
        m_timers.correctTime(*stretch.window, rest);
}

void TimeTracker::resetInternalTimes() {
    m_timeActivator->resetObservations();
}

void TimeTracker::awakeFromSleep() {
    m_wasIdle = true;
    if (m_isRunning)
        updateDisplayTime(true);
    resetInternalTimes();
}

Seconds TimeTracker::totalTime() const {
    const std::lock_guard guard(m_timers.lock());
    const auto isLeftOut = isLeftOutOfTotal();
    Seconds total = 0;
    for (const auto& app : m_timers.tree().applications())
        if (!isLeftOut(*app))
            total += app->TimeStoreNode::activeTime();
    return total;
}

std::function<bool(const TimeStoreApp&)> TimeTracker::isLeftOutOfTotal() const {
    const bool countsSelf = m_services.defaults.boolForKey(kIncludeSelfInSumofTimes);
    const bool countsIdle = m_services.defaults.boolForKey(kIncludeIdleInSumofTimes);
    // Ticklog itself is recognised by the name shown, Idle by its original name: a timer that the user has
    // renamed to "Ticklog" is meant to be left out as well.
    return [countsSelf, countsIdle](const TimeStoreApp& app) {
        return (!countsSelf && app.isShownAs(kOwnName)) || (!countsIdle && app.isNamed(kIdleName));
    };
}

TimeStoreItem::Children TimeTracker::timeSet() const {
    const std::lock_guard guard(m_timers.lock());
    if (m_timers.narrowing().survivors())
        return *m_timers.narrowing().survivors();
    return {m_timers.tree().applications().begin(), m_timers.tree().applications().end()};
}

void TimeTracker::updateTimeStoreCategory(TimeStoreCategory& category,
                                          const std::vector<Identity>& childUUIDs) const {
    category.setChildren(std::make_shared<const TimeStoreItem::Children>(
        timeChildrenForChildUUIDs({childUUIDs.begin(), childUUIDs.end()}, false)));
}

void TimeTracker::setSearchString(const QString& searchString) {
    if (m_timers.narrowing().setText(searchString))
        reloadSearchFiltering();
}

void TimeTracker::setCutoffTime(float cutoffTime) {
    m_timers.narrowing().setLimit(cutoffTime);
    reloadSearchFiltering();
}

void TimeTracker::userDefaultsChanged() {
    const PropertyListValue ruleset = m_services.defaults.object(kRulesetKey);
    m_categories->read(ruleset);
    m_steadyRows->forget();
    m_titleRows->read(ruleset, m_services.defaults.boolForKey(kRowForEachTitle));
}
