// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QAbstractItemModel;
class QCheckBox;
class QPushButton;
class QTreeView;

// The table of rules and its buttons. Draws and forwards.
class RulesTab : public QWidget {
    Q_OBJECT
public:
    explicit RulesTab(QAbstractItemModel& rules);

    // Says of a check box what a row for each title is.
    static void explainRowsForTitles(QCheckBox& box);

    QTreeView& ruleTableView() const { return *m_ruleTableView; }

    // For the setting that holds for all applications, whatever their rules say.
    QCheckBox& rowForEachTitle() const { return *m_rowForEachTitle; }

    // -1 if nothing is selected.
    int selectedRow() const;
    void select(int row);

Q_SIGNALS:
    void addRequested();
    // By button, Return or a double click.
    void editRequested();
    void duplicateRequested();
    // By button or the Delete key.
    void deleteRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* makeButton(const char* name, const QString& text, void (RulesTab::*request)());
    void updateButtons();

    QTreeView* m_ruleTableView;
    QCheckBox* m_rowForEachTitle;
    QPushButton* m_edit;
    QPushButton* m_duplicate;
    QPushButton* m_delete;
};
