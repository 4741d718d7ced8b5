// SPDX-License-Identifier: MIT
#include "Classes/common/Settings.h"
#include "tests/fakes/Database.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

// A main store on a stick, and launches with and without the stick.
class MainStoreOnAStickTest : public DatabaseTest {
protected:
    MainStoreOnAStickTest() {
        QDir().mkpath(stick);
        engine.tracker().addWindowWithName(QStringLiteral("Mail"), 100);
        EXPECT_TRUE(database.saveSettingsToDiskAtURL());
        EXPECT_TRUE(database.chooseDatabaseLocation(store));
        count("Mail", 20);
        EXPECT_TRUE(database.saveSettingsToDiskAtURL());
    }

    void pullOut() { EXPECT_TRUE(QDir().rename(stick, stick + QStringLiteral(" elsewhere"))); }
    void plugIn() { EXPECT_TRUE(QDir().rename(stick + QStringLiteral(" elsewhere"), stick)); }

    TimeDatabase& launch() {
        fakes.defaults.synchronize();
        m_later.reset();
        engine.tracker().reset();
        m_later.emplace(engine.tracker(), engine.services().store, fakes.defaults, fakes.folders, hooks());
        m_later->loadMainStore();
        return *m_later;
    }

    // Without a notification: the database of before the launch would hear of it, too.
    void count(const char* name, double seconds) {
        const QString text = QString::fromUtf8(name);
        const auto& all = engine.tracker().fullTimeSet();
        const auto found = std::ranges::find_if(all, [&](const auto& app) { return app->name() == text; });
        if (found != all.end())
            (*found)->addTimeInterval(seconds);
        else
            engine.tracker().addWindowWithName(text, seconds);
        const auto app = std::ranges::find_if(all, [&](const auto& one) { return one->name() == text; });
        (*app)->putBack(
            PropertyListDictionary{{kRecordName, QStringLiteral("w")}, {kRecordActiveTime, seconds}});
    }

    QString stick = fakes.home.filePath(QStringLiteral("stick"));
    QString store = stick + QStringLiteral("/times.tkd");

private:
    std::optional<TimeDatabase> m_later;
};

TEST_F(MainStoreOnAStickTest, missingAtLaunch_isSaidAndAnEmptyAccountBeginsAtTheDefaultPlace) {
    pullOut();
    const TimeDatabase& later = launch();
    EXPECT_TRUE(later.isAwaitingMainStore());
    EXPECT_EQ(later.mainStoreURL(), later.defaultMainStoreURL());
    EXPECT_TRUE(engine.trouble().text().startsWith(QStringLiteral("The database “times.tkd” is missing.")));
    EXPECT_EQ(tree(), QString()) << "the copy from before the move is no part of the account";
    const QDir folder(fakes.folders.applicationSupport);
    EXPECT_EQ(folder.entryList({QStringLiteral("*.damaged-*")}).size(), 1) << "and is kept";
}

TEST_F(MainStoreOnAStickTest, backWhileItRuns_isBroughtTogetherWithWhatWasCountedMeanwhile) {
    pullOut();
    TimeDatabase& later = launch();
    count("Mail", 3);
    count("Editor", 5);
    plugIn();
    fakes.runLoop.advance(std::chrono::seconds(10));
    EXPECT_EQ(tree(), QStringLiteral("Mail 123 [w 23], Editor 5 [w 5]"));
    EXPECT_EQ(later.mainStoreURL(), store);
    EXPECT_EQ(engine.trouble().text(), QString());
    engine.tracker().reset();
    ASSERT_TRUE(later.loadDictionaryFromURL(store));
    EXPECT_EQ(tree(), QStringLiteral("Mail 123 [w 23], Editor 5 [w 5]")) << "saved at once";
    launch();
    EXPECT_EQ(tree(), QStringLiteral("Mail 123 [w 23], Editor 5 [w 5]")) << "once";
}

