// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QStringList>

// The entries of a rule's record; its categories are in RuleCategories.h,
// its rows for titles in TitleRows.h.
inline const QString kRuleBlock = QStringLiteral("Block");
inline const QString kRuleRename = QStringLiteral("Rename");
inline const QString kRuleEnableRename = QStringLiteral("EnableRename");
inline const QString kRuleActive = QStringLiteral("Active");

// Without "Active", or if that is no number, a rule is active.
inline bool isActiveRule(const PropertyListDictionary& record) {
    const PropertyListValue& active = record.value(kRuleActive);
    return !active.number() || active.toBool();
}

// What the user wants for one application. An entry that is missing or of the wrong type counts as false or
// empty.
struct Rule {
    static Rule fromRecord(const PropertyListValue& record);
    // Without "Active": a rule that is saved is active.
    PropertyListDictionary record() const;

    bool block = false;
    bool enableRename = false;
    QString rename = {};
    // As the user typed them, separated by commas.
    QString categories = {};
    // Written only if it is true, so that other rules look as they always have.
    bool rowForEachTitle = false;
};

// The rules, by application name. They live only in the settings and are read from there each time. Names
// that differ in case are different names, but sorting ignores case.
class Ruleset {
public:
    // The defaults outlive the ruleset.
    explicit Ruleset(UserDefaults& defaults)
        : m_defaults(defaults) {}

    QStringList names() const;
    // Empty for a rule that does not exist.
    PropertyListDictionary record(const QString& name) const;
    // "Mail ⇒ Work (office, letters)", in the user's language: "Mail: a row for each title".
    static QString description(const QString& name, const PropertyListDictionary& record);

    // Stores the rule under `name`, which may be empty, in place of the rule `originalName` if that is given.
    // Deliberately calls `reload` before anything is written: whoever reads the rules in it still finds the
    // old ones, and learns of the new ones when the settings announce their change.
    void save(const std::optional<QString>& originalName, const QString& name, const Rule& rule,
              const std::function<void()>& reload);
    void remove(const QString& name);

private:
    PropertyListDictionary rules() const;

    UserDefaults& m_defaults;
};
