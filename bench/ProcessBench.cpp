// SPDX-License-Identifier: MIT
// What the whole program costs on a real desktop: CPU time and wake-ups a minute beside a timer that does
// nothing, in the same minute; start to first painted window and memory beside a bare window.
#include "Classes/Engine.h"
#include "Classes/TimeDatabase.h"
#include "bench/ProcessFigures.h"
#include "bench/SampleAccount.h"
#include "bench/Stopwatch.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/harness/XClient.h"
#include "tests/fakes/FakePlatform.h"

#include <QCoreApplication>
#include <QDir>

#include <csignal>
#include <vector>

namespace {

using namespace std::chrono_literals;

constexpr auto kRun = 12s;
constexpr int kRuns = 5;

// Writes a database of that size where the product looks for it.
void writeAccount(Desk& desk, int applications, int windows) {
    FakePlatform fakes;
    Engine engine(fakes.platform, {});
    Folders folders = fakes.folders;
    folders.applicationSupport = desk.home().dataFolder() + QStringLiteral("/Ticklog");
    TimeDatabase database(engine.tracker(), engine.registry(), fakes.defaults, folders, fakes.log, {});
    engine.tracker().setArrayRepresentation(SampleAccount(applications, windows).entries());
    static_cast<void>(database.saveSettingsToDiskAtURL());
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

// Per minute, medians of the runs, of a program and of the floor beside it.
struct Cost {
    double cpu;
    double wakeUps;
    double floorCpu;
    double floorWakeUps;
};

Cost measureCost(qint64 program, qint64 floor, const std::function<void()>& eachSecond) {
    std::array<std::vector<double>, 4> figures;
    for (int run = 0; run < kRuns; ++run) {
        const ProcessFigures before = ProcessFigures::of(program);
        const ProcessFigures floorBefore = ProcessFigures::of(floor);
        for (auto passed = 0s; passed < kRun; passed += 1s) {
            if (eachSecond)
                eachSecond();
            turnEventLoopFor(1s);
        }
        const ProcessFigures after = ProcessFigures::of(program);
        const ProcessFigures floorAfter = ProcessFigures::of(floor);
        const double perMinute = 60.0 / double(kRun.count());
        figures[0].push_back((after.cpuMilliseconds - before.cpuMilliseconds) * perMinute);
        figures[1].push_back((after.wakeUps - before.wakeUps) * perMinute);
        figures[2].push_back((floorAfter.cpuMilliseconds - floorBefore.cpuMilliseconds) * perMinute);
        figures[3].push_back((floorAfter.wakeUps - floorBefore.wakeUps) * perMinute);
    }
    return {median(figures[0]), median(figures[1]), median(figures[2]), median(figures[3])};
}

void printCost(const char* name, const Cost& cost, double budget) {
    std::printf(
        "%-34s %6.1f CPU ms/min (budget %3.0f)  floor %5.1f  ratio %4.1f | %5.0f wake-ups/min, floor %4.0f\n",
        name, cost.cpu, budget, cost.floorCpu, cost.cpu / cost.floorCpu, cost.wakeUps, cost.floorWakeUps);
    std::fflush(stdout);
}

void measureRunning() {
    Desk desk(QStringLiteral("openbox"), Desk::Bus::Own);
    writeAccount(desk, 500, 20'000);
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
    turnEventLoopFor(3s);
    printCost("shown unfolded, one row counting", measureCost(program, floor->processIdentifier(), {}), 150);
    printMemory("shown unfolded");
    writer.minimise(product.window());
    writer.activate(letter);
    turnEventLoopFor(3s);
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

// CPU time until a window is on the screen and nothing more is done.
double cpuToWindow(Desk& desk, const Program& program) {
    desk.waitForWindow(program);
    double last = -1;
    for (double now = 0; now > last + 0.5; turnEventLoopFor(150ms)) {
        last = now;
        now = ProcessFigures::of(program.processIdentifier()).cpuMilliseconds;
    }
    return ProcessFigures::of(program.processIdentifier()).cpuMilliseconds;
}

void measureStart() {
    Desk desk(QStringLiteral("openbox"), Desk::Bus::Own);
    writeAccount(desk, 100, 1'000);
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
