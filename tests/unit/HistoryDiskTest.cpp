// SPDX-License-Identifier: MIT
// The history on a disk that does not take it, and beside a file that it must not touch.
#include "tests/unit/HistoryScene.h"

namespace {

TEST_F(HistoryTest, onADiskThatTakesNothing_itWaitsAndIsTold) {
    Scene another;
    ASSERT_TRUE(QDir().mkdir(another.path()));
    another.launch();
    another.day.start();
    another.day.front("Mail", "Inbox");
    another.day.seconds(100);
    EXPECT_TRUE(another.day.trouble.text().contains(QLatin1String("History.sqlite")));
    ASSERT_TRUE(QDir().rmdir(another.path()));
    another.day.seconds(100);
    EXPECT_TRUE(another.day.trouble.text().isEmpty()) << qPrintable(another.day.trouble.text());
    EXPECT_EQ(another.diary(), "Mail [Inbox] 200");
}

TEST_F(HistoryTest, onADiskThatHangs_itWaitsAndIsTold) {
    day.start();
    day.front("Mail", "Inbox");
    scene.isHanging = true;
    day.seconds(300);
    EXPECT_EQ(scene.held.size(), 1U);
    EXPECT_TRUE(day.trouble.text().contains(QLatin1String("History.sqlite")));
    scene.isHanging = false;
    scene.held.front()();
    day.seconds(10);
    EXPECT_TRUE(day.trouble.text().isEmpty()) << qPrintable(day.trouble.text());
    EXPECT_EQ(scene.diary(), "Mail [Inbox] 310");
}

TEST_F(HistoryTest, whatWaits_isBounded) {
    Scene another;
    ASSERT_TRUE(QDir().mkdir(another.path()));
    another.launch();
    another.day.start();
    another.day.fakes.idleTime.isBusy = true;
    for (int i = 0; i < 25'000; ++i) {
        another.day.front(i % 2 ? "Mail" : "Editor", i % 3 ? "a" : "b");
        another.day.advance(0.3);
    }
    ASSERT_TRUE(QDir().rmdir(another.path()));
    another.history->finish();
    SqliteDatabase file(another.path(), SqliteDatabase::Mode::Read, 0);
    EXPECT_LE(file.number("SELECT count(*) FROM stretches"), 21'000);
    EXPECT_NEAR(double(file.number("SELECT sum(length) FROM stretches")), 25'000 * 300.0, 1000);
}

TEST_F(HistoryTest, aNewerVersionsFile_isToldAndLeftAlone) {
    day.start();
    day.front("Mail", "Inbox");
    day.seconds(40);
    scene.history->finish();
    Scene another(&scene);
    {
        SqliteDatabase file(another.path(), SqliteDatabase::Mode::ReadWrite, 0);
        file.execute("PRAGMA user_version = 99");
    }
    another.launch();
    EXPECT_TRUE(another.day.trouble.text().contains(QLatin1String("newer version")));
    another.day.start();
    another.day.front("Mail", "Inbox");
    another.day.seconds(40);
    another.history->finish();
    EXPECT_EQ(HistoryDiary::of(another.path()), "Mail [Inbox] 40");
}

} // namespace
