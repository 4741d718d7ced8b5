// SPDX-License-Identifier: MIT
// The cost of the whole program on a real desktop: CPU time and wake-ups a minute, compared with a timer that
// does nothing in the same minute; time to the first painted window and memory, compared with an empty
// window.
#include "bench/RunningCost.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/harness/XClient.h"

#include <QCoreApplication>

#include <csignal>
#include <vector>

namespace {

using namespace std::chrono_literals;

void measureRunning() {
    Desk desk(QStringLiteral("openbox"), Desk::Bus::Own);
    writeAccount(desk.home(), 500, 20'000);
    XClient writer(desk);
    XClient mailer(desk);
    const xcb_window_t letter = writer.open({.title = "Letter", .className = "Writer"});
    const xcb_window_t inbox = mailer.open({.title = "Inbox", .className = "Mailer"});
    Product product(desk);
    product.writeSettings({{QStringLiteral("kTKWasTimerRunning"), true}});
    product.start();
    const auto floor = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/IdleTimer"));
    const qint64 program = product.program().processIdentifier();

    const auto printMemory = [&](const char* when) {
        std::printf("memory with 20,000 windows, %s: %.1f MB proportional (budget 60)\n", when,
                    ProcessFigures::of(program).proportionalMegabytes);
    };
    product.bringToFront(writer, product.window());
    desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("ctrl+plus")});
    writer.activate(letter);
    static_cast<void>(passTime(3s));
    printCost("shown unfolded, one row counting", measureCost(program, floor->processIdentifier(), {}), 150);
    printMemory("shown unfolded");
    writer.minimise(product.window());
    writer.activate(letter);
    static_cast<void>(passTime(3s));
    printCost("hidden, nothing changing", measureCost(program, floor->processIdentifier(), {}), 60);
    bool isWriting = true;
    const auto switchOver = [&] {
        isWriting = !isWriting;
        if (isWriting)
            writer.activate(letter);
        else
            mailer.activate(inbox);
    };
    printCost("hidden, focus changing each second",
              measureCost(program, floor->processIdentifier(), switchOver), 90);
    printMemory("hidden again");
    product.end(SIGTERM);
}

// CPU time until the window is on the screen and nothing more happens.
double cpuToWindow(Desk& desk, const Program& program) {
    desk.waitForWindow(program);
    double last = -1;
    for (double now = 0; now > last + 0.5; static_cast<void>(passTime(150ms))) {
        last = now;
        now = ProcessFigures::of(program.processIdentifier()).cpuMilliseconds;
    }
    return ProcessFigures::of(program.processIdentifier()).cpuMilliseconds;
}

void measureStart() {
    Desk desk(QStringLiteral("openbox"), Desk::Bus::Own);
    writeAccount(desk.home(), 100, 1'000);
    std::vector<double> ours;
    std::vector<double> bare;
    ProcessFigures memory;
    ProcessFigures bareMemory;
    for (int run = 0; run < kRuns + 1; ++run) {
        const auto window = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/BareWindow"));
        bare.push_back(cpuToWindow(desk, *window));
        bareMemory = ProcessFigures::of(window->processIdentifier());
        const auto program = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"));
        ours.push_back(cpuToWindow(desk, *program));
        memory = ProcessFigures::of(program->processIdentifier());
    }
    std::printf("start to first painted window, 1,000 windows: %.1f CPU ms (budget 90)  bare Qt window %.1f  "
                "ratio %.1f\n",
                median(ours), median(bare), median(ours) / median(bare));
    std::printf("memory with 1,000 windows: %.1f MB proportional (budget 40)  bare Qt window %.1f\n",
                memory.proportionalMegabytes, bareMemory.proportionalMegabytes);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    measureStart();
    measureRunning();
    return 0;
}
