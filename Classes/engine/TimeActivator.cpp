// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeActivator.h"

#include "Classes/engine/ActivityListener.h"
#include "Classes/engine/TimeActivatorScreenCapture.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr auto kComputeInterval = 100ms;
constexpr auto kComputeTolerance = 100ms;

} // namespace

std::unique_ptr<TimeActivator> TimeActivator::activatorForTracker(ActivityListener& tracker,
                                                                  ActivityServices& services) {
    return std::make_unique<TimeActivatorScreenCapture>(tracker, services);
}

TimeActivator::TimeActivator(ActivityListener& tracker, ActivityServices& services)
    : m_isAXEnabled(services.accessibility.isProcessTrusted())
    , m_trackDocumentTiming(m_isAXEnabled)
    , m_timeTracker(&tracker)
    , m_services(services) {
    setupAppChangeNotification();
}

TimeActivator::~TimeActivator() = default;

void TimeActivator::setupAppChangeNotification() {
    m_switches = m_services.frontApplication.observeSwitches([this] { appDidChange(); });
    if (!m_switches)
        m_services.log.log(QStringLiteral("Could not install app change handler."));
}

std::optional<QString>
TimeActivator::buildAppNameForDictionary(const std::optional<ApplicationRecord>& record) {
    if (!record)
        return std::nullopt;
    if (!record->name.isEmpty())
        return record->name;
    const QString name = m_services.frontApplication.nameOfProgram(record->path);
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

void TimeActivator::computeInfoWithAppDict(const std::optional<ApplicationRecord>&) {}

std::optional<ApplicationRecord> TimeActivator::appDidChange() {
    const std::optional<ApplicationRecord> record = m_services.frontApplication.activeApplication();
    setCurrentAppName(buildAppNameForDictionary(record));
    computeInfoWithAppDict(record);
    if (m_timeTracker)
        m_timeTracker->appDidChange();
    return record;
}

std::optional<QString> TimeActivator::getDocStringNameForName(const std::optional<QString>& title) {
    if (!title)
        return std::nullopt;
    qsizetype end = 0;
    while (end < title->size() && title->at(end) != u'(' && title->at(end) != u'@')
        ++end;
    const QString document = title->first(end).trimmed();
    return document.isEmpty() ? std::nullopt : std::optional(document);
}

TimeActivator::Period TimeActivator::endPeriod(const std::optional<Instant>& at) {
    const std::optional<Instant> from = m_startDate;
    resetObservations();
    if (at && m_startDate)
        m_startDate = std::clamp(*at, from.value_or(*at), *m_startDate);
    return {from, m_startDate.value_or(m_services.clock.instant()), windowTitle()};
}

void TimeActivator::createComputeTimerForController(ComputeTarget& controller) {
    if (TimeActivator::computeTimerIsValid())
        return;
    m_updateTimer = m_services.runLoop.scheduleRepeating(kComputeInterval, kComputeTolerance,
                                                         [&controller] { controller.computeTime(); });
}

void TimeActivator::destroyComputeTimer() {
    m_updateTimer.reset();
}

bool TimeActivator::computeTimerIsValid() const {
    return m_updateTimer && m_updateTimer->isValid();
}

void TimeActivator::openUniversalAccessPreferences() {
    m_services.accessibility.openPreferences();
    if (!isAXEnabled())
        m_waitForUniversalAccessChange = true;
}

bool TimeActivator::isAXEnabled() {
    m_isAXEnabled = m_services.accessibility.isProcessTrusted();
    return m_isAXEnabled;
}
