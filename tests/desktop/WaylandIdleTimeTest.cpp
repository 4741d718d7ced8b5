// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandIdleTime.h"

#include "tests/desktop/WaylandScene.h"
#include "tests/desktop/harness/Lateness.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

constexpr auto kThreshold = 300ms;

class WaylandIdle : public testing::TestWithParam<const char*> {
protected:
    std::unique_ptr<WaylandIdleTime> open() {
        auto opened = WaylandIdleTime::open(scene->anyDesk().display().toLocal8Bit(), scene->runLoop,
                                            scene->log, scene->clock, kThreshold);
        if (!opened)
            qFatal("%s", qPrintable(opened.failure().text));
        return std::move(*opened);
    }

    // Milliseconds; -1 when nothing is told.
    std::int64_t idle() const {
        const IdleReading reading = idleTime->read();
        return reading.idle ? *reading.idle / std::chrono::milliseconds(1) : -1;
    }

    const std::unique_ptr<AnyWaylandScene> scene = makeWaylandScene(QString::fromLatin1(GetParam()));
    const std::unique_ptr<WaylandIdleTime> idleTime = open();
};

INSTANTIATE_TEST_SUITE_P(Wayland, WaylandIdle, testing::Values("sway", "kwin"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(WaylandIdle, afterInput_theTimeCountsFromIt) {
    ASSERT_TRUE(waitFor([&] { return idle() >= 500; }));
    for (int round = 0; round < 2; ++round) {
        QElapsedTimer sinceBefore;
        sinceBefore.start();
        int inputs = 0;
        const Subscription subscription = idleTime->observeInput([&] { ++inputs; });
        EXPECT_TRUE(idleTime->tellsOfInput());
        ASSERT_TRUE(scene->anyDesk().touch());
        EXPECT_TRUE(waitFor([&] { return inputs > 0; }));
        QElapsedTimer sinceAfter;
        sinceAfter.start();
        ASSERT_TRUE(waitFor([&] { return idle() <= sinceBefore.elapsed(); }));
        const Lateness lateness;
        ASSERT_TRUE(waitFor([&] { return idle() >= 800; }));
        EXPECT_GE(idle(), sinceAfter.elapsed() - 100 - lateness.seconds() * 1000);
        EXPECT_LE(idle(), sinceBefore.elapsed() + 100);
    }
}

TEST_P(WaylandIdle, aSwitchOfWindows_isNoInput) {
    WaylandClient client(scene->anyDesk(), QStringLiteral("Client"));
    client.open(QStringLiteral("First"));
    client.open(QStringLiteral("Second"));
    EXPECT_SEEN(*scene, "Client: Second");
    ASSERT_TRUE(waitFor([&] { return idle() >= 500; }));
    ASSERT_TRUE(scene->anyDesk().activate(QStringLiteral("First")));
    EXPECT_SEEN(*scene, "Client: First");
    EXPECT_GE(idle(), 500);
}

TEST_P(WaylandIdle, aCompositorThatDied_answersNothingUntilItIsBack) {
    EXPECT_GE(idle(), 0);
    scene->anyDesk().kill();
    ASSERT_TRUE(waitFor([&] { return idle() < 0; }));
    EXPECT_EQ(idleTime->read().lack, IdleReading::Lack::NoAnswer);
    scene->anyDesk().restart();
    EXPECT_TRUE(waitFor([&] { return idle() > 0; }));
}

} // namespace
