// SPDX-License-Identifier: MIT
#include "interface/history/DayPicture.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/interface/InTimeZone.h"
#include "tests/interface/PlainSpaces.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Piece = RangeAnswer::Piece;
using Presence = RecordedStretch::Presence;

constexpr qint64 kSecond = 1000;
constexpr qint64 kMinute = 60 * kSecond;
constexpr qint64 kHour = 60 * kMinute;
const QDate kDay(2026, 11, 19);

qint64 at(int hour, int minute = 0, int second = 0) {
    return QDateTime(kDay, QTime(hour, minute, second)).toMSecsSinceEpoch();
}

Piece piece(qint64 start, qint64 end, const char* program, const char* title = "",
            const QStringList& projects = {}) {
    return {start, end - start, QString::fromUtf8(program), QString::fromUtf8(title), projects};
}

Piece idle(int hour) {
    return {at(hour), kHour, u"Idle"_s, {}, {}, RecordedStretch::Presence::Idle};
}

// A day on the screen, as a person has it before them.
struct DayPictureTest : testing::Test {
    DayPictureTest() {
        window.resize(1000, 500);
        picture.setParent(&window);
        picture.setGeometry(0, 0, 1000, 120);
        picture.show();
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    ~DayPictureTest() override { picture.setParent(nullptr); }

    // The first time, with all of its hours.
    void show(std::vector<Piece> pieces) {
        picture.show(at(0), at(0) + 24 * kHour, std::move(pieces), at(22));
        if (!std::exchange(isOpened, true))
            picture.showAll();
    }

    // "9-17": what is seen of the day.
    QString seen() const {
        const auto hour = [](double moment) { return QString::number((moment - double(at(0))) / kHour); };
        return hour(picture.view().from()) + u'-' + hour(picture.view().to());
    }

    // Mail, a short look at a page, writing for two projects, nobody there, a gap, and writing again.
    void showWork() {
        show({piece(at(9), at(10), "Mail", "Inbox", {u"Meier"_s}),
              piece(at(10), at(10, 0, 4), "Browser", "News"),
              piece(at(10, 0, 4), at(12), "Writer", "Offer", {u"Meier"_s, u"Huber"_s}),
              {at(12), kHour, u"Idle"_s, {}, {}, Presence::Idle},
              piece(at(14), at(16), "Writer", "Report")});
    }

    QPoint placeOf(qint64 moment, DayPicture::Lane lane = DayPicture::Programs) {
        const QRect rect = picture.laneRect(lane);
        return {int(picture.xOf(double(moment))), rect.top() + rect.height() / 4};
    }

    QColor seenAt(qint64 moment, DayPicture::Lane lane = DayPicture::Programs) {
        return picture.grab().toImage().pixelColor(placeOf(moment, lane));
    }

    // All the colours in the pixels' column there.
    QSet<QRgb> columnAt(qint64 moment, DayPicture::Lane lane = DayPicture::Programs) {
        const QImage image = picture.grab().toImage();
        QSet<QRgb> found;
        const QRect rect = picture.laneRect(lane).adjusted(0, 2, 0, -2);
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            found << image.pixel(placeOf(moment).x(), y);
        return found;
    }

    QColor colorOf(const char* program) {
        return colors.color(PictureColors::Kind::Program, QString::fromUtf8(program), picture.palette());
    }

    QColor colorOfProject(const char* project) {
        return colors.color(PictureColors::Kind::Project, QString::fromUtf8(project), picture.palette());
    }

    void wheel(const QPoint& place, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWheelEvent event(place, picture.mapToGlobal(place), {}, {0, notches * 120}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&picture, &event);
    }

    void drag(qint64 from, qint64 to) {
        QTest::mousePress(&picture, Qt::LeftButton, {}, placeOf(from));
        QTest::mouseMove(&picture, (placeOf(from) + placeOf(to)) / 2);
        QTest::mouseMove(&picture, placeOf(to));
        QTest::mouseRelease(&picture, Qt::LeftButton, {}, placeOf(to));
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&picture, key, modifiers);
    }

