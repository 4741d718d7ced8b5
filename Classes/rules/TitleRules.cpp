// SPDX-License-Identifier: MIT
#include "Classes/rules/TitleRules.h"

#include <algorithm>

namespace {

// How browsers end the titles of private windows, in the languages that Ticklog speaks, and what they call an empty one.
const QString kPrivateWindows =
    QStringLiteral("(Private Browsing|Privater Modus|Navigation privée|Navegación privada|Tryb prywatny|"
                   "プライベートブラウジング)\\)?$|\\((Incognito|Inkognito|InPrivate|Private|Privat)\\)$|"
                   "\\[InPrivate\\]|^New (Incognito|Private) Tab");

std::optional<QRegularExpression> expressionOf(const QString& text, bool isExpression) {
    if (text.isEmpty())
        return std::nullopt;
    return QRegularExpression(isExpression ? text : QRegularExpression::escape(text),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

} // namespace

TitleRules::TitleRules() {
    read({});
}

void TitleRules::read(const PropertyListValue& rules) {
    ++m_reading;
    m_rules.clear();
    const auto* records = rules.asArray();
    if (!records) {
        m_rules.push_back({{}, expressionOf(kPrivateWindows, true), Effect::LeaveOut, {}});
        return;
    }
    for (const PropertyListValue& entry : *records) {
        const auto* record = entry.asDictionary();
        const bool isAsleep = record && !record->value(kTitleRuleActive).isAbsent() &&
                              !record->value(kTitleRuleActive).toBool();
        if (record && !isAsleep)
            m_rules.push_back(ruleOf(*record));
    }
}

TitleRules::Rule TitleRules::ruleOf(const PropertyListDictionary& record) {
    const QString effect = record.value(kTitleRuleEffect).toString();
    Rule rule{
        record.value(kTitleRuleProgram).toString(),
        expressionOf(record.value(kTitleRuleTitle).toString(), record.value(kTitleRuleIsExpression).toBool()),
        Effect::LeaveOut, record.value(kTitleRuleReplacement).toString()};
    if (effect == QLatin1String("keep"))
        rule.effect = Effect::Keep;
    else if (effect == QLatin1String("replace"))
        rule.effect = Effect::Replace;
    if (rule.title && !rule.title->isValid()) {
        rule.title.reset();
        rule.effect = Effect::LeaveOut;
    }
    return rule;
}

QString TitleRules::allowed(const QString& program, const QString& title) const {
    for (const Rule& rule : m_rules) {
        if (!rule.program.isEmpty() && !program.contains(rule.program, Qt::CaseInsensitive))
            continue;
        if (rule.title && !rule.title->match(title).hasMatch())
            continue;
        switch (rule.effect) {
        case Effect::Keep:
            return title;
        case Effect::LeaveOut:
            return {};
        case Effect::Replace:
            return rule.replacement;
        }
    }
    return title;
}
