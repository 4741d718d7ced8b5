// SPDX-License-Identifier: MIT
#pragma once

#include "interface/history/PictureColors.h"
#include "interface/history/PictureTip.h"

#include <QPixmap>
#include <QPointer>

#include <optional>

// What the pictures of the history have in common. They consist of items, in reading order. One of them may have
// the keyboard's cursor; assistive programs read them as a list. Beside what is pointed at, or has the cursor,
// is a tip. What does not change from frame to frame is painted once and kept.
class TimePicture : public QWidget {
    Q_OBJECT
public:
    // The colours outlive the picture.
    TimePicture(const PictureColors& colors, QWidget* parent);
    ~TimePicture() override;

    virtual int itemCount() const = 0;
    // A sentence.
    virtual QString itemText(int item) const = 0;
    // What more there is to say of it; may be empty.
    virtual QString itemDetail(int item) const = 0;
    // Where it is, even if it is too small to be seen.
    virtual QRect itemRect(int item) const = 0;
    // As a click on it does.
    virtual void choose(int item) = 0;

    // The item with the cursor, below 0 for none.
    int currentItem() const { return m_current; }
    void setCurrentItem(int item);

    // Null while nothing is told.
    const PictureTip* tip() const { return m_tip && !m_tip->isHidden() ? m_tip.data() : nullptr; }

Q_SIGNALS:
    void currentItemChanged();

protected:
    virtual void paintStill(QPainter& painter) = 0;
    // What moves, over it; in the widget's own coordinates.
    virtual void paintMoving(QPainter& painter) = 0;
    // Brings an item into view.
    virtual void reveal(int) {}
    // Tells of the item with the cursor.
    virtual void tellOfCurrent() = 0;
    // Tells of what lies there, or nothing.
    virtual void tellAt(const QPoint& position) = 0;
    // Fonts, palette or direction are others.
    virtual void lookChanged() {}

    const PictureColors& colors() const { return m_colors; }
    bool isMirrored() const { return layoutDirection() == Qt::RightToLeft; }
    // The items are others; what was the one with the cursor is now `current`, below 0 for none. What is being
    // told is told anew.
    void itemsChanged(int current);
    // What is painted once is to be painted again.
    void stillChanged();
    void tell(const std::vector<PictureTip::Line>& lines, const QRect& place, int x, bool isBar);
    void tellNothing();
    // The pointer is there, until it leaves.
    void pointTo(const QPoint& position);

    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    // A colour of the palette between background and text, but no paler than this contrast to the background.
    QColor shade(double ofText, double contrast = 1) const;
    // Around all, if the focus came by the keyboard.
    void paintFocus(QPainter& painter, const QRect& rect) const;
    // Around an item, as the cursor.
    void paintCursor(QPainter& painter, const QRect& rect) const;

private:
    const PictureColors& m_colors;
    QPixmap m_still;
    bool m_isStillCurrent = false;
    int m_current = -1;
    // As assistive programs were last told.
    int m_count = 0;
    std::optional<QPoint> m_pointer;
    bool m_isFocusShown = false;
    QPointer<PictureTip> m_tip;
};
