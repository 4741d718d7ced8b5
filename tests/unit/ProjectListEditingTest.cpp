// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectDrops.h"
#include "Classes/projects/ProjectNodes.h"
#include "Classes/record/TimeDatabase.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/Day.h"
#include "tests/fakes/Projects.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using ProjectSamples::identities;
using ProjectSamples::identity;
using ProjectSamples::record;

// Projects and a tracker with their timers: Mail with the windows Inbox and Drafts, and Editor.
class ProjectListEditingTest : public testing::Test {
protected:
    ProjectListEditingTest() {
        m_day.start();
        m_day.front("Mail", "Inbox");
        m_day.seconds(40);
        m_day.window("Drafts");
        m_day.seconds(10);
        m_day.front("Editor", "main.cpp");
        m_day.seconds(7);
    }

    Identity uuid(const char* application, const char* title = nullptr) {
        return m_day.node(application, title).uuid().value();
    }

    ProjectList::Project project(const std::vector<Identity>& members) {
        return m_list.addNewProjectWithItems(members);
    }

    // The timers of a project, by the names shown: "Mail Editor".
    std::string shown(const ProjectRecord& project) {
        const auto node = m_nodes.timeStoreCategoryForProjectDict(project);
        m_day.tracker.updateTimeStoreCategory(*node, project.flattenedMembers());
        QStringList names;
        const auto children = node->children().value();
        for (const auto& child : children)
            names << child->renamedName();
        return str(names.join(u' '));
    }

    // How the project is written in the file.
    ProjectRecord written(std::size_t position) {
        const auto records =
            ProjectFile(m_day.fakes.folders.documents, m_day.fakes.log, m_day.trouble).read();
        return ProjectRecord(*records.at(position).asDictionary());
    }

    std::string order() const {
        QString labels;
        for (const auto& project : m_list.projects())
            labels += project->label();
        return str(labels);
    }

    void setProjects(std::initializer_list<const char*> labels) {
        PropertyListArray records;
        unsigned member = 0;
        for (const char* label : labels)
            records.push_back(record(label, {++member}).entries());
        m_list.setProjects(records);
    }

    Day m_day;
    ProjectList m_list{m_day.store, m_day.fakes.defaults, m_day.fakes.folders.documents};
    ProjectNodes m_nodes{m_day.store};
};

TEST_F(ProjectListEditingTest, aProjectsNode_isFilledInTheOrderOfTheTree) {
    const auto work = project({uuid("Editor"), uuid("Mail", "Inbox"), uuid("Mail", "Drafts")});
    EXPECT_EQ(shown(*work), "Drafts Inbox Editor");
    m_list.addMembers(*work, {uuid("Mail")});
    EXPECT_EQ(shown(*work), "Mail Editor");
}

TEST_F(ProjectListEditingTest, timersThatAreNoMore_contributeNothing) {
    const auto work = project({uuid("Mail"), identity(9), uuid("Editor", "main.cpp")});
    m_day.remove("Mail");
    EXPECT_EQ(shown(*work), "main.cpp");
    EXPECT_EQ(shown(*project({identity(9)})), "");
}

TEST_F(ProjectListEditingTest, membersOfNestedRecords_areShown) {
    const PropertyListDictionary inner{{kProjectSubtree, PropertyListArray{uuid("Editor").bytes()}}};
    m_list.setProjects(
        PropertyListArray{PropertyListDictionary{{kProjectSubtree, PropertyListArray{inner}}}});
    EXPECT_EQ(shown(*m_list.projects()[0]), "Editor");
}

TEST_F(ProjectListEditingTest, aTick_isToldByTheProjectsNodeToo) {
    const auto work = project({uuid("Editor")});
    const auto node = m_nodes.timeStoreCategoryForProjectDict(*work);
    m_day.tracker.updateTimeStoreCategory(*node, work->flattenedMembers());
    Announcements told(*node, {kActiveTimeStringKey});
    m_day.seconds(1);
    EXPECT_EQ(told.count(), 20);
    EXPECT_NEAR(node->activeTime(), 8, 0.01);
}

TEST_F(ProjectListEditingTest, aRecordWithoutAnIdentity_hasAFreshNodeEachTime) {
    const auto work = project({});
    EXPECT_NE(m_nodes.timeStoreCategoryForProjectDict(*work), m_nodes.timeStoreCategoryForProjectDict(*work));
    const ProjectRecord odd(PropertyListDictionary{{kProjectUUID, QByteArray("seven b")}});
    EXPECT_NE(m_nodes.timeStoreCategoryForProjectDict(odd), m_nodes.timeStoreCategoryForProjectDict(odd));
}

