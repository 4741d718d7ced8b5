// SPDX-License-Identifier: MIT
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/text/CleanText.h"
#include "tests/fakes/ManualRunLoop.h"
#include "tests/fakes/RecordingLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

const QString kMinutes = QStringLiteral("minutesUntilIdle");
const QString kDetection = QStringLiteral("enableIdleDetection");
const QString kRestart = QStringLiteral("startTicklogOnNextLaunch");
const QString kSaveTime = QStringLiteral("periodicSaveTime");

class UserDefaultsTest : public testing::Test {
protected:
    // The settings as a launch of the program reads them.
    std::unique_ptr<UserDefaults> launch() {
        return std::make_unique<UserDefaults>(m_path, m_notifications, m_loop, m_log);
    }

    PropertyListDictionary onDisk() const {
        const auto read = PropertyList::readFile(m_path);
        return read && read->asDictionary() ? *read->asDictionary() : PropertyListDictionary{};
    }

    void write(const QByteArray& content) {
        QDir().mkpath(QFileInfo(m_path).path());
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QStringList filesSetAside() const {
        return QFileInfo(m_path).dir().entryList({QStringLiteral("*.damaged-*")}, QDir::Files);
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("config/org.ticklog.Ticklog.plist"));
    NotificationCenter m_notifications;
    HandClock m_clock;
    ManualRunLoop m_loop{m_clock};
    RecordingLog m_log;
};

TEST_F(UserDefaultsTest, aKeyThatWasNeverWritten_readsAbsentFalseAndZero) {
    const auto defaults = launch();
    EXPECT_TRUE(defaults->object(kRestart).isAbsent());
    EXPECT_FALSE(defaults->boolForKey(kRestart));
    EXPECT_EQ(defaults->integerForKey(kRestart), 0);
}

TEST_F(UserDefaultsTest, aRegisteredDefault_answersUntilAValueIsSetAndAgainWhenItIsRemoved) {
    const auto defaults = launch();
    defaults->registerDefaults({{kMinutes, 15}, {kDetection, true}});
    EXPECT_EQ(defaults->integerForKey(kMinutes), 15);
    EXPECT_TRUE(defaults->boolForKey(kDetection));
    defaults->setObject(kMinutes, 5);
    EXPECT_EQ(defaults->integerForKey(kMinutes), 5);
    defaults->removeObject(kMinutes);
    EXPECT_EQ(defaults->integerForKey(kMinutes), 15);
}

TEST_F(UserDefaultsTest, aLaterRegistration_replacesTheEarlierKeyByKey) {
    const auto defaults = launch();
    defaults->registerDefaults({{kMinutes, 15}, {kDetection, true}});
    defaults->registerDefaults({{kMinutes, 20}});
    EXPECT_EQ(defaults->integerForKey(kMinutes), 20);
    EXPECT_TRUE(defaults->boolForKey(kDetection));
}

TEST_F(UserDefaultsTest, registeredDefaults_areNeverWritten) {
    auto defaults = launch();
    defaults->registerDefaults({{kMinutes, 15}});
    defaults->setObject(kRestart, true);
    defaults.reset();
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kRestart, true}}));
}

TEST_F(UserDefaultsTest, aTimeOfDayInTheFirstYear_survivesARestart) {
    const Date evening = Date(std::chrono::sys_days(std::chrono::year(1) / 1 / 1)) + 19h;
    launch()->setObject(kSaveTime, evening);
    EXPECT_EQ(launch()->object(kSaveTime).asDate(), evening);
}

TEST_F(UserDefaultsTest, eachChange_isAnnouncedAfterItHasHappened) {
    const auto defaults = launch();
    std::vector<std::int64_t> told;
    const auto subscription =
        m_notifications.observe(kUserDefaultsDidChangeNotification, [&](const Notification&) {
            told.push_back(defaults->integerForKey(kMinutes));
        });
    defaults->setObject(kMinutes, 5);
    defaults->setObject(kMinutes, 6);
    defaults->removeObject(kMinutes);
    EXPECT_EQ(told, (std::vector<std::int64_t>{5, 6, 0}));
}

