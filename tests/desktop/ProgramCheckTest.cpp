// SPDX-License-Identifier: MIT
#include "helpers/TKAXTrusted/ProgramCheck.h"
#include "helpers/TKAXTrusted/RequestLimit.h"
#include "platform/linux/TrustRecord.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/fakes/ManualRunLoop.h"

#include <QDir>
#include <QFile>

#include <climits>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class ProgramCheckTest : public testing::Test {
protected:
    ProgramCheckTest() {
        m_home.write(u"bin/program"_s, "#!/bin/sh\n");
        permit(folder(), 0755);
        permit(program(), 0755);
    }

    QString folder() const { return m_home.path() + u"/bin"_s; }

    QString program() const { return folder() + u"/program"_s; }

    static void permit(const QString& path, mode_t mode) {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
    }

    // The failure's text without the path; "fine" if there is no failure.
    static QString verdict(const QString& path, uid_t caller = ::getuid()) {
        const Outcome checked = checkProgram(path, caller);
        return checked ? u"fine"_s : checked.failure().text.section(u": "_s, -1);
    }

    TemporaryHome m_home;
};

TEST_F(ProgramCheckTest, aProgramOfTheSystemsOrTheCallersOwn_isFine) {
    EXPECT_EQ(verdict(program()), u"fine"_s);
    EXPECT_EQ(verdict(u"/usr/bin/env"_s), u"fine"_s);
}

TEST_F(ProgramCheckTest, aPathWithDetours_isNoProgram) {
    EXPECT_EQ(verdict(QString()), u"not a full path"_s);
    EXPECT_EQ(verdict(u"program"_s), u"not a full path"_s);
    EXPECT_EQ(verdict(u"./program"_s), u"not a full path"_s);
    for (const QString& path : QStringList{folder() + u"//program"_s, folder() + u"/./program"_s,
                                           program() + u'/', folder() + u"/../bin/program"_s, u"/"_s})
        EXPECT_EQ(verdict(path), u"not the shortest path"_s) << qPrintable(path);
    EXPECT_EQ(verdict(u"/"_s + QString(PATH_MAX, u'x')), u"the path is too long"_s);
}

TEST_F(ProgramCheckTest, aPathThatADialogMightTakeForMarkup_isNoProgram) {
    for (const QString& name : QStringList{u"<b>x</b>"_s, u"a>b"_s, u"a&lt;b"_s})
        EXPECT_EQ(verdict(u"/usr/bin/"_s + name),
                  u"the path holds characters that a dialogue may take for markup"_s);
}

TEST_F(ProgramCheckTest, aPathThatADialogWouldShowAsAnother_isNoProgram) {
    // A line break, an unseen space, a change of direction, a separator of paragraphs, a tag.
    for (const QString& path :
         {u"/usr/bin/a\nb"_s, u"/usr/bin/a\u200bb"_s, u"/usr/bin/\u202eb/nib"_s, u"/usr/bin/a\u2029b"_s,
          u"/usr/bin/a\U000e0041"_s, u"/usr/bin/a\u3164b"_s, u"/usr/bin/a\ufe0fb"_s})
        EXPECT_EQ(verdict(path), u"the path holds characters that cannot be seen"_s) << qPrintable(path);
    EXPECT_EQ(verdict(u"/usr/bin/\u00e9\u65e5\U0001f600"_s), u"No such file or directory"_s)
        << "all of these are seen";
}

TEST_F(ProgramCheckTest, whatIsNotThere_isNoProgram) {
    EXPECT_EQ(verdict(folder() + u"/missing"_s), u"No such file or directory"_s);
    EXPECT_EQ(verdict(program() + u"/deeper"_s), u"not a folder"_s);
    EXPECT_EQ(verdict(u"/"_s + QString(300, u'x')), u"File name too long"_s);
}

TEST_F(ProgramCheckTest, whatCannotBeRun_isNoProgram) {
    EXPECT_EQ(verdict(folder()), u"not an ordinary file"_s);
    EXPECT_EQ(verdict(u"/dev/null"_s), u"not an ordinary file"_s);
    permit(program(), 0644);
    EXPECT_EQ(verdict(program()), u"not executable"_s);
}

TEST_F(ProgramCheckTest, aLinkAnywhereInThePath_isNoProgram) {
    ASSERT_TRUE(QFile::link(program(), folder() + u"/link"_s));
    EXPECT_EQ(verdict(folder() + u"/link"_s), u"a link"_s);
    ASSERT_TRUE(QFile::link(folder(), m_home.path() + u"/linked"_s));
    EXPECT_EQ(verdict(m_home.path() + u"/linked/program"_s), u"a link"_s);
}

TEST_F(ProgramCheckTest, whatOthersMayWrite_isNoProgram) {
    permit(program(), 0757);
    EXPECT_EQ(verdict(program()), u"everybody may write to it"_s);
    permit(program(), 0755);
    permit(folder(), 0777);
    EXPECT_EQ(verdict(program()), u"everybody may write to the folder"_s);
    permit(folder(), 01777);
    EXPECT_EQ(verdict(program()), u"fine"_s) << "nobody replaces what is another's there";
}