TEST_F(ProjectListEditingTest, aRecordWithAnIdentity_hasOneNodeForGood) {
    ProjectRecord work(
        PropertyListDictionary{{kProjectLabel, u"Web"_s}, {kProjectUUID, ProjectSamples::data(5)}});
    const auto node = m_nodes.timeStoreCategoryForProjectDict(work);
    EXPECT_EQ(node->uuid(), identity(5));
    EXPECT_EQ(m_day.registry.uuidForName(u"TimeStoreCategoryWeb"_s), identity(5));
    work.setLabel(u"Net"_s);
    EXPECT_EQ(m_nodes.timeStoreCategoryForProjectDict(work), node);
    EXPECT_EQ(node->name(), u"Web"_s);
}

TEST_F(ProjectListEditingTest, twoRecordsOfOneIdentity_shareTheNode) {
    const ProjectRecord one(
        PropertyListDictionary{{kProjectLabel, u"Web"_s}, {kProjectUUID, ProjectSamples::data(5)}});
    const ProjectRecord two(
        PropertyListDictionary{{kProjectLabel, u"Net"_s}, {kProjectUUID, ProjectSamples::data(5)}});
    EXPECT_EQ(m_nodes.timeStoreCategoryForProjectDict(one), m_nodes.timeStoreCategoryForProjectDict(two));
}

TEST_F(ProjectListEditingTest, aFrozenMemberOfTwoProjects_staysInBothAndTheirExpandedRows) {
    const auto work = project({uuid("Mail"), identity(5)});
    const auto play = project({uuid("Mail")});
    m_list.expandUUID(*work, uuid("Mail"), false);
    const Identity old = uuid("Mail");
    TimeStoreNode& mail = m_day.node("Mail");
    m_day.freeze("Mail");
    const Identity frozen = mail.uuid().value();
    ASSERT_NE(frozen, old);
    EXPECT_EQ(work->members(), (std::vector{identity(5), frozen}));
    EXPECT_EQ(play->members(), std::vector{frozen});
    EXPECT_EQ(*work->expandedUUIDs(), std::vector{frozen});
    EXPECT_EQ(written(0).members(), work->members());
    EXPECT_EQ(written(1).members(), play->members());
    EXPECT_EQ(shown(*play), "Mail");
}

TEST_F(ProjectListEditingTest, aFrozenWindow_keepsItsColour) {
    const auto work = project({uuid("Mail", "Inbox")});
    m_list.setSelectedColorTag(*work, 4);
    TimeStoreNode& inbox = m_day.node("Mail", "Inbox");
    const Identity old = uuid("Mail", "Inbox");
    m_day.freeze("Mail", "Inbox");
    EXPECT_EQ(m_list.reverseProjectCache()->tags(*inbox.uuid()), (ColorTags{4}));
    EXPECT_EQ(m_list.reverseProjectCache()->tags(old), ColorTags());
    EXPECT_EQ(written(0).members(), work->members());
}

TEST_F(ProjectListEditingTest, anApplicationWithManyWindows_isFrozenWithTwoSaves) {
    for (int i = 0; i < 50; ++i)
        m_day.window(qPrintable(QString::number(i))), m_day.seconds(0.2);
    std::vector<Identity> members = {uuid("Editor")};
    const auto* editor = static_cast<TimeStoreApp*>(&m_day.node("Editor"));
    for (const auto& window : editor->windows())
        members.push_back(*window->uuid());
    const auto work = project(members);
    Announcements saves(m_list, {kReverseProjectCacheKey});
    m_day.freeze("Editor");
    EXPECT_EQ(saves.count(), 4);
    EXPECT_EQ(written(0).members(), work->members());
    for (const Identity& member : members)
        EXPECT_EQ(std::ranges::count(work->members(), member), 0);
    EXPECT_EQ(work->members().size(), members.size());
}

TEST_F(ProjectListEditingTest, manyWindowsFrozenOneByOne_areAllWrittenInTheNextTurn) {
    const auto work = project({uuid("Mail", "Inbox"), uuid("Mail", "Drafts"), uuid("Editor", "main.cpp")});
    m_day.tracker.branchUUIDs(work->members());
    m_day.advance(0);
    EXPECT_EQ(written(0).members(), work->members());
    EXPECT_EQ(work->members().size(), 3U);
}

