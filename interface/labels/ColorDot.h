// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

// Draws the dot that stands for a label: a full circle as wide as `rect`, darker towards the bottom.
// `strength` from 0 to 1 fades it. A transparent colour draws nothing.
void drawColorDot(QPainter& painter, const QRectF& rect, const QColor& color, double strength);
