// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeActivatorScreenCapture.h"

#include "Classes/engine/ActivityListener.h"
#include "Classes/rules/TitleRules.h"

#include <algorithm>

namespace {

std::optional<std::int64_t> processOf(const std::optional<ApplicationRecord>& record) {
    return record ? std::optional(record->processIdentifier) : std::nullopt;
}

} // namespace

TimeActivatorScreenCapture::TimeActivatorScreenCapture(ActivityListener& tracker, ActivityServices& services)
    : TimeActivator(tracker, services)
    , m_ticks(services.runLoop, services.clock,
              {.tick = [this] { fastUpdateWindowName(); },
               .look = [this] { return look(); },
               .credit =
                   [this](Instant until) {
                       if (m_updateController && !m_isFirstTickDue && timeTracker())
                           timeTracker()->creditMissedTicks(until);
                   },
               .needed = [this] { return neededTick(); },
               .isSeen = [this] { return m_updateController && m_updateController->isSeen(); }}) {}

void TimeActivatorScreenCapture::fastUpdateWindowName() {
    look();
    m_isFirstTickDue = false;
    if (m_updateController)
        m_updateController->computeTime();
}

std::optional<Instant> TimeActivatorScreenCapture::neededTick() const {
    if (!m_updateController)
        return std::nullopt;
    return m_isFirstTickDue ? services().clock.instant() : m_updateController->neededTick();
}

bool TimeActivatorScreenCapture::look() {
    const auto seen = [this] {
        return std::pair(m_lastUpdateWindowDict ? m_lastUpdateWindowDict->number : 0, m_windowUpdatingName);
    };
    const auto before = seen();
    const bool isLeft = m_undecided && m_undecided->isLeft(services().clock.instant());
    if (isLeft)
        giveUp();
    if (isWaiting())
        followUndecided();
    else if (mayTurnOut())
        appDidChange();
    else
        lookAtFront();
    return isLeft || seen() != before;
}

void TimeActivatorScreenCapture::lookAtFront() {
    const auto& record = services().frontApplication.activeApplication();
    const std::optional<QString> name = buildAppNameForDictionary(record);
    // With the new title the program became hidden, or visible again.
    const bool isAnother = (name == kPrivateName) != (currentAppName() == kPrivateName);
    if (isAnother && timeTracker() && !timeTracker()->isIdle()) {
        appDidChange();
    } else {
        if (isAnother)
            setCurrentAppName(name);
        fastUpdateWindowNameForPID(processOf(record));
    }
}

bool TimeActivatorScreenCapture::mayTurnOut() const {
    const FrontApplication& desktop = services().frontApplication;
    return desktop.isUndecided() && desktop.activeApplication() && timeTracker() && !timeTracker()->isIdle();
}

std::optional<ApplicationRecord> TimeActivatorScreenCapture::appDidChange() {
    const std::optional<ApplicationRecord> record = services().frontApplication.activeApplication();
    const WindowListEntry* front = frontWindowOf(processOf(record));
    const bool isToWait = mayTurnOut();
    // What has passed until now belongs to what was in front.
    if (timeTracker() && (m_undecided || isToWait))
        timeTracker()->creditTimeBeforeSwitch();
    if (m_undecided && isToWait && !m_undecided->isOf(*record, front))
        giveUp();
    if (!isToWait) {
        if (m_undecided && record && m_undecided->isSettledBy(*record, front))
            decide(*record);
        else if (m_undecided)
            m_undecided->leave(services().clock.instant());
        return TimeActivator::appDidChange();
    }
    // No name: whoever asks meanwhile whom to credit leaves it as it is.
    setCurrentAppName(std::nullopt);
    if (m_undecided)
        m_undecided->follow(*record, front);
    else
        m_undecided.emplace(*record, front);
    return record;
}

// Notices what the desktop has not told.
void TimeActivatorScreenCapture::followUndecided() {
    const auto& record = services().frontApplication.activeApplication();
    if (mayTurnOut() && record == m_undecided->soFar())
        m_undecided->follow(*record, frontWindowOf(processOf(record)));
    else
        appDidChange();
}

TimeActivator::Period TimeActivatorScreenCapture::endPeriod(const std::optional<Instant>& at) {
    const Period period = TimeActivator::endPeriod(at);
    if (!isWaiting())
        return period;
    if (period.from && *period.from < period.to) {
        UndecidedTime::Piece piece = m_undecided->add(period);
        piece.period.from = period.from;
        if (timeTracker())
            timeTracker()->letWait(periodOf(m_undecided->soFar(), piece));
    }
    return {std::nullopt, period.to, std::nullopt};
}

void TimeActivatorScreenCapture::waitNoLonger() {
    if (!m_undecided)
        return;
    const bool wasInFront = isWaiting();
    giveUp();
    if (!wasInFront)
        return;
    setCurrentAppName(buildAppNameForDictionary(services().frontApplication.activeApplication()));
    fastUpdateWindowNameForPID(processOf(services().frontApplication.activeApplication()));
}

void TimeActivatorScreenCapture::giveUp() {
    const auto said = m_undecided->saidBy(services().windowList.onScreenWindows());
    decide(said ? *said : ApplicationRecord(m_undecided->soFar()));
}

