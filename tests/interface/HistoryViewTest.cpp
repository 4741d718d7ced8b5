// SPDX-License-Identifier: MIT
#include "tests/interface/HistoryViewDesk.h"

#include "interface/history/DayPicture.h"
#include "interface/history/PeriodPicture.h"
#include "interface/history/RangeBar.h"
#include "interface/history/TimeSheetWindow.h"
#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/SumBar.h"

#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

struct HistoryViewTest : testing::Test, HistoryViewDesk {
    void aDay() {
        past(today(9), 1800, "Mail", "Inbox");
        past(today(9, 30), 900, "Mail", "Letter to Anna");
        past(today(10), 600, "Draw", "Poster");
        past(today(10, 10), 600, "Idle", "", RowPresence::Idle);
        past(today(9).addDays(-1), 300, "Notes", "Yesterday");
    }

    QString title() {
        return controller.window().findChild<QToolButton*>(QStringLiteral("historyTitle"))->text();
    }

    QString clipboard() { return QGuiApplication::clipboard()->text(); }
};

TEST_F(HistoryViewTest, theFirstLaunch_showsTheTimersAndRemembersWhatIsChosenLater) {
    show();
    EXPECT_FALSE(controller.window().isHistoryShown());
    EXPECT_TRUE(table().isVisible());
    command(actions().showHistory);
    EXPECT_TRUE(outline().isVisible());
    EXPECT_FALSE(table().isVisible());
    EXPECT_EQ(controller.window().findChild<QTabBar*>(QStringLiteral("sides"))->currentIndex(), 1);
    EXPECT_TRUE(fakes.defaults.boolForKey(kHistoryShown));
    command(actions().showTimers);
    EXPECT_TRUE(table().isVisible());
    EXPECT_FALSE(fakes.defaults.boolForKey(kHistoryShown));
}

TEST_F(HistoryViewTest, aTab_showsTheOtherSide) {
    show();
    controller.window().findChild<QTabBar*>(QStringLiteral("sides"))->setCurrentIndex(1);
    EXPECT_TRUE(controller.window().isHistoryShown());
    EXPECT_TRUE(outline().isVisible());
}

TEST_F(HistoryViewTest, today_hasItsProgramsWithTheirTitles) {
    aDay();
    showHistory();
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:45:00 [Inbox 00:30:00, Letter to Anna 00:15:00], "
                                     "Draw 00:10:00 [Poster 00:10:00]"));
    EXPECT_EQ(historySum(), QStringLiteral("00:55:00"));
    EXPECT_EQ(historyRow("Mail").siblingAtColumn(HistoryModel::ShareColumn).data(HistoryModel::ShareRole),
              45.0 / 55);
}

TEST_F(HistoryViewTest, aTitle_isShownWithoutItsProgramAndCopiedWhole) {
    past(today(9), 60, "Writer", "Offer.odt - Writer");
    showHistory();
    outline().expandAll();
    settle();
    const QModelIndex title = historyRow("Writer").model()->index(0, 0, historyRow("Writer"));
    EXPECT_EQ(title.data().toString(), QStringLiteral("Offer.odt"));
    outline().copy();
    EXPECT_TRUE(clipboard().contains(u"Offer.odt - Writer"));
}

TEST_F(HistoryViewTest, backAndForward_showTheDaysBesideAndTodayComesBack) {
    aDay();
    showHistory();
    const QString now = title();
    command(historyActions().back);
    EXPECT_EQ(rows(), QStringLiteral("Notes 00:05:00 [Yesterday 00:05:00]"));
    EXPECT_NE(title(), now);
    command(historyActions().back);
    EXPECT_EQ(rows(), QString());
    command(historyActions().today);
    EXPECT_EQ(title(), now);
    command(historyActions().forward);
    EXPECT_EQ(rows(), QString());
}

TEST_F(HistoryViewTest, longerRanges_addUpAndAreRemembered) {
    past(today(9), 600, "Mail", "Inbox");
    past(today(9).addDays(-300), 1200, "Mail", "Outbox");
    past(today(9).addDays(-800), 1200, "Mail");
    showHistory();
    view.showRange(CalendarRange::span(today(9).date().addDays(-400), today(9).date()));
    settle();
    EXPECT_EQ(historySum(), QStringLiteral("00:30:00"));
    // Titles of long ranges come when a row is opened.
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:30:00"));
    outline().expand(historyRow("Mail"));
    settle();
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:30:00 [Outbox 00:20:00, Inbox 00:10:00]"));
    command(historyActions().forKind(CalendarRange::Kind::Year));
    EXPECT_EQ(fakes.defaults.integerForKey(kHistoryRange), 3);
    EXPECT_EQ(view.range().kind(), CalendarRange::Kind::Year);
}

