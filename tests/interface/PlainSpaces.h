// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Newer libraries write a narrow space that does not break between a time and "AM".
inline QString withPlainSpaces(QString text) {
    return text.replace(QChar(0x202f), u' ');
}
