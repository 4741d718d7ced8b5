// SPDX-License-Identifier: MIT
// Limits for content from files: each just within the limit, and just beyond.
#include "Classes/exchange/PasteboardTypes.h"
#include "Classes/projects/ProjectRecord.h"
#include "Classes/record/StoreFile.h"
#include "Classes/rules/RuleCategories.h"
#include "Classes/store/AccountEntries.h"
#include "platform/foundation/propertylists/PropertyListPlainReader.h"
#include "platform/foundation/propertylists/PropertyListXml.h"
#include "platform/foundation/propertylists/PropertyListXmlReader.h"
#include "platform/foundation/text/CleanText.h"
#include "tests/fakes/Database.h"
#include "tests/fakes/NumberedSave.h"
#include "tests/fakes/Store.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString kForeign = u"one\ntwo\x07\x1b[31m"_s;
const QString kClean = u"one two  [31m"_s;

QString longText(qsizetype beyond) {
    return QString(kLongestText + beyond, u'x');
}

class NamesInFilesTest : public StoreTest {};

TEST_F(NamesInFilesTest, aTimersName_isCutAndCleanedLikeAWindowsTitle) {
    const auto named = [&](const QString& name) {
        const TimeStoreApp app(store,
                               PropertyListDictionary{{kRecordName, name}, {kRecordRenamedName, name}});
        EXPECT_EQ(app.renamedNameStorage(), app.name());
        return app.name();
    };
    EXPECT_EQ(named(kForeign), kClean);
    EXPECT_EQ(named(longText(0)), longText(0));
    EXPECT_EQ(named(longText(1)), longText(0));
}

TEST_F(NamesInFilesTest, aWindowsName_isCutAndCleanedAndFoundUnderThat) {
    const auto app = makeApp(u"Mail"_s);
    app->addChildFromDictionary({{kRecordName, longText(1)}, {kRecordActiveTime, 5.0}});
    app->addChildFromDictionary({{kRecordName, kForeign}, {kRecordActiveTime, 7.0}});
    EXPECT_EQ(app->windowStoreForName(longText(0), {})->activeTime(), 5);
    EXPECT_EQ(app->windowStoreForName(kClean, {})->activeTime(), 7);
}

TEST_F(NamesInFilesTest, aNameInTheRegistryThatNoTimerCanHave_isLeftOut) {
    const QString path = fakes.home.filePath(u"registry"_s);
    const QByteArray bytes = "12345678";
    const QString longest(32 + 2 * kLongestText, u'x');
    ASSERT_TRUE(PropertyList::writeXmlFile(
        PropertyListDictionary{{longest, bytes}, {QString(longest + u'x'), bytes}}, path));
    EXPECT_EQ(TKUUIDManager(path, fakes.runLoop, fakes.log).uuidForName(longest).bytes(), bytes);
    EXPECT_EQ(TKUUIDManager(path, fakes.runLoop, fakes.log).count(), 1);
}

TEST(LabelsInFiles, aProjectsLabel_isCutAndCleaned) {
    const auto label = [](const QString& text) {
        return ProjectRecord(PropertyListDictionary{{kProjectLabel, text}}).label();
    };
    EXPECT_EQ(label(kForeign), kClean);
    EXPECT_EQ(label(longText(0)), longText(0));
    EXPECT_EQ(label(longText(1)), longText(0));
}