void TimeActivatorScreenCapture::decide(const ApplicationRecord& record) {
    const UndecidedTime undecided = *std::exchange(m_undecided, std::nullopt);
    std::vector<NamedPeriod> periods;
    for (const UndecidedTime::Piece& piece : undecided.pieces())
        periods.push_back(periodOf(record, piece));
    if (timeTracker() && !periods.empty())
        timeTracker()->creditPeriods(periods);
}

NamedPeriod TimeActivatorScreenCapture::periodOf(const ApplicationRecord& record,
                                                 const UndecidedTime::Piece& piece) {
    const auto& [window, period] = piece;
    const auto name = TimeActivator::buildAppNameForDictionary(record);
    // A window without a title is called like its program.
    const std::optional<QString> title =
        name ? allowedTitle(*name, window ? window->name.value_or(*name) : QString()) : std::nullopt;
    const std::optional<QString> known = window ? title : std::nullopt;
    return {title || !name ? name : kPrivateName,
            window ? std::optional(WindowElement(window->number)) : std::nullopt,
            getDocStringNameForName(known),
            {period.from, period.to, known}};
}

void TimeActivatorScreenCapture::fastUpdateWindowNameForPID(std::optional<std::int64_t> processIdentifier) {
    const std::lock_guard guard(lock());
    const WindowListEntry* front = frontWindowOf(processIdentifier);
    const std::optional<QString> title = front ? allowedTitleOf(*front) : std::nullopt;
    // If the program must not be known, it has no window either.
    if (!title) {
        setWindowUpdatingName(std::nullopt);
        m_lastUpdateWindowDict.reset();
        return;
    }
    if (title != m_windowUpdatingName) {
        const bool isSameWindow = m_lastUpdateWindowDict && m_lastUpdateWindowDict->number == front->number &&
                                  m_lastUpdateWindowDict->ownerProcessIdentifier == processIdentifier;
        if (isSameWindow && timeTracker())
            timeTracker()->renameWindowToName(getDocStringNameForName(title), WindowElement(front->number));
        setWindowUpdatingName(title);
    }
    if (m_lastUpdateWindowDict != *front)
        m_lastUpdateWindowDict = *front;
}

const WindowListEntry*
TimeActivatorScreenCapture::frontWindowOf(std::optional<std::int64_t> processIdentifier) const {
    const std::span<const WindowListEntry> windows = services().windowList.onScreenWindows();
    const auto front = std::ranges::find_if(windows, [&](const WindowListEntry& entry) {
        return entry.isOrdinary && entry.ownerProcessIdentifier == processIdentifier;
    });
    return front == windows.end() ? nullptr : &*front;
}

const std::optional<QString>& TimeActivatorScreenCapture::allowedTitleOf(const WindowListEntry& window) {
    return allowedTitle(window.ownerName, window.name ? *window.name : window.ownerName);
}

const std::optional<QString>& TimeActivatorScreenCapture::allowedTitle(const QString& program,
                                                                       const QString& told) {
    const TitleRules* rules = services().titleRules;
    const int reading = rules ? rules->reading() : 0;
    if (told != m_gate.told || program != m_gate.program || reading != m_gate.reading)
        m_gate = {told, program, reading, rules ? rules->allowed(program, told) : told};
    return m_gate.allowed;
}

std::optional<QString>
TimeActivatorScreenCapture::buildAppNameForDictionary(const std::optional<ApplicationRecord>& record) {
    const std::optional<QString> name = TimeActivator::buildAppNameForDictionary(record);
    // Without a program there is nothing to hide.
    if (!name || *name == kScreenSaverName || *name == kLoginWindowName)
        return name;
    const WindowListEntry* front = frontWindowOf(processOf(record));
    const bool isKnown = (front ? allowedTitleOf(*front) : allowedTitle(*name, QString())).has_value();
    return isKnown ? name : kPrivateName;
}

void TimeActivatorScreenCapture::computeInfoWithAppDict(const std::optional<ApplicationRecord>& record) {
    // The clock restarts for the new application; the time measured so far belongs to the previous one.
    if (timeTracker())
        timeTracker()->creditTimeBeforeSwitch();
    resetObservations();
    fastUpdateWindowNameForPID(processOf(record));
}

void TimeActivatorScreenCapture::mainWindowDidChange() {
    if (isWaiting())
        return;
    const auto& record = services().frontApplication.activeApplication();
    const std::optional<QString> name = buildAppNameForDictionary(record);
    if (name != currentAppName())
        fastUpdateWindowNameForPID(processOf(record));
    if (!m_windowUpdatingName || !timeTracker())
        return;
    std::optional<WindowElement> window;
    if (m_lastUpdateWindowDict)
        window.emplace(m_lastUpdateWindowDict->number);
    timeTracker()->mainWindowDidChangeToAppName(name, window, m_documentName);
}

void TimeActivatorScreenCapture::setWindowUpdatingName(const std::optional<QString>& title) {
    m_windowUpdatingName = title;
    m_documentName = getDocStringNameForName(title);
}
