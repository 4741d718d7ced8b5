// SPDX-License-Identifier: MIT
#include "platform/linux/MutterIdleTime.h"

#include "tests/desktop/Sight.h"
#include "tests/desktop/harness/GnomeDesk.h"
#include "tests/desktop/harness/Lateness.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

// Milliseconds; -1 if nothing is reported.
std::int64_t idleOf(MutterIdleTime& idleTime) {
    const IdleReading reading = idleTime.read();
    return reading.idle ? *reading.idle / std::chrono::milliseconds(1) : -1;
}

TEST(MutterIdleTimeTest, afterInput_theTimeCountsFromIt) {
    GnomeDesk desk;
    Sight sight(desk.home().dataFolder());
    Bus bus(Bus::atAddress(desk.bus().address()), sight.runLoop, sight.log);
    auto opened = MutterIdleTime::open(bus, sight.clock, 300ms);
    ASSERT_TRUE(opened) << qPrintable(opened.failure().text);
    const std::unique_ptr<MutterIdleTime> idleTime = std::move(*opened);
    ASSERT_TRUE(waitFor([&] { return idleOf(*idleTime) >= 1000; }));
    for (int round = 0; round < 2; ++round) {
        QElapsedTimer sinceBefore;
        sinceBefore.start();
        int inputs = 0;
        const Subscription subscription = idleTime->observeInput([&] { ++inputs; });
        EXPECT_TRUE(idleTime->tellsOfInput());
        ASSERT_TRUE(desk.touch());
        EXPECT_TRUE(waitFor([&] { return inputs > 0; }));
        QElapsedTimer sinceAfter;
        sinceAfter.start();
        ASSERT_TRUE(waitFor([&] { return idleOf(*idleTime) <= sinceBefore.elapsed(); }));
        const Lateness lateness;
        ASSERT_TRUE(waitFor([&] { return idleOf(*idleTime) >= 1000; }));
        // A shell that draws in software needs time to notice and to report.
        EXPECT_GE(idleOf(*idleTime), sinceAfter.elapsed() - 1000 - lateness.seconds() * 1000);
        EXPECT_LE(idleOf(*idleTime), sinceBefore.elapsed() + 200);
    }
    desk.kill();
    EXPECT_TRUE(waitFor([&] { return idleOf(*idleTime) < 0; }));
}

TEST(MutterIdleTimeTest, aBusWithoutMutter_isRefused) {
    const TemporaryHome home;
    const SessionBus daemon(home.environment(), home.runtimeFolder());
    Sight sight(home.dataFolder());
    Bus bus(Bus::atAddress(daemon.address()), sight.runLoop, sight.log);
    EXPECT_FALSE(MutterIdleTime::open(bus, sight.clock));
}

} // namespace