    QStringList told() {
        QStringList told;
        if (picture.tip())
            for (const PictureTip::Line& line : picture.tip()->lines())
                told << line.text + u'|' + line.figure + u'|' +
                            withPlainSpaces(line.detail).replace(QChar::LineSeparator, u'|');
        return told;
    }

    FakePlatform fakes;
    PictureColors colors{fakes.defaults};
    bool isOpened = false;
    QWidget window;
    DayPicture picture{colors};
};

} // namespace

TEST_F(DayPictureTest, eachProgram_isWhereItWas) {
    showWork();
    EXPECT_EQ(seenAt(at(9, 30)), colorOf("Mail"));
    EXPECT_EQ(seenAt(at(11)), colorOf("Writer"));
    EXPECT_EQ(seenAt(at(15)), colorOf("Writer"));
    EXPECT_EQ(seenAt(at(12, 30)), PictureColors::idle(picture.palette()));
    EXPECT_EQ(seenAt(at(13, 30)), seenAt(at(5, 30))) << "a gap is as empty as the night";
    EXPECT_NE(seenAt(at(13, 30)), seenAt(at(12, 30)));
}

TEST_F(DayPictureTest, twoProjectsOfOneStretch_areBothSeen) {
    showWork();
    EXPECT_EQ(seenAt(at(9, 30), DayPicture::Projects), colorOfProject("Meier"));
    const QSet<QRgb> both = columnAt(at(11), DayPicture::Projects);
    EXPECT_TRUE(both.contains(colorOfProject("Meier").rgb()));
    EXPECT_TRUE(both.contains(colorOfProject("Huber").rgb()));
    EXPECT_EQ(seenAt(at(15), DayPicture::Projects), PictureColors::nobody(picture.palette()));
}

TEST_F(DayPictureTest, aPixel_showsWhatHadMostOfIt) {
    // A pixel is more than a minute. Mail has 40 seconds of each, in four pieces.
    std::vector<Piece> pieces;
    for (int minute = 0; minute < 120; ++minute)
        for (int i = 0; i < 4; ++i) {
            pieces.push_back(piece(at(9, minute % 60) + minute / 60 * kHour + i * 15 * kSecond,
                                   at(9, minute % 60) + minute / 60 * kHour + (i * 15 + 10) * kSecond,
                                   "Mail"));
            pieces.push_back(piece(pieces.back().end(), pieces.back().end() + 5 * kSecond, "Browser"));
        }
    show(std::move(pieces));
    EXPECT_EQ(seenAt(at(9, 30)), colorOf("Mail"));
    EXPECT_EQ(seenAt(at(10, 30)), colorOf("Mail"));
}

TEST_F(DayPictureTest, aPixelUsedByLessThanHalf_isHatched) {
    std::vector<Piece> pieces;
    for (int minute = 0; minute < 60; ++minute)
        pieces.push_back(piece(at(9, minute), at(9, minute, 20), "Mail"));
    show(std::move(pieces));
    const QSet<QRgb> hatched = columnAt(at(9, 30));
    EXPECT_TRUE(hatched.contains(colorOf("Mail").rgb()));
    EXPECT_TRUE(hatched.contains(seenAt(at(5)).rgb())) << "and the ground between";
    EXPECT_EQ(hatched.size(), 2);
}

TEST_F(DayPictureTest, aStretchOfFourSeconds_isSeen) {
    show({piece(at(9), at(9, 0, 4), "Mail")});
    EXPECT_TRUE(columnAt(at(9)).contains(colorOf("Mail").rgb()));
}

