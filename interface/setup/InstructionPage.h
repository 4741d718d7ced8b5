// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>

// One page of the instructions: a picture, and on the welcome page two lines of text on it.
class InstructionPage {
public:
    // 0 is the welcome page, 1 to 4 are the steps.
    explicit InstructionPage(int number);

    int number() const { return m_number; }
    // In logical pixels.
    QSize size() const { return m_size; }

    // The welcome page's first or second line.
    static QString welcomeLine(int line);
    // What a step asks for.
    static QString stepText(int step);
    // What there is to read on a page.
    static QString text(int number);
    // How many times larger than usual the user wants text to be; never below 1.
    static double textScale();

    // The whole page, for a device on which a logical pixel is `scale` pixels wide. Drawn once for a scale; afterwards it
    // is only handed out.
    const QPixmap& picture(qreal scale, Qt::LayoutDirection direction) const;
    // Fonts, language or direction have changed.
    void forgetPicture() const { m_picture = {}; }

private:
    int m_number;
    QSize m_size;
    mutable QPixmap m_picture;
};
