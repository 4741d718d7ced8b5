// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTranslator>

// Sets the language of all texts: ours from the catalogues in the program, Qt's from Qt's own where they are
// installed. Make it after the application object and before the first text; existing texts keep their
// language. Main thread only.
class Translations {
public:
    // Uses the first of `languages` that exists ("de-AT"; the most wanted first, as in QLocale::uiLanguages).
    // English is built in, so a user who prefers English does not get the next language in the list.
    explicit Translations(const QStringList& languages);

    // "de"; "en" if none of the languages exists.
    const QString& language() const { return m_language; }

private:
    QString m_language;
    QTranslator m_ours;
    QTranslator m_qts;
};