TEST_F(ProjectListEditingTest, aListThatGoesWhileASaveIsOwed_writesItFirst) {
    auto list =
        std::make_unique<ProjectList>(m_day.store, m_day.fakes.defaults, m_day.fakes.folders.documents);
    list->addNewProjectWithItems({identity(1), identity(2)});
    list->projectDupeNode({{identity(1), identity(11)}});
    list->projectDupeNode({{identity(2), identity(12)}});
    list.reset();
    EXPECT_EQ(ProjectSamples::members(written(0)), "11 12");
}

TEST_F(ProjectListEditingTest, freezingAllOfAProject_leavesWhatIsFrozenAlready) {
    m_day.freeze("Mail", "Inbox");
    const auto work = project({uuid("Editor"), uuid("Mail", "Drafts")});
    const std::string before = m_day.tree();
    m_day.tracker.branchUUIDs({});
    EXPECT_EQ(m_day.tree(), before);
    m_day.tracker.branchUUIDs(work->members());
    EXPECT_EQ(shown(*work), "Drafts Editor");
    const auto frozen = work->members();
    m_day.tracker.branchUUIDs(frozen);
    EXPECT_EQ(work->members(), frozen);
    EXPECT_EQ(m_day.node("Editor").activeTime(), 0);
}

TEST_F(ProjectListEditingTest, aWindowThatIsTakenIn_leavesItsTimeToItsProject) {
    const auto work = project({uuid("Mail", "Inbox")});
    m_day.front("Mail", "Drafts");
    m_day.seconds(10);
    m_day.retitle("Inbox");
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Editor 7 [main.cpp 7], Mail 70 [Inbox 70]");
    EXPECT_EQ(shown(*work), "Inbox");
    EXPECT_EQ(written(0).members(), work->members());
    m_list.writeChanges();
    EXPECT_EQ(work->members(), std::vector{uuid("Mail", "Inbox")});
    EXPECT_EQ(written(0).members(), work->members());
}

TEST_F(ProjectListEditingTest, aKillBeforeTheTimersAreWritten_leavesTheProjectTheOneThatWasTakenIn) {
    const Identity inbox = uuid("Mail", "Inbox");
    const auto before = m_day.tracker.arrayRepresentation();
    project({inbox});
    m_day.front("Mail", "Drafts");
    m_day.seconds(10);
    m_day.retitle("Inbox");
    m_day.seconds(10);
    // The timers as last written, with the present projects.
    Day next;
    next.tracker.setArrayRepresentation(before);
    const auto found = next.tracker.timeChildrenForChildUUIDs({inbox}, false);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(std::ranges::count(written(0).members(), inbox), 1);
}

TEST_F(ProjectListEditingTest, aWindowOfAnotherApplicationThatSharesTheIdentity_staysInTheProject) {
    m_day.front("News", "Inbox");
    m_day.seconds(3);
    ASSERT_EQ(uuid("News", "Inbox"), uuid("Mail", "Inbox"));
    const auto work = project({uuid("Mail", "Inbox")});
    m_day.front("Mail", "Drafts");
    m_day.seconds(1);
    m_day.retitle("Inbox");
    m_day.seconds(1);
    m_list.writeChanges();
    EXPECT_EQ(shown(*work), "Inbox Inbox");
}

TEST_F(ProjectListEditingTest, aFrozenWindowThatSharesItsIdentity_leavesTheOtherInTheProject) {
    m_day.front("News", "Inbox");
    m_day.seconds(3);
    const auto work = project({uuid("Mail", "Inbox")});
    ASSERT_EQ(shown(*work), "Inbox Inbox");
    m_day.freeze("Mail", "Inbox");
    m_list.writeChanges();
    EXPECT_EQ(shown(*work), "Inbox Inbox");
    EXPECT_NE(uuid("News", "Inbox"), *work->flattenedMembers().rbegin());
}

TEST_F(ProjectListEditingTest, allOfAProjectFrozen_keepsTheTimersThatSharedAnIdentity) {
    m_day.front("News", "Inbox");
    m_day.seconds(3);
    const auto work = project({uuid("Mail", "Inbox")});
    m_day.tracker.branchUUIDs(work->flattenedMembers());
    m_list.writeChanges();
    EXPECT_EQ(shown(*work), "Inbox Inbox");
    EXPECT_EQ(work->flattenedMembers().size(), 2U);
}

TEST_F(ProjectListEditingTest, aTimerAddedAfterASave_comesBackToItsProjectAfterClearing) {
    const auto work = project({uuid("Editor")});
    m_list.addMembers(*work, {uuid("Mail", "Inbox"), uuid("Mail")});
    m_day.stop();
    m_day.tracker.reset();
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    EXPECT_EQ(shown(*work), "Editor Mail");
    m_list.removeMembers(*work, {uuid("Mail")});
    EXPECT_EQ(shown(*work), "Editor Inbox");
}

