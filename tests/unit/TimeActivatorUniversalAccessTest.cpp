// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeActivatorUniversalAccess.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TimeActivatorUniversalAccessTest : public testing::Test {
protected:
    TimeActivatorUniversalAccess& source() {
        return dynamic_cast<TimeActivatorUniversalAccess&>(m_day.tracker.timeActivator());
    }

    FakeAccessibility& accessibility() { return m_day.fakes.accessibility; }

    // An application comes to the front whose main window has this title.
    void front(const char* application, const char* title) {
        show(application, title);
        m_day.fakes.frontApplication.switchTo(m_day.recordOf(application));
    }

    // The window is the same as long as its title begins the same.
    void show(const char* application, const char* title) {
        const QString text = QString::fromUtf8(title);
        const QString path = u"/window/"_s + text.left(1);
        accessibility().applications.insert(m_day.recordOf(application).processIdentifier,
                                            {QString::fromUtf8(application), path});
        accessibility().windowTitles.insert(path, text);
    }

    std::string calls() {
        const QStringList list = std::exchange(accessibility().state->calls, {});
        return str(list.join(u", "_s));
    }

    Day m_day{[](TimeTracker& tracker, ActivityServices& services) {
        return std::make_unique<TimeActivatorUniversalAccess>(tracker, services);
    }};
};

TEST_F(TimeActivatorUniversalAccessTest, aSwitch_subscribesToThreeNotifications) {
    front("Mail", "Inbox");
    EXPECT_EQ(calls(), "add AXMainWindowChanged, add AXFocusedWindowChanged, add AXTitleChanged, begin");
}

TEST_F(TimeActivatorUniversalAccessTest, theNextSwitch_removesThemOneAfterTheOtherFirst) {
    front("Mail", "Inbox");
    calls();
    front("Editor", "a.txt");
    EXPECT_EQ(calls(), "remove AXMainWindowChanged, remove AXFocusedWindowChanged, remove AXTitleChanged, "
                       "end, gone, "
                       "add AXMainWindowChanged, add AXFocusedWindowChanged, add AXTitleChanged, begin");
}

TEST_F(TimeActivatorUniversalAccessTest, aRemovalThatFails_endsTheRemovalsButTheObserverGoes) {
    front("Mail", "Inbox");
    calls();
    accessibility().state->refusedRemovals.insert(kAXFocusedWindowChanged);
    source().resetNotifications();
    EXPECT_EQ(calls(), "remove AXMainWindowChanged, remove AXFocusedWindowChanged, gone");
    source().resetNotifications();
    EXPECT_EQ(calls(), "");
}

TEST_F(TimeActivatorUniversalAccessTest, aSubscriptionThatFails_stillTriesTheOthersAndIsNotUndone) {
    accessibility().state->refusedAdditions.insert(kAXMainWindowChanged);
    front("Mail", "Inbox");
    EXPECT_EQ(calls(), "add AXMainWindowChanged, add AXFocusedWindowChanged, add AXTitleChanged, begin");
    source().resetNotifications();
    EXPECT_EQ(calls(), "");
}

TEST_F(TimeActivatorUniversalAccessTest, withoutAnObserver_theApplicationIsStillTold) {
    accessibility().observable = false;
    m_day.start();
    front("Mail", "Inbox");
    EXPECT_EQ(calls(), "");
    m_day.seconds(1);
    EXPECT_EQ(m_day.secondsOf("Mail"), m_day.secondsOf("Mail", "Inbox"));
}

TEST_F(TimeActivatorUniversalAccessTest, time_goesToApplicationAndWindow) {
    m_day.start();
    front("Mail", "Inbox");
    m_day.seconds(10);
    show("Mail", "Drafts");
    accessibility().tell();
    m_day.seconds(5);
    EXPECT_EQ(m_day.tree(), "Mail 15 [Drafts 5, Inbox 10]");
}

TEST_F(TimeActivatorUniversalAccessTest, aReportBetweenTwoTicks_creditsWindowAndApplicationOnce) {
    m_day.start();
    front("Mail", "Inbox");
    m_day.seconds(10);
    show("Mail", "Drafts");
    m_day.stall(0.05);
    accessibility().tell();
    EXPECT_NEAR(m_day.secondsOf("Mail", "Drafts"), 0.05, 1e-9);
    m_day.seconds(5);
    EXPECT_NEAR(m_day.secondsOf("Mail", "Inbox") + m_day.secondsOf("Mail", "Drafts"), m_day.secondsOf("Mail"),
                1e-9);
}

TEST_F(TimeActivatorUniversalAccessTest, aNewTitleOfTheSameWindow_renamesItsTimer) {
    m_day.start();
    front("Editor", "a.txt");
    m_day.seconds(10);
    show("Editor", "a.md (edited)");
    accessibility().tell();
    m_day.seconds(5);
    EXPECT_EQ(m_day.tree(), "Editor 15 [a.md 15]");
}

