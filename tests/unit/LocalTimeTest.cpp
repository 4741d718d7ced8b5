// SPDX-License-Identifier: MIT
#include "platform/foundation/time/LocalTime.h"
#include "tests/fakes/Announcements.h"

#include <ctime>
#include <gtest/gtest.h>

namespace {

// "2026-03-29 03:30 +2"
std::string shown(QDate day, QTime time) {
    const QDateTime local = localTime(localInstant(day, time));
    return str(local.toString(QStringLiteral("yyyy-MM-dd hh:mm ")) +
               QString::asprintf("%+d", local.offsetFromUtc() / 3600));
}

class LocalTimeTest : public testing::Test {
protected:
    static void liveIn(const char* zone) {
        qputenv("TZ", zone);
        tzset();
    }

    LocalTimeTest() { liveIn("Europe/Berlin"); }

    ~LocalTimeTest() override {
        qunsetenv("TZ");
        tzset();
    }
};

TEST_F(LocalTimeTest, anOrdinaryTime_isThatTime) {
    EXPECT_EQ(shown(QDate(2026, 7, 1), QTime(19, 0)), "2026-07-01 19:00 +2");
    EXPECT_EQ(shown(QDate(2026, 3, 29), QTime(1, 59)), "2026-03-29 01:59 +1");
    EXPECT_EQ(shown(QDate(2026, 3, 29), QTime(3, 0)), "2026-03-29 03:00 +2");
    EXPECT_EQ(shown(QDate(2026, 10, 25), QTime(3, 0)), "2026-10-25 03:00 +1");
}

TEST_F(LocalTimeTest, aTimeThatIsLeftOut_isAsMuchLaterAsTheClockIsSetForth) {
    EXPECT_EQ(shown(QDate(2026, 3, 29), QTime(2, 30)), "2026-03-29 03:30 +2");
}

TEST_F(LocalTimeTest, aTimeThatComesTwice_isTheFirst) {
    EXPECT_EQ(shown(QDate(2026, 10, 25), QTime(2, 30)), "2026-10-25 02:30 +2");
}

TEST_F(LocalTimeTest, southOfTheEquator_theSameHoldsAtMidnight) {
    liveIn("America/Santiago");
    EXPECT_EQ(shown(QDate(2026, 9, 6), QTime(0, 15)), "2026-09-06 01:15 -3");
    EXPECT_EQ(shown(QDate(2026, 4, 4), QTime(23, 15)), "2026-04-04 23:15 -3");
}

} // namespace
