// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeActivatorUniversalAccess.h"
#include "Classes/rules/RuleCategories.h"
#include "Classes/store/TimeStorePruneProxy.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TimeTrackerTest : public testing::Test {
protected:
    TimeTrackerTest() {
        m_refreshing = m_day.fakes.notifications.observe(kTicklogRefreshProjectsNotification,
                                                         [this](const Notification& notification) {
                                                             EXPECT_FALSE(notification.object.has_value());
                                                             ++m_refreshes;
                                                         });
    }

    // What the display answers from now on, in its seconds of 2^30 nanoseconds.
    void setIdleCount(std::int64_t seconds) {
        m_day.fakes.idleTime.answer = std::chrono::nanoseconds(seconds << 30);
    }

    // No ticks for this long; then one.
    void tickAfterGap(double seconds) {
        m_day.stall(seconds);
        m_day.advance(0);
    }

    std::string shown() const {
        QStringList names;
        for (const auto& item : m_tracker.timeSet())
            names << item->renamedName();
        names.sort();
        return str(names.join(u' '));
    }

    Day m_day;
    TimeTracker& m_tracker = m_day.tracker;
    int m_refreshes = 0;
    Subscription m_refreshing;
};

TEST_F(TimeTrackerTest, time_goesToTheApplicationAndToItsWindowSeparately) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.seconds(40);
    m_day.window("Drafts");
    m_day.seconds(5);
    m_day.closeAllWindows();
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Mail 55 [Drafts 5, Inbox 40]");
}

TEST_F(TimeTrackerTest, whileStopped_nothingIsCredited) {
    m_day.front("Mail", "Inbox");
    m_day.seconds(100);
    EXPECT_EQ(m_day.tree(), "");
    m_day.start();
    m_day.seconds(10);
    m_day.stop();
    m_day.seconds(3600);
    m_day.front("Editor", "a.txt");
    m_day.seconds(3600);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10]");
    m_day.start();
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Editor 1 [a.txt 1], Mail 10 [Inbox 10]");
}

TEST_F(TimeTrackerTest, withoutANodeOrAStart_nothingIsCredited) {
    const auto node = std::make_shared<TimeStoreApp>(m_day.store, u"Mail"_s);
    m_tracker.updateActiveTimeInStore(nullptr, m_day.fakes.clock.instant());
    m_tracker.updateActiveTimeInStore(node.get(), std::nullopt);
    EXPECT_EQ(node->activeTime(), 0);
    m_tracker.updateActiveTimeInStore(node.get(),
                                      m_day.fakes.clock.instant() - std::chrono::milliseconds(1500));
    EXPECT_EQ(node->activeTime(), 1.5);
}

TEST_F(TimeTrackerTest, aWallClockSetBackOrForth_takesNothingAwayAndGivesNothing) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.seconds(10);
    m_day.fakes.clock.setWall(m_day.fakes.clock.now() - std::chrono::hours(1));
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Mail 20 [Inbox 20]");
    m_day.fakes.clock.setWall(m_day.fakes.clock.now() + std::chrono::hours(2));
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Mail 30 [Inbox 30]");
}

TEST_F(TimeTrackerTest, aWallClockSetDuringAnAbsence_changesNothingOfIt) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.idle(600);
    m_day.fakes.clock.setWall(m_day.fakes.clock.now() + std::chrono::hours(2));
    m_day.idle(600);
    m_day.fakes.clock.setWall(m_day.fakes.clock.now() - std::chrono::hours(5));
    m_day.idle(100);
    EXPECT_EQ(m_day.tree(), "Idle 1233.6, Mail 966.3 [Inbox 966.3]");
}

TEST_F(TimeTrackerTest, aSwitchBeforeTheFirstTick_creditsNothingToTheFirst) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Editor 1 [a.txt 1], Mail 0 [Inbox 0]");
}