TEST_F(MainStoreOnAStickTest, backAtALaterLaunch_isBroughtTogetherWithWhatSeveralRunsHaveCounted) {
    pullOut();
    static_cast<void>(launch());
    count("Mail", 3);
    ASSERT_TRUE(launch().saveSettingsToDiskAtURL()) << "a run that ended without a save";
    EXPECT_EQ(tree(), QString());
    count("Mail", 4);
    TimeDatabase& second = launch();
    count("Mail", 5);
    ASSERT_TRUE(second.saveSettingsToDiskAtURL());
    TimeDatabase& third = launch();
    EXPECT_EQ(tree(), QStringLiteral("Mail 5 [w 5]"));
    count("Editor", 6);
    ASSERT_TRUE(third.saveSettingsToDiskAtURL());
    plugIn();
    launch();
    EXPECT_EQ(tree(), QStringLiteral("Mail 125 [w 25], Editor 6 [w 6]"));
    EXPECT_EQ(engine.trouble().text(), QString());
    launch();
    EXPECT_EQ(tree(), QStringLiteral("Mail 125 [w 25], Editor 6 [w 6]"));
}

TEST_F(MainStoreOnAStickTest, killedAfterTheSaveThatBringsTogether_addsNothingTwice) {
    pullOut();
    TimeDatabase& later = launch();
    count("Mail", 3);
    ASSERT_TRUE(later.saveSettingsToDiskAtURL());
    const QString meanwhile = later.defaultMainStoreURL();
    ASSERT_TRUE(QFile::copy(meanwhile, meanwhile + QStringLiteral(" copy")));
    const PropertyListValue of = fakes.defaults.object(kMeanwhileOf);
    PropertyListValue notYetIn;
    const Subscription settings =
        fakes.notifications.observe(kUserDefaultsDidChangeNotification, [&](const Notification&) {
            if (const auto& value = fakes.defaults.object(kMeanwhileNotYetIn); !value.isAbsent())
                notYetIn = value;
        });
    plugIn();
    fakes.runLoop.advance(std::chrono::seconds(10));
    ASSERT_FALSE(notYetIn.isAbsent());
    // As it is just after the save.
    ASSERT_TRUE(QFile::rename(meanwhile + QStringLiteral(" copy"), meanwhile));
    fakes.defaults.setObject(kMeanwhileOf, of);
    fakes.defaults.setObject(kMeanwhileNotYetIn, notYetIn);
    launch();
    EXPECT_EQ(tree(), QStringLiteral("Mail 123 [w 23]"));
}

TEST_F(MainStoreOnAStickTest, killedBeforeTheSaveThatBringsTogether_addsItAtTheNextLaunch) {
    pullOut();
    TimeDatabase& later = launch();
    count("Mail", 3);
    ASSERT_TRUE(later.saveSettingsToDiskAtURL());
    plugIn();
    const QFileInfo info(store);
    fakes.defaults.setObject(
        kMeanwhileNotYetIn,
        QStringLiteral("%1 %2 %3").arg(info.size()).arg(info.lastModified().toSecsSinceEpoch()).arg(0));
    // Whole seconds, so the test need not know the rest.
    QFile file(store);
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    const auto whole = QDateTime::fromSecsSinceEpoch(info.lastModified().toSecsSinceEpoch());
    ASSERT_TRUE(file.setFileTime(whole, QFile::FileModificationTime));
    file.close();
    launch();
    EXPECT_EQ(tree(), QStringLiteral("Mail 123 [w 23]"));
}

TEST_F(MainStoreOnAStickTest, backButDamaged_isSetAsideAndWhatWasCountedMeanwhileGoesOn) {
    pullOut();
    static_cast<void>(launch());
    count("Mail", 3);
    plugIn();
    write(QStringLiteral("stick/times.tkd"), QByteArray("damaged"));
    fakes.runLoop.advance(std::chrono::seconds(10));
    EXPECT_EQ(tree(), QStringLiteral("Mail 3 [w 3]"));
    EXPECT_EQ(QDir(stick).entryList({QStringLiteral("*.damaged-*")}).size(), 1);
    EXPECT_TRUE(engine.trouble().text().contains(QStringLiteral("“times.tkd” could not be read")));
}

TEST_F(MainStoreOnAStickTest, theDefaultPlaceRestoredMeanwhile_isWaitedForNoMore) {
    pullOut();
    TimeDatabase& later = launch();
    count("Mail", 3);
    later.restoreDefaultDatabaseLocation();
    ASSERT_TRUE(later.saveSettingsToDiskAtURL());
    EXPECT_FALSE(later.isAwaitingMainStore());
    EXPECT_EQ(engine.trouble().text(), QString());
    plugIn();
    launch();
    EXPECT_EQ(tree(), QStringLiteral("Mail 3 [w 3]"));
}

} // namespace
