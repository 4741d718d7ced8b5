// SPDX-License-Identifier: MIT
#include "Classes/store/TKUUIDManager.h"

#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/ManualRunLoop.h"
#include "tests/fakes/RecordingLog.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class TKUUIDManagerTest : public testing::Test {
protected:
    std::unique_ptr<TKUUIDManager> open() {
        return std::make_unique<TKUUIDManager>(m_path, m_runLoop, m_log);
    }

    void wait() { m_runLoop.advance(TKUUIDManager::kJoiningDelay); }

    bool isWritten() const { return QFile::exists(m_path); }

    // The file's entries: key to hexadecimal bytes.
    QMap<QString, QString> file() const {
        QMap<QString, QString> entries;
        const auto read = PropertyList::readFile(m_path);
        if (read && read->asDictionary())
            for (const auto& [key, value] : *read->asDictionary())
                entries.insert(key,
                               QString::fromLatin1(value.asData() ? value.asData()->toHex() : "no data"));
        return entries;
    }

    void writeRaw(const QByteArray& bytes) const {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    static QString hex(const Identity& identity) { return QString::fromLatin1(identity.bytes().toHex()); }

    QTemporaryDir m_home;
    QString m_path = m_home.filePath(u"TicklogUUID.plist"_s);
    HandClock m_clock;
    ManualRunLoop m_runLoop{m_clock};
    RecordingLog m_log;
};

TEST_F(TKUUIDManagerTest, theFile_isNamedAfterTheFolderWithoutASeparator) {
    EXPECT_EQ(str(TKUUIDManager::savePath(u"/home/me/.local/share/Ticklog"_s)),
              "/home/me/.local/share/TicklogUUID.plist");
}

TEST_F(TKUUIDManagerTest, askingTwice_answersTheSameEightBytes) {
    const auto registry = open();
    const Identity first = registry->uuidForName(u"TimeStoreAppMail"_s);
    EXPECT_EQ(registry->uuidForName(u"TimeStoreAppMail"_s), first);
    EXPECT_EQ(first.bytes().size(), 8);
    EXPECT_NE(registry->uuidForName(u"TimeStoreAppNews"_s), first);
}

TEST_F(TKUUIDManagerTest, askingAlone_writesNothingEvenAtTheEnd) {
    auto registry = open();
    registry->uuidForName(u"a"_s);
    registry->saveData();
    wait();
    registry.reset();
    EXPECT_FALSE(isWritten());
}

TEST_F(TKUUIDManagerTest, entering_replacesAndAnswersAndWritesWhatWasAskedForBefore) {
    const auto registry = open();
    const Identity asked = registry->uuidForName(u"b"_s);
    registry->uuidForName(u"a"_s);
    const Identity mine = Identity::brandNew();
    EXPECT_EQ(registry->setUUID(mine, u"a"_s), mine);
    EXPECT_EQ(registry->uuidForName(u"a"_s), mine);
    wait();
    EXPECT_EQ(file(), (QMap<QString, QString>{{u"a"_s, hex(mine)}, {u"b"_s, hex(asked)}}));
}

TEST_F(TKUUIDManagerTest, aChange_waitsForOthersAndIsThenWrittenOnce) {
    const auto registry = open();
    registry->setUUID(Identity::brandNew(), u"a"_s);
    m_runLoop.advance(TKUUIDManager::kJoiningDelay - 1ms);
    EXPECT_FALSE(isWritten());
    registry->setUUID(Identity::brandNew(), u"b"_s);
    m_runLoop.advance(1ms);
    EXPECT_EQ(file().size(), 2);
    EXPECT_EQ(m_runLoop.activeTimers(), 0);
}

TEST_F(TKUUIDManagerTest, saving_writesAtOnceWhatIsOwed) {
    const auto registry = open();
    registry->setUUID(Identity::brandNew(), u"a"_s);
    registry->saveData();
    EXPECT_EQ(file().size(), 1);
    EXPECT_EQ(m_runLoop.activeTimers(), 0);
}

TEST_F(TKUUIDManagerTest, theEnd_writesWhatIsOwed) {
    open()->setUUID(Identity::brandNew(), u"a"_s);
    EXPECT_EQ(file().size(), 1);
    EXPECT_EQ(m_runLoop.activeTimers(), 0);
}

TEST_F(TKUUIDManagerTest, renaming_movesTheIdentityInPlaceOfAnyOther) {
    const auto registry = open();
    const Identity moved = registry->uuidForName(u"old"_s);
    registry->uuidForName(u"new"_s);
    registry->renameName(u"old"_s, u"new"_s);
    EXPECT_EQ(registry->uuidForName(u"new"_s), moved);
    EXPECT_EQ(registry->count(), 1);
    wait();
    EXPECT_EQ(file(), (QMap<QString, QString>{{u"new"_s, hex(moved)}}));
}

TEST_F(TKUUIDManagerTest, renamingAKeyWithoutIdentity_changesNothingAndStillWrites) {
    const auto registry = open();
    const Identity kept = registry->uuidForName(u"new"_s);
    registry->renameName(u"unknown"_s, u"new"_s);
    EXPECT_EQ(registry->uuidForName(u"new"_s), kept);
    wait();
    EXPECT_EQ(file().size(), 1);
}

