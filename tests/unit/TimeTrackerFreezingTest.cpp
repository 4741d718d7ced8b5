// SPDX-License-Identifier: MIT
// Undoing and redoing a freezing, whatever has happened to the timers meanwhile.
#include "Classes/projects/ProjectList.h"
#include "platform/foundation/time/DateStyles.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

#include <set>

using namespace Qt::StringLiterals;

namespace {

class TimeTrackerFreezingTest : public testing::Test {
protected:
    // A running day with 10 seconds in each of two windows of Mail; the second is in front.
    TimeTrackerFreezingTest() {
        m_day.start();
        m_day.front("Mail", "Drafts");
        m_day.seconds(10);
        m_day.window("Inbox");
        m_day.seconds(10);
    }

    FrozenTimer freeze(const char* application, const char* title = nullptr) {
        return m_tracker.branchNode(m_day.node(application, title));
    }

    Identity uuid(const char* application, const char* title = nullptr) {
        return m_day.node(application, title).uuid().value();
    }

    // The tree, with today's " (Frozen …)" written as "*".
    std::string tree() const {
        return str(QString::fromStdString(m_day.tree())
                       .replace(u" (Frozen %1)"_s.arg(shortDate(m_day.fakes.clock.now())), u"*"_s));
    }

    std::string members(const ProjectList::Project& project) const {
        QStringList names;
        for (const Identity& member : project->members())
            for (const auto& item : m_tracker.timeChildrenForChildUUIDs({member}, false))
                names << item->name();
        return names.join(u' ').toStdString();
    }

