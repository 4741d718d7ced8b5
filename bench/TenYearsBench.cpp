// SPDX-License-Identifier: MIT
// What ten years of history cost: reading, searching, recording and starting, beside the program without a
// history and a plain scan of the same table, in one run. `TenYearsBench FILE` takes the file from there, or
// makes it there.
#include "Classes/history/HistoryKeeper.h"
#include "Classes/report/RecordedNames.h"
#include "Classes/report/ReportFormats.h"
#include "Classes/report/ReportReading.h"
#include "bench/BusyPerson.h"
#include "bench/ProcessFigures.h"
#include "bench/Stopwatch.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/harness/XClient.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace {

using namespace std::chrono_literals;

constexpr int kYears = 10;
constexpr int kRuns = 5;
const QString kReport = QStringLiteral(TICKLOG_BINARY_DIR "/ticklog-report");

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

QDate today() {
    return QDate::currentDate();
}

// The person's last day is yesterday.
QDate firstDay() {
    const int days = kYears * BusyPerson::kDaysAYear;
    return today().addDays(-1 - (days - 1) * 365 / BusyPerson::kDaysAYear);
}

void makeFile(const QString& path) {
    HistoryKeeper keeper(path);
    BusyPerson person(QDateTime(firstDay(), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch());
    for (int day = 0; day < kYears * BusyPerson::kDaysAYear; ++day)
        keeper.write(person.day(day));
    keeper.close();
}

struct Run {
    double wall = 0;
    double cpu = 0;
    double megabytes = 0;
};

// One program to its end, with what the kernel says of it.
Run runOnce(const QStringList& words) {
    std::vector<QByteArray> bytes;
    for (const QString& word : words)
        bytes.push_back(word.toUtf8());
    std::vector<char*> arguments;
    for (QByteArray& each : bytes)
        arguments.push_back(each.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    const double start = wallMs();
    pid_t child = 0;
    int status = posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    rusage usage{};
    if (status != 0 || ::wait4(child, &status, 0, &usage) != child || status != 0)
        std::printf("%s failed\n", bytes[0].constData());
    const auto ms = [](const timeval& time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return {wallMs() - start, ms(usage.ru_utime) + ms(usage.ru_stime), double(usage.ru_maxrss) / 1024};
}

Run medianOf(const std::function<Run()>& once) {
    std::vector<double> wall;
    std::vector<double> cpu;
    Run last;
    once();
    for (int i = 0; i < kRuns; ++i) {
        last = once();
        wall.push_back(last.wall);
        cpu.push_back(last.cpu);
    }
    return {median(wall), median(cpu), last.megabytes};
}

Run here(const std::function<void()>& work) {
    return medianOf([&] {
        const double wall = wallMs();
        const double cpu = processCpuMs();
        work();
        return Run{wallMs() - wall, processCpuMs() - cpu, 0};
    });
}

// As a window would ask: with the file opened for it, to the text of the answer.
void report(const QString& path, const QStringList& arguments) {
    const auto request = ReportRequest::parse(arguments + QStringList(QStringLiteral("--format=csv")),
                                              QDateTime(today().addDays(1), QTime(0, 0)), 0);
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
    const RecordedNames names(file, Folders());
    Report report(*request, names, 0);
    readInto(report, file, *request, 0);
    static_cast<void>(ReportFormats::csv(report).size());
}

void scan(const QString& path, QDate from, bool isByMonth) {
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
    const std::int64_t start = QDateTime(from, QTime(0, 0)).toMSecsSinceEpoch();
    SqliteQuery row(
        file,
        isByMonth ? "SELECT strftime('%Y%m', (start + offset * 60000) / 1000, 'unixepoch'), sum(length) "
                    "FROM stretches WHERE start >= ? GROUP BY 1"
                  : "SELECT program, sum(length) FROM stretches WHERE start >= ? GROUP BY 1",
        start);
    while (row.next()) {
    }
}

void printLine(const char* what, const Run& ours, const char* budget, const Run* plain) {
    std::printf("%-40s %8.1f ms wall %8.1f ms CPU  (%s)", what, ours.wall, ours.cpu, budget);
    if (plain)
        std::printf("  plain scan %8.1f ms, ratio %.2f", plain->wall, ours.wall / plain->wall);
    std::printf("\n");
    std::fflush(stdout);
}

void measureSize(const QString& path) {
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 0);
    const double stretches = double(file.number("SELECT count(*) FROM stretches"));
    const auto bytesOf = [&](const char* sql) { return double(file.number(sql)); };
    const double own = bytesOf("SELECT sum(pgsize) FROM dbstat WHERE name = 'stretches'");
    const double sums = bytesOf("SELECT sum(pgsize) FROM dbstat WHERE name IN ('days', 'months')");
    const double all = double(QFileInfo(path).size());
    std::printf("%.0f stretches, %.0f MB (budget 200): %.1f bytes a stretch, %.1f with its sums (budget 40), "
                "texts %.1f MB\n",
                stretches, all / 1e6, own / stretches, (own + sums) / stretches, (all - own - sums) / 1e6);
}

void measureReading(const QString& path) {
    struct Range {
        const char* what;
        QDate from;
        bool isByMonth;
        const char* budget;
    };
    const Range ranges[] = {{"a day by program", today().addDays(-1), false, "50, stretch 16"},
                            {"a week by program", today().addDays(-7), false, "50, stretch 16"},
                            {"a month by program", today().addMonths(-1), false, "50, stretch 16"},
                            {"a year by program", today().addYears(-1), false, "150, stretch 50"},
                            {"ten years by month", firstDay(), true, "400, stretch 100"}};
    for (const Range& range : ranges) {
        const QStringList arguments{
            QStringLiteral("--from=") + range.from.toString(Qt::ISODate), QStringLiteral("--to=now"),
            range.isByMonth ? QStringLiteral("--by=month") : QStringLiteral("--by=app")};
        const Run plain = here([&] { scan(path, range.from, range.isByMonth); });
        printLine(range.what, here([&] { report(path, arguments); }), range.budget, &plain);
    }
    const Run like = here([&] {
        SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
        SqliteQuery row(file,
                        "SELECT text, sum(length) FROM days JOIN titles ON titles.id = title WHERE text LIKE "
                        "'%number 1234%' GROUP BY 1");
        while (row.next()) {
        }
    });
    printLine("a search in all titles of ten years", here([&] {
                  report(path, {QStringLiteral("--from=") + firstDay().toString(Qt::ISODate),
                                QStringLiteral("--by=title"), QStringLiteral("--search=number 1234")});
              }),
              "300, stretch 100; beside: LIKE", &like);
    const Run program = medianOf([&] {
        return runOnce(
            {kReport, QStringLiteral("--from"), QStringLiteral("monday"), QStringLiteral("--history"), path});
    });
    const Run floor = medianOf([&] { return runOnce({kReport, QStringLiteral("--version")}); });
    printLine("ticklog-report --from monday", program, "60", nullptr);
    std::printf("%-40s %8.1f MB (25), or less: this program's own is in it; --version %.1f ms\n", "",
                program.megabytes, floor.wall);
    if (QStandardPaths::findExecutable(QStringLiteral("arbtt-stats")).isEmpty())
        std::printf("arbtt-stats is not installed: not compared\n");
}

// A desk with Ticklog on it and two programs to change between.
class Recording {
public:
    Recording(const QString& history, bool isKept, bool mayBeIdle = false)
        : m_desk(QStringLiteral("openbox"), Desk::Bus::Own)
        , m_product(m_desk)
        , m_writer(m_desk)
        , m_mailer(m_desk) {
        auto settings = Product::runningSettings();
        settings.insert(QStringLiteral("kTKHistoryDays"), isKept ? 0 : -1);
        if (mayBeIdle) {
            settings.insert(QStringLiteral("enableIdleDetection"), true);
            settings.insert(QStringLiteral("minutesUntilIdle"), 1);
        }
        m_product.writeSettings(settings);
        if (isKept && !history.isEmpty()) {
            QDir().mkpath(QFileInfo(path()).path());
            QFile::copy(history, path());
        }
        m_letter = m_writer.open({.title = "Letter", .className = "Writer"});
        m_inbox = m_mailer.open({.title = "Inbox", .className = "Mailer"});
    }

    QString path() const { return m_desk.home().dataFolder() + QStringLiteral("/Ticklog/History.sqlite"); }

    void start() {
        m_product.start();
        m_writer.minimise(m_product.window());
    }

    void change() {
        if ((m_isWriting = !m_isWriting))
            m_writer.activate(m_letter);
        else
            m_mailer.activate(m_inbox);
    }

    void noteWrites() {
        const QDateTime written = QFileInfo(path() + QStringLiteral("-wal")).lastModified();
        m_writes += written != std::exchange(m_written, written);
    }

    int takeWrites() { return std::exchange(m_writes, 0); }
    ProcessFigures figures() { return ProcessFigures::of(m_product.program().processIdentifier()); }

    // CPU time until its window is there and nothing more is done.
    double startCost() {
        m_product.start();
        double last = -1;
        for (double now = 0; now > last + 0.5; static_cast<void>(passTime(150ms))) {
            last = now;
            now = figures().cpuMilliseconds;
        }
        const double cost = figures().cpuMilliseconds;
        m_product.end(SIGTERM);
        return cost;
    }

private:
    Desk m_desk;
    Product m_product;
    XClient m_writer;
    XClient m_mailer;
    xcb_window_t m_letter = 0;
    xcb_window_t m_inbox = 0;
    bool m_isWriting = true;
    QDateTime m_written;
    int m_writes = 0;
};

void measureMinute(Recording& with, Recording& without, const char* what, bool changes, int minutes) {
    static_cast<void>(passTime(5s));
    with.noteWrites();
    with.takeWrites();
    const ProcessFigures before[] = {with.figures(), without.figures()};
    for (int second = 0; second < 60 * minutes; ++second) {
        if (changes)
            with.change(), without.change();
        static_cast<void>(passTime(1s));
        with.noteWrites();
    }
    const ProcessFigures after[] = {with.figures(), without.figures()};
    const auto cpu = [&](int i) { return (after[i].cpuMilliseconds - before[i].cpuMilliseconds) / minutes; };
    const auto woken = [&](int i) { return (after[i].wakeUps - before[i].wakeUps) / minutes; };
    std::printf(
        "%-40s %6.1f CPU ms a minute, without %6.1f: %+.1f (4); %.0f wake-ups, without %.0f; %d writes in %d "
        "minutes\n",
        what, cpu(0), cpu(1), cpu(0) - cpu(1), woken(0), woken(1), with.takeWrites(), minutes);
    std::fflush(stdout);
}

void measureAbsence(const QString& history) {
    Recording with(history, true, true);
    Recording without({}, false, true);
    with.start();
    without.start();
    // Until it is noticed.
    static_cast<void>(passTime(80s));
    measureMinute(with, without, "nobody is there", false, 2);
}

void measureRecording(const QString& history) {
    Recording with(history, true);
    Recording without({}, false);
    std::vector<double> starts[2];
    for (int run = 0; run < kRuns + 1; ++run)
        for (int i = 0; i < 2; ++i) {
            const double cost = (i == 0 ? with : without).startCost();
            if (run > 0)
                starts[i].push_back(cost);
        }
    std::printf("%-40s %6.1f CPU ms, without a history %6.1f: %+.1f (5)\n",
                "start to the first painted window", median(starts[0]), median(starts[1]),
                median(starts[0]) - median(starts[1]));
    with.start();
    without.start();
    measureMinute(with, without, "a focus change each second", true, 3);
    measureMinute(with, without, "nothing changes, somebody is there", false, 2);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--make") {
        makeFile(QString::fromLocal8Bit(argv[2]));
        return 0;
    }
    const QTemporaryDir folder;
    const QString path =
        argc > 1 ? QString::fromLocal8Bit(argv[1]) : folder.filePath(QStringLiteral("History.sqlite"));
    double loads[3]{};
    ::getloadavg(loads, 3);
    std::printf("load %.1f, %.1f, %.1f\n", loads[0], loads[1], loads[2]);
    if (!QFileInfo::exists(path)) {
        // By a program of its own: what it needs is not to count for those that are measured.
        const Run made = runOnce({QCoreApplication::applicationFilePath(), QStringLiteral("--make"), path});
        std::printf("made in %.0f s\n", made.wall / 1000);
    }
    measureSize(path);
    measureReading(path);
    measureRecording(path);
    measureAbsence(path);
    return 0;
}
