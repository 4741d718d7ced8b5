// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectList.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/Projects.h"
#include "tests/fakes/Store.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

using ProjectSamples::identities;
using ProjectSamples::identity;
using ProjectSamples::list;
using ProjectSamples::numbers;
using ProjectSamples::record;

// Two projects: "Work" with the timers 1 and 2, "Play" with 3.
class ProjectListTest : public StoreTest {
protected:
    ProjectListTest() {
        m_list.setProjects(
            PropertyListArray{record("Work", {1, 2}).entries(), record("Play", {3}).entries()});
        m_watching = m_list.observeChanges([this](const ProjectListChange& change) {
            static const QStringList kKinds = {u"insert"_s, u"remove"_s, u"replace"_s,
                                               u"label"_s,  u"color"_s,  u"members"_s};
            m_told << (change.phase == ChangePhase::Will ? u"will "_s : u"did "_s) +
                          kKinds[int(change.kind)] +
                          (change.position ? u' ' + QString::number(*change.position) : QString());
        });
    }

    // "Work 1 2; Play 3"
    static std::string text(const PropertyListArray& records) {
        QStringList projects;
        for (const PropertyListValue& value : records) {
            const ProjectRecord project(*value.asDictionary());
            projects << project.label() + u' ' + QString::fromStdString(ProjectSamples::members(project));
        }
        return str(projects.join(u"; "_s));
    }

    std::string text() const { return text(m_list.arrayRepresentation()); }

    // What the next launch would read.
    std::string written() { return text(ProjectFile(fakes.folders.documents, fakes.log, trouble).read()); }

    std::string told() {
        const QString told = m_told.join(u", "_s);
        m_told.clear();
        return str(told);
    }

    const ProjectRecord& project(std::size_t position) const { return *m_list.projects().at(position); }

    // "1:2,5 3:5" for the first timers.
    std::string colours() const {
        QStringList timers;
        for (unsigned i = 1; i < 20; ++i) {
            QStringList tags;
            for (const int tag : m_list.reverseProjectCache()->tags(identity(i)))
                tags << QString::number(tag);
            if (!tags.isEmpty())
                timers << QStringLiteral("%1:%2").arg(i).arg(tags.join(u','));
        }
        return str(timers.join(u' '));
    }

    std::string topLevelExpanded() const {
        return numbers(ProjectRecord({{kProjectExpandedUUIDs, fakes.defaults.object(kTopLevelExpandedUUIDs)}})
                           .expandedUUIDs()
                           .value_or(std::vector<Identity>()));
    }

    ProjectList m_list{store, fakes.defaults, fakes.folders.documents};
    QStringList m_told;
    Subscription m_watching;
};

TEST_F(ProjectListTest, theFirstLaunch_hasAllTimersAlone) {
    FakePlatform fresh;
    TimeStoreServices services{registry, fresh.notifications, fresh.runLoop, fresh.log, trouble};
    const ProjectList empty(services, fresh.defaults, fresh.folders.documents);
    EXPECT_EQ(empty.count(), 0U);
    EXPECT_EQ(empty.mainItem()->label(), u"All Timers"_s);
    EXPECT_TRUE(empty.mainItem()->members().empty());
    EXPECT_FALSE(empty.mainItem()->expandedUUIDs());
    EXPECT_EQ(empty.projectForRow(0), empty.mainItem());
    EXPECT_EQ(empty.projectForRow(1), empty.mainItem());
    EXPECT_TRUE(empty.arrayRepresentation().empty());
}

TEST_F(ProjectListTest, aLaterLaunch_readsWhatWasSaved) {
    m_list.setSelectedColorTag(project(0), 4);
    ProjectList later(store, fakes.defaults, fakes.folders.documents);
    EXPECT_EQ(text(later.arrayRepresentation()), "Work 1 2; Play 3");
    EXPECT_EQ(later.reverseProjectCache()->tags(identity(2)), (ColorTags{4}));
}

