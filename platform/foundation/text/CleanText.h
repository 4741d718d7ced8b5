// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

// Longer texts from outside are cut: nobody reads them, and a hostile window could fill the memory.
inline constexpr qsizetype kLongestText = 4096;

// A text in the form in which it may be stored, whether from a window or a file: lone surrogates and
// noncharacters become U+FFFD, line breaks and other control characters become spaces, and at most
// kLongestText characters are kept (never half of a surrogate pair).
QString cleanText(QString text);
// The same for UTF-8; each invalid sequence becomes U+FFFD.
QString cleanTextFromUtf8(QByteArrayView bytes);
