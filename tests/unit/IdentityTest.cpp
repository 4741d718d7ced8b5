// SPDX-License-Identifier: MIT
#include "platform/foundation/values/Identity.h"

#include "tests/fakes/Announcements.h"

#include <gtest/gtest.h>

#include <unordered_set>

using namespace Qt::StringLiterals;

namespace {

TEST(Identity, aBrandNewOne_hasEightBytesOfARandomUuid) {
    std::unordered_set<Identity> seen;
    for (int i = 0; i < 10000; ++i) {
        const Identity identity = Identity::brandNew();
        EXPECT_EQ(identity.bytes().size(), 8);
        // The version of the UUID is in the upper half of its seventh byte.
        ASSERT_EQ(identity.bytes().at(6) & 0xF0, 0x40);
        seen.insert(identity);
    }
    EXPECT_EQ(seen.size(), 10000U);
    EXPECT_EQ(sizeof(Identity), 8U);
}

TEST(Identity, itsText_isTwoGroupsOfLowerCaseHexadecimal) {
    const auto identity = Identity::fromBytes(QByteArray::fromHex("0011AABBCCDDEEFF"));
    ASSERT_TRUE(identity);
    EXPECT_EQ(str(identity->text()), "<0011aabb ccddeeff>");
}

TEST(Identity, bytesOfAnotherLength_areNone) {
    for (const int length : {0, 1, 7, 9, 16})
        EXPECT_FALSE(Identity::fromBytes(QByteArray(length, 'x'))) << length;
}

TEST(Identity, itsBytes_comeBackAndCompareByValue) {
    const Identity identity = Identity::brandNew();
    EXPECT_EQ(Identity::fromBytes(identity.bytes()), identity);
    EXPECT_EQ(std::hash<Identity>()(*Identity::fromBytes(identity.bytes())), std::hash<Identity>()(identity));
    EXPECT_LT(*Identity::fromBytes("aaaaaaaa"), *Identity::fromBytes("aaaaaaab"));
    EXPECT_LT(*Identity::fromBytes("aaaaaaab"), *Identity::fromBytes("baaaaaaa"));
}

} // namespace
