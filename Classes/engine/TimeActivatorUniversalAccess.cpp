// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeActivatorUniversalAccess.h"

#include "Classes/engine/ActivityListener.h"

TimeActivatorUniversalAccess::TimeActivatorUniversalAccess(ActivityListener& tracker,
                                                           ActivityServices& services)
    : TimeActivator(tracker, services) {}

TimeActivatorUniversalAccess::~TimeActivatorUniversalAccess() = default;

std::optional<QString>
TimeActivatorUniversalAccess::buildAppNameForDictionary(const std::optional<ApplicationRecord>& record) {
    if (auto name = TimeActivator::buildAppNameForDictionary(record))
        return name;
    if (!record)
        return std::nullopt;
    Accessibility& accessibility = services().accessibility;
    return accessibility.title(accessibility.applicationElement(record->processIdentifier));
}

std::optional<ApplicationRecord> TimeActivatorUniversalAccess::appDidChange() {
    const bool isTrusted = services().accessibility.isProcessTrusted();
    if (m_waitForUniversalAccessChange && m_isAXEnabled != isTrusted) {
        {
            const ChangeAnnouncement announcement(*this, kIsAXEnabledKey);
            m_isAXEnabled = isTrusted;
        }
        m_trackDocumentTiming = isTrusted;
        m_waitForUniversalAccessChange = false;
    }
    resetNotifications();
    const std::optional<ApplicationRecord> record = TimeActivator::appDidChange();
    if (!record) {
        m_currentObservation.element.reset();
        m_currentObservation.title.reset();
        return record;
    }
    m_currentObservation.element = services().accessibility.applicationElement(record->processIdentifier);
    m_currentObservation.notification = kAXMainWindowChanged;
    if (trackDocumentTiming())
        subscribe(record->processIdentifier);
    return record;
}

void TimeActivatorUniversalAccess::subscribe(std::int64_t processIdentifier) {
    auto observer =
        services().accessibility.makeObserver(processIdentifier, [this] { mainWindowDidChange(); });
    if (!observer) {
        m_currentObservation.notification.reset();
        return;
    }
    for (const QString& notification : {kAXMainWindowChanged, kAXFocusedWindowChanged, kAXTitleChanged})
        if (!observer->addNotification(*m_currentObservation.element, notification))
            m_currentObservation.notification.reset();
    observer->begin();
    m_currentObservation.observer = std::move(observer);
}

void TimeActivatorUniversalAccess::mainWindowDidChange() {
    const std::lock_guard guard(lock());
    if (!m_currentObservation.element || !timeTracker())
        return;
    Accessibility& accessibility = services().accessibility;
    const auto window = accessibility.mainWindow(*m_currentObservation.element);
    // An application without a title of its own is never credited with a window.
    const bool isKnown = window && accessibility.title(*m_currentObservation.element);
    const auto title = isKnown ? accessibility.title(*window) : std::nullopt;
    m_currentObservation.title = title;
    if (!title)
        return;
    const auto document = getDocStringNameForName(title);
    if (m_currentObservation.windowElement == window)
        timeTracker()->renameWindowToName(document, *window);
    timeTracker()->mainWindowDidChangeToAppName(currentAppName(), window, document);
    m_currentObservation.windowElement = window;
}

void TimeActivatorUniversalAccess::resetNotifications() {
    const std::lock_guard guard(lock());
    if (!m_currentObservation.notification)
        return;
    // Each removal is tried only if the one before succeeded; the observer is released in any case.
    const auto observer = std::move(m_currentObservation.observer);
    if (!observer || !m_currentObservation.element)
        return;
    const WindowElement& element = *m_currentObservation.element;
    if (observer->removeNotification(element, *m_currentObservation.notification) &&
        observer->removeNotification(element, kAXFocusedWindowChanged) &&
        observer->removeNotification(element, kAXTitleChanged))
        observer->end();
}
