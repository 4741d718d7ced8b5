// SPDX-License-Identifier: MIT
#include "Classes/store/AccountEntries.h"
#include "platform/foundation/time/DateStyles.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/Day.h"

#include <QLocale>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TimeTrackerEditingTest : public testing::Test {
protected:
    TimeTrackerEditingTest() {
        auto& notifications = m_day.fakes.notifications;
        m_freezing = notifications.observe(kTicklogBranchNodeNotification, [this](const Notification& news) {
            m_frozen.push_back(std::any_cast<FrozenIdentities>(news.object));
        });
        m_refreshing = notifications.observe(kTicklogRefreshProjectsNotification,
                                             [this](const Notification&) { ++m_refreshes; });
    }

    // A running day with 10 seconds in each of two windows of Mail; the second is in front.
    void workInTwoWindows() {
        m_day.start();
        m_day.front("Mail", "Drafts");
        m_day.seconds(10);
        m_day.window("Inbox");
        m_day.seconds(10);
        m_refreshes = 0;
    }

    // The tree, with today's " (Frozen …)" written as "*".
    std::string tree() const {
        return str(QString::fromStdString(m_day.tree())
                       .replace(u" (Frozen %1)"_s.arg(shortDate(m_day.fakes.clock.now())), u"*"_s));
    }

    Day m_day;
    TimeTracker& m_tracker = m_day.tracker;
    std::vector<FrozenIdentities> m_frozen;
    int m_refreshes = 0;
    Subscription m_freezing;
    Subscription m_refreshing;
};

TEST_F(TimeTrackerEditingTest, theFrozenName_bearsTheDateInTheUsersShortStyle) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    m_tracker.addWindowWithName(u"Mail"_s, 1);
    m_day.freeze("Mail");
    EXPECT_EQ(m_day.tree(), "Mail (Frozen 1/5/26)~Mail 1");
    QLocale::setDefault(QLocale::c());
}

TEST_F(TimeTrackerEditingTest, freezingTheCurrentApplication_goesOnInAFreshOneOfTheOldName) {
    workInTwoWindows();
    m_day.freeze("Mail");
    m_day.seconds(5);
    EXPECT_EQ(tree(), "Mail 5 [Inbox 5], Mail*~Mail 20 [Drafts 10, Inbox 10]");
    EXPECT_FALSE(m_day.node("Mail").branched());
}

TEST_F(TimeTrackerEditingTest, freezingAnApplicationWithTwoWindows_postsThreeTimesWithOneEntryEach) {
    workInTwoWindows();
    const Identity app = *m_day.node("Mail").uuid();
    const Identity drafts = *m_day.node("Mail", "Drafts").uuid();
    const Identity inbox = *m_day.node("Mail", "Inbox").uuid();
    TimeStoreNode& frozen = m_day.node("Mail");
    m_day.freeze("Mail");
    ASSERT_EQ(m_frozen.size(), 3U);
    EXPECT_TRUE(m_frozen[0].contains(drafts));
    EXPECT_TRUE(m_frozen[1].contains(inbox));
    EXPECT_EQ(m_frozen[2], (FrozenIdentities{{app, *frozen.uuid()}}));
    for (const FrozenIdentities& entry : m_frozen)
        EXPECT_EQ(entry.size(), 1U);
    EXPECT_TRUE(frozen.branched());
    // The fresh timer has the identity that projects know.
    EXPECT_EQ(m_day.node("Mail").uuid(), app);
}

TEST_F(TimeTrackerEditingTest, freezingTheCurrentApplication_isToldInOneOrder) {
    workInTwoWindows();
    Announcements told(m_tracker, {kTimeSetKey});
    const auto freezing = m_day.fakes.notifications.observe(
        kTicklogBranchNodeNotification, [&](const Notification&) { told.note(u"branch"_s); });
    const auto refreshing = m_day.fakes.notifications.observe(
        kTicklogRefreshProjectsNotification, [&](const Notification&) { told.note(u"refresh"_s); });
    m_day.freeze("Mail");
    EXPECT_EQ(told.told(), "will timeSet, branch, branch, did timeSet, branch, "
                           "will timeSet, did timeSet, refresh, refresh");
}

