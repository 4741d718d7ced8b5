// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeActivatorScreenCapture.h"

#include "Classes/engine/ActivityListener.h"
#include "Classes/rules/TitleRules.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr auto kPollInterval = 100ms;
constexpr auto kPollTolerance = 50ms;

std::optional<std::int64_t> processOf(const std::optional<ApplicationRecord>& record) {
    return record ? std::optional(record->processIdentifier) : std::nullopt;
}

} // namespace

TimeActivatorScreenCapture::TimeActivatorScreenCapture(ActivityListener& tracker, ActivityServices& services)
    : TimeActivator(tracker, services) {
    m_pollTimer =
        services.runLoop.scheduleRepeating(kPollInterval, kPollTolerance, [this] { fastUpdateWindowName(); });
}

void TimeActivatorScreenCapture::fastUpdateWindowName() {
    fastUpdateWindowNameForPID(processOf(services().frontApplication.activeApplication()));
    if (m_updateController)
        m_updateController->computeTime();
}

void TimeActivatorScreenCapture::fastUpdateWindowNameForPID(std::optional<std::int64_t> processIdentifier) {
    const std::lock_guard guard(lock());
    const std::span<const WindowListEntry> windows = services().windowList.onScreenWindows();
    const auto front = std::ranges::find_if(windows, [&](const WindowListEntry& entry) {
        return entry.layer == 0 && entry.ownerProcessIdentifier == processIdentifier;
    });
    if (front == windows.end()) {
        setWindowUpdatingName(std::nullopt);
        m_lastUpdateWindowDict.reset();
        return;
    }
    const QString& title = allowedTitleOf(*front);
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

const QString& TimeActivatorScreenCapture::allowedTitleOf(const WindowListEntry& window) {
    const QString& told = window.name ? *window.name : window.ownerName;
    const TitleRules* rules = services().titleRules;
    if (!rules)
        return told;
    if (told != m_gate.told || window.ownerName != m_gate.program || rules->reading() != m_gate.reading)
        m_gate = {told, window.ownerName, rules->reading(), rules->allowed(window.ownerName, told)};
    return m_gate.allowed;
}

void TimeActivatorScreenCapture::computeInfoWithAppDict(const std::optional<ApplicationRecord>& record) {
    // The clock restarts with the new application; what it has measured so far is the last one's.
    if (timeTracker())
        timeTracker()->creditTimeBeforeSwitch(m_windowUpdatingName.has_value());
    resetObservations();
    fastUpdateWindowNameForPID(processOf(record));
}

void TimeActivatorScreenCapture::mainWindowDidChange() {
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
