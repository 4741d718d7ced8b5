// SPDX-License-Identifier: MIT
#include "interface/shell/FirstSize.h"
#include "tests/interface/Desk.h"

#include <gtest/gtest.h>

TEST(FirstSizeTest, aWindow_beginsNoLargerThanItsScreen) {
    QWidget window;
    const QSize room = window.screen()->availableSize();
    EXPECT_EQ(firstSize(window, {100, 80}), QSize(100, 80));
    const QSize huge = firstSize(window, room * 2);
    EXPECT_LT(huge.width(), room.width());
    EXPECT_LT(huge.height(), room.height());
}

TEST(FirstSizeTest, theMainWindow_fitsTheScreen) {
    Desk desk;
    // The test's screen is smaller than the window would like to be.
    const QSize room = desk.controller.window().screen()->availableSize();
    EXPECT_LT(desk.controller.window().width(), room.width());
    EXPECT_LT(desk.controller.window().height(), room.height());
    EXPECT_LE(desk.controller.window().minimumWidth(), room.width());
}
