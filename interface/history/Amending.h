// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/History.h"
#include "Classes/projects/ProjectList.h"
#include "Classes/report/RangeQuestion.h"
#include "interface/history/BookingWindow.h"
#include "interface/history/NamingWindow.h"

#include <QObject>
#include <QPointer>

class Alerts;
class HistoryController;
class MainWindow;
class QMenu;
class QUndoStack;
struct AmendActions;

// Lets people set right what the history says: give the time that they have chosen to a project, call it what it was,
// book time where nothing was measured, and forget. Chosen is what was dragged over, a stretch of the day's picture, a
// gap between two, or rows of the outline.
class Amending : public QObject {
public:
    // So many stretches can be forgotten in one step that can be undone: they are kept in memory.
    static constexpr std::int64_t kMostUndone = 200'000;

    // Everything outlives this.
    struct Ground {
        MainWindow& window;
        HistoryController& view;
        History& history;
        ProjectList& projects;
        QUndoStack& undoStack;
        Alerts& alerts;
        const Clock& clock;
        // Writes the timers.
        std::function<void()> save;
    };

    explicit Amending(Ground ground);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Chosen {
        enum class Kind : unsigned char { Nothing, Piece, Stretch, Gap, Rows };
        Kind kind = Kind::Nothing;
        // Not for rows.
        Amendment::Piece piece{};
        // Of a stretch.
        QString program{};
        QString title{};
        bool isIdle = false;
        std::vector<RowChoice> rows{};
    };
    Chosen chosen() const;
    Chosen chosenPiece() const;
    Chosen chosenRows() const;
    Chosen stretch(int item) const;
    // The gap at a moment of the day's picture.
    Chosen gapAt(qint64 moment) const;
    // When it was: then or later, and never if it is not there any more.
    void find(const Chosen& chosen, std::function<void(const ChosenTimes&)> told);
    void offer();
    void openMenu(const QPoint& globalPosition, const Chosen& chosen);
    bool openPictureMenu(const QPoint& position, bool isByKeyboard);
    void fillGive();
    void give(const ProjectList::Project& project);
    void name();
    void book();
    void forget();
    void askAndForget(const ChosenTimes& times, bool isTooMuch);
    void askFree(const Amendment::Piece& piece, std::function<void(const Result<qint64>&)> told);
    Amendment::Piece firstBooking(const Chosen& chosen) const;
    QString timesText(const ChosenTimes& times) const;
    std::int64_t now() const;

    Ground m_ground;
    const AmendActions& m_actions;
    std::unique_ptr<HistoryReader> m_reader;
    std::unique_ptr<HistoryReader> m_freeReader;
    // What an open menu is about; else it is found out when it is wanted.
    std::optional<Chosen> m_meant;
    QPointer<NamingWindow> m_namingWindow;
    QPointer<BookingWindow> m_bookingWindow;
    Subscription m_answers;
    Subscription m_amendings;
};
