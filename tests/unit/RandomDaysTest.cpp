// SPDX-License-Identifier: MIT
// Days with random events, compared with a plain account of the same days. TICKLOG_RANDOM_DAYS says how many.
#include "tests/fakes/Day.h"
#include "tests/fakes/PlainDay.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

constexpr std::array kApplications{"Mail", "Editor", "Browser", "Terminal"};
constexpr std::array kTitles{"a", "b (1)", "c@d", "Untitled", "(x)", "a long title of several words"};
constexpr int kStepsADay = 300;

// For one account: a switch is noticed at the next tick, at both of its ends.
constexpr double kPrecision = 0.31;
// For Idle: the display counts its own whole seconds, and may reach the next one within a tick.
constexpr double kIdlePrecision = 1.39;
// For the sum: the time since the last tick is lost when the timer stops.
constexpr double kTotalPrecision = 0.11;
// The same where ticks do not keep step with the switches: a window that says its program late makes two of them.
constexpr double kTotalPrecisionOnDemand = 0.21;

std::string frozenAs(const QString& name) {
    const qsizetype dated = name.indexOf(QLatin1String(" (Frozen "));
    return (dated < 0 ? name : name.left(dated) + QLatin1String(" (Frozen)")).toStdString();
}

// "(x)" contains no document.
bool namesDocument(const char* title) {
    return title && *title != '(';
}

class RandomDay {
public:
    RandomDay(unsigned seed, bool hasTitleRows, Day::Ticking ticking = Day::Ticking::Steady)
        : m_hasTitleRows(hasTitleRows)
        , m_ticking(ticking)
        , m_random(seed) {
        launch();
    }

    // Any random event, and then some time. Answers which event it was.
    std::string live() {
        const std::string what = happen();
        const int more = pick(4);
        if (more == 0)
            away(pick(1500) / 10.0);
        else if (more > 1)
            // At least until the next check, or nobody would notice that somebody was there.
            work((1 + pick(600)) / 10.0);
        // Whoever asks for the account is an event as well.
        m_day->fakes.runLoop.wake();
        return what;
    }

    PlainDay::Account applications() const {
        PlainDay::Account account;
        for (const auto& app : m_day->tracker.fullTimeSet())
            account[frozenAs(app->name())] += app->activeTime();
        return account;
    }

    PlainDay::Account windows() const {
        PlainDay::Account account;
        for (const auto& app : m_day->tracker.fullTimeSet())
            for (const auto& window : app->windows())
                account[frozenAs(app->name())] += window->activeTime();
        return account;
    }

    double leastTime() const {
        double least = 0;
        for (const auto& app : m_day->tracker.fullTimeSet()) {
            least = std::min(least, app->activeTime());
            for (const auto& window : app->windows())
                least = std::min(least, window->activeTime());
        }
        return least;
    }

    // Broken contracts, except the one that a gap with a young window reports.
    QStringList failures() const {
        QStringList failures = m_day->fakes.runLoop.failures();
        failures.removeIf([](const QString& line) {
            return line.startsWith(QLatin1String("*** Assertion failure in Classes/TimeTracker:432"));
        });
        return failures;
    }

    PlainDay plain;

private:
    void launch() {
        m_day = std::make_unique<Day>(m_ticking);
        m_day->fakes.idleTime.tells = true;
        m_day->fakes.defaults.setObject(kMinutesUntilIdle, 1);
        m_day->fakes.defaults.setObject(kRowForEachTitle, m_hasTitleRows);
        m_day->advance(0);
        m_day->control.registerForSystemSleep(m_day->fakes.power);
        m_day->fakes.idleTime.touch();
        front("Mail", "a");
    }

    int pick(int count) { return int(m_random() % unsigned(count)); }

    template<class Choices>
    auto any(const Choices& choices) {
        return choices[m_random() % choices.size()];
    }

    void work(double time) {
        m_day->seconds(time);
        plain.work(time);
    }

