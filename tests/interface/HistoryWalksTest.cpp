// SPDX-License-Identifier: MIT
// Everything the history's view and windows offer, reached as people do: by the mouse alone and by the keyboard alone.
#include "interface/history/AmendActions.h"
#include "interface/history/DayPicture.h"
#include "interface/history/PeriodPicture.h"
#include "interface/history/RangeBar.h"
#include "interface/history/TimeSheetWindow.h"
#include "interface/shell/PauseMenu.h"
#include "tests/interface/HistoryViewDesk.h"

#include <QCalendarWidget>
#include <QClipboard>
#include <QDateEdit>
#include <QDateTimeEdit>
#include <QDialog>
#include <QListWidget>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>
#include <QUndoStack>

#include <gtest/gtest.h>

namespace {

// A desk with some days of work, which shows the history.
struct HistoryWalk : HistoryViewDesk {
    HistoryWalk() {
        for (int day = -2; day <= 0; ++day) {
            past(today(9).addDays(day), 1800, "Mail", "Inbox");
            past(today(9, 30).addDays(day), 900, "Draw", "Poster");
            past(today(10).addDays(day), 600, "Idle", "", RowPresence::Idle);
        }
        showHistory();
        window().resize(1200, 800);
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        settle();
    }

    ~HistoryWalk() { closePopups(); }

    MainWindow& window() { return controller.window(); }

    template<class Widget>
    Widget& part(const char* name, QWidget* of = nullptr) {
        for (QWidget* place : of ? QWidgetList{of} : QApplication::topLevelWidgets())
            if (auto* found = place->findChild<Widget*>(QLatin1String(name)))
                return *found;
        throw std::invalid_argument(name);
    }

    void closePopups() {
        while (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
            settle();
        }
    }

    void click(QWidget& widget) {
        if (!widget.isVisible() || !widget.isEnabled())
            throw std::logic_error("cannot be clicked: " + widget.objectName().toStdString());
        QTest::mouseMove(&widget, widget.rect().center());
        QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center());
        settle();
    }

    // To whoever has the focus, in a popup if there is one.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* popup = QApplication::activePopupWidget();
        QWidget* focus = popup ? popup->focusWidget() : QApplication::focusWidget();
        QTest::keyClick(focus ? focus : popup ? popup : &window(), Qt::Key(key), modifiers);
        settle();
    }

    static QString focused() {
        const QWidget* focus = QApplication::focusWidget();
        return focus ? focus->objectName() : QString();
    }

    // Goes there by Tab alone; false if one comes round without passing it.
    bool tabTo(const char* name) {
        for (int steps = 0; steps < 60; ++steps) {
            if (focused() == QLatin1String(name))
                return true;
            press(Qt::Key_Tab);
        }
        return false;
    }

    QDate shown() { return view.range().first(); }
    CalendarRange::Kind kind() { return view.range().kind(); }
    QDate now() { return today(0).date(); }
    DayPicture& day() { return pane().dayPicture(); }
};

struct HistoryWalksTest : testing::Test, HistoryWalk {};

// The same with a project, for what is set right.
struct AmendingWalksTest : HistoryWalksTest {
    AmendingWalksTest() {
        // All of the day that is set right is over.
        fakes.clock.advance(
            std::chrono::hours(18) -
            std::chrono::milliseconds(localTime(fakes.clock.now()).time().msecsSinceStartOfDay()));
        view.lookAgain();
        const auto project = controller.projects().addNewProjectWithItems({});
        controller.projects().setLabel(*project, QStringLiteral("Meier"));
        settle();
    }

    // By its shortcut, of which this is the key.
    void open(const char* dialogue, Qt::Key key) {
        press(key, Qt::ControlModifier | Qt::ShiftModifier);
        auto& opened = part<QDialog>(dialogue);
        if (!opened.isVisible())
            throw std::logic_error(std::string("it did not come up: ") + dialogue);
        opened.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&opened));
    }

    void closed(const char* dialogue) {
        EXPECT_FALSE(part<QDialog>(dialogue).isVisible()) << dialogue;
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        settle();
    }

    void type(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
        settle();
    }

    // On the day that is looked at.
    double hoursOf(const char* project) {
        for (const RangeAnswer::Entry& entry : view.answer().projects)
            if (entry.name == QString::fromUtf8(project))
                return double(entry.length) / 3'600'000;
        return 0;
    }
};

QList<QAction*> commandsOf(const QMenu& menu) {
    QList<QAction*> found;
    for (QAction* action : menu.actions())
        if (!action->isSeparator() && !action->menu() && action->isEnabled())
            found << action;
    return found;
}

