// SPDX-License-Identifier: MIT
// The cost of the outline of an old account: 500 applications with 20,000 windows, without a real screen.
#include "Classes/store/TimeStoreCategory.h"
#include "bench/SampleAccount.h"
#include "bench/Stopwatch.h"
#include "interface/outline/ProgramCell.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/outline/TimeTreeModel.h"
#include "tests/fakes/TestEngine.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kApplications = 500;
constexpr int kWindows = 20000;
constexpr int kMembers = 2000;

void check(bool isRight, const char* what) {
    if (isRight)
        return;
    std::fprintf(stderr, "wrong: %s\n", what);
    std::exit(1);
}

template<class Prepare, class Work>
void measure(const char* what, double limit, Prepare&& prepare, Work&& work) {
    printAgainst(limit, what, measuredAfter(wallMs, prepare, work));
}

struct Bench {
    Bench() {
        engine.tracker.setArrayRepresentation(SampleAccount(kApplications, kWindows).entries());
        model.setSource(TimeTreeModel::sourceOf(engine.tracker));
        table.setTimeModel(model);
        table.serve({.dataCell = [this](const QModelIndex& row) {
            return programCell.cell(*model.item(row), !row.parent().isValid());
        }});
        table.resize(760, 540);
        table.show();
        settle();
    }

    void settle() {
        engine.fakes.runLoop.runPending();
        QCoreApplication::processEvents();
    }

    int rowsShown() const {
        int count = model.rowCount();
        for (int row = 0; row < model.rowCount(); ++row)
            count += model.rowCount(model.index(row, 0));
        return count;
    }

    void painted() {
        settle();
        table.viewport()->repaint();
    }

    std::shared_ptr<TimeStoreCategory> project(int first) {
        TimeStoreItem::Children members;
        for (const auto& app : engine.tracker.fullTimeSet())
            for (const auto& window : app->windows())
                members.push_back(window);
        members.erase(members.begin(), members.begin() + first);
        members.resize(kMembers);
        auto made =
            std::make_shared<TimeStoreCategory>(engine.store, QStringLiteral("Project %1").arg(first));
        made->setChildren(std::make_shared<const TimeStoreItem::Children>(std::move(members)));
        return made;
    }

    TestEngine engine;
    bool isProjectShown = false;
    ProgramCell programCell{{.isProjectShown = [this] { return isProjectShown; },
                             .tags =
                                 [](const Identity&) {
                                     return ColorTags{1, 3};
                                 },
                             .applications = [this] { return engine.tracker.timeSet(); }}};
    TimeTreeModel model{std::nullopt, engine.fakes.runLoop, [](const auto&, const QString&) {}};
    TKOutlineDisplayView table;
};

void measureFolding(Bench& bench) {
    const auto unfold = [&] { bench.table.expandAllRows(); };
    const auto fold = [&] {
        bench.table.collapseAllRows();
        bench.settle();
    };
    measure("unfold all, with layout", 100, fold, unfold);
    check(bench.rowsShown() > 20000, "all rows are there");
    measure("unfold all, painted", 100, fold, [&] { unfold(), bench.painted(); });
    measure("fold all, and forget the rows", 100, unfold, fold);
    check(bench.rowsShown() == kApplications, "only applications are there");
}

void measureSearch(Bench& bench) {
    const auto search = [&](const char* text) {
        bench.engine.tracker.setSearchString(QString::fromLatin1(text));
        bench.settle();
    };
    const auto everything = [&] {
        search("");
        bench.table.expandAllRows();
        bench.painted();
    };
    const auto few = [&] {
        search("Document 9 z");
        bench.table.expandAllRows();
        bench.painted();
    };
    measure("search narrows unfolded rows to a few, painted", 50, everything, few);
    std::printf("  %d rows are left\n", bench.rowsShown());
    measure("search ended, all unfolded again, painted", 150, few, everything);
    search("");
    bench.table.collapseAllRows();
    bench.settle();
}

void measureProjects(Bench& bench) {
    const auto one = bench.project(0);
    const auto other = bench.project(kMembers);
    bench.isProjectShown = true;
    bool isOne = false;
    measure(
        "another project of 2,000 windows, painted", 50, [&] { isOne = !isOne; },
        [&] {
            bench.model.setSource(TimeTreeModel::sourceOf(isOne ? one : other));
            bench.painted();
        });
    check(bench.rowsShown() == kMembers, "all members are shown");
    measure(
        "the same rows painted once more", 16, [] {}, [&] { bench.painted(); });
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Bench bench;
    printHead();
    measureFolding(bench);
    measureSearch(bench);
    measureProjects(bench);
    return 0;
}
