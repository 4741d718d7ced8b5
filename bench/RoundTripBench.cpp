// SPDX-License-Identifier: MIT
// What a tick asks the X server: only the idle time.
#include "bench/Stopwatch.h"
#include "tests/desktop/harness/LiveEngine.h"
#include "tests/desktop/harness/XClient.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    Desk desk;
    XClient program(desk);
    const xcb_window_t letter = program.open({.title = "Letter", .className = "Writer"});
    program.activate(letter);
    X11LiveEngine engine(desk);
    engine.timer().startTimer();
    static_cast<void>(passTime(std::chrono::seconds(1)));

    constexpr int kTicks = 100'000;
    const quint64 before = engine.desktop().roundTrips();
    const double start = processCpuMs();
    for (int i = 0; i < kTicks; ++i)
        engine.timer().computeTime();
    std::printf("nothing changed: %.5f round trips and %.2f CPU us a tick\n",
                double(engine.desktop().roundTrips() - before) / kTicks,
                (processCpuMs() - start) * 1000 / kTicks);
    return 0;
}