TEST_F(TimeTrackerTest, whatHasPassedSinceTheLastTick_goesToTheApplicationThatWasInFront) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.seconds(1);
    m_day.stall(0.0875);
    m_day.front("Editor", "a.txt");
    EXPECT_DOUBLE_EQ(m_day.secondsOf("Mail"), m_day.secondsOf("Mail", "Inbox"));
    EXPECT_NEAR(m_day.secondsOf("Mail"), 1.0875, 1e-9);
    EXPECT_EQ(m_day.secondsOf("Editor"), 0);
}

TEST_F(TimeTrackerTest, anApplicationWithoutAName_leavesTheLastOneCurrent) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.seconds(10);
    m_day.fakes.frontApplication.switchTo(ApplicationRecord{{}, u"/opt/nameless"_s, 5});
    m_day.seconds(5);
    m_day.fakes.frontApplication.switchTo(std::nullopt);
    m_day.seconds(5);
    EXPECT_EQ(m_day.tree(), "Mail 20 [Inbox 10]");
}

TEST_F(TimeTrackerTest, namesThatDifferOnlyInCase_areTwoApplications) {
    m_day.start();
    m_day.front("mail");
    m_day.seconds(1);
    m_day.front("Mail");
    m_day.seconds(2);
    EXPECT_EQ(m_day.tree(), "Mail 2, mail 1");
}

TEST_F(TimeTrackerTest, aNewApplication_isToldAsAChangeOfTheSetAndThenToProjects) {
    Announcements told(m_tracker, {kTimeSetKey});
    const auto posting = m_day.fakes.notifications.observe(
        kTicklogRefreshProjectsNotification, [&](const Notification&) { told.note(u"refresh"_s); });
    m_tracker.setCurrentApp(u"Mail"_s);
    EXPECT_EQ(told.told(), "will timeSet, did timeSet, refresh");
    m_tracker.setCurrentApp(u"Mail"_s);
    m_tracker.setCurrentApp({});
    EXPECT_EQ(told.count(), 3);
    EXPECT_EQ(m_day.tree(), "Mail 0");
}

TEST_F(TimeTrackerTest, aNewApplication_isInTheSetWhenItIsToldAndHasNoWindow) {
    m_tracker.mainWindowDidChangeToAppName(u"Mail"_s, WindowElement(1), u"Inbox"_s);
    const auto subscription = m_tracker.observe(kTimeSetKey, [&](const ObservedChange&) {
        EXPECT_EQ(m_tracker.fullTimeSet().size(), 2U);
        EXPECT_FALSE(m_tracker.activeStoreWindow());
        EXPECT_EQ(str(m_tracker.activeStoreApp()->name()), "Editor");
    });
    m_tracker.setCurrentApp(u"Editor"_s);
}

TEST_F(TimeTrackerTest, aKnownApplication_becomesCurrentAndKeepsTheWindow) {
    m_tracker.setCurrentApp(u"Editor"_s);
    m_tracker.mainWindowDidChangeToAppName(u"Mail"_s, WindowElement(1), u"Inbox"_s);
    TimeStoreWindow* const inbox = m_tracker.activeStoreWindow();
    ASSERT_TRUE(inbox);
    m_tracker.setCurrentApp(u"Editor"_s);
    EXPECT_EQ(m_tracker.activeStoreWindow(), inbox);
}

TEST_F(TimeTrackerTest, aTitleThatNamesNoDocument_creditsTheApplicationAlone) {
    m_day.front("Mail", "(3) Inbox");
    m_day.start();
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Mail 10");
}

TEST_F(TimeTrackerTest, idleOnset_booksTheIdleSecondsToIdleAndLeavesTheTimeBeforeToTheApplication) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(40);
    m_day.idle(1200);
    EXPECT_EQ(m_day.tree(), "Idle 1133.6, Mail 1006.3 [Inbox 1006.3]");
}

