// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// The one way to show what others wrote: titles, names of files, answers of services. Left to itself Qt draws as markup
// whatever looks like it, with the pictures that it names, and lays out a text of any length.
namespace PlainText {

// Of a tip, of a menu's entry and of a dialogue's paragraph people read no more.
inline constexpr qsizetype kLongestTip = 500;
inline constexpr qsizetype kLongestEntry = 200;
inline constexpr qsizetype kLongestParagraph = 4000;

// No longer than that; what is cut ends in an ellipsis.
QString cut(const QString& text, qsizetype longest);
// For QToolTip, which draws it letter by letter and in lines of a sensible length.
QString toolTip(const QString& text);
// For whoever may take it for markup and cannot be told otherwise: with other brackets.
QString withoutTags(const QString& text);
// Has the labels of a dialogue that Qt made show their texts letter by letter.
void keepPlain(const QWidget& dialogue);

} // namespace PlainText

// A label that shows its text letter by letter.
class PlainLabel : public QLabel {
    Q_OBJECT
public:
    explicit PlainLabel(QWidget* parent = nullptr)
        : PlainLabel(QString(), parent) {}

    explicit PlainLabel(const QString& text, QWidget* parent = nullptr)
        : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setText(text);
    }
};
