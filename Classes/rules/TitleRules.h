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
// "keep", "leave out" or "replace"; anything else leaves out.
inline const QString kTitleRuleEffect = QStringLiteral("Effect");
inline const QString kTitleRuleReplacement = QStringLiteral("Replacement");
// A rule that says false is asleep.
inline const QString kTitleRuleActive = QStringLiteral("Active");

// What may be known of the titles of windows. The one place where titles come in: what is left out here is in no file.
class TitleRules {
public:
    // Those for private windows of browsers.
    TitleRules();

    // Reads the rules anew. Records of another type, and expressions that cannot be read, leave out what they fit in the
    // rest: a rule that is half understood hides too much, not too little.
    void read(const PropertyListValue& rules);
    // Grows with each reading.
    int reading() const { return m_reading; }

    // The title, another text in its place, or nothing, as the first rule says that fits; without one, the title.
    QString allowed(const QString& program, const QString& title) const;

private:
    enum class Effect { Keep, LeaveOut, Replace };
    struct Rule {
        QString program;
        // Absent: any title.
        std::optional<QRegularExpression> title;
        Effect effect;
        QString replacement;
    };

    static Rule ruleOf(const PropertyListDictionary& record);

    std::vector<Rule> m_rules;
    int m_reading = 0;
};
