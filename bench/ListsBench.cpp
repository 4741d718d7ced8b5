// SPDX-License-Identifier: MIT
// What icons, the sidebar's times and the bars for shares cost while the window is shown, everything is unfolded and one
// row counts; and what they add to the start and to memory. With and without them in one run.
#include "Classes/common/Settings.h"
#include "Classes/projects/ProjectFile.h"
#include "Classes/projects/ProjectRecord.h"
#include "bench/RunningCost.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/harness/XClient.h"

#include <QCoreApplication>
#include <QDir>

#include <csignal>

namespace {

using namespace std::chrono_literals;

constexpr int kProjects = 20;

// Every fourth window of the account is in one of the projects.
void writeProjects(const TemporaryHome& home) {
    const auto store =
        PropertyList::readFile(home.dataFolder() + QStringLiteral("/Ticklog/Primary Database.tkd"));
    std::vector<ProjectRecord> projects(kProjects);
    std::size_t number = 0;
    for (const PropertyListValue& entry : *store->asDictionary()->value(QStringLiteral("Apps")).asArray())
        for (const PropertyListValue& window : *entry.asDictionary()->value(kEntryWindows).asArray())
            if (++number % 4 == 0)
                projects[number / 4 % kProjects].addMembers(
                    {*Identity::fromBytes(*window.asDictionary()->value(kRecordUUID).asData())});
    PropertyListArray records;
    for (std::size_t place = 0; place < projects.size(); ++place) {
        projects[place].setLabel(QStringLiteral("Project %1").arg(place));
        records.emplace_back(projects[place].entries());
    }
    const QString documents = home.path() + QStringLiteral("/Documents");
    QDir().mkpath(documents);
    static_cast<void>(PropertyList::writeBinaryFile(std::move(records), ProjectFile::pathIn(documents)));
}

PropertyListDictionary options(bool areOn) {
    return {{QStringLiteral("kTKWasTimerRunning"), true},
            {kListIcons, areOn},
            {kListProjectTimes, areOn},
            {kListShareBars, areOn}};
}

void measure(bool areOn) {
    const char* with = areOn ? "with them" : "without them";
    Desk desk(QStringLiteral("openbox"), Desk::Bus::Own);
    writeAccount(desk.home(), 500, 20'000);
    writeProjects(desk.home());
    XClient writer(desk);
    const xcb_window_t letter = writer.open({.title = "Letter", .className = "Writer"});
    Product product(desk);
    product.writeSettings(options(areOn));
    product.start();
    const auto floor = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/IdleTimer"));
    const qint64 program = product.program().processIdentifier();
    desk.waitForWindow(product.program());
    static_cast<void>(passTime(3s));
    const ProcessFigures started = ProcessFigures::of(program);
    std::printf("start %s: %.0f CPU ms, %.1f MB proportional\n", with, started.cpuMilliseconds,
                started.proportionalMegabytes);
    product.bringToFront(writer, product.window());
    desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("ctrl+plus")});
    writer.activate(letter);
    static_cast<void>(passTime(3s));
    printCost(with, measureCost(program, floor->processIdentifier(), {}), 150);
    std::printf("memory unfolded, %s: %.1f MB proportional (budget 60)\n", with,
                ProcessFigures::of(program).proportionalMegabytes);
    std::fflush(stdout);
    product.end(SIGTERM);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    for (const bool areOn : {true, false, true, false})
        measure(areOn);
    return 0;
}
