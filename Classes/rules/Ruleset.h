// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QStringList>

// The entries of a rule's record; its categories are in RuleCategories.h.
inline const QString kRuleBlock = QStringLiteral("Block");
inline const QString kRuleRename = QStringLiteral("Rename");
inline const QString kRuleEnableRename = QStringLiteral("EnableRename");
inline const QString kRuleActive = QStringLiteral("Active");

// What a user wants of one application. What is missing in a record, or of another kind, is false or empty.
struct Rule {
    static Rule fromRecord(const PropertyListValue& record);
    // Without "Active": a rule that is saved is active.
    PropertyListDictionary record() const;

    bool block = false;
    bool enableRename = false;
    QString rename = {};
    // As typed, with commas between them.
    QString categories = {};
};

// The rules by application name. They are in the settings and nowhere else, and read afresh each time. Names are told
// apart exactly, and sorted whatever their case.
class Ruleset {
public:
    // The defaults outlive the ruleset.
    explicit Ruleset(UserDefaults& defaults)
        : m_defaults(defaults) {}

    QStringList names() const;
    // Empty for a rule that there is not.
    PropertyListDictionary record(const QString& name) const;
    // "Mail ⇒ Work (office, letters)".
    static QString description(const QString& name, const PropertyListDictionary& record);

    // Stores the rule under `name`, which may be empty, in place of the one it was made from, if any. `reload` is called
    // before anything is written, deliberately: who rereads the rules then still finds the old ones, and learns of the
    // new ones by the change of the settings.
    void save(const std::optional<QString>& originalName, const QString& name, const Rule& rule,
              const std::function<void()>& reload);
    void remove(const QString& name);
    // Puts a record back, or in place of another.
    void setRecord(const QString& name, const PropertyListDictionary& record);

private:
    PropertyListDictionary rules() const;

    UserDefaults& m_defaults;
};
