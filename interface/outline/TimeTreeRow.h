// SPDX-License-Identifier: MIT
#pragma once

#include "interface/outline/TimeTreeModel.h"

// What stands between the model's indexes and the nodes. Indexes point at rows, not at nodes, because a node
// may be replaced by what stands for it while the row stays.
struct TimeTreeModel::Row {
    std::shared_ptr<TimeStoreItem> item;
    // Null for the root, which has no item.
    Row* parent = nullptr;
    int place = 0;
    std::vector<std::unique_ptr<Row>> children;
    // The second whose text is shown.
    double shownSecond = 0;
    // As the model last told it.
    bool isLeaf = true;
    // The children are there, if there are any.
    bool isFetched = false;
    // Its children are others than those told.
    bool isDirty = false;
    // Its children are to be sorted again.
    bool isDisordered = false;
    Subscription watching;
};
