// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectList.h"

#include "Classes/common/Settings.h"
#include "Classes/store/TKUUIDManager.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <algorithm>
#include <utility>

using Kind = ProjectListChange::Kind;

ProjectList::ProjectList(TimeStoreServices& services, UserDefaults& defaults, const QString& documentsFolder)
    : m_services(services)
    , m_defaults(defaults)
    , m_file(documentsFolder, services.log, services.trouble)
    , m_projects(recordsFrom(m_file.read()))
    , m_mainItem(std::make_shared<ProjectRecord>(
          PropertyListDictionary{{kProjectSubtree, PropertyListArray()},
                                 {kProjectLabel, localized("All Timers")},
                                 {kProjectExpandedUUIDs, defaults.object(kTopLevelExpandedUUIDs)}}))
    , m_restItem(
          std::make_shared<ProjectRecord>(PropertyListDictionary{{kProjectLabel, localized("No Project")}}))
    , m_reverseProjectCache(std::make_shared<const ReverseProjectCache>(m_projects))
    , m_observers(new Listeners<Observer>) {
    m_freezing = services.notifications.observe(
        kTicklogBranchNodeNotification, [this](const Notification& notification) {
            if (const auto* frozen = std::any_cast<FrozenIdentities>(&notification.object))
                projectDupeNode(*frozen);
        });
    m_joinings = services.notifications.observe(
        kTicklogUnbranchNodeNotification, [this](const Notification& notification) {
            if (const auto* joined = std::any_cast<FrozenIdentities>(&notification.object))
                projectJoinNodes(*joined);
        });
    m_succeeding = services.notifications.observe(
        kTicklogSucceedNodeNotification, [this](const Notification& notification) {
            if (const auto* successions = std::any_cast<Successions>(&notification.object))
                succeedNodes(*successions);
        });
    // This is the last notification when an application is frozen: whoever now builds projects anew must find
    // them up to date.
    m_refreshing = services.notifications.observe(kTicklogRefreshProjectsNotification,
                                                  [this](const Notification&) { settleFreezing(); });
}

ProjectList::~ProjectList() {
    settleFreezing();
    m_observers->removeAll();
}

std::optional<std::size_t> ProjectList::positionOf(const ProjectRecord& project) const {
    const auto found =
        std::ranges::find_if(m_projects, [&](const Record& record) { return record.get() == &project; });
    return found == m_projects.end() ? std::nullopt : std::optional<std::size_t>(found - m_projects.begin());
}

ProjectList::Project ProjectList::projectForRow(std::ptrdiff_t row) const {
    const bool isProject = row > 0 && std::size_t(row) <= m_projects.size();
    return isProject ? m_projects[std::size_t(row) - 1] : m_mainItem;
}

std::optional<std::vector<Identity>> ProjectList::uuidsForProjectIndex(std::size_t row) const {
    if (row == 0)
        return std::nullopt;
    return row <= m_projects.size() ? m_projects[row - 1]->flattenedMembers() : std::vector<Identity>();
}

void ProjectList::setProjects(const Projects& projects) {
    std::vector<Record> records;
    for (const Project& project : projects)
        if (Record own = editable(*project); own && own != m_mainItem)
            records.push_back(std::move(own));
        else
            records.push_back(std::make_shared<ProjectRecord>(*project));
    replace(std::move(records));
}

void ProjectList::setProjects(const PropertyListValue& records) {
    if (const PropertyListArray* list = records.asArray())
        replace(recordsFrom(*list));
    else
        m_services.log.log(QStringLiteral("The projects stay: what was to replace them is no list."));
}

PropertyListArray ProjectList::arrayRepresentation() const {
    PropertyListArray records;
    for (const Record& project : m_projects)
        records.push_back(project->entries());
    return records;
}

void ProjectList::saveData() {
    m_owesSave = false;
    m_hasUnwritten = true;
    write();
    for (const Record& project : m_projects) {
        if (project->expandedEntry().isAbsent())
            continue;
        std::unordered_set<Identity> own;
        ProjectRecord::addObjectsToSet(own, project->entries().value(kProjectSubtree));
        project->pruneExpanded(own);
    }
    const std::unordered_set<Identity> all = keepNames();
    m_mainItem->pruneExpanded(all);
    storeTopLevelExpansion();
    m_services.registry.setUUIDSet(all);
}

void ProjectList::writeChanges() {
    letFormerGo();
    write();
}

void ProjectList::write() {
    if (m_hasUnwritten)
        m_hasUnwritten = !m_file.write(arrayRepresentation());
}

