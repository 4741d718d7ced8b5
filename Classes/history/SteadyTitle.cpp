// SPDX-License-Identifier: MIT
#include "Classes/history/SteadyTitle.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

bool isSpinner(QChar sign) {
    const char16_t c = sign.unicode();
    // Braille patterns, quarter circles, hourglasses, stars.
    return (c >= 0x2800 && c <= 0x28ff) || (c >= 0x25d0 && c <= 0x25d3) || (c >= 0x25f4 && c <= 0x25f7) ||
           c == 0x231b || c == 0x23f3 || c == 0x2733 || c == 0x2736 || c == 0x273b || c == 0x273d ||
           c == 0x2722;
}

// Quick check: most titles have nothing that could count or spin.
bool mayTick(const QString& title) {
    return std::ranges::any_of(title, [](QChar c) { return c.isDigit() || isSpinner(c); });
}

struct Rule {
    QRegularExpression pattern;
    QString by;
};

const std::array<Rule, 7>& rules() {
    const auto of = [](const char16_t* pattern) {
        return QRegularExpression(QString::fromUtf16(pattern),
                                  QRegularExpression::UseUnicodePropertiesOption);
    };
    static const std::array<Rule, 7> kRules{{
        // A spinner that stands alone.
        {of(u"(?<!\\S)[\\x{2800}-\\x{28ff}\\x{25d0}-\\x{25d3}\\x{25f4}-\\x{25f7}\\x{231b}\\x{23f3}\\x{2733}"
            u"\\x{2736}\\x{273b}\\x{273d}\\x{2722}]+(?!\\S)"),
         QString()},
        // "(3) Chat", "[12] Chat"
        {of(u"^\\s*(?:\\(\\d{1,6}\\+?\\)|\\[\\d{1,6}\\+?\\])(?=\\s)"), QString()},
        // "Inbox (1,234) - Mail". Web mail calls it so in our languages.
        {of(u"\\b(Inbox|Posteingang|Bo\u00eete de r\u00e9ception|Recibidos|Bandeja de entrada|Odebrane|"
            u"Skrzynka odbiorcza|\u53d7\u4fe1\u30c8\u30ec\u30a4) ?\\([\\d., \u00a0]+\\)"),
         QStringLiteral("\\1")},
        // "general - Team - 2 new items - Chat", "News (3 unread)"
        {of(u"(?:[-\u2013\u2014|\u00b7,] ?\\d+ (?:new|unread)(?: \\w+)?(?= [-\u2013\u2014|\u00b7]|$))|"
            u"\\(\\d+ (?:new|unread)[^)]*\\)"),
         QString()},
        // "picture.png (3/17)"
        {of(u"\\(\\d+ ?/ ?\\d+\\)|\\[\\d+ ?/ ?\\d+\\]"), QString()},
        // "12 % Download"
        {of(u"(?<![\\w.,])\\d{1,3}(?:[.,]\\d+)? ?%(?!\\w)"), QString()},
        // "1:07 / 3:20", "-0:45", "14:30:05"
        {of(u"(?<![\\w.:,/-])-?\\d{1,3}(?::\\d{2}){1,2}(?: ?/ ?-?\\d{1,3}(?::\\d{2}){1,2})?(?![\\w:])"),
         QString()},
    }};
    return kRules;
}

// Removes separators and brackets that are left with nothing between them.
QString tidied(QString title) {
    static const QRegularExpression kEmpty(QStringLiteral("\\(\\s*\\)|\\[\\s*\\]"));
    static const QRegularExpression kDoubled(
        QStringLiteral("\\s[-\u2013\u2014|\u00b7](?=\\s+[-\u2013\u2014|\u00b7](?:\\s|$))"));
    static const QRegularExpression kAround(
        QStringLiteral("^[-\u2013\u2014|\u00b7:,/\\s]+|[-\u2013\u2014|\u00b7:,\\s]+$"));
    title.remove(kEmpty);
    title = title.simplified();
    title.remove(kDoubled);
    return title.remove(kAround);
}

} // namespace

QString steadyTitle(const QString& title) {
    if (!mayTick(title))
        return title;
    QString steady = title;
    for (const Rule& rule : rules())
        steady.replace(rule.pattern, rule.by);
    return steady == title ? title : tidied(steady);
}
