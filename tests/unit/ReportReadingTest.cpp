// SPDX-License-Identifier: MIT
// ticklog-report on a real history, compared with adding up every stretch.
#include "Classes/report/ReportReading.h"
#include "Classes/history/HistoryFile.h"
#include "Classes/projects/ProjectFile.h"
#include "Classes/projects/ProjectRecord.h"
#include "Classes/report/RecordedNames.h"
#include "Classes/report/ReportFormats.h"
#include "Classes/rules/RuleCategories.h"
#include "Classes/rules/Ruleset.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <ctime>
#include <random>

namespace {

constexpr qint64 kHour = 3'600'000;
const QDateTime kNow(QDate(2026, 6, 1), QTime(12, 0));
const Identity kMail = *Identity::fromBytes("mailmail");
const Identity kInbox = *Identity::fromBytes("inboxinb");

class ReportReadingTest : public testing::Test {
protected:
    ReportReadingTest() {
        m_folders.applicationSupport = m_folder.path();
        m_folders.settingsFile = m_folder.filePath(QStringLiteral("settings.plist"));
        m_folders.documents = m_folder.filePath(QStringLiteral("Documents"));
        QDir().mkpath(m_folders.documents);
    }

    void add(const HistoryRow& row) {
        SqliteTransaction transaction(m_file.database());
        m_file.add(row);
        transaction.commit();
    }

    static HistoryRow row(qint64 start, qint64 length, const QString& program, const QString& title,
                          const RowTimer& timer = {}) {
        return {start, length, 0, program, title, timer, RowPresence::Work};
    }

    ReportRequest request(const QStringList& arguments) const {
        const auto request = ReportRequest::parse(arguments, kNow, m_dayBegins);
        EXPECT_TRUE(request) << qPrintable(request ? QString() : request.failure().text);
        return *request;
    }

    QByteArray report(const QStringList& arguments) {
        const ReportRequest wanted = request(arguments + QStringList(QStringLiteral("--format=csv")));
        const RecordedNames names(m_file.database(), m_folders);
        Report report(wanted, names, m_dayBegins);
        readInto(report, m_file.database(), wanted, m_dayBegins);
        return ReportFormats::csv(report);
    }

    // The same without using the file's sums.
    QByteArray plainReport(const QStringList& arguments) {
        const ReportRequest wanted = request(arguments);
        const RecordedNames names(m_file.database(), m_folders);
        Report report(wanted, names, m_dayBegins);
        SqliteQuery each(m_file.database(),
                         "SELECT start, length, offset, program, title, timer, presence FROM stretches "
                         "ORDER BY start, n");
        while (each.next())
            report.add({each.integer(0), each.integer(1), int(each.integer(2)), each.integer(3),
                        each.integer(4), each.integer(5), RecordedStretch::Presence(each.integer(6))});
        return ReportFormats::csv(report);
    }