TEST_F(ProjectListTest, rows_countTheMainItemFirst) {
    EXPECT_EQ(m_list.projectForRow(0), m_list.mainItem());
    EXPECT_EQ(m_list.projectForRow(1)->label(), u"Work"_s);
    EXPECT_EQ(m_list.projectForRow(2)->label(), u"Play"_s);
    EXPECT_EQ(m_list.projectForRow(3), m_list.mainItem());
    EXPECT_EQ(m_list.projectForRow(-1), m_list.mainItem());
    EXPECT_EQ(m_list.positionOf(project(1)), 1U);
    EXPECT_FALSE(m_list.positionOf(*m_list.mainItem()));
}

TEST_F(ProjectListTest, aDraggedRow_standsForItsTimers) {
    EXPECT_FALSE(m_list.uuidsForProjectIndex(0));
    EXPECT_EQ(numbers(*m_list.uuidsForProjectIndex(1)), "1 2");
    EXPECT_EQ(numbers(*m_list.uuidsForProjectIndex(2)), "3");
    EXPECT_EQ(numbers(*m_list.uuidsForProjectIndex(3)), "");
    EXPECT_EQ(numbers(*m_list.uuidsForProjectIndex(ProjectList::kAtEnd)), "");
}

TEST_F(ProjectListTest, theListHandedOut_isACopyOfTheListButNotOfTheRecords) {
    auto projects = m_list.projects();
    projects.pop_back();
    EXPECT_EQ(m_list.count(), 2U);
    m_list.setLabel(*projects[0], u"Job"_s);
    EXPECT_EQ(projects[0]->label(), u"Job"_s);
}

TEST_F(ProjectListTest, aNewProject_isNamedAndWritten) {
    const auto made = m_list.addNewProjectWithItems({});
    EXPECT_EQ(made->label(), u"New Project"_s);
    EXPECT_EQ(text(), "Work 1 2; Play 3; New Project ");
    EXPECT_EQ(written(), text());
    EXPECT_EQ(told(), "will insert 2, did insert 2");
    EXPECT_FALSE(made->uuid());
}

TEST_F(ProjectListTest, aNewProject_takesEachTimerOnceAndItsPosition) {
    m_list.addNewProjectWithItems(identities({7, 8, 7}), 1);
    EXPECT_EQ(text(), "Work 1 2; New Project 7 8; Play 3");
    m_list.addNewProjectWithItems(identities({9}), 4);
    EXPECT_EQ(text(), "Work 1 2; New Project 7 8; Play 3; New Project 9");
    EXPECT_EQ(written(), text());
}

TEST_F(ProjectListTest, removing_savesAndTakesTheColoursWithIt) {
    m_list.setSelectedColorTag(project(0), 2);
    EXPECT_EQ(colours(), "1:2 2:2");
    told();
    m_list.removeProject(0);
    EXPECT_EQ(text(), "Play 3");
    EXPECT_EQ(written(), text());
    EXPECT_EQ(told(), "will remove 0, did remove 0");
    EXPECT_EQ(colours(), "");
}

TEST_F(ProjectListTest, removingWhatIsNotThere_changesNothing) {
    m_list.removeProject(2);
    EXPECT_EQ(text(), "Work 1 2; Play 3");
    EXPECT_EQ(told(), "");
}

TEST_F(ProjectListTest, deletingAfterConfirmation_leavesTheColoursUntilTheyAreNextBuilt) {
    m_list.setSelectedColorTag(project(0), 2);
    m_list.deleteProject(project(0));
    EXPECT_EQ(text(), "Play 3");
    EXPECT_EQ(written(), text());
    EXPECT_EQ(colours(), "1:2 2:2");
    m_list.reloadReverseProjectCache();
    EXPECT_EQ(colours(), "");
}

TEST_F(ProjectListTest, deleting_isByTheRecordItselfAndNotByWhatItHolds) {
    const auto twin = m_list.addNewProjectWithItems(identities({1, 2}));
    m_list.setLabel(*twin, u"Work"_s);
    m_list.deleteProject(*twin);
    EXPECT_EQ(text(), "Work 1 2; Play 3");
    EXPECT_EQ(m_list.positionOf(*twin), std::nullopt);
    told();
    m_list.deleteProject(*twin);
    m_list.deleteProject(*m_list.mainItem());
    EXPECT_EQ(told(), "");
}

