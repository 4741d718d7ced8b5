// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QObject>
#include <QTimer>

class MainWindow;

// Leaves the main window to the next start as the user has left it: its frame, as far as the desktop lets programs
// place their windows, the sidebar, the columns and their order, and the rows that are open under "All Timers".
// Changes are stored together a little later, and at the end.
class WindowMemory : public QObject {
public:
    enum class Account { New, Existing };

    // Before the projects are read: opens the rows again.
    static void openRows(UserDefaults& defaults);

    // Restores the window at once; call it before the window is shown. Where nothing is stored, rows are sorted by
    // time in a new account, the most first, and by name in an existing one, as ever. Everything outlives the memory.
    WindowMemory(MainWindow& window, UserDefaults& defaults, Account account);
    ~WindowMemory() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restore(Account account);
    void follow();
    void store();
    std::optional<PropertyListValue> rowsLeftOpen() const;

    MainWindow& m_window;
    UserDefaults& m_defaults;
    QTimer m_soon;
    // Rows were opened or closed since they were stored: looking at all of them takes its time.
    bool m_areRowsOther = false;
};
