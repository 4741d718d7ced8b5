// SPDX-License-Identifier: MIT
#include "platform/linux/SettingsWatch.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/desktop/harness/WaitFor.h"
#include "tests/fakes/ManualRunLoop.h"
#include "tests/fakes/RecordingLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

const QString kMinutes = QStringLiteral("minutesUntilIdle");

// Ticklog and another program that both write one real file.
class SettingsWatchTest : public testing::Test {
protected:
    void otherProgramSets(int minutes) {
        UserDefaults other(m_path, m_othersNotifications, m_runLoop, m_log);
        other.setObject(kMinutes, minutes);
        other.synchronize();
    }

    // Like an editor that writes the file in place.
    void writtenInPlace(int minutes) {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("<plist version=\"1.0\"><dict><key>minutesUntilIdle</key><integer>");
        file.flush();
        file.write(QByteArray::number(minutes) + "</integer></dict></plist>");
    }

    bool reads(int minutes) {
        return waitFor([&] {
            m_timers.advance(SettingsWatch::kPatience);
            return m_defaults.integerForKey(kMinutes) == minutes;
        });
    }

    // Whether all that has been noticed of the file has been looked into.
    bool isCalm() {
        return waitFor([&] {
            m_timers.advance(SettingsWatch::kPatience);
            return m_timers.activeTimers() == 0;
        });
    }

    TemporaryHome m_home;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    NotificationCenter m_notifications;
    NotificationCenter m_othersNotifications;
    QString m_path = m_home.path() + QStringLiteral("/not/yet/there/settings.plist");
    UserDefaults m_defaults{m_path, m_notifications, m_runLoop, m_log};
    HandClock m_clock;
    ManualRunLoop m_timers{m_clock};
    SettingsWatch m_watch{m_defaults, m_timers};
};

TEST_F(SettingsWatchTest, aFileThatAppears_isReadAndFollowedFromThenOn) {
    otherProgramSets(7);
    EXPECT_TRUE(reads(7));
    otherProgramSets(9);
    EXPECT_TRUE(reads(9));
    otherProgramSets(11);
    EXPECT_TRUE(reads(11));
}

TEST_F(SettingsWatchTest, aFileWrittenInPlace_isReadWhenItIsWhole) {
    otherProgramSets(7);
    EXPECT_TRUE(reads(7));
    writtenInPlace(12);
    EXPECT_TRUE(reads(12));
    EXPECT_FALSE(m_log.mentions(QStringLiteral("cannot be read")));
}

TEST_F(SettingsWatchTest, aFileThatGoesAndComesBack_isFollowedAgain) {
    otherProgramSets(7);
    EXPECT_TRUE(reads(7));
    ASSERT_TRUE(isCalm());
    QFile::remove(m_path);
    ASSERT_TRUE(waitFor([this] { return m_timers.activeTimers() > 0; }));
    m_timers.advance(SettingsWatch::kPatience);
    EXPECT_EQ(m_defaults.integerForKey(kMinutes), 7);
    otherProgramSets(9);
    EXPECT_TRUE(reads(9));
}

TEST_F(SettingsWatchTest, whatWeWriteOurselves_isNoNews) {
    int announcements = 0;
    m_defaults.setObject(kMinutes, 7);
    const Subscription token = m_notifications.observe(kUserDefaultsDidChangeNotification,
                                                       [&](const Notification&) { ++announcements; });
    m_defaults.synchronize();
    ASSERT_TRUE(waitFor([this] { return m_timers.activeTimers() > 0; }));
    ASSERT_TRUE(isCalm());
    EXPECT_EQ(announcements, 0);
    EXPECT_EQ(m_defaults.integerForKey(kMinutes), 7);
}

} // namespace