TEST_F(ProgramCheckTest, aGroupThatMayWrite_isTrustedOnlyIfItIsRoots) {
    permit(program(), 0775);
    struct stat file {};
    ASSERT_EQ(::stat(QFile::encodeName(program()).constData(), &file), 0);
    EXPECT_EQ(verdict(program()), file.st_gid == 0 ? u"fine"_s : u"its group may write to it"_s);
    // Only root can give files to others.
    if (::chown(QFile::encodeName(program()).constData(), uid_t(-1), 65534) == 0) {
        EXPECT_EQ(verdict(program()), u"its group may write to it"_s);
    }
}

TEST_F(ProgramCheckTest, whatBelongsToSomebodyElse_isNoProgram) {
    // Root's own files are always accepted, so this needs a file of one user and another user who asks.
    constexpr uid_t kOwner = 4242;
    if (::getuid() == 0) {
        ASSERT_EQ(::chown(QFile::encodeName(program()).constData(), kOwner, gid_t(-1)), 0);
        EXPECT_EQ(verdict(program(), kOwner), u"fine"_s);
        EXPECT_EQ(verdict(program(), kOwner + 1), u"belongs to somebody else"_s);
        ASSERT_EQ(::chown(QFile::encodeName(folder()).constData(), kOwner, gid_t(-1)), 0);
    }
    EXPECT_TRUE(verdict(program(), kOwner + 1).contains(u"belongs to somebody else"_s));
}

TEST(RequestLimit, aUserWhoAsksTooOften_waitsAMinute) {
    HandClock clock;
    RequestLimit limit(clock);
    for (int request = 0; request < 6; ++request)
        EXPECT_TRUE(limit.admit(1000));
    EXPECT_FALSE(limit.admit(1000));
    EXPECT_TRUE(limit.admit(1001)) << "another user is not held back";
    clock.advance(std::chrono::seconds(59));
    EXPECT_FALSE(limit.admit(1000));
    clock.advance(std::chrono::seconds(1));
    EXPECT_TRUE(limit.admit(1000));
}

class TrustRecordTest : public testing::Test {
protected:
    TemporaryHome m_home;
    TrustRecord m_record{m_home.path()};
};

TEST_F(TrustRecordTest, whatIsAdded_isNamedOnce) {
    EXPECT_EQ(m_record.programs(), QStringList());
    EXPECT_TRUE(m_record.add(u"/bin/ä b"_s));
    EXPECT_TRUE(m_record.add(u"/bin/ä b"_s));
    EXPECT_TRUE(m_record.add(u"/bin/c"_s));
    EXPECT_EQ(m_record.programs(), (QStringList{u"/bin/ä b"_s, u"/bin/c"_s}));
    EXPECT_TRUE(m_record.names(u"/bin/c"_s));
    EXPECT_FALSE(m_record.names(u"/bin/"_s));
}

TEST_F(TrustRecordTest, aDamagedRecord_namesWhatCanBeRead) {
    m_home.write(u"trusted-programs"_s, "\n# by hand\nbin\n/bin/c\n\xff\xfe\n");
    EXPECT_EQ(m_record.programs(), QStringList{u"/bin/c"_s});
    m_home.write(u"trusted-programs"_s, QByteArray((1 << 20) + 1, '/'));
    EXPECT_EQ(m_record.programs(), QStringList());
}

TEST_F(TrustRecordTest, aFullRecord_takesNoMore) {
    for (int i = 0; i < TrustRecord::kMostPrograms; ++i)
        EXPECT_TRUE(m_record.add(u"/bin/%1"_s.arg(i)));
    EXPECT_FALSE(m_record.add(u"/bin/more"_s));
    EXPECT_TRUE(m_record.add(u"/bin/1"_s)) << "it is there";
    EXPECT_TRUE(m_record.remove(u"/bin/1"_s));
    EXPECT_TRUE(m_record.add(u"/bin/more"_s));
}

TEST_F(TrustRecordTest, aRecordThatCannotBeRead_isNotWrittenOver) {
    const QString path = m_home.path() + u"/trusted-programs"_s;
    m_home.write(u"elsewhere"_s, "/usr/bin/env\n");
    ASSERT_TRUE(QFile::link(m_home.path() + u"/elsewhere"_s, path));
    for (const bool isLink : {true, false}) {
        if (!isLink) {
            ASSERT_TRUE(QFile::remove(path) && QDir().mkdir(path));
        }
        EXPECT_EQ(m_record.programs(), QStringList());
        EXPECT_FALSE(m_record.add(u"/usr/bin/true"_s));
        EXPECT_FALSE(m_record.remove(u"/usr/bin/env"_s));
        EXPECT_EQ(QFileInfo(path).isSymLink(), isLink);
    }
}

TEST(TrustRecord, aFolderThatIsNotThere_isTold) {
    TrustRecord record(u"/nowhere/ticklog"_s);
    EXPECT_TRUE(record.remove(u"/bin/c"_s)) << "there is nothing to be struck out";
    const Outcome added = record.add(u"/bin/c"_s);
    ASSERT_FALSE(added);
    EXPECT_EQ(added.failure().kind, Failure::Kind::CannotWrite);
}

} // namespace
