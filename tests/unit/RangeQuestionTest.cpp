// SPDX-License-Identifier: MIT
#include "Classes/report/RangeQuestion.h"

#include "Classes/history/HistoryFile.h"
#include "Classes/projects/ProjectFile.h"
#include "Classes/projects/ProjectRecord.h"
#include "Classes/report/Moment.h"
#include "Classes/rules/RuleCategories.h"
#include "Classes/rules/Ruleset.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include "tests/Places.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

using Kind = CalendarRange::Kind;

const QDate kToday(2026, 6, 10);
const Identity kMail = *Identity::fromBytes("mailmail");

QString textOf(const std::vector<RangeAnswer::Entry>& entries) {
    QStringList texts;
    for (const auto& entry : entries)
        texts << entry.name + QStringLiteral(" %1").arg(entry.length / 1000) +
                     (entry.parts.empty() ? QString() : QStringLiteral(" [%1]").arg(textOf(entry.parts)));
    return texts.join(QStringLiteral(", "));
}

QString textOf(const RangeAnswer& answer) {
    QString text = textOf(answer.programs) + QStringLiteral("; ") + textOf(answer.projects) +
                   QStringLiteral("; %1;").arg(answer.work);
    for (const auto& piece : answer.pieces)
        text += QStringLiteral(" %1+%2 %3 “%4” %5 %6")
                    .arg(piece.start)
                    .arg(piece.length)
                    .arg(piece.program, piece.title, piece.projects.join(u'/'))
                    .arg(int(piece.presence));
    for (const auto& bar : answer.bars)
        text += u' ' + bar.first.toString(Qt::ISODate) + u' ' + textOf(bar.programs) + u'/' +
                textOf(bar.projects);
    return text;
}

class RangeQuestionTest : public testing::Test {
protected:
    RangeQuestionTest() {
        m_folders.applicationSupport = m_folder.path();
        m_folders.settingsFile = m_folder.filePath(QStringLiteral("settings.plist"));
        m_folders.documents = m_folder.filePath(QStringLiteral("Documents"));
        QDir().mkpath(m_folders.documents);
    }

    static HistoryRow row(QDate day, int hour, int seconds, const char* program, const char* title,
                          const RowTimer& timer = {}, RowPresence presence = RowPresence::Work) {
        const QDateTime start(day, QTime(hour, 0));
        return {.start = start.toMSecsSinceEpoch(),
                .length = seconds * 1000,
                .offset = start.offsetFromUtc() / 60,
                .program = QString::fromUtf8(program),
                .title = QString::fromUtf8(title),
                .timer = timer,
                .presence = presence};
    }

    static void write(HistoryFile& file, const HistoryRow& row) {
        SqliteTransaction transaction(file.database());
        file.add(row);
        transaction.commit();
    }
    void write(const HistoryRow& row) { write(m_file, row); }

    RangeQuestion question(const CalendarRange& range) const {
        return {
            .days = range, .piece = {}, .search = {}, .project = {}, .folders = m_folders, .unwritten = {}};
    }
    RangeAnswer answer(const CalendarRange& range) { return question(range).answeredBy(m_file.database()); }

    QTemporaryDir m_folder;
    Folders m_folders;
    HistoryFile m_file{m_folder.filePath(QStringLiteral("History.sqlite"))};
};

