// SPDX-License-Identifier: MIT
#include "Classes/engine/TimeActivatorScreenCapture.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class TimeActivatorScreenCaptureTest : public testing::Test {
protected:
    TimeActivatorScreenCapture& source() {
        return dynamic_cast<TimeActivatorScreenCapture&>(m_day.tracker.timeActivator());
    }

    static std::string document(const char* title) {
        return str(TimeActivator::getDocStringNameForName(QString::fromUtf8(title)).value_or(u"none"_s));
    }

    std::string titleSeen() { return str(source().windowUpdatingName().value_or(u"none"_s)); }

    WindowListEntry& frontWindow() { return m_day.fakes.windowList.windows.at(0); }

    Day m_day;
};

class CountingTarget : public ComputeTarget {
public:
    void computeTime() override { ++ticks; }

    int ticks = 0;
};

TEST_F(TimeActivatorScreenCaptureTest, theDocument_isTheTitleUpToTheFirstParenthesisOrAtSign) {
    EXPECT_EQ(document("Report.txt (edited)"), "Report.txt");
    EXPECT_EQ(document("me@host: ~"), "me");
    EXPECT_EQ(document("a (b) @ c"), "a");
    EXPECT_EQ(document("  Report.txt \t"), "Report.txt");
    EXPECT_EQ(document("a)b"), "a)b");
    EXPECT_EQ(document(""), "none");
    EXPECT_EQ(document("   "), "none");
    EXPECT_EQ(document("(3) Inbox"), "none");
    EXPECT_EQ(document("  (3) Inbox"), "none");
    EXPECT_EQ(document("@me"), "none");
    EXPECT_FALSE(TimeActivator::getDocStringNameForName(std::nullopt));
}

TEST_F(TimeActivatorScreenCaptureTest, theFactory_makesAWindowListSourceWhateverTheTrust) {
    m_day.fakes.accessibility.trusted = false;
    const auto made = TimeActivator::activatorForTracker(m_day.tracker, m_day.activity);
    EXPECT_TRUE(dynamic_cast<TimeActivatorScreenCapture*>(made.get()));
    EXPECT_TRUE(made->isAXEnabled());
    EXPECT_TRUE(made->trackDocumentTiming());
}

TEST_F(TimeActivatorScreenCaptureTest, thePoll_runsTenTimesASecondAlsoWhileNothingIsAttached) {
    const int before = m_day.fakes.windowList.copies;
    m_day.advance(10);
    EXPECT_EQ(m_day.fakes.windowList.copies - before, 100);
}

TEST_F(TimeActivatorScreenCaptureTest, ticks_comeWhileAControllerIsAttached) {
    CountingTarget target;
    EXPECT_FALSE(source().computeTimerIsValid());
    source().createComputeTimerForController(target);
    EXPECT_TRUE(source().computeTimerIsValid());
    m_day.advance(1);
    EXPECT_EQ(target.ticks, 10);
    source().destroyComputeTimer();
    EXPECT_FALSE(source().computeTimerIsValid());
    m_day.advance(1);
    EXPECT_EQ(target.ticks, 10);
}

TEST_F(TimeActivatorScreenCaptureTest, theFrontWindow_isTheFirstOrdinaryOneOfTheProcess) {
    m_day.front("Mail", "Inbox");
    m_day.front("Editor", "a.txt");
    auto dock = frontWindow();
    dock.isOrdinary = false;
    dock.name = u"tooltip"_s;
    dock.number = 1;
    m_day.fakes.windowList.windows.insert(m_day.fakes.windowList.windows.begin(), dock);
    m_day.advance(0.1);
    EXPECT_EQ(titleSeen(), "a.txt");
    EXPECT_TRUE(source().lastUpdateWindowDict()->isOrdinary);
    m_day.fakes.frontApplication.record = m_day.recordOf("Mail");
    m_day.advance(0.1);
    EXPECT_EQ(titleSeen(), "Inbox");
}

TEST_F(TimeActivatorScreenCaptureTest, aWindowWithoutATitle_goesByItsOwnersName) {
    m_day.front("Mail", "Inbox");
    frontWindow().name.reset();
    m_day.advance(0.1);
    EXPECT_EQ(titleSeen(), "Mail");
    frontWindow().name = u""_s;
    m_day.advance(0.1);
    EXPECT_EQ(titleSeen(), "");
}

TEST_F(TimeActivatorScreenCaptureTest, withoutAWindowOrAProcess_thereIsNoTitleAndNoEntry) {
    m_day.front("Mail", "Inbox");
    m_day.closeAllWindows();
    m_day.advance(0.1);
    EXPECT_EQ(titleSeen(), "none");
    EXPECT_FALSE(source().lastUpdateWindowDict());
    m_day.front("Mail", "Inbox");
    m_day.fakes.frontApplication.record.reset();
    m_day.advance(0.1);
    EXPECT_EQ(titleSeen(), "none");
    EXPECT_FALSE(source().lastUpdateWindowDict());
}

TEST_F(TimeActivatorScreenCaptureTest, aNewTitleOfTheSameWindow_renamesItsTimer) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    const auto identity = m_day.node("Editor", "a.txt").uuid();
    m_day.retitle("b.txt");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Editor 2 [b.txt 2]");
    EXPECT_EQ(m_day.node("Editor", "b.txt").uuid(), identity);
}

