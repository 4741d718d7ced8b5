// SPDX-License-Identifier: MIT
#pragma once

#include "interface/preferences/TitleRuleSheet.h"
#include "interface/preferences/TitleRulesTable.h"

#include <QWidget>

class Alerts;
class Clock;
class History;
class HistoryReader;
class QLabel;
class QPushButton;
class QStandardItemModel;
class QTreeView;
class SettingsBinding;

// The rules for titles: a table of them in order, what each matched in the last seven days, and applying them
// to the past.
class TitlesTab : public QWidget {
    Q_OBJECT
public:
    struct Services {
        SettingsBinding& settings;
        Alerts& alerts;
        const Clock& clock;
        // Null if none is kept.
        History* history;
        // How many timers have names that the rules do not allow.
        std::function<int(const PastTitles&)> countTimers;
        // Applies these rules to everything that is kept.
        std::function<void(const PastTitles&, const PropertyListArray& rules)> holdOverPast;
    };

    // The services outlive the tab.
    explicit TitlesTab(Services services);
    ~TitlesTab() override;

    QTreeView& table() const { return *m_table; }
    TitleRuleSheet& sheet() { return m_sheet; }
    // Null until it is first opened.
    QDialog* metWindow() const { return m_metWindow; }
    // -1 without a selection.
    int selectedRow() const;
    void select(int row);

    void add();
    void edit();
    // After asking the user.
    void remove();
    void move(int by);
    // Switches the selected rule on or off.
    void toggle();
    // Shows the titles that the selected rule matches.
    void showMet();
    // After a question that says what it will change.
    void applyToPast();
    // Looks again what the rules match.
    void reload();

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* makeButton(const char* name, const QString& text, void (TitlesTab::*request)());
    void moveUp() { move(-1); }
    void moveDown() { move(1); }
    void makeTable();
    void addControls();
    void updateButtons();
    bool isHistoryThere() const;
    void askBefore(const RuledPast& ruled);

    Services m_services;
    TitleRulesTable m_rules;
    std::unique_ptr<HistoryReader> m_reader;
    // A reader of its own: in a shared one, a new question would drop the other.
    std::unique_ptr<HistoryReader> m_pastReader;
    QTreeView* m_table;
    QLabel* m_state;
    std::vector<QPushButton*> m_ofSelection;
    QPushButton* m_up;
    QPushButton* m_down;
    QPushButton* m_met;
    QPushButton* m_apply;
    QDialog* m_metWindow = nullptr;
    QStandardItemModel* m_metTitles = nullptr;
    TitleRuleSheet m_sheet;
    // The row that is being edited; -1 for a new rule.
    int m_editedRow = -1;
};
