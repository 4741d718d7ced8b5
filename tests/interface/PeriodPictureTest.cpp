// SPDX-License-Identifier: MIT
#include "interface/history/PeriodPicture.h"

#include "tests/fakes/FakePlatform.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using By = PeriodPicture::By;
using Kind = CalendarRange::Kind;

constexpr qint64 kMinute = 60 * 1000;
constexpr qint64 kHour = 60 * kMinute;
const QDate kMonday(2026, 11, 16);

RangeAnswer::Bar bar(QDate first, std::vector<RangeAnswer::Entry> programs,
                     std::vector<RangeAnswer::Entry> projects = {}) {
    return {first, std::move(programs), std::move(projects)};
}

struct PeriodPictureTest : testing::Test {
    PeriodPictureTest() {
        window.resize(900, 500);
        picture.setParent(&window);
        picture.setGeometry(0, 0, 900, 200);
        picture.show();
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    ~PeriodPictureTest() override { picture.setParent(nullptr); }

    // Monday 6 hours of writing and 2 of mail, Tuesday 4 of writing, Thursday 3 of mail.
    void showWeek(By by = By::Programs) {
        picture.show(
            CalendarRange::around(Kind::Week, kMonday, Qt::Monday),
            {bar(kMonday, {{u"Writer"_s, 6 * kHour}, {u"Mail"_s, 2 * kHour}}, {{u"Meier"_s, 8 * kHour}}),
             bar(kMonday.addDays(1), {{u"Writer"_s, 4 * kHour}}, {{u"Huber"_s, 4 * kHour}}),
             bar(kMonday.addDays(3), {{u"Mail"_s, 3 * kHour}}, {{u"Meier"_s, 3 * kHour}})},
            by, kMonday.addDays(3));
    }

    QColor seenAt(const QPoint& place) { return picture.grab().toImage().pixelColor(place); }

    QColor colorOf(const char* program) {
        return colors.color(PictureColors::Kind::Program, QString::fromUtf8(program), picture.palette());
    }

    void press(Qt::Key key) { QTest::keyClick(&picture, key); }

    QStringList told() {
        QStringList told;
        if (picture.tip())
            for (const PictureTip::Line& line : picture.tip()->lines())
                told << line.text + u'|' + line.figure;
        return told;
    }

    FakePlatform fakes;
    PictureColors colors{fakes.defaults};
    QWidget window;
    PeriodPicture picture{colors};
};

} // namespace

TEST_F(PeriodPictureTest, eachDay_hasItsBar) {
    showWeek();
    const QRect writing = picture.partRect(kMonday, u"Writer"_s);
    const QRect mail = picture.partRect(kMonday, u"Mail"_s);
    EXPECT_EQ(seenAt(writing.center()), colorOf("Writer"));
    EXPECT_EQ(seenAt(mail.center()), colorOf("Mail"));
    EXPECT_EQ(mail.bottom() + 1, writing.top()) << "one upon the other";
    EXPECT_NEAR(writing.height(), 3 * mail.height(), 3);
    EXPECT_NEAR(picture.partRect(kMonday.addDays(1), u"Writer"_s).height() * 3, writing.height() * 2, 4);
    EXPECT_EQ(picture.partRect(kMonday.addDays(2), u"Writer"_s), QRect());
    EXPECT_EQ(picture.placeRect(kMonday.addDays(2)).width(), picture.placeRect(kMonday).width());
}

TEST_F(PeriodPictureTest, theSameOfProjects) {
    showWeek(By::Projects);
    EXPECT_EQ(picture.legend(), (QStringList{u"Meier"_s, u"Huber"_s}));
    EXPECT_EQ(seenAt(picture.partRect(kMonday, u"Meier"_s).center()),
              colors.color(PictureColors::Kind::Project, u"Meier"_s, picture.palette()));
}

