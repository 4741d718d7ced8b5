// SPDX-License-Identifier: MIT
#include "Classes/engine/CountedTimers.h"

#include "Classes/engine/Stretch.h"
#include "platform/FrontApplication.h"

#include <algorithm>

std::shared_ptr<TimeStoreWindow> CountedTimers::windowOfApp() const {
    const auto app = m_app.lock();
    auto window = m_window.lock();
    return app && window && app->holds(*window) ? window : nullptr;
}

void CountedTimers::setCurrentApp(const std::optional<QString>& name) {
    if (!name)
        return;
    const bool isAway = *name == kScreenSaverName || *name == kLoginWindowName;
    const QString& credited = isAway ? kIdleName : *name;
    if (const auto known = m_tree.named(credited)) {
        m_app = known;
        return;
    }
    {
        const ChangeAnnouncement announcement = changeOfSet();
        const std::lock_guard guard(m_lock);
        m_app = add(std::make_shared<TimeStoreApp>(m_services, credited));
        m_window.reset();
    }
    m_services.notifications.post(kTicklogRefreshProjectsNotification);
}

void CountedTimers::setWindow(const std::shared_ptr<TimeStoreWindow>& window) {
    if (window != std::exchange(m_window, window).lock())
        m_narrowing.noteChange();
}

void CountedTimers::passOn(TimeStoreNode& gone, TimeStoreNode& heir) {
    const auto self = heir.shared_from_this();
    if (&gone == m_app.lock().get())
        m_app = std::static_pointer_cast<TimeStoreApp>(self);
    else if (&gone == m_window.lock().get())
        m_window = std::static_pointer_cast<TimeStoreWindow>(self);
}

std::shared_ptr<TimeStoreApp> CountedTimers::add(std::shared_ptr<TimeStoreApp> app) {
    m_tree.add(app);
    m_narrowing.noteChange();
    return app;
}

void CountedTimers::addTime(TimeStoreNode& node, Seconds seconds) {
    noteGrowth(node, seconds);
    node.addTimeInterval(seconds);
}

void CountedTimers::correctTime(TimeStoreNode& node, Seconds seconds) {
    noteGrowth(node, seconds);
    node.correctTime(seconds);
}

void CountedTimers::noteGrowth(const TimeStoreNode& node, Seconds seconds) {
    const Seconds before = node.TimeStoreNode::activeTime();
    m_narrowing.noteTime(before, before + seconds);
}

void CountedTimers::reloadSearchFiltering() {
    const std::lock_guard guard(m_lock);
    const ChangeAnnouncement announcement = changeOfSet();
    m_narrowing.giveUp();
    m_narrowing.find(m_tree.applications());
}

void CountedTimers::dropRows(const AppSet& gone) {
    m_narrowing.drop([&](const TimeStoreItem& item) {
        return std::ranges::any_of(gone, [&](const auto& app) { return app.get() == &item.node(); });
    });
}
