// SPDX-License-Identifier: MIT
// What ticklog-report makes of stretches, and what it understands on its command line.
#include "Classes/report/ReportFormats.h"
#include "platform/foundation/text/Translations.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QTimeZone>

namespace {

const QDateTime kNow(QDate(2026, 11, 20), QTime(18, 0), QTimeZone::utc());

// Numbers are positions in lists.
class Names : public ReportNames {
public:
    std::optional<QString> program(qint64 number) const override {
        const QString name = programs[number];
        return name == QLatin1String("Blocked") ? std::nullopt : std::optional(name);
    }
    QString title(qint64 number) const override { return titles[number]; }
    QStringList projectsOf(qint64 timer, qint64, qint64) const override { return projects.value(timer); }
    QStringList categoriesOf(qint64 program) const override { return categories.value(program); }

    QStringList programs;
    QStringList titles;
    QMap<qint64, QStringList> projects;
    QMap<qint64, QStringList> categories;
};

class ReportTest : public testing::Test {
protected:
    // A stretch that begins at this time on 20 November, UTC.
    void add(const char* time, double seconds, const char* program, const char* title,
             RecordedStretch::Presence presence = RecordedStretch::Presence::Work) {
        const QDateTime start(QDate(2026, 11, 20), QTime::fromString(QString::fromLatin1(time)),
                              QTimeZone::utc());
        m_stretches.push_back({start.toMSecsSinceEpoch(), qint64(seconds * 1000), m_offset,
                               numberIn(m_names.programs, program), numberIn(m_names.titles, title),
                               numberIn(m_timers, QByteArray(program) + '/' + title), presence});
    }

    void addToProject(const char* program, const char* title, const char* project) {
        m_names.projects[numberIn(m_timers, QByteArray(program) + '/' + title)] << QString::fromUtf8(project);
    }

    std::string report(const QStringList& arguments) const {
        const auto request =
            ReportRequest::parse(QStringList{QStringLiteral("--from"), QStringLiteral("2026-11-20"),
                                             QStringLiteral("--to"), QStringLiteral("2026-11-21")} +
                                     arguments,
                                 kNow, m_dayBegins);
        if (!request)
            return request.failure().text.toStdString();
        Report report(*request, m_names, m_dayBegins);
        for (const RecordedStretch& stretch : m_stretches)
            report.add(stretch);
        return ReportFormats::text(report, request->format, kNow).toStdString();
    }

    std::string csv(const QString& arguments = {}) const {
        QStringList words = arguments.split(u' ', Qt::SkipEmptyParts);
        return QString::fromStdString(report(words << QStringLiteral("--format") << QStringLiteral("csv")))
            .replace(QLatin1String("\r\n"), QLatin1String("|"))
            .toStdString();
    }

    static qint64 numberIn(QStringList& list, const QByteArray& text) {
        if (!list.contains(QString::fromUtf8(text)))
            list << QString::fromUtf8(text);
        return list.indexOf(QString::fromUtf8(text));
    }