TEST_F(UserDefaultsTest, settingWhatIsAlreadyThere_isNotAChange) {
    const auto defaults = launch();
    defaults->setObject(kMinutes, 5);
    defaults->synchronize();
    int told = 0;
    const auto subscription =
        m_notifications.observe(kUserDefaultsDidChangeNotification, [&](const Notification&) { ++told; });
    defaults->setObject(kMinutes, 5);
    defaults->removeObject(kRestart);
    EXPECT_EQ(told, 0);
    EXPECT_EQ(m_loop.activeTimers(), 0);
}

TEST_F(UserDefaultsTest, valuesThatAreSetTogether_areAnnouncedOnce) {
    const auto defaults = launch();
    defaults->setObject(kMinutes, 5);
    int told = 0;
    const Subscription watching =
        m_notifications.observe(kUserDefaultsDidChangeNotification, [&](const Notification&) {
            ++told;
            EXPECT_TRUE(defaults->boolForKey(kDetection)) << "all have changed by then";
            EXPECT_EQ(defaults->integerForKey(kMinutes), 7);
        });
    defaults->setObjects({{kDetection, true}, {kRestart, true}, {kMinutes, 7}});
    EXPECT_EQ(told, 1);
    defaults->setObjects({{kDetection, true}, {kRestart, true}});
    EXPECT_EQ(told, 1) << "nothing is new";
    defaults->synchronize();
    EXPECT_EQ(onDisk().size(), 3U);
}

TEST_F(UserDefaultsTest, anObserverThatChangesAnotherValue_isServed) {
    const auto defaults = launch();
    const auto subscription =
        m_notifications.observe(kUserDefaultsDidChangeNotification,
                                [&](const Notification&) { defaults->setObject(kDetection, true); });
    defaults->setObject(kMinutes, 5);
    m_loop.advance(UserDefaults::kJoiningDelay);
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 5}, {kDetection, true}}));
}

TEST_F(UserDefaultsTest, changes_areWrittenTogetherAfterAWhile) {
    const auto defaults = launch();
    defaults->setObject(kMinutes, 5);
    m_loop.advance(1s);
    defaults->setObject(kMinutes, 6);
    EXPECT_FALSE(QFile::exists(m_path));
    EXPECT_EQ(m_loop.activeTimers(), 1);
    m_loop.advance(1s);
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 6}}));
    EXPECT_EQ(m_loop.activeTimers(), 0);
    defaults->setObject(kMinutes, 7);
    m_loop.advance(UserDefaults::kJoiningDelay);
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 7}}));
}

TEST_F(UserDefaultsTest, synchronize_writesAtOnce) {
    const auto defaults = launch();
    defaults->setObject(kMinutes, 5);
    defaults->synchronize();
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 5}}));
    EXPECT_EQ(m_loop.activeTimers(), 0);
}

TEST_F(UserDefaultsTest, theEnd_writesWhatIsLeft) {
    launch()->setObject(kMinutes, 5);
    EXPECT_EQ(launch()->integerForKey(kMinutes), 5);
}

TEST_F(UserDefaultsTest, theFileAndItsFolder_areForTheUserAlone) {
    launch()->setObject(kMinutes, 5);
    const auto others = QFile::Permissions(0x0077);
    EXPECT_EQ(QFileInfo(m_path).permissions() & others, QFile::Permissions());
    EXPECT_EQ(QFileInfo(QFileInfo(m_path).path()).permissions() & others, QFile::Permissions());
    EXPECT_EQ(QFileInfo(m_path).dir().entryList(QDir::Files).size(), 2)
        << "what is kept beside it, and no temporary file";
    EXPECT_EQ(QFileInfo(m_path + QStringLiteral(".last")).permissions() & others, QFile::Permissions());
}

