// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTranslator>

// Sets the language of all texts: ours from the catalogues in the program, Qt's from Qt's own where they are
// installed. Make it after the application object and before the first text; existing texts keep their
// language. Main thread only.
class Translations {
public:
    // Uses the first of `languages` that exists ("de-AT"; the most wanted first, as in QLocale::uiLanguages),
    // else English. The English catalogue has only the texts that differ from their keys.
    explicit Translations(const QStringList& languages);

    // "de"; "en" if none of the languages exists.
    const QString& language() const { return m_language; }

private:
    bool take(const QString& language);

    QString m_language;
    QTranslator m_ours;
    QTranslator m_qts;
};
