// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"
#include "interface/outline/OutlineRole.h"
#include "interface/outline/TimeTreeOrder.h"

#include <QAbstractItemModel>

// A tree of timers as rows: the tracker's applications, or the members of a project, among which there may be
// windows; beneath applications their windows once somebody looks. Follows what the nodes announce: a time
// redraws its cell when its text changes, which is once a second; everything else is gathered and told in
// ranges in the run loop's next turn, so that nothing is moved about while the tracker is in the middle of a
// change. Rows keep their nodes alive until then. The run loop must outlive it.
class TimeTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { ProgramColumn, TimeSpentColumn, ColumnCount };

    // Where the rows at the top come from: `items` answers them, and `observed` announces under `key` that
    // they are others. What `items` captures is kept until another source takes its place.
    struct Source {
        std::reference_wrapper<Observable> observed;
        ObservedKey key;
        std::function<TimeStoreItem::Children()> items;
    };

    // Renames a row as the user wants it.
    using Rename = std::function<void(const std::shared_ptr<TimeStoreItem>&, const QString& name)>;

    // Whether a row is read out as frozen; `isTopLevel` if it lies beneath no other.
    using IsFrozen = std::function<bool(TimeStoreItem&, bool isTopLevel)>;

    // Without a source there are no rows.
    TimeTreeModel(std::optional<Source> source, RunLoop& runLoop, Rename rename);
    ~TimeTreeModel() override;

    // What survives the tracker's search and cut-off. The tracker must outlive the model.
    static Source sourceOf(TimeTracker& tracker);
    // The children of a node, such as a project. Keeps the node.
    static Source sourceOf(std::shared_ptr<TimeStoreNode> node);
    // Shows the rows of another source: at once, or when somebody looks. Rows that are in both stay what they are,
    // unless most are others.
    void setSource(std::optional<Source> source);

    // Unless it is set, rows are read out as frozen when their timers are.
    void setIsFrozen(IsFrozen isFrozen) { m_isFrozen = std::move(isFrozen); }

    // While nobody sees the rows nothing is told and nothing is formatted; what was missed is made up for
    // afterwards.
    void setLive(bool isLive);
    // Tells what is gathered now.
    void synchronize();

    // Null for an index that is none of ours.
    std::shared_ptr<TimeStoreItem> item(const QModelIndex& index) const;
    // Forgets the rows beneath `parent` until somebody looks again.
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
    QString accessibleText(const Row& row) const;

    std::optional<Source> m_source;
    RunLoop& m_runLoop;
    Rename m_rename;
    IsFrozen m_isFrozen;
    TimeTreeOrder m_order;
    std::unique_ptr<Row> m_root;
    bool m_isLive = true;
    bool m_isTimeStale = false;
    bool m_isSynchronizing = false;
    bool m_isSynchronizeDue = false;
    Subscription m_sourceChanges;
};
