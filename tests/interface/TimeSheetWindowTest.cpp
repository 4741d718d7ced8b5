// SPDX-License-Identifier: MIT
#include "interface/history/TimeSheetWindow.h"

#include "tests/desktop/harness/Packaged.h"
#include "tests/interface/HistoryViewDesk.h"

#include <QClipboard>
#include <QMimeData>
#include <QStandardItemModel>
#include <QTableView>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace {

struct TimeSheetWindowTest : testing::Test, HistoryViewDesk {
    // Two days of one week, for a project and for none.
    void aWeek() {
        account("Mail", 10);
        const Identity mail = *(*controller.tracker().fullTimeSet().begin())->uuid();
        const auto project = controller.projects().addNewProjectWithItems({mail});
        controller.projects().setLabel(*project, QStringLiteral("Meier & Sons"));
        controller.saveSettingsToDisk();
        const RowTimer timer{.application = mail, .window = {}};
        past(on(0, 9), 3600, "Mail", "Inbox", RowPresence::Work, timer);
        past(on(1, 9), 1810, "Mail", "Inbox", RowPresence::Work, timer);
        past(on(1, 13), 600, "=Draw()");
        showHistory();
        view.showRange(CalendarRange::span(kMonday, kMonday.addDays(6)));
        command(historyActions().timeSheet);
    }

    QDateTime on(int day, int hour) const { return QDateTime(kMonday.addDays(day), QTime(hour, 0)); }

    TimeSheetWindow& sheet() { return *view.timeSheet(); }

    QString shown() {
        const auto* table = sheet().findChild<QTableView*>(QStringLiteral("timeSheet"))->model();
        QStringList rows;
        for (int row = 0; row < table->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table->columnCount(); ++column)
                cells << table->index(row, column).data().toString();
            rows << cells.join(u'|');
        }
        return rows.join(u'\n');
    }

    void choose(const char* name, int index) {
        auto* box = sheet().findChild<QComboBox*>(QLatin1String(name));
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
    }

    // What another program finds on the pages.
    QString readAgain(const QByteArray& pdf) {
        const QString path = fakes.platform.folders.documents + QStringLiteral("/sheet.pdf");
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(pdf) == pdf.size());
        file.close();
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
        EXPECT_TRUE(reader.waitForFinished(30'000)) << qPrintable(reader.errorString());
        return QString::fromUtf8(reader.readAllStandardOutput());
    }

    const QDate kMonday{2026, 11, 16};
};

TEST_F(TimeSheetWindowTest, aWeek_isShownWithItsSums) {
    aWeek();
    EXPECT_EQ(shown(), QStringLiteral("Meier & Sons|1:00:00|0:30:10||||||1:30:10\n"
                                      "No Project||0:10:00||||||0:10:00\n"
                                      "Sum|1:00:00|0:40:10||||||1:40:10"));
}

TEST_F(TimeSheetWindowTest, rounding_holdsForTheTableAndIsRemembered) {
    aWeek();
    choose("roundingMinutes", 2);
    choose("roundingTo", 1);
    EXPECT_EQ(shown(), QStringLiteral("Meier & Sons|1:00|0:45||||||1:45\nNo Project||0:15||||||0:15\n"
                                      "Sum|1:00|1:00||||||2:00"));
    choose("sheetForm", 1);
    EXPECT_TRUE(shown().startsWith(QStringLiteral("Meier & Sons|1.00|0.75||||||1.75")));
    EXPECT_EQ(fakes.defaults.integerForKey(kSheetRounding), 2);
    TimeSheetWindow another(fakes.defaults, alerts, {}, nullptr);
    EXPECT_TRUE(another.page().isDecimal);
}

TEST_F(TimeSheetWindowTest, theCopy_hasAllFormsAndNoFormula) {
    aWeek();
    sheet().copy();
    const QMimeData* forms = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(forms->text().contains(QStringLiteral("\nMeier & Sons\t1:00:00\t0:30:10\t")));
    EXPECT_TRUE(forms->html().contains(QStringLiteral("Meier &amp; Sons")));
    EXPECT_TRUE(forms->html().contains(QStringLiteral(R"( sdnum="1033;0;[HH]:MM:SS" )"))) << "a number";
    EXPECT_FALSE(forms->hasFormat(QStringLiteral("text/rtf"))) << "in which spreadsheets read times of day";
    EXPECT_EQ(forms->data(QStringLiteral("text/tab-separated-values")), forms->text().toUtf8());
}

