// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/History.h"
#include "Classes/report/RangeQuestion.h"
#include "interface/history/HistoryActions.h"
#include "interface/history/PictureColors.h"
#include "platform/Platform.h"

#include <QObject>

class Alerts;
class HistoryPane;
class MainWindow;
class TimeSheetWindow;

// Shows the history: asks for the range that the user looks at, narrowed by the search and the project, and shows the
// answer. While today is looked at and time is counted, asks again every second. Asks nothing while it is not seen.
class HistoryController {
public:
    // Everything outlives the controller.
    struct Ground {
        MainWindow& window;
        const Platform& platform;
        Alerts& alerts;
        // The name of the project that is selected in the sidebar; absent for all timers.
        std::function<std::optional<QString>()> project;
        std::function<bool()> isCounting;
        // A project's colour label by its name; 0 for none.
        std::function<int(const QString&)> labelOf;
        // Shows in the sidebar how long was worked in all, and for each project by its name; nothing is known of a
        // range without an answer.
        std::function<void(const RangeAnswer* answer)> showProjectTimes = {};
    };

    // `history` is made after the window, and outlives this as well.
    HistoryController(Ground ground, History& history);
    HistoryController(const HistoryController&) = delete;
    HistoryController& operator=(const HistoryController&) = delete;

    const CalendarRange& range() const { return m_range; }
    void showRange(const CalendarRange& range);
    // Only this piece of the day that is shown (milliseconds since 1970); absent for the whole day.
    void showPiece(std::optional<std::pair<qint64, qint64>> piece);
    const std::optional<std::pair<qint64, qint64>>& piece() const { return m_piece; }
    // What is asked, and the answer that is shown: an empty one where a range is still being read, or cannot be.
    RangeQuestion question() const;
    const RangeAnswer& answer() const { return m_answer; }
    Subscription observeAnswers(std::function<void()> told) { return m_shown.observe(std::move(told)); }
    // The history was changed: shows what it says now, on an open time sheet too.
    void lookAgain();
    // Opens the time sheet of the days that are shown; of the week around a single day, or at the beginning of a range
    // that is too long for a page.
    void showTimeSheet();
    // Null until it was opened once.
    TimeSheetWindow* timeSheet() const { return m_timeSheet; }
    // Exports the rows to a file that the user chooses; nothing while there is no answer.
    void exportShown();

private:
    enum class Knowledge : unsigned char { Reading, Known, Unreadable };

    void connectRange();
    void connectRows();
    void connectPictures();
    // What is asked for has changed: without an answer soon, the old figures go.
    void askAnew();
    void askForAll();
    // The same again, unless it is being asked.
    void askAgain();
    void ask();
    void askForProjectTimes();
    void showOnly(Knowledge knowledge, RangeAnswer answer);
    void askForTitles(const QString& program);
    // What is on the sheet, as it is now. Says itself when that cannot be read.
    void askForSheet(std::function<void(const std::vector<RangeAnswer::Bar>&)> told);
    void showAnswer();
    void showPicture();
    // As the picture has it; invalid where it has none.
    QColor colorOf(const QString& shownName) const;
    void showSum();
    QString invitation() const;
    void followCounting();
    QDate today() const;

    Ground m_ground;
    History& m_history;
    PictureColors m_colors;
    HistoryPane& m_pane;
    const HistoryActions& m_actions;
    std::unique_ptr<HistoryReader> m_reader;
    // Beside the other, so that neither question makes the other one void.
    std::unique_ptr<HistoryReader> m_titleReader;
    std::unique_ptr<HistoryReader> m_sheetReader;
    std::unique_ptr<HistoryReader> m_projectReader;
    // Belongs to the main window.
    TimeSheetWindow* m_timeSheet = nullptr;
    // What the sheet was asked for.
    std::optional<RangeQuestion> m_onSheet;
    CalendarRange m_range;
    std::optional<std::pair<qint64, qint64>> m_piece;
    // The answer that is shown; empty unless it is known.
    RangeAnswer m_answer;
    Knowledge m_knowledge = Knowledge::Reading;
    // How often something else was asked for: an answer may come when nobody wants it any more.
    int m_questions = 0;
    // Null unless something else than what is shown is being asked.
    std::unique_ptr<RunLoopTimer> m_patience;
    const News m_shown;
    bool m_isAsking = false;
    bool m_isSeen = false;
    // Null while nothing can grow, or nobody looks.
    std::unique_ptr<RunLoopTimer> m_nextAsking;
    // Receives all connections; its end disconnects them.
    QObject m_receiver;
};
