// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"
#include "Classes/projects/ProjectFile.h"
#include "Classes/projects/ReverseProjectCache.h"

// The colours of all timers are others; see ProjectList::reverseProjectCache.
inline constexpr ObservedKey kReverseProjectCacheKey{"reverseProjectCache"};

// What happens to the list of projects. Insert, Remove and Replace are told before and after, the others after. That
// members were frozen is not told: they are the same timers as before.
struct ProjectListChange {
    enum class Kind { Insert, Remove, Replace, Label, ColorTag, Members };

    Kind kind;
    ChangePhase phase;
    // The position in the list, which is one less than the row in the sidebar. Absent for Replace, and for the main
    // item.
    std::optional<std::size_t> position;
};

// The user's projects in the order of the sidebar, the main item that stands for all timers, and their file. Every
// change goes through here; records are handed out to be read. A record that is in the list no more is changed no
// more: operations on it do nothing. Main thread only.
class ProjectList : public Observable {
public:
    using Project = std::shared_ptr<const ProjectRecord>;
    using Projects = std::vector<Project>;
    using Observer = std::function<void(const ProjectListChange&)>;
    class Snapshot;

    // Where a new project is to go if not to a certain position.
    static constexpr std::size_t kAtEnd = 0x7FFFFFFFFFFFFFFF;

    // Reads the file. Follows freezing from now on. Everything outlives the list.
    ProjectList(TimeStoreServices& services, UserDefaults& defaults, const QString& documentsFolder);
    ~ProjectList() override;

    Subscription observeChanges(Observer observer) { return m_observers->add(std::move(observer)); }

    const ProjectFile& file() const { return m_file; }

    // "All Timers": not in the list, without members, never written. Its expanded rows are a user default.
    Project mainItem() const { return m_mainItem; }
    Projects projects() const { return {m_projects.begin(), m_projects.end()}; }
    std::size_t count() const { return m_projects.size(); }
    std::optional<std::size_t> positionOf(const ProjectRecord& project) const;
    // The record of a sidebar row: the main item for row 0 and for every row that there is not.
    Project projectForRow(std::ptrdiff_t row) const;
    // What a dragged sidebar row stands for; absent for row 0, empty for a row that there is not.
    std::optional<std::vector<Identity>> uuidsForProjectIndex(std::size_t row) const;

    // Replaces all projects and saves. Records of this list stay the same objects.
    void setProjects(const Projects& projects);
    // For the database: values that are no records are left out, and what is no list changes nothing.
    void setProjects(const PropertyListValue& records);
    PropertyListArray arrayRepresentation() const;

    // Writes the file. Then drops from the expanded rows what is no member, from the main item's what is in no project
    // at all, and has the registry know the names of all members and forget those that no project refers to.
    void saveData();

    // For whenever the timers have been written: lets go of members that were taken in by others, and writes what was
    // changed and not saved, if anything was.
    void writeChanges();

    // A new project, "New Project", at a position or at the end; saves. Never null. Colours stay as they are.
    Project addNewProjectWithItems(const std::vector<Identity>& items, std::size_t position = kAtEnd);
    // Removes at once; saves. Nothing happens for a position that there is not.
    void removeProject(std::size_t position);
    // After confirmation: the same, but the colours stay on its timers until they are next built.
    void deleteProject(const ProjectRecord& project);
    void setLabel(const ProjectRecord& project, const QString& label);
    // On the main item it holds until the program ends.
    void setSelectedColorTag(const ProjectRecord& project, int tag);
    void addMembers(const ProjectRecord& project, const std::vector<Identity>& identities);
    // Does not save: the change is written with the next one.
    void removeMembers(const ProjectRecord& project, const std::unordered_set<Identity>& identities);
    // Nothing happens while `isBlocked`: a search opens and closes rows on its own. Not written at once.
    void expandUUID(const ProjectRecord& project, const Identity& uuid, bool isBlocked);
    void collapseUUID(const ProjectRecord& project, const Identity& uuid, bool isBlocked);
    // Of the expanded rows, position by position, forgets those that are not shown; the rest stay. Not written at once.
    void keepExpanded(const ProjectRecord& project, const std::vector<bool>& isShown);
    // A timer was frozen: projects go on pointing at the frozen one. Saves.
    void projectDupeNode(const FrozenIdentities& frozen);
    // A frozen timer was joined with its successor: projects point at what has become of both. Saves.
    void projectJoinNodes(const FrozenIdentities& joined);
    // Timers have taken in others: projects that have a former have its successor too. The former stays until the
    // timers are written, because after a crash it would be back; and for as long as any other timer goes by it. Saves.
    void succeedNodes(const Successions& successions);

