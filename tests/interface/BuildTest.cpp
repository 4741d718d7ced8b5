// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

TEST(Build, theProgramOfTests_runs) {
    EXPECT_FALSE(testing::UnitTest::GetInstance()->current_test_info()->is_in_another_shard());
}
