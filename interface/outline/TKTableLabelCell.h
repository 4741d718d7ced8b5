// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ReverseProjectCache.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QRectF>

#include <optional>

class QPainter;

// The cell that shows a row's name and the pictures around it. Its content is set anew for each row. All
// lengths are logical pixels.
class TKTableLabelCell {
public:
    // The picture at the left of a row in the sidebar.
    enum IconType { NoIcon, AllTimersIcon, ProjectIcon };

    // The text and how it is drawn; its last `dimmedLength` characters are dimmed.
    struct Text {
        QString text;
        int dimmedLength = 0;
        QFont font;
        QColor color;
        // On a selection's colour, pictures have the colour of the text; otherwise their own.
        bool isOnHighlight = false;
    };

    // Where each part is drawn. An empty rectangle means: not drawn.
    struct Layout {
        QRectF icon;
        QRectF programIcon;
        QRectF windowIcon;
        QRectF text;
        // The control that freezes the timer, or the mark of a frozen one.
        QRectF mark;
        std::vector<QRectF> dots;

        // The same for languages that are read from right to left.
        Layout mirrored(const QRectF& frame) const;
    };

    // The side of each of its pictures.
    static constexpr int kIconSize = 16;

    // The size of the mark of a frozen timer. The area that freezes a timer when clicked has the same width.
    static QSize freezeImageSize();

    // Shows only this colour; 0 for no label.
    void setSelectedTag(int tag) { selectedTags = ColorTags{tag}; }

    // From left to right. `isHovered`: the row is under the pointer.
    Layout layout(const QRectF& frame, bool isHovered) const;
    // In the painter's reading direction.
    void drawWithFrame(QPainter& painter, const QRectF& frame, bool isHovered, const Text& text) const;
    // Whether the control that freezes the timer is shown.
    bool showsFreezeAction(bool isHovered) const { return !isFrozen && isHovered && supportsFreeze; }

    // The colours of the dots. Absent for no dots; an empty set keeps room for one.
    std::optional<ColorTags> selectedTags;
    int iconType = NoIcon;
    bool showWindowIcon = false;
    // The program that the row stands for, by the name that it has itself; empty for none.
    QString program;
    // Its icon, before the name; a null one keeps room for it. Absent for none.
    std::optional<QPixmap> programIcon;
    bool isFrozen = false;
    bool supportsFreeze = false;
    // Chooses between the two pictures for a row of the sidebar.
    bool selected = false;

private:
    QIcon icon() const;
};
