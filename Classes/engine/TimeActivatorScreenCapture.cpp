// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeActivatorScreenCapture.h"

#include "Classes/engine/ActivityListener.h"
#include "Classes/rules/TitleRules.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

bool isAway(const ApplicationRecord& record) {
    return record.name == kScreenSaverName || record.name == kLoginWindowName;
}

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
    if (m_undecided)
        followUndecided();
    else
        lookAtFront();
    return seen() != before;
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

std::optional<ApplicationRecord> TimeActivatorScreenCapture::appDidChange() {
    const FrontApplication& desktop = services().frontApplication;
    const std::optional<ApplicationRecord> record = desktop.activeApplication();
    const WindowListEntry* front = frontWindowOf(processOf(record));
    const bool mayTurnOut = record && desktop.isUndecided() && timeTracker() && !timeTracker()->isIdle();
    const bool isSame = m_undecided && m_undecided->isAbout(record, front);
    const bool isBetween =
        timeTracker() && m_undecided && !isSame && !mayTurnOut && record && !isAway(*record);
    // What has passed until now belongs to what was in front.
    if (timeTracker() && (m_undecided || mayTurnOut))
        timeTracker()->creditTimeBeforeSwitch();
    if (isBetween && !m_undecided->isLeft(services().clock.instant())) {
        m_undecided->leaveFor(*record, front, services().clock.instant());
        return record;
    }
    if (m_undecided && !isSame)
        decide(m_undecided->soFar());
    if (!mayTurnOut) {
        decide(record);
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
    const FrontApplication& desktop = services().frontApplication;
    const auto& record = desktop.activeApplication();
    const bool isFollowed = desktop.isUndecided() && record == m_undecided->soFar();
    if (isFollowed && record == m_undecided->program())
        m_undecided->follow(*record, frontWindowOf(processOf(record)));
    else
        appDidChange();
}

TimeActivator::Period TimeActivatorScreenCapture::endPeriod(const std::optional<Instant>& at) {
    const Period period = TimeActivator::endPeriod(at);
    if (!m_undecided)
        return period;
    m_undecided->add(period);
    return {std::nullopt, period.to, std::nullopt};
}

void TimeActivatorScreenCapture::waitNoLonger() {
    if (!m_undecided)
        return;
    decide(m_undecided->soFar());
    setCurrentAppName(buildAppNameForDictionary(services().frontApplication.activeApplication()));
    fastUpdateWindowNameForPID(processOf(services().frontApplication.activeApplication()));
}

void TimeActivatorScreenCapture::decide(const std::optional<ApplicationRecord>& record) {
    if (!m_undecided)
        return;
    const UndecidedTime undecided = *std::exchange(m_undecided, std::nullopt);
    for (const auto& [between, window, period] : undecided.pieces()) {
        const auto name = TimeActivator::buildAppNameForDictionary(between ? between : record);
        if (!timeTracker() || !name)
            continue;
        // A window without a title is called like its program.
        const std::optional<QString> title =
            allowedTitle(*name, window ? window->name.value_or(*name) : QString());
        const std::optional<QString> known = window ? title : std::nullopt;
        const auto element = window ? std::optional(WindowElement(window->number)) : std::nullopt;
        timeTracker()->creditPeriod(title ? name : kPrivateName, element, getDocStringNameForName(known),
                                    {period.from, period.to, known});
    }
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
    if (m_undecided)
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