    // Inserts a copy of the project at `position` so that it comes to be at `destination`; saves. A move removes the
    // project first: what stands at the destination afterwards is a copy, another object. False, with nothing
    // changed, for a position that there is not; a destination beyond the end is the end.
    bool copyProject(std::size_t position, std::size_t destination);
    bool moveProject(std::size_t position, std::size_t destination);

    // Never null. Replaced, and announced under kReverseProjectCacheKey, whenever colours or members change.
    std::shared_ptr<const ReverseProjectCache> reverseProjectCache() const { return m_reverseProjectCache; }
    void reloadReverseProjectCache();

    // The whole list as it is now; cheap. For undoing: the same records come back with what they had, and the registry
    // knows the members' names again. What was frozen in between stays frozen, and rows stay expanded as they are.
    Snapshot snapshot() const;
    // Saves. A snapshot of before makes it redone.
    void restore(const Snapshot& snapshot);

private:
    using Record = std::shared_ptr<ProjectRecord>;

    std::vector<Record> recordsFrom(const PropertyListArray& values) const;
    Record editable(const ProjectRecord& project) const;
    void insert(Record record, std::size_t position);
    void remove(std::size_t position);
    void replace(std::vector<Record> records);
    void tell(ProjectListChange::Kind kind, ChangePhase phase, std::optional<std::size_t> position);
    void tellChanged(ProjectListChange::Kind kind, const ProjectRecord& project);
    struct IdentityChange;
    // Answers whether any project has the old one.
    bool follow(const IdentityChange& change);
    bool addSuccessors(const Successions& successions);
    void identitiesChanged();
    void settleFreezing();
    std::unordered_set<Identity> allMembers() const;
    std::unordered_set<Identity> keepNames();
    void bringNamesBack(const QHash<QString, Identity>& names);
    void letFormerGo();
    void write();
    void expansionChanged(const Record& project);
    void storeTopLevelExpansion();

    TimeStoreServices& m_services;
    UserDefaults& m_defaults;
    ProjectFile m_file;
    std::vector<Record> m_projects;
    Record m_mainItem;
    std::shared_ptr<const ReverseProjectCache> m_reverseProjectCache;
    QExplicitlySharedDataPointer<Listeners<Observer>> m_observers;
    // What has become of identities since the launch and was not undone, in order.
    struct IdentityChange {
        Identity old;
        Identity now;
        bool doesOldStay;
    };
    std::vector<IdentityChange> m_identityChanges;
    // Members whose timers were taken in by others.
    std::unordered_set<Identity> m_former;
    std::unique_ptr<RunLoopTimer> m_joining;
    bool m_owesSave = false;
    bool m_hasUnwritten = false;
    Subscription m_freezing;
    Subscription m_joinings;
    Subscription m_succeeding;
    Subscription m_refreshing;
};

// See ProjectList::snapshot.
class ProjectList::Snapshot {
public:
    // Whether people see the same projects: the objects may be others, and so may the rows that are expanded.
    bool isLike(const Snapshot& other) const;

private:
    friend class ProjectList;

    struct Saved {
        std::shared_ptr<ProjectRecord> record;
        PropertyListDictionary entries;
    };

    std::vector<Saved> m_projects;
    std::size_t m_identityChanges = 0;
    // What the registry knew of the members.
    QHash<QString, Identity> m_names;
};