TEST_F(TimeActivatorUniversalAccessTest, anApplicationWithoutATitle_isNeverCreditedWithAWindow) {
    m_day.start();
    show("Mail", "Inbox");
    accessibility().applications[m_day.recordOf("Mail").processIdentifier].title.reset();
    m_day.fakes.frontApplication.switchTo(m_day.recordOf("Mail"));
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Mail 10");
}

TEST_F(TimeActivatorUniversalAccessTest, aWindowWithoutATitle_isNotTold) {
    m_day.start();
    show("Mail", "Inbox");
    accessibility().windowTitles.clear();
    m_day.fakes.frontApplication.switchTo(m_day.recordOf("Mail"));
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Mail 10");
}

TEST_F(TimeActivatorUniversalAccessTest, anApplicationWithoutAName_goesByItsAccessibleTitle) {
    accessibility().applications.insert(9, {u"The Tool"_s, {}});
    EXPECT_EQ(source().buildAppNameForDictionary(ApplicationRecord{{}, u"/opt/tool"_s, 9}), u"The Tool"_s);
    EXPECT_EQ(source().buildAppNameForDictionary(ApplicationRecord{u"Tool"_s, {}, 9}), u"Tool"_s);
    EXPECT_FALSE(source().buildAppNameForDictionary(ApplicationRecord{{}, {}, 10}));
    EXPECT_FALSE(source().buildAppNameForDictionary(std::nullopt));
}

TEST_F(TimeActivatorUniversalAccessTest, withoutTrust_nothingIsSubscribedToAndWindowsAreNotCredited) {
    accessibility().trusted = false;
    Day day([](TimeTracker& tracker, ActivityServices& services) {
        static_cast<FakeAccessibility&>(services.accessibility).trusted = false;
        return std::make_unique<TimeActivatorUniversalAccess>(tracker, services);
    });
    day.front("Mail", "Inbox");
    EXPECT_TRUE(day.fakes.accessibility.state->calls.isEmpty());
    EXPECT_FALSE(day.tracker.timeActivator().trackDocumentTiming());
    EXPECT_FALSE(day.tracker.isAXEnabled());
}

TEST_F(TimeActivatorUniversalAccessTest, trustGrantedInThePreferences_isToldAtTheNextSwitch) {
    Day day([](TimeTracker& tracker, ActivityServices& services) {
        static_cast<FakeAccessibility&>(services.accessibility).trusted = false;
        return std::make_unique<TimeActivatorUniversalAccess>(tracker, services);
    });
    TimeActivator& untrusted = day.tracker.timeActivator();
    const Announcements told(untrusted, {kIsAXEnabledKey});
    day.tracker.openUniversalAccessPreferences();
    EXPECT_EQ(day.fakes.accessibility.preferencesOpened, 1);
    day.front("Mail", "Inbox");
    EXPECT_EQ(told.told(), "");
    day.fakes.accessibility.trusted = true;
    day.front("Editor", "a.txt");
    EXPECT_EQ(told.told(), "will isAXEnabled, did isAXEnabled");
    EXPECT_TRUE(untrusted.trackDocumentTiming());
    EXPECT_FALSE(day.fakes.accessibility.state->calls.isEmpty());
    day.front("Mail", "Inbox");
    EXPECT_EQ(told.count(), 2);
}

TEST_F(TimeActivatorUniversalAccessTest, trustGrantedUnasked_isNotLookedFor) {
    const Announcements told(source(), {kIsAXEnabledKey});
    accessibility().trusted = false;
    front("Mail", "Inbox");
    EXPECT_EQ(told.told(), "");
    EXPECT_TRUE(source().trackDocumentTiming());
}

TEST_F(TimeActivatorUniversalAccessTest, itsComputeTimer_ticksTenTimesASecondAndIsMadeOnce) {
    EXPECT_FALSE(source().computeTimerIsValid());
    m_day.control.recreateComputeTimer();
    const int timers = m_day.fakes.runLoop.activeTimers();
    m_day.control.recreateComputeTimer();
    EXPECT_EQ(m_day.fakes.runLoop.activeTimers(), timers);
    EXPECT_TRUE(source().computeTimerIsValid());
    m_day.advance(1);
    EXPECT_EQ(m_day.display.menus, 10);
    m_day.control.destroyComputeTimer();
    EXPECT_FALSE(source().computeTimerIsValid());
    m_day.advance(1);
    EXPECT_EQ(m_day.display.menus, 10);
}

TEST_F(TimeActivatorUniversalAccessTest, withoutAnApplication_nothingIsToldAndNothingBreaks) {
    m_day.start();
    front("Mail", "Inbox");
    m_day.seconds(1);
    m_day.fakes.frontApplication.switchTo(std::nullopt);
    source().mainWindowDidChange();
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Mail 2 [Inbox 1]");
}

} // namespace