    Day m_day;
    TimeTracker& m_tracker = m_day.tracker;
    ProjectList m_list{m_day.store, m_day.fakes.defaults, m_day.fakes.folders.documents};
};

TEST_F(TimeTrackerFreezingTest, anApplicationsFreezingTakenBack_isAsIfItHadNeverBeen) {
    const Identity app = uuid("Mail");
    const Identity drafts = uuid("Mail", "Drafts");
    const Identity inbox = uuid("Mail", "Inbox");
    FrozenTimer frozen = freeze("Mail");
    m_day.seconds(5);
    ASSERT_EQ(tree(), "Mail 5 [Inbox 5], Mail*~Mail 20 [Drafts 10, Inbox 10]");
    EXPECT_TRUE(m_tracker.unbranchNode(frozen));
    EXPECT_EQ(tree(), "Mail 25 [Drafts 10, Inbox 15]");
    EXPECT_FALSE(m_day.node("Mail").branched());
    EXPECT_EQ(uuid("Mail"), app);
    EXPECT_EQ(uuid("Mail", "Drafts"), drafts);
    EXPECT_EQ(uuid("Mail", "Inbox"), inbox);
    m_day.seconds(5);
    m_day.window("Drafts");
    m_day.seconds(1);
    EXPECT_EQ(tree(), "Mail 31 [Drafts 11, Inbox 20]");
}

TEST_F(TimeTrackerFreezingTest, aWindowsFreezingTakenBack_isAsIfItHadNeverBeen) {
    const Identity inbox = uuid("Mail", "Inbox");
    FrozenTimer frozen = freeze("Mail", "Inbox");
    m_day.seconds(5);
    ASSERT_EQ(tree(), "Mail 25 [Drafts 10, Inbox 5, Inbox*~Inbox 10]");
    EXPECT_TRUE(m_tracker.unbranchNode(frozen));
    EXPECT_EQ(tree(), "Mail 25 [Drafts 10, Inbox 15]");
    EXPECT_FALSE(m_day.node("Mail", "Inbox").branched());
    EXPECT_EQ(uuid("Mail", "Inbox"), inbox);
    m_day.seconds(5);
    EXPECT_EQ(tree(), "Mail 30 [Drafts 10, Inbox 20]");
    // The window on the screen belongs to this timer: a new title renames it.
    m_day.retitle("Sent");
    m_day.seconds(1);
    EXPECT_EQ(tree(), "Mail 31 [Drafts 10, Sent 21]");
}

TEST_F(TimeTrackerFreezingTest, theRegistry_knowsTheNamesByTheirFirstIdentitiesAgain) {
    const Identity app = uuid("Mail");
    const Identity inbox = uuid("Mail", "Inbox");
    m_list.addNewProjectWithItems({app, inbox});
    FrozenTimer window = freeze("Mail", "Inbox");
    FrozenTimer whole = freeze("Mail");
    m_tracker.unbranchNode(whole);
    m_tracker.unbranchNode(window);
    EXPECT_EQ(m_day.registry.uuidForName(u"TimeStoreAppMail"_s), app);
    EXPECT_EQ(m_day.registry.uuidForName(u"TimeStoreWindowInbox"_s), inbox);
}

TEST_F(TimeTrackerFreezingTest, aTitleOfAnotherApplicationToo_staysTheOthersInTheRegistry) {
    m_day.front("Web", "Inbox");
    m_day.seconds(1);
    const Identity shared = m_day.registry.uuidForName(u"TimeStoreWindowInbox"_s);
    m_day.registry.setUUID(Identity::brandNew(), u"TimeStoreWindowInbox"_s);
    const Identity others = m_day.registry.uuidForName(u"TimeStoreWindowInbox"_s);
    m_list.addNewProjectWithItems({others});
    FrozenTimer frozen = freeze("Mail");
    m_tracker.unbranchNode(frozen);
    EXPECT_EQ(m_day.registry.uuidForName(u"TimeStoreWindowInbox"_s), others);
    EXPECT_EQ(uuid("Mail", "Inbox"), shared);
}

TEST_F(TimeTrackerFreezingTest, projects_pointAtTheFirstTimersAgain) {
    const auto work = m_list.addNewProjectWithItems({uuid("Mail"), uuid("Mail", "Inbox")});
    m_list.expandUUID(*work, uuid("Mail"), false);
    const auto before = work->members();
    FrozenTimer window = freeze("Mail", "Inbox");
    FrozenTimer whole = freeze("Mail");
    m_day.seconds(5);
    EXPECT_NE(work->members(), before);
    m_tracker.unbranchNode(whole);
    m_tracker.unbranchNode(window);
    EXPECT_EQ(members(work), "Inbox Mail");
    EXPECT_EQ(std::set(before.begin(), before.end()), (std::set{uuid("Mail"), uuid("Mail", "Inbox")}));
    EXPECT_EQ(work->expandedUUIDs(), std::vector{uuid("Mail")});
}

TEST_F(TimeTrackerFreezingTest, aProjectThatHasBoth_hasTheOneTimerOnce) {
    const auto work = m_list.addNewProjectWithItems({uuid("Mail", "Inbox")});
    FrozenTimer frozen = freeze("Mail", "Inbox");
    m_day.seconds(5);
    m_list.addMembers(*work, {uuid("Mail", "Inbox")});
    ASSERT_EQ(work->members().size(), 2U);
    m_tracker.unbranchNode(frozen);
    EXPECT_EQ(work->members(), std::vector{uuid("Mail", "Inbox")});
}

TEST_F(TimeTrackerFreezingTest, aStateOfTheProjectsFromBefore_comesBackWithTheFirstTimers) {
    const auto work = m_list.addNewProjectWithItems({uuid("Mail"), uuid("Mail", "Drafts")});
    const auto before = m_list.snapshot();
    m_list.removeMembers(*work, {uuid("Mail")});
    FrozenTimer frozen = freeze("Mail");
    m_day.advance(0);
    m_tracker.unbranchNode(frozen);
    m_list.restore(before);
    EXPECT_EQ(members(work), "Mail Drafts");
}

TEST_F(TimeTrackerFreezingTest, frozenAgain_theTimersHaveTheIdentitiesOfTheFirstTime) {
    FrozenTimer frozen = freeze("Mail");
    m_day.seconds(5);
    const Identity fresh = uuid("Mail");
    const Identity freshInbox = uuid("Mail", "Inbox");
    m_tracker.unbranchNode(frozen);
    EXPECT_TRUE(m_tracker.branchNodeAgain(frozen));
    EXPECT_EQ(tree(), "Mail 0 [Inbox 0], Mail*~Mail 25 [Drafts 10, Inbox 15]");
    EXPECT_EQ(uuid("Mail"), fresh);
    EXPECT_EQ(uuid("Mail", "Inbox"), freshInbox);
    const Identity again = frozen.own().after;
    EXPECT_TRUE(m_tracker.unbranchNode(frozen));
    EXPECT_TRUE(m_tracker.branchNodeAgain(frozen));
    EXPECT_EQ(frozen.own().after, again);
}

TEST_F(TimeTrackerFreezingTest, aNameOfTheUsersOwn_isThereAgain) {
    TimeStoreNode& mail = m_day.node("Mail");
    mail.setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    FrozenTimer frozen = freeze("Mail");
    EXPECT_EQ(mail.renamedName(), u"Mail"_s);
    m_tracker.unbranchNode(frozen);
    EXPECT_EQ(mail.renamedName(), u"Post"_s);
    FrozenTimer another = freeze("Mail");
    m_day.seconds(1);
    m_day.node("Mail").setRenamedNameFormatted({{kRecordName, u"Letters"_s}});
    m_tracker.unbranchNode(another);
    EXPECT_EQ(m_day.node("Mail").renamedName(), u"Letters"_s) << "the last name that the user gave";
    EXPECT_EQ(m_day.node("Mail", "Inbox").renamedName(), u"Inbox"_s);
}

TEST_F(TimeTrackerFreezingTest, aSuccessorThatHasAnotherTitleByNow_keepsItsTime) {
    FrozenTimer frozen = freeze("Mail", "Inbox");
    m_day.seconds(5);
    m_day.retitle("Sent");
    m_day.seconds(5);
    EXPECT_TRUE(m_tracker.unbranchNode(frozen));
    EXPECT_EQ(tree(), "Mail 30 [Drafts 10, Inbox 10, Sent 10]");
    m_day.seconds(1);
    EXPECT_EQ(tree(), "Mail 31 [Drafts 10, Inbox 10, Sent 11]");
}

TEST_F(TimeTrackerFreezingTest, aSuccessorThatIsDeleted_leavesTheFrozenTimerToGoOn) {
    FrozenTimer frozen = freeze("Mail");
    m_day.seconds(5);
    m_day.front("Editor", "a.txt");
    m_day.remove("Mail");
    EXPECT_TRUE(m_tracker.unbranchNode(frozen));
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    EXPECT_EQ(tree(), "Editor 0 [a.txt 0], Mail 21 [Drafts 10, Inbox 11]");
}

TEST_F(TimeTrackerFreezingTest, aFrozenTimerThatIsNoMore_isLeftAtThat) {
    FrozenTimer frozen = freeze("Mail");
    m_day.seconds(5);
    m_tracker.removeUUIDs({frozen.own().after});
    const std::string before = tree();
    EXPECT_FALSE(m_tracker.unbranchNode(frozen));
    m_tracker.reset();
    FrozenTimer another = freeze("Mail");
    m_tracker.unbranchNode(another);
    m_day.front("Editor");
    m_day.remove("Mail");
    EXPECT_FALSE(m_tracker.branchNodeAgain(another));
    EXPECT_EQ(before, "Mail 5 [Inbox 5]");
}

TEST_F(TimeTrackerFreezingTest, aSuccessorFrozenOnceMore_isPutTogetherInEitherOrder) {
    for (const bool isLastFirst : {true, false}) {
        FrozenTimer first = freeze("Mail", "Inbox");
        m_day.seconds(5);
        FrozenTimer second = freeze("Mail", "Inbox");
        m_day.seconds(2);
        const double whole = m_day.node("Mail").activeTime();
        const Identity original = first.own().before.value();
        EXPECT_TRUE(m_tracker.unbranchNode(isLastFirst ? second : first));
        EXPECT_TRUE(m_tracker.unbranchNode(isLastFirst ? first : second));
        EXPECT_EQ(static_cast<TimeStoreApp&>(m_day.node("Mail")).windowCount(), 2U);
        EXPECT_NEAR(m_day.node("Mail", "Inbox").activeTime(), whole - 10, 1e-6);
        if (isLastFirst) {
            EXPECT_EQ(uuid("Mail", "Inbox"), original);
        }
    }
}

TEST_F(TimeTrackerFreezingTest, windowsThatCameLater_comeAlong) {
    FrozenTimer frozen = freeze("Mail");
    m_day.window("Sent");
    m_day.seconds(5);
    FrozenTimer inner = freeze("Mail", "Sent");
    m_day.seconds(1);
    m_tracker.unbranchNode(frozen);
    EXPECT_EQ(tree(), "Mail 26 [Drafts 10, Inbox 10, Sent 1, Sent*~Sent 5]");
    m_day.seconds(1);
    EXPECT_TRUE(m_tracker.unbranchNode(inner));
    EXPECT_EQ(tree(), "Mail 27 [Drafts 10, Inbox 10, Sent 7]");
}

TEST_F(TimeTrackerFreezingTest, whatIsFound_holdsNoTimerThatIsNoMore) {
    FrozenTimer frozen = freeze("Mail");
    m_day.seconds(5);
    m_tracker.setSearchString(u"mail"_s);
    EXPECT_EQ(m_tracker.timeSet().size(), 2U);
    m_tracker.unbranchNode(frozen);
    EXPECT_EQ(m_tracker.timeSet().size(), 1U);
}

TEST_F(TimeTrackerFreezingTest, joiningWindows_isToldOfTheirApplication) {
    FrozenTimer frozen = freeze("Mail", "Inbox");
    m_day.seconds(1);
    Announcements told(m_day.node("Mail"), {kChildrenKey, kIsLeafKey});
    m_tracker.unbranchNode(frozen);
    EXPECT_EQ(told.told(), "will children, will isLeaf, did isLeaf, did children");
}

} // namespace