TEST_F(TimeTrackerEditingTest, freezingAnApplicationInTheBackground_leavesTheCurrentOneAlone) {
    workInTwoWindows();
    m_day.front("Editor", "a.txt");
    m_day.seconds(5);
    m_refreshes = 0;
    m_day.freeze("Mail");
    EXPECT_EQ(m_refreshes, 1);
    m_day.seconds(5);
    EXPECT_EQ(tree(), "Editor 10 [a.txt 10], Mail*~Mail 20 [Drafts 10, Inbox 10]");
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    EXPECT_EQ(tree(), "Editor 10 [a.txt 10], Mail 1 [Inbox 1], Mail*~Mail 20 [Drafts 10, Inbox 10]");
}

TEST_F(TimeTrackerEditingTest, freezingAnApplication_leavesItsRegistryEntryToTheFreshOne) {
    m_tracker.addWindowWithName(u"Mail"_s, 1);
    const auto identity = m_day.node("Mail").uuid();
    m_day.freeze("Mail");
    EXPECT_EQ(m_day.registry.uuidForName(u"TimeStoreAppMail"_s), identity);
}

TEST_F(TimeTrackerEditingTest, freezingAnApplicationTwice_keepsBothNames) {
    m_tracker.addWindowWithName(u"Mail"_s, 1);
    TimeStoreNode& node = m_day.node("Mail");
    m_tracker.branchNode(node);
    m_tracker.branchNode(node);
    EXPECT_EQ(tree(), "Mail**~Mail* 1");
    EXPECT_EQ(m_tracker.fullTimeSet().size(), 1U);
}

TEST_F(TimeTrackerEditingTest, freezingTheSameApplicationAgainLater_keepsEachFrozenPart) {
    workInTwoWindows();
    m_day.freeze("Mail");
    m_day.seconds(5);
    m_day.freeze("Mail");
    m_day.seconds(1);
    const auto count = [&](const std::string& part) {
        return QString::fromStdString(tree()).count(QString::fromStdString(part));
    };
    EXPECT_EQ(count("Mail*~Mail 20"), 1);
    EXPECT_EQ(count("Mail*~Mail 5"), 1);
    EXPECT_EQ(m_tracker.totalTime() > 25.9, true);
}

TEST_F(TimeTrackerEditingTest, freezingAWindow_goesOnInAFreshOneOfTheOldName) {
    workInTwoWindows();
    const Identity old = *m_day.node("Mail", "Inbox").uuid();
    TimeStoreNode& frozen = m_day.node("Mail", "Inbox");
    m_day.freeze("Mail", "Inbox");
    m_day.seconds(5);
    EXPECT_EQ(tree(), "Mail 25 [Drafts 10, Inbox 5, Inbox*~Inbox 10]");
    ASSERT_EQ(m_frozen.size(), 1U);
    EXPECT_EQ(m_frozen[0], (FrozenIdentities{{old, *frozen.uuid()}}));
    EXPECT_TRUE(frozen.branched());
    EXPECT_NE(m_day.node("Mail", "Inbox").uuid(), frozen.uuid());
}

TEST_F(TimeTrackerEditingTest, freezingAWindowTwiceAndItsSuccessorToo_losesNothing) {
    workInTwoWindows();
    TimeStoreNode& inbox = m_day.node("Mail", "Inbox");
    m_tracker.branchNode(inbox);
    m_tracker.branchNode(inbox);
    m_day.seconds(5);
    m_day.freeze("Mail", "Inbox");
    m_day.seconds(2);
    EXPECT_EQ(tree(), "Mail 27 [Drafts 10, Inbox 2, Inbox*~Inbox 5, Inbox**~Inbox* 10]");
}