TEST_F(TimeTrackerTest, idleEnd_returnsToTheApplicationInFrontAndItsWindow) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.idle(1000);
    const double idle = m_day.secondsOf("Idle");
    const double mail = m_day.secondsOf("Mail");
    m_day.seconds(10);
    EXPECT_NEAR(m_day.secondsOf("Idle"), idle, 0.15);
    EXPECT_NEAR(m_day.secondsOf("Mail"), mail + 10, 0.15);
    EXPECT_DOUBLE_EQ(m_day.secondsOf("Mail"), m_day.secondsOf("Mail", "Inbox"));
}

TEST_F(TimeTrackerTest, whileIdle_noWindowIsCreditedWhateverItsTitleDoes) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.idle(1000);
    const std::string before = m_day.tree();
    EXPECT_FALSE(m_tracker.activeStoreWindow());
    m_day.retitle("Inbox - new mail");
    m_day.idle(100);
    EXPECT_EQ(m_day.node("Idle").children()->size(), 0U);
    EXPECT_NEAR(m_day.secondsOf("Mail", "Inbox"), m_day.secondsOf("Mail"), 1e-9);
    EXPECT_NE(m_day.tree(), before);
}

TEST_F(TimeTrackerTest, idleOnsetAfterAGapShorterThanTheIdleTime_takesNothingAway) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(2000);
    setIdleCount(900);
    tickAfterGap(900);
    EXPECT_EQ(m_day.tree(), "Idle 900, Mail 2000 [Inbox 2000]");
}

TEST_F(TimeTrackerTest, idleOnsetAfterAGapLongerThanTheIdleTime_takesItFromApplicationAndWindow) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(2000);
    setIdleCount(900);
    tickAfterGap(900.5);
    EXPECT_EQ(m_day.tree(), "Idle 900, Mail 2000.5 [Inbox 2000.5]");
}

TEST_F(TimeTrackerTest, idleOnsetThatWouldTakeMoreThanTheWindowHad_isToldAndTheAccountIsRight) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(100);
    setIdleCount(900);
    tickAfterGap(1000);
    EXPECT_EQ(str(m_day.fakes.runLoop.failures().join(u'\n')),
              "*** Assertion failure in Classes/TimeTracker:432: 100.000000, 900.000000");
    EXPECT_EQ(m_day.tree(), "Idle 900, Mail 200 [Inbox 200]");
    m_day.idle(10);
    EXPECT_EQ(m_day.tree(), "Idle 910, Mail 200 [Inbox 200]");
}

TEST_F(TimeTrackerTest, idleOnsetAfterAGapWithoutAWindow_takesItFromTheApplicationAlone) {
    m_day.start();
    m_day.front("Mail");
    m_day.seconds(2000);
    setIdleCount(900);
    tickAfterGap(1000);
    EXPECT_EQ(m_day.tree(), "Idle 900, Mail 2100");
    EXPECT_TRUE(m_day.fakes.runLoop.failures().isEmpty());
}

TEST_F(TimeTrackerTest, aRowThatPassesTheLimitInAGap_isFoundAgain) {
    m_tracker.addWindowWithName(u"Idle"_s, 9000.0);
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(2000);
    m_tracker.setCutoffTime(2050);
    ASSERT_EQ(shown(), "Idle");
    setIdleCount(900);
    tickAfterGap(1000);
    EXPECT_EQ(m_day.tree(), "Idle 9900, Mail 2100 [Inbox 2100]");
    EXPECT_TRUE(m_tracker.narrowing().isStale());
}

TEST_F(TimeTrackerTest, aWindowFrozenBetweenTwoTicks_givesNoTimeTwice) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    m_day.stall(0.05);
    TimeStoreNode& frozen = m_day.node("Mail", "Inbox");
    m_tracker.branchNode(frozen);
    m_day.seconds(1);
    EXPECT_NEAR(m_day.secondsOf("Mail", "Inbox") + frozen.activeTime(), m_day.secondsOf("Mail"), 1e-9);
}

