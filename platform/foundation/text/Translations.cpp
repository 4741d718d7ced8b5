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
    for (const QString& name : languages)
        if (take(languageOf(name)))
            return;
    take(kEnglish);
}

bool Translations::take(const QString& language) {
    if (!m_ours.load(QStringLiteral(":/translations/ticklog_") + language + QStringLiteral(".qm")))
        return false;
    m_language = language;
    QCoreApplication::installTranslator(&m_ours);
    // Qt's own texts are English.
    if (language != kEnglish &&
        m_qts.load(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qts);
    return true;
}
