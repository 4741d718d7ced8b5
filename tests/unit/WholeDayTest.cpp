// SPDX-License-Identifier: MIT
// One day through all steps, from the window list to the files, compared as text.
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/AccountEntries.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/time/DateStyles.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A day with the database that a launch would read and a stop would write.
class WholeDayTest : public testing::Test {
protected:
    struct Launch {
        explicit Launch(Day& livedDay)
            : day(livedDay)
            , database(day.tracker, day.store, day.fakes.defaults, day.fakes.folders, {}) {
            day.control.registerForSystemSleep(day.fakes.power);
        }

        Day& day;
        TimeDatabase database;
    };

    // Nodes as "  Mail 20 (shown as Post, frozen)", in the order of the file.
    static QString row(const PropertyListDictionary& record) {
        QString text =
            u"%1 %2"_s.arg(record.value(kRecordName).toString(),
                           QString::number(record.value(kRecordActiveTime).number().value_or(-1), 'f', 1));
        if (record.contains(kRecordRenamedName))
            text += u" shown as "_s + record.value(kRecordRenamedName).toString();
        if (record.value(kRecordBranched).toBool())
            text += u", frozen"_s;
        const QByteArray* identity = record.value(kRecordUUID).asData();
        return identity && identity->size() == 8 ? text : text + u", without identity"_s;
    }

    static std::string fileAsText(const QString& path) {
        const auto file = PropertyList::readFile(path);
        if (!file || !file->asDictionary())
            return "unreadable";
        QStringList lines{u"Version "_s + file->asDictionary()->value(kDatabaseVersion).toString()};
        for (const PropertyListValue& entry : *file->asDictionary()->value(kDatabaseApps).asArray()) {
            lines << row(*entry.asDictionary()->value(kEntryApp).asDictionary());
            for (const PropertyListValue& window : *entry.asDictionary()->value(kEntryWindows).asArray())
                lines << u"  "_s + row(*window.asDictionary());
        }
        return str(lines.join(u'\n'));
    }

    // What a person does from nine until lunch.
    static void liveTheMorning(Day& day) {
        day.front("Terminal", "me@host: ~/src");
        day.start();
        day.seconds(30);
        day.front("Editor", "report.txt");
        day.seconds(600);
        day.retitle("report.txt (edited)");
        day.seconds(300);
        day.window("notes.txt");
        day.seconds(60);
        day.front("Mail", "Inbox (3)");
        day.seconds(120.5);
        day.frontSilently("Browser", "(1) News");
        day.seconds(90);
        // A coffee break: after 900 of the display's seconds the user counts as idle.
        day.idle(1200);
        day.front("Editor", "report.txt (edited)");
        day.seconds(10);
        day.asleep(3600);
        day.seconds(20);
        day.front("ScreenSaverEngine");
        day.seconds(45);
        day.front("Editor", "report.txt (edited)");
        day.freeze("Editor", "notes.txt");
        day.node("Terminal").setRenamedNameFormatted({{kRecordName, u"Shell"_s}});
        day.seconds(5);
    }
};

TEST_F(WholeDayTest, aMorning_isInTheFileAsItWasLived) {
    Day day;
    Launch launch(day);
    liveTheMorning(day);
    day.stop();
    ASSERT_TRUE(launch.database.saveSettingsToDiskAtURL());
    const std::string frozen = str(u" (Frozen %1)"_s.arg(shortDate(day.fakes.clock.now())));
    EXPECT_EQ(fileAsText(launch.database.mainStoreURL()), "Version 1.5\n"
                                                          "Terminal 30.0 shown as Shell\n"
                                                          "  me 30.0\n"
                                                          "Editor 995.0\n"
                                                          "  notes.txt" +
                                                              frozen +
                                                              " 60.0 shown as notes.txt, frozen\n"
                                                              "  report.txt 935.0\n"
                                                              "Mail 120.5\n"
                                                              "  Inbox 120.5\n"
                                                              "Browser 1056.3\n"
                                                              "Idle 1178.6");
    EXPECT_TRUE(day.fakes.log.lines.isEmpty()) << str(day.fakes.log.lines.join(u'\n'));
    EXPECT_TRUE(day.fakes.runLoop.failures().isEmpty());
}

TEST_F(WholeDayTest, theNextLaunch_goesOnWhereTheLastOneEnded) {
    Day day;
    Launch launch(day);
    liveTheMorning(day);
    const QString copy = day.fakes.home.filePath(u"copy.tkd"_s);
    ASSERT_TRUE(launch.database.saveSettingsToDiskAtURL(copy));
    Day next;
    Launch again(next);
    ASSERT_TRUE(again.database.importDatabase(copy));
    EXPECT_EQ(next.tree(), day.tree());
    for (const auto& app : day.tracker.fullTimeSet())
        EXPECT_EQ(next.node(app->name().toUtf8().constData()).uuid(), app->uuid()) << str(app->name());
    next.front("Editor", "report.txt");
    next.start();
    next.seconds(7);
    EXPECT_NEAR(next.secondsOf("Editor", "report.txt"), day.secondsOf("Editor", "report.txt") + 7, 0.05);
    // Ticklog itself is counted, Idle is not.
    EXPECT_NEAR(next.tracker.totalTime(), 2208.8, 0.11);
}

TEST_F(WholeDayTest, theMorningsSum_isWhatPassedAndWhatWasBookedAsIdle) {
    Day day;
    Launch launch(day);
    const Date start = day.fakes.clock.now();
    liveTheMorning(day);
    const double awake = secondsBetween(start, day.fakes.clock.now()) - 3600;
    double sum = 0;
    for (const auto& app : day.tracker.fullTimeSet())
        sum += app->activeTime();
    // At the onset 900 seconds are booked, in addition to the time until then; the onset's own tick belongs
    // to nobody.
    EXPECT_NEAR(sum, awake + 900 - 0.1, 0.2);
}

} // namespace
