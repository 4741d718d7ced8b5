// SPDX-License-Identifier: MIT
#include "interface/history/AmendActions.h"
#include "interface/history/AmendTexts.h"
#include "interface/history/DayPicture.h"
#include "interface/history/PictureTexts.h"
#include "interface/history/TimeSheetForms.h"
#include "interface/history/TimeSheetWindow.h"
#include "tests/fakes/HistoryDiary.h"
#include "tests/interface/HistoryViewDesk.h"

#include <QContextMenuEvent>
#include <QDateTimeEdit>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QUndoStack>

#include <gtest/gtest.h>

namespace {

struct AmendingTest : testing::Test, HistoryViewDesk {
    AmendingTest() {
        // All of the day that the tests tell of is over.
        fakes.clock.advance(std::chrono::milliseconds(today(18).toMSecsSinceEpoch() - now()));
    }

    qint64 now() const { return localTime(fakes.clock.now()).toMSecsSinceEpoch(); }

    void aDay() {
        past(today(9), 1800, "Mail", "Inbox");
        past(today(9, 30), 900, "Mail", "Letter");
        past(today(10), 600, "Draw", "Poster");
        past(today(10, 10), 600, "Idle", "", RowPresence::Idle);
        meier = controller.projects().addNewProjectWithItems({});
        controller.projects().setLabel(*meier, QStringLiteral("Meier & Sons"));
        showHistory();
        settle();
    }

    DayPicture& picture() { return pane().dayPicture(); }
    const AmendActions& amend() { return historyActions().amend; }

    QString pieces() {
        QStringList texts;
        for (const auto& piece : view.answer().pieces)
            texts << QStringLiteral("%1 %2 [%3]%4")
                         .arg(PictureTexts::fromTo(piece.start, piece.end()), piece.program, piece.title,
                              piece.projects.isEmpty() ? QString() : u' ' + piece.projects.join(u'/'));
        return texts.join(QStringLiteral("; "));
    }

    void give(const QString& project) {
        Q_EMIT amend().give->aboutToShow();
        for (QAction* action : amend().give->actions())
            if (action->text().remove(u'&') == QString(project).remove(u'&'))
                return command(action);
        throw std::invalid_argument(project.toStdString());
    }

    template<class Widget>
    Widget& part(const char* name) {
        auto* found = controller.window().findChild<Widget*>(QLatin1String(name));
        return found ? *found : throw std::invalid_argument(name);
    }

    void name(const char* text) {
        command(amend().name);
        part<QLineEdit>("timeName").setText(QString::fromUtf8(text));
        press("nameIt");
    }

    void press(const char* button) {
        auto& found = part<QPushButton>(button);
        if (!found.isEnabled())
            throw std::logic_error(button);
        found.click();
        settle();
    }

    void drag(const QDateTime& from, const QDateTime& to) {
        view.showPiece(std::pair(from.toMSecsSinceEpoch(), to.toMSecsSinceEpoch()));
        settle();
    }

    ProjectList::Project meier;
};

TEST_F(AmendingTest, aStretchInThePicture_isNamed_andThatIsUndoneAndRedone) {
    aDay();
    const QString before = pieces();
    picture().setFocus();
    picture().setCurrentItem(1);
    name("Meeting");
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:45:00 [Inbox 00:30:00, Meeting 00:15:00], "
                                     "Draw 00:10:00 [Poster 00:10:00]"));
    command(actions().undo);
    EXPECT_EQ(pieces(), before);
    command(actions().redo);
    EXPECT_EQ(outline().model()->index(1, 0, historyRow("Mail")).data().toString(),
              QStringLiteral("Meeting"));
    EXPECT_TRUE(picture().itemDetail(1).contains(QStringLiteral("Named by hand")))
        << qPrintable(picture().itemDetail(1));
    EXPECT_TRUE(picture().itemDetail(1).contains(QStringLiteral("Letter")));
}

