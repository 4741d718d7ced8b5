// SPDX-License-Identifier: MIT
#include "Classes/rules/TitleRows.h"

void TitleRows::read(const PropertyListValue& ruleset, bool forAll) {
    m_areForAll = forAll;
    m_applications.clear();
    const PropertyListDictionary* rules = ruleset.asDictionary();
    if (!rules)
        return;
    for (const auto& [application, value] : *rules)
        if (const auto* record = value.asDictionary(); record && record->value(kRuleRowForEachTitle).toBool())
            m_applications.insert(application);
}
