// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The two ends of a long text, as far as they can be seen within `width` pixels, with a sign between them.
// Otherwise fonts would measure the whole text at every painting before leaving anything out of its middle.
QString cutToWidth(const QString& text, double width);
