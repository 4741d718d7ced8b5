// SPDX-License-Identifier: MIT
// What a frame of the history's pictures costs: a day of 3,000 stretches and ten years of months, 1,600 pixels wide at
// scale 2, without a real screen.
#include "bench/Stopwatch.h"
#include "interface/history/DayPicture.h"
#include "interface/history/PeriodPicture.h"
#include "tests/fakes/FakePlatform.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QTest>

namespace {

// A frame at 60 hertz.
constexpr double kFrame = 16;
constexpr qint64 kHour = 3600 * 1000;
constexpr int kStretches = 3000;
constexpr int kPrograms = 40;
const QDate kDay(2026, 11, 19);

QString program(int number) {
    return QStringLiteral("Program %1").arg(number);
}

// From eight to six, without a gap, as somebody who looks at everything.
std::vector<RangeAnswer::Piece> stretches() {
    QRandomGenerator random(1);
    std::vector<RangeAnswer::Piece> pieces;
    qint64 start = QDateTime(kDay, QTime(8, 0)).toMSecsSinceEpoch();
    for (int i = 0; i < kStretches; ++i) {
        const qint64 length = 10 * kHour / kStretches / 2 + random.bounded(int(10 * kHour / kStretches));
        const int number = int(std::min(random.bounded(kPrograms), random.bounded(kPrograms)));
        pieces.push_back(
            {start, length, program(number),
             QStringLiteral("A document with a name of some length %1").arg(random.bounded(200)),
             number % 3 ? QStringList{QStringLiteral("Project %1").arg(number % 7)} : QStringList()});
        start += length;
    }
    return pieces;
}

std::vector<RangeAnswer::Bar> months(const CalendarRange& range) {
    QRandomGenerator random(2);
    std::vector<RangeAnswer::Bar> bars;
    const PeriodPlaces places(range);
    for (std::size_t place = 0; place < places.count(); ++place) {
        RangeAnswer::Bar bar{places.first(place), {}, {}};
        for (int number = 0; number < kPrograms; ++number)
            bar.programs.push_back({program(number), random.bounded(10) * kHour});
        bars.push_back(std::move(bar));
    }
    return bars;
}

// The picture and the tip over it.
void paint(QWidget& picture) {
    QCoreApplication::processEvents();
    picture.repaint();
}

struct Bench {
    Bench() {
        for (QWidget* picture : {static_cast<QWidget*>(&day), static_cast<QWidget*>(&period)})
            picture->resize(1600, 160);
    }

    template<class Work>
    void measure(const char* what, Work&& work) {
        printAgainst(kFrame, what, measured(processCpuMs, work));
    }

    FakePlatform fakes;
    PictureColors colors{fakes.defaults};
    DayPicture day{colors};
    PeriodPicture period{colors};
};

void measureDay(Bench& bench) {
    DayPicture& day = bench.day;
    const qint64 begin = QDateTime(kDay, QTime(0, 0)).toMSecsSinceEpoch();
    const auto pieces = stretches();
    const auto showDay = [&] { day.show(begin, begin + 24 * kHour, pieces, begin + 18 * kHour); };
    showDay();
    day.show();
    QCoreApplication::processEvents();
    const int middle = day.width() / 2;
    int notch = 0;
    const auto turn = [&](int direction, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(QPointF(middle, 60), day.mapToGlobal(QPointF(middle, 60)), {}, {0, direction * 120},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&day, &event);
        paint(day);
    };
    bench.measure("a day of 3,000 stretches, shown anew", [&] { showDay(), paint(day); });
    bench.measure("the line of now moved", [&] { day.setNow(begin + ++notch * 60000), paint(day); });
    bench.measure("the pointer moved, with its tip", [&] {
        QTest::mouseMove(&day, QPoint(middle + 7 * (++notch % 9), 60));
        paint(day);
    });
    bench.measure("a notch of zooming in", [&] { turn(1, Qt::ControlModifier); });
    bench.measure("a notch of moving", [&] { turn(notch++ % 2 ? 1 : -1, Qt::NoModifier); });
    bench.measure("a notch of zooming out", [&] { turn(-1, Qt::ControlModifier); });
    day.hide();
}

void measurePeriod(Bench& bench) {
    PeriodPicture& period = bench.period;
    const auto range = CalendarRange::span(kDay.addYears(-10), kDay);
    const auto bars = months(range);
    const auto showYears = [&] { period.show(range, bars, PeriodPicture::By::Programs, kDay); };
    showYears();
    period.show();
    QCoreApplication::processEvents();
    int step = 0;
    bench.measure("ten years of months, shown anew", [&] { showYears(), paint(period); });
    bench.measure("the pointer moved over the bars, with its tip", [&] {
        QTest::mouseMove(&period, QPoint(300 + 11 * (++step % 40), 100));
        paint(period);
    });
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication application(argc, argv);
    Bench bench;
    printHead();
    measureDay(bench);
    measurePeriod(bench);
    return 0;
}
