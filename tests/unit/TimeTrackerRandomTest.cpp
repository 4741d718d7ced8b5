// SPDX-License-Identifier: MIT
// Days of random work, compared with what any honest account must show.
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace {

constexpr std::array kApplications{"Mail", "Editor", "Browser", "Terminal", "mail", "Desktop"};
constexpr std::array kTitles{"a", "b (1)", "c@d", "(x)", "Untitled", "a long title of several words"};

class TimeTrackerRandomTest : public testing::TestWithParam<unsigned> {
protected:
    TimeTrackerRandomTest() { m_day.fakes.defaults.setObject(kMinutesUntilIdle, 1); }

    int pick(int count) { return int(m_random() % unsigned(count)); }

    template<class Choices>
    auto any(const Choices& choices) {
        return choices[m_random() % choices.size()];
    }

    double total() const {
        double sum = 0;
        for (const auto& app : m_day.tracker.fullTimeSet())
            sum += app->activeTime();
        return sum;
    }

    double wallSeconds() const { return secondsBetween(Date(), m_day.fakes.clock.now()); }

    // Every window is found under its key, and what is current is in the tree.
    void expectSound(const std::string& after) {
        const TimeStoreApp* current = m_day.tracker.activeStoreApp();
        const TimeStoreWindow* currentWindow = m_day.tracker.activeStoreWindow();
        bool isAppThere = !current;
        bool isWindowThere = !currentWindow;
        for (const auto& app : m_day.tracker.fullTimeSet()) {
            isAppThere |= app.get() == current;
            for (const auto& window : app->windows()) {
                isWindowThere |= window.get() == currentWindow;
                if (!window->branched()) {
                    ASSERT_EQ(app->windowStoreForName(window->name(), {}), window) << after;
                }
            }
        }
        ASSERT_TRUE(isAppThere) << after;
        ASSERT_TRUE(isWindowThere) << after;
        ASSERT_TRUE(m_day.fakes.runLoop.failures().isEmpty()) << after;
    }

    TimeStoreNode* anyNode() {
        const auto& apps = m_day.tracker.fullTimeSet();
        if (apps.empty())
            return nullptr;
        const auto& app = any(apps);
        const auto windows = app->windows();
        if (windows.empty() || pick(2) == 0)
            return app.get();
        return any(windows).get();
    }

    // In an order that no user can reach; still nothing may be lost or added.
    template<class Step>
    void expectSameTotal(Step&& step) {
        const double before = total();
        step(m_frozen[m_random() % m_frozen.size()]);
        EXPECT_NEAR(total(), before, 1e-6);
    }

    // One random event of a day. Answers which it was.
    std::string happen() {
        switch (pick(14)) {
        case 0:
            m_day.start();
            return "start";
        case 1:
            m_day.stop();
            return "stop";
        case 2:
            if (!m_day.fakes.windowList.windows.empty())
                m_day.retitle(any(kTitles));
            return "retitle";
        case 3:
            m_day.idle(pick(100));
            return "idle";
        case 4:
            m_day.asleep(pick(5000));
            return "sleep";
        case 5:
            if (auto* node = anyNode(); node && !node->branched())
                m_frozen.push_back(m_day.tracker.branchNode(*node));
            else if (node)
                m_day.tracker.branchNode(*node);
            return "freeze";
        case 6:
            if (auto* node = anyNode())
                m_day.tracker.removeUUIDs({node->uuid().value()});
            return "remove";
        case 7:
            m_day.frontSilently(any(kApplications), any(kTitles));
            return "silent switch";
        case 8:
            if (pick(10) == 0)
                m_day.tracker.reset();
            return "clear";
        case 12:
            if (!m_frozen.empty())
                expectSameTotal([&](FrozenTimer& frozen) { m_day.tracker.unbranchNode(frozen); });
            return "freezing undone";
        case 13:
            if (!m_frozen.empty())
                expectSameTotal([&](FrozenTimer& frozen) { m_day.tracker.branchNodeAgain(frozen); });
            return "freezing redone";
        case 9:
            m_day.front("Desktop");
            return "desktop";
        default:
            m_day.front(any(kApplications), any(kTitles));
            return "switch";
        }
    }

    std::mt19937 m_random{GetParam()};
    std::vector<FrozenTimer> m_frozen;
    Day m_day;
};

// The most that the account may hold: the time that passed while the timer ran, and the idle time booked at
// each onset.
TEST_P(TimeTrackerRandomTest, aDay_neverHoldsMoreThanPassedAndStaysSound) {
    SCOPED_TRACE(testing::Message() << "seed " << GetParam());
    m_day.control.registerForSystemSleep(m_day.fakes.power);
    double allowed = 0;
    double before = 0;
    for (int step = 0; step < 400; ++step) {
        const double wall = wallSeconds();
        const int reads = m_day.fakes.idleTime.reads;
        const double idleBefore = double(m_day.fakes.idleTime.idle().count()) / 1e9;
        const std::string what = happen();
        if (pick(3) > 0)
            m_day.seconds(pick(50) / 10.0);
        const double passed = wallSeconds() - wall;
        // Each reading may have booked all the idle time there was.
        const bool mayBook = m_day.fakes.idleTime.reads > reads;
        allowed = std::max(0.0, passed) + (mayBook ? 20 * (idleBefore + passed) : 0);
        const double now = total();
        ASSERT_LE(now, before + allowed + 1e-6) << what << " at step " << step;
        ASSERT_NO_FATAL_FAILURE(expectSound(what + " at step " + std::to_string(step)));
        before = now;
    }
}

// Without idle time and removals the account equals the wall time, whatever is done to windows.
TEST_P(TimeTrackerRandomTest, twoHundredQuickSwitches_sumUpToTheWallTime) {
    SCOPED_TRACE(testing::Message() << "seed " << GetParam());
    std::map<std::string, double> expected;
    std::map<std::string, int> switches;
    int sinceTick = 0;
    m_day.front("Mail", "a");
    m_day.start();
    const double wall = wallSeconds();
    for (int step = 0; step < 200; ++step) {
        const std::string name = any(kApplications);
        if (pick(2) == 0)
            m_day.front(name.c_str(), any(kTitles));
        else
            m_day.frontSilently(name.c_str(), any(kTitles));
        const int hundredths = 1 + pick(30);
        const double time = hundredths / 100.0;
        sinceTick = (sinceTick + hundredths) % 10;
        m_day.seconds(time);
        expected[name] += time;
        ++switches[name];
    }
    // Completes the tick, because the time since the last one is credited by the next.
    m_day.seconds((10 - sinceTick) / 100.0);
    const double passed = wallSeconds() - wall;
    EXPECT_NEAR(total(), passed, passed / 1000);
    for (const auto& [name, time] : expected)
        // A switch there and back is noticed at both ends.
        EXPECT_NEAR(m_day.secondsOf(name.c_str()), time, 0.15 * 2 * switches[name]) << name;
}

INSTANTIATE_TEST_SUITE_P(Seeds, TimeTrackerRandomTest, testing::Range(1U, 26U));

} // namespace
