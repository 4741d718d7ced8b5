// SPDX-License-Identifier: MIT
// Rules for titles that are held over what was recorded before there were any.
#include "Classes/common/Settings.h"
#include "Classes/history/History.h"
#include "Classes/history/RuledTitles.h"
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/TKUUIDManager.h"
#include "tests/fakes/Day.h"
#include "tests/fakes/HistoryDiary.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

PropertyListDictionary rule(const char* program, const char* title, const char* effect, const char* by = "") {
    return {{kTitleRuleProgram, QString::fromUtf8(program)},
            {kTitleRuleTitle, QString::fromUtf8(title)},
            {kTitleRuleEffect, QString::fromUtf8(effect)},
            {kTitleRuleReplacement, QString::fromUtf8(by)}};
}

class RuledPastTest : public testing::Test {
protected:
    RuledPastTest() {
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
                        [](const std::function<void()>& run) { run(); });
        day.titleRules.read(PropertyListArray());
        day.fakes.idleTime.isBusy = true;
        day.start();
    }

    void hold(const PropertyListArray& rules) {
        day.titleRules.read(rules);
        std::optional<RuledPast> ruled;
        const auto reader = history->reader();
        history->finish();
        reader->ask<RuledPast>([rules](SqliteDatabase& file) { return RuledPast::of(file, rules); },
                               [&](const Result<RuledPast>& answer) { ruled = *answer; });
        day.fakes.runLoop.runPending();
        changed = ruled->changed;
        timers = day.tracker.countSayingMoreThan(ruled->past);
        gone = day.tracker.sayNoMoreThan(ruled->past);
        history->holdRules(PropertyListValue(rules), std::nullopt);
        EXPECT_TRUE(database.saveSettingsToDiskAtURL());
        history->finish();
        EXPECT_EQ(HistoryDiary::flaws(history->path()), QStringList());
        EXPECT_EQ(day.tracker.countSayingMoreThan(ruled->past), 0);
    }

    std::string sums() { return HistoryDiary::sums(history->path()); }

    // The names of files in the home in which a text stands.
    QStringList filesWith(const char* text) { return filesUnder(day.fakes.home.path(), text); }

    static QStringList filesUnder(const QString& folder, const char* text) {
        QStringList names;
        for (const QFileInfo& entry :
             QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
            if (entry.isDir()) {
                names += filesUnder(entry.filePath(), text);
                continue;
            }
            QFile file(entry.filePath());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            const QByteArray content = file.readAll();
            const QString wanted = QString::fromUtf8(text);
            const QByteArray wide(reinterpret_cast<const char*>(wanted.utf16()), wanted.size() * 2);
            if (content.contains(text) || content.contains(wide))
                names << entry.fileName();
        }
        return names;
    }

    Day day;
    TimeDatabase database{day.tracker, day.store, day.fakes.defaults, day.fakes.folders,
                          TimeDatabase::Hooks()};
    std::optional<History> history;
    RuledTitles changed;
    int timers = 0;
    std::unordered_set<Identity> gone;
};

