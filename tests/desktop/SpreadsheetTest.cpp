// SPDX-License-Identifier: MIT
// The exported tables as a real spreadsheet reads them.
#include "Classes/record/CsvExport.h"
#include "interface/history/HistoryForms.h"
#include "interface/history/TimeSheetForms.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/fakes/Store.h"

#include <QMimeData>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

class SpreadsheetTest : public StoreTest {
protected:
    // Opens the table with every column as text, and answers its cells, one row on a line: "a|b".
    std::string opened(const QString& table) {
        return opened(table, QStringLiteral("44,34,65535,1,1/2/2/2/3/2/4/2/5/2"));
    }

    // The same as a person gets it who says nothing about the columns. `columns`: commas, double quotes, Unicode.
    std::string opened(const QString& table, const QString& columns) {
        return readBy(QStringLiteral("Text - txt - csv (StarCalc):") + columns, table);
    }

    // The cells as it shows them, by one of its filters for files.
    std::string readBy(const QString& filter, const QString& table) {
        QProcess office;
        office.setProcessEnvironment(m_home.environment());
        office.start(
            QStringLiteral("soffice"),
            {QStringLiteral("-env:UserInstallation=file://") + m_home.path() + QStringLiteral("/office"),
             QStringLiteral("--headless"), QStringLiteral("--infilter=") + filter,
             // Bars, no quotes, UTF-8.
             QStringLiteral("--convert-to"),
             QStringLiteral("csv:Text - txt - csv (StarCalc):124,,76,1,,0,false,true,false"),
             QStringLiteral("--outdir"), m_home.path() + QStringLiteral("/read"), table});
        EXPECT_TRUE(office.waitForFinished(120'000)) << qPrintable(office.errorString());
        QFile read(m_home.path() + QStringLiteral("/read/times.csv"));
        EXPECT_TRUE(read.open(QFile::ReadOnly)) << office.readAllStandardError().toStdString();
        return read.readAll().toStdString();
    }

    // The table with a row of sums below it, which the spreadsheet adds up, in seconds.
    std::string summed(QByteArray table, const QString& formulas) {
        table += formulas.toUtf8() + "\r\n";
        const QString path = m_home.path() + QStringLiteral("/times.csv");
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(table) == table.size());
        file.close();
        // The language of the times is English; texts are read as what they look like, and formulas as formulas.
        const std::string read =
            opened(path, QStringLiteral("44,34,UTF-8,1,,1033,false,true,false,false,false,-1,true"));
        return read.substr(read.rfind('\n', read.size() - 2) + 1);
    }

    // Two projects on two days of a week.
    static TimeSheet week() {
        const QDate monday(2026, 11, 16);
        return TimeSheet(
            {{monday, {{QStringLiteral("Mail"), 5'415'000}}, {{QStringLiteral("Meier, Sons"), 5'415'000}}},
             {monday.addDays(1),
              {{QStringLiteral("Mail"), 93'600'000}},
              {{QStringLiteral("Meier, Sons"), 3'600'000}, {QStringLiteral("=Huber"), 90'000'000}}}},
            monday, monday.addDays(6), {});
    }

    TemporaryHome m_home;
};

TEST_F(SpreadsheetTest, namesInEveryScript_areReadAsTheyAreAndCommasShiftTheColumns) {
    auto mail = makeApp(QStringLiteral("Mail"), 3600);
    window(*mail, "In\"box\" 📬", 2400);
    window(*mail, "שלום", 1200);
    const QString table = m_home.path() + QStringLiteral("/times.csv");
    ASSERT_TRUE(CsvExport::write({mail, makeApp(QStringLiteral("Draw, paint"), 1800)}, 5400, table));
    EXPECT_EQ(opened(table), "Total|Per Application||Per Window|\n"
                             "01:30:00|Application|Time|Window|Time\n"
                             "|Mail|01:00:00|In\"box\" 📬|00:40:00\n"
                             "|||שלום|00:20:00\n"
                             "|Draw| paint|00:30:00|\n");
}

TEST_F(SpreadsheetTest, theHistorysTimes_areAddedUpThere) {
    const QByteArray table =
        HistoryForms::csv({QStringLiteral("Program"), QStringLiteral("Title"), QStringLiteral("Time Spent")},
                          {{QStringLiteral("Mail"), QStringLiteral("In, \"out\""), 5'415'000},
                           {QStringLiteral("=Draw()"), {}, 90'000'000},
                           {QStringLiteral("Mail"), {}, 61'000}});
    EXPECT_EQ(summed(table, QStringLiteral("Sum,,=SUM(C2:C4)*86400")), "Sum||95476\n");
}

TEST_F(SpreadsheetTest, whatIsCopied_isShownThereAsLengthsOfTimeAndAsTexts) {
    const auto forms = HistoryForms::copied({}, {{QStringLiteral("Mail"), QStringLiteral("007"), 5'000},
                                                 {QStringLiteral("1/2"), {}, 108'000'000}});
    const QString path = m_home.path() + QStringLiteral("/times.html");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(forms->html().toUtf8()) > 0);
    file.close();
    EXPECT_EQ(readBy(QStringLiteral("calc_HTML_WebQuery"), path), "Mail|007|00:00:05\n1/2||30:00:00\n");
}

TEST_F(SpreadsheetTest, theTimeSheetsTimes_areAddedUpThereToItsOwnSums) {
    const QByteArray table =
        TimeSheetForms::csv({.sheet = week(), .name = {}, .notes = {}, .isDecimal = false});
    // Two projects and their sums; in the columns the name, seven days and the sum.
    EXPECT_EQ(
        summed(table, QStringLiteral("=SUM(B2:H3)*86400,=SUM(I2:I3)*86400,=I4*86400,=SUM(B4:H4)*86400")),
        "99015|99015|99015|99015|||||\n");
}

} // namespace