    Names m_names;
    QStringList m_timers;
    std::vector<RecordedStretch> m_stretches;
    int m_offset = 0;
    int m_dayBegins = 0;
};

TEST_F(ReportTest, programs_areSummedTheMostFirst) {
    add("09:00:00", 60, "Mail", "Inbox");
    add("09:01:00", 100, "Editor", "a.txt");
    add("09:05:00", 50, "Mail", "Drafts");
    EXPECT_EQ(csv(), "app,seconds|Mail,110|Editor,100|");
    EXPECT_EQ(csv(QStringLiteral("--by title --by app")),
              "title,app,seconds|a.txt,Editor,100|Inbox,Mail,60|Drafts,Mail,50|");
}

TEST_F(ReportTest, hours_areSortedByTimeAndCutAtTheirEnds) {
    add("09:59:00", 3720, "Mail", "Inbox");
    EXPECT_EQ(csv(QStringLiteral("--by hour")),
              "hour,seconds|2026-11-20T09,60|2026-11-20T10,3600|2026-11-20T11,60|");
    EXPECT_EQ(csv(QStringLiteral("--by month --by week --by day")),
              "month,week,day,seconds|2026-11,2026-W47,2026-11-20,3720|");
}

TEST_F(ReportTest, days_areThoseOfTheClockOnTheWall) {
    m_offset = 60;
    add("22:59:00", 120, "Mail", "Inbox");
    EXPECT_EQ(csv(QStringLiteral("--by day")), "day,seconds|2026-11-20,60|2026-11-21,60|");
}

TEST_F(ReportTest, aDayThatBeginsLater_hasTheNightOfTheDayBefore) {
    m_dayBegins = 4;
    add("04:00:00", 60, "Mail", "Inbox");
    add("23:00:00", 5 * 3600 + 60, "Mail", "Inbox");
    EXPECT_EQ(csv(QStringLiteral("--by day")), "day,seconds|2026-11-20,18060|");
    EXPECT_EQ(csv(QStringLiteral("--by day --to 2026-11-22")), "day,seconds|2026-11-20,18060|2026-11-21,60|");
}

TEST_F(ReportTest, whatIsPartlyInTheRange_isCountedInPart) {
    add("09:00:00", 3600, "Mail", "Inbox");
    EXPECT_EQ(csv(QStringLiteral("--from 2026-11-20T09:30 --to 2026-11-20T09:40")), "app,seconds|Mail,600|");
}

TEST_F(ReportTest, projects_haveWhatTheirTimersHaveAndTheRestIsInNone) {
    add("09:00:00", 60, "Mail", "Inbox");
    add("09:01:00", 100, "Editor", "a.txt");
    add("09:03:00", 7, "Editor", "b.txt");
    addToProject("Editor", "a.txt", "Meier");
    addToProject("Editor", "a.txt", "Books");
    EXPECT_EQ(csv(QStringLiteral("--by project")), "project,seconds|Books,100|Meier,100|No project,67|");
    EXPECT_EQ(csv(QStringLiteral("--by app --project Meier")), "app,seconds|Editor,100|");
    EXPECT_EQ(csv(QStringLiteral("--by project --project Meier")), "project,seconds|Meier,100|");
    EXPECT_EQ(
        report({QStringLiteral("--project"), QStringLiteral("No project"), QStringLiteral("--format=csv")}),
        "app,seconds\r\nMail,60\r\nEditor,7\r\n");
}

TEST_F(ReportTest, rules_leaveOutAndSumByCategory) {
    add("09:00:00", 60, "Mail", "Inbox");
    add("09:01:00", 100, "Blocked", "Game");
    m_names.categories[0] << QStringLiteral("office");
    EXPECT_EQ(csv(), "app,seconds|Mail,60|");
    EXPECT_EQ(csv(QStringLiteral("--by category")), "category,seconds|office,60|");
}

TEST_F(ReportTest, aSearch_findsInTitlesAndProgramsWhateverTheCase) {
    add("09:00:00", 60, "Mail", "Inbox");
    add("09:01:00", 100, "Editor", "mailing list");
    add("09:03:00", 7, "Editor", "b.txt");
    EXPECT_EQ(csv(QStringLiteral("--search MAIL")), "app,seconds|Editor,100|Mail,60|");
}

TEST_F(ReportTest, aSearch_findsTheDesktopAsPeopleReadItAndAsItIsRecorded) {
    const Translations german({QStringLiteral("de")});
    add("09:00:00", 60, "Mail", "Inbox");
    add("09:01:00", 100, "Desktop", "");
    EXPECT_EQ(csv(QStringLiteral("--search arbeitsum")), "app,seconds|Desktop,100|");
    EXPECT_EQ(csv(QStringLiteral("--search desk")), "app,seconds|Desktop,100|");
}

TEST_F(ReportTest, presence_isWorkUnlessSomethingElseIsAskedFor) {
    add("09:00:00", 60, "Mail", "Inbox");
    add("09:01:00", 100, "Idle", "", RecordedStretch::Presence::Idle);
    add("09:03:00", 7, "Meeting", "", RecordedStretch::Presence::ByHand);
    EXPECT_EQ(csv(), "app,seconds|Mail,60|Meeting,7|");
    EXPECT_EQ(csv(QStringLiteral("--presence idle")), "app,seconds|Idle,100|");
    EXPECT_EQ(csv(QStringLiteral("--presence all")), "app,seconds|Idle,100|Mail,60|Meeting,7|");
}

TEST_F(ReportTest, stretches_areToldOneByOneWithTheTimeOfTheirPlace) {
    m_offset = 60;
    add("08:00:00", 90, "Mail", "Inbox");
    addToProject("Mail", "Inbox", "Meier");
    EXPECT_EQ(report({QStringLiteral("--by"), QStringLiteral("stretch"), QStringLiteral("--format"),
                      QStringLiteral("json")}),
              "[\n {\"app\":\"Mail\",\"end\":\"2026-11-20T09:01:30.000+01:00\",\"presence\":\"work\","
              "\"project\":[\"Meier\"],\"seconds\":90,\"start\":\"2026-11-20T09:00:00.000+01:00\","
              "\"title\":\"Inbox\"}\n]\n");
}

TEST_F(ReportTest, neighboursThatDifferInNothing_areOneStretch) {
    const std::string heads = "start,end,app,title,project,presence,seconds|";
    const auto stretches = [&] {
        const std::string text = csv(QStringLiteral("--by stretch"));
        return text.starts_with(heads) ? text.substr(heads.size()) : "no heads";
    };
    add("11:00:00", 1800, "Mail", "Inbox");
    add("09:50:00", 600, "Mail", "Inbox");
    add("10:00:00", 3600, "Mail", "Inbox");
    EXPECT_EQ(stretches(),
              "2026-11-20T09:50:00.000+00:00,2026-11-20T11:30:00.000+00:00,Mail,Inbox,,work,6000|");
    const QByteArray calendar = QByteArray::fromStdString(report({QStringLiteral("--format=ics")}));
    EXPECT_EQ(calendar.count("BEGIN:VEVENT"), 1);
    EXPECT_TRUE(calendar.contains("DTSTART:20261120T095000Z\r\nDTEND:20261120T113000Z\r\n"));
    const auto count = [&] { return std::ranges::count(stretches(), '|'); };
    add("11:30:00.001", 60, "Mail", "Inbox");
    EXPECT_EQ(count(), 2) << "a gap, however short";
    add("12:00:00", 60, "Editor", "a.txt");
    add("12:01:00", 60, "Editor", "b.txt");
    EXPECT_EQ(count(), 4) << "another title";
    add("12:02:00", 60, "Editor", "b.txt", RecordedStretch::Presence::ByHand);
    EXPECT_EQ(count(), 5) << "booked by hand";
    m_offset = 60;
    add("12:03:00", 60, "Editor", "b.txt", RecordedStretch::Presence::ByHand);
    EXPECT_EQ(count(), 6) << "in another time zone";
}

TEST_F(ReportTest, aTable_isForPeople) {
    add("09:00:00", 3725, "Mail", "Inbox");
    add("11:00:00", 60, "Text editor", "a.txt");
    EXPECT_EQ(report({}), "app             time\n"
                          "Mail         1:02:05\n"
                          "Text editor  0:01:00\n"
                          "             1:03:05\n");
    EXPECT_EQ(report({QStringLiteral("--search=nothing")}), "Nothing was recorded in this time.\n");
}

TEST_F(ReportTest, aSpreadsheet_findsNoFormula) {
    add("09:00:00", 1, "=1+1", "a, \"b\"");
    EXPECT_EQ(csv(QStringLiteral("--by app --by title")), "app,title,seconds|'=1+1,\"a, \"\"b\"\"\",1|");
}

TEST_F(ReportTest, aSpreadsheetThatSplitsAtSemicolons_findsNoFormulaEither) {
    add("09:00:00", 1, "Mail", "a;=1+1");
    add("09:01:00", 1, "Mail", "a\t=1+1");
    EXPECT_EQ(csv(QStringLiteral("--by title")), "title,seconds|\"a\t=1+1\",1|\"a;=1+1\",1|");
}

TEST_F(ReportTest, aLongTitle_isCutBetweenTwoSigns) {
    // A sign of two characters, one of a letter and its accent, and one that is joined of several, at the end
    // of the column.
    for (const char* sign : {"\U0001f600", "e\u0301", "\U0001f469\u200d\U0001f4bb"}) {
        m_stretches.clear();
        add("09:00:00", 1, "Mail", (std::string(58, 'x') + sign + "yyyyyy").c_str());
        EXPECT_NE(report({QStringLiteral("--by=title")}).find(std::string(58, 'x') + "\u2026"),
                  std::string::npos)
            << sign;
    }
    m_stretches.clear();
    add("09:00:00", 1, "Mail", (std::string(57, 'x') + "\U0001f600yyyyyy").c_str());
    EXPECT_NE(report({QStringLiteral("--by=title")}).find(std::string(57, 'x') + "\U0001f600\u2026"),
              std::string::npos);
}

TEST_F(ReportTest, nothing_isAnEmptyArrayAndAHead) {
    EXPECT_EQ(csv(), "app,seconds|");
    EXPECT_EQ(report({QStringLiteral("--format=json")}), "[\n]\n");
}

TEST_F(ReportTest, aCalendar_hasAnEventAStretchInShortLines) {
    const QByteArray title = QStringLiteral("ünï; ").repeated(30).toUtf8();
    add("09:00:00", 60, "Mail", title.constData());
    addToProject("Mail", title.constData(), "Meier, Ltd.");
    add("09:01:00", 0.5, "Editor", "a.txt");
    const QByteArray text = QByteArray::fromStdString(report({QStringLiteral("--format=ics")}));
    EXPECT_TRUE(text.startsWith("BEGIN:VCALENDAR\r\n"));
    EXPECT_EQ(text.count("BEGIN:VEVENT"), 1) << "half a second is no event";
    EXPECT_TRUE(text.contains("DTSTART:20261120T090000Z\r\nDTEND:20261120T090100Z\r\n"));
    EXPECT_TRUE(text.contains("CATEGORIES:Meier\\, Ltd.\r\n"));
    for (const QByteArray& line : text.split('\n')) {
        EXPECT_LE(line.size(), 76) << line.constData();
        EXPECT_EQ(QString::fromUtf8(line).toUtf8(), line) << "no character is cut";
    }
    const QByteArray summary = "SUMMARY:Mail: " + QByteArray(title).replace(";", "\\;");
    EXPECT_TRUE(QByteArray(text).replace("\r\n ", "").contains(summary));
}

TEST_F(ReportTest, whatIsNotUnderstood_isSaidInOneLine) {
    EXPECT_EQ(report({QStringLiteral("--by"), QStringLiteral("colour")}),
              "--by: “colour” is none of app, title, project, category, day, week, month, hour, stretch");
    EXPECT_EQ(report({QStringLiteral("--form"), QStringLiteral("csv")}),
              "“--form” is not understood; --help says what is");
    EXPECT_EQ(report({QStringLiteral("today")}), "“today” is not understood; --help says what is");
    EXPECT_EQ(report({QStringLiteral("--to")}), "--to needs a value");
    EXPECT_EQ(report({QStringLiteral("--to"), QStringLiteral("soon")}),
              "--to: “soon” is no moment; 2026-11-20, 2026-11-20T14:30, monday, -7d are");
    EXPECT_EQ(report({QStringLiteral("--to=2026-11-20")}), "--from must be before --to");
    EXPECT_EQ(report({QStringLiteral("--by=app"), QStringLiteral("--by=app")}), "--by app is there twice");
    EXPECT_EQ(report({QStringLiteral("--by=app"), QStringLiteral("--by=stretch")}),
              "--by stretch goes with no other key");
    EXPECT_EQ(report({QStringLiteral("--by=app"), QStringLiteral("--format=ics")}),
              "--format ics shows stretches and no sums");
}

} // namespace