TEST_F(TimeActivatorScreenCaptureTest, anotherWindowOfTheSameApplication_isAnotherTimer) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    m_day.window("b.txt");
    m_day.seconds(1);
    m_day.window("a.txt");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Editor 3 [a.txt 2, b.txt 1]");
}

TEST_F(TimeActivatorScreenCaptureTest, anotherWindowOfTheSameTitle_isCreditedToTheSameTimer) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    auto second = frontWindow();
    second.number = 7;
    m_day.fakes.windowList.windows.insert(m_day.fakes.windowList.windows.begin(), second);
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Editor 2 [a.txt 2]");
}

TEST_F(TimeActivatorScreenCaptureTest, aNumberReusedByAnotherProcess_renamesNothing) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    const auto number = frontWindow().number;
    m_day.closeAllWindows();
    m_day.fakes.windowList.windows = {
        {number, m_day.recordOf("Mail").processIdentifier, true, u"Inbox"_s, u"Mail"_s}};
    m_day.fakes.frontApplication.switchTo(m_day.recordOf("Mail"));
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Editor 1 [a.txt 1], Mail 1 [Inbox 1]");
}

TEST_F(TimeActivatorScreenCaptureTest, aWindowThatClosesAndComesBack_isTheSameTimer) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    m_day.closeAllWindows();
    m_day.seconds(1);
    m_day.window("a.txt");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Editor 3 [a.txt 2]");
}

TEST_F(TimeActivatorScreenCaptureTest, aSwitch_startsTheClockAnewAndPollsAtOnce) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    m_day.stall(0.05);
    m_day.front("Mail", "Inbox");
    EXPECT_EQ(titleSeen(), "Inbox");
    EXPECT_EQ(source().startDate(), m_day.fakes.clock.instant());
    EXPECT_EQ(source().currentAppName(), u"Mail"_s);
}

TEST_F(TimeActivatorScreenCaptureTest, beforeAnything_thereIsNoStartDate) {
    EXPECT_FALSE(source().startDate());
    source().resetObservations();
    EXPECT_EQ(source().startDate(), m_day.fakes.clock.instant());
}

TEST_F(TimeActivatorScreenCaptureTest, anApplicationWithoutAName_goesByItsProgramsName) {
    m_day.fakes.frontApplication.programNames.insert(u"/opt/tool"_s, u"The Tool"_s);
    EXPECT_EQ(source().buildAppNameForDictionary(ApplicationRecord{{}, u"/opt/tool"_s, 1}), u"The Tool"_s);
    EXPECT_EQ(source().buildAppNameForDictionary(ApplicationRecord{u"Tool"_s, u"/opt/tool"_s, 1}), u"Tool"_s);
    EXPECT_FALSE(source().buildAppNameForDictionary(ApplicationRecord{{}, u"/opt/other"_s, 1}));
    EXPECT_FALSE(source().buildAppNameForDictionary(std::nullopt));
}

TEST_F(TimeActivatorScreenCaptureTest, withoutNewsOfSwitches_pollingStillFollowsTheFrontApplication) {
    Day day([](TimeTracker& tracker, ActivityServices& services) {
        static_cast<FakeFrontApplication&>(services.frontApplication).tellsOfSwitches = false;
        return TimeActivator::activatorForTracker(tracker, services);
    });
    EXPECT_EQ(str(day.fakes.log.lines.join(u'\n')), "Could not install app change handler.");
    day.frontSilently("Mail", "Inbox");
    day.start();
    day.seconds(10);
    day.frontSilently("Editor", "a.txt");
    day.seconds(10);
    EXPECT_EQ(day.tree(), "Editor 10 [a.txt 10], Mail 10 [Inbox 10]");
}

TEST_F(TimeActivatorScreenCaptureTest, theSource_endsWithItsPollAndItsHandler) {
    FakeFrontApplication front;
    const ActivityServices& day = m_day.activity;
    ActivityServices services{front, day.windowList, day.accessibility, day.runLoop, day.clock, day.log};
    const int timers = m_day.fakes.runLoop.activeTimers();
    auto made = TimeActivator::activatorForTracker(m_day.tracker, services);
    EXPECT_TRUE(front.isObserved());
    EXPECT_EQ(m_day.fakes.runLoop.activeTimers(), timers + 1);
    made.reset();
    EXPECT_FALSE(front.isObserved());
    EXPECT_EQ(m_day.fakes.runLoop.activeTimers(), timers);
}

TEST_F(TimeActivatorScreenCaptureTest, tornDown_itTellsTheTrackerNothing) {
    m_day.start();
    source().teardown();
    m_day.front("Mail", "Inbox");
    m_day.advance(1);
    EXPECT_EQ(m_day.tree(), "");
}

TEST_F(TimeActivatorScreenCaptureTest, aLongTitle_isOneTimer) {
    const QByteArray title(10000, 'x');
    m_day.start();
    m_day.front("Editor", title.constData());
    m_day.seconds(1);
    EXPECT_EQ(m_day.secondsOf("Editor", title.constData()), m_day.secondsOf("Editor"));
}

} // namespace
