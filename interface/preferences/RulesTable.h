// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/rules/Ruleset.h"

#include <QAbstractTableModel>
#include <QPixmap>

#include <functional>
#include <map>

// The rules as rows, sorted by name: whether a rule is active, and what it says. Shows the settings as of the
// last reload(); whoever changes them must reload the table. The settings must outlive it.
class RulesTable : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Active, Description, kColumnCount };

    explicit RulesTable(UserDefaults& defaults);

    // The icon of a rule's program; null for none, or while it is looked for. Without it there are none.
    using IconOf = std::function<QPixmap(const QString& rule)>;
    void setIcons(IconOf iconOf) { m_iconOf = std::move(iconOf); }
    // Icons were found, or are no longer wanted.
    void iconsChanged();

    // Reads the settings afresh.
    void reload();
    // Whether the settings now hold other rules than the rows show.
    bool isOutdated() const;

    // Throws std::out_of_range for a row that does not exist.
    const QString& name(int row) const;
    // -1 for a rule without a row.
    int row(const QString& name) const { return int(m_names.indexOf(name)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // Only "active" can be set. It is kept until the next reload and never written.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    bool isActive(const QString& name) const;

    UserDefaults& m_defaults;
    IconOf m_iconOf;
    Ruleset m_ruleset;
    QStringList m_names;
    // The value that the rows were made from. Kept, so that new rules cannot have the same address.
    PropertyListValue m_shown;
    std::map<QString, bool> m_active;
};
