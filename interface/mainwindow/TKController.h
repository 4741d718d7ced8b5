// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/Engine.h"
#include "Classes/TimeDatabase.h"
#include "Classes/TimerControl.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/mainwindow/TKDocumentController.h"
#include "interface/mainwindow/TimeSum.h"
#include "interface/outline/TimeTreeModel.h"
#include "interface/shell/TKApplicationDelegate.h"

#include <QUndoStack>

class Alerts;

// The program's one document and the controller of its main window, put together from the tracker, the timer
// control, the database and the window. It connects what the user asks for with what does it, and shows the
// timer's state. Nothing is formatted or painted while the window is not seen.
class TKController : public TimerDisplay {
public:
    // Reads the main store. `exit` ends the process when there is no display at all. The rest must outlive
    // this, and so must the QApplication.
    TKController(Platform& platform, Alerts& alerts, SystemIdleTime::Exit exit);
    TKController(const TKController&) = delete;
    TKController& operator=(const TKController&) = delete;
    ~TKController() override;

    // Once, before the window is shown: starts the timer if the last run asked for it.
    void awakeFromNib();

    // Brings the window to the front.
    void displayMainWindow() { setWindowStateShown(true); }

    // The same; false does nothing.
    void setWindowStateShown(bool isShown);

    void refreshTimeSum() override;
    // The sum that `kind` asks for: 0 as shown, 1 of everything, 2 as shown, in words. With `outMode` the
    // bare time, without it a caption of two lines.
    QString totalTimeStringForAllObjects(int kind, SumMode* outMode) const;

    void deselectAll();
    void renameSelected();
    // Deletes the selected rows; unless `forceDelete`, after a question.
    void tableViewDidReceiveDeleteKey(bool forceDelete);
    // Clears all timers, after a question.
    void clearTimers();

    void chooseDatabaseDirectory();

    void restoreDefaultDatabaseLocation() { m_database.restoreDefaultDatabaseLocation(); }

    void revealDatabase();

    void saveSettingsToDisk() { (void)m_database.saveSettingsToDiskAtURL(); }

    // The program is no longer the active one: the timers are written whenever that happens.
    void applicationWillTerminate() { saveSettingsToDisk(); }

    // "0.1.0 (build 0.1.0)" in the user's language.
    static QString versionString();

    TimerControl& timer() { return m_timer; }

    TimeTracker& tracker() { return m_engine.tracker(); }

    TimeDatabase& database() { return m_database; }

    TKDocumentController& documents() { return m_documents; }

    TKApplicationDelegate& appDelegate() { return m_appDelegate; }

    MainWindow& window() { return m_window; }

    void showToggle(const QString& image, const QString& label) override;
    void showRecordingBadge(bool isRecording) override;

    void updateMenuIconState() override { m_appDelegate.updateMenuIconState(); }

    void updateMenus() override { m_appDelegate.updateMenus(); }

private:
    void connectActions();
    void connectOutline();
    void rename(const std::shared_ptr<TimeStoreItem>& item, const QString& name);
    void selectionChanged();
    void showLastReset();

    void forgetSummedRows() { m_summedRows.reset(); }

    const TimeStoreItem::Children& summedRows() const;

    struct Sum {
        Seconds seconds;
        SumMode mode;
    };

    Sum sum(int kind) const;

    Platform& m_platform;
    Alerts& m_alerts;
    Engine m_engine;
    QUndoStack m_undoStack;
    TimeTreeModel m_model;
    MainWindow m_window;
    TimerControl m_timer;
    TimeDatabase m_database;
    TKDocumentController m_documents;
    TKApplicationDelegate m_appDelegate;
    // The selected rows that count; absent until asked for.
    mutable std::optional<TimeStoreItem::Children> m_summedRows;
    SumMode m_lastSumMode = SumMode::None;
    double m_lastSumSecond = -1;
    Subscription m_defaultsChanges;
    Subscription m_resets;
};
