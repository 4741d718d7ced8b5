// SPDX-License-Identifier: MIT
#include "tests/interface/Desk.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

struct TKControllerTest : testing::Test, Desk {
    QString caption() {
        return controller.window().findChild<QLabel*>(QStringLiteral("timeSumCaption"))->text();
    }

    QString start() { return actions().toggleCounting->text(); }
};

const QString kMailAndNotes = QStringLiteral("Mail 00:00:30 [Inbox 00:00:20, Sent 00:00:10], Notes 00:01:00");

} // namespace

TEST_F(TKControllerTest, theFirstStart_showsAnEmptyWindowAndAnIdleTimer) {
    show();
    EXPECT_EQ(controller.window().windowTitle(), QStringLiteral("Ticklog"));
    EXPECT_EQ(start(), QStringLiteral("Start"));
    EXPECT_EQ(sumShown(), QStringLiteral("00:00:00"));
    EXPECT_EQ(caption(), QStringLiteral("Total"));
    EXPECT_FALSE(actions().deleteRows->isEnabled());
    EXPECT_FALSE(actions().undo->isEnabled());
}

TEST_F(TKControllerTest, startAndPause_countAndShowIt) {
    show();
    front("Mail", "Inbox");
    command(actions().toggleCounting);
    EXPECT_EQ(start(), QStringLiteral("Pause"));
    seconds(12.5);
    EXPECT_EQ(textOf(model()), QStringLiteral("Mail 00:00:12"));
    EXPECT_EQ(sumShown(), QStringLiteral("00:00:12"));
    command(actions().toggleCounting);
    EXPECT_EQ(start(), QStringLiteral("Start"));
    seconds(30);
    EXPECT_EQ(sumShown(), QStringLiteral("00:00:12"));
    EXPECT_TRUE(QFileInfo::exists(controller.database().mainStoreURL()));
}

TEST_F(TKControllerTest, aHiddenWindow_isNotTouchedByTicks) {
    show();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(5.5);
    controller.window().hide();
    QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    front("Notes", "List");
    seconds(60);
    EXPECT_EQ(changed.count() + inserted.count(), 0);
    EXPECT_EQ(sumShown(), QStringLiteral("00:00:05"));
    show();
    EXPECT_EQ(sumShown(), QStringLiteral("00:01:05"));
    EXPECT_EQ(model().rowCount(), 2);
}

TEST_F(TKControllerTest, aMinimisedWindow_isNotTouchedByTicks) {
    show();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(5.5);
    controller.window().showMinimized();
    settle();
    seconds(60);
    EXPECT_EQ(sumShown(), QStringLiteral("00:00:05"));
    controller.displayMainWindow();
    settle();
    EXPECT_FALSE(controller.window().isMinimized());
    EXPECT_EQ(sumShown(), QStringLiteral("00:01:05"));
}

TEST_F(TKControllerTest, theSumText_changesOnceASecond) {
    show();
    front("Mail", "Inbox");
    controller.timer().startTimer();
    seconds(0.25);
    QStringList shown{sumShown()};
    for (int tenth = 0; tenth < 200; ++tenth) {
        seconds(0.1);
        if (sumShown() != shown.last())
            shown << sumShown();
    }
    EXPECT_EQ(shown.size(), 21);
}

TEST_F(TKControllerTest, aSelection_isSummedWithoutCountingTwice) {
    account("Mail", 30, {{QStringLiteral("Inbox"), 20}, {QStringLiteral("Sent"), 10}});
    account("Notes", 60);
    show();
    table().expandAll();
    EXPECT_EQ(textOf(model()), kMailAndNotes);
    EXPECT_EQ(sumShown(), QStringLiteral("00:01:30"));
    select({row("Mail"), row("Inbox", row("Mail"))});
    EXPECT_EQ(sumShown(), QStringLiteral("00:00:30")) << "the window counts through its application";
    EXPECT_EQ(caption(), QStringLiteral("Selected"));
    select({row("Inbox", row("Mail")), row("Notes")});
    EXPECT_EQ(sumShown(), QStringLiteral("00:01:20"));
    controller.deselectAll();
    EXPECT_EQ(sumShown(), QStringLiteral("00:01:30"));
    EXPECT_EQ(caption(), QStringLiteral("Total"));
}

