// SPDX-License-Identifier: MIT
#include "Classes/rules/Ruleset.h"

#include "Classes/rules/RuleCategories.h"
#include "Classes/rules/TitleRows.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <algorithm>

Rule Rule::fromRecord(const PropertyListValue& record) {
    const PropertyListDictionary* entries = record.asDictionary();
    if (!entries)
        return {};
    return {.block = entries->value(kRuleBlock).toBool(),
            .enableRename = entries->value(kRuleEnableRename).toBool(),
            .rename = entries->value(kRuleRename).toString(),
            .categories = entries->value(kRuleCategories).toString(),
            .rowForEachTitle = entries->value(kRuleRowForEachTitle).toBool()};
}

PropertyListDictionary Rule::record() const {
    PropertyListDictionary record{{kRuleBlock, block},
                                  {kRuleRename, rename},
                                  {kRuleEnableRename, enableRename},
                                  {kRuleCategories, categories}};
    if (rowForEachTitle)
        record.insert(kRuleRowForEachTitle, true);
    return record;
}

PropertyListDictionary Ruleset::rules() const {
    const PropertyListDictionary* rules = m_defaults.object(kRulesetKey).asDictionary();
    return rules ? *rules : PropertyListDictionary();
}

QStringList Ruleset::names() const {
    QStringList names;
    for (const auto& [name, record] : rules())
        names << name;
    // Names that differ only in case must always be in the same order.
    std::ranges::sort(names, [](const QString& a, const QString& b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
    return names;
}

PropertyListDictionary Ruleset::record(const QString& name) const {
    const PropertyListDictionary* rules = m_defaults.object(kRulesetKey).asDictionary();
    const PropertyListDictionary* record = rules ? rules->value(name).asDictionary() : nullptr;
    return record ? *record : PropertyListDictionary();
}

QString Ruleset::description(const QString& name, const PropertyListDictionary& record) {
    const Rule rule = Rule::fromRecord(record);
    QString text = name;
    if (rule.enableRename)
        text += QStringLiteral(" \u21D2 ") + rule.rename;
    if (rule.categories.size() >= 2)
        text += QStringLiteral(" (") + rule.categories + u')';
    return rule.rowForEachTitle ? localized("%@: a row for each title").replace(QStringLiteral("%@"), text)
                                : text;
}

void Ruleset::save(const std::optional<QString>& originalName, const QString& name, const Rule& rule,
                   const std::function<void()>& reload) {
    PropertyListDictionary changed = rules();
    if (originalName && *originalName != name)
        changed.remove(*originalName);
    changed.insert(name, rule.record());
    reload();
    m_defaults.setObject(kRulesetKey, changed);
}

void Ruleset::remove(const QString& name) {
    PropertyListDictionary changed = rules();
    changed.remove(name);
    m_defaults.setObject(kRulesetKey, changed);
}