TEST_F(TKUUIDManagerTest, renamingToTheSameKey_doesNothing) {
    const auto registry = open();
    const Identity kept = registry->uuidForName(u"a"_s);
    registry->renameName(u"a"_s, u"a"_s);
    EXPECT_EQ(registry->uuidForName(u"a"_s), kept);
    EXPECT_EQ(m_runLoop.activeTimers(), 0);
}

TEST_F(TKUUIDManagerTest, pruning_dropsWhatIsNotUsedAndWrites) {
    const auto registry = open();
    const Identity kept = registry->uuidForName(u"a"_s);
    registry->uuidForName(u"b"_s);
    registry->setUUIDSet(std::unordered_set{kept});
    EXPECT_EQ(registry->count(), 1);
    wait();
    EXPECT_EQ(file(), (QMap<QString, QString>{{u"a"_s, hex(kept)}}));
}

TEST_F(TKUUIDManagerTest, pruningByASetOfTheSameSize_changesNothingEvenIfItsMembersAreOthers) {
    const auto registry = open();
    registry->uuidForName(u"a"_s);
    registry->uuidForName(u"b"_s);
    registry->setUUIDSet(std::unordered_set{Identity::brandNew(), Identity::brandNew()});
    EXPECT_EQ(registry->count(), 2);
    EXPECT_EQ(m_runLoop.activeTimers(), 0);
}

TEST_F(TKUUIDManagerTest, pruningByALargerSetOfOthers_dropsEverything) {
    const auto registry = open();
    registry->uuidForName(u"a"_s);
    registry->setUUIDSet(std::unordered_set{Identity::brandNew(), Identity::brandNew()});
    EXPECT_EQ(registry->count(), 0);
}

TEST_F(TKUUIDManagerTest, pruningByAnAbsentSet_changesNothingButByAnEmptyOneDropsAll) {
    const auto registry = open();
    registry->uuidForName(u"a"_s);
    registry->setUUIDSet(std::nullopt);
    EXPECT_EQ(registry->count(), 1);
    registry->setUUIDSet(std::unordered_set<Identity>());
    EXPECT_EQ(registry->count(), 0);
}

TEST_F(TKUUIDManagerTest, whatWasWritten_isReadAgain) {
    const QString odd = u"TimeStoreWindowä 😀 <&>"_s + QString(8000, u'x');
    Identity identity = open()->setUUID(Identity::brandNew(), odd);
    EXPECT_EQ(open()->uuidForName(odd), identity);
}

TEST_F(TKUUIDManagerTest, theFile_isXmlThatOnlyTheUserCanRead) {
    open()->setUUID(Identity::brandNew(), u"a"_s);
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("<?xml"));
    EXPECT_FALSE(file.permissions() &
                 (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther));
    EXPECT_EQ(QDir(m_home.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(TKUUIDManagerTest, aMissingFile_startsEmptyWithoutAWord) {
    EXPECT_EQ(open()->count(), 0);
    EXPECT_TRUE(m_log.lines.isEmpty());
}

TEST_F(TKUUIDManagerTest, aFileThatCannotBeRead_startsEmptyAndIsLogged) {
    for (const char* bytes : {"", "rubbish", "<?xml version=\"1.0\"?><plist><dict><key>a</key>"}) {
        m_log.lines.clear();
        writeRaw(bytes);
        EXPECT_EQ(open()->count(), 0) << bytes;
        EXPECT_TRUE(m_log.mentions(u"identity registry"_s)) << bytes;
    }
}

TEST_F(TKUUIDManagerTest, aFileWithoutADictionary_startsEmptyAndIsLogged) {
    writeRaw(PropertyList::xml(PropertyListArray{1, 2}));
    EXPECT_EQ(open()->count(), 0);
    EXPECT_TRUE(m_log.mentions(u"no dictionary"_s));
}

TEST_F(TKUUIDManagerTest, entriesThatAreNoIdentities_areLeftOutAndCounted) {
    writeRaw(PropertyList::xml(PropertyListDictionary{{u"good"_s, QByteArray(8, 'g')},
                                                      {u"short"_s, QByteArray(7, 's')},
                                                      {u"text"_s, u"12345678"_s},
                                                      {u"number"_s, 8}}));
    const auto registry = open();
    EXPECT_EQ(registry->count(), 1);
    EXPECT_EQ(registry->uuidForName(u"good"_s).bytes(), QByteArray(8, 'g'));
    EXPECT_TRUE(m_log.mentions(u"3 entries"_s));
}

TEST_F(TKUUIDManagerTest, aFailedWrite_isLoggedAndTriedAgain) {
    QDir(m_home.path()).mkdir(u"gone"_s);
    m_path = m_home.filePath(u"gone/TicklogUUID.plist"_s);
    const auto registry = open();
    QDir(m_home.path()).rmdir(u"gone"_s);
    // A file in the place of the folder.
    QFile obstacle(m_home.filePath(u"gone"_s));
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    registry->setUUID(Identity::brandNew(), u"a"_s);
    wait();
    EXPECT_TRUE(m_log.mentions(u"could not be written"_s));
    obstacle.remove();
    QDir(m_home.path()).mkdir(u"gone"_s);
    wait();
    EXPECT_EQ(file().size(), 1);
}

} // namespace
