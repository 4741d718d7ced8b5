// SPDX-License-Identifier: MIT
// The exported table as a real spreadsheet reads it.
#include "Classes/record/CsvExport.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/fakes/Store.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace {

class SpreadsheetTest : public StoreTest {
protected:
    // Opens the table with every column as text, and answers its cells, one row on a line: "a|b".
    std::string opened(const QString& table) {
        QProcess office;
        office.setProcessEnvironment(m_home.environment());
        office.start(
            QStringLiteral("soffice"),
            {QStringLiteral("-env:UserInstallation=file://") + m_home.path() + QStringLiteral("/office"),
             QStringLiteral("--headless"),
             // Commas, double quotes, Unicode.
             QStringLiteral("--infilter=Text - txt - csv (StarCalc):44,34,65535,1,1/2/2/2/3/2/4/2/5/2"),
             // Bars, no quotes, UTF-8.
             QStringLiteral("--convert-to"),
             QStringLiteral("csv:Text - txt - csv (StarCalc):124,,76,1,,0,false,true,false"),
             QStringLiteral("--outdir"), m_home.path() + QStringLiteral("/read"), table});
        EXPECT_TRUE(office.waitForFinished(120'000)) << qPrintable(office.errorString());
        QFile read(m_home.path() + QStringLiteral("/read/times.csv"));
        EXPECT_TRUE(read.open(QFile::ReadOnly)) << office.readAllStandardError().toStdString();
        return read.readAll().toStdString();
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

} // namespace