TEST_F(DayPictureTest, aDayOf25Hours_isDrawnWholeAndTrue) {
    const InTimeZone berlin("Europe/Berlin");
    const qint64 begin = QDateTime(QDate(2026, 10, 25), QTime(0, 0)).toMSecsSinceEpoch();
    const qint64 end = QDateTime(QDate(2026, 10, 26), QTime(0, 0)).toMSecsSinceEpoch();
    ASSERT_EQ(end - begin, 25 * kHour);
    picture.show(begin, end, {piece(begin + 24 * kHour, end, "Mail")}, begin);
    picture.showAll();
    const QRect lane = picture.laneRect(DayPicture::Programs);
    EXPECT_NEAR(picture.xOf(double(begin + 24 * kHour)), lane.left() + lane.width() * 24 / 25.0, 1);
    EXPECT_EQ(seenAt(end - kHour / 2), colorOf("Mail"));
    EXPECT_EQ(withPlainSpaces(picture.itemText(0)), u"11:00 PM to 12:00 AM, Mail, 1 hour"_s);
}

TEST_F(DayPictureTest, fromRightToLeft_allIsMirrored) {
    showWork();
    const int mail = placeOf(at(9, 30)).x();
    picture.setLayoutDirection(Qt::RightToLeft);
    EXPECT_NEAR(placeOf(at(9, 30)).x(), picture.width() - mail, 2);
    EXPECT_EQ(seenAt(at(9, 30)), colorOf("Mail"));
    EXPECT_EQ(seenAt(at(15)), colorOf("Writer"));
    EXPECT_GT(placeOf(at(9)).x(), placeOf(at(15)).x());
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(picture.currentItem(), 1) << "left is later";
}

TEST_F(DayPictureTest, thePointer_isToldAllThatItTouches) {
    showWork();
    QTest::mouseMove(&picture, placeOf(at(10)));
    EXPECT_EQ(told(), (QStringList{u"Mail · Meier|1 h|9:00 AM to 10:00 AM|Inbox"_s,
                                   u"Browser|4 s|10:00:00 AM to 10:00:04 AM|News"_s,
                                   u"Writer · Meier, Huber|2 h|10:00 AM to 12:00 PM|Offer"_s}));
    QTest::mouseMove(&picture, placeOf(at(9, 30)));
    EXPECT_EQ(told().size(), 1);
    QTest::mouseMove(&picture, placeOf(at(12, 30)));
    EXPECT_EQ(told(), QStringList{u"Idle|1 h|12:00 PM to 1:00 PM"_s});
    QTest::mouseMove(&picture, placeOf(at(13, 30)));
    EXPECT_EQ(picture.tip(), nullptr);
}

TEST_F(DayPictureTest, aTip_liesBesideWhatItTellsOf) {
    showWork();
    for (const auto lane : {DayPicture::Programs, DayPicture::Projects}) {
        QTest::mouseMove(&picture, placeOf(at(11), lane));
        ASSERT_NE(picture.tip(), nullptr);
        const QRect tip = picture.tip()->geometry();
        EXPECT_TRUE(window.rect().contains(tip));
        EXPECT_FALSE(tip.intersects(picture.laneRect(DayPicture::Programs)));
        EXPECT_FALSE(tip.intersects(picture.laneRect(DayPicture::Projects)));
    }
}

TEST_F(DayPictureTest, manyAtOnePlace_areCountedWhereTheyAreNotListed) {
    std::vector<Piece> pieces;
    for (int second = 0; second < 60; ++second)
        pieces.push_back(piece(at(9, 0, second), at(9, 0, second) + kSecond, "Mail"));
    show(std::move(pieces));
    QTest::mouseMove(&picture, placeOf(at(9)));
    EXPECT_EQ(told().size(), 6);
    EXPECT_EQ(told().last(), u"55 more|55 s|"_s);
}

TEST_F(DayPictureTest, aTitleWithMarkup_isShownAsItIs) {
    show({piece(at(9), at(10), "Mail", "<b>Inbox</b>")});
    QTest::mouseMove(&picture, placeOf(at(9, 30)));
    EXPECT_EQ(told(), QStringList{u"Mail|1 h|9:00 AM to 10:00 AM|<b>Inbox</b>"_s});
}

