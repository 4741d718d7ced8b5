// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/CalendarRange.h"

#include <QWidget>

class QAction;
class QToolBar;
class QToolButton;
struct HistoryActions;

// The bar above the picture: which range is shown, and buttons for the ranges beside it and of other kinds. Its title
// opens a calendar.
class RangeBar : public QWidget {
    Q_OBJECT
public:
    explicit RangeBar(const HistoryActions& actions, QWidget* parent = nullptr);

    // `piece`: the times of day of a piece of that day; empty for all of it.
    void show(const CalendarRange& range, const QString& piece);
    // Opens the calendar for a day, or for a first and a last one if a span is shown.
    void openCalendar();

    // "Saturday, 22 November 2026", "16 – 22 November 2026", "November 2026", "2026", in the user's language.
    static QString titleOf(const CalendarRange& range);

Q_SIGNALS:
    void dayChosen(QDate day);
    void spanChosen(QDate first, QDate last);

private:
    QToolButton& addButton(QAction* action);
    void addStep(QAction* action, Qt::ArrowType arrow);

    QToolBar* m_buttons;
    QToolButton* m_title;
    // Absent before the first is shown.
    std::optional<CalendarRange> m_range;
};
