// SPDX-License-Identifier: MIT
#include "Classes/RuleCategories.h"

void RuleCategories::read(const PropertyListValue& ruleset) {
    m_categories.clear();
    const PropertyListDictionary* rules = ruleset.asDictionary();
    if (!rules)
        return;
    for (const auto& [ruleName, value] : *rules) {
        const PropertyListDictionary* record = value.asDictionary();
        if (!record)
            continue;
        for (const QString& token : record->value(kRuleCategories).toString().split(u',', Qt::SkipEmptyParts))
            if (const QString category = token.trimmed(); !category.isEmpty())
                m_categories[category].insert(ruleName);
    }
}

std::set<QString> RuleCategories::rulesForCategory(const QString& category) const {
    const auto found = m_categories.find(category);
    return found == m_categories.end() ? std::set<QString>() : found->second;
}