TEST_F(DayPictureTest, ctrlAndTheWheel_zoomAtThePointer) {
    showWork();
    const QPoint place = placeOf(at(10));
    const double moment = picture.momentAt(place.x());
    wheel(place, 5, Qt::ControlModifier);
    EXPECT_TRUE(picture.view().isZoomed());
    EXPECT_NEAR(picture.momentAt(place.x()), moment, 1);
    wheel(place, -50, Qt::ControlModifier);
    EXPECT_FALSE(picture.view().isZoomed());
    wheel(place, 500, Qt::ControlModifier);
    EXPECT_EQ(picture.view().length(), TimeView::kShortest);
}

TEST_F(DayPictureTest, theWheel_movesOnlyWhatIsZoomed) {
    showWork();
    QWheelEvent event(QPointF(500, 60), QPointF(500, 60), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&picture, &event);
    EXPECT_FALSE(event.isAccepted()) << "a page around it scrolls";
    wheel(placeOf(at(10)), 5, Qt::ControlModifier);
    const double before = picture.view().from();
    wheel(QPoint(500, 60), -1);
    EXPECT_GT(picture.view().from(), before);
}

TEST_F(DayPictureTest, theKeys_zoomAndShowAllAgain) {
    showWork();
    QSignalSpy reset(&picture, &DayPicture::rangeReset);
    press(Qt::Key_Plus);
    EXPECT_EQ(picture.view().length(), double(12 * kHour));
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(picture.view().length(), double(6 * kHour));
    press(Qt::Key_Minus);
    EXPECT_EQ(picture.view().length(), double(12 * kHour));
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(seen(), u"8-17"_s) << "the working day first";
    EXPECT_EQ(reset.count(), 1);
    press(Qt::Key_Escape);
    EXPECT_EQ(seen(), u"0-24"_s) << "then all of it";
    press(Qt::Key_Plus);
    press(Qt::Key_Escape);
    EXPECT_EQ(seen(), u"8-17"_s);
    EXPECT_EQ(reset.count(), 3);
}

TEST_F(DayPictureTest, aDay_opensOnItsFullHoursOfWork) {
    isOpened = true;
    showWork();
    EXPECT_EQ(seen(), u"8-17"_s);
    picture.zoomOut();
    picture.zoomOut();
    EXPECT_EQ(seen(), u"0-24"_s);
    const auto opened = [&](std::vector<Piece> pieces) {
        picture.show(at(0) - 24 * kHour, at(0), {}, 0);
        show(std::move(pieces));
        return seen();
    };
    EXPECT_EQ(opened({}), u"0-24"_s);
    EXPECT_EQ(opened({piece(at(9, 15), at(9, 20), "Mail")}), u"9-13"_s) << "what is added lies ahead";
    EXPECT_EQ(opened({piece(at(23, 15), at(23, 50), "Mail")}), u"20-24"_s);
    EXPECT_EQ(opened({piece(at(0, 5), at(0, 6), "Mail")}), u"0-4"_s);
    EXPECT_EQ(opened({idle(1), piece(at(9, 30), at(14, 30), "Mail"), idle(19)}), u"9-15"_s)
        << "nobody worked in the night";
}

TEST_F(DayPictureTest, aWorkingDayThatGrows_isSeenWholeUntilSomebodyZooms) {
    isOpened = true;
    show({piece(at(9, 15), at(12, 45), "Mail")});
    EXPECT_EQ(seen(), u"9-13"_s);
    show({piece(at(9, 15), at(13, 5), "Mail")});
    EXPECT_EQ(seen(), u"9-14"_s);
    picture.zoomIn();
    const QString zoomed = seen();
    show({piece(at(9, 15), at(18), "Mail")});
    EXPECT_EQ(seen(), zoomed);
}

