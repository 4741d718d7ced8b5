// SPDX-License-Identifier: MIT
// Changes of the whole list: the steps of every edit, following identities, undoing.
#include "Classes/common/Settings.h"
#include "Classes/projects/ProjectList.h"
#include "Classes/store/TKUUIDManager.h"

#include <algorithm>

using Kind = ProjectListChange::Kind;

void ProjectList::projectDupeNode(const FrozenIdentities& frozen) {
    for (const auto& [old, replacement] : frozen) {
        m_identityChanges.push_back({old, replacement, false});
        follow(m_identityChanges.back());
    }
    identitiesChanged();
}

void ProjectList::succeedNodes(const Successions& successions) {
    // Also for members of no project: undoing may bring back a project that had one.
    for (const auto& [former, successor, application] : successions)
        m_identityChanges.push_back({former, successor, true});
    if (!addSuccessors(successions))
        return;
    identitiesChanged();
    m_services.notifications.post(kTicklogRefreshProjectsNotification);
}

void ProjectList::identitiesChanged() {
    // Freezing an application tells of each of its windows. The first change is written at once, the others
    // together.
    if (m_joining && m_joining->isValid()) {
        m_owesSave = true;
        return;
    }
    m_joining = m_services.runLoop.scheduleOnce(std::chrono::nanoseconds(0), [this] { settleFreezing(); });
    saveData();
    reloadReverseProjectCache();
}

void ProjectList::projectJoinNodes(const FrozenIdentities& joined) {
    for (const auto& pair : joined) {
        // clang 14 does not let the lambda below capture parts of a structured binding.
        const Identity& gone = pair.first;
        const Identity& kept = pair.second;
        for (const Record& project : m_projects)
            project->joinMembers(gone, kept);
        // The freezing is undone, so restoring a snapshot from before it must not repeat it.
        const auto frozen = std::ranges::find_if(
            m_identityChanges.rbegin(), m_identityChanges.rend(), [&](const IdentityChange& change) {
                return change.old == kept && change.now == gone && !change.doesOldStay;
            });
        if (frozen != m_identityChanges.rend())
            m_identityChanges.erase(std::prev(frozen.base()));
    }
    saveData();
    reloadReverseProjectCache();
}

void ProjectList::reloadReverseProjectCache() {
    const ChangeAnnouncement announcement(*this, kReverseProjectCacheKey);
    m_reverseProjectCache = std::make_shared<const ReverseProjectCache>(m_projects);
}

ProjectList::Snapshot ProjectList::snapshot() const {
    Snapshot snapshot;
    for (const Record& project : m_projects)
        snapshot.m_projects.push_back({project, project->entries()});
    snapshot.m_identityChanges = m_identityChanges.size();
    snapshot.m_names = m_services.registry.namesOf(allMembers());
    return snapshot;
}

bool ProjectList::Snapshot::isLike(const Snapshot& other) const {
    const auto seen = [](const Saved& saved) {
        PropertyListDictionary entries = saved.entries;
        entries.remove(kProjectExpandedUUIDs);
        entries.remove(kProjectHistoryIdentity);
        // Colour 0 shows the same as no colour at all.
        if (ProjectRecord(entries).colorTag() == 0)
            entries.remove(kProjectColorTag);
        return entries;
    };
    return std::ranges::equal(m_projects, other.m_projects, {}, seen, seen);
}

void ProjectList::restore(const Snapshot& snapshot) {
    tell(Kind::Replace, ChangePhase::Will, std::nullopt);
    std::vector<Record> records;
    for (const auto& [record, entries] : snapshot.m_projects) {
        const bool isThere = positionOf(*record).has_value();
        const PropertyListValue expanded =
            isThere ? record->expandedEntry() : entries.value(kProjectExpandedUUIDs);
        const auto identity = record->historyIdentity();
        *record = ProjectRecord(entries);
        record->setExpandedEntry(expanded);
        // It may be newer than the snapshot, and the history has it.
        if (!record->historyIdentity())
            record->setHistoryIdentity(identity);
        records.push_back(record);
    }
    m_projects = std::move(records);
    for (std::size_t i = snapshot.m_identityChanges; i < m_identityChanges.size(); ++i)
        follow(m_identityChanges[i]);
    bringNamesBack(snapshot.m_names);
    tell(Kind::Replace, ChangePhase::Did, std::nullopt);
    saveData();
    reloadReverseProjectCache();
}

std::vector<ProjectList::Record> ProjectList::recordsFrom(const PropertyListArray& values) const {
    std::vector<Record> records;
    int damaged = 0;
    for (const PropertyListValue& value : values) {
        const PropertyListDictionary* entries = value.asDictionary();
        if (entries)
            records.push_back(std::make_shared<ProjectRecord>(*entries));
        damaged += entries ? records.back()->damagedElements() : 1;
    }
    if (damaged > 0)
        m_services.log.log(
            QStringLiteral("%1 entries of the projects are no identities or records and count for nothing.")
                .arg(damaged));
    return records;
}

