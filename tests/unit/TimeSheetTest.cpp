// SPDX-License-Identifier: MIT
#include "Classes/report/TimeSheet.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace {

using Of = SheetRounding::Of;
using To = SheetRounding::To;

const QDate kMonday(2026, 11, 16);

// `shared` seconds of the day belong to two of the projects.
RangeAnswer::Bar day(int number, std::vector<std::pair<const char*, int>> projects, int shared = 0) {
    RangeAnswer::Bar bar{.first = kMonday.addDays(number), .programs = {}, .projects = {}};
    qint64 work = -shared * qint64(1000);
    for (const auto& [name, seconds] : projects) {
        bar.projects.push_back({QString::fromUtf8(name), seconds * qint64(1000)});
        work += seconds * qint64(1000);
    }
    bar.programs.push_back({QStringLiteral("Mail"), work});
    return bar;
}

TimeSheet sheet(const std::vector<RangeAnswer::Bar>& bars, const SheetRounding& rounding = {}) {
    return TimeSheet(bars, kMonday, kMonday.addDays(6), rounding);
}

// "Meier 0 60 0 0 0 0 0 = 60; …"
QString textOf(const TimeSheet& sheet) {
    QStringList rows;
    for (const auto& row : sheet.rows()) {
        QString text = row.project;
        for (const qint64 cell : row.cells)
            text += QStringLiteral(" %1").arg(cell);
        rows << text + QStringLiteral(" = %1").arg(row.sum());
    }
    return rows.join(QStringLiteral("; "));
}

TEST(TimeSheetTest, aWeek_hasItsProjectsDownAndItsDaysAcross) {
    const TimeSheet week = sheet({day(0, {{"Meier", 60}}), day(1, {{"Meier", 30}, {"Garden", 120}})});
    EXPECT_EQ(textOf(week), QStringLiteral("Garden 0 120 0 0 0 0 0 = 120; Meier 60 30 0 0 0 0 0 = 90"));
    EXPECT_EQ(week.sums(), (std::vector<qint64>{60, 150, 0, 0, 0, 0, 0}));
    EXPECT_EQ(week.sum(), 210);
    EXPECT_EQ(week.measured(), 210);
}

TEST(TimeSheetTest, aDayOutsideTheWeek_isLeftOut) {
    EXPECT_EQ(textOf(sheet({day(-1, {{"Meier", 60}}), day(7, {{"Meier", 60}})})), QString());
}

TEST(TimeSheetTest, roundingACell_goesToTheNearestOrUpAndLeavesMultiples) {
    const SheetRounding nearest{.minutes = 15, .to = To::Nearest, .of = Of::Cell};
    const SheetRounding up{.minutes = 15, .to = To::Up, .of = Of::Cell};
    EXPECT_EQ(roundedTime(7 * 60 + 29, nearest), 0);
    EXPECT_EQ(roundedTime(7 * 60 + 30, nearest), 15 * 60);
    EXPECT_EQ(roundedTime(1, up), 15 * 60);
    EXPECT_EQ(roundedTime(30 * 60, up), 30 * 60);
    EXPECT_EQ(roundedTime(30 * 60, nearest), 30 * 60);
    EXPECT_EQ(roundedTime(0, up), 0);
    EXPECT_EQ(roundedTime(17, SheetRounding()), 17);
}

TEST(TimeSheetTest, theSums_areThoseOfTheShownCells) {
    const SheetRounding rounding{.minutes = 15, .to = To::Nearest, .of = Of::Cell};
    const TimeSheet week = sheet({day(0, {{"Meier", 8 * 60}, {"Garden", 8 * 60}})}, rounding);
    EXPECT_EQ(week.sum(), 30 * 60);
    EXPECT_EQ(week.measured(), 16 * 60);
}

TEST(TimeSheetTest, aRoundedDay_isSpreadByTheLargestRest) {
    const SheetRounding rounding{.minutes = 15, .to = To::Nearest, .of = Of::Day};
    // 8 + 7 + 16 minutes are 31, so 30: one quarter each for who has a whole one and who misses the most.
    const TimeSheet week = sheet({day(0, {{"A", 8 * 60}, {"B", 7 * 60}, {"C", 16 * 60}})}, rounding);
    EXPECT_EQ(textOf(week),
              QStringLiteral("C 900 0 0 0 0 0 0 = 900; A 900 0 0 0 0 0 0 = 900; B 0 0 0 0 0 0 0 = 0"));
}