TEST_F(RangeQuestionTest, aDay_hasProgramsTitlesAndEachStretch) {
    write(row(kToday, 9, 60, "Mail", "Inbox"));
    write(row(kToday, 10, 30, "Mail", ""));
    write(row(kToday, 11, 20, "Idle", "", {}, RowPresence::Idle));
    write(row(kToday.addDays(1), 9, 60, "Tomorrow", ""));
    const RangeAnswer day = answer(CalendarRange::span(kToday, kToday));
    EXPECT_EQ(textOf(day.programs), QStringLiteral("Mail 90 [Inbox 60]"));
    EXPECT_EQ(day.work, 90'000);
    ASSERT_EQ(day.pieces.size(), 3U);
    EXPECT_EQ(day.pieces[2].presence, RecordedStretch::Presence::Idle);
    EXPECT_TRUE(day.bars.empty());
}

TEST_F(RangeQuestionTest, projectsOfOneName_haveEachItsOwnTime) {
    const auto record = [](const char* label, const Identity& member) {
        return PropertyListValue(PropertyListDictionary{
            {kProjectLabel, QString::fromUtf8(label)}, {kProjectSubtree, PropertyListArray{member.bytes()}}});
    };
    const Identity draw = *Identity::fromBytes("drawdraw");
    const Identity plan = *Identity::fromBytes("planplan");
    ASSERT_TRUE(PropertyList::writeBinaryFile(
        PropertyListArray{record("Poster", kMail), record("Poster", draw), record("No project", plan)},
        ProjectFile::pathIn(m_folders.documents)));
    write(row(kToday, 9, 60, "Mail", "Inbox", {kMail, {}}));
    write(row(kToday, 10, 30, "Draw", "Sky", {draw, {}}));
    write(row(kToday, 11, 20, "Plan", "May", {plan, {}}));
    write(row(kToday, 12, 10, "Web", "News"));
    for (const auto kind : {Kind::Day, Kind::Week, Kind::Year}) {
        const RangeAnswer found = answer(CalendarRange::around(kind, kToday, Qt::Monday));
        EXPECT_EQ(found.ofProjects, (std::vector<qint64>{60'000, 30'000, 20'000}));
        EXPECT_EQ(found.ofNoProject, 10'000);
    }
}

TEST_F(RangeQuestionTest, aWeek_hasABarForEachDayWithWork) {
    write(row(kToday, 9, 60, "Mail", "Inbox"));
    write(row(kToday.addDays(-1), 9, 100, "Draw", ""));
    write(row(kToday.addDays(-1), 10, 50, "Mail", ""));
    const RangeAnswer week = answer(CalendarRange::around(Kind::Week, kToday, Qt::Monday));
    EXPECT_TRUE(week.pieces.empty());
    ASSERT_EQ(week.bars.size(), 2U);
    EXPECT_EQ(week.bars[0].first, kToday.addDays(-1));
    // The order of the whole range, so that colours lie on each other in the same order.
    EXPECT_EQ(textOf(week.bars[0].programs), QStringLiteral("Mail 50, Draw 100"));
    EXPECT_EQ(textOf(week.programs), QStringLiteral("Mail 110 [Inbox 60], Draw 100"));
}

TEST_F(RangeQuestionTest, barsOfLongRanges_areWeeksAndMonths) {
    write(row(QDate(2026, 1, 1), 9, 60, "Mail", ""));
    write(row(QDate(2026, 6, 10), 9, 60, "Mail", ""));
    const auto barsOf = [this](const CalendarRange& range) {
        QStringList firsts;
        for (const auto& bar : answer(range).bars)
            firsts << bar.first.toString(Qt::ISODate);
        return firsts.join(u' ');
    };
    EXPECT_EQ(barsOf(CalendarRange::span(QDate(2025, 12, 1), QDate(2026, 7, 1))),
              QStringLiteral("2025-12-29 2026-06-08"));
    EXPECT_EQ(barsOf(CalendarRange::around(Kind::Year, kToday, Qt::Monday)),
              QStringLiteral("2026-01-01 2026-06-01"));
}

TEST_F(RangeQuestionTest, titlesOfALongRange_areAskedForByProgram) {
    write(row(kToday, 9, 60, "Mail", "Inbox"));
    write(row(kToday.addDays(-90), 9, 100, "Mail", "Sent"));
    write(row(kToday, 10, 50, "Draw", "Poster"));
    write(row(kToday, 11, 50, "Mail", ""));
    const RangeQuestion year = question(CalendarRange::around(Kind::Year, kToday, Qt::Monday));
    EXPECT_FALSE(year.hasTitles());
    EXPECT_EQ(textOf(year.answeredBy(m_file.database()).programs), QStringLiteral("Mail 210, Draw 50"));
    EXPECT_EQ(textOf(year.titlesOf(QStringLiteral("Mail"), m_file.database())),
              QStringLiteral("Sent 100, Inbox 60"));
}

TEST_F(RangeQuestionTest, aPieceOfADay_cutsWhatReachesOutOfIt) {
    write(row(kToday, 9, 3600, "Mail", "Inbox"));
    RangeQuestion piece = question(CalendarRange::span(kToday, kToday));
    const qint64 nine = QDateTime(kToday, QTime(9, 0)).toMSecsSinceEpoch();
    piece.piece = {nine + 600'000, nine + 900'000};
    EXPECT_EQ(textOf(piece.answeredBy(m_file.database()).programs), QStringLiteral("Mail 300 [Inbox 300]"));
}

// However much of it is not in the file yet, or is there with another length.
TEST_F(RangeQuestionTest, whatIsNotWrittenYet_makesNoDifference) {
    ProjectRecord record;
    record.setLabel(QStringLiteral("Meier"));
    record.addMembers({kMail});
    ASSERT_TRUE(PropertyList::writeBinaryFile(PropertyListArray{record.entries()},
                                              ProjectFile::pathIn(m_folders.documents)));
    std::mt19937 random(7);
    const auto below = [&](int limit) { return int(random() % std::uint32_t(limit)); };
    for (int round = 0; round < 20; ++round) {
        HistoryFile whole(m_folder.filePath(QStringLiteral("whole%1").arg(round)));
        HistoryFile part(m_folder.filePath(QStringLiteral("part%1").arg(round)));
        std::vector<HistoryRow> unwritten;
        const int written = 40 + below(40);
        // One wait for the disk, not one for each row.
        SqliteTransaction wholeRows(whole.database());
        SqliteTransaction partRows(part.database());
        for (int i = 0; i < 96; ++i) {
            const char* programs[] = {"Mail", "Draw", "Notes"};
            const char* titles[] = {"", "Inbox", "Plan"};
            const HistoryRow each =
                row(kToday.addDays(i / 24 - 3), i % 24, 1 + below(3000), programs[below(3)], titles[below(3)],
                    below(2) ? RowTimer{.application = kMail, .window = {}} : RowTimer(),
                    below(5) ? RowPresence::Work : RowPresence::Idle);
            whole.add(each);
            if (i < written)
                part.add(each);
            if (i < written - 3)
                continue;
            unwritten.push_back(each);
            // The file has the last ones, but shorter.
            if (i < written)
                sqliteRun(part.database(), "UPDATE stretches SET length = 500 WHERE start = ?", each.start);
        }
        wholeRows.commit();
        partRows.commit();
        for (const CalendarRange& range :
             {CalendarRange::span(kToday, kToday), CalendarRange::around(Kind::Week, kToday, Qt::Monday),
              CalendarRange::around(Kind::Year, kToday, Qt::Monday)}) {
            RangeQuestion asked = question(range);
            const QString expected = textOf(asked.answeredBy(whole.database()));
            asked.unwritten = unwritten;
            EXPECT_EQ(textOf(asked.answeredBy(part.database())), expected);
        }
    }
}

struct AmendedRangeTest : RangeQuestionTest {
    AmendedRangeTest() { writeProjects({QStringLiteral("Meier"), QStringLiteral("Huber")}); }

    // Each with an identity for the history; all have the mails as a member.
    void writeProjects(const QStringList& names) {
        PropertyListArray records;
        for (const QString& name : names) {
            ProjectRecord record;
            record.setLabel(name);
            record.addMembers({kMail});
            record.setHistoryIdentity(identities.at(name));
            records.push_back(record.entries());
        }
        ASSERT_TRUE(PropertyList::writeBinaryFile(records, ProjectFile::pathIn(m_folders.documents)));
    }

    void amend(const Amendment& what) {
        HistoryFile::Written written;
        HistoryBatch batch;
        batch.changes = {HistoryChange::Amended{what, ++made}};
        m_file.write(batch, written);
    }
    void give(int hour, int seconds, const QString& project) {
        const auto identity = identities.find(project);
        amend({.kind = Amendment::Kind::Change,
               .pieces = {{at(hour), at(hour) + seconds * 1000}},
               .project = RowProject{identity != identities.end() ? identity->second : std::nullopt},
               .projectName = project});
    }

    static qint64 at(int hour) { return QDateTime(kToday, QTime(hour, 0)).toMSecsSinceEpoch(); }
    // All that can be asked agrees.
    QString projects() {
        const QString day = textOf(answer(CalendarRange::span(kToday, kToday)).projects);
        for (const CalendarRange& range : {CalendarRange::around(Kind::Week, kToday, Qt::Monday),
                                           CalendarRange::around(Kind::Year, kToday, Qt::Monday)}) {
            EXPECT_EQ(textOf(answer(range).projects), day);
            EXPECT_EQ(answer(range).bars.front().projects.front().length,
                      answer(range).projects.front().length);
        }
        return day;
    }

    std::map<QString, std::optional<Identity>> identities{
        {QStringLiteral("Meier"), Identity::fromBytes("meiermei")},
        {QStringLiteral("Huber"), Identity::fromBytes("huberhub")},
        {QStringLiteral("Schmidt"), Identity::fromBytes("meiermei")}};
    qint64 made = at(20);
};

TEST_F(AmendedRangeTest, whatIsGivenToAProject_isThatProjectsAlone) {
    write(row(kToday, 9, 600, "Mail", "Inbox", {kMail, {}}));
    write(row(kToday, 10, 60, "Draw", "Poster"));
    EXPECT_EQ(projects(),
              QStringLiteral("Huber 600 [Mail 600], Meier 600 [Mail 600], No project 60 [Draw 60]"));
    give(9, 200, QStringLiteral("Meier"));
    give(10, 60, QStringLiteral("Huber"));
    EXPECT_EQ(projects(), QStringLiteral("Meier 600 [Mail 600], Huber 460 [Mail 400, Draw 60]"));
    give(9, 600, QStringLiteral("No project"));
    EXPECT_EQ(projects(), QStringLiteral("No project 600 [Mail 600], Huber 60 [Draw 60]"));
}

TEST_F(AmendedRangeTest, aRenamedProject_keepsWhatItWasGiven_aDeletedOneDoesNot) {
    write(row(kToday, 10, 60, "Draw", "Poster"));
    give(10, 60, QStringLiteral("Meier"));
    writeProjects({QStringLiteral("Schmidt")});
    EXPECT_EQ(projects(), QStringLiteral("Schmidt 60 [Draw 60]"));
    writeProjects({QStringLiteral("Huber")});
    EXPECT_EQ(projects(), QStringLiteral("No project 60 [Draw 60]"));
    identities[QStringLiteral("Meier")].reset();
    writeProjects({QStringLiteral("Meier")});
    EXPECT_EQ(projects(), QStringLiteral("Meier 60 [Draw 60]")) << "found by its name";
}

TEST_F(AmendedRangeTest, aPiece_saysWhatItWasBefore) {
    write(row(kToday, 9, 600, "Mail", "Inbox", {kMail, {}}));
    write(row(kToday, 10, 60, "Draw", "Poster"));
    amend({.kind = Amendment::Kind::Change,
           .pieces = {{at(9), at(9) + 300'000}},
           .name = QStringLiteral("Meeting")});
    amend({.kind = Amendment::Kind::Book,
           .pieces = {{at(11), at(12)}},
           .name = QStringLiteral("By phone"),
           .project = RowProject{identities.at(QStringLiteral("Meier"))}});
    const RangeAnswer day = answer(CalendarRange::span(kToday, kToday));
    ASSERT_EQ(day.pieces.size(), 4U);
    ASSERT_TRUE(day.pieces[0].amended);
    EXPECT_TRUE(day.pieces[0].amended->wasWork);
    EXPECT_EQ(day.pieces[0].amended->titles, QStringList(QStringLiteral("Inbox")));
    EXPECT_EQ(day.pieces[0].amended->made, at(20) + 1);
    EXPECT_FALSE(day.pieces[1].amended);
    EXPECT_FALSE(day.pieces[2].amended);
    ASSERT_TRUE(day.pieces[3].amended);
    EXPECT_FALSE(day.pieces[3].amended->wasWork);
    EXPECT_EQ(day.pieces[3].presence, RecordedStretch::Presence::ByHand);
    EXPECT_EQ(day.pieces[3].projects, QStringList(QStringLiteral("Meier")));
    EXPECT_EQ(textOf(day.programs),
              QStringLiteral(
                  "By Hand 3600 [By phone 3600], Mail 600 [Inbox 300, Meeting 300], Draw 60 [Poster 60]"));
    EXPECT_FALSE(day.programs[1].parts[0].isNamedByHand);
    EXPECT_TRUE(day.programs[1].parts[1].isNamedByHand);
    EXPECT_TRUE(day.programs[0].parts[0].isNamedByHand);
    const auto year = question(CalendarRange::around(Kind::Year, kToday, Qt::Monday));
    EXPECT_TRUE(year.titlesOf(kByHandName, m_file.database())[0].isNamedByHand);
}

TEST_F(AmendedRangeTest, rowsThatAreChosen_haveTheirTimes) {
    write(row(kToday, 9, 600, "Mail", "Inbox", {kMail, {}}));
    write(row(kToday, 10, 60, "Draw", "Poster"));
    write(row(kToday, 11, 60, "Mail", "Inbox"));
    write(row(kToday, 12, 60, "Mail", "Sent"));
    const auto times = [&](const RowChoice& choice) {
        QStringList texts;
        for (const auto& [from, to] :
             question(CalendarRange::span(kToday, kToday)).timesOf({choice}, m_file.database()).pieces)
            texts << QStringLiteral("%1+%2").arg((from - at(0)) / 3'600'000).arg((to - from) / 1000);
        return texts.join(u' ');
    };
    EXPECT_EQ(times({false, QStringLiteral("Mail"), {}}), QStringLiteral("9+600 11+60 12+60"));
    EXPECT_EQ(times({false, QStringLiteral("Mail"), QStringLiteral("Inbox")}), QStringLiteral("9+600 11+60"));
    EXPECT_EQ(times({true, QStringLiteral("Meier"), {}}), QStringLiteral("9+600"));
    EXPECT_EQ(times({true, kNoProject, QStringLiteral("Mail")}), QStringLiteral("11+60 12+60"));
}

TEST_F(AmendedRangeTest, aStretchThatReachesOutOfTheRange_isMeantAsAWhole) {
    for (int hour = 9; hour < 12; ++hour)
        write(row(kToday, hour, 3600, "Mail", "Inbox", {kMail, {}}));
    RangeQuestion piece = question(CalendarRange::span(kToday, kToday));
    piece.piece = {at(10), at(10) + 60'000};
    const auto whole =
        piece.wholeStretch(at(10) + 1000, QStringLiteral("Mail"), QStringLiteral("Inbox"), m_file.database());
    ASSERT_EQ(whole.pieces.size(), 1U);
    EXPECT_EQ(whole.pieces[0].from, at(9));
    EXPECT_EQ(whole.pieces[0].to, at(12));
    EXPECT_TRUE(whole.only.empty());
}

// The clock was set back: without names, a piece of time would mean whoever else was in front in it.
TEST_F(AmendedRangeTest, whereStretchesLieOverEachOther_theChosenOnesAreTold) {
    const PropertyListDictionary rule{
        {kRuleActive, true}, {kRuleEnableRename, true}, {kRuleRename, QStringLiteral("Letters")}};
    const PropertyListDictionary rules{{QStringLiteral("Mail"), rule}};
    ASSERT_TRUE(
        PropertyList::writeBinaryFile(PropertyListDictionary{{kRulesetKey, rules}}, m_folders.settingsFile));
    write(row(kToday, 9, 600, "Mail", "Inbox"));
    write(row(kToday, 9, 60, "Draw", "Poster"));
    write(row(kToday, 9, 30, "Draw", ""));
    const auto names = [](const ChosenTimes& times) {
        QStringList texts;
        for (const auto& [program, title] : times.only)
            texts << program + u'/' + title;
        return texts.join(u' ');
    };
    const RangeQuestion today = question(CalendarRange::span(kToday, kToday));
    EXPECT_EQ(names(today.timesOf({{false, QStringLiteral("Letters"), {}}}, m_file.database())),
              QStringLiteral("Mail/Inbox"));
    const auto all = today.timesOf({}, m_file.database());
    EXPECT_EQ(names(all), QStringLiteral("Mail/Inbox Draw/Poster Draw/"));
    ASSERT_EQ(all.pieces.size(), 1U);
    EXPECT_EQ(all.pieces[0].to - all.pieces[0].from, 600'000);
    EXPECT_EQ(names(today.wholeStretch(at(9) + 10, QStringLiteral("Draw"), QString(), m_file.database())),
              QStringLiteral("Draw/"));
    RangeQuestion later = today;
    later.unwritten = {row(kToday, 9, 660, "Mail", "Sent"), row(kToday, 9, 5, "Draw", "Sketch")};
    EXPECT_EQ(names(later.timesOf({{false, QStringLiteral("Letters"), {}}}, m_file.database())),
              QStringLiteral("Mail/Sent"))
        << "as it is in the rows that are newer than the file";
}

TEST_F(AmendedRangeTest, whatIsFree_isFreeOfAllWork) {
    write(row(kToday, 9, 1800, "Writer", ""));
    write(row(kToday, 9, 1800, "Browser", ""));
    write(row(kToday, 9, 3600, "Idle", "", {}, RowPresence::Idle));
    write(row(kToday, 12, 600, "Writer", ""));
    RangeQuestion morning = question(CalendarRange::span(kToday, kToday));
    morning.piece = {at(9), at(10)};
    EXPECT_EQ(morning.freeIn(m_file.database()), 1'800'000);
    morning.piece = {at(9), at(13)};
    EXPECT_EQ(morning.freeIn(m_file.database()), 4 * 3'600'000 - 2'400'000);
}

// A file that Ticklog has not opened since: ticklog-report and the window read it.
TEST_F(AmendedRangeTest, aFileOfTheFirstForm_isReadAsItIs) {
    const QString path = m_folder.filePath(QStringLiteral("old.sqlite"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(TICKLOG_SOURCE_DIR "/tests/data/history/1.sqlite"), path));
    SqliteDatabase old(path, SqliteDatabase::Mode::Read, 0);
    const QDate day = QDateTime::fromMSecsSinceEpoch(old.number("SELECT min(start) FROM stretches")).date();
    EXPECT_EQ(textOf(question(CalendarRange::span(day, day)).answeredBy(old).projects),
              QStringLiteral("Huber 60 [Mail 60], Meier 60 [Mail 60], No project 30 [Editor 30]"));
}

} // namespace
