// SPDX-License-Identifier: MIT
#include "Classes/history/NameKeeping.h"

#include "Classes/engine/TimeTracker.h"

NameKeeping::NameKeeping(TKUUIDManager& registry, TimeTracker& tracker, History& history, Members members)
    : m_registry(registry)
    , m_tracker(tracker)
    , m_history(history)
    , m_members(std::move(members))
    , m_keeping(registry.keep([&history](const Identity& identity) { return history.hasPastOf(identity); }))
    , m_losses(history.observeLoss([this] { tidy(); }))
    , m_clearing(tracker.observe(kLastResetDateKey, [this](const ObservedChange&) { tidy(); })) {
    tidy();
}

void NameKeeping::tidy() {
    std::unordered_set<Identity> needed = m_members();
    needed.merge(m_tracker.tree().identitiesOf([](const auto&, const auto&) { return true; }));
    const auto before = m_registry.count();
    m_registry.forgetNames([&](const QString&, const Identity& identity) {
        return !needed.contains(identity) && !m_history.hasPastOf(identity);
    });
    // What is to be forgotten must not stay in the file for a while.
    if (m_registry.count() < before)
        m_registry.saveData();
}
