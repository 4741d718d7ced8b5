// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/rules/Ruleset.h"

#include <QAbstractTableModel>

#include <map>

// The rules as rows, in the order of their names: whether a rule is active, and what it says. Shows the settings as they
// were at the last reload; whoever changes them has the table reloaded. The defaults must outlive it.
class RulesTable : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Active, Description, kColumnCount };

    explicit RulesTable(UserDefaults& defaults);

    // Reads the settings afresh.
    void reload();
    // Whether the settings hold other rules than the rows.
    bool isOutdated() const;

    // The row must be there; std::out_of_range otherwise.
    const QString& name(int row) const;
    // -1 for a rule that has none.
    int row(const QString& name) const { return int(m_names.indexOf(name)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // Only whether a rule is active can be set, and that is remembered until the next reload: it is never written.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    bool isActive(const QString& name) const;

    UserDefaults& m_defaults;
    Ruleset m_ruleset;
    QStringList m_names;
    // What the rows were made from. Held, so that other rules cannot come to lie where these were.
    PropertyListValue m_shown;
    std::map<QString, bool> m_active;
};