TEST_F(ProjectListTest, aRecordThatHasGone_isChangedNoMore) {
    const auto work = m_list.projects()[0];
    m_list.removeProject(0);
    told();
    m_list.setLabel(*work, u"Job"_s);
    m_list.setSelectedColorTag(*work, 3);
    m_list.addMembers(*work, identities({9}));
    m_list.removeMembers(*work, {identity(1)});
    m_list.expandUUID(*work, identity(1), false);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(*work->entries().begin(), *record("Work", {1, 2}).entries().begin());
    EXPECT_EQ(work->label(), u"Work"_s);
    EXPECT_EQ(work->colorTag(), 0);
}

TEST_F(ProjectListTest, aLabel_isWrittenAtOnce) {
    m_list.setLabel(project(1), u"Fun"_s);
    EXPECT_EQ(written(), "Work 1 2; Fun 3");
    EXPECT_EQ(told(), "did label 1");
}

TEST_F(ProjectListTest, allTimers_keepTheirNameAndStayWithoutMembers) {
    m_list.setLabel(*m_list.mainItem(), u"Mine"_s);
    m_list.addMembers(*m_list.mainItem(), identities({1}));
    m_list.removeMembers(*m_list.mainItem(), {identity(1)});
    EXPECT_EQ(m_list.mainItem()->label(), u"All Timers"_s);
    EXPECT_TRUE(m_list.mainItem()->members().empty());
    EXPECT_EQ(told(), "");
}

TEST_F(ProjectListTest, aColour_isWrittenAndShownOnTheTimers) {
    Announcements cache(m_list, {kReverseProjectCacheKey});
    m_list.setSelectedColorTag(project(0), 5);
    m_list.setSelectedColorTag(project(1), 2);
    EXPECT_EQ(colours(), "1:5 2:5 3:2");
    EXPECT_EQ(told(), "did color 0, did color 1");
    EXPECT_EQ(cache.count(), 4);
    m_list.setSelectedColorTag(project(0), 0);
    EXPECT_EQ(colours(), "3:2");
}

TEST_F(ProjectListTest, aColourOfAllTimers_isNeverWritten) {
    m_list.setSelectedColorTag(*m_list.mainItem(), 5);
    EXPECT_EQ(m_list.mainItem()->colorTag(), 5);
    EXPECT_EQ(told(), "did color");
    EXPECT_EQ(colours(), "");
    const ProjectList later(store, fakes.defaults, fakes.folders.documents);
    EXPECT_EQ(later.mainItem()->colorTag(), 0);
}

TEST_F(ProjectListTest, theColoursHandedOut_neverChange) {
    m_list.setSelectedColorTag(project(0), 5);
    const auto drawing = m_list.reverseProjectCache();
    m_list.setSelectedColorTag(project(0), 1);
    EXPECT_EQ(drawing->tags(identity(1)), (ColorTags{5}));
    EXPECT_EQ(colours(), "1:1 2:1");
}

TEST_F(ProjectListTest, membersAddedTwice_areThereOnce) {
    m_list.setSelectedColorTag(project(1), 6);
    m_list.addMembers(project(1), identities({1, 3, 4}));
    m_list.addMembers(project(1), identities({1, 3, 4}));
    EXPECT_EQ(written(), "Work 1 2; Play 3 1 4");
    EXPECT_EQ(colours(), "1:6 3:6 4:6");
    EXPECT_EQ(told(), "did color 1, did members 1");
}

TEST_F(ProjectListTest, membersRemoved_goFromTheFileWithTheNextSave) {
    m_list.setSelectedColorTag(project(0), 6);
    told();
    m_list.removeMembers(project(0), {identity(1), identity(3)});
    EXPECT_EQ(text(), "Work 2; Play 3");
    EXPECT_EQ(written(), "Work 1 2; Play 3");
    EXPECT_EQ(colours(), "2:6");
    EXPECT_EQ(told(), "did members 0");
    m_list.saveData();
    EXPECT_EQ(written(), text());
}

