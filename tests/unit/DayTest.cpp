// SPDX-License-Identifier: MIT
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

namespace {

TEST(Day, aMorningsWork_readsAsItWasTold) {
    Day day;
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    day.window("Drafts");
    day.seconds(5);
    day.front("Editor");
    day.seconds(1);
    EXPECT_EQ(day.tree(), "Editor 1, Mail 45 [Drafts 5, Inbox 40]");
}

} // namespace
