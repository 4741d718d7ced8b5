// SPDX-License-Identifier: MIT
#include "interface/preferences/RulesTable.h"

#include "Classes/rules/RuleCategories.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <stdexcept>

RulesTable::RulesTable(UserDefaults& defaults)
    : m_defaults(defaults)
    , m_ruleset(defaults) {
    reload();
}

bool RulesTable::isOutdated() const {
    return m_defaults.object(kRulesetKey).asDictionary() != m_shown.asDictionary();
}

void RulesTable::reload() {
    beginResetModel();
    m_shown = m_defaults.object(kRulesetKey);
    m_names = m_ruleset.names();
    m_active.clear();
    endResetModel();
}

void RulesTable::iconsChanged() {
    if (!m_names.isEmpty())
        Q_EMIT dataChanged(index(0, Description), index(rowCount() - 1, Description), {Qt::DecorationRole});
}

const QString& RulesTable::name(int row) const {
    if (row < 0 || row >= m_names.size())
        throw std::out_of_range("there is no rule in this row");
    return m_names[row];
}

int RulesTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_names.size());
}

int RulesTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumnCount;
}

bool RulesTable::isActive(const QString& name) const {
    if (const auto set = m_active.find(name); set != m_active.end())
        return set->second;
    return isActiveRule(m_ruleset.record(name));
}

QVariant RulesTable::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString& rule = m_names[index.row()];
    const auto description = [&] { return Ruleset::description(rule, m_ruleset.record(rule)); };
    if (index.column() == Description && role == Qt::ToolTipRole)
        return PlainText::toolTip(description());
    if (index.column() == Description && role == Qt::DecorationRole && m_iconOf) {
        const QPixmap icon = m_iconOf(rule);
        return icon.isNull() ? QVariant() : QVariant(icon);
    }
    if (index.column() == Description)
        return role == Qt::DisplayRole ? QVariant(description()) : QVariant();
    switch (role) {
    case Qt::CheckStateRole:
        return isActive(rule) ? Qt::Checked : Qt::Unchecked;
    case Qt::AccessibleTextRole:
        return QString(localized("Active") + QStringLiteral(": ") + description());
    default:
        return {};
    }
}

QVariant RulesTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Active ? localized("Active") : localized("Description");
}

bool RulesTable::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || index.column() != Active ||
        role != Qt::CheckStateRole)
        return false;
    m_active[m_names[index.row()]] = value.toInt() != Qt::Unchecked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags RulesTable::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return index.column() == Active ? flags | Qt::ItemIsUserCheckable : flags;
}