TEST_F(TimeSheetWindowTest, aProjectThatIsNamedLikeAFormula_isCopiedAsText) {
    aWeek();
    const ProjectList::Project project = controller.projects().projects().front();
    controller.projects().setLabel(*project, QStringLiteral("=SUM(A1)"));
    controller.saveSettingsToDisk();
    command(historyActions().timeSheet);
    sheet().copy();
    const QMimeData* forms = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(forms->text().contains(QStringLiteral("\n'=SUM(A1)\t"))) << qPrintable(forms->text());
    EXPECT_FALSE(forms->html().contains(QStringLiteral(">=SUM")));
}

TEST_F(TimeSheetWindowTest, theCsv_isASpreadsheetsTable) {
    aWeek();
    alerts.location = fakes.platform.folders.documents + QStringLiteral("/sheet");
    sheet().saveCsv();
    QFile file(fakes.platform.folders.documents + QStringLiteral("/sheet.csv"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\r\nMeier & Sons,1:00:00,0:30:10,0:00:00,"));
}

TEST_F(TimeSheetWindowTest, thePage_saysWhoseTimeItIsAndWhatWasMeasured) {
    aWeek();
    choose("roundingMinutes", 3);
    sheet().findChild<QLineEdit*>(QStringLiteral("sheetName"))->setText(QStringLiteral("Anna <b>Berg</b>"));
    const QString text = TimeSheetForms::document(sheet().page())->toPlainText();
    EXPECT_TRUE(text.contains(QStringLiteral("Anna <b>Berg</b>")));
    EXPECT_TRUE(text.contains(QStringLiteral("Measured: 1:40:10")));
    EXPECT_TRUE(TimeSheetForms::pdf(sheet().page()).startsWith("%PDF"));
}

TEST_F(TimeSheetWindowTest, thePdf_isReadByAnotherProgram) {
    SKIP_WHERE_NOT_PACKAGED(QStringLiteral("pdftotext"));
    aWeek();
    SheetPage page = sheet().page();
    page.name = QStringLiteral("Anna Berg");
    page.notes = QStringLiteral("Thank you.\n").repeated(80);
    const QString text = readAgain(TimeSheetForms::pdf(page));
    for (const char* part : {"Time Sheet", "Anna Berg", "Nov 16 – 22, 2026", "Meier & Sons", "0:30:10",
                             "1:30:10", "1:40:10", "Thank you."})
        EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part << " in " << qPrintable(text);
    const QStringList pages = text.split(u'\f', Qt::SkipEmptyParts);
    ASSERT_GE(pages.size(), 2);
    for (qsizetype number = 1; number <= pages.size(); ++number)
        EXPECT_EQ(pages[number - 1].trimmed().section(u'\n', -1).trimmed(), QString::number(number));
}

TEST_F(TimeSheetWindowTest, timeOfTwoProjects_countsOnceInTheSumsAndTheSheetSaysSo) {
    aWeek();
    auto* note = sheet().findChild<QLabel*>(QStringLiteral("sharedTime"));
    EXPECT_FALSE(note->isVisible());
    const Identity mail = *(*controller.tracker().fullTimeSet().begin())->uuid();
    const auto second = controller.projects().addNewProjectWithItems({mail});
    controller.projects().setLabel(*second, QStringLiteral("Letters"));
    controller.saveSettingsToDisk();
    command(historyActions().timeSheet);
    EXPECT_EQ(shown(), QStringLiteral("Letters|1:00:00|0:30:10||||||1:30:10\n"
                                      "Meier & Sons|1:00:00|0:30:10||||||1:30:10\n"
                                      "No Project||0:10:00||||||0:10:00\n"
                                      "Sum|1:00:00|0:40:10||||||1:40:10"));
    EXPECT_TRUE(note->isVisible());
    const QString said = QStringLiteral("Time that belongs to several projects is in each of their rows.");
    EXPECT_EQ(note->text(), said);
    EXPECT_TRUE(TimeSheetForms::document(sheet().page())->toPlainText().contains(said));
    choose("roundingMinutes", 3);
    EXPECT_TRUE(TimeSheetForms::document(sheet().page())
                    ->toPlainText()
                    .contains(QStringLiteral("Measured: 1:40:10")));
}

TEST_F(TimeSheetWindowTest, aSingleDay_opensTheWeekAroundIt) {
    aWeek();
    view.showRange(CalendarRange::span(kMonday.addDays(1), kMonday.addDays(1)));
    command(historyActions().timeSheet);
    EXPECT_EQ(sheet().page().sheet.days(), 7);
    EXPECT_EQ(sheet().page().sheet.sum(), 6010);
}

} // namespace