TEST_F(TimeTrackerEditingTest, freezingAWindowWhileStopped_creditsNothingForThePause) {
    workInTwoWindows();
    m_day.stop();
    m_day.seconds(3600);
    m_day.freeze("Mail", "Inbox");
    m_day.seconds(3600);
    EXPECT_EQ(tree(), "Mail 20 [Drafts 10, Inbox 0, Inbox*~Inbox 10]");
}

TEST_F(TimeTrackerEditingTest, freezingTheApplicationWhileStopped_creditsNothingForThePause) {
    workInTwoWindows();
    m_day.stop();
    m_day.seconds(3600);
    m_day.freeze("Mail");
    EXPECT_EQ(tree(), "Mail 0 [Inbox 0], Mail*~Mail 20 [Drafts 10, Inbox 10]");
    m_day.start();
    m_day.seconds(1);
    EXPECT_EQ(tree(), "Mail 1 [Inbox 1], Mail*~Mail 20 [Drafts 10, Inbox 10]");
}

TEST_F(TimeTrackerEditingTest, freezingIdleWhileIdle_goesOnInAFreshIdle) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.idle(1000);
    const double before = m_day.secondsOf("Idle");
    m_day.freeze("Idle");
    m_day.seconds(1);
    EXPECT_EQ(m_day.node("Idle").activeTime(), 0);
    EXPECT_NEAR(m_tracker.fullTimeSet().at(1)->activeTime() + m_tracker.fullTimeSet().at(0)->activeTime(),
                before + m_day.secondsOf("Mail"), 1e-6);
    EXPECT_EQ(str(m_tracker.activeStoreApp()->name()), "Mail");
}

TEST_F(TimeTrackerEditingTest, clearing_startsTheCurrentApplicationAnew) {
    workInTwoWindows();
    m_day.seconds(60);
    const Announcements told(m_tracker, {kTimeSetKey});
    m_tracker.reset();
    EXPECT_EQ(told.told(), "will timeSet, did timeSet, will timeSet, did timeSet");
    EXPECT_EQ(m_tracker.lastResetDate(), m_day.fakes.clock.now());
    m_day.seconds(3);
    EXPECT_EQ(tree(), "Mail 3 [Inbox 3]");
}

TEST_F(TimeTrackerEditingTest, clearingWhileStopped_leavesNothing) {
    workInTwoWindows();
    m_day.stop();
    m_tracker.reset();
    m_day.seconds(10);
    EXPECT_EQ(tree(), "");
    EXPECT_FALSE(m_tracker.activeStoreApp());
    EXPECT_FALSE(m_tracker.activeStoreWindow());
}

TEST_F(TimeTrackerEditingTest, clearing_emptiesTheResultOfASearchToo) {
    m_tracker.addWindowWithName(u"Mail"_s, 1);
    m_tracker.setSearchString(u"mail"_s);
    m_tracker.reset();
    EXPECT_TRUE(m_tracker.timeSet().empty());
}

TEST_F(TimeTrackerEditingTest, theResetDate_isToldWithItsCaption) {
    const Announcements told(m_tracker, {kLastResetDateKey, kLastResetDateDisplayStringKey});
    m_tracker.setLastResetDate(m_day.fakes.clock.now());
    EXPECT_EQ(told.told(), "will lastResetDate, will lastResetDateDisplayString, "
                           "did lastResetDateDisplayString, did lastResetDate");
}

TEST_F(TimeTrackerEditingTest, removingAnIdentityThatMatchesNothing_findsTheCurrentApplicationAgain) {
    workInTwoWindows();
    TimeStoreApp* const mail = m_tracker.activeStoreApp();
    const Announcements told(m_tracker, {kTimeSetKey});
    m_tracker.removeUUIDs({Identity::brandNew()});
    EXPECT_EQ(m_tracker.activeStoreApp(), mail);
    EXPECT_EQ(told.told(), "will timeSet, did timeSet");
    m_day.stop();
    m_tracker.removeUUIDs({});
    EXPECT_FALSE(m_tracker.activeStoreApp());
}

