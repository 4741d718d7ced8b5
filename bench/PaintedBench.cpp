// SPDX-License-Identifier: MIT
// What looking at ten years of history costs, from the command to the painted window: the question to the file, the
// sums, the rows and the picture, all on one thread here. And the frames of scrolling and zooming, as percentiles.
// `PaintedBench FILE` takes the file from there, or makes it there.
#include "Classes/history/HistoryKeeper.h"
#include "bench/BusyPerson.h"
#include "bench/Stopwatch.h"
#include "interface/history/DayPicture.h"
#include "tests/interface/HistoryViewDesk.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QWheelEvent>

namespace {

constexpr int kYears = 10;
constexpr int kFrames = 300;
// A frame at 60 hertz.
constexpr double kFrame = 16;

// The person's last day is yesterday.
void makeFile(const QString& path, QDate today) {
    const int days = kYears * BusyPerson::kDaysAYear;
    const QDate first = today.addDays(-1 - (days - 1) * 365 / BusyPerson::kDaysAYear);
    HistoryKeeper keeper(path);
    BusyPerson person(QDateTime(first, QTime(0, 0), Qt::UTC).toMSecsSinceEpoch());
    for (int day = 0; day < days; ++day)
        keeper.write(person.day(day));
    keeper.close();
}

struct Bench : HistoryViewDesk {
    explicit Bench(const QString& file) {
        history.finish();
        if (!QFile::exists(file))
            makeFile(file, today(0).date());
        QFile::remove(history.path());
        QFile::copy(file, history.path());
        controller.window().resize(1400, 900);
        showHistory();
    }

    // A day of work in a week, a month and a year that are full of it.
    QDate workday() const { return today(0).date().addDays(-20); }

    void paint() {
        settle();
        controller.window().repaint();
    }

    // Something else is shown before each, so that nothing is answered by what is there already.
    void measure(const char* what, double limit, const CalendarRange& range) {
        const auto elsewhere = CalendarRange::span(range.first().addDays(-1), range.first().addDays(-1));
        const Measure times = measuredAfter(
            processCpuMs, [&] { view.showRange(elsewhere), paint(); },
            [&] { view.showRange(range), paint(); });
        printAgainst(limit, what, times);
        if (outline().model()->rowCount() == 0)
            std::puts("WRONG: nothing is shown");
    }

    // `notches` of the wheel, by the number of the frame.
    void measureFrames(const char* what, QWidget& turned, const std::function<int(int)>& notches,
                       Qt::KeyboardModifiers modifiers) {
        std::vector<double> frames;
        const QPointF middle = QRectF(turned.rect()).center();
        for (int frame = 0; frame < kFrames; ++frame) {
            const double start = processCpuMs();
            QWheelEvent event(middle, turned.mapToGlobal(middle), {}, {0, notches(frame) * 120}, Qt::NoButton,
                              modifiers, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&turned, &event);
            QCoreApplication::processEvents();
            turned.repaint();
            frames.push_back(processCpuMs() - start);
        }
        std::ranges::sort(frames);
        const auto percentile = [&](int part) { return frames[std::size_t(kFrames * part / 100)]; };
        std::printf("%-52s 50%% %5.1f  95%% %5.1f  99%% %5.1f  all %5.1f ms  (at most %.0f)\n", what,
                    percentile(50), percentile(95), percentile(99), frames.back(), kFrame);
    }
};

void measureRanges(Bench& bench) {
    const QDate day = bench.workday();
    using Kind = CalendarRange::Kind;
    const auto around = [&](Kind kind) { return CalendarRange::around(kind, day, Qt::Monday); };
    for (QAction* by : {bench.historyActions().byProgram, bench.historyActions().byProject}) {
        bench.command(by);
        std::printf("%s\n", qPrintable(by->iconText()));
        bench.measure("a day, to the painted window", 50, around(Kind::Day));
        bench.measure("a week", 50, around(Kind::Week));
        bench.measure("a month", 50, around(Kind::Month));
        bench.measure("a year", 150, around(Kind::Year));
        bench.measure("ten years by month", 400, CalendarRange::span(day.addYears(-kYears), day));
    }
    bench.command(bench.historyActions().byProgram);
}

void measureMoving(Bench& bench) {
    bench.view.showRange(CalendarRange::around(CalendarRange::Kind::Day, bench.workday(), Qt::Monday));
    bench.paint();
    DayPicture& day = bench.pane().dayPicture();
    const auto inAndOut = [](int frame) { return frame / 20 % 2 == 0 ? 1 : -1; };
    bench.measureFrames("zooming a day of 1,500 stretches in and out", day, inAndOut, Qt::ControlModifier);
    day.zoomIn();
    bench.measureFrames("moving it", day, inAndOut, Qt::NoModifier);
    bench.command(bench.actions().expandAll);
    bench.paint();
    bench.measureFrames(
        "scrolling its titles", *bench.outline().viewport(),
        [](int frame) { return frame < kFrames / 2 ? -1 : 1; }, Qt::NoModifier);
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    QApplication application(argc, argv);
    QTemporaryDir folder;
    Bench bench(argc > 1 ? QString::fromLocal8Bit(argv[1]) : folder.filePath(QStringLiteral("history")));
    printHead();
    measureRanges(bench);
    measureMoving(bench);
    return 0;
}
