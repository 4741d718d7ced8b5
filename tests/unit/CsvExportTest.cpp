// SPDX-License-Identifier: MIT
#include "Classes/record/CsvExport.h"

#include "tests/fakes/Store.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringDecoder>

namespace {

class CsvExportTest : public StoreTest {
protected:
    std::shared_ptr<TimeStoreApp> mail() {
        auto app = makeApp(QStringLiteral("Mail"), 3600);
        window(*app, "Inbox", 2400);
        window(*app, "Notes", 1200);
        return app;
    }

    QString path() { return fakes.home.filePath(QStringLiteral("export.csv")); }

    QByteArray written() {
        QFile file(path());
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }

    static std::string text(const TimeStoreItem::Children& timers, Seconds total) {
        return str(CsvExport::text(timers, total));
    }
};

const std::string kHead = "Total,Per Application,,Per Window\n00:00:00,Application,Time,Window,Time\n";

TEST_F(CsvExportTest, applicationsWithAndWithoutWindows_areListedBelowTheTotal) {
    EXPECT_EQ(text({mail(), makeApp(QStringLiteral("Terminal"), 1800)}, 5400),
              "Total,Per Application,,Per Window\n"
              "01:30:00,Application,Time,Window,Time\n"
              ",Mail,01:00:00,Inbox,00:40:00\n"
              ",,,Notes,00:20:00\n"
              ",Terminal,00:30:00,,\n");
}

TEST_F(CsvExportTest, anApplicationWithThreeWindows_isNamedOnce) {
    const auto app = mail();
    window(*app, "Sent", 60);
    EXPECT_EQ(text({app}, 0), kHead + ",Mail,01:00:00,Inbox,00:40:00\n,,,Notes,00:20:00\n,,,Sent,00:01:00\n");
}

TEST_F(CsvExportTest, anApplicationWithoutWindows_isOneLineWithTwoEmptyFields) {
    EXPECT_EQ(text({makeApp(QStringLiteral("Terminal"), 1)}, 0), kHead + ",Terminal,00:00:01,,\n");
}

TEST_F(CsvExportTest, noTimers_areTheHeadAlone) {
    EXPECT_EQ(text({}, 0), kHead);
}

TEST_F(CsvExportTest, aRenamedTimer_isListedAsItWasFound) {
    const auto app = makeApp(QStringLiteral("Mail"), 1);
    app->setRenamedNameFormatted({{kRecordName, QStringLiteral("Work")}});
    EXPECT_EQ(text({app}, 0), kHead + ",Mail,00:00:01,,\n");
}

TEST_F(CsvExportTest, awkwardNames_areWrittenAsTheyAre) {
    const auto app = makeApp(QStringLiteral("A, \"B\"\nC \u05D0\u05D1 \U0001F600"), 1);
    EXPECT_EQ(text({app}, 0), kHead + ",A, \"B\"\nC \u05D0\u05D1 \U0001F600,00:00:01,,\n");
}

TEST_F(CsvExportTest, theFile_isUtf16WithAMarkAndTheUsersAlone) {
    ASSERT_TRUE(CsvExport::write({makeApp(QStringLiteral("\U0001F600"), 1)}, 0, path()));
    const QByteArray bytes = written();
    EXPECT_EQ(bytes.first(2), QByteArray(Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "\xFF\xFE" : "\xFE\xFF"));
    QStringDecoder decode(QStringDecoder::Utf16);
    EXPECT_EQ(str(decode(bytes)), kHead + ",\U0001F600,00:00:01,,\n");
    EXPECT_EQ(QFileInfo(path()).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(CsvExportTest, aSecondExport_replacesTheFirst) {
    ASSERT_TRUE(CsvExport::write({mail()}, 0, path()));
    ASSERT_TRUE(CsvExport::write({}, 0, path()));
    QStringDecoder decode(QStringDecoder::Utf16);
    EXPECT_EQ(str(decode(written())), kHead);
}

TEST_F(CsvExportTest, aFolderThatIsNotThere_isAFailure) {
    EXPECT_FALSE(CsvExport::write({}, 0, fakes.home.filePath(QStringLiteral("no/such/export.csv"))));
}

TEST_F(CsvExportTest, aFullDisk_isAFailure) {
    EXPECT_FALSE(CsvExport::write({mail()}, 0, QStringLiteral("/dev/full")));
}

TEST_F(CsvExportTest, quoting_doublesQuotes) {
    EXPECT_EQ(str(CsvExport::formatString(QStringLiteral("a \"b\", c"))), "\"a \"\"b\"\", c\"");
    EXPECT_EQ(str(CsvExport::formatString({})), "\"\"");
}

TEST_F(CsvExportTest, anotherProgramsReader_findsTheFields) {
    ASSERT_TRUE(CsvExport::write({mail()}, 3600, path()));
    QProcess python;
    python.start(QStringLiteral("python3"),
                 {QStringLiteral("-c"),
                  QStringLiteral("import csv, sys\n"
                                 "for row in csv.reader(open(sys.argv[1], encoding='utf-16', newline='')):\n"
                                 "    print('|'.join(row))"),
                  path()});
    ASSERT_TRUE(python.waitForFinished());
    EXPECT_EQ(python.readAllStandardOutput(), "Total|Per Application||Per Window\n"
                                              "01:00:00|Application|Time|Window|Time\n"
                                              "|Mail|01:00:00|Inbox|00:40:00\n"
                                              "|||Notes|00:20:00\n");
}

} // namespace
