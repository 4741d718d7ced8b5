// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

// Draws the entries of a menu whose text has two lines: of a timer the name in bold, with the name that it replaces
// dimmed, and the time smaller beneath it; of anything else both lines alike. Other entries are drawn as ever.
class TwoLineMenuStyle : public QProxyStyle {
public:
    // In the application's style.
    TwoLineMenuStyle();

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};