TEST_F(ProjectListEditingTest, theRegistry_knowsEveryMemberAsSoonAsItIsAdded) {
    const auto work = project({});
    ASSERT_EQ(m_day.registry.count(), 0);
    m_list.addMembers(*work, {uuid("Mail", "Inbox"), uuid("Editor")});
    EXPECT_EQ(m_day.registry.knownUUID(u"TimeStoreWindowInbox"_s), uuid("Mail", "Inbox"));
    EXPECT_EQ(m_day.registry.knownUUID(u"TimeStoreAppEditor"_s), uuid("Editor"));
    EXPECT_EQ(m_day.registry.count(), 2);
}

TEST_F(ProjectListEditingTest, windowsOfOneTitleInTwoProjects_comeBackEachToItsOwn) {
    m_day.front("Editor", "Inbox");
    m_day.seconds(1);
    m_day.node("Editor", "Inbox").setUuid(Identity::brandNew());
    const auto letters = project({uuid("Mail", "Inbox")});
    const auto code = project({uuid("Editor", "Inbox")});
    m_day.tracker.reset();
    m_day.seconds(1);
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    EXPECT_EQ(letters->members(), std::vector{uuid("Mail", "Inbox")});
    EXPECT_EQ(code->members(), std::vector{uuid("Editor", "Inbox")});
}

TEST_F(ProjectListEditingTest, undoingADeletionAfterClearing_bringsTheNamesOfItsTimersBack) {
    const auto work = project({uuid("Mail", "Inbox"), uuid("Mail", "Drafts")});
    m_day.stop();
    m_day.tracker.reset();
    const auto before = m_list.snapshot();
    m_list.deleteProject(*work);
    ASSERT_EQ(m_day.registry.count(), 0);
    m_day.start();
    // The timer comes back before the project does, with another identity.
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    m_list.restore(before);
    m_day.front("Mail", "Drafts");
    m_day.seconds(1);
    EXPECT_EQ(shown(*work), "Drafts Inbox");
}

TEST_F(ProjectListEditingTest, undoingARemoval_bringsTheNameOfTheTimerBack) {
    const auto work = project({uuid("Mail"), uuid("Editor")});
    const auto before = m_list.snapshot();
    m_list.removeMembers(*work, {uuid("Mail")});
    m_list.saveData();
    m_list.restore(before);
    EXPECT_EQ(m_day.registry.knownUUID(u"TimeStoreAppMail"_s), uuid("Mail"));
}

TEST_F(ProjectListEditingTest, undoingPastATakingIn_keepsTheTimerThatTookItIn) {
    const auto work = project({uuid("Mail", "Inbox")});
    const auto before = m_list.snapshot();
    m_list.deleteProject(*work);
    m_day.front("Mail", "Drafts");
    m_day.seconds(1);
    m_day.retitle("Inbox");
    m_day.seconds(1);
    m_list.restore(before);
    EXPECT_EQ(shown(*work), "Inbox");
}

TEST_F(ProjectListEditingTest, theWrongObject_isNoFreezing) {
    const auto work = project({identity(1)});
    m_day.fakes.notifications.post(kTicklogBranchNodeNotification);
    m_day.fakes.notifications.post(kTicklogBranchNodeNotification, u"odd"_s);
    m_list.projectDupeNode({});
    EXPECT_EQ(ProjectSamples::members(*work), "1");
}

TEST_F(ProjectListEditingTest, undoingADeletion_bringsTheSameProjectBackToItsPlace) {
    setProjects({"A", "B", "C"});
    m_list.setSelectedColorTag(*m_list.projects()[1], 3);
    const auto deleted = m_list.projects()[1];
    const auto before = m_list.snapshot();
    m_list.deleteProject(*deleted);
    const auto after = m_list.snapshot();
    m_list.restore(before);
    EXPECT_EQ(order(), "ABC");
    EXPECT_EQ(m_list.projects()[1], deleted);
    EXPECT_EQ(written(1).label(), u"B"_s);
    EXPECT_EQ(m_list.reverseProjectCache()->tags(identity(2)), (ColorTags{3}));
    m_list.restore(after);
    EXPECT_EQ(order(), "AC");
    EXPECT_EQ(m_list.reverseProjectCache()->tags(identity(2)), ColorTags());
}

