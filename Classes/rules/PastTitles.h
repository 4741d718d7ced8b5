// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/rules/TitleRules.h"

#include <QHash>

// What the rules say of what was recorded before there were any. A row of the tree has only the document of a title: what
// else the title said, by which a rule knows it, the history may tell. Copies are cheap to hand over, and change nothing.
class PastTitles {
public:
    explicit PastTitles(const PropertyListValue& rules)
        : m_rules(rules) {}

    // As rules are written.
    const TitleRules& rules() const { return m_rules; }
    // A document stood in a title of that program of which no more than `allowed` may be known.
    void note(const QString& program, const QString& document, const std::optional<QString>& allowed);
    // It stood in a title as well that may be known.
    void keep(const QString& program, const QString& document);

    // As TitleRules::allowed(), of a row by its name and the document of that.
    std::optional<QString> allowed(const QString& program, const QString& name,
                                   const QString& document) const;
    // Whether a name is hidden by what it says, in one program or another.
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
