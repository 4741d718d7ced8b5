// SPDX-License-Identifier: MIT
#include "interface/export/TKExportController.h"
#include "interface/shell/QtAlerts.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/Desk.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ExportTest : public testing::Test {
protected:
    static QString csv(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << qPrintable(path);
        const QByteArray bytes = file.readAll();
        return QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes.constData()), bytes.size() / 2);
    }

    QString path(const QString& name) const { return desk.fakes.home.filePath(name); }

    Desk desk;
    TKExportController& exporting = desk.controller.exporting();
};

TEST_F(ExportTest, theShownTimers_areThoseThatTheSearchLeaves) {
    desk.account("Mail", 60, {{u"Inbox"_s, 40}, {u"Notes"_s, 20}});
    desk.account("Terminal", 30);
    desk.show();
    desk.controller.setSearchString(u"Inbox"_s);
    desk.alerts.location = path(u"times.csv"_s);
    desk.command(desk.actions().exportShown);
    const QString shown = csv(path(u"times.csv"_s));
    EXPECT_TRUE(shown.contains(u",Inbox,00:00:40"_s));
    EXPECT_FALSE(shown.contains(u"Notes"_s));
    EXPECT_FALSE(shown.contains(u"Terminal"_s));
    desk.command(desk.actions().exportAll);
    EXPECT_TRUE(csv(path(u"times.csv"_s)).contains(u",Terminal,00:00:30,,"_s));
    EXPECT_TRUE(desk.alerts.questions.isEmpty());
    EXPECT_EQ(desk.alerts.progress.back(), 1.0);
}

TEST_F(ExportTest, whileAProjectIsShown_thePanelSaysThatItIsAllTimers) {
    desk.account("Mail", 60, {{u"Inbox"_s, 40}, {u"Notes"_s, 20}});
    desk.account("Terminal", 30);
    ProjectList& projects = desk.controller.projects();
    projects.addNewProjectWithItems({*desk.controller.tracker().fullTimeSet().back()->uuid()});
    desk.show();
    TKOutlineDisplayView& sidebar = desk.controller.window().projectOutline();
    desk.command(desk.actions().exportShown);
    sidebar.setCurrentIndex(sidebar.model()->index(1, 0));
    desk.settle();
    desk.command(desk.actions().exportShown);
    desk.controller.window().searchAppField().setText(u"inb"_s);
    desk.settle();
    desk.alerts.location = path(u"shown.csv"_s);
    desk.command(desk.actions().exportShown);
    EXPECT_EQ(desk.alerts.panels.mid(0, 3),
              (QStringList{u"Export to CSV"_s, u"Export All Timers to CSV"_s,
                           u"Export All Timers to CSV, Narrowed by the Search"_s}));
    EXPECT_TRUE(csv(path(u"shown.csv"_s)).contains(u",Mail,00:01:00,Inbox,00:00:40\n"_s));
    EXPECT_FALSE(csv(path(u"shown.csv"_s)).contains(u"Notes"_s));
    EXPECT_FALSE(csv(path(u"shown.csv"_s)).contains(u"Terminal"_s));
}

TEST_F(ExportTest, aProject_isWrittenWithItsOwnSum) {
    desk.account("Mail", 60);
    desk.account("Terminal", 30);
    ProjectList& projects = desk.controller.projects();
    const auto project =
        projects.addNewProjectWithItems({*desk.controller.tracker().fullTimeSet().back()->uuid()});
    projects.setLabel(*project, u"Left/Right"_s);
    desk.show();
    EXPECT_FALSE(desk.actions().exportProject->isEnabled());
    TKOutlineDisplayView& sidebar = desk.controller.window().projectOutline();
    sidebar.setCurrentIndex(sidebar.model()->index(1, 0));
    desk.controller.window().searchAppField().setText(u"nothing of this"_s);
    desk.settle();
    desk.alerts.location = path(u"project"_s);
    desk.command(desk.actions().exportProject);
    EXPECT_EQ(desk.alerts.panels.first(), u"Export Project to CSV"_s);
    EXPECT_EQ(desk.alerts.begunAt, desk.fakes.folders.documents + u"/Left-Right.csv"_s);
    EXPECT_EQ(
        str(csv(path(u"project.csv"_s))),
        "Total,Per Application,,Per Window\n00:00:30,Application,Time,Window,Time\n,Terminal,00:00:30,,\n");
}