TEST_F(TimeTrackerEditingTest, removingTheCurrentApplication_startsAFreshOne) {
    workInTwoWindows();
    m_day.remove("Mail");
    m_day.seconds(3);
    EXPECT_EQ(tree(), "Mail 3 [Inbox 3]");
}

TEST_F(TimeTrackerEditingTest, removingTheCurrentWindow_startsAFreshOne) {
    workInTwoWindows();
    m_day.remove("Mail", "Inbox");
    m_day.seconds(3);
    EXPECT_EQ(tree(), "Mail 23 [Drafts 10, Inbox 3]");
}

TEST_F(TimeTrackerEditingTest, removingAWindow_removesTheSameTitledOnesOfOtherApplicationsToo) {
    m_day.start();
    m_day.front("Mail", "Untitled");
    m_day.seconds(1);
    m_day.front("Editor", "Untitled");
    m_day.seconds(1);
    m_day.front("News");
    m_day.remove("Mail", "Untitled");
    EXPECT_EQ(tree(), "Editor 1, Mail 1, News 0");
}

TEST_F(TimeTrackerEditingTest, removingTheCurrentWindowWhileStopped_creditsNothingForThePause) {
    workInTwoWindows();
    m_day.stop();
    m_day.seconds(3600);
    m_day.remove("Mail", "Inbox");
    EXPECT_EQ(tree(), "Mail 20 [Drafts 10, Inbox 0]");
}

TEST_F(TimeTrackerEditingTest, removingTheApplicationOfAWindowThatStayedCurrent_leavesNoWindow) {
    m_tracker.addWindowWithName(u"Desktop"_s, 0);
    workInTwoWindows();
    // It is known already and shows no window, so the last window stays current.
    m_day.front("Desktop");
    ASSERT_TRUE(m_tracker.activeStoreWindow());
    m_day.remove("Mail");
    EXPECT_FALSE(m_tracker.activeStoreWindow());
    m_day.seconds(1);
    EXPECT_EQ(tree(), "Desktop 1");
}

TEST_F(TimeTrackerEditingTest, removing_takesTimersOutOfTheResultOfASearch) {
    m_tracker.addWindowWithName(u"Mail"_s, 1);
    m_tracker.addWindowWithName(u"Mailbox"_s, 1);
    m_tracker.setSearchString(u"mail"_s);
    m_day.remove("Mail");
    ASSERT_EQ(m_tracker.timeSet().size(), 1U);
    EXPECT_EQ(str(m_tracker.timeSet().front()->name()), "Mailbox");
}

TEST_F(TimeTrackerEditingTest, removingOneOfTwoOfAName_keepsTheOtherFindable) {
    m_tracker.addWindowWithName(u"Mail"_s, 1);
    m_tracker.addWindowWithName(u"Mail"_s, 2);
    m_tracker.fullTimeSet().front()->setUuid(Identity::brandNew());
    m_tracker.removeUUIDs({*m_tracker.fullTimeSet().front()->uuid()});
    m_tracker.setCurrentApp(u"Mail"_s);
    EXPECT_EQ(tree(), "Mail 2");
}

TEST_F(TimeTrackerEditingTest, anObserverThatClearsTheTreeWhileWindowsAreRemoved_doesNoHarm) {
    m_tracker.addWindowWithName(u"News"_s, 1);
    m_day.stop();
    m_tracker.mainWindowDidChangeToAppName(u"Mail"_s, WindowElement(1), u"Inbox"_s);
    const auto subscription =
        m_day.node("Mail").observe(kChildrenKey, [&](const ObservedChange&) { m_tracker.reset(); });
    m_day.remove("Mail", "Inbox");
    EXPECT_EQ(tree(), "");
}

