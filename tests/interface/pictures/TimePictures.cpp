// SPDX-License-Identifier: MIT
#include "tests/interface/pictures/TimePictures.h"

#include "interface/history/DayPicture.h"
#include "interface/history/PeriodPicture.h"
#include "tests/fakes/FakePlatform.h"

#include <QRandomGenerator>
#include <QTest>
#include <QVBoxLayout>

#include <cstdio>

namespace {

using Piece = RangeAnswer::Piece;
using Presence = RecordedStretch::Presence;

constexpr qint64 kMinute = 60 * 1000;

qint64 at(QDate day, int hour, int minute = 0) {
    return QDateTime(day, QTime(hour, minute)).toMSecsSinceEpoch();
}

struct Spent {
    const char* program;
    const char* title;
    QStringList projects;
    double weight;
};

const std::vector<Spent>& spentWith() {
    static const std::vector<Spent> all{
        {"LibreOffice Writer", "Yearly report.odt", {QStringLiteral("Yearly report")}, 5},
        {"Thunderbird", "Inbox", {}, 2},
        {"Firefox", "Timetable of the western railway", {QStringLiteral("Reading")}, 2},
        {"Inkscape", "poster.svg", {QStringLiteral("Poster")}, 3},
        {"Terminal", "make", {}, 1},
        {"Calendar", "November", {}, 0.4},
        {"Files", "Documents", {}, 0.5},
        {"GIMP", "photo.xcf", {QStringLiteral("Poster"), QStringLiteral("Yearly report")}, 0.8},
        {"Music", "Slow Movement", {}, 0.3},
        {"Text Editor", "notes.txt", {QStringLiteral("Garden")}, 0.6},
        {"Calculator", "Calculator", {}, 0.2},
    };
    return all;
}

const Spent& anyOf(QRandomGenerator& random) {
    double sum = 0;
    for (const Spent& spent : spentWith())
        sum += spent.weight;
    double rest = random.bounded(sum);
    for (const Spent& spent : spentWith())
        if ((rest -= spent.weight) < 0)
            return spent;
    return spentWith().front();
}

// A day at work: long stretches and many short ones, a walk at noon, an absence, a gap.
std::vector<Piece> workOf(QDate day, int restlessness) {
    QRandomGenerator random(7);
    std::vector<Piece> pieces;
    const auto fill = [&](qint64 from, qint64 to) {
        while (from < to) {
            const Spent& spent = anyOf(random);
            const bool isShort = int(random.bounded(10)) < restlessness;
            const qint64 length =
                std::min(to - from, isShort ? qint64(5000 + random.bounded(50000))
                                            : qint64(4 * kMinute + random.bounded(int(40 * kMinute))));
            pieces.push_back({from, length, QString::fromUtf8(spent.program), QString::fromUtf8(spent.title),
                              spent.projects, Presence::Work});
            from += length;
        }
    };
    const auto idle = [&](qint64 from, qint64 to) {
        pieces.push_back({from, to - from, QStringLiteral("Idle"), {}, {}, Presence::Idle});
    };
    fill(at(day, 8, 12), at(day, 10, 20));
    idle(at(day, 10, 20), at(day, 10, 46));
    fill(at(day, 10, 46), at(day, 12, 5));
    fill(at(day, 13, 1), at(day, 15, 30));
    idle(at(day, 15, 30), at(day, 15, 52));
    fill(at(day, 15, 52), at(day, 17, 38));
    pieces.push_back({at(day, 19),
                      75 * kMinute,
                      QStringLiteral("Meeting with Meier"),
                      {},
                      {QStringLiteral("Yearly report")},
                      Presence::ByHand});
    return pieces;
}

std::vector<RangeAnswer::Bar> barsOf(const CalendarRange& range) {
    QRandomGenerator random(11);
    std::vector<RangeAnswer::Bar> bars;
    const PeriodPlaces places(range);
    for (std::size_t place = 0; place < places.count(); ++place) {
        const QDate first = places.first(place);
        const bool isDay = range.step() == CalendarRange::Step::Day;
        if (isDay && first.dayOfWeek() > 5 && random.bounded(4) > 0)
            continue;
        const double hours = (isDay                                       ? 1
                              : range.step() == CalendarRange::Step::Week ? 4.4
                                                                          : 19) *
                             (0.5 + random.bounded(0.8));
        RangeAnswer::Bar bar{first, {}, {}};
        std::map<QString, qint64> projects;
        for (const Spent& spent : spentWith()) {
            const auto length = qint64(hours * spent.weight * (0.2 + random.bounded(1.0)) * 40 * kMinute);
            bar.programs.push_back({QString::fromUtf8(spent.program), length});
            for (const QString& project : spent.projects.isEmpty() ? QStringList(kNoProject) : spent.projects)
                projects[project] += length;
        }
        for (const auto& [name, length] : projects)
            bar.projects.push_back({name, length});
        bars.push_back(std::move(bar));
    }
    return bars;
}

// A picture in a window as wide as the main window's right side.
class Stage {
public:
    explicit Stage(const QDir& folder)
        : m_folder(folder) {
        auto* rows = new QVBoxLayout(&m_window);
        rows->addWidget(&day);
        rows->addWidget(&period);
        rows->addStretch();
    }

    ~Stage() {
        day.setParent(nullptr);
        period.setParent(nullptr);
    }