// Null for a record that is not in the list.
ProjectList::Record ProjectList::editable(const ProjectRecord& project) const {
    if (&project == m_mainItem.get())
        return m_mainItem;
    const auto position = positionOf(project);
    return position ? m_projects[*position] : nullptr;
}

ProjectList::Record ProjectList::expandable(const ProjectRecord& project) const {
    return &project == m_restItem.get() ? m_restItem : editable(project);
}

void ProjectList::insert(Record record, std::size_t position) {
    position = std::min(position, m_projects.size());
    tell(Kind::Insert, ChangePhase::Will, position);
    // An observer may have removed others.
    position = std::min(position, m_projects.size());
    m_projects.insert(m_projects.begin() + std::ptrdiff_t(position), std::move(record));
    tell(Kind::Insert, ChangePhase::Did, position);
}

void ProjectList::remove(std::size_t position) {
    // Keeps the record alive, because the caller may have only a reference.
    const Record removed = m_projects[position];
    tell(Kind::Remove, ChangePhase::Will, position);
    std::erase(m_projects, removed);
    tell(Kind::Remove, ChangePhase::Did, position);
}

void ProjectList::replace(std::vector<Record> records) {
    tell(Kind::Replace, ChangePhase::Will, std::nullopt);
    m_projects = std::move(records);
    tell(Kind::Replace, ChangePhase::Did, std::nullopt);
    saveData();
    reloadReverseProjectCache();
}

void ProjectList::tell(Kind kind, ChangePhase phase, std::optional<std::size_t> position) {
    m_observers->forEach([&](const Observer& observer) { observer({kind, phase, position}); });
}

void ProjectList::tellChanged(Kind kind, const ProjectRecord& project) {
    tell(kind, ChangePhase::Did, positionOf(project));
}

bool ProjectList::follow(const IdentityChange& change) {
    if (change.doesOldStay)
        return addSuccessors({{change.old, change.now}});
    bool isThere = false;
    for (const Record& project : m_projects)
        isThere |= project->replaceMember(change.old, change.now);
    return isThere;
}

bool ProjectList::addSuccessors(const Successions& successions) {
    std::unordered_set<Identity> followed;
    for (const Record& project : m_projects)
        project->addSuccessors(successions, followed);
    m_former.insert(followed.begin(), followed.end());
    return !followed.empty();
}

void ProjectList::settleFreezing() {
    if (!m_owesSave)
        return;
    saveData();
    reloadReverseProjectCache();
}

std::unordered_set<Identity> ProjectList::allMembers() const {
    std::unordered_set<Identity> all;
    for (const Record& project : m_projects)
        ProjectRecord::addObjectsToSet(all, project->entries().value(kProjectSubtree));
    return all;
}

// Enters the members' names in the registry again: it may have forgotten them while they were in no project.
std::unordered_set<Identity> ProjectList::keepNames() {
    std::unordered_set<Identity> all = allMembers();
    m_services.notifications.post(kTicklogKeepNamesNotification, all);
    return all;
}

// Enters again the names of members that have no timer now. If another timer has come under such a name, the
// project gets that one too.
void ProjectList::bringNamesBack(const QHash<QString, Identity>& names) {
    const auto present = m_services.registry.namesOf(keepNames());
    const std::unordered_set<Identity> known(present.begin(), present.end());
    for (auto name = names.begin(); name != names.end(); ++name) {
        if (known.contains(name.value()))
            continue;
        if (const auto other = m_services.registry.knownUUID(name.key())) {
            m_identityChanges.push_back({name.value(), *other, true});
            follow(m_identityChanges.back());
        } else {
            m_services.registry.setUUID(name.value(), name.key());
        }
    }
}

// The registry knows the name of every member that exists or can come back; the other former members are
// dropped.
void ProjectList::letFormerGo() {
    if (m_former.empty())
        return;
    keepNames();
    std::unordered_set<Identity> gone = std::exchange(m_former, {});
    const auto names = m_services.registry.namesOf(gone);
    for (const Identity& identity : names)
        gone.erase(identity);
    for (const Record& project : m_projects)
        m_hasUnwritten |= project->removeMembers(gone);
}

void ProjectList::expansionChanged(const Record& project) {
    if (project == m_mainItem)
        storeTopLevelExpansion();
    else if (project != m_restItem)
        m_hasUnwritten = true;
}

void ProjectList::storeTopLevelExpansion() {
    m_defaults.setObject(kTopLevelExpandedUUIDs, m_mainItem->expandedEntry());
}