TEST_F(TimeTrackerEditingTest, timersByIdentity_areApplicationsOrElseTheirWindows) {
    workInTwoWindows();
    m_tracker.addWindowWithName(u"News"_s, 1);
    const auto names = [&](std::initializer_list<const TimeStoreNode*> wanted, bool excluding) {
        std::unordered_set<Identity> identities;
        for (const TimeStoreNode* node : wanted)
            identities.insert(*node->uuid());
        QStringList found;
        for (const auto& item : m_tracker.timeChildrenForChildUUIDs(identities, excluding))
            found << item->name();
        return str(found.join(u' '));
    };
    const TimeStoreNode* const mail = &m_day.node("Mail");
    const TimeStoreNode* const inbox = &m_day.node("Mail", "Inbox");
    const TimeStoreNode* const drafts = &m_day.node("Mail", "Drafts");
    EXPECT_EQ(names({mail, inbox, &m_day.node("News")}, false), "Mail News");
    EXPECT_EQ(names({inbox, drafts}, true), "Drafts Inbox");
    EXPECT_EQ(names({}, false), "");
}

TEST_F(TimeTrackerEditingTest, excludingTheWindowsOfAWantedApplication_alsoExcludesThemElsewhere) {
    m_day.start();
    m_day.front("Mail", "Untitled");
    m_day.front("Editor", "Untitled");
    const std::unordered_set wanted{*m_day.node("Mail").uuid(), *m_day.node("Mail", "Untitled").uuid()};
    EXPECT_EQ(m_tracker.timeChildrenForChildUUIDs(wanted, false).size(), 2U);
    EXPECT_EQ(m_tracker.timeChildrenForChildUUIDs(wanted, true).size(), 1U);
}

TEST_F(TimeTrackerEditingTest, theTree_comesBackAsItWasWrittenAndIsAddedToWhatIsThere) {
    workInTwoWindows();
    m_day.freeze("Mail", "Drafts");
    const auto entries = m_tracker.arrayRepresentation();
    const std::string before = m_day.tree();
    Day other;
    const Announcements told(other.tracker, {kTimeSetKey});
    other.tracker.setArrayRepresentation(entries);
    EXPECT_EQ(other.tree(), before);
    EXPECT_EQ(told.told(), "will timeSet, did timeSet");
    EXPECT_EQ(other.node("Mail").uuid(), m_day.node("Mail").uuid());
    other.tracker.setArrayRepresentation(entries);
    EXPECT_EQ(other.tracker.fullTimeSet().size(), 2U);
}

TEST_F(TimeTrackerEditingTest, aTreeOfOtherTypes_isReadAsFarAsItMakesSense) {
    const PropertyListDictionary mail{{kRecordName, u"Mail"_s}, {kRecordActiveTime, 5}};
    m_tracker.setArrayRepresentation(
        {7, u"text"_s, PropertyListDictionary(), PropertyListDictionary{{kEntryApp, 7}},
         PropertyListDictionary{{kEntryApp, mail}, {kEntryWindows, u"none"_s}},
         PropertyListDictionary{{kEntryApp, PropertyListDictionary{{kRecordName, u"News"_s}}},
                                {kEntryWindows, PropertyListArray{7, mail, PropertyListDictionary()}}}});
    EXPECT_EQ(tree(), "Mail 5, News 0 [Mail 5]");
}

TEST_F(TimeTrackerEditingTest, anApplicationThatWasRead_isFoundByItsNameWhenItComesToTheFront) {
    m_tracker.addWindowWithName(u"Mail"_s, 100.0);
    m_day.start();
    m_day.front("Mail");
    m_day.seconds(1);
    EXPECT_EQ(tree(), "Mail 101");
}

TimerReferences timersCalled(const TimeTracker& tracker, const QString& name) {
    TimeStoreItem::Children items;
    for (const auto& app : tracker.fullTimeSet()) {
        if (app->name() == name)
            items.push_back(app);
        for (const auto& window : app->windows())
            if (window->name() == name)
                items.push_back(window);
    }
    return tracker.tree().referencesTo(items);
}

