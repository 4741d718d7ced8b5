// SPDX-License-Identifier: MIT
// A day of titles of every kind, from the windows to what ticklog-report prints. TICKLOG_TITLES says how
// many.
#include "Classes/history/History.h"
#include "Classes/report/RecordedNames.h"
#include "Classes/report/ReportFormats.h"
#include "Classes/report/ReportReading.h"
#include "tests/fakes/Day.h"
#include "tests/fakes/HistoryDiary.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

constexpr int kFewTitles = 5000;
constexpr int kLongest = 4096;

// No two are the same, and none has a number that could count.
QString lettersOf(int number) {
    QString letters;
    for (int rest = number; rest > 0 || letters.isEmpty(); rest /= 26)
        letters += QChar(u'a' + rest % 26);
    return letters;
}

QString title(int number) {
    const QString own = lettersOf(number);
    switch (number % 12) {
    case 0:
        return QStringLiteral("=HYPERLINK(\"http://example.org\";\"%1\")").arg(own);
    case 1:
        return QStringLiteral("'); DROP TABLE titles; --%1").arg(own);
    case 2:
        return QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467 %1 \U0001F600").arg(own);
    case 3:
        return QStringLiteral("\u05E9\u05DC\u05D5\u05DD %1 \u0645\u0631\u062D\u0628\u0627").arg(own);
    case 4:
        return QStringLiteral("say \"%1\", twice, %1; and more").arg(own);
    case 5:
        return QStringLiteral("+%1").arg(own);
    case 6:
        return QStringLiteral("-%1 @home").arg(own);
    case 7:
        return QStringLiteral("@%1").arg(own);
    case 8:
        return QStringLiteral("%1%s%n%2\\").arg(own);
    case 9:
        return QStringLiteral("<b>%1</b> & {\"json\": [\\\"%1\\\"]}").arg(own);
    default:
        return QStringLiteral("A page like any other: %1 - Browser").arg(own);
    }
}

// The longest that is kept; each of its characters may be of two halves.
QString longTitle() {
    QString text = QStringLiteral("long ");
    while (text.size() + 2 <= kLongest)
        text += QStringLiteral("\U0001F98A");
    return text;
}

// RFC 4180, by its own rules.
std::vector<QStringList> parsedCsv(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    std::vector<QStringList> lines(1);
    QString cell;
    bool isQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isQuoted && c == u'"' && i + 1 < text.size() && text[i + 1] == u'"')
            cell += text[++i];
        else if (c == u'"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (c == u',' || c == u'\r')) {
            lines.back() << std::exchange(cell, QString());
            if (c == u'\r')
                lines.emplace_back(), ++i;
        } else {
            cell += c;
        }
    }
    lines.pop_back();
    return lines;
}

class HistoryTitlesTest : public testing::Test {
protected:
    QByteArray report(const QStringList& arguments) {
        const auto request =
            ReportRequest::parse(QStringList{QStringLiteral("--from"), QStringLiteral("2026-01-01"),
                                             QStringLiteral("--to"), QStringLiteral("2026-02-01")} +
                                     arguments,
                                 QDateTime(QDate(2026, 2, 1), QTime(0, 0)), 0);
        SqliteDatabase file(history.path(), SqliteDatabase::Mode::Read, 0);
        const RecordedNames names(file, Folders());
        Report report(*request, names, 0);
        readInto(report, file, *request, 0);
        return ReportFormats::text(report, request->format, QDateTime::currentDateTimeUtc());
    }

    Day day;
    TimeDatabase database{day.tracker, day.store, day.fakes.defaults, day.fakes.folders, {}};
    History history{{day.tracker, database, day.trouble, day.fakes.notifications, day.fakes.defaults,
                     day.fakes.runLoop, day.fakes.clock, day.fakes.log},
                    [](const std::function<void()>& work) { work(); }};
};

TEST_F(HistoryTitlesTest, thousandsInADay_areToldAsTheyStood) {
    day.start();
    day.fakes.idleTime.isBusy = true;
    QMap<QString, double> expected;
    const auto show = [&](const QString& title) {
        day.closeAllWindows();
        day.front("Browser", title.toUtf8().constData());
        day.advance(0.5);
        expected[title] += 0.5;
    };
    const int titles = std::max(kFewTitles, qEnvironmentVariableIntValue("TICKLOG_TITLES"));
    for (int number = 0; number < titles; ++number)
        show(title(number));
    show(longTitle());
    history.finish();
    EXPECT_EQ(HistoryDiary::flaws(history.path()), QStringList());

    const auto lines = parsedCsv(report({QStringLiteral("--by=title"), QStringLiteral("--format=csv")}));
    ASSERT_EQ(lines.size(), std::size_t(expected.size()) + 1);
    EXPECT_EQ(lines[0], QStringList({QStringLiteral("title"), QStringLiteral("seconds")}));
    QMap<QString, double> found;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        ASSERT_EQ(lines[i].size(), 2);
        const QString& cell = lines[i][0];
        EXPECT_FALSE(QStringLiteral("=+-@").contains(cell[0])) << qPrintable(cell);
        found[cell.startsWith(u'\'') && QStringLiteral("=+-@").contains(cell[1]) ? cell.mid(1) : cell] =
            lines[i][1].toDouble();
    }
    EXPECT_TRUE(found == expected);

    const QByteArray json =
        report({QStringLiteral("--by=app"), QStringLiteral("--by=title"), QStringLiteral("--format=json")});
    found.clear();
    for (const QJsonValue& line : QJsonDocument::fromJson(json).array())
        found[line[QStringLiteral("title")].toString()] = line[QStringLiteral("seconds")].toDouble();
    EXPECT_TRUE(found == expected);
}

TEST_F(HistoryTitlesTest, aSearch_findsWhatIsWritten_andNothingElse) {
    day.start();
    for (int number = 0; number < 24; ++number) {
        day.front("Browser", title(number).toUtf8().constData());
        day.seconds(1);
    }
    history.finish();
    const auto linesWith = [&](const char* text) {
        return parsedCsv(report({QStringLiteral("--by=title"), QStringLiteral("--format=csv"),
                                 QStringLiteral("--search"), QString::fromUtf8(text)}))
                   .size() -
               1;
    };
    EXPECT_EQ(linesWith("drop table"), 2U);
    EXPECT_EQ(linesWith("%s"), 2U);
    EXPECT_EQ(linesWith("_"), 0U);
    EXPECT_EQ(linesWith("%%"), 0U);
    EXPECT_EQ(linesWith("\u05E9\u05DC\u05D5\u05DD"), 2U);
    EXPECT_EQ(linesWith("\U0001F600"), 2U);
    EXPECT_EQ(linesWith("' OR 1=1 --"), 0U);
}

} // namespace