TEST_F(TKControllerTest, theSumInAllItsForms_readsAsItShould) {
    account("Mail", 3661);
    account("Notes", 60);
    show();
    SumMode mode = SumMode::None;
    EXPECT_EQ(controller.totalTimeStringForAllObjects(0, &mode), QStringLiteral("01:02:01"));
    EXPECT_EQ(mode, SumMode::Total);
    EXPECT_EQ(controller.totalTimeStringForAllObjects(2, &mode), QStringLiteral("1 hour, 2 minutes"));
    EXPECT_EQ(controller.totalTimeStringForAllObjects(1, nullptr), QStringLiteral("total\n01:02:01"));
    select({row("Notes")});
    EXPECT_EQ(controller.totalTimeStringForAllObjects(0, nullptr), QStringLiteral("selected\n00:01:00"));
    EXPECT_EQ(controller.totalTimeStringForAllObjects(1, &mode), QStringLiteral("01:02:01"));
    EXPECT_EQ(mode, SumMode::Total) << "everything is everything, whatever is selected";
}

TEST_F(TKControllerTest, aSettingThatChangesTheSum_isSeenAtOnce) {
    account("Mail", 30);
    account("Idle", 60);
    fakes.defaults.setObject(kIncludeIdleInSumofTimes, true);
    show();
    EXPECT_EQ(sumShown(), QStringLiteral("00:01:30"));
    fakes.defaults.setObject(kIncludeIdleInSumofTimes, false);
    EXPECT_EQ(sumShown(), QStringLiteral("00:00:30"));
}

TEST_F(TKControllerTest, deleting_asksAndKeepsOrDeletes) {
    account("Mail", 30);
    account("Notes", 60);
    show();
    select({row("Mail")});
    QTest::keyClick(&table(), Qt::Key_Delete);
    EXPECT_EQ(alerts.last.message, QStringLiteral("Delete selected times"));
    EXPECT_EQ(alerts.last.informativeText,
              QStringLiteral("Are you sure you wish permanently delete the selected timing rows?"));
    EXPECT_EQ(alerts.last.defaultButton, QStringLiteral("Keep"));
    EXPECT_EQ(alerts.last.alternateButton, QStringLiteral("Delete"));
    EXPECT_EQ(model().rowCount(), 2);
    alerts.answer = Alerts::Alternate;
    command(actions().deleteRows);
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:01:00"));
}

TEST_F(TKControllerTest, deletingWhatChangesMeanwhile_deletesWhatWasSelectedThen) {
    account("Mail", 30);
    account("Notes", 60);
    show();
    select({row("Mail")});
    alerts.answer = Alerts::Alternate;
    alerts.whileAsking = [this] { select({row("Notes")}); };
    command(actions().deleteRows);
    EXPECT_EQ(textOf(model()), QStringLiteral("Notes 00:01:00"));
}

TEST_F(TKControllerTest, forcedDeleting_asksNobody) {
    account("Mail", 30);
    show();
    select({row("Mail")});
    controller.tableViewDidReceiveDeleteKey(true);
    settle();
    EXPECT_EQ(model().rowCount(), 0);
    EXPECT_EQ(alerts.questions, QStringList());
}

TEST_F(TKControllerTest, clearing_asksAndSaves) {
    account("Mail", 30);
    show();
    command(actions().clearTimers);
    EXPECT_EQ(alerts.last.message, QStringLiteral("Clear Timers"));
    EXPECT_EQ(alerts.last.informativeText,
              QStringLiteral("Are you sure you wish to clear the currently visible timers?"));
    EXPECT_EQ(alerts.last.defaultButton, QStringLiteral("Cancel"));
    EXPECT_EQ(model().rowCount(), 1);
    alerts.answer = Alerts::Alternate;
    command(actions().clearTimers);
    EXPECT_EQ(model().rowCount(), 0);
    EXPECT_TRUE(QFileInfo::exists(controller.database().mainStoreURL()));
}