TEST_F(HistoryViewTest, theSearchAndTheCutOff_narrowTheRows) {
    aDay();
    showHistory();
    controller.window().searchAppField().setText(QStringLiteral("anna"));
    settle();
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:15:00 [Letter to Anna 00:15:00]"));
    EXPECT_EQ(historySum(), QStringLiteral("00:15:00"));
    controller.window().searchAppField().clear();
    settle();
    outline().setCutoff(20 * 60'000);
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:45:00 [Inbox 00:30:00]"));
}

TEST_F(HistoryViewTest, aProjectInTheSidebar_showsItsTimeOnly) {
    account("Mail", 10, {{QStringLiteral("Inbox"), 10}});
    const Identity mail = *(*controller.tracker().fullTimeSet().begin())->uuid();
    const auto project = controller.projects().addNewProjectWithItems({mail});
    controller.projects().setLabel(*project, QStringLiteral("Meier"));
    controller.saveSettingsToDisk();
    past(today(9), 600, "Mail", "Inbox", RowPresence::Work, {.application = mail, .window = {}});
    past(today(10), 300, "Draw");
    showHistory();
    command(historyActions().byProject);
    EXPECT_EQ(rows(), QStringLiteral("Meier 00:10:00 [Mail 00:10:00], No Project 00:05:00 [Draw 00:05:00]"));
    auto& sidebar = controller.window().projectOutline();
    sidebar.setCurrentIndex(sidebar.model()->index(1, 0));
    settle();
    EXPECT_EQ(rows(), QStringLiteral("Meier 00:10:00 [Mail 00:10:00]"));
    EXPECT_EQ(historySum(), QStringLiteral("00:10:00"));
}

TEST_F(HistoryViewTest, theSelection_isSummedAndCopiedAsATable) {
    aDay();
    showHistory();
    outline().selectionModel()->select(historyRow("Mail"),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_EQ(historySum(), QStringLiteral("00:45:00"));
    command(actions().copy);
    EXPECT_EQ(clipboard(), QStringLiteral("Mail\t\t0:45:00\n"));
    command(actions().deselectAll);
    command(actions().expandAll);
    command(actions().copy);
    EXPECT_EQ(clipboard(), QStringLiteral("Mail\tInbox\t0:30:00\nMail\tLetter to Anna\t0:15:00\n"
                                          "Draw\tPoster\t0:10:00\n"));
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->html().contains(QStringLiteral(">Inbox</td>")));
}

TEST_F(HistoryViewTest, theTimesThatAreCopied_areThoseThatAreShown) {
    HistoryFile file(history.path());
    const auto add = [&](int hour, qint64 length, const char* title) {
        const QDateTime start = today(hour);
        file.add({.start = start.toMSecsSinceEpoch(),
                  .length = length,
                  .offset = start.offsetFromUtc() / 60,
                  .program = QStringLiteral("Mail"),
                  .title = QString::fromUtf8(title),
                  .timer = {},
                  .presence = RowPresence::Work});
    };
    add(9, 59'900, "Inbox");
    add(10, 30'700, "Outbox");
    showHistory();
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:01:30 [Inbox 00:00:59, Outbox 00:00:30]"));
    outline().copy();
    EXPECT_EQ(clipboard(), QStringLiteral("Mail\t\t0:01:30\n"));
    // The parts and what they leave over are as much as their row.
    outline().expandAll();
    outline().copy();
    EXPECT_EQ(clipboard(), QStringLiteral("Mail\tInbox\t0:00:59\nMail\tOutbox\t0:00:30\nMail\t\t0:00:01\n"));
}

TEST_F(HistoryViewTest, rowsThatAreDragged_areWhatIsCopied) {
    aDay();
    past(today(11), 60, "=cmd()");
    showHistory();
    command(actions().selectAll);
    const QAbstractItemModel& rows = *outline().model();
    EXPECT_TRUE(rows.flags(historyRow("Mail")).testFlag(Qt::ItemIsDragEnabled));
    EXPECT_TRUE(outline().dragEnabled());
    const std::unique_ptr<QMimeData> dragged(rows.mimeData(outline().selectionModel()->selectedRows()));
    command(actions().copy);
    const QMimeData& copied = *QGuiApplication::clipboard()->mimeData();
    const QStringList forms{QStringLiteral("text/html"), QStringLiteral("text/tab-separated-values"),
                            QStringLiteral("text/plain")};
    EXPECT_EQ(dragged->formats(), forms);
    for (const QString& form : forms)
        EXPECT_EQ(dragged->data(form), copied.data(form)) << qPrintable(form);
    EXPECT_EQ(dragged->text(), QStringLiteral("Mail\t\t0:45:00\nDraw\t\t0:10:00\n'=cmd()\t\t0:01:00\n"));
}

TEST_F(HistoryViewTest, programs_haveTheirIconsWhereverTheyAreRows) {
    aDay();
    showHistory();
    const auto program = [](const QModelIndex& row) {
        return row.data(HistoryModel::ProgramRole).toString();
    };
    EXPECT_EQ(program(historyRow("Mail")), QStringLiteral("Mail"));
    EXPECT_EQ(program(historyRow("Mail").model()->index(0, 0, historyRow("Mail"))), QString());
    command(historyActions().byProject);
    const QModelIndex nobody = historyRow("No Project");
    EXPECT_EQ(program(nobody), QString());
    EXPECT_EQ(program(nobody.model()->index(0, 0, nobody)), QStringLiteral("Mail"));
}

TEST_F(HistoryViewTest, onlyTheIconsOfRowsThatAreSeen_areLookedFor) {
    int asked = 0;
    ProgramIcons counted([&](const QString&) { return ++asked, std::optional<QString>(); });
    outline().setIcons(&counted);
    for (int number = 0; number < 200; ++number)
        past(today(9, number / 60).addSecs(number % 60), 1, qPrintable(QStringLiteral("P%1").arg(number)));
    show();
    EXPECT_EQ(asked, 0);
    command(actions().showHistory);
    for (int turn = 0; turn < 100; ++turn)
        settle();
    EXPECT_GT(asked, 5);
    EXPECT_LT(asked, 40);
}

// Where a click would meet it.
bool isWithin(const QWidget& window, const QWidget* button) {
    return button && button->isVisible() &&
           window.rect().contains(QRect(button->mapTo(&window, QPoint()), button->size()));
}

TEST_F(HistoryViewTest, theWeekOfAProject_isThreeClicksAwayInTheFirstWindow) {
    past(today(9), 600, "Mail");
    show();
    MainWindow& window = controller.window();
    window.resize(900, 600);
    int clicks = 0;
    const auto click = [&](QWidget* widget, const QPoint& place) {
        ASSERT_TRUE(isWithin(window, widget));
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
        settle();
        ++clicks;
    };
    auto* sides = window.findChild<QTabBar*>(QStringLiteral("sides"));
    click(sides, sides->tabRect(1).center());
    for (const char* name : {"historyWeekButton", "historyByProjectButton"}) {
        auto* button = window.findChild<QToolButton*>(QLatin1String(name));
        click(button, button->rect().center());
    }
    EXPECT_EQ(view.range().kind(), CalendarRange::Kind::Week);
    EXPECT_TRUE(rows().startsWith(QStringLiteral("No Project 00:10:00")));
    EXPECT_LE(clicks, 3);
}

TEST_F(HistoryViewTest, atEveryWidth_everyRangeIsSeenWithItsTitle) {
    showHistory();
    MainWindow& window = controller.window();
    for (const int width : {640, 760, 900, 1100, 1400}) {
        window.resize(width, 600);
        settle();
        for (const char* name : {"historyTitle", "historyDayButton", "historyYearButton",
                                 "historyByProgramButton", "historyByProjectButton"})
            EXPECT_TRUE(isWithin(window, window.findChild<QToolButton*>(QLatin1String(name))))
                << name << " at " << width;
    }
    // With room for it, all is in one row.
    EXPECT_EQ(pane().rangeBar().height(),
              window.findChild<QWidget*>(QStringLiteral("historySteps"))->height());
}

TEST_F(HistoryViewTest, theKeysOfTheZoom_workWhereverTheFocusIsAndExpandTheTimers) {
    aDay();
    showHistory();
    const TimeView& day = pane().dayPicture().view();
    EXPECT_EQ(day.length(), 4.0 * 3600'000) << "from nine, and four hours at the least";
    outline().setFocus();
    QTest::keyClick(&outline(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(day.length(), 8.0 * 3600'000);
    controller.window().searchAppField().setFocus();
    QTest::keyClick(&controller.window().searchAppField(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(day.length(), 4.0 * 3600'000);
    QTest::keyClick(&outline(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_FALSE(day.isZoomed());
    command(historyActions().forKind(CalendarRange::Kind::Week));
    EXPECT_FALSE(historyActions().zoomIn->isEnabled());
    command(actions().showTimers);
    table().setFocus();
    QSignalSpy expanded(actions().expandAll, &QAction::triggered);
    QTest::keyClick(&table(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(expanded.count(), 1);
}

TEST_F(HistoryViewTest, commandsThatOnlyTimersKnow_waitForTheTimers) {
    account("Mail", 10);
    show();
    select({row("Mail")});
    EXPECT_TRUE(actions().deleteRows->isEnabled());
    EXPECT_FALSE(historyActions().back->isEnabled());
    command(actions().showHistory);
    for (const QAction* action :
         {actions().deleteRows, actions().forceDelete, actions().rename, actions().branch})
        EXPECT_FALSE(action->isEnabled()) << qPrintable(action->text());
    EXPECT_TRUE(historyActions().back->isEnabled());
    command(actions().showTimers);
    EXPECT_TRUE(actions().deleteRows->isEnabled());
}

TEST_F(HistoryViewTest, escapeInTheSearch_leadsToTheRowsThatAreShownAndNoTimerIsDeletedUnseen) {
    account("Mail", 10);
    fakes.clock.advance(std::chrono::hours(9));
    past(today(1), 600, "Draw");
    show();
    select({row("Mail")});
    command(actions().showHistory);
    controller.window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&controller.window()));
    alerts.answer = Alerts::Alternate;
    controller.find();
    QTest::keyClick(&controller.window().searchAppField(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &outline());
    // However the keys came there.
    for (const auto& [key, modifiers] :
         {std::pair(Qt::Key_Delete, Qt::NoModifier), std::pair(Qt::Key_Delete, Qt::ShiftModifier),
          std::pair(Qt::Key_F2, Qt::NoModifier)}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QKeyEvent unseen(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&table(), &unseen);
        settle();
    }
    EXPECT_EQ(textOf(model()), QStringLiteral("Mail 00:00:10"));
    EXPECT_EQ(alerts.questions, QStringList());
    command(actions().showTimers);
    controller.find();
    QTest::keyClick(&controller.window().searchAppField(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &table());
}

TEST_F(HistoryViewTest, whatIsWantedOfTheHistoryBesideTheTimers_showsTheHistoryFirst) {
    show();
    QList<QAction*> wanted{historyActions().today, historyActions().timeSheet, historyActions().byProject,
                           historyActions().byProgram, historyActions().amend.book};
    for (QAction* kind : historyActions().kinds)
        wanted << kind;
    for (QAction* action : wanted) {
        command(actions().showTimers);
        command(action);
        EXPECT_TRUE(controller.window().isHistoryShown()) << qPrintable(action->text());
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }
}

TEST_F(HistoryViewTest, theKeysOfTheTimeSheet_openItBesideTheTimersToo) {
    show();
    controller.window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&controller.window()));
    table().setFocus();
    QTest::keyClick(&table(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    settle();
    ASSERT_NE(view.timeSheet(), nullptr);
    EXPECT_TRUE(view.timeSheet()->isVisible());
    EXPECT_TRUE(controller.window().isHistoryShown());
}

TEST_F(HistoryViewTest, aGrowingSum_isNotNamedAnewEachSecond) {
    // Told of together with the name, which tells nobody but assistive programs.
    struct : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            namings += event->type() == QEvent::ToolTipChange;
            return false;
        }
        int namings = 0;
    } listener;
    showHistory();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    command(actions().showTimers);
    command(actions().showHistory);
    seconds(2);
    pane().findChild<QLabel*>(QStringLiteral("history timeSumIcon"))->installEventFilter(&listener);
    seconds(5);
    EXPECT_EQ(historySum(), QStringLiteral("00:00:07"));
    EXPECT_EQ(listener.namings, 0);
    outline().selectAll();
    EXPECT_EQ(listener.namings, 1) << "what is summed up has changed";
    controller.timer().stopTimer();
}

TEST_F(HistoryViewTest, whileOneLooks_todayGrowsBeforeAnythingIsWritten) {
    showHistory();
    EXPECT_EQ(rows(), QString());
    front("Mail", "Inbox");
    controller.timer().startTimer();
    command(actions().showTimers);
    command(actions().showHistory);
    seconds(5);
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:00:05 [Inbox 00:00:05]"));
    seconds(3);
    EXPECT_EQ(historySum(), QStringLiteral("00:00:08"));
    seconds(30);
    EXPECT_EQ(historySum(), QStringLiteral("00:00:38"));
    controller.timer().stopTimer();
}

TEST_F(HistoryViewTest, theTimerThatStartsWhileOneLooks_isSeenAtOnce) {
    showHistory();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(4);
    EXPECT_EQ(historySum(), QStringLiteral("00:00:04"));
    controller.timer().stopTimer();
}

TEST_F(HistoryViewTest, whatIsOpenAndSelected_staysWhileTheDayGrows) {
    past(today(0), 5, "Draw", "Poster");
    showHistory();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(2);
    outline().expand(historyRow("Mail"));
    outline().choose(QStringLiteral("Draw"));
    seconds(10);
    EXPECT_TRUE(outline().isExpanded(historyRow("Mail")));
    EXPECT_TRUE(outline().selectionModel()->isSelected(historyRow("Draw")));
    // The longest comes first, however long it has been so.
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:00:12 [Inbox 00:00:12], Draw 00:00:05 [Poster 00:00:05]"));
    controller.timer().stopTimer();
}

TEST_F(HistoryViewTest, whatIsClickedInThePicture_isChosenBelow) {
    aDay();
    showHistory();
    EXPECT_TRUE(pane().dayPicture().isVisible());
    Q_EMIT pane().dayPicture().programChosen(QStringLiteral("Draw"));
    EXPECT_EQ(historySum(), QStringLiteral("00:10:00"));
    Q_EMIT pane().dayPicture().rangeChosen(today(9, 15).toMSecsSinceEpoch(),
                                           today(9, 35).toMSecsSinceEpoch());
    settle();
    EXPECT_EQ(rows(), QStringLiteral("Mail 00:20:00 [Inbox 00:15:00, Letter to Anna 00:05:00]"));
    Q_EMIT pane().dayPicture().rangeReset();
    settle();
    EXPECT_TRUE(rows().contains(QStringLiteral("Draw")));
}

TEST_F(HistoryViewTest, aBar_opensItsDayAndThatOfAYearItsMonth) {
    aDay();
    showHistory();
    command(historyActions().forKind(CalendarRange::Kind::Year));
    EXPECT_TRUE(pane().periodPicture().isVisible());
    const QDate month(today(0).date().year(), today(0).date().month(), 1);
    Q_EMIT pane().periodPicture().barChosen(month);
    EXPECT_EQ(view.range(), CalendarRange::around(CalendarRange::Kind::Month, month, Qt::Monday));
    Q_EMIT pane().periodPicture().barChosen(today(0).date());
    EXPECT_EQ(view.range().first(), today(0).date());
    EXPECT_EQ(view.range().kind(), CalendarRange::Kind::Day);
}

TEST_F(HistoryViewTest, aWindowWithoutRoom_showsTheRowsAlone) {
    aDay();
    showHistory();
    controller.window().resize(480, 300);
    settle();
    EXPECT_FALSE(pane().dayPicture().isVisible());
    controller.window().resize(900, 600);
    settle();
    EXPECT_TRUE(pane().dayPicture().isVisible());
}

TEST_F(HistoryViewTest, emptyRanges_sayWhy) {
    showHistory();
    EXPECT_EQ(
        outline().invitation(),
        QStringLiteral(
            "No work was recorded in this time. Start the timer to record where your time goes, and when."));
    controller.timer().startTimer();
    command(historyActions().today);
    EXPECT_EQ(outline().invitation(), QStringLiteral("No work was recorded in this time."));
    controller.timer().stopTimer();
    command(historyActions().forward);
    EXPECT_EQ(outline().invitation(), QStringLiteral("This time is still to come."));
    controller.window().searchAppField().setText(QStringLiteral("x"));
    settle();
    EXPECT_EQ(outline().invitation(), QStringLiteral("Nothing in this time matches the search."));
    controller.window().searchAppField().clear();
    fakes.defaults.setObject(kHistoryDays, -1);
    settle();
    command(historyActions().today);
    EXPECT_EQ(outline().invitation(),
              QStringLiteral("No history is kept. You can turn it on in the preferences, under History."));
}

TEST_F(HistoryViewTest, aFileThatCannotBeRead_isNotTakenForATimeWithoutWork) {
    aDay();
    showHistory();
    const QString aside = history.path() + QStringLiteral(".aside");
    ASSERT_TRUE(QFile::rename(history.path(), aside));
    QFile damaged(history.path());
    ASSERT_TRUE(damaged.open(QFile::WriteOnly) && damaged.write(QByteArray(8192, 'x')) > 0);
    damaged.close();
    command(historyActions().back);
    EXPECT_EQ(outline().invitation(), QStringLiteral("The history cannot be read at the moment."));
    EXPECT_EQ(rows(), QString());
    EXPECT_EQ(historySum(), QString());
    command(historyActions().timeSheet);
    EXPECT_EQ(alerts.errors.size(), 1);
    EXPECT_EQ(view.timeSheet(), nullptr);
    ASSERT_TRUE(damaged.remove() && QFile::rename(aside, history.path()));
    command(historyActions().today);
    EXPECT_EQ(historySum(), QStringLiteral("00:55:00"));
}

TEST_F(HistoryViewTest, aSlowAnswer_leavesNoFiguresOfAnotherTime) {
    aDay();
    showHistory();
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    diskIsSlow();
    view.showRange(CalendarRange::around(CalendarRange::Kind::Day, today(9).date().addDays(-1), Qt::Monday));
    seconds(0.05);
    EXPECT_EQ(historySum(), QStringLiteral("00:55:00")) << "quick answers do not flicker";
    seconds(0.1);
    EXPECT_EQ(rows(), QString());
    EXPECT_EQ(historySum(), QString());
    EXPECT_EQ(outline().invitation(), QStringLiteral("Reading…"));
    EXPECT_TRUE(view.answer().pieces.empty());
    command(actions().copy);
    EXPECT_EQ(clipboard(), QStringLiteral("before"));
    alerts.location = fakes.platform.folders.documents + QStringLiteral("/none.csv");
    view.exportShown();
    EXPECT_FALSE(QFile::exists(*alerts.location));
    diskIsFast();
    EXPECT_EQ(rows(), QStringLiteral("Notes 00:05:00 [Yesterday 00:05:00]"));
    EXPECT_EQ(historySum(), QStringLiteral("00:05:00"));
}

TEST_F(HistoryViewTest, aSlowSearch_isReadWhileTheUserTypesOn) {
    aDay();
    showHistory();
    diskIsSlow();
    for (const char* text : {"D", "Dr", "Dra", "Draw"}) {
        controller.window().searchAppField().setText(QString::fromUtf8(text));
        seconds(0.04);
    }
    EXPECT_EQ(outline().invitation(), QStringLiteral("Reading…"));
    diskIsFast();
    EXPECT_EQ(rows(), QStringLiteral("Draw 00:10:00 [Poster 00:10:00]"));
}

TEST_F(HistoryViewTest, theSameTimeThatIsReadSlowly_keepsItsFigures) {
    aDay();
    showHistory();
    controller.timer().startTimer();
    settle();
    diskIsSlow();
    seconds(5);
    view.lookAgain();
    seconds(1);
    EXPECT_EQ(historyRow("Draw").data(HistoryModel::LengthRole), 600'000);
    controller.timer().stopTimer();
    diskIsFast();
}

TEST_F(HistoryViewTest, theDayThatBeginsAtFour_endsAtFour) {
    fakes.defaults.setObject(kHistoryDayBegins, 4);
    settle();
    past(today(3).addDays(1), 60, "Late");
    past(today(3), 60, "Early");
    past(today(9), 60, "Mail");
    showHistory();
    view.showRange(CalendarRange::span(today(9).date(), today(9).date()));
    settle();
    EXPECT_FALSE(rows().contains(QStringLiteral("Early"))) << qPrintable(rows());
}

TEST_F(HistoryViewTest, theExport_isATableWithAHeading) {
    aDay();
    past(today(11), 60, "=cmd()", "a \"quoted\", title");
    showHistory();
    outline().expandAll();
    EXPECT_EQ(outline().csv(),
              "Program,Title,Time Spent\r\nMail,Inbox,0:30:00\r\nMail,Letter to Anna,0:15:00\r\n"
              "Draw,Poster,0:10:00\r\n'=cmd(),\"a \"\"quoted\"\", title\",0:01:00\r\n");
}

} // namespace
