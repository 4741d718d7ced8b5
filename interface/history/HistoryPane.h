// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class HistoryOutline;
class QStackedWidget;
class RangeBar;
class SumBar;
struct HistoryActions;

// The history's side of the main window: the range, its picture, its outline, and the sum below.
class HistoryPane : public QWidget {
    Q_OBJECT
public:
    explicit HistoryPane(const HistoryActions& actions, QWidget* parent = nullptr);

    RangeBar& rangeBar() const { return *m_rangeBar; }
    // One picture is shown at a time.
    QStackedWidget& pictures() const { return *m_pictures; }
    HistoryOutline& outline() const { return *m_outline; }
    SumBar& sumBar() const { return *m_sumBar; }

Q_SIGNALS:
    // The rows are to be exported.
    void exportWanted();

private:
    RangeBar* m_rangeBar;
    QStackedWidget* m_pictures;
    HistoryOutline* m_outline;
    SumBar* m_sumBar;
};
