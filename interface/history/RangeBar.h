// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/CalendarRange.h"

#include <QWidget>

class QAction;
class QBoxLayout;
class QToolBar;
class QToolButton;
struct HistoryActions;

// The bar above the picture: which range is shown, and buttons for the ranges beside it, of other kinds, and for what
// the picture goes by. Its title opens a calendar. Where one row has no room for all, there are two.
class RangeBar : public QWidget {
    Q_OBJECT
public:
    explicit RangeBar(const HistoryActions& actions, QWidget* parent = nullptr);

    // `piece`: the times of day of a piece of that day; empty for all of it.
    void show(const CalendarRange& range, const QString& piece);
    // Opens the calendar for a day, or for a first and a last one if a span is shown.
    void openCalendar();

    // "Saturday, 22 November 2026", "16 Nov – 22 Nov 2026", "November 2026", "2026", in the user's language.
    static QString titleOf(const CalendarRange& range);
    // "Sat 22/11/2026" for a day; otherwise the same.
    static QString shortTitleOf(const CalendarRange& range);

Q_SIGNALS:
    void dayChosen(QDate day);
    void spanChosen(QDate first, QDate last);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QToolBar* makeBar(const QString& name, const QString& spoken);
    QToolButton& addButton(QToolBar& bar, QAction* action);
    void addStep(QAction* action, Qt::ArrowType arrow);
    // In one row or in two, as the width allows.
    void fit();

    QToolBar* m_steps;
    QToolBar* m_kinds;
    QToolBar* m_by;
    QToolButton* m_title;
    QBoxLayout* m_rows;
    QString m_longTitle;
    QString m_shortTitle;
    // Absent before the first is shown.
    std::optional<CalendarRange> m_range;
};