TEST_F(PeriodPictureTest, theLegend_hasTheEightLargestAndOther) {
    std::vector<RangeAnswer::Entry> programs;
    for (int i = 0; i < 12; ++i)
        programs.push_back({u"Program %1"_s.arg(i), (i + 1) * 10 * kMinute});
    picture.show(CalendarRange::around(Kind::Week, kMonday, Qt::Monday), {bar(kMonday, programs)},
                 By::Programs, kMonday);
    ASSERT_EQ(picture.legend().size(), 9);
    EXPECT_EQ(picture.legend().front(), u"Program 11"_s);
    EXPECT_EQ(picture.legend().back(), u"Other"_s);
    EXPECT_EQ(seenAt(picture.partRect(kMonday, u"Other"_s).center()),
              PictureColors::other(picture.palette()));
    programs.resize(9);
    picture.show(CalendarRange::around(Kind::Week, kMonday, Qt::Monday), {bar(kMonday, programs)},
                 By::Programs, kMonday);
    EXPECT_EQ(picture.legend().back(), u"Program 0"_s) << "one alone is not called Other";
}

TEST_F(PeriodPictureTest, theAverage_isThatOfTheDaysWithWork) {
    showWeek();
    EXPECT_EQ(picture.average(), 5 * kHour);
    const QImage image = picture.grab().toImage();
    const QRect writing = picture.partRect(kMonday, u"Writer"_s);
    const int y = writing.bottom() + 1 - writing.height() * 5 / 6;
    const QRect empty = picture.placeRect(kMonday.addDays(2));
    bool isThere = false;
    for (int row = y - 2; row <= y + 2; ++row)
        for (int x = empty.left(); x < empty.right(); ++x)
            isThere |= image.pixelColor(x, row) == picture.palette().color(QPalette::WindowText);
    EXPECT_TRUE(isThere);
}

TEST_F(PeriodPictureTest, withoutWork_thereIsNoAverage) {
    picture.show(CalendarRange::around(Kind::Week, kMonday, Qt::Monday), {}, By::Programs, kMonday);
    EXPECT_EQ(picture.average(), 0);
    EXPECT_TRUE(picture.legend().isEmpty());
    EXPECT_EQ(picture.itemCount(), 7) << "days to walk over";
}

TEST_F(PeriodPictureTest, today_isMarked) {
    showWeek();
    const auto mark = [&](QDate day) {
        const QRect place = picture.placeRect(day);
        return seenAt({place.center().x(), place.bottom() + 2});
    };
    EXPECT_EQ(mark(kMonday.addDays(3)), picture.palette().color(QPalette::Highlight));
    EXPECT_NE(mark(kMonday.addDays(2)), picture.palette().color(QPalette::Highlight));
}

TEST_F(PeriodPictureTest, thePointer_isToldNameTimeShareAndSum) {
    showWeek();
    QTest::mouseMove(&picture, picture.partRect(kMonday, u"Mail"_s).center());
    EXPECT_EQ(told(), (QStringList{u"Monday, November 16, 2026|8 h"_s, u"Mail|2 h  25%"_s}));
    EXPECT_FALSE(picture.tip()->geometry().intersects(picture.partRect(kMonday, u"Mail"_s)));
    const QRect place = picture.placeRect(kMonday.addDays(1));
    QTest::mouseMove(&picture, QPoint(place.center().x(), place.top() + 2));
    EXPECT_EQ(told(), (QStringList{u"Tuesday, November 17, 2026|4 h"_s, u"Writer|4 h  100%"_s}));
}

TEST_F(PeriodPictureTest, aClick_choosesTheBarAndThePart) {
    showWeek();
    QSignalSpy days(&picture, &PeriodPicture::barChosen);
    QSignalSpy entries(&picture, &PeriodPicture::entryChosen);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, picture.partRect(kMonday, u"Mail"_s).center());
    ASSERT_EQ(days.count(), 1);
    EXPECT_EQ(days[0][0].toDate(), kMonday);
    ASSERT_EQ(entries.count(), 1);
    EXPECT_EQ(entries[0][0].toString(), u"Mail"_s);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, picture.placeRect(kMonday.addDays(5)).center());
    EXPECT_EQ(days.count(), 2);
    EXPECT_EQ(entries.count(), 1);
}

