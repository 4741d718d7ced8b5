// SPDX-License-Identifier: MIT
#include "Classes/rules/TitleRules.h"

#include <algorithm>

namespace {

// How browsers end the titles of private windows, in Ticklog's languages, and how they call an empty private
// window.
const QString kPrivateWindows =
    QStringLiteral("(Private Browsing|Privater Modus|Navigation privée|Navegación privada|Tryb prywatny|"
                   "プライベートブラウジング)\\)?$|\\((Incognito|Inkognito|InPrivate|Private|Privat)\\)$|"
                   "\\[InPrivate\\]|^New (Incognito|Private) Tab");

} // namespace

TitleRules::TitleRules() {
    read({});
}

PropertyListArray TitleRules::fromTheStart() {
    return {PropertyListDictionary{{kTitleRuleTitle, kPrivateWindows},
                                   {kTitleRuleIsExpression, true},
                                   {kTitleRuleEffect, QStringLiteral("leave out")}}};
}

TitleRules::Effect TitleRules::effectOf(const PropertyListDictionary& record) {
    const QString effect = record.value(kTitleRuleEffect).toString();
    if (effect == QLatin1String("keep"))
        return Effect::Keep;
    if (effect == QLatin1String("replace"))
        return Effect::Replace;
    return effect == QLatin1String("private") ? Effect::Private : Effect::LeaveOut;
}

bool TitleRules::isActive(const PropertyListDictionary& record) {
    return record.value(kTitleRuleActive).isAbsent() || record.value(kTitleRuleActive).toBool();
}

QString TitleRules::faultOf(const PropertyListDictionary& record) {
    return TitlePattern(record).fault();
}

void TitleRules::read(const PropertyListValue& rules) {
    ++m_reading;
    m_rules.clear();
    const PropertyListArray start = rules.asArray() ? PropertyListArray() : fromTheStart();
    const PropertyListArray& records = rules.asArray() ? *rules.asArray() : start;
    for (std::size_t place = 0; place < records.size(); ++place)
        if (const auto* record = records[place].asDictionary(); record && isActive(*record))
            m_rules.push_back(ruleOf(*record, place));
}

TitleRules::Rule TitleRules::ruleOf(const PropertyListDictionary& record, std::size_t place) {
    Rule rule{place, TitlePattern(record), effectOf(record), record.value(kTitleRuleReplacement).toString()};
    if (!rule.pattern.fault().isEmpty())
        rule.effect = Effect::LeaveOut;
    return rule;
}

std::optional<TitleRules::Decision> TitleRules::decisionOn(const QString& program,
                                                           const QString& title) const {
    if (m_rules.empty())
        return std::nullopt;
    const SoughtTitle sought(title);
    for (const Rule& rule : m_rules) {
        const TitlePattern::Fit fit = rule.pattern.fit(program, sought);
        // The title may be one that a later rule hides.
        if (fit == TitlePattern::Fit::Unknown && rule.effect == Effect::Keep)
            return Decision{rule, Effect::LeaveOut};
        if (fit != TitlePattern::Fit::No)
            return Decision{rule, rule.effect};
    }
    return std::nullopt;
}

std::optional<QString> TitleRules::allowed(const QString& program, const QString& title) const {
    const auto decision = decisionOn(program, title);
    switch (decision ? decision->effect : Effect::Keep) {
    case Effect::LeaveOut:
        return QString();
    case Effect::Replace:
        return decision->rule.replacement;
    case Effect::Private:
        return std::nullopt;
    case Effect::Keep:
        break;
    }
    return title;
}

std::optional<std::size_t> TitleRules::deciding(const QString& program, const QString& title) const {
    const auto decision = decisionOn(program, title);
    return decision ? std::optional(decision->rule.place) : std::nullopt;
}

bool TitleRules::hidesSomewhere(const QString& title) const {
    const SoughtTitle sought(title);
    return std::ranges::any_of(m_rules, [&](const Rule& rule) {
        if (!rule.pattern.looksAtTitle())
            return false;
        const TitlePattern::Fit fit = rule.pattern.fitOfTitle(sought);
        return fit == TitlePattern::Fit::Unknown ||
               (fit == TitlePattern::Fit::Yes && rule.effect != Effect::Keep);
    });
}
