// SPDX-License-Identifier: MIT
// The timers as a table that a spreadsheet adds up.
#include "tests/interface/ProjectDesk.h"

#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct TimerTableTest : testing::Test, ProjectDesk {
    // What lies on the clipboard, without the identities, which are random.
    static std::string copied() {
        QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
        for (QString& line : lines)
            line = line.section(u'\t', 0, 3);
        return lines.join(u'\n').toStdString();
    }
};

} // namespace

TEST_F(TimerTableTest, aCopy_hasARowForEachWindowAndOneForTheRest) {
    account("Mail", 100, {{QStringLiteral("Inbox"), 40}, {QStringLiteral("Offer"), 50}});
    account("Notes", 10);
    addProject("Meier", {QStringLiteral("Offer")});
    addProject("Office", {QStringLiteral("Mail")});
    show();
    command(actions().copyForSpreadsheet);
    EXPECT_EQ(copied(), "Program\tWindow\tTime Spent\tProjects\n"
                        "Mail\tInbox\t0:00:40\tOffice\n"
                        "Mail\tOffer\t0:00:50\tOffice, Meier\n"
                        "Mail\t\t0:00:10\tOffice\n"
                        "Notes\t\t0:00:10\t\n");
}

TEST_F(TimerTableTest, aCopyOfSelectedRows_hasThoseAndNoTimeTwice) {
    account("Mail", 100, {{QStringLiteral("Inbox"), 40}, {QStringLiteral("Offer"), 60}});
    account("Notes", 10);
    show();
    table().expandAllRows();
    const QModelIndex mail = row("Mail");
    select({mail, mail.model()->index(0, 0, mail)});
    command(actions().copyForSpreadsheet);
    EXPECT_EQ(copied(), "Program\tWindow\tTime Spent\tProjects\n"
                        "Mail\tInbox\t0:00:40\t\n"
                        "Mail\tOffer\t0:01:00\t\n");
}

TEST_F(TimerTableTest, whatOnlyRoundingLeaves_isNoRow) {
    account("Mail", 8.2,
            {{QStringLiteral("Inbox"), 2.4}, {QStringLiteral("Offer"), 2.4}, {QStringLiteral("Sent"), 3.4}});
    show();
    command(actions().copyForSpreadsheet);
    EXPECT_EQ(copied(), "Program\tWindow\tTime Spent\tProjects\n"
                        "Mail\tInbox\t0:00:02\t\n"
                        "Mail\tOffer\t0:00:02\t\n"
                        "Mail\tSent\t0:00:03\t\n");
}

TEST_F(TimerTableTest, aCopyOfWhatWasFound_addsUpToIt) {
    account("Writer", 100, {{QStringLiteral("Letter"), 40}, {QStringLiteral("Offer"), 50}});
    account("Letters", 7, {{QStringLiteral("Draft"), 5}});
    show();
    controller.window().searchAppField().setText(QStringLiteral("letter"));
    command(actions().copyForSpreadsheet);
    EXPECT_EQ(copied(), "Program\tWindow\tTime Spent\tProjects\n"
                        "Letters\tDraft\t0:00:05\t\n"
                        "Letters\t\t0:00:02\t\n"
                        "Writer\tLetter\t0:00:40\t\n");
}

TEST_F(TimerTableTest, aWindowByItself_hasItsProgramAndAllItsProjects) {
    account("Mail", 100, {{QStringLiteral("Inbox"), 40}, {QStringLiteral("Offer"), 60}});
    addProject("Meier", {QStringLiteral("Offer")});
    addProject("Office", {QStringLiteral("Mail")});
    show();
    table().expandAllRows();
    const QModelIndex mail = row("Mail");
    select({mail.model()->index(1, 0, mail)});
    command(actions().copyForSpreadsheet);
    EXPECT_EQ(copied(), "Program\tWindow\tTime Spent\tProjects\n"
                        "Mail\tOffer\t0:01:00\tOffice, Meier\n");
}

TEST_F(TimerTableTest, aFormulaInATitle_isText) {
    account("Calc", 5, {{QStringLiteral("=SUM(A1:A9)"), 5}});
    show();
    command(actions().copyForSpreadsheet);
    EXPECT_NE(copied().find("Calc\t'=SUM(A1:A9)\t0:00:05"), std::string::npos) << copied();
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->html().contains(u">'=SUM(A1:A9)</td>"));
}

TEST_F(TimerTableTest, aCopy_saysOfEachCellWhetherItIsALengthOfTimeOrAText) {
    account("Calc", 5, {{QStringLiteral("007"), 5}});
    show();
    command(actions().copyForSpreadsheet);
    const QString html = QGuiApplication::clipboard()->mimeData()->html();
    EXPECT_TRUE(html.contains(uR"( sdval="5.78703703703704e-05" sdnum="1033;0;[HH]:MM:SS">0:00:05</td>)"))
        << str(html);
    EXPECT_TRUE(html.contains(uR"(<td sdnum="1033;0;@" style="mso-number-format:'\@'">007</td>)"))
        << str(html);
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasFormat(QStringLiteral("text/rtf")))
        << "in which spreadsheets read times of day";
}

TEST_F(TimerTableTest, blanksInATitle_stayAsTheyAre) {
    account("Write", 5, {{QStringLiteral("  two  blanks "), 5}});
    show();
    command(actions().copyForSpreadsheet);
    EXPECT_NE(copied().find("Write\t  two  blanks \t0:00:05"), std::string::npos) << copied();
}

TEST_F(TimerTableTest, anIdentity_isNeverTakenForANumber) {
    account("Write", 5);
    show();
    command(actions().copyForSpreadsheet);
    const QString identity = QGuiApplication::clipboard()->text().split(u'\n')[1].section(u'\t', 4);
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("^[0-9a-f]{2}(-[0-9a-f]{2}){7}$")).match(identity).hasMatch())
        << str(identity);
}

TEST_F(TimerTableTest, anExport_quotesItsCellsAndTellsFromWhenToWhen) {
    account("Mail", 60, {{QStringLiteral("One, \"two\""), 60}});
    show();
    const QTemporaryDir folder;
    alerts.location = folder.filePath(QStringLiteral("table.csv"));
    command(actions().exportForSpreadsheet);
    QFile file(alerts.location.value());
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(str(QString::fromUtf8(file.readLine())),
              "Program,Window,Time Spent,Projects,Identity,From,To\r\n");
    EXPECT_TRUE(file.readLine().startsWith("Mail,\"One, \"\"two\"\"\",0:01:00,,"));
}

TEST_F(TimerTableTest, anExportThatFails_isTold) {
    account("Mail", 60);
    show();
    alerts.location = QStringLiteral("/nowhere/table.csv");
    command(actions().exportForSpreadsheet);
    ASSERT_EQ(alerts.errors.size(), 1);
    EXPECT_TRUE(alerts.errors.first().startsWith(QLatin1String("The times could not be exported.")));
}