    template<class Picture>
    void draw(Picture& shown, const char* name, QSize size = {760, 400}) {
        day.setVisible(static_cast<QWidget*>(&day) == &shown);
        period.setVisible(static_cast<QWidget*>(&period) == &shown);
        m_window.resize(size);
        m_window.show();
        QCoreApplication::processEvents();
        if (prepare)
            prepare();
        QCoreApplication::processEvents();
        const QString path = m_folder.filePath(QLatin1String(name) + QStringLiteral(".png"));
        m_window.grab().save(path);
        std::printf("%s\n", qPrintable(path));
        prepare = {};
    }

    FakePlatform fakes;
    PictureColors colors{fakes.defaults,
                         [](const QString& project) { return project == QLatin1String("Reading") ? 4 : 0; }};
    QWidget m_window;
    DayPicture day{colors};
    PeriodPicture period{colors};
    // After the window is shown, before it is drawn.
    std::function<void()> prepare;

private:
    const QDir& m_folder;
};

void drawDays(Stage& stage) {
    const QDate date(2026, 11, 19);
    DayPicture& day = stage.day;
    day.show(at(date, 0), at(date.addDays(1), 0), workOf(date, 7), at(date, 21, 3));
    stage.draw(day, "day");
    stage.prepare = [&] { QTest::mouseMove(&day, QPoint(int(day.xOf(at(date, 9, 30))), 50)); };
    stage.draw(day, "day-tip");
    stage.prepare = [&] {
        day.setFocus();
        QTest::keyClick(&day, Qt::Key_Right);
        for (int i = 0; i < 12; ++i)
            QTest::keyClick(&day, Qt::Key_Right);
    };
    stage.draw(day, "day-cursor");
    stage.prepare = [&] {
        const QPoint from(int(day.xOf(at(date, 13))), 60);
        const QPoint to(int(day.xOf(at(date, 15, 30))), 60);
        QTest::mousePress(&day, Qt::LeftButton, {}, from);
        QTest::mouseMove(&day, to - QPoint(20, 0));
        QTest::mouseMove(&day, to);
    };
    stage.draw(day, "day-drag");
    QTest::keyClick(&day, Qt::Key_Escape);
    QTest::mouseRelease(&day, Qt::LeftButton);
    for (int i = 0; i < 3; ++i)
        day.zoomIn();
    stage.draw(day, "day-zoomed");
    day.show(at(date, 0), at(date.addDays(1), 0), workOf(date, 10), at(date, 16, 3));
    day.showAll();
    stage.draw(day, "day-restless");
    stage.draw(day, "day-wide", {1400, 300});
    stage.draw(day, "day-narrow", {320, 200});
    day.show(at(date, 0), at(date.addDays(1), 0), {}, at(date, 9, 3));
    stage.draw(day, "day-empty");
}

// Black and white alone, and yellow for what is chosen.
void drawContrast(Stage& stage) {
    const QDate date(2026, 11, 19);
    for (const auto& [ground, text, name] : {std::tuple(Qt::black, Qt::white, "contrast-dark"),
                                             std::tuple(Qt::white, Qt::black, "contrast-light")}) {
        QPalette palette(text, ground, text, text, text, text, text, ground, ground);
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::Highlight, ground == Qt::black ? Qt::yellow : Qt::darkBlue);
        stage.m_window.setPalette(palette);
        stage.day.show(at(date, 0), at(date.addDays(1), 0), workOf(date, 7), at(date, 21, 3));
        stage.draw(stage.day, (std::string("day-") + name).c_str());
        const auto week = CalendarRange::around(CalendarRange::Kind::Week, date, Qt::Monday);
        stage.period.show(week, barsOf(week), PeriodPicture::By::Programs, date);
        stage.draw(stage.period, (std::string("week-") + name).c_str());
    }
    stage.m_window.setPalette({});
}

void drawPeriods(Stage& stage) {
    const QDate today(2026, 11, 19);
    PeriodPicture& period = stage.period;
    using Kind = CalendarRange::Kind;
    const auto week = CalendarRange::around(Kind::Week, today, Qt::Monday);
    period.show(week, barsOf(week), PeriodPicture::By::Programs, today);
    stage.draw(period, "week");
    stage.prepare = [&] {
        const QRect part = period.partRect(QDate(2026, 11, 17), QStringLiteral("Inkscape"));
        QTest::mouseMove(&period, part.center());
    };
    stage.draw(period, "week-tip");
    period.show(week, barsOf(week), PeriodPicture::By::Projects, today);
    stage.prepare = [&] {
        period.setFocus();
        QTest::keyClick(&period, Qt::Key_Right);
        QTest::keyClick(&period, Qt::Key_Right);
    };
    stage.draw(period, "week-projects-cursor");
    period.clearFocus();
    const auto month = CalendarRange::around(Kind::Month, today, Qt::Monday);
    period.show(month, barsOf(month), PeriodPicture::By::Programs, today);
    stage.draw(period, "month");
    const auto year = CalendarRange::around(Kind::Year, today, Qt::Monday);
    period.show(year, barsOf(year), PeriodPicture::By::Programs, today);
    stage.draw(period, "year");
    const auto weeks = CalendarRange::span(today.addDays(-300), today);
    period.show(weeks, barsOf(weeks), PeriodPicture::By::Projects, today);
    stage.draw(period, "weeks");
    const auto decade = CalendarRange::span(today.addYears(-10), today);
    period.show(decade, barsOf(decade), PeriodPicture::By::Programs, today);
    stage.draw(period, "ten-years");
    stage.draw(period, "ten-years-narrow", {300, 200});
    period.show(week, {}, PeriodPicture::By::Programs, today);
    stage.draw(period, "week-empty");
}

} // namespace

void drawTimePictures(const QDir& folder) {
    Stage stage(folder);
    drawDays(stage);
    drawPeriods(stage);
    drawContrast(stage);
}
