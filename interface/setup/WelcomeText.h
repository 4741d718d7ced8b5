// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextLayout>

class QPainter;

// The two lines of the welcome page, each wrapped in a column of its own place. Where they are too long for that, as in
// another language or with large letters, they move together, and at last get smaller: nothing is cut off.
class WelcomeText {
public:
    // `textScale` is how many times larger than usual the text is wanted.
    WelcomeText(const QString& first, const QString& second, double textScale, Qt::LayoutDirection direction);

    // On a page of that height, in logical pixels.
    void paint(QPainter& painter, int pageHeight) const;

    // Where the lines come to lie on a page of that height.
    struct Places {
        QRectF first;
        QRectF second;
        double fontPixels;
        double lineHeight;
    };

    Places places(int pageHeight) const;

private:
    QString m_first;
    QString m_second;
    double m_textScale;
    Qt::LayoutDirection m_direction;
};