TEST_F(TimeTrackerTest, theScreenSaverAndTheLoginWindow_areIdleTime) {
    m_day.start();
    m_day.front("ScreenSaverEngine");
    EXPECT_EQ(m_refreshes, 1);
    m_day.seconds(5);
    m_day.front("loginwindow");
    m_day.seconds(5);
    EXPECT_EQ(m_day.tree(), "Idle 10");
    EXPECT_EQ(m_refreshes, 1);
}

TEST_F(TimeTrackerTest, aWindowRetitledBehindOthers_takesItsNewTitleWhenItComesToTheFront) {
    m_day.start();
    m_day.front("Editor", "anna.txt");
    m_day.seconds(5);
    m_day.front("Shell", "me");
    m_day.seconds(3);
    m_day.fakes.windowList.windows.back().name = u"berta.txt"_s;
    std::swap(m_day.fakes.windowList.windows.front(), m_day.fakes.windowList.windows.back());
    m_day.fakes.frontApplication.switchTo(m_day.recordOf("Editor"));
    m_day.seconds(8);
    EXPECT_EQ(m_day.tree(), "Editor 13 [berta.txt 13], Shell 3 [me 3]");
}

TEST_F(TimeTrackerTest, aWindowRetitledWhileNobodyWasThere_takesItsNewTitleAfterwards) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.idle(1000);
    m_day.retitle("Drafts");
    m_day.idle(10);
    EXPECT_NEAR(m_day.secondsOf("Mail", "Inbox"), 966.3, 0.2);
    m_day.seconds(5);
    EXPECT_NEAR(m_day.secondsOf("Mail", "Drafts"), 971.3, 0.2);
}

TEST_F(TimeTrackerTest, aWindowThatChangesItsTitle_staysOneTimer) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(3);
    m_day.retitle("b.txt (edited)");
    m_day.seconds(4);
    EXPECT_EQ(m_day.tree(), "Editor 7 [b.txt 7]");
}

TEST_F(TimeTrackerTest, aTitleThatBecomesNoDocument_endsTheWindowsTimeAndNamesNothing) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(3);
    m_day.retitle("(untitled)");
    m_day.seconds(4);
    EXPECT_EQ(m_day.tree(), "Editor 7 [a.txt 3]");
}

TEST_F(TimeTrackerTest, renamingWithTheKeyOfAnotherWindow_addsThatWindowsTime) {
    m_day.start();
    m_tracker.mainWindowDidChangeToAppName(u"Mail"_s, WindowElement(1), u"Inbox"_s);
    m_tracker.activeStoreWindow()->addTimeInterval(30);
    m_tracker.mainWindowDidChangeToAppName(u"Mail"_s, WindowElement(2), u"Drafts"_s);
    m_tracker.activeStoreWindow()->addTimeInterval(5);
    m_tracker.renameWindowToName(u"Sent"_s, WindowElement(1));
    EXPECT_EQ(m_day.tree(), "Mail 0 [Sent 35]");
}

TEST_F(TimeTrackerTest, aTitleOfAnotherWindow_doesNotRenameTheOneOfTheApplicationBefore) {
    m_tracker.addWindowWithName(u"Desktop"_s, 0);
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(3);
    m_day.front("Desktop");
    ASSERT_TRUE(m_tracker.activeStoreWindow());
    m_tracker.renameWindowToName(u"Wallpaper"_s, WindowElement(999));
    EXPECT_EQ(m_day.tree(), "Desktop 0, Mail 3 [Inbox 3]");
}

TEST_F(TimeTrackerTest, aTitleThatComesBackInAnotherWindow_takesTheTimeOfTheOneThatHadIt) {
    m_day.start();
    m_day.front("Browser", "Invoice 12");
    m_day.seconds(100);
    m_day.window("News");
    m_day.seconds(5);
    m_day.retitle("Weather");
    m_day.seconds(5);
    m_day.retitle("Invoice 12");
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Browser 120 [Invoice 12 120]");
}

