// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"
#include "Classes/projects/ProjectFile.h"
#include "Classes/projects/ReverseProjectCache.h"

// The map from timers to the colours of their projects was replaced; see ProjectList::reverseProjectCache.
inline constexpr ObservedKey kReverseProjectCacheKey{"reverseProjectCache"};

// A change of the list of projects. Insert, Remove and Replace are told before and after; the others only
// after. Freezing members is not told: they remain the same timers.
struct ProjectListChange {
    enum class Kind { Insert, Remove, Replace, Label, ColorTag, Members, Patterns };

    Kind kind;
    ChangePhase phase;
    // The position in the list, which is one less than the row in the sidebar. Absent for Replace, and for
    // the main item.
    std::optional<std::size_t> position;
};

// The user's projects in the order of the sidebar, the main item that stands for all timers, and their file.
// Every change is made through this class; the records it hands out are for reading. Operations on a record
// that is no longer in the list do nothing. Main thread only.
class ProjectList : public Observable {
public:
    using Project = std::shared_ptr<const ProjectRecord>;
    using Projects = std::vector<Project>;
    using Observer = std::function<void(const ProjectListChange&)>;
    class Snapshot;

    // As a position: put a new project at the end.
    static constexpr std::size_t kAtEnd = 0x7FFFFFFFFFFFFFFF;

    // Reads the file, and follows freezing from now on. All arguments outlive the list.
    ProjectList(TimeStoreServices& services, UserDefaults& defaults, const QString& documentsFolder);
    ~ProjectList() override;

    Subscription observeChanges(Observer observer) { return m_observers->add(std::move(observer)); }

    const ProjectFile& file() const { return m_file; }

    // "All Timers". It is not in the list, has no members and is never written. Its expanded rows are a
    // setting.
    Project mainItem() const { return m_mainItem; }
    // "No Project". It is not in the list and never written; its members are what was found last to belong to no
    // project. Which of its rows are expanded is kept until the program ends.
    Project restItem() const { return m_restItem; }
    // What was found; also time that is no timer's own.
    const TimeStoreItem::Children& rest() const { return m_rest; }
    // Answers whether these are other rows than before.
    bool setRest(TimeStoreItem::Children rest);
    Projects projects() const { return {m_projects.begin(), m_projects.end()}; }
    std::size_t count() const { return m_projects.size(); }
    std::optional<std::size_t> positionOf(const ProjectRecord& project) const;
    // The record of a sidebar row: the main item for row 0, and for a row that does not exist.
    Project projectForRow(std::ptrdiff_t row) const;
    // The members of a dragged sidebar row. Absent for row 0, empty for a row that does not exist.
    std::optional<std::vector<Identity>> uuidsForProjectIndex(std::size_t row) const;

    // Replaces all projects and saves. Those that are already in the list stay the same objects.
    void setProjects(const Projects& projects);
    // The same from a database file. Values that are no records are left out; a value that is no list changes
    // nothing.
    void setProjects(const PropertyListValue& records);
    PropertyListArray arrayRepresentation() const;
    // The members of all projects.
    std::unordered_set<Identity> allMembers() const;

    // Writes the file. Then tidies up: forgets expanded rows that are not members (for the main item, rows
    // that are in no project), enters the names of all members in the registry, and removes from the registry
    // what no project refers to and nobody else needs.
    void saveData();

    // Called after each writing of the timers. Drops members that other timers have taken in, and writes any
    // change that was not saved yet.
    void writeChanges();