TEST_F(PeriodPictureTest, whoeverHearsOfTheBar_mayShowAnotherRange) {
    showWeek();
    QObject::connect(&picture, &PeriodPicture::barChosen, &picture, [&](QDate day) {
        picture.show(CalendarRange::around(Kind::Day, day, Qt::Monday), {}, By::Programs, day);
    });
    QSignalSpy entries(&picture, &PeriodPicture::entryChosen);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, picture.partRect(kMonday, u"Mail"_s).center());
    ASSERT_EQ(entries.count(), 1);
    EXPECT_EQ(entries[0][0].toString(), u"Mail"_s);
}

TEST_F(PeriodPictureTest, theKeyboard_walksOverBarsAndPartsAndChooses) {
    showWeek();
    QSignalSpy days(&picture, &PeriodPicture::barChosen);
    QSignalSpy entries(&picture, &PeriodPicture::entryChosen);
    press(Qt::Key_Right);
    EXPECT_EQ(picture.itemText(picture.currentItem()), u"Monday, November 16, 2026: 8 hours"_s);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(picture.itemText(picture.currentItem()), u"Mail, 2 hours, 25%, Monday, November 16, 2026"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(picture.itemText(picture.currentItem()), u"Mail, 2 hours, 25%, Monday, November 16, 2026"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(entries.count(), 1);
    EXPECT_EQ(entries[0][0].toString(), u"Mail"_s);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    ASSERT_EQ(days.count(), 2);
    EXPECT_EQ(days[1][0].toDate(), kMonday.addDays(2)) << "an empty day can be chosen";
    press(Qt::Key_End);
    EXPECT_EQ(picture.itemText(picture.currentItem()), u"Sunday, November 22, 2026: 0 seconds"_s);
}

TEST_F(PeriodPictureTest, fromRightToLeft_allIsMirrored) {
    showWeek();
    const QRect before = picture.partRect(kMonday, u"Writer"_s);
    picture.setLayoutDirection(Qt::RightToLeft);
    const QRect after = picture.partRect(kMonday, u"Writer"_s);
    EXPECT_NEAR(after.center().x(), picture.width() - before.center().x(), 2);
    EXPECT_EQ(seenAt(after.center()), colorOf("Writer"));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(picture.itemText(picture.currentItem()), u"Tuesday, November 17, 2026: 4 hours"_s);
}

TEST_F(PeriodPictureTest, workOfNoProject_isCalledSoInTheUsersLanguage) {
    picture.show(CalendarRange::around(Kind::Week, kMonday, Qt::Monday),
                 {bar(kMonday, {{u"Mail"_s, kHour}}, {{kNoProject, kHour}})}, By::Projects, kMonday);
    EXPECT_EQ(picture.legend(), QStringList{u"No Project"_s});
    QSignalSpy entries(&picture, &PeriodPicture::entryChosen);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, picture.partRect(kMonday, kNoProject).center());
    ASSERT_EQ(entries.count(), 1);
    EXPECT_EQ(entries[0][0].toString(), kNoProject);
}

TEST_F(PeriodPictureTest, aBarThatGrowsUnderThePointer_goesOnTelling) {
    showWeek();
    QTest::mouseMove(&picture, picture.partRect(kMonday, u"Mail"_s).center());
    showWeek();
    EXPECT_EQ(told(), (QStringList{u"Monday, November 16, 2026|8 h"_s, u"Mail|2 h  25%"_s}));
}

TEST_F(PeriodPictureTest, anEntryOfTheLegend_canBeChosen) {
    showWeek();
    QSignalSpy days(&picture, &PeriodPicture::barChosen);
    QSignalSpy entries(&picture, &PeriodPicture::entryChosen);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, picture.legendRect(u"Mail"_s).center());
    EXPECT_EQ(days.count(), 0);
    ASSERT_EQ(entries.count(), 1);
    EXPECT_EQ(entries[0][0].toString(), u"Mail"_s);
}