TEST_F(ExportTest, aCopysNameWithADot_getsTheExtension) {
    desk.account("Mail", 60);
    desk.alerts.location = path(u"Week 3.1"_s);
    desk.command(desk.actions().saveCopy);
    EXPECT_TRUE(QFileInfo::exists(path(u"Week 3.1.tkd"_s)));
    EXPECT_FALSE(QFileInfo::exists(path(u"Week 3.1"_s)));
    desk.command(desk.actions().saveCopy);
    EXPECT_EQ(desk.alerts.questions, QStringList{u"Replacing a file"_s});
    desk.alerts.location = path(u"Store 3.1"_s);
    desk.command(desk.actions().chooseDatabaseLocation);
    EXPECT_TRUE(QFileInfo::exists(path(u"Store 3.1.tkd"_s)));
}

TEST_F(ExportTest, aClosedPanel_writesNothing) {
    desk.account("Mail", 60);
    desk.command(desk.actions().exportAll);
    EXPECT_EQ(desk.alerts.panels, QStringList{u"Export to CSV"_s});
    EXPECT_EQ(desk.alerts.begunAt, desk.fakes.folders.documents + u"/Ticklog Times.csv"_s);
}

TEST_F(ExportTest, aNameWithoutTheExtension_getsIt) {
    desk.account("Mail", 60);
    desk.alerts.location = path(u"Report 3.1"_s);
    desk.command(desk.actions().exportAll);
    EXPECT_TRUE(QFileInfo::exists(path(u"Report 3.1.csv"_s)));
    desk.alerts.location = path(u"LOUD.CSV"_s);
    desk.command(desk.actions().exportAll);
    EXPECT_TRUE(QFileInfo::exists(path(u"LOUD.CSV"_s)));
}

TEST_F(ExportTest, aFileThatTheExtensionLeadsTo_isReplacedOnlyWhenTheUserSaysSo) {
    desk.account("Mail", 60);
    desk.alerts.location = path(u"Report"_s);
    desk.command(desk.actions().exportAll);
    desk.account("Terminal", 60);
    desk.command(desk.actions().exportAll);
    EXPECT_EQ(desk.alerts.questions, QStringList{u"Replacing a file"_s});
    EXPECT_FALSE(csv(path(u"Report.csv"_s)).contains(u"Terminal"_s));
    desk.alerts.answer = Alerts::Alternate;
    desk.command(desk.actions().exportAll);
    EXPECT_TRUE(csv(path(u"Report.csv"_s)).contains(u"Terminal"_s));
}

TEST_F(ExportTest, aFileThatCannotBeWritten_isToldToTheLogAlone) {
    desk.alerts.location = path(u"nowhere/times.csv"_s);
    desk.command(desk.actions().exportAll);
    EXPECT_TRUE(desk.fakes.log.lines.contains(u"Error Exporting"_s));
    EXPECT_TRUE(desk.alerts.errors.isEmpty());
}

TEST_F(ExportTest, timersThatGoWhileTheProgressIsPainted_areInTheFileAllTheSame) {
    desk.account("Mail", 60);
    desk.alerts.location = path(u"times.csv"_s);
    desk.alerts.whileProgressing = [&] { desk.controller.tracker().reset(); };
    desk.command(desk.actions().exportAll);
    EXPECT_TRUE(csv(path(u"times.csv"_s)).contains(u",Mail,00:01:00,,"_s));
}

TEST_F(ExportTest, theWeekdays_areStoredMirroredAndApplyAtOnce) {
    exporting.setPeriodicDaysOfWeek({true, false, false, false, false, false, false});
    EXPECT_EQ(desk.fakes.defaults.integerForKey(kPeriodicDaysOfWeek), 64);
    EXPECT_EQ(exporting.selectProperPeriodicDaysOfWeek(),
              (PeriodicSave::Segments{false, false, false, false, false, false, true}));
    EXPECT_FALSE(exporting.periodicSave().nextFiring());
    desk.fakes.defaults.setObject(kSaveTimerPeriodically, true);
    exporting.setPeriodicDaysOfWeek({});
    EXPECT_TRUE(exporting.periodicSave().nextFiring());
    desk.fakes.defaults.setObject(kSaveTimerPeriodically, false);
    exporting.updatedSaveTimerPeriodically();
    EXPECT_FALSE(exporting.periodicSave().nextFiring());
}