TEST_F(TimeTrackerEditingTest, whatWasRemoved_comesBackAsItWas) {
    workInTwoWindows();
    m_day.front("Notes", "List");
    m_day.seconds(5);
    const std::string before = m_day.tree();
    const auto all = timersCalled(m_tracker, u"Mail"_s);
    const PropertyListArray records = m_tracker.tree().recordsOf(all);
    m_tracker.removeTimers(all);
    EXPECT_EQ(m_day.tree(), "Notes 5 [List 5]");
    m_tracker.putBack(records);
    EXPECT_EQ(m_day.tree(), before);
    EXPECT_EQ(timersCalled(m_tracker, u"Mail"_s), all);
}

TEST_F(TimeTrackerEditingTest, aRemovedWindow_comesBackToItsApplicationWhoseTimeIsUntouched) {
    workInTwoWindows();
    const auto drafts = timersCalled(m_tracker, u"Drafts"_s);
    const PropertyListArray records = m_tracker.tree().recordsOf(drafts);
    m_tracker.removeTimers(drafts);
    EXPECT_EQ(m_day.tree(), "Mail 20 [Inbox 10]");
    m_day.seconds(3);
    Announcements announcements(*m_tracker.fullTimeSet().front(), {kChildrenKey});
    m_tracker.putBack(records);
    EXPECT_EQ(m_day.tree(), "Mail 23 [Drafts 10, Inbox 13]");
    EXPECT_EQ(announcements.told(), "will children, did children");
}

TEST_F(TimeTrackerEditingTest, whatHasComeAnewSinceTheRemoval_takesTheTimeBack) {
    workInTwoWindows();
    const auto mail = timersCalled(m_tracker, u"Mail"_s);
    const PropertyListArray records = m_tracker.tree().recordsOf(mail);
    m_tracker.removeTimers(mail);
    m_day.seconds(4);
    ASSERT_EQ(m_day.tree(), "Mail 4 [Inbox 4]");
    m_tracker.putBack(records);
    EXPECT_EQ(m_day.tree(), "Mail 24 [Drafts 10, Inbox 14]");
}

TEST_F(TimeTrackerEditingTest, whatNobodyHas_leavesNoRecords) {
    workInTwoWindows();
    EXPECT_TRUE(m_tracker.tree().recordsOf({{Identity::brandNew(), std::nullopt}}).empty());
    m_tracker.putBack({});
    EXPECT_EQ(m_day.tree(), "Mail 20 [Drafts 10, Inbox 10]");
}

TEST_F(TimeTrackerEditingTest, deletingATimer_leavesThoseThatShareItsIdentity) {
    m_day.start();
    m_day.front("Mail", "Untitled");
    m_day.seconds(1);
    m_day.front("Editor", "Untitled");
    m_day.seconds(2);
    m_day.front("News");
    ASSERT_EQ(m_day.node("Mail", "Untitled").uuid(), m_day.node("Editor", "Untitled").uuid());
    const auto one = m_tracker.tree().referencesTo({m_day.node("Editor", "Untitled").shared_from_this()});
    const PropertyListArray records = m_tracker.tree().recordsOf(one);
    m_tracker.removeTimers(one);
    EXPECT_EQ(tree(), "Editor 2, Mail 1 [Untitled 1], News 0");
    m_tracker.putBack(records);
    EXPECT_EQ(tree(), "Editor 2 [Untitled 2], Mail 1 [Untitled 1], News 0");
    EXPECT_EQ(m_tracker.tree().timerOf(*one.begin()).get(), &m_day.node("Editor", "Untitled"));
}

TEST_F(TimeTrackerEditingTest, deletingTheCurrentWindow_startsAFreshOne) {
    workInTwoWindows();
    m_tracker.removeTimers(timersCalled(m_tracker, u"Inbox"_s));
    m_day.seconds(3);
    EXPECT_EQ(tree(), "Mail 23 [Drafts 10, Inbox 3]");
}

