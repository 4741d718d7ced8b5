// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <Qt>

// The two ends of a long text, as far as they can be seen within `width` pixels, with a sign between them.
// Otherwise fonts would measure the whole text at every painting before leaving anything out of its middle.
QString cutToWidth(const QString& text, double width);

// Where a text that is too long is shortened: a path at its beginning, because its end tells it from others; anything
// else in its middle.
Qt::TextElideMode elisionOf(const QString& text);
