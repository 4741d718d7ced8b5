// SPDX-License-Identifier: MIT
// The built program killed at any moment, and what the next one knows of the time before. TICKLOG_KILLS says how often.
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
// The history is written that often.
constexpr double kMostMissing = 15;

class ProductHistoryTest : public testing::Test {
protected:
    QString history() const {
        return QFileInfo(product.databasePath()).path() + QStringLiteral("/History.sqlite");
    }

    // Keeps the writer in front. Answers for how long it was.
    double write(std::chrono::milliseconds duration) {
        EXPECT_TRUE(product.bringToFront(writer, letter));
        QElapsedTimer watch;
        watch.start();
        turnEventLoopFor(duration);
        return double(watch.nsecsElapsed()) / 1e9;
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

TEST_F(ProductHistoryTest, killedAtAnyMoment_itMissesFifteenSecondsAtMostAndAddsNothingTwice) {
    product.writeSettings(Product::runningSettings());
    letter = writer.open({.title = "Letter", .className = "Writer"});
    std::mt19937 random(7);
    double known = 0;
    const int kills = std::max(2, qEnvironmentVariableIntValue("TICKLOG_KILLS"));
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        ASSERT_TRUE(product.start());
        const double worked = write(16s + std::chrono::milliseconds(random() % 6000));
        EXPECT_FALSE(product.end(SIGKILL)) << "it was to be killed";
        // Who has just begun saves when it is told to end.
        ASSERT_TRUE(product.start());
        EXPECT_EQ(product.end(SIGTERM), 0);
        const double now = product.applicationTimes().value(kWriter);
        const double off = 0.5 + lateness.seconds();
        EXPECT_GE(now - known, worked - kMostMissing - off) << "kill " << kill;
        EXPECT_LE(now - known, worked + off) << "kill " << kill;
        EXPECT_NEAR(recorded(), now, 0.2 * kill) << "kill " << kill;
        EXPECT_EQ(HistoryDiary::flaws(history()), QStringList()) << "kill " << kill;
        known = now;
    }
}

TEST_F(ProductHistoryTest, endedInGoodOrder_itKnowsAllOfIt) {
    product.writeSettings(Product::runningSettings());
    letter = writer.open({.title = "Letter", .className = "Writer"});
    ASSERT_TRUE(product.start());
    const double worked = write(2s);
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_NEAR(recorded(), worked, 0.5 + lateness.seconds());
}

} // namespace