    QTemporaryDir m_folder;
    Folders m_folders;
    int m_dayBegins = 0;
    HistoryFile m_file{m_folder.filePath(QStringLiteral("History.sqlite"))};
};

TEST_F(ReportReadingTest, sumsOfDaysAndMonths_sayTheSameAsEveryStretch) {
    m_dayBegins = 4;
    m_file.setDayBegin(m_dayBegins);
    std::mt19937 random(20261120);
    const qint64 begin = QDateTime(QDate(2026, 1, 20), QTime(0, 0)).toMSecsSinceEpoch();
    SqliteTransaction transaction(m_file.database());
    for (qint64 hour = 0; hour < 100 * 24; ++hour) {
        if (random() % 3 == 0)
            continue;
        HistoryRow each = row(begin + hour * kHour + random() % 1000, random() % (kHour - 1000) + 1,
                              QStringLiteral("Program %1").arg(random() % 4),
                              QStringLiteral("Title %1").arg(random() % 30));
        each.presence = RowPresence(random() % 3);
        m_file.add(each);
    }
    transaction.commit();
    const QStringList moments{QStringLiteral("2026-01-01"),       QStringLiteral("2026-02-01"),
                              QStringLiteral("2026-02-03T10:20"), QStringLiteral("2026-03-17T03:59"),
                              QStringLiteral("2026-03-17"),       QStringLiteral("2026-04-01"),
                              QStringLiteral("2026-05-30T23:00")};
    for (const char* keys : {"app", "month", "day", "week app", "title", "hour", "app month", "stretch"})
        for (qsizetype from = 0; from < moments.size(); ++from)
            for (qsizetype to = from + 1; to < moments.size(); ++to)
                for (const char* presence : {"work", "all"}) {
                    QStringList arguments{QStringLiteral("--from"),     moments[from],
                                          QStringLiteral("--to"),       moments[to],
                                          QStringLiteral("--presence"), QString::fromLatin1(presence)};
                    for (const QString& key : QString::fromLatin1(keys).split(u' '))
                        arguments << QStringLiteral("--by") << key;
                    EXPECT_EQ(report(arguments).toStdString(), plainReport(arguments).toStdString())
                        << qPrintable(arguments.join(u' '));
                }
}

TEST_F(ReportReadingTest, aTimerThatIsDeleted_isLeftOut) {
    const qint64 nine = QDateTime(QDate(2026, 5, 4), QTime(9, 0)).toMSecsSinceEpoch();
    add(row(nine, 60'000, QStringLiteral("Mail"), QStringLiteral("Inbox"), {kMail, kInbox}));
    add(row(nine + 60'000, 30'000, QStringLiteral("Editor"), QStringLiteral("a.txt")));
    HistoryFile::Written written;
    HistoryBatch batch;
    batch.changes.emplace_back(HistoryChange::Deleted{{{kMail, kInbox}}, true});
    m_file.write(batch, written);
    for (const char* from : {"--from=2026-05-04", "--from=2026-01-01", "--from=2026-05-04T08:00"})
        EXPECT_EQ(report({QString::fromLatin1(from), QStringLiteral("--to=2026-06-01")}).toStdString(),
                  "app,seconds\r\nEditor,30\r\n");
}

TEST_F(ReportReadingTest, projectsAndRules_areTheUsersOwn) {
    const qint64 nine = QDateTime(QDate(2026, 5, 4), QTime(9, 0)).toMSecsSinceEpoch();
    add(row(nine, 60'000, QStringLiteral("Mail"), QStringLiteral("Inbox"), {kMail, kInbox}));
    add(row(nine + 60'000, 30'000, QStringLiteral("Game"), QStringLiteral("Level 1")));
    ProjectRecord project;
    project.setLabel(QStringLiteral("Meier"));
    project.addMembers({kInbox});
    ASSERT_TRUE(PropertyList::writeBinaryFile(PropertyListArray{project.entries()},
                                              ProjectFile::pathIn(m_folders.documents)));
    const auto rule = [](bool isBlocking, const char* name, const char* categories) {
        PropertyListDictionary record = Rule{.block = isBlocking,
                                             .enableRename = *name != 0,
                                             .rename = QString::fromUtf8(name),
                                             .categories = QString::fromUtf8(categories)}
                                            .record();
        record.insert(kRuleActive, true);
        return record;
    };
    PropertyListDictionary rules;
    rules.insert(QStringLiteral("Mail"), rule(false, "Letters", "office, talk"));
    rules.insert(QStringLiteral("Game"), rule(true, "", ""));
    PropertyListDictionary settings;
    settings.insert(kRulesetKey, rules);
    ASSERT_TRUE(PropertyList::writeXmlFile(settings, m_folders.settingsFile));
    const QStringList day{QStringLiteral("--from=2026-05-04"), QStringLiteral("--to=2026-05-05")};
    EXPECT_EQ(
        report(day + QStringList{QStringLiteral("--by=project"), QStringLiteral("--by=app")}).toStdString(),
        "project,app,seconds\r\nMeier,Letters,60\r\n");
    EXPECT_EQ(report(day + QStringList(QStringLiteral("--by=category"))).toStdString(),
              "category,seconds\r\noffice,60\r\ntalk,60\r\n");
}

TEST_F(ReportReadingTest, aFileThatNobodyHasOpen_isReadAndNothingIsLeftBesideIt) {
    const QString path = m_folder.filePath(QStringLiteral("50% of #1?.sqlite"));
    {
        HistoryFile file(path);
        SqliteTransaction transaction(file.database());
        file.add(row(kHour, 60'000, QStringLiteral("Mail"), QString()));
        transaction.commit();
        EXPECT_EQ(howToRead(path), SqliteDatabase::Mode::Read) << "its journal has what the file lacks";
    }
    const QStringList before = QDir(m_folder.path()).entryList(QDir::Files);
    {
        SqliteDatabase history(path, howToRead(path), 0);
        const SqliteTransaction reading(history);
        EXPECT_EQ(history.number("SELECT count(*) FROM stretches"), 1);
        EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), before);
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), before);
}

class ReportReadingInBerlinTest : public ReportReadingTest {
protected:
    ReportReadingInBerlinTest() {
        m_zone = qgetenv("TZ");
        qputenv("TZ", "Europe/Berlin");
        ::tzset();
    }
    ~ReportReadingInBerlinTest() override {
        if (m_zone.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", m_zone);
        ::tzset();
    }

    // Every minute of this many hours.
    void fill(QDate day, int hours) {
        const qint64 begin = QDateTime(day, QTime(0, 0), QTimeZone::utc()).toMSecsSinceEpoch();
        SqliteTransaction transaction(m_file.database());
        for (int hour = 0; hour < hours; ++hour) {
            HistoryRow each = row(begin + hour * kHour, kHour, QStringLiteral("Mail"), QString());
            each.offset = QDateTime::fromMSecsSinceEpoch(each.start).offsetFromUtc() / 60;
            m_file.add(each);
        }
        transaction.commit();
    }

    QByteArray m_zone;
};

TEST_F(ReportReadingInBerlinTest, aDayThatBeginsInTheHourTheClockSkipsOrRepeats_isWhole) {
    m_dayBegins = 2;
    m_file.setDayBegin(m_dayBegins);
    fill(QDate(2026, 3, 26), 120);
    fill(QDate(2026, 10, 22), 120);
    const std::pair<const char*, int> days[]{{"2026-03-27", 24}, {"2026-03-28", 24}, {"2026-03-29", 23},
                                             {"2026-10-23", 24}, {"2026-10-24", 24}, {"2026-10-25", 25}};
    for (const auto& [day, hours] : days) {
        const QString first = QString::fromLatin1(day);
        const QString next = QDate::fromString(first, Qt::ISODate).addDays(1).toString(Qt::ISODate);
        const auto total = [&] {
            return report({QStringLiteral("--from"), first, QStringLiteral("--to"), next}).toStdString();
        };
        EXPECT_EQ(total(), "app,seconds\r\nMail," + std::to_string(hours * 3600) + "\r\n") << day;
        for (const char* key : {"app", "day", "hour", "month"}) {
            const QStringList arguments{QStringLiteral("--from"), first,
                                        QStringLiteral("--to"),   next,
                                        QStringLiteral("--by"),   QString::fromLatin1(key)};
            EXPECT_EQ(report(arguments).toStdString(), plainReport(arguments).toStdString()) << day << key;
        }
    }
}

// What people say about the past, as other programs read it.
TEST_F(ReportReadingTest, whatWasAmended_isToldAsItIsNow) {
    const qint64 nine = QDateTime(kNow.date(), QTime(9, 0)).toMSecsSinceEpoch();
    add(row(nine, 600'000, QStringLiteral("Mail"), QStringLiteral("Inbox"), {kMail, kInbox}));
    ProjectRecord record;
    record.setLabel(QStringLiteral("Meier"));
    record.setHistoryIdentity(kMail);
    ASSERT_TRUE(PropertyList::writeBinaryFile(PropertyListArray{record.entries()},
                                              ProjectFile::pathIn(m_folders.documents)));
    HistoryBatch batch;
    batch.changes = {HistoryChange::Amended{{.kind = Amendment::Kind::Change,
                                             .pieces = {{nine, nine + 300'000}},
                                             .name = QStringLiteral("Meeting"),
                                             .project = RowProject{kMail},
                                             .projectName = QStringLiteral("Meier")},
                                            1},
                     HistoryChange::Amended{{.kind = Amendment::Kind::Book,
                                             .pieces = {{nine, nine + 1'200'000}},
                                             .name = QStringLiteral("By phone"),
                                             .project = RowProject{kMail}},
                                            2}};
    HistoryFile::Written written;
    m_file.write(batch, written);
    EXPECT_EQ(report({QStringLiteral("--by=stretch")}).replace("\r\n", "|").toStdString(),
              "start,end,app,title,project,presence,seconds|"
              "2026-06-01T09:00:00.000+00:00,2026-06-01T09:05:00.000+00:00,Mail,Meeting,Meier,work,300|"
              "2026-06-01T09:05:00.000+00:00,2026-06-01T09:10:00.000+00:00,Mail,Inbox,,work,300|"
              "2026-06-01T09:10:00.000+00:00,2026-06-01T09:20:00.000+00:00,By Hand,By phone,Meier,byhand,600|");
    EXPECT_EQ(report({QStringLiteral("--by=project")}).replace("\r\n", "|").toStdString(),
              "project,seconds|Meier,900|No project,300|");
    EXPECT_EQ(report({QStringLiteral("--project=Meier"), QStringLiteral("--by=day")}).replace("\r\n", "|"),
              "day,seconds|2026-06-01,900|");
}

} // namespace
