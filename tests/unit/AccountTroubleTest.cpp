// SPDX-License-Identifier: MIT
#include "Classes/common/AccountTrouble.h"
#include "Classes/engine/Engine.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/statvfs.h>

namespace {

using Kind = AccountTrouble::Kind;

class AccountTroubleTest : public testing::Test {
protected:
    std::string text() const { return str(m_trouble.text()); }

    AccountTrouble m_trouble;
};

TEST_F(AccountTroubleTest, severalTroubles_areALineEachInTheirOrderUntilTheyAreOver) {
    m_trouble.tell(Kind::StoreSetAside, QStringLiteral("Set aside."));
    m_trouble.tell(Kind::StoreUnwritten, QStringLiteral("Full."));
    EXPECT_EQ(text(), "Full.\nSet aside.");
    m_trouble.tell(Kind::StoreUnwritten, QStringLiteral("Read-only."));
    EXPECT_EQ(text(), "Read-only.\nSet aside.");
    m_trouble.end(Kind::StoreUnwritten);
    EXPECT_EQ(text(), "Set aside.");
    m_trouble.end(Kind::StoreSetAside);
    EXPECT_EQ(text(), "");
}

TEST_F(AccountTroubleTest, observers_areToldOfChangesAlone) {
    QStringList told;
    const auto subscription = m_trouble.observe(
        kAccountTroubleKey, [&](const ObservedChange& change) { told << change.newValue.toString(); },
        {.values = true});
    m_trouble.end(Kind::StoreMissing);
    m_trouble.tell(Kind::StoreMissing, QStringLiteral("Missing."));
    m_trouble.tell(Kind::StoreMissing, QStringLiteral("Missing."));
    m_trouble.acknowledge();
    m_trouble.end(Kind::StoreMissing);
    EXPECT_EQ(told, QStringList({QStringLiteral("Missing."), QString()}));
}

TEST_F(AccountTroubleTest, whatTheUserKnows_isShownNoMoreAndWhatIsStillSoStays) {
    m_trouble.tell(Kind::StoreMissing, QStringLiteral("Missing."));
    EXPECT_FALSE(m_trouble.canBeAcknowledged());
    m_trouble.tell(Kind::SettingsSetAside, QStringLiteral("Set aside."));
    m_trouble.tell(Kind::ArchiveKept, QStringLiteral("Kept."));
    EXPECT_TRUE(m_trouble.canBeAcknowledged());
    m_trouble.acknowledge();
    EXPECT_EQ(text(), "Missing.");
    EXPECT_FALSE(m_trouble.canBeAcknowledged());
}

TEST_F(AccountTroubleTest, aFolderThatIsMissing_isNamedAsTheReason) {
    EXPECT_EQ(str(AccountTrouble::unwritten(QStringLiteral("/no/such/folder/times.tkd"))),
              "“times.tkd” cannot be saved: its folder is missing.");
}

TEST_F(AccountTroubleTest, aPlaceWhereNobodyWrites_isNamedAsTheReason) {
    // Not even root can write this file.
    EXPECT_EQ(str(AccountTrouble::unwritten(QStringLiteral("/proc/sys/kernel/ostype"))),
              "“ostype” cannot be saved: its folder is read-only.");
}

TEST_F(AccountTroubleTest, aDiskWithoutRoomForAnotherCopy_isNamedAsTheReason) {
    const QTemporaryDir home;
    QFile hollow(home.filePath(QStringLiteral("times.tkd")));
    ASSERT_TRUE(hollow.open(QFile::WriteOnly));
    struct statvfs disk {};

    ASSERT_EQ(::statvfs(QFile::encodeName(home.path()).constData(), &disk), 0);
    // Much more than there is room for, because others write and delete meanwhile.
    ASSERT_TRUE(hollow.resize(2 * qint64(disk.f_bavail) * qint64(disk.f_frsize)));
    EXPECT_EQ(str(AccountTrouble::unwritten(hollow.fileName())),
              "“times.tkd” cannot be saved: the disk is full.");
}

TEST_F(AccountTroubleTest, whatHasNoReasonThatCanBeSeen_isSaidPlainly) {
    const QTemporaryDir home;
    EXPECT_EQ(str(AccountTrouble::unwritten(home.filePath(QStringLiteral("times.tkd")))),
              "“times.tkd” cannot be saved.");
}

TEST(SettingsTrouble, settingsThatCouldNotBeRead_areToldWithWhatIsTakenInstead) {
    FakePlatform fakes;
    QDir().mkpath(QFileInfo(fakes.folders.settingsFile).path());
    fakes.defaults.setObject(kMinutesUntilIdle, 5);
    fakes.defaults.synchronize();
    QFile file(fakes.folders.settingsFile);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("damaged");
    file.close();
    UserDefaults damaged(fakes.folders.settingsFile, fakes.notifications, fakes.runLoop, fakes.log);
    Platform platform{fakes.clock,
                      fakes.runLoop,
                      fakes.log,
                      fakes.notifications,
                      damaged,
                      fakes.folders,
                      fakes.frontApplication,
                      fakes.windowList,
                      fakes.idleTime,
                      fakes.power,
                      fakes.session,
                      fakes.accessibility,
                      fakes.fileViewer,
                      fakes.sandbox,
                      fakes.serviceManagement,
                      fakes.ownProgram,
                      fakes.taskBar,
                      fakes.systemTray,
                      fakes.loginItems};
    Engine engine(platform, {});
    EXPECT_EQ(str(engine.trouble().text()),
              "“org.ticklog.Ticklog.plist” could not be read. Ticklog continues with the last "
              "settings that it kept.");
}

TEST(SettingsTrouble, settingsThatCannotBeWritten_areToldUntilTheyCan) {
    FakePlatform fakes;
    Engine engine(fakes.platform, {});
    QFile inTheWay(QFileInfo(fakes.folders.settingsFile).path());
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    fakes.defaults.setObject(kMinutesUntilIdle, 5);
    fakes.defaults.synchronize();
    EXPECT_EQ(str(engine.trouble().text()),
              "“org.ticklog.Ticklog.plist” cannot be saved: its folder is missing.");
    ASSERT_TRUE(inTheWay.remove());
    fakes.runLoop.advance(UserDefaults::kRetryDelay);
    EXPECT_EQ(str(engine.trouble().text()), "");
}

} // namespace
