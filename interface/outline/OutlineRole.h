// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/qnamespace.h>

// What an outline asks its model for beyond Qt's own roles.
namespace OutlineRole {

enum {
    // How many characters at the end of the text to dim; absent means 0.
    DimmedLength = Qt::UserRole,
    // The row's timer, a std::shared_ptr<TimeStoreItem>; absent for a row that is no timer.
    Item,
    // The part of the time of all top rows that a row has, 0 to 1; absent where there is none.
    Share,
};

} // namespace OutlineRole
