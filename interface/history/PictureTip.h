// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QTextLayout>
#include <QWidget>

#include <memory>
#include <vector>

// What a picture tells of a place in it, shown beside that place. It lies over the picture's own window and
// takes no mouse events, so it neither flickers nor hides what it tells of. All texts are shown as they are.
class PictureTip : public QWidget {
    Q_OBJECT
public:
    struct Line {
        // Invalid for none.
        QColor color;
        QString text;
        // At the other end of the line.
        QString figure;
        // Below it, in as many lines as it needs; may be empty.
        QString detail{};

        friend bool operator==(const Line&, const Line&) = default;
    };

    // `over` is the widget that it may cover and never leaves; its owner.
    explicit PictureTip(QWidget* over);

    // Beside `place`, a rectangle in `picture`: below it or above it, around `x`; where it `isBar`, to its right
    // or its left.
    void tell(const std::vector<Line>& lines, const QWidget& picture, const QRect& place, int x, bool isBar);
    const std::vector<Line>& lines() const { return m_lines; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Laid {
        int top;
        std::unique_ptr<QTextLayout> detail;
    };

    void lay();
    QPoint besideBar(const QRect& place) const;
    QPoint belowOrAbove(const QRect& place, int x) const;
    int lineHeight() const { return fontMetrics().height() + 2; }

    std::vector<Line> m_lines;
    std::vector<Laid> m_laid;
};
