// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class QLabel;
class QLineEdit;
class QSplitter;
class QToolBar;
class TKOutlineDisplayView;

// The main window: the outline of timers, the sum below it, the toolbar and the menus. Draws and forwards;
// what its actions do is connected from outside.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    // What the user can ask for. All belong to the window.
    struct Actions {
        QAction* importDatabase;
        QAction* saveCopy;
        QAction* chooseDatabaseLocation;
        QAction* restoreDefaultDatabaseLocation;
        QAction* revealDatabase;
        QAction* closeWindow;
        QAction* quit;
        QAction* undo;
        QAction* redo;
        QAction* rename;
        QAction* deleteRows;
        QAction* selectAll;
        QAction* deselectAll;
        QAction* toggleCounting;
        QAction* clearTimers;
        QAction* about;
    };

    MainWindow();

    const Actions& actions() const { return m_actions; }

    TKOutlineDisplayView& mainTable() const { return *m_mainTable; }

    // Whether there is anything to be seen of the window: neither closed nor minimised.
    bool isSeen() const { return m_isSeen; }

    void showSum(const QString& time);
    void showSumMode(const QString& image, const QString& caption);
    void showToggle(const QString& image, const QString& label);

Q_SIGNALS:
    void seenChanged(bool isSeen);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeActions();
    void makeMenus();
    void makeToolBar();
    QWidget* makeOutlinePane();
    QWidget* makeSumBar();
    QAction* add(const QString& name, const QString& text, const QKeySequence& shortcut = {});
    void updateSeen();

    Actions m_actions{};
    QToolBar* m_toolBar = nullptr;
    // The projects will stand on the left of the outline.
    QSplitter* m_splitView = nullptr;
    TKOutlineDisplayView* m_mainTable = nullptr;
    QLabel* m_timeSumIcon = nullptr;
    QLabel* m_timeSumCaption = nullptr;
    QLineEdit* m_timeSum = nullptr;
    bool m_isSeen = false;
};
