// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFinding.h"
#include "Classes/history/HistoryReader.h"

#include <QDialog>

class Alerts;
class QComboBox;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QStandardItemModel;

// Asks what of the history is to be forgotten: by program, title, day and range. Shows how much that would be before it is
// asked about, and forgets nothing that was not shown.
class ForgetWindow : public QDialog {
    Q_OBJECT
public:
    using Forget = std::function<void(const HistoryChange::Forgotten&)>;

    // Days begin at the hour `dayBegins`. The rest outlives the window, but for `reader`, which is its own.
    ForgetWindow(std::unique_ptr<HistoryReader> reader, RunLoop& runLoop, Alerts& alerts, Forget forget,
                 QWidget* parent);

    // Opens it anew, with nothing chosen.
    void openFor(const QDate& today, int dayBegins);
    // What the controls say.
    HistoryChange::Forgotten choice() const;

private:
    enum When { Always, Day, Range };

    void addControls();
    void readPrograms();
    void choiceChanged();
    void look();
    void show(const Result<HistoryFinding>& found);
    void ask();
    When when() const;

    std::unique_ptr<HistoryReader> m_reader;
    RunLoop& m_runLoop;
    Alerts& m_alerts;
    Forget m_forget;
    int m_dayBegins = 0;
    QComboBox* m_program;
    QLineEdit* m_title;
    QComboBox* m_when;
    QDateTimeEdit* m_from;
    QLabel* m_until;
    QDateTimeEdit* m_to;
    QLabel* m_found;
    QStandardItemModel* m_sums;
    QPushButton* m_button;
    std::unique_ptr<RunLoopTimer> m_nextLook;
    // What was shown last; absent while another is looked for.
    std::optional<HistoryFinding> m_finding;
};