TEST_F(TimeTrackerTest, aTitleThatChangesWhileStopped_renamesTheWindowThatWasCreditedButNoOther) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(3);
    m_day.stop();
    m_day.retitle("Drafts");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Mail 3 [Drafts 3]");
    m_day.front("Browser", "News");
    m_day.seconds(1);
    m_day.retitle("Weather");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Mail 3 [Drafts 3]");
}

TEST_F(TimeTrackerTest, theTotal_leavesOutIdleTimeUnlessItIsWanted) {
    m_tracker.addWindowWithName(u"Idle"_s, 600.0);
    m_tracker.addWindowWithName(u"Mail"_s, 60.0);
    EXPECT_EQ(m_tracker.totalTime(), 60);
    m_day.fakes.defaults.setObject(kIncludeIdleInSumofTimes, true);
    EXPECT_EQ(m_tracker.totalTime(), 660);
}

TEST_F(TimeTrackerTest, theTotal_knowsItselfByTheNameShownAndIdleByTheNameBeneath) {
    m_tracker.addWindowWithName(u"Ticklog"_s, 1.0);
    m_tracker.addWindowWithName(u"Mail"_s, 10.0);
    m_tracker.addWindowWithName(u"Idle"_s, 100.0);
    m_tracker.addWindowWithName(u"News"_s, 1000.0);
    m_day.node("Ticklog").setRenamedNameStorage(u"Myself"_s);
    m_day.node("Mail").setRenamedNameStorage(u"Ticklog"_s);
    m_day.node("Idle").setRenamedNameStorage(u"Pause"_s);
    m_day.node("News").setRenamedNameStorage(u"Idle"_s);
    EXPECT_EQ(m_tracker.totalTime(), 1011);
    m_day.fakes.defaults.setObject(kIncludeSelfInSumofTimes, false);
    EXPECT_EQ(m_tracker.totalTime(), 1001);
}

TEST_F(TimeTrackerTest, theTotal_isOfEverythingWhateverIsSearched) {
    m_tracker.addWindowWithName(u"News"_s, 5.0);
    m_tracker.addWindowWithName(u"Mail"_s, 60.0);
    m_tracker.setSearchString(u"news"_s);
    EXPECT_EQ(shown(), "News");
    EXPECT_EQ(m_tracker.fullTimeSet().size(), 2U);
    EXPECT_EQ(m_tracker.totalTime(), 65);
}

TEST_F(TimeTrackerTest, aSearchOfTheSameText_reloadsOnceAndACutOffEveryTime) {
    const Announcements told(m_tracker, {kTimeSetKey});
    m_tracker.setSearchString(u"mail"_s);
    m_tracker.setSearchString(u"mail"_s);
    EXPECT_EQ(told.told(), "will timeSet, did timeSet");
    m_tracker.setCutoffTime(60);
    m_tracker.setCutoffTime(60);
    EXPECT_EQ(told.count(), 6);
}

TEST_F(TimeTrackerTest, theFirstSearch_reloadsEvenIfItIsEmpty) {
    const Announcements told(m_tracker, {kTimeSetKey});
    m_tracker.setSearchString({});
    EXPECT_EQ(told.count(), 2);
    m_tracker.setSearchString(u""_s);
    EXPECT_EQ(told.count(), 2);
}

TEST_F(TimeTrackerTest, searchAndCutOff_narrowTogetherAndTheirEndShowsEverything) {
    m_tracker.addWindowWithName(u"Mail"_s, 100.0);
    m_tracker.addWindowWithName(u"Mailbox"_s, 10.0);
    m_tracker.addWindowWithName(u"News"_s, 100.0);
    m_tracker.setCutoffTime(60);
    EXPECT_EQ(shown(), "Mail News");
    m_tracker.setSearchString(u"MAIL"_s);
    EXPECT_EQ(shown(), "Mail");
    m_tracker.setCutoffTime(0);
    EXPECT_EQ(shown(), "Mail Mailbox");
    m_tracker.setSearchString(u""_s);
    EXPECT_EQ(shown(), "Mail Mailbox News");
}

