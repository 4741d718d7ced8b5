// SPDX-License-Identifier: MIT
#include "platform/foundation/files/PrivateFiles.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

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

constexpr uid_t kNobody = 65534;

// The folder's owner: the tester, or somebody else if the tester is root.
uid_t ownerOf(const QString& folder) {
    const QByteArray name = QFile::encodeName(folder);
    if (::geteuid() == 0) {
        EXPECT_EQ(::lchown(name.constData(), kNobody, kNobody), 0);
    }
    return ::geteuid() == 0 ? kNobody : ::geteuid();
}

TEST_F(PrivateFilesTest, aFolderOfSomebodyElse_isNoPlaceForAnAccount) {
    const QString folder = path("theirs");
    ASSERT_TRUE(PrivateFiles::makeFolder(folder));
    const uid_t owner = ownerOf(folder);
    EXPECT_FALSE(PrivateFiles::belongsToOthers(folder, owner));
    EXPECT_TRUE(PrivateFiles::belongsToOthers(folder, owner + 1));
    EXPECT_TRUE(PrivateFiles::othersMayWrite(folder, owner + 1));
    EXPECT_FALSE(PrivateFiles::belongsToOthers(path("missing"), owner + 1));
}

TEST_F(PrivateFilesTest, aLinkOfSomebodyElse_isNoWayToAnAccount) {
    ASSERT_TRUE(PrivateFiles::makeFolder(path("mine")));
    ASSERT_EQ(::symlink("mine", QFile::encodeName(path("link")).constData()), 0);
    const uid_t owner = ownerOf(path("link"));
    EXPECT_TRUE(PrivateFiles::belongsToOthers(path("link"), owner + 1));
}

TEST_F(PrivateFilesTest, aFolderWhereOthersMayWrite_isFound) {
    const QString folder = path("shared/account");
    ASSERT_TRUE(PrivateFiles::makeFolder(folder));
    const QByteArray inner = QFile::encodeName(folder);
    const QByteArray outer = QFile::encodeName(path("shared"));
    struct Row {
        mode_t above;
        mode_t folder;
        bool isExposed;
    };
    for (const Row& row : {Row{0755, 0700, false}, Row{0755, 0755, false}, Row{0755, 0757, true},
                           Row{0755, 01777, true}, Row{0777, 0700, true}, Row{01777, 0700, false}}) {
        ASSERT_EQ(::chmod(outer.constData(), row.above), 0);
        ASSERT_EQ(::chmod(inner.constData(), row.folder), 0);
        EXPECT_EQ(PrivateFiles::othersMayWrite(folder), row.isExposed)
            << std::oct << row.above << ' ' << row.folder;
    }
}

} // namespace
