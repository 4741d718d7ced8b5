// SPDX-License-Identifier: MIT
#include "platform/foundation/text/ShownTitle.h"

#include <QStringList>

#include <algorithm>

namespace {

QStringList wordsOf(const QString& name) {
    return name.toCaseFolded().split(u' ', Qt::SkipEmptyParts);
}

// Makers name their releases too; titles do not.
QStringList programWords(const QString& program) {
    QStringList words = wordsOf(program);
    while (words.size() > 1 &&
           (words.last() == u"esr" || words.last() == u"beta" || words.last() == u"nightly"))
        words.removeLast();
    return words;
}

// The length of " - ".
constexpr qsizetype kSeparator = 3;

// Where the last separator begins that ends at `end` or before; -1 for none.
qsizetype separatorBefore(const QString& title, qsizetype end) {
    qsizetype place = -1;
    if (end >= kSeparator)
        for (const char16_t* separator : {u" - ", u" \u2013 ", u" \u2014 "})
            place = std::max(place, title.lastIndexOf(QStringView(separator), end - kSeparator));
    return place;
}

bool endsWith(const QStringList& words, const QStringList& ending) {
    return !ending.isEmpty() && ending.size() <= words.size() &&
           std::equal(ending.rbegin(), ending.rend(), words.rbegin());
}

} // namespace

QString shownTitle(const QString& title, const QString& program) {
    const QStringList name = programWords(program);
    qsizetype place = separatorBefore(title, title.size());
    // The name may have such a sign itself.
    for (qsizetype whole = place; whole >= 0; whole = separatorBefore(title, whole))
        if (wordsOf(title.mid(whole + kSeparator)) == name)
            place = whole;
    if (place < 0 || wordsOf(title) == name)
        return title;
    const QString ending = title.mid(place + kSeparator);
    // Either may say more before: the maker, the suite.
    if (!endsWith(wordsOf(ending), name) && !endsWith(name, wordsOf(ending)))
        return title;
    // Without a document, the program is all there is.
    return place == 0 ? ending : title.left(place);
}