TEST(TimeSheetTest, whateverTheTimes_aRoundedDayAddsUpBothWays) {
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        const SheetRounding rounding{
            .minutes = std::vector{6, 15, 30}[random() % 3], .to = To(random() % 2), .of = Of::Day};
        std::vector<RangeAnswer::Bar> bars;
        std::vector<int> measured(7);
        for (int number = 0; number < 7; ++number) {
            std::vector<std::pair<const char*, int>> projects;
            for (const char* name : {"A", "B", "C", "D"})
                projects.emplace_back(name, int(random() % 20'000) * int(random() % 2));
            for (const auto& [name, seconds] : projects)
                measured[std::size_t(number)] += seconds;
            bars.push_back(day(number, projects));
        }
        const TimeSheet week = sheet(bars, rounding);
        const std::vector<qint64> sums = week.sums();
        for (std::size_t number = 0; number < 7; ++number)
            EXPECT_EQ(sums[number], roundedTime(measured[number], rounding));
        EXPECT_EQ(std::accumulate(sums.begin(), sums.end(), qint64(0)), week.sum());
        for (const auto& row : week.rows())
            for (const qint64 cell : row.cells)
                EXPECT_EQ(cell % (rounding.minutes * 60), 0);
    }
}

TEST(TimeSheetTest, timeOfSeveralProjects_isInEachRowAndCountsOnceInTheSums) {
    const TimeSheet week = sheet({day(0, {{"A", 60}, {"B", 45}}, 45), day(1, {{"A", 30}, {"B", 20}})});
    EXPECT_EQ(textOf(week), QStringLiteral("A 60 30 0 0 0 0 0 = 90; B 45 20 0 0 0 0 0 = 65"));
    EXPECT_EQ(week.sums(), (std::vector<qint64>{60, 50, 0, 0, 0, 0, 0}));
    EXPECT_EQ(week.sum(), 110);
    EXPECT_EQ(week.measured(), 110);
    EXPECT_TRUE(week.hasSharedTime());
    EXPECT_FALSE(sheet({day(0, {{"A", 60}, {"B", 45}})}).hasSharedTime());
}

TEST(TimeSheetTest, sharedTimeOnOtherDays_isNotTheSheetsAffair) {
    EXPECT_FALSE(sheet({day(-1, {{"A", 60}, {"B", 45}}, 45), day(0, {{"A", 60}})}).hasSharedTime());
}

TEST(TimeSheetTest, roundedCellsOfSharedTime_haveTheRoundedDayAsTheirSum) {
    const SheetRounding up{.minutes = 15, .to = To::Up, .of = Of::Cell};
    const TimeSheet week = sheet({day(0, {{"A", 50 * 60}, {"B", 40 * 60}}, 40 * 60)}, up);
    EXPECT_EQ(textOf(week), QStringLiteral("A 3600 0 0 0 0 0 0 = 3600; B 2700 0 0 0 0 0 0 = 2700"));
    EXPECT_EQ(week.sum(), 3600);
    EXPECT_EQ(week.measured(), 50 * 60);
}

TEST(TimeSheetTest, whateverIsShared_aRoundedSumIsNoLessThanACellAndNoMoreThanAll) {
    std::mt19937 random(5);
    for (int round = 0; round < 2000; ++round) {
        const SheetRounding rounding{.minutes = std::vector{0, 6, 15, 30}[random() % 4],
                                     .to = To(random() % 2),
                                     .of = Of(random() % 2)};
        const int a = 60 + int(random() % 4000);
        const int b = 60 + int(random() % 4000);
        const int shared = 1 + int(random() % unsigned(std::min(a, b)));
        const TimeSheet week = sheet({day(0, {{"A", a}, {"B", b}}, shared)}, rounding);
        const qint64 sum = week.sums().front();
        const qint64 first = week.rows()[0].cells.front();
        const qint64 second = week.rows()[1].cells.front();
        EXPECT_EQ(week.measured(), a + b - shared);
        EXPECT_EQ(sum, week.sum());
        EXPECT_GE(sum, std::max(first, second)) << a << ' ' << b << ' ' << shared;
        EXPECT_LE(sum, first + second) << a << ' ' << b << ' ' << shared;
        EXPECT_EQ(sum, std::min(roundedTime(a + b - shared, rounding), first + second));
    }
}

} // namespace