ProjectList::Project ProjectList::addNewProjectWithItems(const std::vector<Identity>& items,
                                                         std::size_t position) {
    auto record = std::make_shared<ProjectRecord>(PropertyListDictionary{
        {kProjectSubtree, PropertyListArray()}, {kProjectLabel, localized("New Project")}});
    record->addMembers(items);
    insert(record, position);
    saveData();
    return record;
}

void ProjectList::removeProject(std::size_t position) {
    if (position >= m_projects.size())
        return;
    remove(position);
    saveData();
    reloadReverseProjectCache();
}

void ProjectList::deleteProject(const ProjectRecord& project) {
    const auto position = positionOf(project);
    if (!position)
        return;
    remove(*position);
    saveData();
}

bool ProjectList::copyProject(std::size_t position, std::size_t destination) {
    if (position >= m_projects.size())
        return false;
    auto copy = std::make_shared<ProjectRecord>(*m_projects[position]);
    copy->setHistoryIdentity(std::nullopt);
    insert(std::move(copy), destination);
    saveData();
    return true;
}

bool ProjectList::moveProject(std::size_t position, std::size_t destination) {
    if (position >= m_projects.size())
        return false;
    auto copy = std::make_shared<ProjectRecord>(*m_projects[position]);
    remove(position);
    insert(std::move(copy), destination);
    saveData();
    return true;
}

void ProjectList::setLabel(const ProjectRecord& project, const QString& label) {
    const Record record = editable(project);
    if (!record || record == m_mainItem)
        return;
    record->setLabel(label);
    tellChanged(Kind::Label, project);
    saveData();
}

void ProjectList::setSelectedColorTag(const ProjectRecord& project, int tag) {
    const Record record = editable(project);
    if (!record)
        return;
    record->setColorTag(tag);
    tellChanged(Kind::ColorTag, project);
    saveData();
    reloadReverseProjectCache();
}

void ProjectList::setPatterns(const ProjectRecord& project, const PropertyListArray& patterns) {
    const Record record = editable(project);
    if (!record || record == m_mainItem)
        return;
    record->setPatterns(patterns);
    tellChanged(Kind::Patterns, project);
    saveData();
}

std::optional<Identity> ProjectList::historyIdentity(const ProjectRecord& project) {
    const Record record = editable(project);
    if (!record || record == m_mainItem)
        return std::nullopt;
    if (!record->historyIdentity()) {
        record->setHistoryIdentity(Identity::brandNew());
        saveData();
    }
    return record->historyIdentity();
}

void ProjectList::addMembers(const ProjectRecord& project, const std::vector<Identity>& identities) {
    const Record record = editable(project);
    if (!record || record == m_mainItem)
        return;
    if (record->addMembers(identities))
        tellChanged(Kind::Members, project);
    saveData();
    reloadReverseProjectCache();
}

void ProjectList::removeMembers(const ProjectRecord& project,
                                const std::unordered_set<Identity>& identities) {
    const Record record = editable(project);
    if (!record || record == m_mainItem)
        return;
    m_hasUnwritten = true;
    if (record->removeMembers(identities))
        tellChanged(Kind::Members, project);
    reloadReverseProjectCache();
}

void ProjectList::expandUUID(const ProjectRecord& project, const Identity& uuid, bool isBlocked) {
    const Record record = isBlocked ? nullptr : expandable(project);
    if (!record)
        return;
    record->expand(uuid);
    expansionChanged(record);
}

void ProjectList::collapseUUID(const ProjectRecord& project, const Identity& uuid, bool isBlocked) {
    const Record record = isBlocked ? nullptr : expandable(project);
    if (!record)
        return;
    record->collapse(uuid);
    expansionChanged(record);
}

void ProjectList::keepExpanded(const ProjectRecord& project, const std::vector<bool>& isShown) {
    if (const Record record = expandable(project))
        record->keepExpanded(isShown);
}

bool ProjectList::setRest(TimeStoreItem::Children rest) {
    const auto row = [](const auto& item) { return std::pair(&item->node(), item->uuid()); };
    if (std::ranges::equal(m_rest, rest, {}, row, row))
        return false;
    m_rest = std::move(rest);
    std::vector<Identity> members;
    for (const auto& timer : m_rest)
        if (const auto identity = timer->uuid())
            members.push_back(*identity);
    const PropertyListValue expanded = m_restItem->expandedEntry();
    *m_restItem = ProjectRecord({{kProjectLabel, m_restItem->label()}});
    m_restItem->addMembers(members);
    m_restItem->setExpandedEntry(expanded);
    return true;
}
