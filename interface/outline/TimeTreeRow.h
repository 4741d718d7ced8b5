// SPDX-License-Identifier: MIT
#pragma once

#include "interface/outline/TimeTreeModel.h"

// One row, between the model's indexes and the nodes. Indexes point to rows rather than nodes, because a row
// stays while its node may be replaced by a proxy for it.
struct TimeTreeModel::Row {
    std::shared_ptr<TimeStoreItem> item;
    // Null for the root, which has no item.
    Row* parent = nullptr;
    int place = 0;
    std::vector<std::unique_ptr<Row>> children;
    // The second that the shown text stands for.
    double shownSecond = 0;
    // As the model last told its views.
    bool isLeaf = true;
    // The children have been asked for.
    bool isFetched = false;
    // The children have changed since they were told.
    bool isDirty = false;
    // The children must be sorted again.
    bool isDisordered = false;
    Subscription watching;
};
