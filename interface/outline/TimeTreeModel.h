// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"
#include "interface/outline/TimeTreeOrder.h"

#include <QAbstractItemModel>

// A tree of timers as rows: the tracker's applications, or the members of a project, which may be windows.
// The windows of an application become rows when a view asks for them.
//
// It follows what the nodes announce. A time redraws its cell when its text changes, once a second. All other
// changes are gathered and told in ranges in the next turn of the run loop, so that no row moves while the
// tracker is in the middle of a change. Until then rows keep their nodes alive. The run loop must outlive the
// model.
class TimeTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { ProgramColumn, TimeSpentColumn, ColumnCount };

    // Where the top rows come from: `items` answers them, and `observed` announces under `key` that they have
    // changed. The model keeps what `items` captures until it gets another source.
    struct Source {
        std::reference_wrapper<Observable> observed;
        ObservedKey key;
        std::function<TimeStoreItem::Children()> items;
    };

    // Renames a row as the user asks.
    using Rename = std::function<void(const std::shared_ptr<TimeStoreItem>&, const QString& name)>;

    // What only pictures show of a row, in words for assistive programs. `isTopLevel`: it is not below another
    // row.
    using Marks = std::function<QStringList(TimeStoreItem&, bool isTopLevel)>;

    // The name that is shown; `above` is the timer of the row above it, null for a top row.
    using ShownName = std::function<QString(TimeStoreItem&, TimeStoreItem* above)>;

    // Without a source there are no rows. Without `marks`, a row has none. Without `shownName`, names are shown whole.
    TimeTreeModel(std::optional<Source> source, RunLoop& runLoop, Rename rename, Marks marks = {},
                  ShownName shownName = {});
    ~TimeTreeModel() override;

    // What the tracker's search and cut-off leave. The tracker must outlive the model.
    static Source sourceOf(TimeTracker& tracker);
    // The children of a node, such as a project. Keeps the node alive.
    static Source sourceOf(std::shared_ptr<TimeStoreNode> node);
    // Shows the rows of another source, at once or when the model is next live. Rows that are in both sources
    // stay the same rows, unless most differ.
    void setSource(std::optional<Source> source);

    // Set it to false while nobody sees the rows: then nothing is told and nothing formatted. Catches up when
    // set to true.
    void setLive(bool isLive);
    // Tells all gathered changes now.
    void synchronize();

    // Null for an index of another model.
    std::shared_ptr<TimeStoreItem> item(const QModelIndex& index) const;
    // Forgets the rows below `parent` until a view asks for them again.
    void releaseChildren(const QModelIndex& parent);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    struct Row;

    Row* rowOf(const QModelIndex& index) const;
    QModelIndex indexOf(const Row& row, int column = ProgramColumn) const;
    std::unique_ptr<Row> makeRow(std::shared_ptr<TimeStoreItem> item, Row& parent);

    void nodeChanged(Row& row, ObservedKey key);
    void timeChanged(Row& row);
    void nameChanged(Row& row);
    void scheduleSynchronize();
    bool isOutOfPlace(const Row& row) const;

    void synchronizeApplication(Row& app);
    void synchronizeChildren(Row& parent, TimeStoreItem::Children wanted);
    TimeStoreItem::Children keepWanted(Row& parent, TimeStoreItem::Children wanted);
    void insertChildren(Row& parent, TimeStoreItem::Children items);
    void insertRange(Row& parent, int first, std::vector<std::unique_ptr<Row>> rows);
    void removeRange(Row& parent, int first, int last);
    void reorder(Row& parent);
    void moveRow(Row& parent, int from, int to);
    void reorderAll(const std::vector<Row*>& parents);
    void refreshTimes(Row& parent);

    TimeStoreItem::Children wantedItems() const;
    bool isMostlyShown(const TimeStoreItem::Children& items) const;
    QString shownName(const Row& row) const;
    QVariant share(const Row& row) const;
    QString accessibleText(const Row& row) const;

    std::optional<Source> m_source;
    RunLoop& m_runLoop;
    Rename m_rename;
    Marks m_marks;
    ShownName m_shownName;
    TimeTreeOrder m_order;
    std::unique_ptr<Row> m_root;
    // The time of all top rows; absent when it must be added up anew.
    mutable std::optional<Seconds> m_total;
    bool m_isLive = true;
    bool m_isTimeStale = false;
    bool m_isSynchronizing = false;
    bool m_isSynchronizeDue = false;
    Subscription m_sourceChanges;
};
