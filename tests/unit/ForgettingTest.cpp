// SPDX-License-Identifier: MIT
// Forgetting parts of the history: what is found before it is forgotten, and when a day begins.
#include "Classes/common/Settings.h"
#include "Classes/history/History.h"
#include "Classes/history/HistoryFinding.h"
#include "Classes/record/TimeDatabase.h"
#include "tests/fakes/Day.h"
#include "tests/fakes/HistoryDiary.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

class ForgettingTest : public testing::Test {
protected:
    ForgettingTest() {
        EXPECT_TRUE(QDir().mkpath(day.fakes.folders.applicationSupport));
        database.loadMainStore();
        history.emplace(History::Services{.tracker = day.tracker,
                                          .database = database,
                                          .trouble = day.trouble,
                                          .notifications = day.fakes.notifications,
                                          .defaults = day.fakes.defaults,
                                          .runLoop = day.fakes.runLoop,
                                          .clock = day.fakes.clock,
                                          .log = day.fakes.log},
                        work);
        day.fakes.idleTime.isBusy = true;
        day.start();
    }

    // A day at the desk, from 9:00 UTC.
    void work3() {
        day.front("Browser", "Doctor Meier - Results");
        day.seconds(60);
        day.front("Browser", "Cats");
        day.seconds(30);
        day.front("Mail", "From the DOCTOR");
        day.seconds(10);
        history->finish();
    }

    // "12 s: Browser [Cats] 12"
    std::string found(const HistoryChange::Forgotten& what) {
        const auto reader = history->reader();
        QString text = QStringLiteral("unanswered");
        reader->ask<HistoryFinding>([what](SqliteDatabase& file) { return HistoryFinding::of(file, what); },
                                    [&](const Result<HistoryFinding>& answer) {
                                        if (!answer) {
                                            text = QStringLiteral("unreadable");
                                            return;
                                        }
                                        text = QStringLiteral("%1 s:").arg(double(answer->length) / 1000);
                                        for (const HistorySum& sum : answer->longest)
                                            text += QStringLiteral(" %1 [%2] %3")
                                                        .arg(sum.program, sum.title)
                                                        .arg(double(sum.length) / 1000);
                                    });
        day.fakes.runLoop.runPending();
        return text.toStdString();
    }

    static HistoryChange::Forgotten withTitle(const char* part) {
        return {.program = {}, .title = QString::fromUtf8(part), .from = {}, .to = {}, .isTitlePart = true};
    }

    std::int64_t now() const {
        return std::chrono::floor<std::chrono::milliseconds>(day.fakes.clock.now())
            .time_since_epoch()
            .count();
    }

    std::int64_t numberOf(const char* sql) {
        history->finish();
        SqliteDatabase file(history->path(), SqliteDatabase::Mode::Read, 0);
        return file.number(sql);
    }

    Day day;
    TimeDatabase database{day.tracker, day.store, day.fakes.defaults, day.fakes.folders,
                          TimeDatabase::Hooks()};
    BackgroundMove::Background work = [](const std::function<void()>& run) { run(); };
    std::optional<History> history;
};

TEST_F(ForgettingTest, whatContainsAText_isFoundWhateverItsCase_andForgotten) {
    work3();
    EXPECT_EQ(found(withTitle("doctor")),
              "70 s: Browser [Doctor Meier - Results] 60 Mail [From the DOCTOR] 10");
    history->forget(withTitle("doctor"));
    history->finish();
    EXPECT_EQ(HistoryDiary::of(history->path()), "Browser [Cats] 30");
    EXPECT_EQ(HistoryDiary::flaws(history->path()), QStringList());
    EXPECT_FALSE(HistoryDiary::holdsText(history->path(), QStringLiteral("Meier")));
    EXPECT_FALSE(HistoryDiary::holdsText(history->path(), QStringLiteral("DOCTOR")));
    EXPECT_EQ(found(withTitle("doctor")), "0 s:");
}

TEST_F(ForgettingTest, aProgramAndARange_areFoundToTheMillisecond) {
    const std::int64_t begin = now();
    work3();
    HistoryChange::Forgotten what{
        .program = QStringLiteral("Browser"), .title = {}, .from = begin + 20'500, .to = begin + 70'000};
    EXPECT_EQ(found(what), "49.5 s: Browser [Doctor Meier - Results] 39.5 Browser [Cats] 10");
    history->forget(what);
    history->finish();
    EXPECT_EQ(HistoryDiary::of(history->path()),
              "Browser [Doctor Meier - Results] 20.5, Browser [Cats] 20, Mail [From the DOCTOR] 10");
    EXPECT_EQ(HistoryDiary::flaws(history->path()), QStringList());
}

TEST_F(ForgettingTest, aProgramThatIsNotThere_isNotFound) {
    work3();
    EXPECT_EQ(found({.program = QStringLiteral("Editor"), .title = {}, .from = {}, .to = {}}), "0 s:");
}

TEST_F(ForgettingTest, whoAsksAnew_isNotToldWhatWasAskedBefore) {
    std::vector<std::function<void()>> held;
    work3();
    HistoryReader reader(day.fakes.runLoop, history->path(),
                         [&](std::function<void()> run) { held.push_back(std::move(run)); });
    QStringList told;
    const auto ask = [&](const QString& name) {
        reader.ask<int>([](SqliteDatabase&) { return 1; },
                        [&told, name](const Result<int>&) { told << name; });
    };
    ask(QStringLiteral("first"));
    ask(QStringLiteral("second"));
    ask(QStringLiteral("third"));
    for (std::size_t i = 0; i < held.size(); ++i) {
        held[i]();
        day.fakes.runLoop.runPending();
    }
    EXPECT_EQ(told, QStringList(QStringLiteral("third")));
    EXPECT_EQ(held.size(), 2U);
}

TEST_F(ForgettingTest, withoutAFile_thereIsAnAnswerAllTheSame) {
    day.fakes.defaults.setObject(kHistoryDays, -1);
    day.seconds(1);
    EXPECT_EQ(found(withTitle("doctor")), "unreadable");
    EXPECT_EQ(history->obstacle(), QStringLiteral("No history is kept."));
    day.fakes.defaults.setObject(kHistoryDays, 0);
    EXPECT_EQ(history->obstacle(), QString());
}

TEST_F(ForgettingTest, theHourAtWhichDaysBegin_isASettingThatHoldsForThePastAsWell) {
    work3();
    EXPECT_EQ(numberOf("SELECT min(day) FROM days"), 20260105);
    day.fakes.defaults.setObject(kHistoryDayBegins, 12);
    EXPECT_EQ(numberOf("SELECT max(day) FROM days"), 20260104);
    EXPECT_EQ(numberOf("SELECT value FROM settings"), 12);
    day.front("Editor", "a.txt");
    day.seconds(20);
    EXPECT_EQ(numberOf("SELECT max(day) FROM days"), 20260104);
    EXPECT_EQ(HistoryDiary::flaws(history->path()), QStringList());
    day.fakes.defaults.setObject(kHistoryDayBegins, 4711);
    EXPECT_EQ(numberOf("SELECT value FROM settings"), 23) << "no clock has that hour";
}

TEST_F(ForgettingTest, aFileThatComesNew_hasTheHourOfTheSettings) {
    day.fakes.defaults.setObject(kHistoryDayBegins, 4);
    day.fakes.defaults.setObject(kHistoryDays, -1);
    day.seconds(1);
    day.fakes.defaults.setObject(kHistoryDays, 0);
    work3();
    EXPECT_EQ(numberOf("SELECT value FROM settings"), 4);
}

} // namespace