    void away(double time) {
        m_day->idle(time);
        plain.away(time);
    }

    void stall() {
        const double time = pick(3000) / 10.0;
        // Until a tick is due, nobody can tell a stall from a wait.
        m_day->advance(0);
        const auto due = m_day->ticks().due();
        const double waited = due ? std::min(time, secondsBetween(m_day->fakes.clock.instant(), *due)) : 0;
        m_day->stall(time);
        m_day->advance(0);
        m_day->fakes.runLoop.wake();
        plain.away(waited);
        plain.stalled(time - waited);
    }

    void front(const char* name, const char* title) {
        m_day->front(name, title);
        plain.front(name, namesDocument(title));
    }

    // While a window has not said which program it belongs to, nothing is credited; then all of it is.
    void frontUndecided(const char* name, const char* title) {
        m_day->front(name, title);
        m_day->fakes.frontApplication.switchTo(m_day->fakes.frontApplication.record, true);
        plain.front(name, namesDocument(title));
        away(0.1 * (1 + pick(9)));
        m_day->fakes.runLoop.wake();
        m_day->fakes.frontApplication.switchTo(m_day->fakes.frontApplication.record);
    }

    void frontSilently(const char* name, const char* title) {
        m_day->frontSilently(name, title);
        plain.front(name, namesDocument(title));
        // The next look finds it.
        away(0.1);
    }

    void retitle() {
        const auto& windows = m_day->fakes.windowList.windows;
        const auto& inFront = m_day->fakes.frontApplication.record;
        if (windows.empty() || !inFront ||
            windows.front().ownerProcessIdentifier != inFront->processIdentifier)
            return;
        const char* title = any(kTitles);
        m_day->retitle(title);
        plain.retitle(namesDocument(title));
        // The next look finds it.
        away(0.1);
    }

