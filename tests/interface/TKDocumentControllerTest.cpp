// SPDX-License-Identifier: MIT
#include "Classes/store/AccountEntries.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/interface/Desk.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

struct TKDocumentControllerTest : testing::Test, Desk {
    TKDocumentControllerTest() {
        account("Mail", 30);
        controller.saveSettingsToDisk();
        QFile(controller.database().mainStoreURL()).copy(file);
        controller.tracker().reset();
        account("Notes", 60);
        controller.saveSettingsToDisk();
        show();
    }

    void open(const QString& location) {
        controller.documents().openDocumentWithContentsOfURL(location, [this](bool alreadyOpen) {
            EXPECT_FALSE(alreadyOpen);
            ++completions;
        });
        settle();
    }

    // "Notes" with an identity from another account, with this many windows.
    QString fileOfMany(int windows) {
        PropertyListArray list;
        for (int i = 0; i < windows; ++i)
            list.emplace_back(PropertyListDictionary{{kRecordName, QString::number(i)}});
        const PropertyListDictionary notes{
            {kRecordName, QStringLiteral("Notes")}, {kRecordActiveTime, 1}, {kRecordUUID, kOther.bytes()}};
        const PropertyListArray apps{PropertyListDictionary{{kEntryApp, notes}, {kEntryWindows, list}}};
        const QString path = fakes.home.filePath(QStringLiteral("many.tkd"));
        EXPECT_TRUE(PropertyList::writeXmlFile(
            PropertyListDictionary{{kDatabaseVersion, QStringLiteral("1.5")}, {kDatabaseApps, apps}}, path));
        return path;
    }

    std::optional<Identity> idOf(const char* name) {
        for (const auto& app : controller.tracker().fullTimeSet())
            if (app->name() == QLatin1String(name))
                return app->uuid();
        return std::nullopt;
    }

    const Identity kOther = *Identity::fromBytes("othernot");
    bool hasBackup() { return QFileInfo::exists(backup); }

    QString file = fakes.home.filePath(QStringLiteral("other.tkd"));
    QString backup = controller.database().importBackupPath();
    int completions = 0;
};

} // namespace

TEST_F(TKDocumentControllerTest, opening_asksWhetherToReplaceTheTimers) {
    open(file);
    EXPECT_EQ(alerts.last.message, QStringLiteral("Replacing timers"));
    EXPECT_EQ(alerts.last.informativeText,
              QStringLiteral("Importing timers will replace all current timers. Your current timers will be "
                             "saved in a backup file next to the Ticklog database."));
    EXPECT_EQ(alerts.last.defaultButton, QStringLiteral("Cancel"));
    EXPECT_EQ(alerts.last.alternateButton, QStringLiteral("Replace"));
}

TEST_F(TKDocumentControllerTest, cancelled_leavesEverything) {
    open(file);
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:01:00"));
    EXPECT_FALSE(hasBackup());
    EXPECT_EQ(completions, 1);
}

TEST_F(TKDocumentControllerTest, replaced_backsUpAndShowsTheOtherTimers) {
    alerts.answer = Alerts::Alternate;
    model().setData(row("Notes"), QStringLiteral("List"));
    open(file);
    EXPECT_EQ(textOf(model()), QStringLiteral("Mail 00:00:30"));
    EXPECT_TRUE(hasBackup());
    EXPECT_EQ(alerts.errors, QStringList());
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(actions().undo->isEnabled()) << "what could be undone is gone";
}

TEST_F(TKDocumentControllerTest, anUnreadableFile_isBackedUpForAndLeavesTheTimers) {
    alerts.answer = Alerts::Alternate;
    open(fakes.home.filePath(QStringLiteral("missing.tkd")));
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:01:00"));
    EXPECT_TRUE(hasBackup());
    EXPECT_EQ(completions, 1);
    ASSERT_EQ(alerts.errors.size(), 1) << "and says so";
    EXPECT_TRUE(alerts.errors.first().startsWith(QStringLiteral("The timers could not be imported.")));
}

TEST_F(TKDocumentControllerTest, withoutABackup_nothingIsReplacedAndThatIsSaid) {
    alerts.answer = Alerts::Alternate;
    ASSERT_TRUE(QDir(fakes.folders.applicationSupport).removeRecursively());
    open(file);
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:01:00"));
    EXPECT_EQ(completions, 1);
    ASSERT_EQ(alerts.errors.size(), 1);
    EXPECT_TRUE(alerts.errors.first().contains(QStringLiteral("No backup could be made")));
}

TEST_F(TKDocumentControllerTest, givenUpWhileItIsRead_leavesEverything) {
    alerts.answer = Alerts::Alternate;
    alerts.givesUp = true;
    open(file);
    EXPECT_EQ(alerts.panels, QStringList(QStringLiteral("Importing…")));
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:01:00"));
    EXPECT_FALSE(hasBackup());
    EXPECT_EQ(completions, 1);
}

TEST_F(TKDocumentControllerTest, manyTimers_areMadeSomeAtATimeBesideThoseThereAre) {
    alerts.answer = Alerts::Alternate;
    open(fileOfMany(25'000));
    const auto made = std::ranges::count_if(alerts.parts, [](double part) { return part > 0.5 && part < 1; });
    EXPECT_EQ(made, 2) << "ten thousand at a time, and the rest is the end";
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:00:01"));
    EXPECT_EQ(controller.tracker().fullTimeSet().front()->windowCount(), 25'000U);
    EXPECT_EQ(idOf("Notes"), kOther);
}

TEST_F(TKDocumentControllerTest, givenUpWhileTimersAreMade_leavesEverythingAndEveryName) {
    const auto before = idOf("Notes");
    alerts.answer = Alerts::Alternate;
    alerts.givesUpAfter = 0.6;
    open(fileOfMany(25'000));
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:01:00"));
    EXPECT_FALSE(hasBackup());
    controller.tracker().reset();
    account("Notes", 1);
    EXPECT_EQ(idOf("Notes"), before);
}

TEST_F(TKDocumentControllerTest, theMenu_hasTheFileChosenFirst) {
    alerts.answer = Alerts::Alternate;
    command(actions().importDatabase);
    EXPECT_EQ(alerts.questions, QStringList()) << "no file, no question";
    alerts.location = file;
    command(actions().importDatabase);
    EXPECT_EQ(textOf(model()), QStringLiteral("Mail 00:00:30"));
}

TEST_F(TKDocumentControllerTest, aCopy_isSavedWhereItIsWanted) {
    alerts.location = fakes.home.filePath(QStringLiteral("copy.tkd"));
    command(actions().saveCopy);
    EXPECT_TRUE(alerts.lastReplaces);
    EXPECT_TRUE(QFileInfo::exists(*alerts.location));
    EXPECT_EQ(controller.database().mainStoreURL(), controller.database().defaultMainStoreURL());
    alerts.location = fakes.home.filePath(QStringLiteral("no/such/folder/copy.tkd"));
    command(actions().saveCopy);
    EXPECT_EQ(alerts.errors.size(), 1);
}