TEST_F(TimeTrackerTest, aSearchResult_isThatOfTheLastReload) {
    m_tracker.addWindowWithName(u"Mail"_s, 59.0);
    m_tracker.setCutoffTime(60);
    m_day.node("Mail").addTimeInterval(1);
    EXPECT_EQ(shown(), "");
    m_tracker.reloadSearchFiltering();
    EXPECT_EQ(shown(), "Mail");
}

TEST_F(TimeTrackerTest, waking_endsTheIdleStateWithoutBookingAnything) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(10);
    m_tracker.awakeFromSleep();
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Mail 20 [Inbox 20]");
}

TEST_F(TimeTrackerTest, withoutTrust_aSourceThatNeedsItDoesNotStartAndTheUserIsAsked) {
    Day day([](TimeTracker& tracker, ActivityServices& services) {
        static_cast<FakeAccessibility&>(services.accessibility).trusted = false;
        return std::make_unique<TimeActivatorUniversalAccess>(tracker, services);
    });
    EXPECT_FALSE(day.tracker.setIsRunning(true));
    EXPECT_FALSE(day.tracker.isRunning());
    EXPECT_EQ(day.trustChecks, 1);
    EXPECT_TRUE(day.tracker.setIsRunning(false));
    EXPECT_EQ(day.trustChecks, 1);
}

TEST_F(TimeTrackerTest, theIdentitiesOfItsApplications_areInTheOrderOfTheSet) {
    m_tracker.addWindowWithName(u"Mail"_s, 1);
    m_tracker.addWindowWithName(u"News"_s, 1);
    EXPECT_EQ(m_tracker.primaryUUIDs(),
              (std::vector{*m_day.node("Mail").uuid(), *m_day.node("News").uuid()}));
}

TEST_F(TimeTrackerTest, theRules_areReadAtEveryChangeOfTheSettings) {
    m_day.fakes.defaults.setObject(
        kRulesetKey,
        PropertyListDictionary{{u"Mail"_s, PropertyListDictionary{{kRuleCategories, u"work"_s}}}});
    EXPECT_EQ(m_tracker.categories().all().at(u"work"_s), std::set{u"Mail"_s});
    m_day.fakes.defaults.removeObject(kRulesetKey);
    EXPECT_TRUE(m_tracker.categories().all().empty());
}

TEST_F(TimeTrackerTest, aBrandNewIdentity_hasEightBytesAndIsNew) {
    EXPECT_EQ(TimeTracker::brandNewUUID().bytes().size(), 8);
    EXPECT_NE(TimeTracker::brandNewUUID(), TimeTracker::brandNewUUID());
}

TEST_F(TimeTrackerTest, theSandbox_isAskedForEachTime) {
    EXPECT_FALSE(m_tracker.isSandboxed());
    m_day.fakes.sandbox.sandboxed = true;
    EXPECT_TRUE(m_tracker.isSandboxed());
}

TEST_F(TimeTrackerTest, anObserverThatClearsEverythingWhileATickIsTold_doesNoHarm) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    int told = 0;
    const auto clear = [&](const ObservedChange&) {
        if (++told == 5)
            m_tracker.reset();
    };
    const auto onApp = m_day.node("Mail").observe(kActiveTimeStringKey, clear, {.prior = true});
    const auto onWindow = m_day.node("Mail", "Inbox").observe(kActiveTimeStringKey, clear, {.prior = true});
    m_day.seconds(2);
    EXPECT_NEAR(m_day.secondsOf("Mail"), 2, 0.35);
    EXPECT_TRUE(m_day.fakes.runLoop.failures().isEmpty());
}

} // namespace
