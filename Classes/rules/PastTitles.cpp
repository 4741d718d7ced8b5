// SPDX-License-Identifier: MIT
#include "Classes/rules/PastTitles.h"

#include <algorithm>

void PastTitles::note(const QString& program, const QString& document,
                      const std::optional<QString>& allowed) {
    m_documents[program][document].allowed = allowed;
}

void PastTitles::keep(const QString& program, const QString& document) {
    if (const auto documents = m_documents.find(program); documents != m_documents.end())
        if (const auto known = documents->find(document); known != documents->end())
            known->isKept = true;
}

std::optional<QString> PastTitles::allowed(const QString& program, const QString& name,
                                           const QString& document) const {
    const auto byName = m_rules.allowed(program, name);
    if (byName != name)
        return byName;
    const auto documents = m_documents.constFind(program);
    if (documents == m_documents.constEnd())
        return name;
    for (const QString& text : {name, document})
        if (const auto known = documents->constFind(text); known != documents->constEnd() && !known->isKept)
            return known->allowed;
    return name;
}

bool PastTitles::hidesSomewhere(const QString& name) const {
    return m_rules.hidesSomewhere(name) || std::ranges::any_of(m_documents, [&](const auto& documents) {
               const auto known = documents.constFind(name);
               return known != documents.constEnd() && !known->isKept;
           });
}
