// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

#include <QtCore/qnamespace.h>

// What an outline asks of its model besides what every view asks.
namespace OutlineRole {

enum {
    // How many characters at the end of the shown text are to be dimmed; absent is 0.
    DimmedLength = Qt::UserRole,
    // The timer of the row, a std::shared_ptr<TimeStoreItem>; absent for rows that are no timers.
    Item,
};

} // namespace OutlineRole
