// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectFile.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/Projects.h"
#include "tests/fakes/RecordingLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ProjectFileTest : public testing::Test {
protected:
    ProjectFileTest() { QDir().mkpath(m_folder); }

    void put(const QByteArray& bytes) const {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }

    QByteArray bytes() const {
        QFile file(m_path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList filesAside() const { return QDir(m_folder).entryList({u"*.damaged-*"_s}); }

    // How many records a new object reads from the file.
    std::size_t countRead() { return ProjectFile(m_folder, m_log, m_trouble).read().size(); }

    QTemporaryDir m_home;
    QString m_folder = m_home.filePath(u"Documents"_s);
    QString m_path = m_folder + u"/Ticklog Projects"_s;
    RecordingLog m_log;
    AccountTrouble m_trouble;
    ProjectFile m_file{m_folder, m_log, m_trouble};
    PropertyListArray m_projects{ProjectSamples::record("Work", {1, 2}).entries()};
};

TEST_F(ProjectFileTest, itsPlace_isTheDocumentsFolder) {
    EXPECT_EQ(m_file.urlForTKProjects(), m_path);
}

TEST_F(ProjectFileTest, withoutADocumentsFolder_nothingIsReadOrWritten) {
    ProjectFile nowhere(QString(), m_log, m_trouble);
    EXPECT_FALSE(nowhere.urlForTKProjects());
    EXPECT_TRUE(nowhere.read().empty());
    nowhere.write(m_projects);
    EXPECT_TRUE(m_log.lines.isEmpty());
}

TEST_F(ProjectFileTest, whatIsWritten_isBinaryAndForTheUserAlone) {
    m_file.write(m_projects);
    EXPECT_TRUE(bytes().startsWith("bplist00"));
    EXPECT_EQ(QFile::permissions(m_path) & QFile::Permissions(0x7777),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
    EXPECT_EQ(PropertyListValue(m_file.read()), PropertyListValue(m_projects));
    EXPECT_TRUE(m_log.lines.isEmpty());
}

TEST_F(ProjectFileTest, theXmlForm_isReadToo) {
    put(PropertyList::xml(m_projects));
    EXPECT_EQ(PropertyListValue(m_file.read()), PropertyListValue(m_projects));
}

TEST_F(ProjectFileTest, noFile_isAnEmptyListAndNoNews) {
    EXPECT_TRUE(m_file.read().empty());
    EXPECT_TRUE(m_log.lines.isEmpty());
}

TEST_F(ProjectFileTest, anEmptyList_isNoDamage) {
    m_file.write({});
    EXPECT_TRUE(m_file.read().empty());
    m_file.write(m_projects);
    EXPECT_TRUE(filesAside().isEmpty());
}

TEST_F(ProjectFileTest, everyFileCutOff_isAnEmptyList) {
    m_projects.push_back(ProjectSamples::record("Play", {3}).entries());
    m_file.write(m_projects);
    const QByteArray whole = bytes();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        put(whole.left(length));
        EXPECT_EQ(countRead(), 0U) << length;
    }
    put(whole);
    EXPECT_EQ(countRead(), 2U);
}

TEST_F(ProjectFileTest, everyByteOverwritten_isReadOrRefusedAndNeverWorse) {
    m_file.write(m_projects);
    const QByteArray whole = bytes();
    for (qsizetype at = 0; at < whole.size(); ++at) {
        QByteArray damaged = whole;
        damaged[at] = char(~damaged[at]);
        put(damaged);
        for (const PropertyListValue& value : ProjectFile(m_folder, m_log, m_trouble).read())
            if (const PropertyListDictionary* entries = value.asDictionary())
                static_cast<void>(ProjectRecord(*entries).flattenedMembers());
    }
}

TEST_F(ProjectFileTest, whatIsNoListOfRecords_isAnEmptyList) {
    for (const PropertyListValue& content :
         {PropertyListValue(u"text"_s), PropertyListValue(m_projects[0]),
          PropertyListValue(PropertyListArray{m_projects[0], u"not a project"_s})}) {
        put(PropertyList::binary(content));
        EXPECT_EQ(countRead(), 0U);
    }
}

TEST_F(ProjectFileTest, onlyTheLastElement_decidesWhetherTheseAreProjects) {
    put(PropertyList::binary(PropertyListArray{u"not a project"_s, m_projects[0]}));
    EXPECT_EQ(countRead(), 2U);
}

TEST_F(ProjectFileTest, recordsNestedTenThousandDeep_areRefusedAtOnce) {
    QByteArray deep = "<plist version=\"1.0\"><array>";
    for (int i = 0; i < 10'000; ++i)
        deep += "<dict><key>Subtree</key><array>";
    for (int i = 0; i < 10'000; ++i)
        deep += "</array></dict>";
    put(deep + "</array></plist>");
    EXPECT_EQ(countRead(), 0U);
    EXPECT_TRUE(m_log.mentions(u"cannot be read"_s));
}

// Records that each hold the next one twice: a small file that is endless when written out.
TEST_F(ProjectFileTest, recordsThatShareThemselvesWithoutEnd_areRefusedAtOnce) {
    constexpr int kLevels = 60;
    QByteArray file = "bplist00";
    QByteArray table;
    const auto begin = [&] { table += char(file.size() >> 8), table += char(file.size()); };
    begin();
    file += QByteArray("\x57Subtree", 8);
    for (int level = 0; level < kLevels; ++level) {
        const char array = char(2 + 2 * level);
        begin();
        file += QByteArray("\xD1\x00", 2) + array;
        begin();
        const char next = level + 1 < kLevels ? char(array + 1) : char(0);
        file += '\xA2', file += next, file += next;
    }
    begin();
    file += QByteArray("\xA1\x01", 2);
    const qsizetype tableOffset = file.size();
    const auto top = char(1 + 2 * kLevels);
    QByteArray trailer(32, '\0');
    trailer[6] = 2, trailer[7] = 1, trailer[15] = char(top + 1), trailer[23] = top;
    trailer[30] = char(tableOffset >> 8), trailer[31] = char(tableOffset);
    put(file + table + trailer);
    EXPECT_EQ(countRead(), 0U);
    EXPECT_TRUE(m_log.mentions(u"far larger than its file"_s)) << m_log.lines.join(u'\n').toStdString();
}

TEST_F(ProjectFileTest, tenThousandMembersInAThousandProjects_areReadAndWritten) {
    std::vector<unsigned> many(10'000);
    for (unsigned i = 0; i < many.size(); ++i)
        many[i] = i;
    PropertyListArray projects{ProjectSamples::record("Everything", many).entries()};
    while (projects.size() < 1'000)
        projects.push_back(m_projects[0]);
    m_file.write(projects);
    EXPECT_EQ(PropertyListValue(m_file.read()), PropertyListValue(projects));
}

TEST_F(ProjectFileTest, aDamagedFile_isSetAsideBeforeTheFirstWrite) {
    put("damaged");
    EXPECT_TRUE(m_file.read().empty());
    EXPECT_TRUE(filesAside().isEmpty());
    m_file.write(m_projects);
    ASSERT_EQ(filesAside().size(), 1);
    EXPECT_TRUE(m_log.mentions(u"set aside"_s));
    EXPECT_EQ(countRead(), 1U);
    m_file.write(m_projects);
    EXPECT_EQ(filesAside().size(), 1);
}

TEST_F(ProjectFileTest, aDamagedFile_isToldToTheUserByItsName) {
    put("damaged");
    EXPECT_TRUE(m_file.read().empty());
    EXPECT_TRUE(m_trouble.text().contains(u"“Ticklog Projects” could not be read"_s))
        << m_trouble.text().toStdString();
    EXPECT_FALSE(m_trouble.text().contains(m_folder));
}

TEST_F(ProjectFileTest, aFolderThatCannotBeWrittenTo_isToldUntilItCan) {
    QFile inTheWay(m_folder);
    QDir().rmdir(m_folder);
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    EXPECT_FALSE(m_file.write(m_projects));
    EXPECT_TRUE(m_trouble.text().contains(u"“Ticklog Projects” cannot be saved"_s));
    inTheWay.remove();
    EXPECT_TRUE(m_file.write(m_projects));
    EXPECT_EQ(m_trouble.text(), QString());
}

TEST_F(ProjectFileTest, aDamagedFileTakenAwayMeanwhile_isWrittenAnew) {
    put("damaged");
    EXPECT_TRUE(m_file.read().empty());
    QFile::remove(m_path);
    m_file.write(m_projects);
    EXPECT_EQ(countRead(), 1U);
}

TEST_F(ProjectFileTest, aDamagedFileThatCannotBeSetAside_isNotOverwritten) {
    put("damaged");
    EXPECT_TRUE(m_file.read().empty());
    // Nothing can be renamed in a folder that is a file.
    ASSERT_TRUE(QDir().rename(m_folder, m_folder + u" elsewhere"_s));
    QFile blocked(m_folder);
    ASSERT_TRUE(blocked.open(QFile::WriteOnly));
    m_file.write(m_projects);
    EXPECT_TRUE(m_log.mentions(u"not written"_s)) << m_log.lines.join(u'\n').toStdString();
    m_path = m_folder + u" elsewhere/Ticklog Projects"_s;
    EXPECT_EQ(bytes(), "damaged");
}

TEST_F(ProjectFileTest, aFolderThatIsMissing_isMade) {
    QDir().rmdir(m_folder);
    m_file.write(m_projects);
    EXPECT_EQ(countRead(), 1U);
}

TEST_F(ProjectFileTest, aWriteThatFails_leavesALineAndTheOldFile) {
    m_file.write(m_projects);
    const QByteArray before = bytes();
    // Nothing can be written beneath a file.
    ProjectFile blocked(m_path, m_log, m_trouble);
    blocked.write(m_projects);
    EXPECT_TRUE(m_log.mentions(u"could not be written"_s));
    EXPECT_EQ(bytes(), before);
}

TEST_F(ProjectFileTest, whatNoPropertyListCanHold_isToldAndTheOldFileStays) {
    m_file.write(m_projects);
    const QByteArray before = bytes();
    m_file.write({PropertyListDictionary{{kProjectSubtree, PropertyListArray{PropertyListValue()}}}});
    EXPECT_EQ(m_log.lines, QStringList{u"an absent value has no place in a property list"_s});
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(QDir(m_folder).entryList(QDir::Files).size(), 1);
}

TEST_F(ProjectFileTest, aLinkToTheFile_staysALink) {
    const QString elsewhere = m_home.filePath(u"synchronised"_s);
    m_file.write(m_projects);
    ASSERT_TRUE(QFile::rename(m_path, elsewhere));
    ASSERT_TRUE(QFile::link(elsewhere, m_path));
    m_projects.push_back(m_projects[0]);
    m_file.write(m_projects);
    EXPECT_TRUE(QFileInfo(m_path).isSymLink());
    EXPECT_EQ(countRead(), 2U);
}

} // namespace