TEST_F(DayPictureTest, dragging_choosesAPiece) {
    showWork();
    QSignalSpy chosen(&picture, &DayPicture::rangeChosen);
    QSignalSpy program(&picture, &DayPicture::programChosen);
    drag(at(9), at(12));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toLongLong(), at(9)) << "to the ends of stretches that are near";
    EXPECT_EQ(chosen[0][1].toLongLong(), at(12));
    EXPECT_EQ(program.count(), 0);
    drag(at(18), at(13, 30));
    ASSERT_EQ(chosen.count(), 2);
    EXPECT_LT(chosen[1][0].toLongLong(), chosen[1][1].toLongLong()) << "backwards too";
    EXPECT_EQ(chosen[1][0].toLongLong() % kMinute, 0);
}

TEST_F(DayPictureTest, escape_endsDraggingAndNothingElse) {
    showWork();
    QSignalSpy chosen(&picture, &DayPicture::rangeChosen);
    QSignalSpy reset(&picture, &DayPicture::rangeReset);
    QTest::mousePress(&picture, Qt::LeftButton, {}, placeOf(at(9)));
    QTest::mouseMove(&picture, placeOf(at(11)));
    press(Qt::Key_Escape);
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, placeOf(at(11)));
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(DayPictureTest, aClick_choosesWhatLiesThere) {
    showWork();
    QSignalSpy program(&picture, &DayPicture::programChosen);
    QSignalSpy project(&picture, &DayPicture::projectChosen);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, placeOf(at(11)));
    ASSERT_EQ(program.count(), 1);
    EXPECT_EQ(program[0][0].toString(), u"Writer"_s);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, placeOf(at(9, 30), DayPicture::Projects));
    QTest::mouseClick(&picture, Qt::LeftButton, {}, placeOf(at(15), DayPicture::Projects));
    ASSERT_EQ(project.count(), 2);
    EXPECT_EQ(project[0][0].toString(), u"Meier"_s);
    EXPECT_EQ(project[1][0].toString(), kNoProject);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, placeOf(at(5)));
    EXPECT_EQ(program.count(), 1);
}

TEST_F(DayPictureTest, theKeyboard_walksFromStretchToStretchAndChooses) {
    showWork();
    QSignalSpy program(&picture, &DayPicture::programChosen);
    QSignalSpy project(&picture, &DayPicture::projectChosen);
    press(Qt::Key_Right);
    EXPECT_EQ(picture.currentItem(), 0);
    EXPECT_EQ(told(), QStringList{u"Mail · Meier|1 h|9:00 AM to 10:00 AM|Inbox"_s});
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    ASSERT_EQ(program.count(), 1);
    EXPECT_EQ(program[0][0].toString(), u"Writer"_s);
    press(Qt::Key_Down);
    EXPECT_EQ(picture.currentItem(), 2);
    press(Qt::Key_Return);
    ASSERT_EQ(project.count(), 1);
    EXPECT_EQ(project[0][0].toString(), u"Meier"_s);
    press(Qt::Key_End);
    EXPECT_EQ(picture.currentItem(), 4);
    press(Qt::Key_Right);
    EXPECT_EQ(picture.currentItem(), 4);
    press(Qt::Key_Home);
    EXPECT_EQ(picture.currentItem(), 0);
}

TEST_F(DayPictureTest, theCursor_isDrawnAndBroughtIntoView) {
    showWork();
    picture.setFocus();
    const QImage before = picture.grab().toImage();
    press(Qt::Key_Right);
    EXPECT_NE(picture.grab().toImage(), before);
    for (int i = 0; i < 5; ++i)
        picture.zoomIn();
    press(Qt::Key_End);
    EXPECT_GE(picture.itemRect(4).left(), picture.laneRect(DayPicture::Programs).left() - 1);
}

