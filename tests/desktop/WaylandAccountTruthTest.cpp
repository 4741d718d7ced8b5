// SPDX-License-Identifier: MIT
// The engine on real Wayland desktops against a stopwatch: how far the account may be from what happened.
#include "platform/wayland/WaylandIdleTime.h"
#include "tests/desktop/Account.h"
#include "tests/desktop/WaylandScene.h"
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/LiveEngine.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <random>

namespace {

template<class Source, class... Rest>
std::unique_ptr<Source> openOn(const WaylandDesk& desk, LiveGround& ground, Rest&... rest) {
    auto opened = Source::open(desk.display().toLocal8Bit(), ground.runLoop, ground.log, rest...);
    if (!opened)
        qFatal("%s", qPrintable(opened.failure().text));
    return std::move(*opened);
}

class WaylandAccountTruth : public testing::TestWithParam<const char*> {
protected:
    std::unique_ptr<WaylandDesktop> openDesktop() {
        if (isSway)
            return openOn<WlrootsDesktop>(*desk, ground, ground.entries);
        return openOn<PlasmaDesktop>(*desk, ground, ground.entries);
    }

    std::unique_ptr<WaylandDesk> makeDesk() const {
        if (isSway)
            return std::make_unique<SwayDesk>();
        return std::make_unique<KWinDesk>();
    }

    const bool isSway = std::string(GetParam()) == "sway";
    const std::unique_ptr<WaylandDesk> desk = makeDesk();
    LiveGround ground;
    const std::unique_ptr<WaylandDesktop> desktop = openDesktop();
    const std::unique_ptr<WaylandIdleTime> idleTime = openOn<WaylandIdleTime>(*desk, ground, ground.clock);
    LiveEngine engine{ground, *desktop, *desktop, *idleTime};
};

INSTANTIATE_TEST_SUITE_P(Wayland, WaylandAccountTruth, testing::Values("sway", "kwin"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(WaylandAccountTruth, quickSwitches_addUpToTheWallTimeAndGoToWhomTheyBelong) {
    constexpr int kSwitches = 60;
    const QStringList names{QStringLiteral("Writer"), QStringLiteral("Mailer"), QStringLiteral("Painter")};
    std::vector<std::unique_ptr<WaylandClient>> programs;
    for (const QString& name : names) {
        programs.push_back(std::make_unique<WaylandClient>(*desk, name));
        programs.back()->open(name);
        ASSERT_TRUE(waitFor(
            [&] { return desktop->activeApplication() && desktop->activeApplication()->name == name; }));
    }
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::vector<double> truth(names.size());
    std::vector<int> switches(names.size());

    const Date beforeStart = engine.clock().now();
    engine.timer().startTimer();
    const Date afterStart = engine.clock().now();
    const Lateness lateness;
    // The last program opened is in front.
    std::size_t inFront = programs.size() - 1;
    QElapsedTimer watch;
    watch.start();
    for (int i = 0; i < kSwitches; ++i) {
        const std::size_t next = (inFront + 1 + random() % (programs.size() - 1)) % programs.size();
        ASSERT_TRUE(desk->activate(names[qsizetype(next)]));
        ASSERT_TRUE(programs[next]->awaitFocus(0));
        truth[inFront] += double(watch.nsecsElapsed()) / 1e9;
        watch.start();
        inFront = next;
        ++switches[next];
        turnEventLoopFor(std::chrono::milliseconds(20 + random() % 100));
    }
    const Date beforeEnd = engine.clock().now();
    engine.timer().computeTime();
    const Date afterEnd = engine.clock().now();
    truth[inFront] += double(watch.nsecsElapsed()) / 1e9;

    EXPECT_GE(sumOf(engine.tracker()), secondsBetween(afterStart, beforeEnd) * 0.999);
    EXPECT_LE(sumOf(engine.tracker()), secondsBetween(beforeStart, afterEnd) * 1.001);
    for (std::size_t i = 0; i < programs.size(); ++i)
        EXPECT_NEAR(timeOf(engine.tracker(), names[qsizetype(i)]), truth[i],
                    (switches[i] + 1) * 0.15 + lateness.seconds())
            << qPrintable(names[qsizetype(i)]);
}

TEST_P(WaylandAccountTruth, aProgramThatIsGone_getsNoMoreTime) {
    const QString name = QStringLiteral("Writer");
    WaylandClient writer(*desk, name);
    writer.open(name);
    engine.timer().startTimer();
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), name) > 0.2; }));
    const Seconds before = timeOf(engine.tracker(), kDesktopName);
    writer.die();
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), kDesktopName) > before; }));
    const Seconds writing = timeOf(engine.tracker(), name);
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), kDesktopName) > before + 0.3; }));
    EXPECT_EQ(timeOf(engine.tracker(), name), writing);
}

TEST_P(WaylandAccountTruth, aCompositorThatIsGone_leavesNoWindowToCredit) {
    const QString name = QStringLiteral("Writer");
    WaylandClient writer(*desk, name);
    writer.open(name);
    engine.timer().startTimer();
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), name) > 0.2; }));
    desk->kill();
    ASSERT_TRUE(waitFor([&] { return !desktop->obstacle().isEmpty(); }));
    const Seconds writing = timeOf(engine.tracker(), name);
    turnEventLoopFor(std::chrono::milliseconds(400));
    EXPECT_EQ(timeOf(engine.tracker(), name), writing);
    EXPECT_TRUE(desktop->onScreenWindows().empty());
    desk->restart();
    WaylandClient painter(*desk, QStringLiteral("Painter"));
    painter.open(QStringLiteral("Picture"));
    EXPECT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Painter")) > 0.2; }));
    EXPECT_EQ(desktop->obstacle(), QString());
}

} // namespace
