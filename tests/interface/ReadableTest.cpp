// SPDX-License-Identifier: MIT
// Whether what is drawn can be read and seen: measured from pictures, in light, in dark and in high contrast.
#include "interface/history/DayPicture.h"
#include "interface/history/HistoryModel.h"
#include "interface/history/PeriodPicture.h"
#include "interface/shell/Contrast.h"
#include "interface/shell/ReadableGreys.h"
#include "interface/sidebar/ProjectListModel.h"
#include "tests/interface/HistoryViewDesk.h"
#include "tests/interface/ProjectDesk.h"
#include "tests/interface/SetupDesk.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace {

QPalette light() {
    return QApplication::style()->standardPalette();
}

QPalette dark() {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::WindowText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x23));
    dark.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    dark.setColor(QPalette::Text, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::PlaceholderText, QColor(0x7c, 0x80, 0x86));
    dark.setColor(QPalette::Button, QColor(0x35, 0x38, 0x3b));
    dark.setColor(QPalette::ButtonText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

QPalette highContrast() {
    QPalette palette(Qt::white, Qt::black, Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, Qt::black,
                     Qt::black);
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

// The contrast of what stands out most in a picture, to the colour at its corner.
double contrastIn(const QImage& picture) {
    const QColor ground = picture.pixelColor(1, 1);
    double most = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            most = std::max(most, Contrast::of(picture.pixelColor(x, y), ground));
    return most;
}

struct Look {
    const char* name;
    QPalette (*palette)();
};

struct ReadableTest : testing::TestWithParam<Look> {
    ReadableTest() { QApplication::setPalette(GetParam().palette()); }
    ~ReadableTest() override { QApplication::setPalette(QPalette()); }

    static double contrastOf(QWidget& widget) {
        // Large, because the thin strokes of small letters are never drawn in their full colour.
        QFont large = widget.font();
        large.setPixelSize(40);
        widget.setFont(large);
        const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
        return contrastIn(widget.window()->grab(place).toImage());
    }
};

INSTANTIATE_TEST_SUITE_P(Each, ReadableTest,
                         testing::Values(Look{"light", light}, Look{"dark", dark},
                                         Look{"contrast", highContrast}),
                         [](const auto& look) { return std::string(look.param.name); });

} // namespace

TEST_P(ReadableTest, theGreyTextsOfTheWindow_canBeRead) {
    const ReadableGreys greys;
    ProjectDesk desk;
    desk.controller.window().resize(1200, 700);
    desk.show();
    // The invitation.
    QFont large = desk.table().font();
    large.setPixelSize(40);
    desk.table().setFont(large);
    desk.settle();
    EXPECT_GE(contrastIn(desk.table().viewport()->grab().toImage()), Contrast::kOfTexts);
    for (const char* grey : {"cutOffCaption", "timeSumCaption"}) {
        auto* label = desk.controller.window().findChild<QLabel*>(QLatin1String(grey));
        ASSERT_TRUE(label->isVisible()) << grey;
        EXPECT_GE(contrastOf(*label), Contrast::kOfTexts) << grey;
    }
}

TEST_P(ReadableTest, theExplanationsOfThePreferences_canBeRead) {
    const ReadableGreys greys;
    SetupDesk desk;
    desk.setup.showPrefWindow();
    int measured = 0;
    for (const char* tab : {"Archive", "History"}) {
        desk.setup.prefWindow().selectTab(QLatin1String(tab));
        desk.settle();
        for (auto* label : desk.setup.prefWindow().findChildren<QLabel*>())
            if (label->isVisible() && label->foregroundRole() == QPalette::PlaceholderText) {
                EXPECT_GE(contrastOf(*label), Contrast::kOfTexts) << qPrintable(label->text());
                ++measured;
            }
    }
    EXPECT_GT(measured, 1);
}

TEST_P(ReadableTest, theDimmedPartOfAName_canBeRead) {
    ProjectDesk desk;
    desk.account("Mail", 60);
    desk.show();
    desk.model().setData(desk.row("Mail"), QStringLiteral("."));
    QFont large = desk.table().font();
    large.setPixelSize(40);
    desk.table().setFont(large);
    desk.table().clearSelection();
    desk.settle();
    QRect cell = desk.table().visualRect(desk.row("."));
    // Right of the dot there is only the name that it replaces.
    cell.setLeft(cell.left() + desk.table().fontMetrics().horizontalAdvance(QStringLiteral(". ")) + 24);
    EXPECT_GE(contrastIn(desk.table().viewport()->grab(cell).toImage()), Contrast::kOfTexts);
}

TEST_P(ReadableTest, marks_canBeSeen) {
    ProjectDesk desk;
    desk.mailNotesAndPaint();
    for (int tag = 1; tag <= 6; ++tag) {
        desk.addProject("P", {});
        desk.projects().setSelectedColorTag(*desk.projects().projects().back(), tag);
    }
    desk.show();
    for (int row = 1; row <= 6; ++row) {
        const QModelIndex index = desk.at(row);
        const TKTableLabelCell cell = desk.sidebar().dataCell(index);
        const QRect frame = desk.sidebar().visualRect(index);
        const auto places = cell.layout(frame, false);
        ASSERT_FALSE(places.dots.empty());
        const QRect dot = places.dots.front().toAlignedRect().adjusted(-2, -2, 2, 2);
        EXPECT_GE(contrastIn(desk.sidebar().viewport()->grab(dot).toImage()), Contrast::kOfMarks)
            << "colour " << row;
        const QRect icon = places.icon.toAlignedRect().adjusted(-2, -2, 2, 2);
        EXPECT_GE(contrastIn(desk.sidebar().viewport()->grab(icon).toImage()), Contrast::kOfMarks) << "icon";
    }
    desk.table().expandAll();
    desk.settle();
    const QModelIndex window = desk.model().index(0, 0, desk.model().index(0, 0));
    const auto places = desk.table().dataCell(window).layout(desk.table().visualRect(window), true);
    EXPECT_GE(contrastIn(desk.table()
                             .viewport()
                             ->grab(places.windowIcon.toAlignedRect().adjusted(-2, -2, 2, 2))
                             .toImage()),
              Contrast::kOfMarks);
}

TEST_P(ReadableTest, theHoursTheLanesAndIdleTimeOfADay_canBeSeen) {
    FakePlatform fakes;
    const PictureColors colors(fakes.defaults);
    DayPicture picture(colors);
    picture.resize(1000, 160);
    const qint64 day = QDateTime(QDate(2026, 11, 19), QTime(0, 0)).toMSecsSinceEpoch();
    const auto at = [&](double hour) { return day + qint64(hour * 3'600'000); };
    const auto piece = [&](int from, int to, const char* program, RecordedStretch::Presence presence) {
        return RangeAnswer::Piece{at(from), at(to) - at(from), QString::fromUtf8(program), {}, {}, presence};
    };
    picture.show(day, at(24),
                 {piece(8, 10, "Mail", RecordedStretch::Presence::Work),
                  piece(10, 14, "Idle", RecordedStretch::Presence::Idle)},
                 at(22));
    picture.showAll();
    const auto part = [&](double from, double to, int top, int height) {
        const int left = int(picture.xOf(double(at(from))));
        return contrastIn(
            picture.grab({left, top, int(picture.xOf(double(at(to)))) - left, height}).toImage());
    };
    const QRect lane = picture.laneRect(DayPicture::Programs);
    constexpr int kTick = 4;
    EXPECT_GE(part(17.5, 18.5, lane.top() - kTick - 5, kTick + 2), Contrast::kOfMarks) << "the tick at 18";
    EXPECT_GE(part(15.2, 15.8, lane.top() - 2, 4), Contrast::kOfMarks) << "a gap";
    EXPECT_GE(part(11.2, 11.8, lane.top() - 2, 4), Contrast::kOfMarks) << "idle time";
    // Large, as above.
    QFont large = picture.font();
    large.setPixelSize(40);
    picture.setFont(large);
    picture.resize(3000, 400);
    picture.showAll();
    EXPECT_GE(part(1, 23, 0, 40), Contrast::kOfTexts) << "the hours";
}

TEST_P(ReadableTest, theAxisTheDaysAndTheLegendOfAWeek_canBeSeen) {
    FakePlatform fakes;
    const PictureColors colors(fakes.defaults);
    PeriodPicture picture(colors);
    picture.resize(1200, 400);
    QFont large = picture.font();
    large.setPixelSize(30);
    picture.setFont(large);
    const QDate monday(2026, 11, 16);
    const qint64 hour = 3'600'000;
    picture.show(CalendarRange::around(CalendarRange::Kind::Week, monday, Qt::Monday),
                 {{monday, {{QStringLiteral("Writer"), 6 * hour}}, {}}}, PeriodPicture::By::Programs,
                 monday.addDays(3));
    const QRect bar = picture.partRect(monday, QStringLiteral("Writer"));
    const auto part = [&](const QRect& rect) { return contrastIn(picture.grab(rect).toImage()); };
    const int below = bar.bottom() + 1;
    EXPECT_GE(part({bar.right() + 8, below - 2, 8, 5}), Contrast::kOfMarks) << "the line of nought";
    EXPECT_GE(part({0, 0, std::max(4, bar.left() - 60), below}), Contrast::kOfTexts) << "the hours";
    EXPECT_GE(part({bar.left(), below + 6, bar.width(), picture.height() - below - 6}), Contrast::kOfTexts)
        << "the days";
    EXPECT_GE(part({picture.width() - 200, 0, 200, picture.height() / 2}), Contrast::kOfTexts)
        << "the legend";
}

TEST_P(ReadableTest, theBarsOfShares_canBeSeenAndTheTimesOnThemRead) {
    HistoryViewDesk desk;
    desk.account("Mail", 3600);
    desk.account("Paint", 1800);
    desk.fakes.clock.advance(std::chrono::hours(9));
    desk.past(desk.today(0, 10), 900, "Mail", "Inbox");
    desk.show();
    QTreeView& timers = desk.table();
    timers.clearSelection();
    desk.settle();
    const auto cell = [&](QTreeView& view, const QModelIndex& index) { return view.visualRect(index); };
    const QRect time = cell(timers, desk.row("Paint").siblingAtColumn(TimeTreeModel::TimeSpentColumn));
    // The bar of half the time reaches to the middle, where no digit is.
    QRect left = time.adjusted(0, 0, -time.width() * 7 / 8, 0);
    EXPECT_GE(contrastIn(timers.viewport()->grab(left).toImage()), Contrast::kOfMarks) << "timers";
    const QImage all = timers.viewport()->grab(time).toImage();
    const QColor fill = all.pixelColor(6, all.height() / 2);
    EXPECT_GE(Contrast::of(timers.palette().color(QPalette::Text), fill), Contrast::kOfTexts);
    desk.showHistory();
    QTreeView& history = desk.pane().outline();
    history.clearSelection();
    desk.settle();
    const QRect share = cell(history, history.model()->index(0, HistoryModel::ShareColumn));
    ASSERT_FALSE(share.isEmpty());
    left = share.adjusted(0, 0, -share.width() * 3 / 4, 0);
    EXPECT_GE(contrastIn(history.viewport()->grab(left).toImage()), Contrast::kOfMarks) << "history";
}

TEST_P(ReadableTest, theTimesOfProjects_canBeRead) {
    ProjectDesk desk;
    desk.mailNotesAndPaint();
    desk.addProject("P", {});
    desk.controller.window().resize(1200, 700);
    QFont large = desk.sidebar().font();
    large.setPixelSize(30);
    desk.sidebar().setFont(large);
    desk.show();
    desk.sidebar().setColumnHidden(ProjectListModel::TimeColumn, false);
    desk.sidebar().setColumnWidth(ProjectListModel::TimeColumn, 150);
    desk.settle();
    const QRect time = desk.sidebar().visualRect(desk.at(1).siblingAtColumn(ProjectListModel::TimeColumn));
    ASSERT_FALSE(time.isEmpty());
    EXPECT_GE(contrastIn(desk.sidebar().viewport()->grab(time).toImage()), Contrast::kOfTexts);
}

TEST(ReadableGreysTest, aPaleGrey_becomesAsDarkAsNeededAndNoDarker) {
    const QColor grey = Contrast::readable(QColor(0, 0, 0, 60), Qt::black, Qt::white);
    EXPECT_GE(Contrast::of(grey, Qt::white), 4.5);
    EXPECT_LE(Contrast::of(grey, Qt::white), 5.2);
    EXPECT_EQ(Contrast::readable(QColor(80, 80, 80), Qt::black, Qt::white), QColor(80, 80, 80))
        << "good already";
    EXPECT_NEAR(Contrast::of(Qt::black, Qt::white), 21, 0.01);
}

TEST(ReadableGreysTest, anotherPalette_isMadeReadableAsWell) {
    const ReadableGreys greys;
    for (const auto palette : {light, dark, highContrast}) {
        QApplication::setPalette(palette());
        QCoreApplication::processEvents();
        const QPalette now = QApplication::palette();
        EXPECT_GE(
            Contrast::of(Contrast::over(now.color(QPalette::PlaceholderText), now.color(QPalette::Window)),
                         now.color(QPalette::Window)),
            4.5);
    }
    QApplication::setPalette(QPalette());
}

TEST_P(ReadableTest, theFramesOfSearchAndSlider_areSeen) {
    ProjectDesk desk;
    desk.show();
    MainWindow& window = desk.controller.window();
    window.searchAppField().setPlaceholderText({});
    window.searchAppField().clearFocus();
    desk.settle();
    for (QWidget* widget : {static_cast<QWidget*>(&window.searchAppField()),
                            window.findChild<QWidget*>(QStringLiteral("cutOffSlider"))}) {
        ASSERT_NE(widget, nullptr);
        const QRect place(widget->mapTo(&window, QPoint()), widget->size());
        EXPECT_GE(contrastIn(window.grab(place.adjusted(-3, -3, 3, 3)).toImage()), Contrast::kOfLines)
            << qPrintable(widget->objectName());
    }
}

TEST_P(ReadableTest, theArrowOfASelectedRow_isSeen) {
    ProjectDesk desk;
    desk.account("Mail", 60, {{QStringLiteral("Inbox"), 20}, {QStringLiteral("Sent"), 40}});
    desk.show();
    desk.controller.window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desk.controller.window()));
    desk.table().setFocus();
    desk.select({desk.row("Mail")});
    desk.settle();
    const QRect name = desk.table().visualRect(desk.row("Mail"));
    const QRect arrow(0, name.top() + 2, name.left(), name.height() - 4);
    EXPECT_GE(contrastIn(desk.table().viewport()->grab(arrow).toImage()), Contrast::kOfLines);
}
