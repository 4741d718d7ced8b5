// SPDX-License-Identifier: MIT
// The cost of an old account in the main window, from the key or click to the painted result: 500
// applications with 20,000 windows, two projects with 2,000 members, without a real screen.
#include "bench/SampleAccount.h"
#include "bench/Stopwatch.h"
#include "interface/mainwindow/TKController.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/pasteboard/TimePasteboard.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakePlatform.h"

#include <QApplication>
#include <QLineEdit>

#include <cstdio>

namespace {

constexpr int kApplications = 500;
constexpr int kWindows = 20000;
constexpr std::size_t kMembers = 2000;

struct Bench {
    Bench() {
        controller.tracker().setArrayRepresentation(SampleAccount(kApplications, kWindows).entries());
        std::vector<Identity> windows;
        for (const auto& app : controller.tracker().fullTimeSet())
            for (const auto& window : app->windows())
                windows.push_back(*window->uuid());
        for (std::size_t i = 0; i < 200; ++i) {
            const auto first = windows.begin() + std::ptrdiff_t(i < 2 ? i * kMembers : i * 90);
            controller.projects().addNewProjectWithItems(
                {first, first + std::ptrdiff_t(i < 2 ? kMembers : 20)});
        }
        controller.displayMainWindow();
        painted();
    }

    void painted() {
        fakes.runLoop.runPending();
        QCoreApplication::processEvents();
        controller.window().mainTable().viewport()->repaint();
    }

    void type(const char* text) {
        controller.window().searchAppField().setText(QString::fromLatin1(text));
        painted();
    }

    void select(int row) {
        auto& outline = controller.window().projectOutline();
        outline.setCurrentIndex(outline.model()->index(row, 0));
        painted();
    }

    template<class Prepare, class Work>
    void measure(const char* what, double limit, Prepare&& prepare, Work&& work) {
        printAgainst(limit, what, measuredAfter(wallMs, prepare, work));
    }

    FakePlatform fakes;
    FakeAlerts alerts;
    TKController controller{fakes.platform, alerts, [](int) {}};
};

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Bench bench;
    auto& table = bench.controller.window().mainTable();
    printHead();
    bench.measure(
        "the first letter of a search", 50, [&] { bench.type(""); }, [&] { bench.type("e"); });
    bench.measure(
        "a further letter", 50, [&] { bench.type("d"); }, [&] { bench.type("do"); });
    bench.measure(
        "a search that leaves a few rows", 50, [&] { bench.type("Document 9"); },
        [&] { bench.type("Document 99 z"); });
    bench.measure(
        "a search that finds nothing", 50, [&] { bench.type("Document"); },
        [&] { bench.type("Documentqqq"); });
    bench.measure(
        "the search cleared", 50, [&] { bench.type("Document 9"); }, [&] { bench.type(""); });
    bench.measure(
        "another project of 2,000 members", 50, [&] { bench.select(1); }, [&] { bench.select(2); });
    bench.measure(
        "from a project to all timers", 50, [&] { bench.select(1); }, [&] { bench.select(0); });
    bench.measure(
        "expanding all", 100, [&] { table.collapseAllRows(), bench.painted(); },
        [&] { table.expandAllRows(), bench.painted(); });
    const TimePasteboard pasteboard(bench.controller.tracker(), bench.controller.projects());
    table.selectAll();
    QModelIndexList rows = table.selectedRows();
    rows.resize(std::min<qsizetype>(rows.size(), 1000));
    bench.measure(
        "all readable forms of 1,000 rows", 100, [] {},
        [&] {
            const auto written = pasteboard.writeItems(rows);
            for (const QString& form : written->formats())
                if (written->data(form).isEmpty())
                    std::puts("WRONG: an empty form");
        });
    return 0;
}
