// SPDX-License-Identifier: MIT
#include "interface/preferences/TitleRulesTable.h"

#include "Classes/engine/TimeTracker.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QLocale>

namespace {

PropertyListArray rulesIn(const UserDefaults& defaults) {
    const PropertyListValue stored = defaults.object(kTitleRules);
    if (!stored.asArray())
        return TitleRules::fromTheStart();
    PropertyListArray rules = *stored.asArray();
    // Values that are no rules have no effect.
    std::erase_if(rules, [](const PropertyListValue& rule) { return !rule.asDictionary(); });
    return rules;
}

QString titleText(const PropertyListDictionary& rule) {
    const QString title = rule.value(kTitleRuleTitle).toString();
    if (title.isEmpty())
        return localized("Any");
    if (!TitleRules::faultOf(rule).isEmpty())
        return localized("This expression is wrong: %@").replace(QLatin1String("%@"), title);
    const PropertyListArray start = TitleRules::fromTheStart();
    if (title == start.front().asDictionary()->value(kTitleRuleTitle).toString())
        return localized("Private windows of browsers");
    return rule.value(kTitleRuleIsExpression).toBool() ? u'/' + title + u'/' : title;
}

} // namespace

TitleRulesTable::TitleRulesTable(UserDefaults& defaults)
    : m_defaults(defaults)
    , m_rules(rulesIn(defaults)) {}

void TitleRulesTable::reload() {
    PropertyListArray rules = rulesIn(m_defaults);
    if (rules == m_rules)
        return;
    beginResetModel();
    m_rules = std::move(rules);
    m_met.clear();
    endResetModel();
}

void TitleRulesTable::store(PropertyListArray rules) {
    m_defaults.setObject(kTitleRules, std::move(rules));
    reload();
}

void TitleRulesTable::put(int row, const PropertyListDictionary& rule) {
    PropertyListArray rules = m_rules;
    if (row >= 0 && std::size_t(row) < rules.size())
        rules[std::size_t(row)] = rule;
    else
        rules.emplace_back(rule);
    store(std::move(rules));
}

void TitleRulesTable::remove(int row) {
    PropertyListArray rules = m_rules;
    rules.erase(rules.begin() + row);
    store(std::move(rules));
}

void TitleRulesTable::exchange(int row, int other) {
    PropertyListArray rules = m_rules;
    std::swap(rules.at(std::size_t(row)), rules.at(std::size_t(other)));
    store(std::move(rules));
}

void TitleRulesTable::showMet(std::vector<RuledTitles> met) {
    m_met = std::move(met);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, Met), index(rowCount() - 1, Met));
}

const RuledTitles* TitleRulesTable::met(int row) const {
    return row >= 0 && std::size_t(row) < m_met.size() ? &m_met[std::size_t(row)] : nullptr;
}

QString TitleRulesTable::effectText(TitleRules::Effect effect) {
    switch (effect) {
    case TitleRules::Effect::Keep:
        return localized("Keep the title");
    case TitleRules::Effect::Replace:
        return localized("Replace the title");
    case TitleRules::Effect::Private:
        return localized("Count as “Private”");
    case TitleRules::Effect::LeaveOut:
        break;
    }
    return localized("Leave the title out");
}

int TitleRulesTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_rules.size());
}

int TitleRulesTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumnCount;
}

QString TitleRulesTable::text(int row, int column) const {
    const PropertyListDictionary& record = rule(row);
    switch (column) {
    case Program: {
        const QString program = record.value(kTitleRuleProgram).toString();
        return program.isEmpty() ? localized("Any") : program;
    }
    case Title:
        return titleText(record);
    case Effect: {
        const QString effect = effectText(TitleRules::effectOf(record));
        return TitleRules::effectOf(record) == TitleRules::Effect::Replace
                   ? effect + QStringLiteral(": ") + record.value(kTitleRuleReplacement).toString()
                   : effect;
    }
    case Met:
        if (const RuledTitles* titles = met(row); titles && titles->titles > 0)
            return QLocale().toString(qlonglong(titles->titles)) + QStringLiteral(" · ") +
                   TimeTracker::timeStringForDouble(double(titles->length) / 1000);
        return met(row) ? QLocale().toString(0) : QString();
    default:
        return {};
    }
}

QVariant TitleRulesTable::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (index.column() == Active && role == Qt::CheckStateRole)
        return TitleRules::isActive(rule(index.row())) ? Qt::Checked : Qt::Unchecked;
    if (index.column() == Active && role == Qt::AccessibleTextRole)
        return QString(localized("Active") + QStringLiteral(": ") + text(index.row(), Program) +
                       QStringLiteral(", ") + text(index.row(), Title) + QStringLiteral(", ") +
                       text(index.row(), Effect));
    if (role == Qt::DisplayRole)
        return PlainText::cut(text(index.row(), index.column()), PlainText::kLongestEntry);
    if (role == Qt::ToolTipRole)
        return PlainText::toolTip(text(index.row(), index.column()));
    return {};
}

QVariant TitleRulesTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Program:
        return localized("Program");
    case Title:
        return localized("Title");
    case Effect:
        return localized("Effect");
    case Met:
        return localized("Last 7 Days");
    default:
        return localized("Active");
    }
}

bool TitleRulesTable::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || index.column() != Active ||
        role != Qt::CheckStateRole)
        return false;
    PropertyListDictionary record = rule(index.row());
    record.insert(kTitleRuleActive, value.toInt() != Qt::Unchecked);
    PropertyListArray rules = m_rules;
    rules[std::size_t(index.row())] = std::move(record);
    // The row keeps its place, because the user has just clicked it.
    m_rules = rules;
    m_met.clear();
    Q_EMIT dataChanged(this->index(0, 0), this->index(rowCount() - 1, kColumnCount - 1));
    m_defaults.setObject(kTitleRules, std::move(rules));
    return true;
}

Qt::ItemFlags TitleRulesTable::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return index.column() == Active ? flags | Qt::ItemIsUserCheckable : flags;
}
