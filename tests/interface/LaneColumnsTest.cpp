// SPDX-License-Identifier: MIT
// What the columns of a day's lanes show, where the axis has its hours, and what zooming keeps.
#include "interface/history/LaneColumns.h"
#include "interface/history/HourTicks.h"
#include "interface/history/TimeView.h"
#include "tests/interface/InTimeZone.h"

#include <QDateTime>
#include <QLocale>
#include <QRandomGenerator>

#include <gtest/gtest.h>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMinute = 60 * 1000;
constexpr qint64 kHour = 60 * kMinute;

// The entries of the columns, a letter each; small ones where less than half was used, "." where nothing was.
std::string lane(const std::vector<LaneSpan>& spans, int count, qint64 to,
                 std::vector<int> colorOf = {0, 1, 2, 3}) {
    std::string text;
    for (const LaneColumn& column : laneColumns(spans, colorOf, 0, double(to), count))
        text += column.entry < 0 ? '.' : char((column.isSparse ? 'a' : 'A') + column.entry);
    return text;
}

QStringList labels(const QDateTime& from, const QDateTime& to, qint64 step) {
    QStringList labels;
    for (const qint64 tick :
         HourTicks::ticks(double(from.toMSecsSinceEpoch()), double(to.toMSecsSinceEpoch()), step))
        labels << HourTicks::label(tick, step);
    return labels;
}

struct German {
    German() { QLocale::setDefault(QLocale(QLocale::German)); }
    ~German() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
};

} // namespace

TEST(LaneColumns, whatHasMostOfAColumn_isShownInIt) {
    EXPECT_EQ(lane({{0, 30, 0}, {30, 70, 1}, {70, 100, 2}}, 1, 100), "B");
    EXPECT_EQ(lane({{0, 50, 0}, {50, 100, 1}}, 4, 100), "AABB");
}

TEST(LaneColumns, timeOfOneColor_isAddedUp) {
    EXPECT_EQ(lane({{0, 30, 0}, {30, 70, 1}, {70, 100, 2}}, 1, 100, {0, 1, 0}), "A");
    EXPECT_EQ(lane({{0, 20, 0}, {20, 60, 1}, {60, 100, 2}}, 1, 100, {0, 1, 0}), "C")
        << "the larger of the two";
    EXPECT_EQ(lane({{0, 10, 0}, {10, 20, 1}, {20, 30, 0}, {30, 45, 1}, {45, 60, 0}}, 1, 60), "A");
}

TEST(LaneColumns, lessThanHalf_isSparse) {
    EXPECT_EQ(lane({{0, 49, 0}}, 1, 100), "a");
    EXPECT_EQ(lane({{0, 50, 0}}, 1, 100), "A");
    EXPECT_EQ(lane({{0, 25, 0}, {60, 85, 1}}, 1, 100), "A") << "used by both";
}

TEST(LaneColumns, theShortestStretch_isShown) {
    EXPECT_EQ(lane({{4999, 5000, 1}}, 10, 10000), "....b.....");
    EXPECT_EQ(lane({{0, 1, 0}, {9999, 10000, 2}}, 10, 10000), "a........c");
}

TEST(LaneColumns, whatReachesBeyondTheEnds_isCut) {
    EXPECT_EQ(lane({{-500, 20, 0}, {80, 5000, 1}}, 5, 100), "A...B");
    EXPECT_EQ(lane({{-500, -20, 0}, {100, 5000, 1}}, 5, 100), ".....");
}

TEST(LaneColumns, ofAnySpans_areWhatCountingEachMomentSays) {
    const auto seed = QRandomGenerator::global()->generate();
    SCOPED_TRACE(seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 200; ++round) {
        std::vector<LaneSpan> spans;
        std::vector<int> at(1000, -1);
        for (qint64 start = random.bounded(30); start < 1000;) {
            const qint64 end = std::min<qint64>(1000, start + 1 + random.bounded(40));
            const int entry = random.bounded(4);
            spans.push_back({start, end, entry});
            std::fill(at.begin() + start, at.begin() + end, entry);
            start = end + (random.bounded(2) ? random.bounded(60) : 0);
        }
        const int count = std::vector{1, 10, 50, 100, 500}[std::size_t(random.bounded(5))];
        const auto columns = laneColumns(spans, {0, 1, 2, 3}, 0, 1000, count);
        for (int column = 0; column < count; ++column) {
            std::map<int, int> used;
            int all = 0;
            for (int moment = column * 1000 / count; moment < (column + 1) * 1000 / count; ++moment)
                if (at[std::size_t(moment)] >= 0) {
                    ++used[at[std::size_t(moment)]];
                    ++all;
                }
            const LaneColumn& shown = columns[std::size_t(column)];
            ASSERT_EQ(shown.entry < 0, all == 0);
            if (all == 0)
                continue;
            EXPECT_EQ(shown.isSparse, all * 2 < 1000 / count);
            for (const auto& [entry, time] : used)
                EXPECT_LE(time, used[shown.entry]);
        }
    }
}

