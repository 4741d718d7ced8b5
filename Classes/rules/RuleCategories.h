// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QString>

#include <map>
#include <set>

// The setting that holds the rules: a dictionary from application name to rule record.
inline const QString kRulesetKey = QStringLiteral("Ruleset");
// A rule's categories, as one text with commas between them.
inline const QString kRuleCategories = QStringLiteral("Categories");

// Which applications' rules name a category. Inactive rules count too.
class RuleCategories {
public:
    // Reads the rules anew. Records of other types are left out.
    void read(const PropertyListValue& ruleset);

    // For each category the applications whose rules name it.
    const std::map<QString, std::set<QString>>& all() const { return m_categories; }

private:
    std::map<QString, std::set<QString>> m_categories;
};