TEST_F(UserDefaultsTest, aDamagedFile_countsAsEmptyAndIsSetAsideBeforeTheFirstWrite) {
    write("<plist><dict><key>minutesUntilIdle</key>");
    const auto defaults = launch();
    EXPECT_TRUE(m_log.mentions(QStringLiteral("The settings file cannot be read")));
    EXPECT_TRUE(defaults->object(kMinutes).isAbsent());
    EXPECT_TRUE(filesSetAside().isEmpty());
    defaults->setObject(kMinutes, 5);
    defaults->synchronize();
    ASSERT_EQ(filesSetAside().size(), 1);
    QFile aside(QFileInfo(m_path).dir().filePath(filesSetAside().first()));
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), "<plist><dict><key>minutesUntilIdle</key>");
    EXPECT_TRUE(m_log.mentions(filesSetAside().first()));
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 5}}));
}

TEST_F(UserDefaultsTest, aFileThatIsNoDictionary_isSetAsideToo) {
    for (const char* content : {"<plist><array/></plist>", "", "bplist00", "hello"}) {
        write(content);
        launch()->setObject(kMinutes, 5);
        EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 5}})) << content;
    }
    EXPECT_EQ(filesSetAside().size(), 4);
}

TEST_F(UserDefaultsTest, aDamagedFile_isMadeUpForByWhatWasLastWhole) {
    for (const char* content : {"<plist><dict><key>minutes", "", "<plist><array/></plist>"}) {
        launch()->setObject(kMinutes, 5);
        write(content);
        const auto defaults = launch();
        EXPECT_EQ(defaults->integerForKey(kMinutes), 5) << content;
        EXPECT_EQ(defaults->reading(), UserDefaults::Reading::LastGood);
        m_loop.advance(UserDefaults::kJoiningDelay);
        EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 5}})) << "the file itself is whole again";
    }
    EXPECT_EQ(filesSetAside().size(), 3);
    EXPECT_EQ(launch()->reading(), UserDefaults::Reading::Whole);
}

TEST_F(UserDefaultsTest, aFileThatIsLost_isMadeUpForToo) {
    launch()->setObject(kMinutes, 5);
    ASSERT_TRUE(QFile::remove(m_path));
    EXPECT_EQ(launch()->integerForKey(kMinutes), 5);
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 5}}));
}

TEST_F(UserDefaultsTest, whatIsKept_isTheLatestThatWasWhole) {
    const auto defaults = launch();
    for (const int minutes : {5, 6, 7}) {
        defaults->setObject(kMinutes, minutes);
        defaults->synchronize();
    }
    write("damaged");
    EXPECT_EQ(launch()->integerForKey(kMinutes), 7);
}

TEST_F(UserDefaultsTest, whatAnotherProgramHasWritten_isKeptAsWell) {
    const auto defaults = launch();
    UserDefaults(m_path, m_notifications, m_loop, m_log).setObject(kMinutes, 9);
    write("damaged");
    EXPECT_EQ(launch()->integerForKey(kMinutes), 9);
}

TEST_F(UserDefaultsTest, withoutAFileThatCanBeRead_nothingIsKnownAndThatCanBeAsked) {
    EXPECT_EQ(launch()->reading(), UserDefaults::Reading::Whole) << "a first launch";
    write("damaged");
    QFile kept(m_path + QStringLiteral(".last"));
    ASSERT_TRUE(kept.open(QFile::WriteOnly));
    kept.write("damaged too");
    kept.close();
    const auto defaults = launch();
    EXPECT_TRUE(defaults->object(kMinutes).isAbsent());
    EXPECT_EQ(defaults->reading(), UserDefaults::Reading::Nothing);
}

TEST_F(UserDefaultsTest, aFailedWrite_isToldAndTriedAgainAfterAMinute) {
    QFile obstacle(QFileInfo(m_path).path());
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    const auto defaults = launch();
    std::vector<bool> told;
    const auto subscription = m_notifications.observe(
        kUserDefaultsFileNotification, [&](const Notification&) { told.push_back(defaults->isUnwritten()); });
    defaults->setObject(kMinutes, 5);
    defaults->synchronize();
    defaults->setObject(kMinutes, 6);
    defaults->synchronize();
    ASSERT_TRUE(obstacle.remove());
    m_loop.advance(UserDefaults::kRetryDelay);
    EXPECT_EQ(told, (std::vector<bool>{true, false}));
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 6}}));
    EXPECT_EQ(m_loop.activeTimers(), 0);
}

