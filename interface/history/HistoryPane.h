// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class DayPicture;
class HistoryOutline;
class PeriodPicture;
class PictureColors;
class PlainLabel;
class QStackedWidget;
class RangeBar;
class SumBar;
struct HistoryActions;

// The history's side of the main window: the range, its picture, its outline, and the sum below.
class HistoryPane : public QWidget {
    Q_OBJECT
public:
    explicit HistoryPane(const HistoryActions& actions, QWidget* parent = nullptr);

    // Makes the pictures; there are none before. The colours outlive the pane.
    void setColors(const PictureColors& colors);

    RangeBar& rangeBar() const { return *m_rangeBar; }
    DayPicture& dayPicture() const { return *m_dayPicture; }
    PeriodPicture& periodPicture() const { return *m_periodPicture; }
    // Shows one of the two.
    void showPicture(QWidget& picture);
    // Below the picture; nothing for an empty text.
    void showNote(const QString& text);
    HistoryOutline& outline() const { return *m_outline; }
    SumBar& sumBar() const { return *m_sumBar; }

Q_SIGNALS:
    // The rows are to be exported.
    void exportWanted();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitPicture();

    RangeBar* m_rangeBar;
    QStackedWidget* m_pictures;
    DayPicture* m_dayPicture = nullptr;
    PeriodPicture* m_periodPicture = nullptr;
    PlainLabel* m_note;
    HistoryOutline* m_outline;
    SumBar* m_sumBar;
};