TEST_F(AmendingTest, aDraggedPiece_isGivenToAProject) {
    aDay();
    drag(today(9, 20), today(10, 5));
    give(QStringLiteral("Meier && Sons"));
    view.showPiece(std::nullopt);
    settle();
    EXPECT_EQ(view.answer().projects.front().name, QStringLiteral("Meier & Sons"));
    EXPECT_EQ(view.answer().projects.front().length, 30 * 60'000);
    EXPECT_EQ(view.answer().work, 55 * 60'000);
    drag(today(9), today(11));
    give(QStringLiteral("No Project"));
    EXPECT_EQ(view.answer().projects.size(), 1U);
    command(actions().undo);
    EXPECT_EQ(view.answer().projects.size(), 2U);
}

TEST_F(AmendingTest, rowsOfTheOutline_areGivenInTheWholeRange) {
    past(today(9).addDays(-1), 600, "Mail", "Inbox");
    aDay();
    view.showRange(CalendarRange::around(CalendarRange::Kind::Week, today(9).date(), Qt::Monday));
    settle();
    outline().expandAll();
    outline().setFocus();
    outline().selectionModel()->select(outline().model()->index(0, 0, historyRow("Mail")),
                                       QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    give(QStringLiteral("Meier && Sons"));
    const auto& projects = view.answer().projects;
    const auto given = std::ranges::find(projects, QStringLiteral("Meier & Sons"), &RangeAnswer::Entry::name);
    ASSERT_NE(given, projects.end());
    EXPECT_EQ(given->length, (today(9).date().dayOfWeek() == 1 ? 30 : 40) * 60'000);
}

TEST_F(AmendingTest, timeIsBooked_whereNothingWasMeasured) {
    aDay();
    drag(today(9, 40), today(11));
    command(amend().book);
    EXPECT_TRUE(part<QLabel>("bookedFree").text().contains(QStringLiteral("1 h 5 min")))
        << qPrintable(part<QLabel>("bookedFree").text());
    part<QLineEdit>("bookedName").setText(QStringLiteral("By phone"));
    part<QComboBox>("bookedProject").setCurrentIndex(1);
    press("bookIt");
    view.showPiece(std::nullopt);
    settle();
    EXPECT_EQ(rows(), QStringLiteral("By Hand 01:05:00 [By phone 01:05:00], Mail 00:45:00 [Inbox 00:30:00, "
                                     "Letter 00:15:00], Draw 00:10:00 [Poster 00:10:00]"));
    EXPECT_EQ(view.answer().projects.front().name, QStringLiteral("Meier & Sons"));
    EXPECT_TRUE(picture().itemDetail(2).contains(QStringLiteral("Booked by hand")));
    command(actions().undo);
    EXPECT_EQ(view.answer().work, 55 * 60'000);
    EXPECT_EQ(view.answer().pieces.back().presence, RecordedStretch::Presence::Idle);
}

TEST_F(AmendingTest, whatWasWorked_cannotBeBookedAgain) {
    aDay();
    drag(today(9), today(9, 30));
    command(amend().book);
    EXPECT_FALSE(part<QPushButton>("bookIt").isEnabled());
    part<QDateTimeEdit>("bookedTo").setDateTime(today(8));
    EXPECT_FALSE(part<QPushButton>("bookIt").isEnabled());
    part<QDateTimeEdit>("bookedTo").setDateTime(today(9, 50));
    settle();
    EXPECT_TRUE(part<QPushButton>("bookIt").isEnabled());
}

TEST_F(AmendingTest, returnBooks_evenWithoutAName) {
    aDay();
    drag(today(11), today(12));
    command(amend().book);
    QTest::keyClick(&part<QLineEdit>("bookedName"), Qt::Key_Return);
    settle();
    EXPECT_EQ(view.answer().work, 60 * 60'000);
}

TEST_F(AmendingTest, whatIsAskedForABooking_isReachedByItsOwnKey) {
    aDay();
    command(amend().book);
    auto& window = part<QDialog>("bookingWindow");
    QStringList keys;
    for (const QLabel* label : window.findChildren<QLabel*>())
        keys << QKeySequence::mnemonic(label->text()).toString();
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        keys << QKeySequence::mnemonic(button->text()).toString();
    keys.removeAll(QString());
    EXPECT_GE(keys.size(), 5);
    EXPECT_EQ(keys.removeDuplicates(), 0) << qPrintable(keys.join(u' '));
}

TEST_F(AmendingTest, lessThanASecond_isNotFreeForABooking) {
    aDay();
    drag(today(9, 10), today(9, 45).addMSecs(999));
    command(amend().book);
    EXPECT_FALSE(part<QPushButton>("bookIt").isEnabled()) << qPrintable(part<QLabel>("bookedFree").text());
    EXPECT_TRUE(part<QLabel>("bookedFree").text().startsWith(QStringLiteral("No time is free")));
    part<QDateTimeEdit>("bookedTo").setDateTime(today(9, 45).addSecs(1));
    settle();
    EXPECT_TRUE(part<QPushButton>("bookIt").isEnabled());
}

TEST_F(AmendingTest, aBookingThatIsRedoneLater_isWhatWasUndone) {
    aDay();
    drag(today(17), today(20));
    command(amend().book);
    press("bookIt");
    EXPECT_EQ(view.answer().work, 60 * 60'000);
    command(actions().undo);
    fakes.clock.advance(std::chrono::hours(1));
    command(actions().redo);
    EXPECT_EQ(view.answer().work, 60 * 60'000);
}

TEST_F(AmendingTest, whatIsForgottenAgain_isWhatCameBack_notWhatWasDoneSince) {
    aDay();
    drag(today(10), today(20));
    alerts.answer = Alerts::Alternate;
    command(amend().forget);
    command(actions().undo);
    past(today(18, 30), 600, "Mail", "Later");
    fakes.clock.advance(std::chrono::hours(1));
    command(actions().redo);
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:10:00 [Later 00:10:00]"));
}

TEST_F(AmendingTest, whatIsStillToCome_isNotForgotten) {
    aDay();
    drag(today(19), today(20));
    alerts.answer = Alerts::Alternate;
    command(amend().forget);
    EXPECT_EQ(alerts.questions, QStringList());
    view.showPiece(std::nullopt);
    settle();
    EXPECT_EQ(view.answer().work, 55 * 60'000);
    EXPECT_EQ(controller.undoStack().count(), 0) << "there is no step";
}

TEST_F(AmendingTest, aPieceIsForgotten_afterAQuestion) {
    aDay();
    drag(today(9, 20), today(10, 5));
    alerts.answer = Alerts::Default;
    command(amend().forget);
    EXPECT_EQ(view.answer().work, 35 * 60'000 - 5 * 60'000);
    alerts.answer = Alerts::Alternate;
    command(amend().forget);
    EXPECT_EQ(view.answer().work, 0);
    view.showPiece(std::nullopt);
    settle();
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:20:00 [Inbox 00:20:00], Draw 00:05:00 [Poster 00:05:00]"));
}

TEST_F(AmendingTest, whatIsForgotten_comesBackWhenThatIsUndone_andGoesAgain) {
    aDay();
    const QString before = rows();
    drag(today(9, 20), today(10, 5));
    alerts.answer = Alerts::Alternate;
    command(amend().forget);
    EXPECT_TRUE(alerts.last.informativeText.contains(QStringLiteral("until Ticklog ends")));
    view.showPiece(std::nullopt);
    settle();
    const QString after = rows();
    EXPECT_FALSE(HistoryDiary::holdsText(history.path(), QStringLiteral("Letter")));
    EXPECT_EQ(controller.undoStack().undoText(), QStringLiteral("Forget"));
    for (int round = 0; round < 2; ++round) {
        command(actions().undo);
        EXPECT_EQ(rows(), before);
        command(actions().redo);
        EXPECT_EQ(rows(), after);
        EXPECT_FALSE(HistoryDiary::holdsText(history.path(), QStringLiteral("Letter")));
    }
    EXPECT_EQ(HistoryDiary::flaws(history.path()), QStringList());
}

TEST_F(AmendingTest, afterTheClockWasSetBack_whatLiesAheadOfNowIsNamedAndForgottenAllTheSame) {
    aDay();
    fakes.clock.setWall(Date(std::chrono::milliseconds(today(9).toMSecsSinceEpoch())));
    outline().choose(QStringLiteral("Draw"));
    name("Sketching");
    EXPECT_TRUE(rows().contains(QStringLiteral("Sketching"))) << qPrintable(rows());
    const QString before = rows();
    outline().choose(QStringLiteral("Draw"));
    alerts.answer = Alerts::Alternate;
    command(amend().forget);
    const QString after = rows();
    EXPECT_FALSE(after.contains(QStringLiteral("Sketching")));
    command(actions().undo);
    EXPECT_EQ(rows(), before);
    command(actions().redo);
    EXPECT_EQ(rows(), after);
    EXPECT_FALSE(HistoryDiary::holdsText(history.path(), QStringLiteral("Sketching")));
}

TEST_F(AmendingTest, whenTheHistoryIsSwitchedOff_forgettingCanNoLongerBeUndone) {
    aDay();
    drag(today(9, 20), today(10, 5));
    alerts.answer = Alerts::Alternate;
    command(amend().forget);
    defaults().setObject(kHistoryDays, std::int64_t(-1));
    settle();
    defaults().setObject(kHistoryDays, std::int64_t(0));
    settle();
    command(actions().undo);
    EXPECT_EQ(rows(), QString());
    EXPECT_EQ(controller.undoStack().count(), 0) << "the step is gone";
}

TEST_F(AmendingTest, moreThanMemoryShouldHold_isForgottenForGood_andTheQuestionSaysSo) {
    aDay();
    SqliteDatabase(history.path(), SqliteDatabase::Mode::ReadWrite, 0)
        .execute(
            "WITH RECURSIVE more(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM more WHERE n < 200000) "
            "INSERT INTO stretches SELECT start, more.n, length, offset, program, title, timer, presence "
            "FROM stretches, more WHERE start = (SELECT min(start) FROM stretches)");
    drag(today(9, 20), today(10, 5));
    alerts.answer = Alerts::Default;
    command(amend().forget);
    EXPECT_TRUE(alerts.last.informativeText.contains(QStringLiteral("can be undone")));
    drag(today(9), today(10, 5));
    command(amend().forget);
    EXPECT_TRUE(alerts.last.informativeText.contains(QStringLiteral("cannot be undone")));
}

TEST_F(AmendingTest, idleTime_canBeBookedAndForgotten_butNotNamed) {
    aDay();
    picture().setFocus();
    picture().setCurrentItem(3);
    EXPECT_FALSE(amend().name->isEnabled());
    EXPECT_FALSE(amend().give->menuAction()->isEnabled());
    EXPECT_TRUE(amend().forget->isEnabled());
    command(amend().book);
    EXPECT_EQ(part<QDateTimeEdit>("bookedFrom").dateTime(), today(10, 10));
    EXPECT_EQ(part<QDateTimeEdit>("bookedTo").dateTime(), today(10, 20));
}

TEST_F(AmendingTest, whereWorkIsChosen_theLastHourIsOfferedForBooking) {
    aDay();
    picture().setFocus();
    picture().setCurrentItem(1);
    command(amend().book);
    EXPECT_EQ(part<QDateTimeEdit>("bookedFrom").dateTime(), today(17));
    EXPECT_EQ(part<QDateTimeEdit>("bookedTo").dateTime(), today(18));
}

TEST_F(AmendingTest, whereNothingIsChosen_onlyBookingIsOffered) {
    aDay();
    EXPECT_FALSE(amend().name->isEnabled());
    EXPECT_FALSE(amend().forget->isEnabled());
    EXPECT_TRUE(amend().book->isEnabled());
    command(actions().showTimers);
    EXPECT_FALSE(amend().forget->isEnabled());
    EXPECT_TRUE(amend().book->isEnabled()) << "it shows the history first";
}

TEST_F(AmendingTest, aGapThatIsClicked_isWhatIsBooked) {
    aDay();
    picture().showAll();
    const QPoint place(int(picture().xOf(double(today(14).toMSecsSinceEpoch()))),
                       picture().laneRect(DayPicture::Programs).center().y());
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, picture().mapToGlobal(place));
    QCoreApplication::sendEvent(&picture(), &event);
    EXPECT_FALSE(amend().name->isEnabled());
    command(amend().book);
    EXPECT_EQ(part<QDateTimeEdit>("bookedFrom").dateTime(), today(10, 20));
    EXPECT_EQ(part<QDateTimeEdit>("bookedTo").dateTime(), today(18));
    delete controller.window().findChild<QMenu*>(QStringLiteral("amendMenu"));
}

TEST_F(AmendingTest, aGapThatReachesOutOfSight_isBookedAsAWhole) {
    aDay();
    picture().showAll();
    for (int step = 0; step < 2; ++step)
        picture().zoomIn();
    ASSERT_LT(picture().view().to(), double(today(18).toMSecsSinceEpoch()));
    ASSERT_GT(picture().view().to(), double(today(14).toMSecsSinceEpoch()));
    const QPoint place(int(picture().xOf(double(today(14).toMSecsSinceEpoch()))),
                       picture().laneRect(DayPicture::Programs).center().y());
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, picture().mapToGlobal(place));
    QCoreApplication::sendEvent(&picture(), &event);
    EXPECT_FALSE(amend().name->isEnabled());
    command(amend().book);
    EXPECT_EQ(part<QDateTimeEdit>("bookedFrom").dateTime(), today(10, 20));
    EXPECT_EQ(part<QDateTimeEdit>("bookedTo").dateTime(), today(18));
    delete controller.window().findChild<QMenu*>(QStringLiteral("amendMenu"));
}

TEST_F(AmendingTest, aStretchThatIsClicked_isTheOneTheMenuIsAbout) {
    aDay();
    const QPoint place(int(picture().xOf(double(today(10, 5).toMSecsSinceEpoch()))),
                       picture().laneRect(DayPicture::Programs).center().y());
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, picture().mapToGlobal(place));
    QCoreApplication::sendEvent(&picture(), &event);
    EXPECT_EQ(picture().currentItem(), 2);
    name("Flyer");
    EXPECT_TRUE(rows().contains(QStringLiteral("Draw 00:10:00 [Flyer 00:10:00]"))) << qPrintable(rows());
    delete controller.window().findChild<QMenu*>(QStringLiteral("amendMenu"));
}

TEST_F(AmendingTest, aSearch_meansOnlyWhatIsFound) {
    aDay();
    controller.window().searchAppField().setText(QStringLiteral("letter"));
    drag(today(9), today(11));
    name("Meeting");
    controller.window().searchAppField().clear();
    settle();
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:45:00 [Inbox 00:30:00, Meeting 00:15:00], "
                                     "Draw 00:10:00 [Poster 00:10:00]"));
}

TEST_F(AmendingTest, aDeletedProject_leavesItsTimeToNone_andComesBackWithIt) {
    aDay();
    drag(today(9), today(9, 30));
    give(QStringLiteral("Meier && Sons"));
    const auto before = controller.projects().snapshot();
    controller.projects().removeProject(0);
    view.showPiece(std::nullopt);
    settle();
    EXPECT_EQ(view.answer().projects.front().name, kNoProject);
    EXPECT_EQ(view.answer().projects.size(), 1U);
    controller.projects().restore(before);
    view.lookAgain();
    settle();
    EXPECT_EQ(view.answer().projects.size(), 2U);
}

TEST_F(AmendingTest, anOpenTimeSheet_followsWhatIsSetRight) {
    aDay();
    view.showTimeSheet();
    settle();
    const auto firstCells = [&] {
        QStringList cells;
        for (const QStringList& row : TimeSheetForms::table(view.timeSheet()->page()))
            cells << row.front();
        return cells;
    };
    EXPECT_FALSE(firstCells().contains(QStringLiteral("Meier & Sons")));
    drag(today(9), today(9, 30));
    give(QStringLiteral("Meier && Sons"));
    EXPECT_TRUE(firstCells().contains(QStringLiteral("Meier & Sons"))) << qPrintable(firstCells().join(u' '));
    controller.undoStack().undo();
    settle();
    EXPECT_FALSE(firstCells().contains(QStringLiteral("Meier & Sons")));
}

TEST_F(AmendingTest, byTheKeyboardAlone_aStretchIsFoundAndNamed) {
    aDay();
    picture().setFocus();
    QTest::keyClick(&picture(), Qt::Key_Home);
    QTest::keyClick(&picture(), Qt::Key_Right);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&picture(), &event);
    const QPointer<QMenu> menu = controller.window().findChild<QMenu*>(QStringLiteral("amendMenu"));
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->actions(), amend().all());
    name("Meeting");
    delete menu.data();
    EXPECT_TRUE(rows().contains(QStringLiteral("Meeting 00:15:00"))) << qPrintable(rows());
}

TEST_F(AmendingTest, rowsOfTheOutline_haveAMenuByTheMouse) {
    aDay();
    outline().choose(QStringLiteral("Draw"));
    const QPoint place = outline().visualRect(outline().currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, outline().viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(outline().viewport(), &event);
    const auto menus = controller.window().findChildren<QMenu*>(QStringLiteral("amendMenu"));
    ASSERT_EQ(menus.size(), 1);
    EXPECT_EQ(menus.front()->pos(), outline().viewport()->mapToGlobal(place));
    delete menus.front();
}

TEST_F(AmendingTest, rowsOfTheOutline_haveAMenuByTheKeyboard) {
    aDay();
    outline().choose(QStringLiteral("Draw"));
    outline().setFocus();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(controller.window().focusWidget(), &event);
    const QPointer<QMenu> menu = controller.window().findChild<QMenu*>(QStringLiteral("amendMenu"));
    ASSERT_TRUE(menu);
    name("Flyer");
    delete menu.data();
    EXPECT_TRUE(rows().contains(QStringLiteral("Draw 00:10:00 [Flyer 00:10:00]"))) << qPrintable(rows());
}

} // namespace