TEST_F(UserDefaultsTest, aValueOfTheWrongType_readsAsFalseAndZero) {
    const PropertyListValue kWrong[] = {QStringLiteral("12"), QByteArray("x"), PropertyListArray{1},
                                        PropertyListDictionary{}, Date()};
    for (const PropertyListValue& wrong : kWrong) {
        const auto defaults = launch();
        defaults->registerDefaults({{kMinutes, 15}});
        defaults->setObject(kMinutes, wrong);
        EXPECT_EQ(defaults->integerForKey(kMinutes), 0);
        EXPECT_FALSE(defaults->boolForKey(kMinutes));
    }
}

TEST_F(UserDefaultsTest, aFileInTheBinaryForm_isRead) {
    QDir().mkpath(QFileInfo(m_path).path());
    ASSERT_TRUE(PropertyList::writeBinaryFile(PropertyListDictionary{{kMinutes, 5}}, m_path));
    EXPECT_EQ(launch()->integerForKey(kMinutes), 5);
}

TEST_F(UserDefaultsTest, aFailedWrite_isLoggedAndTriedAgainWithTheNextChange) {
    // The folder cannot be made, because a file has its name.
    QFile obstacle(QFileInfo(m_path).path());
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    const auto defaults = launch();
    defaults->setObject(kMinutes, 5);
    m_loop.advance(UserDefaults::kJoiningDelay);
    EXPECT_TRUE(m_log.mentions(QStringLiteral("The settings could not be written")));
    ASSERT_TRUE(obstacle.remove());
    defaults->setObject(kDetection, false);
    m_loop.advance(UserDefaults::kJoiningDelay);
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 5}, {kDetection, false}}));
}

TEST_F(UserDefaultsTest, aValueThatNoFileCanHold_isLogged) {
    const auto defaults = launch();
    defaults->setObject(kMinutes, PropertyListArray{PropertyListValue()});
    defaults->synchronize();
    EXPECT_TRUE(m_log.mentions(QStringLiteral("an absent value has no place")));
    defaults->removeObject(kMinutes);
}

// Another program that uses the same settings file.
class SharedSettings : public UserDefaultsTest {
protected:
    void otherProgramSets(const QString& key, const PropertyListValue& value) {
        UserDefaults other(m_path, m_notifications, m_loop, m_log);
        other.setObject(key, value);
        other.synchronize();
    }

    std::unique_ptr<UserDefaults> defaults = [this] {
        otherProgramSets(kMinutes, 7);
        return launch();
    }();
};

TEST_F(SharedSettings, whatAnotherProgramHasWritten_isTakenOverAndAnnouncedOnce) {
    otherProgramSets(kMinutes, 9);
    otherProgramSets(kDetection, true);
    int announcements = 0;
    const Subscription token = m_notifications.observe(kUserDefaultsDidChangeNotification,
                                                       [&](const Notification&) { ++announcements; });
    defaults->refresh();
    EXPECT_EQ(defaults->integerForKey(kMinutes), 9);
    EXPECT_TRUE(defaults->boolForKey(kDetection));
    EXPECT_EQ(announcements, 1);
    defaults->refresh();
    EXPECT_EQ(announcements, 1);
}

TEST_F(SharedSettings, aKeyThatAnotherProgramHasRemoved_answersItsDefaultAgain) {
    defaults->registerDefaults({{kMinutes, 15}});
    otherProgramSets(kMinutes, {});
    defaults->refresh();
    EXPECT_EQ(defaults->integerForKey(kMinutes), 15);
}

TEST_F(SharedSettings, aChangeOfOurOwnThatIsNotYetWritten_winsOverTheOthers) {
    defaults->setObject(kMinutes, 20);
    otherProgramSets(kMinutes, 9);
    otherProgramSets(kDetection, true);
    defaults->refresh();
    EXPECT_EQ(defaults->integerForKey(kMinutes), 20);
    EXPECT_TRUE(defaults->boolForKey(kDetection));
}

