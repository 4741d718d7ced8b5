// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextLayout>

class QPainter;

// The two lines of the welcome page, each wrapped in its own column. If they are too long, in another
// language or with large letters, they move closer together and at last become smaller, so that nothing is
// cut off.
class WelcomeText {
public:
    // `textScale`: by how much the user has enlarged texts.
    WelcomeText(const QString& first, const QString& second, double textScale, Qt::LayoutDirection direction);

    // On a page of this height, in logical pixels.
    void paint(QPainter& painter, int pageHeight) const;

    // Where the lines are on a page of this height.
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
