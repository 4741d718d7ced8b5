// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

class TKLabelViewController;

// One round colour to choose a label by. Disabled it ignores the pointer and is never selected; it belongs to the row of
// buttons, which it tells when it is chosen.
class TKLabelButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit TKLabelButton(TKLabelViewController& row);

    // 0 shows the picture for no label, and so does every tag without a colour.
    void setColorTag(int tag);
    int colorTag() const { return m_colorTag; }

    // Whether this is the current project's label. Ignored while disabled.
    void setSelectedColor(bool isSelected);
    bool selectedColor() const { return m_selectedColor; }

    // Goes back to neither selected nor under the pointer.
    void setEnabled(bool isEnabled);

    bool isMouseOver() const { return m_mouseOver; }

    QSize sizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void choose();

    TKLabelViewController& m_labelViewController;
    int m_colorTag = 0;
    QColor m_color = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.0F);
    bool m_mouseOver = false;
    bool m_selectedColor = false;
};
