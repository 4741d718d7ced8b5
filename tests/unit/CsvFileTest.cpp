// SPDX-License-Identifier: MIT
// Writing a table to the disk, and what is left if that fails.
#include "Classes/record/CsvExport.h"
#include "tests/fakes/CrashingDisk.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CsvFileTest : public testing::Test {
protected:
    QString path(const QString& name = u"times.csv"_s) const { return home.filePath(name); }

    static QByteArray contentOf(const QString& file) {
        QFile opened(file);
        EXPECT_TRUE(opened.open(QFile::ReadOnly));
        return opened.readAll();
    }

    static void put(const QString& file, const QByteArray& bytes) {
        QFile opened(file);
        ASSERT_TRUE(opened.open(QFile::WriteOnly));
        opened.write(bytes);
    }

    QTemporaryDir home;
};

TEST_F(CsvFileTest, anExistingFile_keepsItsLinkAndPermissionsAndNothingOfItsContent) {
    put(path(u"real.csv"_s), QByteArray(1000, 'x'));
    QFile::setPermissions(path(u"real.csv"_s), QFile::Permissions(0x6644));
    ASSERT_TRUE(QFile::link(path(u"real.csv"_s), path()));
    ASSERT_TRUE(CsvExport::writeText(u"ab"_s, path()));
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(contentOf(path(u"real.csv"_s)).size(), 6);
    EXPECT_EQ(int(QFileInfo(path(u"real.csv"_s)).permissions() & 0x7777), 0x6644);
}

TEST_F(CsvFileTest, whatIsNoFile_isNotWrittenTo) {
    EXPECT_FALSE(CsvExport::writeText(u"x"_s, home.path()));
    EXPECT_FALSE(CsvExport::writeText(u"x"_s, path(u"nowhere/times.csv"_s)));
    EXPECT_FALSE(CsvExport::writeText(u"x"_s, u"/dev/null"_s));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    EXPECT_FALSE(CsvExport::writeText(u"x"_s, path(u"pipe"_s)));
}

TEST_F(CsvFileTest, aFullDisk_leavesTheOldFileWholeAndNoHalfOfANewOne) {
    CrashingDisk disk(home.path());
    disk.allocateError = ENOSPC;
    put(path(), "old");
    EXPECT_FALSE(CsvExport::writeText(u"new"_s, path(), {}, disk));
    EXPECT_EQ(contentOf(path()), "old");
    EXPECT_FALSE(CsvExport::writeText(u"new"_s, path(u"other.csv"_s), {}, disk));
    EXPECT_FALSE(QFileInfo::exists(path(u"other.csv"_s)));
}

TEST_F(CsvFileTest, aFileSystemThatReservesNothing_isWrittenTo) {
    CrashingDisk disk(home.path());
    disk.allocateError = EOPNOTSUPP;
    EXPECT_TRUE(CsvExport::writeText(u"new"_s, path(), {}, disk));
}

TEST_F(CsvFileTest, everyCallThatFails_isToldAndLeavesNoHalfFile) {
    CrashingDisk disk(home.path());
    int failures = 0;
    for (int call = 1;; ++call) {
        disk.arm(CrashingDisk::Fault::Fails, call);
        const Outcome outcome = CsvExport::writeText(u"text"_s, path(), {}, disk);
        if (!disk.happened)
            break;
        // If room could not be reserved, there may still be room.
        if (outcome)
            EXPECT_EQ(contentOf(path()).size(), 10);
        else
            EXPECT_FALSE(QFileInfo::exists(path())) << call;
        failures += !outcome;
        QFile::remove(path());
    }
    EXPECT_EQ(failures, 4);
}

TEST_F(CsvFileTest, aWriteThatFallsShort_isGoneOnWith) {
    CrashingDisk disk(home.path());
    disk.arm(CrashingDisk::Fault::FallsShort, 3);
    ASSERT_TRUE(CsvExport::writeText(u"a longer text"_s, path(), {}, disk));
    EXPECT_TRUE(disk.happened);
    EXPECT_EQ(contentOf(path()).size(), 28);
}

TEST_F(CsvFileTest, aLongExport_tellsItsProgressUpToTheEnd) {
    std::vector<double> told;
    ASSERT_TRUE(
        CsvExport::writeText(QString(2'000'000, u'x'), path(), [&](double done) { told.push_back(done); }));
    EXPECT_EQ(told.size(), 4U);
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_EQ(told.back(), 1.0);
}

} // namespace