TEST_F(RuledPastTest, aTitleThatIsLeftOut_isInNoFile_andItsProgramKeepsTheTime) {
    day.front("Browser", "Doctor Meier - Results");
    day.seconds(60);
    day.window("Cats");
    day.seconds(30);
    ASSERT_TRUE(database.saveSettingsToDiskAtURL());
    history->finish();
    day.fakes.defaults.synchronize();
    const QStringList before = filesWith("Doctor Meier");
    EXPECT_TRUE(before.contains(QStringLiteral("Primary Database.tkd")));
    EXPECT_TRUE(before.contains(QStringLiteral("History.sqlite")));
    hold({rule("", "doctor", "leave out")});
    EXPECT_EQ(filesWith("Doctor Meier"), QStringList());
    EXPECT_EQ(changed.titles, 1);
    EXPECT_EQ(changed.length, 60'000);
    EXPECT_EQ(timers, 1);
    EXPECT_EQ(gone.size(), 1U);
    EXPECT_EQ(day.tree(), "Browser 90 [Cats 30]");
    EXPECT_EQ(sums(), "Browser 60, Browser [Cats] 30");
}

TEST_F(RuledPastTest, aTitleThatIsReplaced_goesByTheOtherText_andKeepsItsTimer) {
    day.front("Mail", "Doctor Meier - Results");
    day.seconds(60);
    const auto identity = day.node("Mail", "Doctor Meier - Results").uuid();
    hold({rule("", "doctor", "replace", "Health")});
    EXPECT_EQ(day.tree(), "Mail 60 [Health 60]");
    EXPECT_EQ(day.node("Mail", "Health").uuid(), identity);
    EXPECT_EQ(sums(), "Mail [Health] 60");
    EXPECT_EQ(filesWith("Doctor"), QStringList());
    EXPECT_TRUE(gone.empty());
}

TEST_F(RuledPastTest, twoTitlesUnderOneText_areOneRow) {
    day.front("Mail", "Doctor Meier");
    day.seconds(60);
    day.window("Doctor Huber");
    day.seconds(30);
    hold({rule("", "doctor", "replace", "Health")});
    EXPECT_EQ(day.tree(), "Mail 90 [Health 90]");
    EXPECT_EQ(sums(), "Mail [Health] 90");
    EXPECT_EQ(filesWith("Doctor"), QStringList());
}

TEST_F(RuledPastTest, whatHasNobodysName_leavesItsTimeToPrivate) {
    day.front("Browser", "My bank");
    day.seconds(60);
    day.window("Cats");
    day.seconds(30);
    day.front("Diary", "Dear diary");
    day.seconds(10);
    day.front("Editor", "a.txt");
    day.seconds(5);
    hold({rule("Browser", "bank", "private"), rule("Diary", "", "private")});
    EXPECT_EQ(day.tree(), "Browser 30 [Cats 30], Editor 5 [a.txt 5], Private 70");
    EXPECT_EQ(sums(), "Browser [Cats] 30, Editor [a.txt] 5, Private 70");
    for (const char* name : {"My bank", "Dear diary", "Diary"})
        EXPECT_EQ(filesWith(name), QStringList()) << name;
}

TEST_F(RuledPastTest, aRowThatHasOnlyTheDocument_isKnownByItsWholeTitle) {
    day.front("Browser", "Bank account 4711 (Private Browsing)");
    day.seconds(60);
    day.window("News (Private Browsing)");
    day.seconds(10);
    day.window("News");
    day.seconds(5);
    hold(TitleRules::fromTheStart());
    EXPECT_EQ(day.tree(), "Browser 75 [News 15]") << "News was also what may be known";
    EXPECT_EQ(filesWith("4711"), QStringList());
}

TEST_F(RuledPastTest, aFrozenRow_isHiddenAsWell) {
    day.front("Browser", "Doctor Meier");
    day.seconds(60);
    day.freeze("Browser", "Doctor Meier");
    day.window("Cats");
    day.seconds(30);
    hold({rule("", "doctor", "leave out")});
    EXPECT_EQ(day.tree(), "Browser 90 [Cats 30]");
    EXPECT_EQ(filesWith("Doctor Meier"), QStringList());
}

TEST_F(RuledPastTest, theSameTitleOfAnotherProgram_staysInTheRegistry) {
    day.front("Browser", "Inbox");
    day.seconds(60);
    day.front("Mail", "Inbox");
    day.seconds(30);
    const auto identity = day.node("Mail", "Inbox").uuid();
    hold({rule("Browser", "inbox", "leave out")});
    EXPECT_EQ(day.tree(), "Browser 60, Mail 30 [Inbox 30]");
    EXPECT_EQ(day.registry.knownUUID(TimeStoreWindow::keyOf(QStringLiteral("Inbox"))), identity);
    EXPECT_TRUE(gone.empty()) << "it is the other's identity too";
}

TEST_F(RuledPastTest, whatWasDeleted_staysDeletedAndIsHidden) {
    day.front("Browser", "Doctor Meier");
    day.seconds(60);
    day.window("Cats");
    day.seconds(30);
    day.remove("Browser", "Doctor Meier");
    hold({rule("", "doctor", "leave out")});
    EXPECT_EQ(filesWith("Doctor Meier"), QStringList());
    SqliteDatabase file(history->path(), SqliteDatabase::Mode::Read, 0);
    EXPECT_EQ(file.number("SELECT sum(length) FROM stretches JOIN timers ON timers.id = timer WHERE deleted"),
              60'000);
}

TEST_F(RuledPastTest, idleTime_isNobodysTitle) {
    day.fakes.defaults.setObject(kMinutesUntilIdle, 1);
    day.fakes.idleTime.isBusy = false;
    day.front("Mail", "Inbox");
    day.seconds(10);
    day.idle(100);
    const std::string before = HistoryDiary::sums(history->path());
    hold({rule("Idle", "", "private")});
    EXPECT_NE(sums().find("Idle"), std::string::npos) << before;
    EXPECT_GT(day.secondsOf("Idle"), 0);
}

TEST_F(RuledPastTest, whatEachRuleMeets_isCountedFromADayOn) {
    day.front("Browser", "Doctor Meier");
    day.seconds(60);
    day.front("Mail", "Doctor Huber");
    day.seconds(30);
    history->finish();
    std::vector<RuledTitles> met;
    const auto ask = [&](QDate first) {
        const auto reader = history->reader();
        reader->ask<std::vector<RuledTitles>>(
            [first](SqliteDatabase& file) {
                return RuledTitles::metBy(
                    file, {rule("Mail", "", "keep"), rule("", "doctor", "leave out"), rule("", "x", "keep")},
                    first);
            },
            [&](const Result<std::vector<RuledTitles>>& answer) { met = *answer; });
        day.fakes.runLoop.runPending();
    };
    ask(QDate(2026, 1, 5));
    ASSERT_EQ(met.size(), 3U);
    EXPECT_EQ(met[0].length, 30'000);
    EXPECT_EQ(met[1].longest.at(0).title, QStringLiteral("Doctor Meier"));
    EXPECT_EQ(met[2].titles, 0);
    ask(QDate(2026, 1, 6));
    EXPECT_EQ(met[1].titles, 0);
}

} // namespace
