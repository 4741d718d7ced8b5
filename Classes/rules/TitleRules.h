// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/rules/TitlePattern.h"
#include "platform/foundation/files/UserDefaults.h"

#include <vector>

// The setting that holds the rules: a list of records. While it is absent, the built-in rules hold.
inline const QString kTitleRules = QStringLiteral("kTKTitleRules");
// The entries of a record, beside those of TitlePattern.
// "keep", "leave out", "replace" or "private"; any other value means "leave out".
inline const QString kTitleRuleEffect = QStringLiteral("Effect");
inline const QString kTitleRuleReplacement = QStringLiteral("Replacement");
// If this is false, the rule is not used.
inline const QString kTitleRuleActive = QStringLiteral("Active");

// The program that gets the time when the real one must not be known.
inline const QString kPrivateName = QStringLiteral("Private");

// Decides what may be recorded of window titles. All titles come in here and nowhere else, so what is left
// out here is in no file.
class TitleRules {
public:
    enum class Effect : unsigned char { Keep, LeaveOut, Replace, Private };

    // The built-in rules, for private windows of browsers.
    TitleRules();
    explicit TitleRules(const PropertyListValue& rules) { read(rules); }

    // The records of the built-in rules.
    static PropertyListArray fromTheStart();
    // The content of one record, whether the rule is valid or not.
    static Effect effectOf(const PropertyListDictionary& record);
    static bool isActive(const PropertyListDictionary& record);
    // The regular expression's error, in the library's words; empty if there is none.
    static QString faultOf(const PropertyListDictionary& record);

    // Reads the rules anew. If a record has the wrong type or an expression is invalid, that part is ignored
    // and the rule leaves out whatever the rest matches: a rule that is half understood must hide too much
    // rather than too little. So must one whose expression cannot be decided for a title.
    void read(const PropertyListValue& rules);
    // Grows with each call of read().
    int reading() const { return m_reading; }

    // The title, another text in its place, or an empty text, as the first rule that matches says. Without a
    // match, the title. Absent where not even the program may be known.
    std::optional<QString> allowed(const QString& program, const QString& title) const;
    // The position in the list of the rule that matches first; absent if none does.
    std::optional<std::size_t> deciding(const QString& program, const QString& title) const;
    // Whether some rule would hide this title, whatever the program.
    bool hidesSomewhere(const QString& title) const;

private:
    struct Rule {
        // The position in the list, counting inactive rules.
        std::size_t place;
        TitlePattern pattern;
        Effect effect;
        QString replacement;
    };

    struct Decision {
        const Rule& rule;
        Effect effect;
    };

    static Rule ruleOf(const PropertyListDictionary& record, std::size_t place);
    std::optional<Decision> decisionOn(const QString& program, const QString& title) const;

    std::vector<Rule> m_rules;
    int m_reading = 0;
};
