// SPDX-License-Identifier: MIT
#include "interface/outline/TKAppDisplayFormatter.h"

#include "Classes/store/TimeStoreNode.h"

#include <gtest/gtest.h>

namespace {

const PropertyListDictionary kPlain{{kRecordName, QStringLiteral("Letters")}};
const PropertyListDictionary kRenamed{{kRecordName, QStringLiteral("Browsing")},
                                      {kFormattedOriginal, QStringLiteral("Letters")}};

} // namespace

TEST(TKAppDisplayFormatter, aTimerAsItIs_isItsName) {
    EXPECT_EQ(TKAppDisplayFormatter::stringForObjectValue(kPlain), QStringLiteral("Letters"));
    EXPECT_EQ(TKAppDisplayFormatter::dimmedLength(kPlain), 0);
}

TEST(TKAppDisplayFormatter, aRenamedTimer_hasItsOldNameDimmedBehindADash) {
    EXPECT_EQ(TKAppDisplayFormatter::stringForObjectValue(kRenamed),
              QStringLiteral("Browsing \u2013 Letters"));
    EXPECT_EQ(TKAppDisplayFormatter::dimmedLength(kRenamed), 10);
}

TEST(TKAppDisplayFormatter, editing_offersTheNewNameAlone) {
    EXPECT_EQ(TKAppDisplayFormatter::editingStringForObjectValue(kRenamed), QStringLiteral("Browsing"));
}

TEST(TKAppDisplayFormatter, whatWasEntered_isARecordOfThatNameAlone) {
    const PropertyListDictionary record =
        TKAppDisplayFormatter::objectValueForString(QStringLiteral("Reading"));
    EXPECT_EQ(record, (PropertyListDictionary{{kRecordName, QStringLiteral("Reading")}}));
}

TEST(TKAppDisplayFormatter, whatIsNoRecord_isReturnedAsItIs) {
    for (const PropertyListValue& value :
         {PropertyListValue(), PropertyListValue(QStringLiteral("Letters")), PropertyListValue(7)}) {
        EXPECT_EQ(TKAppDisplayFormatter::stringForObjectValue(value), value);
        EXPECT_EQ(TKAppDisplayFormatter::editingStringForObjectValue(value), value);
    }
    EXPECT_EQ(TKAppDisplayFormatter::stringForObjectValue(PropertyListValue(kRenamed)).toString(),
              QStringLiteral("Browsing \u2013 Letters"));
}
