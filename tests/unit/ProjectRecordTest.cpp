// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectRecord.h"
#include "Classes/projects/ReverseProjectCache.h"
#include "tests/fakes/Projects.h"

using namespace Qt::StringLiterals;

namespace {

using ProjectSamples::data;
using ProjectSamples::identities;
using ProjectSamples::identity;
using ProjectSamples::members;
using ProjectSamples::record;

PropertyListValue nested(PropertyListArray subtree) {
    return PropertyListDictionary{{kProjectSubtree, std::move(subtree)}};
}

TEST(ProjectRecord, anEmptyRecord_answersNothing) {
    const ProjectRecord empty;
    EXPECT_EQ(empty.label(), QString());
    EXPECT_EQ(empty.colorTag(), 0);
    EXPECT_FALSE(empty.uuid());
    EXPECT_TRUE(empty.members().empty());
    EXPECT_TRUE(empty.flattenedMembers().empty());
    EXPECT_FALSE(empty.expandedUUIDs());
    EXPECT_EQ(empty.damagedElements(), 0);
}

TEST(ProjectRecord, valuesOfTheWrongType_countAsAbsent) {
    const std::vector<PropertyListValue> wrong = {5,
                                                  5.5,
                                                  true,
                                                  u"text"_s,
                                                  QByteArray("12345678"),
                                                  Date(),
                                                  PropertyListArray{1},
                                                  PropertyListDictionary{}};
    for (const PropertyListValue& value : wrong) {
        const ProjectRecord odd(PropertyListDictionary{{kProjectLabel, value},
                                                       {kProjectSubtree, value},
                                                       {kProjectExpandedUUIDs, value},
                                                       {kProjectColorTag, value},
                                                       {kProjectUUID, value}});
        EXPECT_EQ(odd.label(), value.toString());
        EXPECT_EQ(odd.colorTag(), int(value.toInteger()));
        EXPECT_EQ(odd.uuid().has_value(), value.asData() != nullptr);
        EXPECT_TRUE(odd.members().empty());
        EXPECT_TRUE(odd.flattenedMembers().empty());
        EXPECT_EQ(odd.expandedUUIDs().has_value(), value.asArray() != nullptr);
    }
}

TEST(ProjectRecord, valuesOfTheWrongType_giveWayToTheFirstChange) {
    ProjectRecord odd(PropertyListDictionary{{kProjectLabel, 1},
                                             {kProjectSubtree, u"x"_s},
                                             {kProjectExpandedUUIDs, 2},
                                             {kProjectColorTag, u"red"_s}});
    odd.setLabel(u"Work"_s);
    odd.setColorTag(3);
    odd.expand(identity(1));
    EXPECT_TRUE(odd.addMembers({identity(2)}));
    EXPECT_EQ(odd.label(), u"Work"_s);
    EXPECT_EQ(odd.colorTag(), 3);
    EXPECT_EQ(members(odd), "2");
    EXPECT_EQ(ProjectSamples::numbers(*odd.expandedUUIDs()), "1");
}

TEST(ProjectRecord, aColourBeyondAllNumbers_staysWithinThem) {
    EXPECT_EQ(ProjectRecord({{kProjectColorTag, std::int64_t(1) << 40}}).colorTag(),
              std::numeric_limits<int>::max());
    EXPECT_EQ(ProjectRecord({{kProjectColorTag, -1e300}}).colorTag(), std::numeric_limits<int>::min());
    EXPECT_EQ(ProjectRecord({{kProjectColorTag, std::nan("")}}).colorTag(), 0);
}

TEST(ProjectRecord, unknownEntries_areKeptInTheirPlace) {
    ProjectRecord foreign(
        PropertyListDictionary{{u"Icon"_s, 7}, {kProjectLabel, u"Work"_s}, {u"Zoom"_s, 1.5}});
    foreign.setLabel(u"Play"_s);
    foreign.addMembers({identity(1)});
    const PropertyListDictionary expected{{u"Icon"_s, 7},
                                          {kProjectLabel, u"Play"_s},
                                          {u"Zoom"_s, 1.5},
                                          {kProjectSubtree, PropertyListArray{data(1)}}};
    EXPECT_EQ(foreign.entries(), expected);
    EXPECT_EQ(foreign.entries().begin()->first, u"Icon"_s);
}

TEST(ProjectRecord, membersAddedTwice_standThereOnce) {
    ProjectRecord work = record("Work", {1, 2});
    EXPECT_TRUE(work.addMembers(identities({2, 3, 3, 1})));
    EXPECT_EQ(members(work), "1 2 3");
    EXPECT_FALSE(work.addMembers(identities({3, 2, 1})));
    EXPECT_FALSE(work.addMembers({}));
    EXPECT_EQ(members(work), "1 2 3");
}

TEST(ProjectRecord, membersRemoved_areGoneWhereverTheyStand) {
    ProjectRecord work = record("Work", {1, 2, 1, 3});
    EXPECT_TRUE(work.removeMembers({identity(1), identity(9)}));
    EXPECT_EQ(members(work), "2 3");
    EXPECT_FALSE(work.removeMembers({identity(1)}));
    EXPECT_EQ(members(work), "2 3");
}

TEST(ProjectRecord, elementsThatAreNoIdentities_countForNothingAndAreKept) {
    ProjectRecord work(PropertyListDictionary{
        {kProjectSubtree,
         PropertyListArray{QByteArray(), QByteArray("1234567"), data(1), QByteArray("123456789"), u"text"_s,
                           7, PropertyListArray{data(5)}}}});
    EXPECT_EQ(members(work), "1");
    EXPECT_EQ(work.damagedElements(), 6);
    work.removeMembers({identity(1)});
    EXPECT_EQ(work.entries().value(kProjectSubtree).asArray()->size(), 6U);
}

TEST(ProjectRecord, nestedRecords_areReadAsTheirMembers) {
    const ProjectRecord work(PropertyListDictionary{
        {kProjectSubtree, PropertyListArray{data(1), nested({data(2), nested({data(3), data(1)})}),
                                            PropertyListDictionary(), data(4)}}});
    EXPECT_EQ(members(work), "1 4");
    EXPECT_EQ(ProjectSamples::numbers(work.flattenedMembers()), "1 2 3 4");
    std::unordered_set<Identity> set = {identity(7)};
    ProjectRecord::addObjectsToSet(set, work.entries().value(kProjectSubtree));
    EXPECT_EQ(set.size(), 5U);
    EXPECT_EQ(work.damagedElements(), 0);
}

TEST(ProjectRecord, nestedRecords_surviveEveryChangeOfTheMembers) {
    ProjectRecord work(
        PropertyListDictionary{{kProjectSubtree, PropertyListArray{data(1), nested({data(1), data(2)})}}});
    work.removeMembers({identity(1), identity(2)});
    work.addMembers({identity(3)});
    work.replaceMember(identity(2), identity(9));
    EXPECT_EQ(ProjectSamples::numbers(work.flattenedMembers()), "1 2 3");
}

TEST(ProjectRecord, tenThousandRecordsWithinEachOther_areWalkedWithoutAStack) {
    PropertyListValue inner = nested({data(1)});
    // Taken apart here, because its destructor would need the whole stack.
    std::vector<PropertyListValue> shells = {inner};
    for (int depth = 1; depth < 10'000; ++depth) {
        inner = nested({data(unsigned(depth % 100)), inner});
        shells.push_back(inner);
    }
    {
        const ProjectRecord work(*inner.asDictionary());
        EXPECT_EQ(work.flattenedMembers().size(), 100U);
    }
    inner = {};
    while (!shells.empty())
        shells.pop_back();
}

TEST(ProjectRecord, aRecordThatIsSharedAThousandFold_isWalkedOnce) {
    PropertyListValue shared = nested({data(1)});
    // Written out, there would be more of these than atoms.
    for (int depth = 0; depth < 300; ++depth)
        shared = nested({shared, shared, data(2)});
    EXPECT_EQ(ProjectSamples::numbers(ProjectRecord(*shared.asDictionary()).flattenedMembers()), "1 2");
}

TEST(ProjectRecord, freezing_movesTheReplacementToTheEndOfBothLists) {
    ProjectRecord work = record("Work", {1, 2, 1, 3});
    work.expand(identity(1));
    work.expand(identity(3));
    work.expand(identity(1));
    EXPECT_TRUE(work.replaceMember(identity(1), identity(9)));
    EXPECT_EQ(members(work), "2 3 9");
    EXPECT_EQ(ProjectSamples::numbers(*work.expandedUUIDs()), "3 9");
    EXPECT_FALSE(work.replaceMember(identity(1), identity(8)));
    EXPECT_EQ(members(work), "2 3 9");
}

TEST(ProjectRecord, expandedRows_mayStandThereTwiceAndCollapseTogether) {
    ProjectRecord work = record("Work", {1});
    work.collapse(identity(1));
    EXPECT_FALSE(work.expandedUUIDs());
    work.expand(identity(1));
    work.expand(identity(2));
    work.expand(identity(1));
    EXPECT_EQ(ProjectSamples::numbers(*work.expandedUUIDs()), "1 2 1");
    work.collapse(identity(1));
    EXPECT_EQ(ProjectSamples::numbers(*work.expandedUUIDs()), "2");
    work.collapse(identity(2));
    EXPECT_EQ(ProjectSamples::numbers(*work.expandedUUIDs()), "");
}

TEST(ProjectRecord, aCopy_sharesNothingWithTheOriginal) {
    ProjectRecord work = record("Work", {1});
    ProjectRecord copy = work;
    copy.addMembers({identity(2)});
    copy.setLabel(u"Copy"_s);
    EXPECT_EQ(members(work), "1");
    EXPECT_EQ(work.label(), u"Work"_s);
}

TEST(ProjectRecord, tenThousandMembers_areEditedInNoTime) {
    std::vector<unsigned> many(10'000);
    for (unsigned i = 0; i < many.size(); ++i)
        many[i] = i;
    ProjectRecord work;
    EXPECT_TRUE(work.addMembers(identities(many)));
    EXPECT_FALSE(work.addMembers(identities(many)));
    EXPECT_EQ(work.flattenedMembers().size(), 10'000U);
    for (unsigned i = 0; i < 100; ++i)
        EXPECT_TRUE(work.replaceMember(identity(i), identity(20'000 + i)));
    const auto present = work.members();
    EXPECT_TRUE(work.removeMembers({present.begin(), present.end()}));
    EXPECT_TRUE(work.members().empty());
}

std::shared_ptr<ProjectRecord> coloured(int tag, const std::vector<unsigned>& numbers) {
    auto project = std::make_shared<ProjectRecord>(record("Project", numbers));
    project->setColorTag(tag);
    return project;
}

TEST(ProjectRecord, timersThatSucceedEachOther_areAllAddedOnceBehindTheOthers) {
    ProjectRecord project(record("Work", {1, 5}));
    std::unordered_set<Identity> followed;
    project.addSuccessors({{identity(1), identity(2)},
                           {identity(2), identity(3)},
                           {identity(7), identity(8)},
                           {identity(3), identity(5)}},
                          followed);
    EXPECT_EQ(project.entries().value(kProjectSubtree),
              PropertyListValue(PropertyListArray{data(1), data(5), data(2), data(3)}));
    EXPECT_EQ(followed, (std::unordered_set{identity(1), identity(2)}));
}

TEST(ReverseProjectCache, aTimerInThreeProjects_hasTheirColoursOnceEach) {
    const ReverseProjectCache cache({coloured(5, {1, 2}), coloured(2, {1}), coloured(5, {1, 1, 3})});
    EXPECT_EQ(cache.tags(identity(1)), (ColorTags{2, 5}));
    EXPECT_EQ(cache.tags(identity(2)), (ColorTags{5}));
    EXPECT_EQ(cache.tags(identity(3)), (ColorTags{5}));
    EXPECT_EQ(cache.tags(identity(4)), ColorTags());
    EXPECT_FALSE(cache.isEmpty());
}

TEST(ReverseProjectCache, withoutAColour_aProjectGivesNothing) {
    auto plain = std::make_shared<ProjectRecord>(record("Plain", {1}));
    EXPECT_TRUE(ReverseProjectCache({plain, coloured(0, {2})}).isEmpty());
    EXPECT_EQ(ReverseProjectCache().tags(identity(1)), ColorTags());
}

TEST(ReverseProjectCache, aColourThatThereIsNot_isToldAsItStands) {
    EXPECT_EQ(ReverseProjectCache({coloured(-7, {1}), coloured(99, {1})}).tags(identity(1)),
              (ColorTags{-7, 99}));
}

TEST(ReverseProjectCache, membersOfNestedRecords_haveNoColour) {
    auto work = std::make_shared<ProjectRecord>(PropertyListDictionary{
        {kProjectSubtree, PropertyListArray{data(1), nested({data(2)})}}, {kProjectColorTag, 3}});
    const ReverseProjectCache cache({work});
    EXPECT_EQ(cache.tags(identity(1)), (ColorTags{3}));
    EXPECT_EQ(cache.tags(identity(2)), ColorTags());
}

} // namespace