    void fallAsleep() {
        const double time = pick(50'000);
        if (pick(2) == 0) {
            m_day->fakes.clock.sleepFor(Day::nanoseconds(time));
            return;
        }
        const bool wasRunning = m_day->control.isRunning();
        plain.stop();
        if (wasRunning)
            keep();
        m_day->asleep(time);
        plain.input();
        if (wasRunning)
            plain.start();
    }

    void leaveSession() {
        m_day->control.sessionDidResignActive();
        keep();
        const double time = pick(100) / 10.0;
        m_day->stall(time);
        m_day->control.sessionDidBecomeActive();
        m_day->advance(0);
        plain.stalled(time);
    }

    void freeze() {
        const auto apps = m_day->tracker.fullTimeSet();
        if (apps.empty())
            return;
        const auto app = any(apps);
        if (app->branched())
            return;
        plain.freeze(app->name().toStdString());
        m_day->tracker.branchNode(*app);
    }

    void remove() {
        const auto apps = m_day->tracker.fullTimeSet();
        if (apps.empty())
            return;
        const auto app = any(apps);
        if (app->branched())
            return;
        plain.forget(app->name().toStdString());
        m_day->tracker.removeUUIDs({app->uuid().value()});
    }

    // Saves what a launch after a kill would find.
    void keep() {
        m_saved = m_day->tracker.arrayRepresentation();
        m_savedPlain = plain;
        m_savedPlain.adopt(applications(), windows());
    }

    void kill() {
        const bool wasRunning = m_day->control.isRunning();
        launch();
        m_day->tracker.setArrayRepresentation(m_saved);
        plain = m_savedPlain;
        plain.stop();
        plain.input();
        plain.front("Mail", true);
        if (!wasRunning)
            return;
        m_day->start();
        plain.start();
    }

    std::string happen() {
        m_day->fakes.runLoop.wake();
        switch (pick(17)) {
        case 0:
            m_day->start();
            plain.start();
            return "start";
        case 1:
            m_day->stop();
            plain.stop();
            keep();
            return "stop";
        case 2:
            retitle();
            return "another title";
        case 3:
            stall();
            return "stall";
        case 4:
            fallAsleep();
            return "sleep";
        case 5:
            freeze();
            return "freeze";
        case 6:
            remove();
            return "remove";
        case 7:
            front("ScreenSaverEngine", nullptr);
            return "lock";
        case 8:
            if (pick(4) > 0)
                return "nothing";
            m_day->tracker.reset();
            plain.clear();
            return "clear";
        case 9:
            m_day->fakes.clock.setWall(m_day->fakes.clock.now() + std::chrono::minutes(pick(10'000) - 5000));
            return "clock set";
        case 10:
            leaveSession();
            return "session left and back";
        case 11:
            kill();
            return "kill";
        case 12:
            front("Desktop", nullptr);
            return "desktop";
        case 13:
            frontSilently(any(kApplications), any(kTitles));
            return "switch that nobody tells";
        case 14:
            frontUndecided(any(kApplications), any(kTitles));
            return "a window that says its program late";
        default:
            front(any(kApplications), any(kTitles));
            return "switch";
        }
    }

    bool m_hasTitleRows;
    Day::Ticking m_ticking;
    std::mt19937 m_random;
    std::unique_ptr<Day> m_day;
    PlainDay m_savedPlain;
    PropertyListArray m_saved;
};

void expectSame(const PlainDay::Account& account, const PlainDay::Account& expected, double totalPrecision,
                const std::string& what) {
    PlainDay::Account difference = account;
    for (const auto& [name, time] : expected)
        difference[name] -= time;
    double total = 0;
    for (const auto& [name, time] : difference) {
        EXPECT_NEAR(time, 0, name == "Idle" ? kIdlePrecision : kPrecision) << what << ": " << name;
        total += time;
    }
    EXPECT_NEAR(total, 0, totalPrecision + std::abs(difference["Idle"])) << what << ": all together";
}

class RandomDaysTest : public testing::TestWithParam<unsigned> {
protected:
    static void expectTruth(unsigned firstSeed, bool hasTitleRows,
                            Day::Ticking ticking = Day::Ticking::Steady);
};

TEST_P(RandomDaysTest, whateverHappens_nothingIsLostAndNothingIsBookedTwice) {
    expectTruth(GetParam(), false);
}

TEST_P(RandomDaysTest, withARowForEachTitle_theSumsAreTheSame) {
    expectTruth(GetParam(), true);
}

TEST_P(RandomDaysTest, withTicksOnDemand_theAccountIsTheSame) {
    expectTruth(GetParam(), false, Day::Ticking::OnDemand);
}

TEST_P(RandomDaysTest, withTicksOnDemandAndARowForEachTitle_theSumsAreTheSame) {
    expectTruth(GetParam(), true, Day::Ticking::OnDemand);
}

void RandomDaysTest::expectTruth(unsigned firstSeed, bool hasTitleRows, Day::Ticking ticking) {
    const unsigned days = unsigned(qEnvironmentVariableIntValue("TICKLOG_RANDOM_DAYS"));
    const double total = ticking == Day::Ticking::Steady ? kTotalPrecision : kTotalPrecisionOnDemand;
    for (unsigned seed = firstSeed; seed <= std::max(firstSeed, days); seed += 20) {
        RandomDay day(seed, hasTitleRows, ticking);
        for (int step = 0; step < kStepsADay && !HasFailure(); ++step) {
            const std::string what =
                day.live() + " at step " + std::to_string(step) + " of day " + std::to_string(seed);
            expectSame(day.applications(), day.plain.applications(), total, what + ", applications");
            expectSame(day.windows(), day.plain.windows(), total, what + ", windows");
            EXPECT_GE(day.leastTime(), 0) << what;
            EXPECT_TRUE(day.failures().isEmpty()) << what << qPrintable(day.failures().join(u'\n'));
            day.plain.adopt(day.applications(), day.windows());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Days, RandomDaysTest, testing::Range(1U, 21U));

} // namespace