TEST_F(SharedSettings, writing_keepsWhatAnotherProgramHasWrittenMeanwhile) {
    otherProgramSets(kDetection, true);
    otherProgramSets(kMinutes, 9);
    defaults->removeObject(kMinutes);
    defaults->setObject(kRestart, true);
    defaults->synchronize();
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kDetection, true}, {kRestart, true}}));
    EXPECT_TRUE(defaults->boolForKey(kDetection));
}

TEST_F(SharedSettings, aFileThatIsDamagedWhileWeRun_changesNothingAndIsSetAsideWhenWeWrite) {
    write("<plist><dict><key>minutes");
    defaults->refresh();
    EXPECT_EQ(defaults->integerForKey(kMinutes), 7);
    EXPECT_TRUE(filesSetAside().isEmpty());
    defaults->setObject(kRestart, true);
    defaults->synchronize();
    EXPECT_EQ(filesSetAside().size(), 1);
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 7}, {kRestart, true}}));
}

TEST_F(SharedSettings, aFileThatHasBecomeWholeAgain_isNotSetAside) {
    write("<plist><dict><key>minutes");
    defaults->refresh();
    QFile::remove(m_path);
    otherProgramSets(kMinutes, 9);
    defaults->setObject(kRestart, true);
    defaults->synchronize();
    EXPECT_TRUE(filesSetAside().isEmpty());
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 9}, {kRestart, true}}));
}

TEST_F(SharedSettings, aFileThatHasGone_changesNothingAndComesBackWhole) {
    QFile::remove(m_path);
    defaults->refresh();
    EXPECT_EQ(defaults->integerForKey(kMinutes), 7);
    defaults->setObject(kRestart, true);
    defaults->synchronize();
    EXPECT_EQ(onDisk(), (PropertyListDictionary{{kMinutes, 7}, {kRestart, true}}));
}

TEST_F(UserDefaultsTest, aTextLongerThanAnyPath_isNoSetting) {
    const QString longest(kLongestText, u'x');
    write(
        PropertyList::xml(PropertyListDictionary{{kRestart, longest}, {kSaveTime, QString(longest + u'x')}}));
    const auto defaults = launch();
    EXPECT_EQ(defaults->object(kRestart).toString(), longest);
    EXPECT_TRUE(defaults->object(kSaveTime).isAbsent());
}

TEST_F(UserDefaultsTest, namesWithinListsAndTables_areCutAndCleaned) {
    const QString longest(kLongestText, u'x');
    write(PropertyList::binary(PropertyListDictionary{
        {kRestart,
         PropertyListArray{PropertyListDictionary{{QStringLiteral("a\nb"), QString(longest + u'x')}}, 3}}}));
    EXPECT_EQ(launch()->object(kRestart), PropertyListValue(PropertyListArray{
                                              PropertyListDictionary{{QStringLiteral("a b"), longest}}, 3}));
}

TEST_F(UserDefaultsTest, aPath_keepsWhatMakesItUp) {
    write(PropertyList::binary(PropertyListDictionary{{kRestart, QStringLiteral("/a\tb")}}));
    EXPECT_EQ(launch()->object(kRestart).toString(), QStringLiteral("/a\tb"));
}

TEST_F(UserDefaultsTest, aFileLargerThanSettingsGet_isSetAsideLikeADamagedOne) {
    constexpr qsizetype kMost = 32 * 1024 * 1024;
    QByteArray content = PropertyList::xml(PropertyListDictionary{{kRestart, true}});
    content += QByteArray(kMost - content.size(), '\n');
    write(content);
    EXPECT_TRUE(launch()->boolForKey(kRestart));
    QFile::remove(m_path + QStringLiteral(".last"));
    write(content + '\n');
    const auto defaults = launch();
    EXPECT_FALSE(defaults->boolForKey(kRestart));
    defaults->setObject(kMinutes, 7);
    defaults->synchronize();
    EXPECT_EQ(filesSetAside().size(), 1);
}

} // namespace
