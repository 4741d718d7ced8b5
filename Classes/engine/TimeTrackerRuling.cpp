// SPDX-License-Identifier: MIT
// Applying the rules for titles to the timers of the past.
#include "Classes/engine/TimeTracker.h"
#include "Classes/rules/PastTitles.h"
#include "Classes/store/TKUUIDManager.h"

#include <algorithm>

namespace {

QString documentOf(const QString& name) {
    return TimeActivator::getDocStringNameForName(name).value_or(QString());
}

// Also true for a frozen application of a hidden program.
bool isProgramHidden(const TimeStoreApp& app, const PastTitles& past) {
    return !past.rules().allowed(app.name(), QString());
}

std::optional<QString> allowedOf(const TimeStoreApp& app, const TimeStoreWindow& window,
                                 const PastTitles& past) {
    const QString name = window.name();
    const auto allowed = past.allowed(app.name(), name, documentOf(name));
    // In the history a frozen application has its former name.
    return allowed == name && app.branched() ? past.allowed(documentOf(app.name()), name, documentOf(name))
                                             : allowed;
}

bool isExempt(const TimeStoreApp& app) {
    return app.isNamed(kIdleName) || app.isNamed(kPrivateName);
}

} // namespace

int TimeTracker::countSayingMoreThan(const PastTitles& past) const {
    int count = 0;
    for (const auto& app : m_tree.applications()) {
        if (isExempt(*app))
            continue;
        count += isProgramHidden(*app, past);
        for (const auto& window : app->windows())
            count += allowedOf(*app, *window, past) != window->name();
    }
    return count;
}

std::unordered_set<Identity> TimeTracker::sayNoMoreThan(const PastTitles& past) {
    // The time so far is credited under the old names; from now on the rules apply to what is in front.
    m_timeActivator->appDidChange();
    const std::lock_guard guard(m_lock);
    Gone gone;
    willChange(kTimeSetKey);
    // Works on a copy, because observers of an application's windows may change the list.
    for (const auto& app : AppSet(m_tree.applications()))
        if (!isExempt(*app))
            hide(*app, past, gone);
    if (gone.time > 0) {
        const auto known = m_tree.named(kPrivateName);
        const auto app =
            known ? known : addApplication(std::make_shared<TimeStoreApp>(m_services.store, kPrivateName));
        app->correctTime(gone.time);
    }
    m_narrowing.drop([&](const TimeStoreItem& item) {
        return std::ranges::any_of(gone.applications,
                                   [&](const auto& app) { return app.get() == &item.node(); });
    });
    const bool findsAppAgain = m_activeStoreApp.lock() != nullptr;
    m_activeStoreApp.reset();
    m_activeStoreWindow.reset();
    didChange(kTimeSetKey);
    if (findsAppAgain)
        appDidChange();
    forgetNames(past, gone);
    return gone.identities;
}

void TimeTracker::hide(TimeStoreApp& app, const PastTitles& past, Gone& gone) {
    const bool isHidden = isProgramHidden(app, past);
    std::unordered_set<const TimeStoreWindow*> unwanted;
    Seconds ofWindows = 0;
    Seconds ofNobody = 0;
    for (const auto& window : app.windows()) {
        const auto allowed = allowedOf(app, *window, past);
        const QString document = allowed ? documentOf(*allowed) : QString();
        (allowed ? ofWindows : ofNobody) += window->activeTime();
        if (allowed == window->name())
            continue;
        gone.names.insert(window->name());
        if (!document.isEmpty()) {
            window->setName(document);
            continue;
        }
        unwanted.insert(window.get());
        if (window->uuid())
            gone.identities.insert(*window->uuid());
    }
    app.removeWindows([&](const TimeStoreWindow& window) { return unwanted.contains(&window); });
    // Windows that may be known keep their application, with their time.
    const Seconds time = std::min(app.activeTime(), isHidden ? app.activeTime() - ofWindows : ofNobody);
    if (time > 0) {
        app.correctTime(-time);
        gone.time += time;
    }
    if (!isHidden || app.windowCount() > 0)
        return;
    const auto whole = std::static_pointer_cast<TimeStoreApp>(app.shared_from_this());
    m_tree.forgetNames(app);
    m_services.store.registry.forget(app.registryKey(app.name()));
    if (app.uuid())
        gone.identities.insert(*app.uuid());
    m_tree.remove(whole);
    gone.applications.push_back(whole);
}

// Forgets also names of timers that were cleared, which a project may still have. A title that another
// program still has stays.
void TimeTracker::forgetNames(const PastTitles& past, Gone& gone) {
    std::unordered_set<QString> present;
    for (const auto& app : m_tree.applications()) {
        if (app->uuid())
            gone.identities.erase(*app->uuid());
        for (const auto& window : app->windows()) {
            present.insert(window->name());
            if (window->uuid())
                gone.identities.erase(*window->uuid());
        }
    }
    const QString prefix = TimeStoreWindow::keyOf(QString());
    m_services.store.registry.forgetNames([&](const QString& key) {
        if (!key.startsWith(prefix))
            return false;
        const QString title = key.mid(prefix.size()).section(u'\n', 0, 0);
        const QString program = key.section(u'\n', 1);
        if (!program.isEmpty())
            return past.allowed(program, title, documentOf(title)) != title;
        return !present.contains(title) && (gone.names.contains(title) || past.hidesSomewhere(title));
    });
}
