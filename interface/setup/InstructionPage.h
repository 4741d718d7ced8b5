// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>

// One page of the instructions: a picture; the welcome page also has two lines of text.
class InstructionPage {
public:
    // 0 is the welcome page, 1 to 4 are the steps.
    explicit InstructionPage(int number);

    int number() const { return m_number; }
    // In logical pixels.
    QSize size() const { return m_size; }

    // The first or second line of the welcome page.
    static QString welcomeLine(int line);
    // What the user should do in this step.
    static QString stepText(int step);
    // All text of a page.
    static QString text(int number);
    // By how much the user has enlarged texts; never below 1.
    static double textScale();

    // The whole page, for a device with `scale` pixels in a logical pixel. Drawn once for each scale and then
    // kept.
    const QPixmap& picture(qreal scale, Qt::LayoutDirection direction) const;
    // Call it when fonts, language or direction have changed.
    void forgetPicture() const { m_picture = {}; }

private:
    int m_number;
    QSize m_size;
    mutable QPixmap m_picture;
};
