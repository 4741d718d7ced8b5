// SPDX-License-Identifier: MIT
#include "Classes/engine/PastRuling.h"

#include "Classes/engine/Stretch.h"
#include "Classes/engine/TimeActivator.h"
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

int PastRuling::countOf(const TimerTree& tree, const PastTitles& past) {
    int count = 0;
    for (const auto& app : tree.applications()) {
        if (isExempt(*app))
            continue;
        count += isProgramHidden(*app, past);
        for (const auto& window : app->windows())
            count += allowedOf(*app, *window, past) != window->name();
    }
    return count;
}

void PastRuling::hide() {
    const ChangeAnnouncement announcement = m_timers.changeOfSet();
    // Works on a copy, because observers of an application's windows may change the list.
    for (const auto& app : TimerTree::AppSet(m_timers.tree().applications()))
        if (!isExempt(*app))
            hide(*app);
    if (m_time > 0) {
        const auto known = m_timers.tree().named(kPrivateName);
        m_timers.correctTime(
            known ? *known : *m_timers.add(std::make_shared<TimeStoreApp>(m_timers.services(), kPrivateName)),
            m_time);
    }
    m_timers.dropRows(m_applications);
    m_timers.forgetApp();
    m_timers.forgetWindow();
}

void PastRuling::hide(TimeStoreApp& app) {
    const bool isHidden = isProgramHidden(app, m_past);
    std::unordered_set<const TimeStoreWindow*> unwanted;
    Seconds ofWindows = 0;
    Seconds ofNobody = 0;
    for (const auto& window : app.windows()) {
        const auto allowed = allowedOf(app, *window, m_past);
        const QString document = allowed ? documentOf(*allowed) : QString();
        (allowed ? ofWindows : ofNobody) += window->activeTime();
        if (allowed == window->name())
            continue;
        m_names.insert(window->name());
        if (!document.isEmpty()) {
            window->setName(document);
            continue;
        }
        unwanted.insert(window.get());
        if (window->uuid())
            m_identities.insert(*window->uuid());
    }
    app.removeWindows([&](const TimeStoreWindow& window) { return unwanted.contains(&window); });
    // Windows that may be known keep their application, with their time.
    const Seconds time = std::min(app.activeTime(), isHidden ? app.activeTime() - ofWindows : ofNobody);
    if (time > 0) {
        m_timers.correctTime(app, -time);
        m_time += time;
    }
    if (isHidden && app.windowCount() == 0)
        remove(app);
}

void PastRuling::remove(TimeStoreApp& app) {
    const auto whole = std::static_pointer_cast<TimeStoreApp>(app.shared_from_this());
    m_timers.tree().forgetNames(app);
    m_timers.services().registry.forget(app.registryKey(app.name()));
    if (app.uuid())
        m_identities.insert(*app.uuid());
    m_timers.tree().remove(whole);
    m_applications.push_back(whole);
}

std::unordered_set<Identity> PastRuling::forgetNames() {
    std::unordered_set<QString> present;
    for (const auto& app : m_timers.tree().applications()) {
        if (app->uuid())
            m_identities.erase(*app->uuid());
        for (const auto& window : app->windows()) {
            present.insert(window->name());
            if (window->uuid())
                m_identities.erase(*window->uuid());
        }
    }
    const QString prefix = TimeStoreWindow::keyOf(QString());
    m_timers.services().registry.forgetNames([&](const QString& key, const Identity&) {
        if (!key.startsWith(prefix))
            return false;
        const QString title = key.mid(prefix.size()).section(u'\n', 0, 0);
        const QString program = key.section(u'\n', 1);
        if (!program.isEmpty())
            return m_past.allowed(program, title, documentOf(title)) != title;
        // A title that another program still has stays.
        return !present.contains(title) && (m_names.contains(title) || m_past.hidesSomewhere(title));
    });
    return m_identities;
}
