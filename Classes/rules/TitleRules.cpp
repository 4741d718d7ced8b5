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

const TitleRules::Rule* TitleRules::ruleFor(const QString& program, const QString& title) const {
    const auto rule =
        std::ranges::find_if(m_rules, [&](const Rule& each) { return each.pattern.fits(program, title); });
    return rule == m_rules.end() ? nullptr : &*rule;
}

std::optional<QString> TitleRules::allowed(const QString& program, const QString& title) const {
    const Rule* rule = ruleFor(program, title);
    switch (rule ? rule->effect : Effect::Keep) {
    case Effect::LeaveOut:
        return QString();
    case Effect::Replace:
        return rule->replacement;
    case Effect::Private:
        return std::nullopt;
    case Effect::Keep:
        break;
    }
    return title;
}

std::optional<std::size_t> TitleRules::deciding(const QString& program, const QString& title) const {
    const Rule* rule = ruleFor(program, title);
    return rule ? std::optional(rule->place) : std::nullopt;
}

bool TitleRules::hidesSomewhere(const QString& title) const {
    return std::ranges::any_of(m_rules, [&](const Rule& rule) {
        return rule.effect != Effect::Keep && rule.pattern.looksAtTitle() && rule.pattern.fitsTitle(title);
    });
}
