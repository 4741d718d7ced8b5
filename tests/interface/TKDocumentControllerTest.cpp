// SPDX-License-Identifier: MIT
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

    bool hasBackup() { return QFileInfo::exists(backup); }

    QString file = fakes.home.filePath(QStringLiteral("other.tkd"));
    QString backup = controller.database().importBackupURL();
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
