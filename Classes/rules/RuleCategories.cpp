// SPDX-License-Identifier: MIT
#include "Classes/rules/RuleCategories.h"

#include <QList>

namespace {

// A settings file has room for millions of commas, and each category takes 200 bytes. Nobody types this many.
constexpr int kMostTokens = 100'000;

} // namespace

void RuleCategories::read(const PropertyListValue& ruleset) {
    m_categories.clear();
    int tokens = 0;
    const PropertyListDictionary* rules = ruleset.asDictionary();
    if (!rules)
        return;
    for (const auto& [ruleName, value] : *rules) {
        const PropertyListDictionary* record = value.asDictionary();
        if (!record)
            continue;
        const QString text = record->value(kRuleCategories).toString();
        for (const QStringView token : QStringView(text).split(u',', Qt::SkipEmptyParts)) {
            if (++tokens > kMostTokens)
                return;
            if (const QString category = token.trimmed().toString(); !category.isEmpty())
                m_categories[category].insert(ruleName);
        }
    }
}
