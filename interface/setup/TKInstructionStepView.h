// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QLabel>

class ImageView;
class TKInstructionView;

// The row of one step. It is highlighted while the step's page is shown, and turns to that page when it is
// pressed by pointer, key or an assistive program. Belongs to the instructions that it controls.
class TKInstructionStepView : public QAbstractButton {
    Q_OBJECT
public:
    // Higher if the text needs it.
    static constexpr int kHeight = 46;

    // `stepNumber` is 1 to 4.
    TKInstructionStepView(const QRect& frame, TKInstructionView& controllingView, int stepNumber);

    int stepNumber() const { return m_stepNumber; }
    ImageView& badgeView() const { return *m_badgeView; }
    QLabel& textField() const { return *m_textField; }
    TKInstructionView& controllingView() const { return m_controllingView; }

    // Whether this step's page is shown.
    void setActive(bool isActive);
    bool isActive() const { return m_isActive; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent*) override {}
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString background() const;
    int textWidth(int width) const;
    void layOut();
    void chooseFont();

    int m_stepNumber;
    bool m_isActive = false;
    ImageView* m_badgeView;
    QLabel* m_textField;
    TKInstructionView& m_controllingView;
};