TEST_F(ProjectListEditingTest, everyEdit_canBeUndoneAndRedone) {
    const std::vector<std::function<void()>> edits = {
        [&] { m_list.addNewProjectWithItems(identities({9}), 1); },
        [&] { m_list.removeProject(0); },
        [&] { m_list.setLabel(*m_list.projects()[0], u"Z"_s); },
        [&] { m_list.setSelectedColorTag(*m_list.projects()[2], 6); },
        [&] { m_list.addMembers(*m_list.projects()[0], identities({8})); },
        [&] { m_list.removeMembers(*m_list.projects()[0], {identity(1)}); },
        [&] { m_list.moveProject(0, 2); },
        [&] { m_list.copyProject(0, 2); },
        [&] { setProjects({"X"}); },
    };
    setProjects({"A", "B", "C"});
    for (std::size_t i = 0; i < edits.size(); ++i) {
        const PropertyListArray original = m_list.arrayRepresentation();
        const auto before = m_list.snapshot();
        edits[i]();
        const PropertyListArray edited = m_list.arrayRepresentation();
        const auto after = m_list.snapshot();
        EXPECT_NE(edited, original) << i;
        m_list.restore(before);
        EXPECT_EQ(m_list.arrayRepresentation(), original) << i;
        m_list.restore(after);
        EXPECT_EQ(m_list.arrayRepresentation(), edited) << i;
        m_list.restore(before);
    }
    EXPECT_EQ(order(), "ABC");
}

TEST_F(ProjectListEditingTest, undoing_leavesRowsExpandedAsTheyAre) {
    setProjects({"A", "B"});
    const auto a = m_list.projects()[0];
    m_list.expandUUID(*a, identity(1), false);
    const auto before = m_list.snapshot();
    m_list.setLabel(*a, u"Z"_s);
    m_list.collapseUUID(*a, identity(1), false);
    m_list.restore(before);
    EXPECT_EQ(a->label(), u"A"_s);
    EXPECT_TRUE(a->expandedUUIDs()->empty());
}

TEST_F(ProjectListEditingTest, undoingADeletion_bringsItsExpandedRowsBack) {
    setProjects({"A"});
    const auto a = m_list.projects()[0];
    m_list.expandUUID(*a, identity(1), false);
    const auto before = m_list.snapshot();
    m_list.deleteProject(*a);
    m_list.restore(before);
    EXPECT_EQ(ProjectSamples::numbers(*a->expandedUUIDs()), "1");
}

TEST_F(ProjectListEditingTest, undoingPastAFreeze_keepsPointingAtTheFrozenTimer) {
    const auto work = project({uuid("Mail"), uuid("Editor")});
    const auto before = m_list.snapshot();
    TimeStoreNode& mail = m_day.node("Mail");
    m_list.setLabel(*work, u"Job"_s);
    m_day.freeze("Mail");
    m_list.deleteProject(*work);
    m_list.restore(before);
    EXPECT_EQ(work->label(), u"New Project"_s);
    EXPECT_EQ(work->members(), (std::vector{uuid("Editor"), *mail.uuid()}));
}

TEST_F(ProjectListEditingTest, aRestoredList_isAnnouncedAsOneReplacement) {
    const auto before = m_list.snapshot();
    project({});
    int replacements = 0;
    const auto watching = m_list.observeChanges([&](const ProjectListChange& change) {
        replacements += change.kind == ProjectListChange::Kind::Replace;
    });
    m_list.restore(before);
    EXPECT_EQ(replacements, 2);
    EXPECT_EQ(m_list.count(), 0U);
}

TEST_F(ProjectListEditingTest, aDatabaseWrittenElsewhere_carriesTheProjectsToTheNextUser) {
    TimeDatabase database(m_day.tracker, m_day.store, m_day.fakes.defaults, m_day.fakes.folders,
                          {.projects = [&] { return m_list.arrayRepresentation(); },
                           .setProjects = [&](const PropertyListValue& value) { m_list.setProjects(value); },
                           .computeTime = {},
                           .timersReplaced = {}});
    const auto work = project({uuid("Mail"), uuid("Editor")});
    m_list.setLabel(*work, u"Job"_s);
    const QString elsewhere = m_day.fakes.home.filePath(u"export.tkd"_s);
    ASSERT_TRUE(database.saveSettingsToDiskAtURL(elsewhere));
    m_list.removeProject(0);
    m_day.stop();
    ASSERT_TRUE(database.importDatabase(elsewhere));
    ASSERT_EQ(m_list.count(), 1U);
    EXPECT_EQ(m_list.projects()[0]->label(), u"Job"_s);
    EXPECT_EQ(shown(*m_list.projects()[0]), "Mail Editor");
}

} // namespace
