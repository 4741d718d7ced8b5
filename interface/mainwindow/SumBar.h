// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CutoffSlider;
class QLabel;
class SumOfTimesLabel;
class TKTimeSummaryTextField;

// The bar below the timers: the cut-off on the left, the sum and its kind on the right.
class SumBar : public QWidget {
    Q_OBJECT
public:
    explicit SumBar(QWidget* parent = nullptr);

    CutoffSlider& cutoff() const { return *m_cutoff; }

    void showCutoff(const QString& time);
    // Where it does not apply, it cannot be changed, shows no time and says why.
    void setCutoffApplies(bool applies);
    void showSum(const QString& time);
    // Shows a picture by its name, and the word for the kind of sum.
    void showSumMode(const QString& image, const QString& caption);

Q_SIGNALS:
    // The sum was clicked.
    void sumClicked();
    // The word beside the sum was clicked.
    void captionPressed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void nameCutoff();
    // Gives the numbers the room that they need in the font.
    void fitNumbers();
    void fitWords();

    CutoffSlider* m_cutoff;
    QLabel* m_cutoffCaption;
    QLabel* m_cutOffValueDisplay;
    QString m_cutoffTime;
    QLabel* m_timeSumIcon;
    TKTimeSummaryTextField* m_timeSumCaption;
    SumOfTimesLabel* m_timeSum;
};
