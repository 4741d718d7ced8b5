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

// The rules for titles: which there are and in what order, what of the last seven days each meets, and how they come to
// hold for the past as well.
class TitlesTab : public QWidget {
    Q_OBJECT
public:
    struct Services {
        SettingsBinding& settings;
        Alerts& alerts;
        const Clock& clock;
        // Null where there is none.
        History* history;
        // How many timers say more than may be known.
        std::function<int(const PastTitles&)> countTimers;
        // Has all that is kept say no more than may be known, by these rules.
        std::function<void(const PastTitles&, const PropertyListArray& rules)> holdOverPast;
    };

    // The services outlive the tab.
    explicit TitlesTab(Services services);
    ~TitlesTab() override;

    QTreeView& table() const { return *m_table; }
    TitleRuleSheet& sheet() { return m_sheet; }
    // Null until it was asked for.
    QDialog* metWindow() const { return m_metWindow; }
    // -1 without a selection.
    int selectedRow() const;
    void select(int row);

    void add();
    void edit();
    // After a question.
    void remove();
    void move(int by);
    // Shows what the selected rule meets.
    void showMet();
    // After a question that says what it will change.
    void applyToPast();
    // Looks anew at what is met.
    void reload();

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* makeButton(const char* name, const QString& text, void (TitlesTab::*request)());
    void moveUp() { move(-1); }
    void moveDown() { move(1); }
    void addControls();
    void updateButtons();
    bool isHistoryThere() const;
    void askBefore(const RuledPast& ruled);

    Services m_services;
    TitleRulesTable m_rules;
    std::unique_ptr<HistoryReader> m_reader;
    // Of its own, so that neither question takes the other's place.
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