TEST(RulesInFiles, moreCategoriesThanAnybodyTypes_areLeftOut) {
    QString text;
    for (int i = 0; i < 100'000; ++i)
        text += QString::number(i) + u',';
    RuleCategories categories;
    categories.read(PropertyListDictionary{{u"Mail"_s, PropertyListDictionary{{kRuleCategories, text}}}});
    EXPECT_EQ(categories.all().size(), 100'000U);
    categories.read(PropertyListDictionary{
        {u"Mail"_s, PropertyListDictionary{{kRuleCategories, QString(text + u"more")}}}});
    EXPECT_EQ(categories.all().size(), 100'000U);
}

TEST(ThePasteboard, withMoreThanAllTimers_isNotRead) {
    const QByteArray element = "<data>AQIDBAUGBwg=</data>\n";
    const auto pasted = [&](qsizetype size) {
        QByteArray bytes = PropertyListXml::kHead.toByteArray() + "<array>";
        bytes += element + QByteArray(size - bytes.size() - element.size() - 16, ' ') + "</array></plist>";
        EXPECT_EQ(bytes.size(), size);
        return timersFromPasteboard(bytes);
    };
    constexpr qsizetype kMost = 16 * 1024 * 1024;
    ASSERT_TRUE(pasted(kMost));
    EXPECT_EQ(pasted(kMost)->size(), 1U);
    EXPECT_FALSE(pasted(kMost + 1));
}

TEST(ValuesInFiles, asManyAsAreAllowed_areReadAndOneMoreIsNot) {
    // The list itself counts as a value.
    const QByteArray three = PropertyListXml::kHead.toByteArray() + "<array><true/><array/></array></plist>";
    EXPECT_TRUE(PropertyListPlainReader(three, 3).read());
    EXPECT_FALSE(PropertyListPlainReader(three, 2).read());
    EXPECT_TRUE(PropertyListXmlReader(three, 3).read());
    EXPECT_NE(str(PropertyListXmlReader(three, 2).read().failure().text).find("more than 2 values"),
              std::string::npos);
}

TEST(WritingAStore, largerThanWhatIsRead_leavesTheStoreAsItWas) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    RecordingLog log;
    const qint64 size = numberedSaveBytes(1, 70'000).size();
    StoreFile justRoomy(log, FileCalls::system(), size);
    ASSERT_TRUE(justRoomy.write(path, numberedSave(1, 70'000)));
    StoreFile tooNarrow(log, FileCalls::system(), size - 1);
    const Outcome written = tooNarrow.write(path, numberedSave(2, 70'000));
    ASSERT_FALSE(written);
    EXPECT_EQ(numberOfSave(*tooNarrow.read(path)), 1);
    EXPECT_FALSE(QFileInfo::exists(path + u".part"_s));
}

TEST(WritingAPropertyList, largerThanWhatIsRead_leavesTheFileAsItWas) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list"_s);
    ASSERT_TRUE(PropertyList::writeXmlFile(u"before"_s, path));
    const qint64 size = QFileInfo(path).size();
    EXPECT_EQ(PropertyList::writeXmlFile(u"longer"_s, path, size - 1).failure().kind, Failure::Kind::Refused);
    EXPECT_TRUE(PropertyList::writeXmlFile(u"before"_s, path, size));
    EXPECT_EQ(PropertyList::readFile(path)->toString(), u"before"_s);
}

class TimersInFilesTest : public DatabaseTest {
protected:
    static constexpr std::size_t kMost = 20;

    // A file with this many timers; with a version they are all in one application.
    QString fileOf(std::size_t timers, bool isLegacy) {
        PropertyListDictionary entries;
        if (isLegacy) {
            for (std::size_t i = 0; i < timers; ++i)
                entries.insert(QString::number(i), 1.0);
            return write(u"legacy.tkd"_s, entries);
        }
        const PropertyListValue record = PropertyListDictionary{{kRecordName, u"Mail"_s}};
        const PropertyListArray windows(timers - 1, record);
        const PropertyListDictionary app{{kEntryApp, record}, {kEntryWindows, windows}};
        return write(u"new.tkd"_s, PropertyListDictionary{{kDatabaseVersion, u"1.5"_s},
                                                          {kDatabaseApps, PropertyListArray{app}}});
    }

    TimeDatabase narrow{
        engine.tracker(), engine.services().store, fakes.defaults, fakes.folders, hooks(), kMost};
};

TEST_F(TimersInFilesTest, asManyAsAreAllowed_areImportedAndOneMoreChangesNothing) {
    for (const bool isLegacy : {false, true}) {
        addMail();
        const QString before = tree();
        const Outcome refused = narrow.importDatabase(fileOf(kMost + 1, isLegacy));
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.failure().text,
                  u"There are more timers than one database can hold: 20 at the most."_s);
        EXPECT_EQ(tree(), before);
        EXPECT_TRUE(narrow.importDatabase(fileOf(kMost, isLegacy)));
        EXPECT_EQ(engine.tracker().fullTimeSet().size(), isLegacy ? kMost : 1U);
        engine.tracker().reset();
    }
}

TEST_F(TimersInFilesTest, aMainStoreOfTooMany_isSetAsideAndNotWrittenOver) {
    const QString path = narrow.mainStoreURL();
    ASSERT_TRUE(QFile::rename(fileOf(kMost + 1, true), path));
    const qint64 size = QFileInfo(path).size();
    narrow.loadMainStore();
    EXPECT_EQ(tree(), QString());
    addMail();
    ASSERT_TRUE(narrow.saveSettingsToDiskAtURL());
    const QFileInfoList aside = QFileInfo(path).dir().entryInfoList({u"*.damaged-*"_s}, QDir::Files);
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(aside.first().size(), size);
}

TEST_F(TimersInFilesTest, moreThanCanBeRead_areNotWrittenEither) {
    addMail();
    ASSERT_TRUE(narrow.saveSettingsToDiskAtURL());
    const auto before = contentOf(narrow.mainStoreURL());
    PropertyListArray entries;
    for (std::size_t i = 0; i < kMost; ++i)
        entries.push_back(
            PropertyListDictionary{{kEntryApp, PropertyListDictionary{{kRecordName, QString::number(i)}}}});
    engine.tracker().setArrayRepresentation(entries);
    EXPECT_EQ(narrow.saveSettingsToDiskAtURL().failure().kind, Failure::Kind::Refused);
    EXPECT_EQ(contentOf(narrow.mainStoreURL()), before);
}

TEST_F(TimersInFilesTest, namesInTheOldestFiles_areCutAndCleanedToo) {
    const QString path = fakes.home.filePath(u"old.tkd"_s);
    ASSERT_TRUE(
        PropertyList::writeBinaryFile(PropertyListDictionary{{kForeign, 1.0}, {longText(1), 2.0}}, path));
    ASSERT_TRUE(narrow.importDatabase(path));
    EXPECT_EQ(tree(), kClean + u" 1, "_s + longText(0) + u" 2"_s);
}

TEST_F(TimersInFilesTest, aTimeLongerThanAnybodyCanHaveCounted_isTheLongestThereIs) {
    const double before = std::nextafter(kLongestTime, 0);
    const double after = std::nextafter(kLongestTime, HUGE_VAL);
    for (const bool isLegacy : {false, true}) {
        for (const double time : {before, kLongestTime, after, 1e308}) {
            const PropertyListDictionary mail{{kRecordName, u"Mail"_s}, {kRecordActiveTime, time}};
            const PropertyListArray apps{
                PropertyListDictionary{{kEntryApp, mail}, {kEntryWindows, PropertyListArray{mail, mail}}}};
            const QString path =
                write(u"long.tkd"_s,
                      isLegacy ? PropertyListDictionary{{u"Mail"_s, time}}
                               : PropertyListDictionary{{kDatabaseVersion, u"1.5"_s}, {kDatabaseApps, apps}});
            ASSERT_TRUE(narrow.importDatabase(path));
            const auto app = engine.tracker().fullTimeSet().front();
            EXPECT_EQ(app->activeTime(), std::min(time, kLongestTime));
            EXPECT_EQ(app->activeTimeString(),
                      time < kLongestTime ? u"87658199:59:59"_s : u"87658200:00:00"_s);
            for (const auto& window : app->windows())
                EXPECT_EQ(window->activeTime(), kLongestTime) << "two of them came together";
        }
    }
}

} // namespace