TEST_F(TKControllerTest, aSlipOfTheName_canBeTakenBack) {
    account("Mail", 30);
    show();
    model().setData(row("Mail"), QStringLiteral("Mial"));
    settle();
    EXPECT_EQ(textOf(model()), QStringLiteral("Mial – Mail 00:00:30"));
    command(actions().undo);
    EXPECT_EQ(textOf(model()), QStringLiteral("Mail 00:00:30"));
    EXPECT_FALSE(actions().undo->isEnabled());
    command(actions().redo);
    EXPECT_EQ(textOf(model()), QStringLiteral("Mial – Mail 00:00:30"));
    model().setData(row("Mial"), QString());
    EXPECT_EQ(textOf(model()), QStringLiteral("Mail 00:00:30")) << "nothing is no name";
    model().setData(row("Mail"), QStringLiteral("Mail"));
    command(actions().undo);
    EXPECT_EQ(textOf(model()), QStringLiteral("Mial – Mail 00:00:30")) << "what changes nothing is no step";
}

TEST_F(TKControllerTest, theDatabase_moves) {
    account("Mail", 30);
    show();
    const QString elsewhere = fakes.home.filePath(QStringLiteral("elsewhere.tkd"));
    command(actions().chooseDatabaseLocation);
    EXPECT_EQ(alerts.panels.last(), QStringLiteral("Set storage database location."));
    EXPECT_EQ(controller.database().mainStoreURL(), controller.database().defaultMainStoreURL());
    alerts.location = elsewhere;
    command(actions().chooseDatabaseLocation);
    EXPECT_EQ(alerts.errors, QStringList());
    EXPECT_EQ(controller.database().mainStoreURL(), elsewhere);
    EXPECT_TRUE(QFileInfo::exists(elsewhere));
    command(actions().chooseDatabaseLocation);
    EXPECT_EQ(alerts.errors.size(), 1) << "a file stands there already";
    command(actions().revealDatabase);
    EXPECT_EQ(fakes.fileViewer.revealed.last(), elsewhere);
    command(actions().restoreDefaultDatabaseLocation);
    EXPECT_EQ(controller.database().mainStoreURL(), controller.database().defaultMainStoreURL());
}

TEST_F(TKControllerTest, theLastReset_isTheToolTipOfClearing) {
    EXPECT_EQ(actions().clearTimers->toolTip(), controller.tracker().lastResetDateDisplayString());
    seconds(86400);
    controller.tracker().reset();
    EXPECT_EQ(actions().clearTimers->toolTip(), controller.tracker().lastResetDateDisplayString());
}

TEST_F(TKControllerTest, everyCommand_isInAMenuAndHasAMnemonicOrAShortcut) {
    show();
    QList<QAction*> offered;
    for (const QMenu* menu : controller.window().menuBar()->findChildren<QMenu*>())
        offered << menu->actions();
    for (const QAction* action : controller.window().findChildren<QAction*>()) {
        if (action->objectName().isEmpty() || action->objectName().startsWith(QLatin1String("_q")))
            continue;
        EXPECT_TRUE(offered.contains(action)) << qPrintable(action->text());
    }
    QSet<QKeySequence> shortcuts;
    for (const QAction* action : offered)
        if (!action->shortcut().isEmpty()) {
            EXPECT_FALSE(shortcuts.contains(action->shortcut())) << qPrintable(action->text());
            shortcuts.insert(action->shortcut());
        }
    EXPECT_GE(shortcuts.size(), 10);
}

TEST_F(TKControllerTest, theSmallestWindow_showsEverything) {
    show();
    controller.window().resize(480, 360);
    settle();
    EXPECT_EQ(controller.window().size(), QSize(480, 360));
    for (const char* outlet : {"mainTable", "projectOutline", "searchAppField", "cutOffSlider",
                               "cutOffValueDisplay", "timeSum", "toggleCounting", "clearTimersItem"}) {
        const auto* widget = controller.window().findChild<QWidget*>(QLatin1String(outlet));
        ASSERT_NE(widget, nullptr) << outlet;
        EXPECT_TRUE(widget->isVisible()) << outlet;
        const QRect place(widget->mapTo(&controller.window(), QPoint()), widget->size());
        EXPECT_TRUE(controller.window().rect().contains(place)) << outlet;
    }
}

TEST_F(TKControllerTest, theVersion_isInTheAboutBox) {
    command(actions().about);
    EXPECT_TRUE(alerts.about.contains(TKController::versionString()));
    EXPECT_EQ(TKController::versionString(), QStringLiteral(TICKLOG_VERSION " (build " TICKLOG_VERSION ")"));
}
