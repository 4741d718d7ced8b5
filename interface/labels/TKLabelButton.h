// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

class TKLabelViewController;

// A round button with one colour of a label. While disabled it ignores the pointer and is never selected. It
// belongs to the row of buttons, and tells the row when it is pressed.
class TKLabelButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit TKLabelButton(TKLabelViewController& row);

    // 0, or a tag that has no colour, shows the picture for "no label".
    void setColorTag(int tag);
    int colorTag() const { return m_colorTag; }

    // Whether this is the label of the current project. Ignored while disabled.
    void setSelectedColor(bool isSelected);
    bool selectedColor() const { return m_selectedColor; }

    // Also ends being selected and being under the pointer.
    void setEnabled(bool isEnabled);

    bool isMouseOver() const { return m_mouseOver; }

    // Makes this the label of the current project. Ignored while disabled.
    void choose();

    QSize sizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void drawFocus(QPainter& painter) const;

    TKLabelViewController& m_labelViewController;
    int m_colorTag = 0;
    QColor m_color = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.0F);
    bool m_mouseOver = false;
    bool m_selectedColor = false;
};