TEST_F(ProjectListTest, expandedRows_areKeptUnlessASearchOpensThem) {
    const ProjectRecord& work = project(0);
    m_list.expandUUID(work, identity(1), true);
    EXPECT_FALSE(work.expandedUUIDs());
    m_list.expandUUID(work, identity(1), false);
    m_list.expandUUID(work, identity(2), false);
    m_list.expandUUID(work, identity(1), false);
    m_list.collapseUUID(work, identity(1), true);
    EXPECT_EQ(numbers(*work.expandedUUIDs()), "1 2 1");
    m_list.collapseUUID(work, identity(1), false);
    EXPECT_EQ(numbers(*work.expandedUUIDs()), "2");
    EXPECT_FALSE(fakes.defaults.object(kTopLevelExpandedUUIDs).asArray());
    EXPECT_EQ(told(), "");
}

TEST_F(ProjectListTest, rowsExpandedAmongAllTimers_areASettingUntilTheNextSaveDropsThem) {
    m_list.expandUUID(*m_list.mainItem(), identity(1), false);
    m_list.expandUUID(*m_list.mainItem(), identity(77), false);
    EXPECT_EQ(topLevelExpanded(), "1 77");
    m_list.saveData();
    EXPECT_EQ(topLevelExpanded(), "1");
    m_list.collapseUUID(*m_list.mainItem(), identity(1), false);
    EXPECT_EQ(topLevelExpanded(), "");
    EXPECT_TRUE(fakes.defaults.object(kTopLevelExpandedUUIDs).asArray());
}

TEST_F(ProjectListTest, rowsExpandedAmongAllTimers_areThereAtTheNextLaunch) {
    m_list.expandUUID(*m_list.mainItem(), identity(77), false);
    const ProjectList later(store, fakes.defaults, fakes.folders.documents);
    EXPECT_EQ(numbers(*later.mainItem()->expandedUUIDs()), "77");
}

TEST_F(ProjectListTest, aSettingOfTheWrongType_countsAsNoneExpanded) {
    fakes.defaults.setObject(kTopLevelExpandedUUIDs, u"all of them"_s);
    ProjectList later(store, fakes.defaults, fakes.folders.documents);
    EXPECT_FALSE(later.mainItem()->expandedUUIDs());
    later.saveData();
    later.expandUUID(*later.mainItem(), identity(1), false);
    EXPECT_EQ(topLevelExpanded(), "1");
}

TEST_F(ProjectListTest, saving_forgetsExpandedRowsOfTimersThatAreNoMembers) {
    const ProjectRecord& work = project(0);
    m_list.expandUUID(work, identity(1), false);
    m_list.expandUUID(work, identity(3), false);
    m_list.expandUUID(work, identity(1), false);
    m_list.saveData();
    EXPECT_EQ(numbers(*work.expandedUUIDs()), "1 1");
}

TEST_F(ProjectListTest, saving_writesTheRowsBeforeItForgetsThem) {
    m_list.expandUUID(project(0), identity(3), false);
    m_list.saveData();
    const PropertyListArray file = ProjectFile(fakes.folders.documents, fakes.log, trouble).read();
    EXPECT_EQ(numbers(*ProjectRecord(*file[0].asDictionary()).expandedUUIDs()), "3");
}

TEST_F(ProjectListTest, saving_hasTheRegistryForgetWhatNoProjectRefersTo) {
    registry.setUUID(identity(1), u"TimeStoreAppMail"_s);
    registry.setUUID(identity(9), u"TimeStoreAppEditor"_s);
    registry.setUUID(identity(12), u"TimeStoreAppNested"_s);
    registry.setUUID(identity(10), u"TimeStoreAppOther"_s);
    const PropertyListDictionary outer{
        {kProjectSubtree, PropertyListArray{PropertyListDictionary{{kProjectSubtree, list({12})}}}}};
    m_list.setProjects(PropertyListArray{record("Work", {1, 5}).entries(), outer});
    EXPECT_EQ(registry.count(), 2);
    EXPECT_EQ(registry.uuidForName(u"TimeStoreAppMail"_s), identity(1));
    EXPECT_EQ(registry.uuidForName(u"TimeStoreAppNested"_s), identity(12));
}

TEST_F(ProjectListTest, projectsFromAnotherDatabase_replaceAllAndAreSaved) {
    m_list.setProjects(PropertyListArray{u"odd"_s, PropertyListDictionary{{kProjectLabel, u"Home"_s},
                                                                          {kProjectSubtree, list({4})},
                                                                          {kProjectColorTag, 1}}});
    EXPECT_EQ(text(), "Home 4");
    EXPECT_EQ(written(), "Home 4");
    EXPECT_EQ(told(), "will replace, did replace");
    EXPECT_EQ(colours(), "4:1");
    EXPECT_TRUE(fakes.log.mentions(u"count for nothing"_s));
}

