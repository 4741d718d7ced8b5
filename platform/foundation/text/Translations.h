// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTranslator>

// The language of every text that is shown: ours from the catalogues inside the program, and what Qt itself says from
// Qt's, where that is installed. Made after the application object and before the first text; texts that were made
// keep their language. Main thread only.
class Translations {
public:
    // The first of `languages` ("de-AT"; the most wanted first, as QLocale::uiLanguages has them) that there is. English
    // is in the sources: it costs nothing, and a user who prefers it is not given the next language that was named.
    explicit Translations(const QStringList& languages);

    // "de"; "en" where none of the languages is there.
    const QString& language() const { return m_language; }

private:
    QString m_language;
    QTranslator m_ours;
    QTranslator m_qts;
};