TEST(HourTicks, areAsFarApartAsTheirLabelsNeed) {
    EXPECT_EQ(HourTicks::stepFor(40, 60), 2 * kHour);
    EXPECT_EQ(HourTicks::stepFor(60, 60), kHour);
    EXPECT_EQ(HourTicks::stepFor(240, 60), 15 * kMinute);
    EXPECT_EQ(HourTicks::stepFor(6000, 60), kMinute);
    EXPECT_EQ(HourTicks::stepFor(1, 60), 3 * kHour) << "at the most";
}

TEST(HourTicks, areWrittenAsTheLocaleWritesThem) {
    const QDateTime from(QDate(2026, 11, 19), QTime(8, 0));
    EXPECT_EQ(labels(from, from.addSecs(7200), kHour), (QStringList{u"8 AM"_s, u"9 AM"_s, u"10 AM"_s}));
    EXPECT_EQ(labels(from, from.addSecs(1800), 15 * kMinute), (QStringList{u"8:00"_s, u"8:15"_s, u"8:30"_s}));
    const German german;
    EXPECT_EQ(labels(from, from.addSecs(7200), kHour), (QStringList{u"08:00"_s, u"09:00"_s, u"10:00"_s}));
}

TEST(HourTicks, onTheDayOf25Hours_oneHourIsThereTwice) {
    const InTimeZone berlin("Europe/Berlin");
    const German german;
    const QDateTime from(QDate(2026, 10, 25), QTime(0, 0));
    EXPECT_EQ(labels(from, from.addSecs(5 * 3600), kHour),
              (QStringList{u"00:00"_s, u"01:00"_s, u"02:00"_s, u"02:00"_s, u"03:00"_s, u"04:00"_s}));
    EXPECT_EQ(labels(from, QDateTime(QDate(2026, 10, 26), QTime(0, 0)), 3 * kHour),
              (QStringList{u"00:00"_s, u"03:00"_s, u"06:00"_s, u"09:00"_s, u"12:00"_s, u"15:00"_s, u"18:00"_s,
                           u"21:00"_s, u"00:00"_s}));
}

TEST(HourTicks, onTheDayOf23Hours_oneHourIsMissing) {
    const InTimeZone berlin("Europe/Berlin");
    const German german;
    const QDateTime from(QDate(2026, 3, 29), QTime(0, 0));
    EXPECT_EQ(labels(from, from.addSecs(4 * 3600), kHour),
              (QStringList{u"00:00"_s, u"01:00"_s, u"03:00"_s, u"04:00"_s, u"05:00"_s}));
}

TEST(TimeView, zooming_keepsWhatIsUnderThePointer) {
    TimeView view(0, 24 * kHour);
    const auto moment = double(9 * kHour);
    const auto place = [&] { return (moment - view.from()) / view.length(); };
    const double before = place();
    for (int i = 0; i < 10; ++i) {
        view.zoom(0.8, moment);
        EXPECT_NEAR(place(), before, 1e-9);
    }
    for (int i = 0; i < 10; ++i)
        view.zoom(1.25, moment);
    EXPECT_NEAR(view.from(), 0, 1e-3);
    EXPECT_NEAR(view.to(), double(24 * kHour), 1e-3);
}

TEST(TimeView, zooming_endsAtTheDayAndAtAFewMinutes) {
    TimeView view(1000, 1000 + 24 * kHour);
    view.zoom(100, 5000);
    EXPECT_FALSE(view.isZoomed());
    for (int i = 0; i < 100; ++i)
        view.zoom(0.5, 1000);
    EXPECT_EQ(view.length(), TimeView::kShortest);
    EXPECT_EQ(view.from(), 1000);
}

TEST(TimeView, moving_endsAtTheDay) {
    TimeView view(0, 24 * kHour);
    view.zoom(0.5, double(12 * kHour));
    view.moveBy(double(50 * kHour));
    EXPECT_EQ(view.to(), double(24 * kHour));
    EXPECT_EQ(view.length(), double(12 * kHour));
    view.moveBy(double(-50 * kHour));
    EXPECT_EQ(view.from(), 0);
}

TEST(TimeView, aPieceOfADay_canBeShorterThanOneCanZoomIn) {
    TimeView view(0, kMinute);
    view.zoom(0.5, 1000);
    EXPECT_EQ(view.length(), double(kMinute));
}