TEST_F(ProjectListTest, projectsThatAreNoList_changeNothing) {
    m_list.setProjects(PropertyListValue(u"odd"_s));
    m_list.setProjects(PropertyListValue());
    EXPECT_EQ(text(), "Work 1 2; Play 3");
    EXPECT_EQ(told(), "");
}

TEST_F(ProjectListTest, projectsSetFromItsOwn_stayTheSameObjects) {
    auto projects = m_list.projects();
    std::swap(projects[0], projects[1]);
    projects.push_back(std::make_shared<const ProjectRecord>(record("Guest", {5})));
    m_list.setProjects(projects);
    EXPECT_EQ(text(), "Play 3; Work 1 2; Guest 5");
    EXPECT_EQ(m_list.projects()[0], projects[0]);
    EXPECT_NE(m_list.projects()[2], projects[2]);
    EXPECT_EQ(written(), text());
}

TEST_F(ProjectListTest, oddEntries_areToldOnceAndKept) {
    m_list.setProjects(PropertyListArray{PropertyListDictionary{
        {kProjectSubtree, PropertyListArray{QByteArray("short"), 7, ProjectSamples::data(1)}},
        {u"Icon"_s, 5}}});
    EXPECT_EQ(text(), " 1");
    EXPECT_TRUE(fakes.log.mentions(u"2 entries"_s));
    ProjectList later(store, fakes.defaults, fakes.folders.documents);
    EXPECT_EQ(later.arrayRepresentation(), m_list.arrayRepresentation());
}

TEST_F(ProjectListTest, aFileThatCannotBeRead_isKeptWhenTheNextProjectIsMade) {
    const QString path = *m_list.file().urlForTKProjects();
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("damaged");
    file.close();
    ProjectList later(store, fakes.defaults, fakes.folders.documents);
    EXPECT_EQ(later.count(), 0U);
    later.addNewProjectWithItems({});
    EXPECT_EQ(written(), "New Project ");
    EXPECT_TRUE(fakes.log.mentions(u"set aside"_s));
}

TEST_F(ProjectListTest, observers_mayEditTheListWhileTheyAreTold) {
    bool isFirst = true;
    const auto meddling = m_list.observeChanges([&](const ProjectListChange& change) {
        if (change.phase == ChangePhase::Will && std::exchange(isFirst, false))
            m_list.removeProject(0);
    });
    m_list.removeProject(0);
    EXPECT_EQ(text(), "Play 3");
    isFirst = true;
    m_list.addNewProjectWithItems({}, 1);
    EXPECT_EQ(text(), "New Project ");
    EXPECT_EQ(written(), text());
}

TEST_F(ProjectListTest, observers_mayOutliveTheList) {
    auto list = std::make_unique<ProjectList>(store, fakes.defaults, fakes.folders.documents);
    const auto late = list->observeChanges([](const ProjectListChange&) {});
    list.reset();
}

TEST_F(ProjectListTest, aRemovedMember_isWrittenWithTheTimersAtTheLatest) {
    m_list.removeMembers(project(0), {identity(1)});
    EXPECT_EQ(written(), "Work 1 2; Play 3");
    m_list.writeChanges();
    EXPECT_EQ(written(), "Work 2; Play 3");
}

TEST_F(ProjectListTest, writingChanges_tidiesNothingUp) {
    m_list.expandUUID(*m_list.mainItem(), identity(9), false);
    m_list.expandUUID(project(0), identity(9), false);
    m_list.writeChanges();
    EXPECT_EQ(m_list.mainItem()->expandedUUIDs()->size(), 1U) << "though it is in no project";
    EXPECT_EQ(project(0).expandedUUIDs()->size(), 1U) << "though it is no member";
}

TEST_F(ProjectListTest, whenNothingChanged_nothingIsWritten) {
    QFile::remove(*m_list.file().urlForTKProjects());
    m_list.writeChanges();
    EXPECT_FALSE(QFile::exists(*m_list.file().urlForTKProjects()));
}

} // namespace
