// SPDX-License-Identifier: MIT
#include "Classes/rules/SteadyTitle.h"

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

// What <...> stands for in the rules. <progress> are words that say of a percentage beside them that it
// grows, in our languages.
const std::array<std::pair<const char*, const char16_t*>, 4> kParts{{
    {"<sep>", u"[-\u2013\u2014|\u00b7]"},
    {"<clock>", u"\\d{1,3}(?::\\d{2}){1,2}"},
    {"<percentage>", u"(?:[(\\[]\\d{1,3}(?:[.,]\\d+)? ?%[)\\]](?!\\.\\w)|"
                     u"(?<![\\w.,(\\[])\\d{1,3}(?:[.,]\\d+)? ?%(?!\\w|\\.\\w|[)\\]]))"},
    {"<progress>",
     u"(?:Downloading|Downloads?|Downloaded|Uploading|Upload|Uploaded|Copying|Copied|Moving|Loading|"
     u"Installing|"
     u"Updating|Building|Rendering|Exporting|Importing|Extracting|Converting|Encoding|Burning|Scanning|"
     u"Syncing|Progress|Done|Complete|Completed|Of|Herunterladen|Hochladen|Kopieren|Verschieben|Fertig|"
     u"Abgeschlossen|Von|T\u00e9l\u00e9chargement|Copie|Termin\u00e9|Descarga|Descargando|Copiando|"
     u"Completado|"
     u"Pobieranie|Kopiowanie|Uko\u0144czono|\u30c0\u30a6\u30f3\u30ed\u30fc\u30c9|\u30b3\u30d4\u30fc|"
     u"\u5b8c\u4e86)"},
}};

QRegularExpression expression(const char16_t* text) {
    QString pattern = QString::fromUtf16(text);
    for (const auto& [name, part] : kParts)
        pattern.replace(QLatin1String(name), QString::fromUtf16(part));
    return QRegularExpression(pattern, QRegularExpression::UseUnicodePropertiesOption |
                                           QRegularExpression::CaseInsensitiveOption);
}

// docs/file-formats.md tells people what these leave out, and what they leave in.
const std::array<Rule, 8>& rules() {
    static const std::array<Rule, 8> kRules{{
        // A spinner that stands alone.
        {expression(
             u"(?<!\\S)[\\x{2800}-\\x{28ff}\\x{25d0}-\\x{25d3}\\x{25f4}-\\x{25f7}\\x{231b}\\x{23f3}\\x{2733}"
             u"\\x{2736}\\x{273b}\\x{273d}\\x{2722}]+(?!\\S)"),
         QString()},
        // "(3) Chat", "[1,234] Chat", "[3/17] Building"
        {expression(u"^\\s*(?:\\((?:\\d{1,3}(?:[.,]\\d{3})*\\+?|\\d{1,3} ?/ ?\\d{1,3})\\)|"
                    u"\\[(?:\\d{1,3}(?:[.,]\\d{3})*\\+?|\\d{1,3} ?/ ?\\d{1,3})\\])(?=\\s)"),
         QString()},
        // "picture.png (3/17)"
        {expression(u"\\s(?:\\(\\d{1,3} ?/ ?\\d{1,3}\\)|\\[\\d{1,3} ?/ ?\\d{1,3}\\])\\s*$"), QString()},
        // "Inbox (1,234) - Mail". Web mail calls it so in our languages.
        {expression(
             u"\\b(Inbox|Posteingang|Bo\u00eete de r\u00e9ception|Recibidos|Bandeja de entrada|Odebrane|"
             u"Skrzynka odbiorcza|\u53d7\u4fe1\u30c8\u30ec\u30a4) ?\\([\\d., \u00a0]+\\)(?!\\.\\w)"),
         QStringLiteral("\\1")},
        // "general - Team - 2 new items - Chat", "News (3 unread)"
        {expression(u"(?:(?<=\\s)<sep>|,) ?\\d+ (?:new|unread)(?: \\w+)?(?= <sep>|$)|"
                    u"\\(\\d+ (?:new|unread)[^)]*\\)(?!\\.\\w)"),
         QString()},
        // "12 % Download", "Copying (45 %)"
        {expression(
             u"(?<!\\w)<progress>\\K[:,]? ?<percentage>|<percentage>(?=(?: <sep>|:)? ?<progress>(?!\\w))"),
         QString()},
        // "45% - wget", "wget - 45%"
        {expression(u"^\\s*<percentage>(?=\\s<sep>\\s)|(?<=\\s<sep>\\s)<percentage>\\s*$"), QString()},
        // "1:07 / 3:20", "-0:45 Song", "14:30:05 - Clock"
        {expression(
             u"[(\\[]-?<clock> ?/ ?-?<clock>[)\\]](?!\\.\\w)|"
             u"(?<![\\w.:,/(\\[-])-?<clock> ?/ ?-?<clock>(?![\\w:)\\]]|\\.\\w)|"
             u"^-<clock>(?=\\s)|(?:^|(?<=\\s<sep>\\s))<clock>(?=\\s<sep>\\s)|(?<=\\s<sep>\\s)<clock>\\s*$"),
         QString()},
    }};
    return kRules;
}

// Removes separators that are left with nothing between them.
QString tidied(QString title) {
    static const QRegularExpression kDoubled(
        QStringLiteral("\\s[-\u2013\u2014|\u00b7](?=\\s+[-\u2013\u2014|\u00b7](?:\\s|$))"));
    static const QRegularExpression kAround(
        QStringLiteral("^(?:[-\u2013\u2014|\u00b7:,](?=\\s)|\\s)+|[-\u2013\u2014|\u00b7:,\\s]+$"));
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
    if (steady == title)
        return title;
    steady = tidied(steady);
    // A clock alone is a title like any other.
    return steady.isEmpty() ? title : steady;
}
