// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

// Draws menu entries that have two lines. For a timer: the name in bold, its original name dimmed, and below
// it the time in small letters. Other texts have both lines alike. Entries with one line are drawn as usual.
class TwoLineMenuStyle : public QProxyStyle {
public:
    // Based on the application's style.
    TwoLineMenuStyle();

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};