TEST_F(PeriodPictureTest, aBarThatGrows_keepsTheCursor) {
    showWeek();
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    showWeek();
    EXPECT_EQ(picture.itemText(picture.currentItem()), u"Tuesday, November 17, 2026: 4 hours"_s);
    showWeek(By::Projects);
    EXPECT_EQ(picture.currentItem(), -1);
}

TEST(PeriodPlaces, areTheDaysWeeksOrMonthsOfTheRange) {
    EXPECT_EQ(PeriodPlaces(CalendarRange::around(Kind::Month, kMonday, Qt::Sunday)).count(), 30U);
    EXPECT_EQ(PeriodPlaces(CalendarRange::around(Kind::Year, kMonday, Qt::Sunday)).count(), 12U);
    const PeriodPlaces weeks(CalendarRange::span(QDate(2026, 1, 1), QDate(2026, 6, 1)));
    EXPECT_EQ(weeks.first(0), QDate(2025, 12, 29));
    EXPECT_EQ(weeks.placeOf(QDate(2026, 1, 4)), 0U);
    EXPECT_EQ(weeks.placeOf(QDate(2026, 1, 5)), 1U);
    EXPECT_EQ(weeks.placeOf(QDate(2027, 1, 1)), std::nullopt);
    EXPECT_EQ(weeks.placeOf(QDate(2025, 12, 28)), std::nullopt);
    EXPECT_EQ(weeks.name(1), u"Week of Jan 5"_s);
}

TEST(PeriodPlaces, labels_neverOverlap) {
    const QFontMetrics metrics{QFont()};
    const QDate today(2026, 11, 19);
    const std::vector<CalendarRange> ranges{CalendarRange::around(Kind::Week, today, Qt::Monday),
                                            CalendarRange::around(Kind::Month, today, Qt::Monday),
                                            CalendarRange::around(Kind::Year, today, Qt::Monday),
                                            CalendarRange::span(today.addDays(-60), today),
                                            CalendarRange::span(today.addDays(-100), today),
                                            CalendarRange::span(today.addDays(-700), today),
                                            CalendarRange::span(today.addYears(-10), today),
                                            CalendarRange::span(today.addYears(-30), today)};
    for (const CalendarRange& range : ranges)
        for (const int width : {100, 250, 600, 1400}) {
            const PeriodPlaces places(range);
            const double each = double(width) / double(places.count());
            double free = -1e9;
            int count = 0;
            const auto labels = places.labels(metrics, each);
            for (std::size_t place = 0; place < labels.size(); ++place) {
                if (labels[place].isEmpty())
                    continue;
                const double half = metrics.horizontalAdvance(labels[place]) / 2.0;
                EXPECT_GT((double(place) + 0.5) * each - half, free) << qPrintable(labels[place]);
                free = (double(place) + 0.5) * each + half;
                ++count;
            }
            EXPECT_GT(count, 0) << range.days() << " days in " << width;
        }
}

TEST(PeriodPlaces, labels_areRound) {
    const QFontMetrics metrics{QFont()};
    const PeriodPlaces month(CalendarRange::around(Kind::Month, QDate(2026, 10, 1), Qt::Monday));
    const double digits = metrics.horizontalAdvance(u"30"_s);
    QStringList shown;
    for (const QString& label : month.labels(metrics, (digits + 8) / 5))
        if (!label.isEmpty())
            shown << label;
    EXPECT_EQ(shown, (QStringList{u"1"_s, u"6"_s, u"11"_s, u"16"_s, u"21"_s, u"26"_s}));
}