QString accelerator(const QString& text) {
    const qsizetype place = text.indexOf(u'&');
    return place < 0 ? QString() : text.mid(place + 1, 1).toUpper();
}

// Each command of the history's menu, each time on a new desk.
void forEachCommand(const std::function<void(HistoryWalk&, QMenu&, QAction&)>& reach) {
    int walked = 0;
    for (int command = 0;; ++command) {
        HistoryWalk walk;
        auto& menu = walk.part<QMenu>("historyMenu", &walk.window());
        const QList<QAction*> commands = commandsOf(menu);
        if (command == commands.size())
            break;
        QAction& action = *commands[command];
        QSignalSpy triggered(&action, &QAction::triggered);
        reach(walk, menu, action);
        walk.settle();
        EXPECT_EQ(triggered.count(), 1) << qPrintable(action.objectName());
        ++walked;
    }
    EXPECT_GE(walked, 11);
}

} // namespace

TEST(HistoryWalks, everyCommand_canBeReachedByTheMouseAlone) {
    forEachCommand([](HistoryWalk& walk, QMenu& menu, QAction& action) {
        QMenuBar& bar = *walk.window().menuBar();
        const QPoint title = bar.actionGeometry(menu.menuAction()).center();
        QTest::mouseMove(&bar, title);
        walk.settle();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, title);
        ASSERT_TRUE(menu.isVisible());
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    });
}

TEST(HistoryWalks, everyCommand_canBeReachedByTheKeyboardAlone) {
    forEachCommand([](HistoryWalk& walk, QMenu& menu, QAction& action) {
        walk.press(accelerator(menu.title())[0].unicode(), Qt::AltModifier);
        ASSERT_TRUE(menu.isVisible());
        QTest::keyClick(&menu, Qt::Key(accelerator(action.text())[0].unicode()));
    });
}

TEST(HistoryWalks, everyShortcut_doesWhatItsMenuSays) {
    forEachCommand([](HistoryWalk& walk, QMenu&, QAction& action) {
        if (action.shortcut().isEmpty())
            return action.trigger();
        const QKeyCombination keys = action.shortcut()[0];
        walk.press(keys.key(), keys.keyboardModifiers());
    });
}

TEST_F(HistoryWalksTest, tab_goesThroughEveryControlAndComesRound) {
    outline().setFocus();
    QStringList visited;
    do {
        visited << focused();
        press(Qt::Key_Tab);
        ASSERT_LT(visited.size(), 60) << visited.join(u' ').toStdString();
    } while (focused() != QLatin1String("historyOutline"));
    for (const char* control : {"historyBackButton", "historyTodayButton", "historyForwardButton",
                                "historyTitle", "historyDayButton", "historyWeekButton", "historyMonthButton",
                                "historyYearButton", "historySpanButton", "historyByProgramButton",
                                "historyByProjectButton", "dayPicture", "sides", "searchAppField"})
        EXPECT_TRUE(visited.contains(QLatin1String(control)))
            << control << " of " << visited.join(u' ').toStdString();
    EXPECT_FALSE(visited.contains(QString())) << visited.join(u' ').toStdString();
}

TEST_F(HistoryWalksTest, theRangesButtons_doWhatTheySayByTheMouseAlone) {
    click(part<QToolButton>("historyBackButton"));
    EXPECT_EQ(shown(), now().addDays(-1));
    click(part<QToolButton>("historyForwardButton"));
    click(part<QToolButton>("historyForwardButton"));
    EXPECT_EQ(shown(), now().addDays(1));
    click(part<QToolButton>("historyTodayButton"));
    EXPECT_EQ(shown(), now());
    using Kind = CalendarRange::Kind;
    for (const auto& [button, range] :
         {std::pair("historyWeekButton", Kind::Week), std::pair("historyMonthButton", Kind::Month),
          std::pair("historyYearButton", Kind::Year), std::pair("historyDayButton", Kind::Day)}) {
        click(part<QToolButton>(button));
        EXPECT_EQ(kind(), range) << button;
    }
    click(part<QToolButton>("historyByProjectButton"));
    EXPECT_TRUE(historyActions().byProject->isChecked());
    click(part<QToolButton>("historySpanButton"));
    EXPECT_NE(QApplication::activePopupWidget(), nullptr) << "it asks from when to when";
}

