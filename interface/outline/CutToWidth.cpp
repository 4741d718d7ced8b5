// SPDX-License-Identifier: MIT
#include "interface/outline/CutToWidth.h"

#include <algorithm>
#include <cmath>

namespace {

// More than one character may fit into a pixel's width: combining marks take no room of their own.
constexpr double kCharactersPerPixel = 2;

} // namespace

QString cutToWidth(const QString& text, double width) {
    const auto seen = qsizetype(std::ceil(std::clamp(width, 0.0, 1e5) * kCharactersPerPixel));
    if (text.size() <= 2 * seen + 1)
        return text;
    QString start = text.first(seen);
    QString end = text.last(seen);
    if (!start.isEmpty() && start.back().isHighSurrogate())
        start.chop(1);
    if (!end.isEmpty() && end.front().isLowSurrogate())
        end.remove(0, 1);
    return start + u'\u2026' + end;
}

Qt::TextElideMode elisionOf(const QString& text) {
    QStringView path = text;
    // "anna@desk: ~/work", as terminals have it.
    const qsizetype colon = path.indexOf(u':');
    if (colon > 0 && path.first(colon).contains(u'@') && !path.first(colon).contains(u' '))
        path = path.sliced(colon + 1).trimmed();
    const bool isPath = path.startsWith(u'/') || path.startsWith(u"~/") || path.startsWith(u"file:///");
    return isPath ? Qt::ElideLeft : Qt::ElideMiddle;
}
