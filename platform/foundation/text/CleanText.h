// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

// Longer texts from outside are cut: nobody reads them, and a hostile window could fill the memory.
inline constexpr qsizetype kLongestText = 4096;

// Text as it may be kept, from windows and from files alike: lone surrogates and noncharacters become U+FFFD, line breaks and other control characters a
// blank, and nothing longer than kLongestText characters is left (never half a surrogate pair).
QString cleanText(QString text);
// The same for UTF-8; each invalid sequence becomes U+FFFD.
QString cleanTextFromUtf8(QByteArrayView bytes);