TEST_F(HistoryWalksTest, aDay_isChosenInTheCalendarByTheMouseAlone) {
    click(part<QToolButton>("historyTitle"));
    auto& calendar = part<QCalendarWidget>("historyDays");
    auto& days = *calendar.findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
    const QModelIndex other = days.model()->index(3, 3);
    const int wanted = other.data().toInt();
    QTest::mouseClick(days.viewport(), Qt::LeftButton, {}, days.visualRect(other).center());
    settle();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(shown().day(), wanted);
}

TEST_F(HistoryWalksTest, aDay_isChosenInTheCalendarByTheKeyboardAlone) {
    ASSERT_TRUE(tabTo("historyTitle"));
    press(Qt::Key_Space);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(shown(), now().addDays(-2));
    EXPECT_EQ(focused(), QStringLiteral("historyTitle")) << "one is where one was";
}

TEST_F(HistoryWalksTest, aSpan_isChosenByTheKeyboardAlone) {
    press(Qt::Key_5, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    auto& first = part<QDateEdit>("historyFirstDay");
    const QDate before = first.date();
    EXPECT_TRUE(QApplication::activePopupWidget()->focusWidget() == &first) << "one can type at once";
    press(Qt::Key_Down);
    EXPECT_EQ(first.date(), before.addDays(-1));
    for (int steps = 0; steps < 6; ++steps) {
        const QWidget* focus = QApplication::activePopupWidget()->focusWidget();
        if (focus && focus->objectName() == QLatin1String("historyShowSpan"))
            break;
        press(Qt::Key_Tab);
    }
    press(Qt::Key_Space);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(kind(), CalendarRange::Kind::Span);
    EXPECT_EQ(view.range().first(), before.addDays(-1));
}

TEST_F(HistoryWalksTest, return_showsTheSpanThatWasEntered) {
    press(Qt::Key_5, Qt::AltModifier);
    const QDate before = part<QDateEdit>("historyFirstDay").date();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(view.range().first(), before.addDays(-1));
}

TEST_F(HistoryWalksTest, escape_closesTheCalendar) {
    click(part<QToolButton>("historyTitle"));
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(shown(), now());
}

TEST_F(HistoryWalksTest, thePictureOfADay_isWalkedByTheKeyboardAlone) {
    ASSERT_TRUE(tabTo("dayPicture"));
    press(Qt::Key_Home);
    EXPECT_EQ(day().currentItem(), 0);
    press(Qt::Key_Right);
    EXPECT_EQ(day().currentItem(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(outline().currentIndex().data(Qt::EditRole).toString(), QStringLiteral("Draw"));
    press(Qt::Key_Plus);
    EXPECT_TRUE(day().view().isZoomed());
    press(Qt::Key_0);
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), QStringLiteral("dayPicture"));
}

TEST_F(HistoryWalksTest, aPieceOfADay_isChosenByTheMouseAloneAndLetGo) {
    const QRect all = day().rect();
    const int y = all.center().y();
    QTest::mousePress(&day(), Qt::LeftButton, {}, QPoint(all.width() / 3, y));
    QTest::mouseMove(&day(), QPoint(all.width() / 2, y));
    QTest::mouseMove(&day(), QPoint(all.width() * 2 / 3, y));
    QTest::mouseRelease(&day(), Qt::LeftButton, {}, QPoint(all.width() * 2 / 3, y));
    settle();
    const QString piece = part<QToolButton>("historyTitle").text();
    EXPECT_NE(piece, RangeBar::titleOf(view.range()));
    day().setFocus();
    press(Qt::Key_Escape);
    EXPECT_EQ(part<QToolButton>("historyTitle").text(), RangeBar::titleOf(view.range()));
}

TEST_F(HistoryWalksTest, aBarOfAWeek_isOpenedByTheKeyboardAlone) {
    press(Qt::Key_2, Qt::AltModifier);
    ASSERT_TRUE(tabTo("periodPicture"));
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    EXPECT_EQ(kind(), CalendarRange::Kind::Day);
}

TEST_F(HistoryWalksTest, theRows_areOpenedCopiedAndLeftByTheKeyboardAlone) {
    ASSERT_TRUE(tabTo("historyOutline"));
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    EXPECT_TRUE(outline().isExpanded(outline().currentIndex()));
    press(Qt::Key_Down);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("Inbox")));
    press(Qt::Key_Tab);
    EXPECT_NE(focused(), QStringLiteral("historyOutline"));
}

