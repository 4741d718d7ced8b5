// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/RangeAnswer.h"

#include <QAbstractItemModel>

// The programs or the projects of a range as rows, with their titles or programs below them. A newer answer changes
// the rows that differ; the others stay, with what is selected and expanded. Rows have no order of their own.
class HistoryModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { NameColumn, TimeSpentColumn, ShareColumn, ColumnCount };
    enum Role {
        // What to sort by: a text, or a number of milliseconds.
        SortRole = Qt::UserRole,
        // Milliseconds.
        LengthRole,
        // Of 1.
        ShareRole,
        // The name of the program that the row is about; empty for projects and titles.
        ProgramRole,
    };

    explicit HistoryModel(QObject* parent = nullptr);
    ~HistoryModel() override;

    // `total` (milliseconds) is what shares are of. With `arePartsAsked`, the answer has no parts: partsWanted() asks
    // for them, row by row.
    void show(const std::vector<RangeAnswer::Entry>& entries, qint64 total, bool arePartsAsked);
    bool arePartsAsked() const { return m_arePartsAsked; }
    // Another range, search or project: parts that were asked for are not those of this one.
    void forgetParts();
    // The parts of one top row, which were asked for.
    void showParts(const QString& name, const std::vector<RangeAnswer::Entry>& parts);
    // Whether the top rows are projects and programs are below them, or programs and titles.
    void setByProject(bool isByProject);
    bool isByProject() const { return m_isByProject; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void partsWanted(const QString& name);

private:
    struct Row;
    using Rows = std::vector<std::unique_ptr<Row>>;

    Row* rowOf(const QModelIndex& index) const;
    // A title goes without the name of its program, which stands above it.
    QString shownName(const QModelIndex& index) const;
    Rows& rowsOf(const QModelIndex& parent);
    void change(const QModelIndex& parent, const std::vector<RangeAnswer::Entry>& entries);
    void removeMissing(const QModelIndex& parent, const std::vector<RangeAnswer::Entry>& entries);

    std::unique_ptr<Row> m_root;
    qint64 m_total = 0;
    bool m_arePartsAsked = false;
    bool m_isByProject = false;
};
