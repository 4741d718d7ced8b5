// SPDX-License-Identifier: MIT
#include "platform/foundation/text/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace {

const QString kEnglish = QStringLiteral("en");

// "de" for "de-AT", "de_AT" and "de-Latn-DE". English for "C", which is no language.
QString languageOf(const QString& name) {
    qsizetype end = 0;
    while (end < name.size() && name[end].isLetter())
        ++end;
    const QString language = name.left(end).toLower();
    return language == QLatin1String("c") ? kEnglish : language;
}

} // namespace

Translations::Translations(const QStringList& languages)
    : m_language(kEnglish) {
    for (const QString& name : languages) {
        const QString language = languageOf(name);
        if (language == kEnglish)
            return;
        if (!m_ours.load(QStringLiteral(":/translations/ticklog_") + language + QStringLiteral(".qm")))
            continue;
        m_language = language;
        QCoreApplication::installTranslator(&m_ours);
        if (m_qts.load(QStringLiteral("qtbase_") + language,
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&m_qts);
        return;
    }
}