TEST_F(HistoryWalksTest, theTimeSheet_isFilledCopiedSavedAndClosedByTheKeyboardAlone) {
    press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    TimeSheetWindow& sheet = *view.timeSheet();
    ASSERT_TRUE(sheet.isVisible());
    sheet.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&sheet));
    QStringList visited;
    for (int steps = 0; steps < 14; ++steps) {
        visited << focused();
        press(Qt::Key_Tab);
    }
    for (const char* control : {"roundingMinutes", "sheetForm", "timeSheet", "sheetName", "sheetNotes",
                                "copySheet", "saveSheetCsv", "saveSheetPdf", "printSheet", "closeSheet"})
        EXPECT_TRUE(visited.contains(QLatin1String(control)))
            << control << " of " << visited.join(u' ').toStdString();
    ASSERT_TRUE(tabTo("roundingMinutes"));
    press(Qt::Key_Down);
    ASSERT_TRUE(tabTo("roundingTo")) << "it can be chosen now";
    ASSERT_TRUE(tabTo("sheetName"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Anna"));
    ASSERT_TRUE(tabTo("copySheet"));
    press(Qt::Key_Space);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("No Project")));
    press(Qt::Key_D, Qt::AltModifier);
    // An accelerator shows the button pressed for a moment.
    EXPECT_TRUE(QTest::qWaitFor([this] { return alerts.panels.size() == 1; }));
    press(Qt::Key_Escape);
    EXPECT_FALSE(sheet.isVisible());
}

TEST_F(HistoryWalksTest, theTimeSheetsButtons_doWhatTheySayByTheMouseAlone) {
    command(historyActions().timeSheet);
    TimeSheetWindow& sheet = *view.timeSheet();
    click(part<QWidget>("copySheet", &sheet));
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("No Project")));
    click(part<QWidget>("saveSheetCsv", &sheet));
    click(part<QWidget>("saveSheetPdf", &sheet));
    EXPECT_EQ(alerts.panels.size(), 2);
    click(part<QWidget>("closeSheet", &sheet));
    EXPECT_FALSE(sheet.isVisible());
}

TEST_F(HistoryWalksTest, theManual_isReadByTheKeyboardAlone) {
    press(Qt::Key_F1);
    auto& manual = part<QDialog>("manualWindow");
    ASSERT_TRUE(manual.isVisible());
    manual.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&manual));
    auto& page = part<QTextBrowser>("manualPage");
    ASSERT_TRUE(tabTo("manualHeadings"));
    const int before = page.verticalScrollBar()->value();
    press(Qt::Key_End);
    EXPECT_GT(page.verticalScrollBar()->value(), before);
    ASSERT_TRUE(tabTo("manualPage"));
    press(Qt::Key_Home);
    EXPECT_EQ(page.verticalScrollBar()->value(), 0);
    press(Qt::Key_Escape);
    EXPECT_FALSE(manual.isVisible());
}

TEST_F(HistoryWalksTest, theManualsChapters_areOpenedByTheMouseAlone) {
    command(actions().showManual);
    auto& headings = part<QListWidget>("manualHeadings");
    auto& page = part<QTextBrowser>("manualPage");
    const QRect last = headings.visualItemRect(headings.item(headings.count() - 1));
    QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, last.center());
    settle();
    EXPECT_GT(page.verticalScrollBar()->value(), 0);
}

TEST_F(HistoryWalksTest, aPause_isOrderedByTheKeyboardAloneAndByTheMouseAlone) {
    PauseMenu pauses(controller.timer(), fakes.runLoop, fakes.clock, [this] { return today(0).addDays(1); });
    const auto open = [&] {
        controller.timer().startTimer();
        pauses.menu().popup(QPoint(10, 10));
        settle();
    };
    for (QAction* pause : pauses.menu().actions()) {
        open();
        for (int steps = 0; steps < 5 && pauses.menu().activeAction() != pause; ++steps)
            press(Qt::Key_Down);
        press(Qt::Key_Return);
        EXPECT_FALSE(controller.timer().isRunning()) << qPrintable(pause->text());
        // A click near where the pointer was when the menu opened closes it, so the pointer comes from afar.
        QTest::mouseMove(&window(), window().rect().bottomRight() - QPoint(5, 5));
        settle();
        open();
        const QPoint place = pauses.menu().actionGeometry(pause).center();
        QTest::mouseMove(&pauses.menu(), place);
        QTest::mouseClick(&pauses.menu(), Qt::LeftButton, {}, place);
        settle();
        EXPECT_FALSE(controller.timer().isRunning()) << qPrintable(pause->text());
    }
}