TEST_F(DayPictureTest, anItem_isASentence) {
    showWork();
    EXPECT_EQ(withPlainSpaces(picture.itemText(0)), u"9:00 AM to 10:00 AM, Mail, Project Meier, 1 hour"_s);
    EXPECT_EQ(picture.itemDetail(0), u"Inbox"_s);
    EXPECT_EQ(withPlainSpaces(picture.itemText(1)), u"10:00:00 AM to 10:00:04 AM, Browser, 4 seconds"_s);
    EXPECT_EQ(withPlainSpaces(picture.itemText(3)), u"12:00 PM to 1:00 PM, Idle, 1 hour"_s);
}

TEST_F(DayPictureTest, aDayThatGrows_keepsZoomAndCursor) {
    showWork();
    press(Qt::Key_Plus);
    press(Qt::Key_Home);
    const double from = picture.view().from();
    std::vector<Piece> more{piece(at(9), at(10), "Mail"), piece(at(10), at(10, 5), "Browser"),
                            piece(at(10, 5), at(12), "Writer"), piece(at(14), at(16), "Writer"),
                            piece(at(16), at(17), "Mail")};
    show(std::move(more));
    EXPECT_EQ(picture.view().from(), from);
    EXPECT_EQ(picture.currentItem(), 0);
    picture.show(at(0) + 24 * kHour, at(0) + 48 * kHour, {}, 0);
    EXPECT_FALSE(picture.view().isZoomed());
    EXPECT_EQ(picture.currentItem(), -1);
}

TEST_F(DayPictureTest, aDayThatGrowsUnderThePointer_goesOnTelling) {
    show({piece(at(9), at(10), "Mail")});
    QTest::mouseMove(&picture, placeOf(at(9, 59)));
    EXPECT_EQ(told(), QStringList{u"Mail|1 h|9:00 AM to 10:00 AM"_s});
    show({piece(at(9), at(10, 1), "Mail")});
    EXPECT_EQ(told(), QStringList{u"Mail|1 h 1 min|9:00 AM to 10:01 AM"_s});
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&picture, &leave);
    show({piece(at(9), at(10, 2), "Mail")});
    EXPECT_EQ(picture.tip(), nullptr);
}

TEST_F(DayPictureTest, aDayThatGrowsWhileOneDrags_letsOneDragOn) {
    showWork();
    QSignalSpy chosen(&picture, &DayPicture::rangeChosen);
    QTest::mousePress(&picture, Qt::LeftButton, {}, placeOf(at(9)));
    QTest::mouseMove(&picture, placeOf(at(11)));
    showWork();
    QTest::mouseMove(&picture, placeOf(at(12)));
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, placeOf(at(12)));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toLongLong(), at(9));
    EXPECT_EQ(chosen[0][1].toLongLong(), at(12));
}

TEST_F(DayPictureTest, thePieceThatWasChosen_isTheWholeWhenItIsShown) {
    showWork();
    drag(at(9), at(12));
    picture.show(at(9), at(12), {piece(at(9), at(12), "Mail")}, at(22));
    const QRect lane = picture.laneRect(DayPicture::Programs);
    EXPECT_NEAR(picture.xOf(double(at(9))), lane.left(), 1);
    EXPECT_NEAR(picture.xOf(double(at(12))), lane.right() + 1, 1);
    EXPECT_EQ(seenAt(at(10)), colorOf("Mail")) << "and not marked any more";
}

TEST_F(DayPictureTest, now_isALine) {
    picture.show(at(0), at(0) + 24 * kHour, {}, at(12));
    const QColor text = picture.palette().color(QPalette::WindowText);
    EXPECT_EQ(seenAt(at(12)), text);
    picture.setNow(at(18));
    EXPECT_NE(seenAt(at(12)), text);
    EXPECT_EQ(seenAt(at(18)), text);
}

TEST_F(DayPictureTest, anEmptyDay_takesAllKeysAndClicks) {
    show({});
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Up,
                              Qt::Key_Down, Qt::Key_Return, Qt::Key_Plus, Qt::Key_PageDown, Qt::Key_0})
        press(key);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, placeOf(at(9)));
    EXPECT_EQ(picture.currentItem(), -1);
}
