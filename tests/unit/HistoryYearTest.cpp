// SPDX-License-Identifier: MIT
// Days in which anything may happen, through tracker and history, held against a plain journal of the same
// days. TICKLOG_RANDOM_DAYS says how many.
#include "Classes/history/History.h"
#include "Classes/report/RecordedNames.h"
#include "Classes/report/ReportReading.h"
#include "tests/fakes/Day.h"
#include "tests/fakes/HistoryDiary.h"
#include "tests/fakes/PlainHistory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

namespace {

using Time = PlainHistory::Time;

constexpr Time kSecond = 1000;
constexpr Time kMinute = 60 * kSecond;
constexpr Time kHour = 60 * kMinute;
constexpr int kStepsADay = 300;

constexpr std::array kPrograms{"Mail", "Editor", "Browser", "Terminal"};
// As they stand in the window, and as they are kept.
constexpr std::pair<const char*, const char*> kTitles[] = {
    {"Inbox - Mail", "Inbox - Mail"},
    {"(3) Chat", "Chat"},
    {"(14) Chat", "Chat"},
    {"news@home (draft)", "news@home (draft)"},
    {"12 % Download", "Download"},
    {"Report 7", "Report 7"},
    {"Report 8", "Report 8"},
    {"\u05d0\u05d1\u05d2 \U0001F600", "\u05d0\u05d1\u05d2 \U0001F600"},
    {"'); DROP TABLE days; --", "'); DROP TABLE days; --"},
    {"=1+1", "=1+1"},
};
constexpr std::array kZones{"Europe/Berlin", "America/New_York", "Asia/Kolkata", "Australia/Lord_Howe",
                            "Asia/Tokyo"};

// Where the user is.
class Zone {
public:
    Zone()
        : m_before(qgetenv("TZ")) {}
    ~Zone() {
        if (m_before.isEmpty())
            qunsetenv("TZ");
        else
            travelTo(m_before);
    }

    void travelTo(const QByteArray& zone) {
        qputenv("TZ", zone);
        ::tzset();
    }

private:
    QByteArray m_before;
};

// What is not the same in both: "20261120/09/Mail/Inbox/0 12 instead of 10".
std::string differences(PlainHistory::Sums found, const PlainHistory::Sums& expected) {
    std::string lines;
    for (const auto& [who, time] : expected)
        if (const auto other = found.extract(who); (other.empty() ? 0 : other.mapped()) != time)
            lines += who + ' ' + std::to_string(other.empty() ? 0 : other.mapped()) + " instead of " +
                     std::to_string(time) + '\n';
    for (const auto& [who, time] : found)
        lines += who + ' ' + std::to_string(time) + " instead of 0\n";
    return lines;
}

// Tracker, store and history as they are launched, with the thread that writes as this one.
struct Launched {
    Launched(const Launched* before, Time wall) {
        const QString folder = day.fakes.folders.applicationSupport;
        EXPECT_TRUE(QDir().mkpath(folder));
        if (before) {
            const QDir left(before->day.fakes.folders.applicationSupport);
            for (const QFileInfo& file : left.entryInfoList(QDir::Files))
                EXPECT_TRUE(QFile::copy(file.filePath(), folder + u'/' + file.fileName()));
        }
        day.fakes.clock.setWall(Date(std::chrono::milliseconds(wall)));
        day.fakes.defaults.setObject(kMinutesUntilIdle, 1);
        day.control.registerForSystemSleep(day.fakes.power);
        database.loadMainStore();
        history.emplace(History::Services{day.tracker, database, day.trouble, day.fakes.notifications,
                                          day.fakes.defaults, day.fakes.runLoop, day.fakes.clock,
                                          day.fakes.log},
                        [](const std::function<void()>& work) { work(); });
        day.fakes.runLoop.runPending();
    }

    QString path() const { return history->path(); }

    Day day;
    TimeDatabase database{day.tracker, day.store, day.fakes.defaults, day.fakes.folders, {}};
    std::optional<History> history;
};

class RandomYear {
public:
    RandomYear(unsigned seed, QDate first)
        : m_random(seed)
        , m_date(first)
        , plain(QDateTime(first, QTime(8, 0)).toMSecsSinceEpoch()) {
        launch();
    }