    // Adds a project called "New Project" at a position or at the end, and saves. Never null. Does not build
    // the colours anew.
    Project addNewProjectWithItems(const std::vector<Identity>& items, std::size_t position = kAtEnd);
    // Removes at once and saves. Does nothing for a position that does not exist.
    void removeProject(std::size_t position);
    // After the user has confirmed it: the same, except that its timers keep their colours until the colours
    // are next built.
    void deleteProject(const ProjectRecord& project);
    void setLabel(const ProjectRecord& project, const QString& label);
    // On the main item the colour holds only until the program ends.
    void setSelectedColorTag(const ProjectRecord& project, int tag);
    // By what the history knows what is the project's; saves.
    void setPatterns(const ProjectRecord& project, const PropertyListArray& patterns);
    // By which the history knows it, for time that is given to it by hand. Made and saved when it is first
    // asked for; absent for the main item and for what is not in the list.
    std::optional<Identity> historyIdentity(const ProjectRecord& project);
    void addMembers(const ProjectRecord& project, const std::vector<Identity>& identities);
    // Does not save: the change is written with the next save.
    void removeMembers(const ProjectRecord& project, const std::unordered_set<Identity>& identities);
    // Do nothing while `isBlocked`: a search opens and closes rows by itself. Not written at once.
    void expandUUID(const ProjectRecord& project, const Identity& uuid, bool isBlocked);
    void collapseUUID(const ProjectRecord& project, const Identity& uuid, bool isBlocked);
    // `isShown` says for each expanded row, in order, whether it is shown; those that are not are forgotten.
    // Not written at once.
    void keepExpanded(const ProjectRecord& project, const std::vector<bool>& isShown);
    // A timer was frozen: projects keep the frozen one as their member. Saves.
    void projectDupeNode(const FrozenIdentities& frozen);
    // A frozen timer was joined with its successor: projects get the timer that is left. Saves.
    void projectJoinNodes(const FrozenIdentities& joined);
    // Timers were taken in by others: projects that have the former get the successor too. They keep the
    // former until the timers are written, because a crash before would bring it back, and for as long as any
    // timer still has its identity. Saves.
    void succeedNodes(const Successions& successions);

    // Inserts a copy of the project at `position`, so that it stands at `destination`, and saves. Time that was
    // given to the project by hand stays with it alone. A move
    // first removes the project: what then stands at the destination is a copy, that is another object.
    // Answers false and changes nothing for a position that does not exist; a destination beyond the end
    // means the end.
    bool copyProject(std::size_t position, std::size_t destination);
    bool moveProject(std::size_t position, std::size_t destination);

    // The colours of all timers. Never null. A new map replaces it, announced under kReverseProjectCacheKey,
    // whenever colours or members change.
    std::shared_ptr<const ReverseProjectCache> reverseProjectCache() const { return m_reverseProjectCache; }
    void reloadReverseProjectCache();

    // The whole list as it is now; cheap. Used to undo: restore() brings the same records back with their
    // content, and the registry knows the names of their members again. What was frozen since stays frozen,
    // and expanded rows stay as they are.
    Snapshot snapshot() const;
    // Brings back a snapshot and saves. Take another snapshot first to be able to redo.
    void restore(const Snapshot& snapshot);

private:
    using Record = std::shared_ptr<ProjectRecord>;

    std::vector<Record> recordsFrom(const PropertyListArray& values) const;
    Record editable(const ProjectRecord& project) const;
    Record expandable(const ProjectRecord& project) const;
    void insert(Record record, std::size_t position);
    void remove(std::size_t position);
    void replace(std::vector<Record> records);
    void tell(ProjectListChange::Kind kind, ChangePhase phase, std::optional<std::size_t> position);
    void tellChanged(ProjectListChange::Kind kind, const ProjectRecord& project);
    struct IdentityChange;
    // Whether any project has the old identity.
    bool follow(const IdentityChange& change);
    bool addSuccessors(const Successions& successions);
    void identitiesChanged();
    void settleFreezing();
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
    Record m_restItem;
    TimeStoreItem::Children m_rest;
    std::shared_ptr<const ReverseProjectCache> m_reverseProjectCache;
    QExplicitlySharedDataPointer<Listeners<Observer>> m_observers;
    // Identities that were replaced since the launch and not undone, in order.
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
    // Whether both show people the same projects. Objects and expanded rows may differ.
    bool isLike(const Snapshot& other) const;

private:
    friend class ProjectList;

    struct Saved {
        std::shared_ptr<ProjectRecord> record;
        PropertyListDictionary entries;
    };

    std::vector<Saved> m_projects;
    std::size_t m_identityChanges = 0;
    // The members' names in the registry.
    QHash<QString, Identity> m_names;
};
