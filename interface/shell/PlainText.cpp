// SPDX-License-Identifier: MIT
#include "interface/shell/PlainText.h"

#include <QTextDocument>

namespace {

// Characters. Qt wraps lines of tips only if they are markup.
constexpr qsizetype kLongestLine = 100;

} // namespace

namespace PlainText {

QString cut(const QString& text, qsizetype longest) {
    if (text.size() <= longest)
        return text;
    qsizetype kept = longest - 1;
    if (text[kept - 1].isHighSurrogate())
        --kept;
    return text.left(kept) + u'…';
}

QString toolTip(const QString& text) {
    const QString shown = cut(text, kLongestTip);
    return shown.size() > kLongestLine || Qt::mightBeRichText(shown)
               ? Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal)
               : shown;
}

QString withoutTags(const QString& text) {
    return cut(text, kLongestTip).replace(u'<', u'‹').replace(u'>', u'›');
}

void keepPlain(const QWidget& dialogue) {
    for (QLabel* label : dialogue.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
}

} // namespace PlainText
