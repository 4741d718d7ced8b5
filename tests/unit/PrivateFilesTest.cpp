// SPDX-License-Identifier: MIT
#include "platform/foundation/PrivateFiles.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PrivateFilesTest : public testing::Test {
protected:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    // A file last written on 20 November 2026, 23:00:00.
    QString write(const char* name, const QByteArray& content) {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.flush();
        file.setFileTime(QDateTime(QDate(2026, 11, 20), QTime(23, 0)), QFile::FileModificationTime);
        return file.fileName();
    }

    static QByteArray content(const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QTemporaryDir m_folder;
};

TEST_F(PrivateFilesTest, aFileSetAside_isNamedAfterTheTimeItWasWritten) {
    const auto aside = PrivateFiles::setAside(write("a.tkd", "one"));
    ASSERT_TRUE(aside);
    EXPECT_EQ(*aside, path("a.tkd.damaged-20261120-230000"));
    EXPECT_EQ(content(*aside), "one");
    EXPECT_FALSE(QFile::exists(path("a.tkd")));
}

TEST_F(PrivateFilesTest, aSecondFileOfTheSameTime_overwritesNothing) {
    static_cast<void>(PrivateFiles::setAside(write("a.tkd", "one")));
    const auto aside = PrivateFiles::setAside(write("a.tkd", "two"));
    ASSERT_TRUE(aside);
    EXPECT_EQ(*aside, path("a.tkd.damaged-20261120-230000-2"));
    EXPECT_EQ(content(path("a.tkd.damaged-20261120-230000")), "one");
    EXPECT_EQ(content(*aside), "two");
}

TEST_F(PrivateFilesTest, aFileThatIsNotThere_isNotFound) {
    EXPECT_EQ(PrivateFiles::setAside(path("none")).failure().kind, Failure::Kind::NotFound);
}

TEST_F(PrivateFilesTest, aFolder_isMadeForTheUserAloneWithAllAboveIt) {
    ASSERT_TRUE(PrivateFiles::makeFolder(path("a/b/c")));
    ASSERT_TRUE(PrivateFiles::makeFolder(path("a/b/c")));
    for (const char* folder : {"a", "a/b", "a/b/c"})
        EXPECT_EQ(QFileInfo(path(folder)).permissions() & (QFile::Permissions(0x0077)), QFile::Permissions())
            << folder;
}

TEST_F(PrivateFilesTest, aFolderBelowAFile_cannotBeMade) {
    write("file", "x");
    EXPECT_EQ(PrivateFiles::makeFolder(path("file/b")).failure().kind, Failure::Kind::CannotWrite);
}

} // namespace
