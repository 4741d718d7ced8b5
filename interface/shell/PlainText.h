// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// The one way to show texts of others: titles, file names, answers of services. Qt by itself would draw as
// markup whatever looks like it, with the pictures that it names, and lay out texts of any length.
namespace PlainText {

// Characters. Nobody reads more than this of a tip, a menu entry or a paragraph in a dialogue.
inline constexpr qsizetype kLongestTip = 500;
inline constexpr qsizetype kLongestEntry = 200;
inline constexpr qsizetype kLongestParagraph = 4000;

// The text cut to at most `longest` characters; a cut text ends in an ellipsis.
QString cut(const QString& text, qsizetype longest);
// For QToolTip: the text is shown as it is, in lines of a readable length.
QString toolTip(const QString& text);
// For receivers that may take the text for markup: replaces its angle brackets.
QString withoutTags(const QString& text);
// Makes the labels of a dialogue of Qt's own show their texts as they are.
void keepPlain(const QWidget& dialogue);

} // namespace PlainText

// A label that shows its text as it is, never as markup.
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
