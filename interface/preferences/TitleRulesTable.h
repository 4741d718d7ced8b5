// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/RuledTitles.h"

#include <QAbstractTableModel>

// The rules for titles as rows, in the order in which they are tried: whether each is active, what it
// matches, what it does, and what it matched in the last days. Changes are stored at once. The settings
// outlive it.
class TitleRulesTable : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Active, Program, Title, Effect, Met, kColumnCount };

    explicit TitleRulesTable(UserDefaults& defaults);

    // As in the settings; the built-in rules if there are none.
    const PropertyListArray& rules() const { return m_rules; }
    const PropertyListDictionary& rule(int row) const { return *m_rules[std::size_t(row)].asDictionary(); }
    // Reads the settings again if they have changed.
    void reload();
    // Replaces the rule in this row, or appends it behind the last row.
    void put(int row, const PropertyListDictionary& rule);
    void remove(int row);
    // Exchanges two rows.
    void exchange(int row, int other);
    // By the position of the rules; empty while it is not known.
    void showMet(std::vector<RuledTitles> met);
    // Null while it is not known.
    const RuledTitles* met(int row) const;

    static QString effectText(TitleRules::Effect effect);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void store(PropertyListArray rules);
    QString text(int row, int column) const;

    UserDefaults& m_defaults;
    PropertyListArray m_rules;
    std::vector<RuledTitles> m_met;
};
