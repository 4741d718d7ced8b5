// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

#include <cctype>

// The text of an RTF file as a simple reader sees it: "|" ends a cell, a line feed a row or paragraph.
inline std::string textOfRtf(const QByteArray& bytes) {
    QString text;
    int fontTableDepth = 0;
    int depth = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const char character = bytes[i];
        if (character == '{') {
            ++depth;
            if (bytes.mid(i, 9) == "{\\fonttbl")
                fontTableDepth = depth;
        } else if (character == '}') {
            if (fontTableDepth == depth)
                fontTableDepth = 0;
            --depth;
        } else if (character == '\\' &&
                   (bytes[i + 1] == '\\' || bytes[i + 1] == '{' || bytes[i + 1] == '}')) {
            text += QLatin1Char(bytes[++i]);
        } else if (character == '\\') {
            qsizetype end = i + 1;
            while (end < bytes.size() && std::isalpha(static_cast<unsigned char>(bytes[end])))
                ++end;
            const QByteArray word = bytes.mid(i + 1, end - i - 1);
            const qsizetype digits = end;
            while (end < bytes.size() &&
                   (bytes[end] == '-' || std::isdigit(static_cast<unsigned char>(bytes[end]))))
                ++end;
            const int number = bytes.mid(digits, end - digits).toInt();
            if (word == "u") {
                text += QChar(char16_t(number));
                // The question mark for readers without Unicode.
                ++end;
            } else if (end < bytes.size() && bytes[end] == ' ') {
                ++end;
            }
            if (word == "cell")
                text += u'|';
            else if (word == "row" || word == "par")
                text += u'\n';
            i = end - 1;
        } else if (character != '\n' && fontTableDepth == 0) {
            text += QLatin1Char(character);
        }
    }
    EXPECT_EQ(depth, 0) << "every brace is closed";
    return text.toStdString();
}