    // From one morning to the next.
    void liveADay() {
        begin();
        for (int step = 0; step < kStepsADay; ++step) {
            happen();
            if (const int more = pick(4); more == 0)
                away(pick(150'000));
            else if (more > 1)
                work(100 + pick(60'000));
        }
        endDay();
    }

    // With all of it in the file.
    QString path() const {
        m_now->history->finish();
        return m_now->path();
    }
    QDate date() const { return m_date; }

    // By program, and what it has frozen.
    std::map<std::string, double> totals() const {
        std::map<std::string, double> totals;
        for (const auto& app : m_now->day.tracker.fullTimeSet())
            totals[app->name().section(QLatin1String(" (Frozen "), 0, 0).toStdString()] += app->activeTime();
        return totals;
    }

    // Broken contracts, but for the one that is told of a gap with a young window.
    QStringList failures() const {
        QStringList failures = m_now->day.fakes.runLoop.failures();
        failures.removeIf(
            [](const QString& line) { return line.contains(QLatin1String("TimeTracker:432")); });
        return failures;
    }

private:
    int pick(int count) { return int(m_random() % unsigned(count)); }

    template<class Choices>
    auto any(const Choices& choices) {
        return choices[m_random() % std::size(choices)];
    }

    // A launch finds what the last one has left, whether that ended well.
    void launch() {
        if (m_now) {
            EXPECT_TRUE(m_now->database.saveSettingsToDiskAtURL());
            m_now->history->finish();
        }
        m_now = std::make_unique<Launched>(m_now.get(), plain.wall());
        plain.launch();
        m_now->day.front("Mail", kTitles[0].first);
        plain.front("Mail", kTitles[0].second);
    }

    void begin() {
        // Who starts sees what is in front, but not each title.
        away(100);
        m_now->day.start();
        plain.start();
    }

    void work(Time time) {
        m_now->day.seconds(double(time) / 1000);
        plain.pass(time, true);
    }

    void away(Time time) {
        m_now->day.idle(double(time) / 1000);
        plain.pass(time, false);
    }

    void stand() {
        away(100);
        const Time time = pick(300'000);
        m_now->day.stall(double(time) / 1000);
        m_now->day.advance(0);
        plain.stand(time);
    }

    void slumber(Time time, bool isTold) {
        if (!isTold) {
            m_now->day.fakes.clock.sleepFor(std::chrono::milliseconds(time));
            plain.slumber(time);
            return;
        }
        away(100);
        const bool wasRunning = m_now->day.control.isRunning();
        plain.stop();
        m_now->day.asleep(double(time) / 1000);
        plain.slumber(time);
        plain.input();
        if (wasRunning)
            plain.start();
    }

    void front(const char* program, const std::pair<const char*, const char*>& title) {
        m_now->day.front(program, title.first);
        plain.front(program, title.second);
    }

    void setClock() {
        const Time to = plain.wall() + (1500 + pick(int(2 * kHour))) * (pick(2) ? 1 : -1);
        m_now->day.fakes.clock.setWall(Date(std::chrono::milliseconds(to)));
        plain.setWall(to);
    }

    void freeze() {
        away(100);
        const auto apps = m_now->day.tracker.fullTimeSet();
        if (const auto app = any(apps); !app->branched())
            m_now->day.tracker.branchNode(*app);
    }

    void happen() {
        switch (pick(16)) {
        case 0:
            m_now->day.stop();
            plain.stop();
            // A moment in which nobody could be told apart from the clock's being read twice.
            work(20 + pick(2000));
            break;
        case 1:
        case 2:
            begin();
            break;
        case 3:
            stand();
            break;
        case 4:
            slumber(2 * kSecond + pick(int(20 * kMinute)), pick(2) == 0);
            break;
        case 5:
            if (pick(8) == 0)
                setClock();
            break;
        case 6:
            m_now->day.front("ScreenSaverEngine");
            plain.front("Idle", "");
            break;
        case 7: {
            const char* program = any(kPrograms);
            const auto title = any(kTitles);
            m_now->day.frontSilently(program, title.first);
            plain.frontUnseen(program, title.second);
            break;
        }
        case 8:
            if (pick(20) == 0)
                freeze();
            break;
        case 9:
            if (pick(60) == 0)
                launch(), begin();
            break;
        default:
            front(any(kPrograms), any(kTitles));
        }
    }

    // Home to sleep, or off to another part of the world.
    void endDay() {
        begin();
        work(kMinute);
        m_date = m_date.addDays(1);
        const Time morning = QDateTime(m_date, QTime(8, 0)).toMSecsSinceEpoch() + pick(int(kHour));
        const Time night = std::max(morning - plain.wall(), 2 * kSecond);
        const bool isTold = pick(3) > 0;
        if (isTold) {
            m_now->day.stop();
            plain.stop();
        }
        if (pick(3) == 0)
            m_zone.travelTo(any(kZones));
        slumber(night, isTold);
        if (pick(4) == 0)
            launch();
    }

    Zone m_zone;
    std::mt19937 m_random;
    QDate m_date;
    std::unique_ptr<Launched> m_now;

public:
    PlainHistory plain;
};

PlainHistory::Sums stretchesIn(const QString& path) {
    PlainHistory::Sums sums;
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
    for (SqliteQuery row(
             file, "SELECT strftime('%Y%m%d/%H', (start + offset * 60000) / 1000, 'unixepoch') || '/' || "
                   "programs.name || '/' || titles.text || '/' || presence, sum(length) FROM stretches "
                   "JOIN programs ON programs.id = program JOIN titles ON titles.id = title GROUP BY 1");
         row.next();)
        sums[row.text(0).toStdString()] = row.integer(1);
    return sums;
}

// As ticklog-report tells it.
PlainHistory::Sums reported(const QString& path, const QStringList& keys, QDate from, QDate to) {
    QStringList arguments{QStringLiteral("--from"), from.toString(Qt::ISODate),   QStringLiteral("--to"),
                          to.toString(Qt::ISODate), QStringLiteral("--presence"), QStringLiteral("all")};
    for (const QString& key : keys)
        arguments << QStringLiteral("--by") << key;
    const auto request = ReportRequest::parse(arguments, QDateTime(to, QTime(0, 0)), 0);
    SqliteDatabase file(path, SqliteDatabase::Mode::Read, 1000);
    const RecordedNames names(file, Folders());
    Report report(*request, names, 0);
    readInto(report, file, *request, 0);
    PlainHistory::Sums sums;
    for (const ReportLine& line : report.lines()) {
        QStringList cells;
        for (const QJsonValue& cell : line.cells)
            cells << cell.toString();
        sums[cells.join(u'/').toStdString()] = line.milliseconds;
    }
    return sums;
}

// By these parts of "20260329/14/Mail/Inbox/0".
PlainHistory::Sums summed(const PlainHistory::Sums& sums, const std::vector<int>& parts) {
    PlainHistory::Sums result;
    for (const auto& [key, time] : sums) {
        const QStringList cells = QString::fromStdString(key).split(u'/');
        QStringList wanted;
        for (const int part : parts)
            wanted << (part == 0
                           ? QDate::fromString(cells[0], QStringLiteral("yyyyMMdd")).toString(Qt::ISODate)
                           : cells[part]);
        if (time != 0)
            result[wanted.join(u'/').toStdString()] += time;
    }
    return result;
}

class HistoryYearTest : public testing::TestWithParam<int> {};

TEST_P(HistoryYearTest, whateverHappens_everyMillisecondIsWhereItWas) {
    Zone zone;
    zone.travelTo("Europe/Berlin");
    // Through a day of 23 hours, one of 25, and the turn of a year.
    const QDate begins[] = {QDate(2026, 3, 28), QDate(2026, 10, 24), QDate(2026, 12, 30)};
    const int all = std::max(3, qEnvironmentVariableIntValue("TICKLOG_RANDOM_DAYS"));
    RandomYear year(unsigned(GetParam()), begins[GetParam() % 3]);
    const QDate first = year.date();
    for (int day = 1; day <= all && !HasFailure(); ++day) {
        year.liveADay();
        if (day % 10 != 0 && day > 3 && day != all)
            continue;
        SCOPED_TRACE("day " + std::to_string(day) + " of seed " + std::to_string(GetParam()));
        PlainHistory::Sums expected = year.plain.sums();
        std::erase_if(expected, [](const auto& sum) { return sum.second == 0; });
        const auto found = stretchesIn(year.path());
        EXPECT_EQ(differences(found, expected), "");
        Time total = 0;
        for (const auto& [key, time] : found)
            total += time;
        EXPECT_EQ(total + year.plain.gaps(), year.plain.passed()) << "stretches and gaps";
        for (const auto& [program, time] : year.totals()) {
            const double kept = double(year.plain.of(program)) + year.plain.beforeAbsences(program);
            if (program != "Idle") {
                EXPECT_NEAR(time * 1000, kept, 1) << program;
            }
        }
        EXPECT_EQ(HistoryDiary::flaws(year.path()), QStringList());
        EXPECT_EQ(year.failures(), QStringList());
        const QDate end = year.date().addDays(3);
        EXPECT_EQ(differences(reported(year.path(), {QStringLiteral("day"), QStringLiteral("app")},
                                       first.addDays(-3), end),
                              summed(expected, {0, 2})),
                  "");
        EXPECT_EQ(differences(reported(year.path(), {QStringLiteral("title")}, first.addDays(-3), end),
                              summed(expected, {3})),
                  "");
    }
}

INSTANTIATE_TEST_SUITE_P(Years, HistoryYearTest, testing::Range(1, 4));

} // namespace
