// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QRegularExpression>

#include <vector>

// The setting that holds the rules: a list of records. Absent, those that are there from the start hold.
inline const QString kTitleRules = QStringLiteral("kTKTitleRules");
// The entries of a record. Program and title are found as a part, whatever their case; what is absent or empty fits all.
inline const QString kTitleRuleProgram = QStringLiteral("Program");
inline const QString kTitleRuleTitle = QStringLiteral("Title");
// Whether the title is a regular expression.
inline const QString kTitleRuleIsExpression = QStringLiteral("Expression");
// "keep", "leave out", "replace" or "private"; anything else leaves out.
inline const QString kTitleRuleEffect = QStringLiteral("Effect");
inline const QString kTitleRuleReplacement = QStringLiteral("Replacement");
// A rule that says false is asleep.
inline const QString kTitleRuleActive = QStringLiteral("Active");

// What is credited where nobody's name may be known.
inline const QString kPrivateName = QStringLiteral("Private");

// What may be known of the titles of windows. The one place where titles come in: what is left out here is in no file.
class TitleRules {
public:
    enum class Effect : unsigned char { Keep, LeaveOut, Replace, Private };

    // Those for private windows of browsers.
    TitleRules();
    explicit TitleRules(const PropertyListValue& rules) { read(rules); }

    // The records of those that are there from the start.
    static PropertyListArray fromTheStart();
    // What a record says of itself, whether or not it holds.
    static Effect effectOf(const PropertyListDictionary& record);
    static bool isActive(const PropertyListDictionary& record);
    // What is wrong with its expression, in the words of who reads expressions; empty for none that is wrong.
    static QString faultOf(const PropertyListDictionary& record);

    // Reads the rules anew. Records of another type, and expressions that cannot be read, leave out what they fit in the
    // rest: a rule that is half understood hides too much, not too little.
    void read(const PropertyListValue& rules);
    // Grows with each reading.
    int reading() const { return m_reading; }

    // The title, another text in its place, or an empty one, as the first rule says that fits; without one, the title.
    // Absent where not even the program may be known.
    std::optional<QString> allowed(const QString& program, const QString& title) const;
    // Where in the list the rule stands that decides; absent for none.
    std::optional<std::size_t> deciding(const QString& program, const QString& title) const;
    // Whether a title is hidden by what it says, in one program or another.
    bool hidesSomewhere(const QString& title) const;

private:
    struct Rule {
        // In the list, with those that are asleep.
        std::size_t place;
        QString program;
        // Absent: any title.
        std::optional<QRegularExpression> title;
        Effect effect;
        QString replacement;
    };

    static Rule ruleOf(const PropertyListDictionary& record, std::size_t place);
    const Rule* ruleFor(const QString& program, const QString& title) const;

    std::vector<Rule> m_rules;
    int m_reading = 0;
};
