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

// Asks what to forget of the history: by program, title, day or range. First shows how much that would be,
// and forgets nothing that it has not shown.
class ForgetWindow : public QDialog {
    Q_OBJECT
public:
    using Forget = std::function<void(const HistoryChange::Forgotten&, std::function<void(bool)> told)>;

    // Days begin at the hour `dayBegins`. The other arguments outlive the window, except `reader`, which it
    // owns.
    ForgetWindow(std::unique_ptr<HistoryReader> reader, RunLoop& runLoop, Alerts& alerts, Forget forget,
                 QWidget* parent);

    // Opens the window with nothing chosen.
    void openFor(const QDate& today, int dayBegins);
    // The conditions that the controls show.
    HistoryChange::Forgotten choice() const;

private:
    enum When { Always, Day, Range };

    void addControls();
    void readPrograms();
    void dayChanged();
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
    // Shows a day and holds its noon: the clock may be set over any other hour.
    QDateTimeEdit* m_day;
    QDateTimeEdit* m_from;
    QLabel* m_until;
    QDateTimeEdit* m_to;
    QLabel* m_found;
    QStandardItemModel* m_sums;
    QPushButton* m_button;
    std::unique_ptr<RunLoopTimer> m_nextLook;
    // What was last found and shown; absent while a search is under way.
    std::optional<HistoryFinding> m_finding;
    // What is shown is what has become of the last forgetting.
    bool m_isForgetting = false;
};