TEST_F(TimeTrackerEditingTest, aFreshWindowAfterAFreezeAndARestart_canBeDeletedAlone) {
    workInTwoWindows();
    m_day.front("Editor");
    m_day.freeze("Mail");
    Day next;
    next.tracker.setArrayRepresentation(m_day.tracker.arrayRepresentation());
    next.start();
    next.front("Mail", "Inbox");
    next.seconds(4);
    next.front("Editor");
    next.tracker.removeUUIDs({*next.node("Mail", "Inbox").uuid()});
    const QString frozen = u" (Frozen %1)"_s.arg(shortDate(m_day.fakes.clock.now()));
    EXPECT_EQ(str(QString::fromStdString(next.tree()).replace(frozen, u"*"_s)),
              "Editor 0, Mail 4, Mail*~Mail 20 [Drafts 10, Inbox 10]");
}

TEST_F(TimeTrackerEditingTest, twoWindowsFrozenUnderOneName_areStillTwoAfterARestart) {
    workInTwoWindows();
    m_day.freeze("Mail", "Inbox");
    m_day.seconds(5);
    m_day.freeze("Mail", "Inbox");
    m_day.seconds(2);
    Day next;
    next.tracker.setArrayRepresentation(m_day.tracker.arrayRepresentation());
    const auto sum = [](Day& day) {
        double seconds = 0;
        for (const auto& window : static_cast<TimeStoreApp&>(day.node("Mail")).windows())
            seconds += window->activeTime();
        return seconds;
    };
    EXPECT_DOUBLE_EQ(sum(next), sum(m_day));
    EXPECT_EQ(next.tracker.fullTimeSet().front()->windowCount(), 4U);
}

TEST_F(TimeTrackerEditingTest, applicationsThatShareAnIdentityInAFile_areToldApart) {
    const PropertyListDictionary mail{{kRecordName, u"Mail"_s}, {kRecordActiveTime, 5}};
    const PropertyListDictionary entry{{kEntryApp, mail}};
    m_tracker.setArrayRepresentation({entry, entry});
    m_tracker.removeUUIDs({*m_tracker.fullTimeSet().front()->uuid()});
    EXPECT_EQ(tree(), "Mail 5");
}

TEST_F(TimeTrackerEditingTest, manyWindowsOfOneNameInAFile_areToldToProjectsTogether) {
    std::vector<Successions> told;
    const auto watching =
        m_day.fakes.notifications.observe(kTicklogSucceedNodeNotification, [&](const Notification& news) {
            told.push_back(std::any_cast<Successions>(news.object));
        });
    PropertyListArray windows;
    for (int i = 0; i < 1000; ++i)
        windows.emplace_back(PropertyListDictionary{
            {kRecordName, u"Inbox"_s}, {kRecordActiveTime, 1}, {kRecordUUID, Identity::brandNew().bytes()}});
    m_tracker.setArrayRepresentation({PropertyListDictionary{
        {kEntryApp, PropertyListDictionary{{kRecordName, u"Mail"_s}}}, {kEntryWindows, windows}}});
    EXPECT_EQ(tree(), "Mail 0 [Inbox 1000]");
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].size(), 999U);
    EXPECT_EQ(told[0].front().former.bytes(), *windows.front().asDictionary()->value(kRecordUUID).asData());
    EXPECT_EQ(told[0].back().successor, m_day.node("Mail", "Inbox").uuid());
}

TEST_F(TimeTrackerEditingTest, whatTheRegistryHadForgotten_isItselfAgainAfterClearing) {
    workInTwoWindows();
    const auto mail = m_day.node("Mail").uuid();
    const auto inbox = m_day.node("Mail", "Inbox").uuid();
    m_day.registry.setUUIDSet(std::unordered_set<Identity>());
    m_tracker.reset();
    m_day.seconds(1);
    EXPECT_EQ(m_day.node("Mail").uuid(), mail);
    EXPECT_EQ(m_day.node("Mail", "Inbox").uuid(), inbox);
}

} // namespace