TEST_F(ExportTest, aScheduleThatIsSwitchedOnAnywhere_isPlannedAtOnce) {
    desk.fakes.defaults.setObject(kSaveTimerPeriodically, true);
    const auto planned = exporting.periodicSave().nextFiring();
    ASSERT_TRUE(planned);
    desk.fakes.defaults.setObject(kMinutesUntilIdle, 3);
    EXPECT_EQ(exporting.periodicSave().nextFiring(), planned);
    desk.fakes.defaults.setObject(kPeriodicSaveTime, Date(std::chrono::hours(5)));
    EXPECT_NE(exporting.periodicSave().nextFiring(), planned);
    desk.fakes.defaults.setObject(kSaveTimerPeriodically, false);
    EXPECT_FALSE(exporting.periodicSave().nextFiring());
}

TEST_F(ExportTest, theChosenFolder_isAnnouncedBeforeAndAfter) {
    std::vector<std::pair<ChangePhase, QString>> told;
    const auto watching =
        exporting.observe(kPeriodicSaveDirectoryKey,
                          [&](const ObservedChange& change) {
                              told.emplace_back(change.phase, exporting.periodicSaveDirectory());
                          },
                          {.prior = true});
    exporting.setPeriodicSaveDirectory();
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(desk.alerts.begunAt, desk.fakes.folders.applicationSupport);
    desk.alerts.location = desk.fakes.home.path();
    exporting.setPeriodicSaveDirectory();
    EXPECT_EQ(told, (decltype(told){{ChangePhase::Will, desk.fakes.folders.applicationSupport},
                                    {ChangePhase::Did, desk.fakes.home.path()}}));
}

TEST_F(ExportTest, anArchive_clearsWhatIsShownAndWhatCouldBeUndone) {
    desk.account("Mail", 60);
    desk.show();
    desk.select({desk.row("Mail")});
    desk.command(desk.actions().forceDelete);
    desk.account("Terminal", 60);
    ASSERT_TRUE(desk.actions().undo->isEnabled());
    exporting.doPeriodicSave();
    desk.settle();
    EXPECT_EQ(textOf(desk.model()), QString());
    EXPECT_FALSE(desk.actions().undo->isEnabled());
    EXPECT_EQ(QDir(desk.fakes.folders.applicationSupport).entryList({u"20*"_s}).size(), 2);
}

TEST_F(ExportTest, aRunningTimer_countsOnAfterTheArchive) {
    desk.controller.timer().startTimer();
    desk.front("Mail", "Inbox");
    desk.seconds(60);
    exporting.doPeriodicSave();
    desk.seconds(5);
    ASSERT_EQ(desk.controller.tracker().fullTimeSet().size(), 1U);
    EXPECT_NEAR(desk.controller.tracker().fullTimeSet().front()->activeTime(), 5, 0.2);
}

TEST(ExportPanels, theExportPanel_addsTheExtension) {
    QTemporaryDir home;
    QtAlerts alerts;
    QTimer::singleShot(0, [&] {
        auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(panel);
        EXPECT_EQ(panel->defaultSuffix(), u"csv"_s);
        EXPECT_FALSE(panel->testOption(QFileDialog::DontConfirmOverwrite));
        panel->selectFile(home.filePath(u"times"_s));
        QMetaObject::invokeMethod(panel, "accept");
    });
    EXPECT_EQ(alerts.chooseExportFile(u"Export"_s, home.filePath(u"x.csv"_s)), home.filePath(u"times.csv"_s));
}

TEST(ExportPanels, theFolderPanel_answersTheFolderItShows) {
    QTemporaryDir home;
    QtAlerts alerts;
    QTimer::singleShot(0, [&] {
        auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(panel);
        EXPECT_EQ(panel->fileMode(), QFileDialog::Directory);
        QMetaObject::invokeMethod(panel, "accept");
    });
    EXPECT_EQ(alerts.chooseFolder(u"Archive"_s, home.path()), home.path());
}

TEST(ExportPanels, theProgressPanel_showsItselfForLongWorkAndCannotBeCancelled) {
    QtAlerts alerts;
    const auto panel = alerts.showProgress(u"Exporting…"_s);
    panel->setDone(0.5);
    QProgressDialog* shown = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QProgressDialog*>(widget))
            shown = dialog;
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->value(), shown->maximum() / 2);
    EXPECT_FALSE(shown->wasCanceled());
    EXPECT_TRUE(shown->findChildren<QPushButton*>().isEmpty());
}

} // namespace
