// SPDX-License-Identifier: MIT
#include "Classes/rules/TitleRows.h"

#include "Classes/rules/Ruleset.h"

void TitleRows::read(const PropertyListValue& ruleset, bool forAll) {
    m_areForAll = forAll;
    m_applications.clear();
    const PropertyListDictionary* rules = ruleset.asDictionary();
    if (!rules)
        return;
    for (const auto& [application, value] : *rules) {
        const PropertyListDictionary* record = value.asDictionary();
        if (record && record->value(kRuleRowForEachTitle).toBool() && isActiveRule(*record))
            m_applications.insert(application);
    }
}