TEST_F(AmendingWalksTest, aStretch_isGivenToAProjectByTheKeyboardAloneAndTakenBack) {
    ASSERT_TRUE(tabTo("dayPicture"));
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    auto& menu = part<QMenu>("historyMenu", &window());
    const QMenu& give = *historyActions().amend.give;
    press(accelerator(menu.title())[0].unicode(), Qt::AltModifier);
    QTest::keyClick(&menu, Qt::Key(accelerator(give.title())[0].unicode()));
    ASSERT_TRUE(give.isVisible());
    for (int steps = 0; steps < 5 && !(give.activeAction() && give.activeAction()->text() == u"Meier");
         ++steps)
        press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(hoursOf("Meier"), 0.25);
    EXPECT_EQ(focused(), QStringLiteral("dayPicture")) << "one is where one was";
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(hoursOf("Meier"), 0);
}

TEST_F(AmendingWalksTest, aStretch_isNamedByTheKeyboardAloneAndTakenBack) {
    ASSERT_TRUE(tabTo("dayPicture"));
    press(Qt::Key_Home);
    open("namingWindow", Qt::Key_N);
    EXPECT_EQ(focused(), QStringLiteral("timeName")) << "one can type at once";
    type("Letters");
    press(Qt::Key_Return);
    closed("namingWindow");
    EXPECT_TRUE(rows().contains(QStringLiteral("Mail 00:30:00 [Letters 00:30:00]"))) << qPrintable(rows());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(rows().contains(QStringLiteral("Letters"))) << qPrintable(rows());
}

TEST_F(AmendingWalksTest, aRow_isNamedByTheKeyboardAlone) {
    ASSERT_TRUE(tabTo("historyOutline"));
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    open("namingWindow", Qt::Key_N);
    type("Letters");
    ASSERT_TRUE(tabTo("nameIt"));
    press(Qt::Key_Space);
    closed("namingWindow");
    EXPECT_TRUE(rows().contains(QStringLiteral("Letters 00:30:00"))) << qPrintable(rows());
}

TEST_F(AmendingWalksTest, time_isBookedByTheKeyboardAloneAndTakenBack) {
    open("bookingWindow", Qt::Key_B);
    EXPECT_EQ(focused(), QStringLiteral("bookedName")) << "one can type at once";
    type("By phone");
    press(Qt::Key_B, Qt::AltModifier);
    auto& from = part<QDateTimeEdit>("bookedFrom");
    EXPECT_TRUE(from.hasFocus()) << focused().toStdString();
    const QDateTime before = from.dateTime();
    from.setSelectedSection(QDateTimeEdit::HourSection);
    press(Qt::Key_Down);
    EXPECT_EQ(from.dateTime(), before.addSecs(-3600));
    ASSERT_TRUE(tabTo("bookedProject"));
    press(Qt::Key_Down);
    ASSERT_TRUE(tabTo("bookIt"));
    press(Qt::Key_Space);
    closed("bookingWindow");
    EXPECT_EQ(hoursOf("Meier"), 2);
    EXPECT_TRUE(rows().contains(QStringLiteral("By phone 02:00:00"))) << qPrintable(rows());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(hoursOf("Meier"), 0);
}

TEST_F(AmendingWalksTest, escape_leavesTheDialoguesAndThePastAsTheyWere) {
    const QString before = rows();
    ASSERT_TRUE(tabTo("dayPicture"));
    press(Qt::Key_Home);
    for (const auto& [dialogue, key] :
         {std::pair("namingWindow", Qt::Key_N), std::pair("bookingWindow", Qt::Key_B)}) {
        open(dialogue, key);
        type("Letters");
        press(Qt::Key_Escape);
        closed(dialogue);
        EXPECT_EQ(focused(), QStringLiteral("dayPicture")) << "one is where one was";
    }
    EXPECT_EQ(rows(), before);
    EXPECT_FALSE(controller.undoStack().canUndo());
}

TEST_F(AmendingWalksTest, aStretch_isForgottenByTheKeyboardAloneAndTakenBack) {
    ASSERT_TRUE(tabTo("dayPicture"));
    press(Qt::Key_Home);
    press(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(alerts.questions, QStringList{QStringLiteral("Forget this?")});
    EXPECT_TRUE(rows().contains(QStringLiteral("Mail"))) << "Return means to keep it";
    alerts.answer = Alerts::Alternate;
    press(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(rows().contains(QStringLiteral("Mail"))) << qPrintable(rows());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(rows().contains(QStringLiteral("Mail"))) << qPrintable(rows());
}
