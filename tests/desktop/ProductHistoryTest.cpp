// SPDX-License-Identifier: MIT
// The built program killed at any moment, and what the next one knows of the time before. TICKLOG_KILLS says
// how often in all, TICKLOG_DESKS on how many desks; ctest -j has these side by side.
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/Product.h"
#include "tests/fakes/HistoryDiary.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <csignal>
#include <gtest/gtest.h>
#include <random>

namespace {

using namespace std::chrono_literals;

const QString kWriter = QStringLiteral("Writer");
// Seconds. The history is written this often.
constexpr double kMostMissing = 15;

class ProductHistoryTest : public testing::Test {
protected:
    QString history() const {
        return QFileInfo(product.databasePath()).path() + QStringLiteral("/History.sqlite");
    }

    // Keeps the writer in front. Answers for how long it was there.
    double write(std::chrono::milliseconds duration) {
        EXPECT_TRUE(product.bringToFront(writer, letter));
        return passTime(duration);
    }

    // The same with a new title now and then.
    double write(std::chrono::milliseconds duration, std::mt19937& random) {
        EXPECT_TRUE(product.bringToFront(writer, letter));
        double seconds = 0;
        while (seconds * 1000 < double(duration.count())) {
            writer.setTitle(letter, "Letter " + QByteArray(1, char('A' + random() % 26)));
            seconds += passTime(std::min(std::chrono::milliseconds(200 + random() % 4000),
                                         duration - std::chrono::milliseconds(qint64(seconds * 1000))));
        }
        return seconds;
    }

    double recorded() const {
        SqliteDatabase file(history(), SqliteDatabase::Mode::Read, 1000);
        SqliteQuery row(file,
                        "SELECT sum(length) FROM days JOIN programs ON programs.id = program WHERE name = ?",
                        kWriter);
        return row.next() ? double(row.integer(0)) / 1000 : 0;
    }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
    XClient writer{desk};
    xcb_window_t letter = 0;
    Lateness lateness;
};

int numberIn(const char* variable, int least) {
    return std::max(least, qEnvironmentVariableIntValue(variable));
}

class ProductKilledTest : public ProductHistoryTest, public testing::WithParamInterface<int> {};

TEST_P(ProductKilledTest, atAnyMoment_itMissesFifteenSecondsAtMostAndAddsNothingTwice) {
    product.writeSettings(Product::runningSettings());
    letter = writer.open({.title = "Letter", .className = "Writer"});
    std::mt19937 random(unsigned(7 + GetParam()));
    double known = 0;
    double missing = 0;
    double mostMissing = 0;
    const int kills = numberIn("TICKLOG_KILLS", 2) / numberIn("TICKLOG_DESKS", 1);
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        ASSERT_TRUE(product.start());
        // Some only after the first is written, some long after.
        const int least = kill % 2 ? 16'000 : 500;
        const double worked = write(std::chrono::milliseconds(least + random() % 9000), random);
        EXPECT_FALSE(product.end(SIGKILL)) << "it was to be killed";
        // A program that has just started saves when it is told to end.
        ASSERT_TRUE(product.start());
        EXPECT_EQ(product.end(SIGTERM), 0);
        const double now = product.applicationTimes().value(kWriter);
        const double off = 0.5 + lateness.seconds();
        EXPECT_GE(now - known, worked - kMostMissing - off) << "kill " << kill;
        EXPECT_LE(now - known, worked + off) << "kill " << kill;
        EXPECT_NEAR(recorded(), now, 0.2 * kill) << "kill " << kill;
        EXPECT_EQ(HistoryDiary::flaws(history()), QStringList()) << "kill " << kill;
        mostMissing = std::max(mostMissing, worked - (now - known));
        missing += worked - (now - known);
        known = now;
    }
    std::printf("%d kills, %.1f s were missing on average, %.1f s at most\n", kills, missing / kills,
                mostMissing);
}

INSTANTIATE_TEST_SUITE_P(Desks, ProductKilledTest, testing::Range(0, numberIn("TICKLOG_DESKS", 1)));

TEST_F(ProductHistoryTest, endedInGoodOrder_itKnowsAllOfIt) {
    product.writeSettings(Product::runningSettings());
    letter = writer.open({.title = "Letter", .className = "Writer"});
    ASSERT_TRUE(product.start());
    const double worked = write(2s);
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_NEAR(recorded(), worked, 0.5 + lateness.seconds());
}

} // namespace
