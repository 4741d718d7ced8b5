// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/rules/TitleRules.h"

#include <QHash>

// Applies the rules to what was recorded before they existed. A row of the tree has only the document of a
// title; the rest of the title, by which a rule may recognise it, is known from the history. Cheap to copy;
// changes nothing.
class PastTitles {
public:
    explicit PastTitles(const PropertyListValue& rules)
        : m_rules(rules) {}

    // The rules themselves.
    const TitleRules& rules() const { return m_rules; }
    // A title of that program with this document may be recorded only as `allowed`; absent means not at all.
    void note(const QString& program, const QString& document, const std::optional<QString>& allowed);
    // Another title with this document may be recorded as it is.
    void keep(const QString& program, const QString& document);

    // Like TitleRules::allowed(), for a row with this name, which names this document.
    std::optional<QString> allowed(const QString& program, const QString& name,
                                   const QString& document) const;
    // Whether some rule would hide this name, whatever the program.
    bool hidesSomewhere(const QString& name) const;

private:
    struct Document {
        std::optional<QString> allowed;
        bool isKept = false;
    };

    TitleRules m_rules;
    // By program and document.
    QHash<QString, QHash<QString, Document>> m_documents;
};
