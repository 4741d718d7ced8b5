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

bool endsWith(const QStringList& words, const QStringList& ending) {
    return !ending.isEmpty() && ending.size() <= words.size() &&
           std::equal(ending.rbegin(), ending.rend(), words.rbegin());
}

} // namespace

QString shownTitle(const QString& title, const QString& program) {
    qsizetype place = -1;
    for (const char16_t* separator : {u" - ", u" \u2013 ", u" \u2014 "})
        place = std::max(place, title.lastIndexOf(QStringView(separator)));
    if (place <= 0)
        return title;
    const QStringList ending = wordsOf(title.mid(place + 3));
    const QStringList name = programWords(program);
    // Either may say more before: the maker, the suite.
    return endsWith(ending, name) || endsWith(name, ending) ? title.left(place) : title;
}
