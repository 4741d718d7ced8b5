// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ReverseProjectCache.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QRectF>

#include <optional>

class QPainter;

// The cell that shows a row's name with the pictures around it. What it shows is set for each row by whoever
// knows the row. All lengths are logical pixels.
class TKTableLabelCell {
public:
    // The picture at the left of a row of the sidebar.
    enum IconType { NoIcon, AllTimersIcon, ProjectIcon };

    // The text, the last `dimmedLength` characters of it dimmed, and how it is drawn.
    struct Text {
        QString text;
        int dimmedLength = 0;
        QFont font;
        QColor color;
        // On the colour of a selection pictures are drawn in the colour of the text, else in their own.
        bool isOnHighlight = false;
    };

    // Where everything goes. Empty rectangles are not drawn.
    struct Layout {
        QRectF icon;
        QRectF windowIcon;
        QRectF text;
        // The freeze control or the mark of a frozen timer.
        QRectF mark;
        std::vector<QRectF> dots;

        // For people who read from right to left.
        Layout mirrored(const QRectF& frame) const;
    };

    // A frozen timer's mark; its width is that of the area that freezes a timer when clicked.
    static QSize freezeImageSize();

    // Only this tag. 0 for no label.
    void setSelectedTag(int tag) { selectedTags = ColorTags{tag}; }

    // From left to right. `isHovered` is whether the row is the one beneath the pointer.
    Layout layout(const QRectF& frame, bool isHovered) const;
    // In the painter's direction.
    void drawWithFrame(QPainter& painter, const QRectF& frame, bool isHovered, const Text& text) const;
    // Whether the control that freezes the timer is offered.
    bool showsFreezeAction(bool isHovered) const { return !isFrozen && isHovered && supportsFreeze; }

    // Whose dots are drawn; absent for none, as against a set that is empty, which keeps room for one.
    std::optional<ColorTags> selectedTags;
    int iconType = NoIcon;
    bool showWindowIcon = false;
    bool isFrozen = false;
    bool supportsFreeze = false;
    // Chooses between the two pictures of a row of the sidebar.
    bool selected = false;

private:
    QIcon icon() const;
};
