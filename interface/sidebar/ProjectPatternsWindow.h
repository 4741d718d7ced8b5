// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;
class QStandardItemModel;
class QTableView;

// Edits the patterns by which a project recognises its time in the history: one row for each, edited in
// place. An invalid regular expression is reported and cannot be saved.
class ProjectPatternsWindow : public QDialog {
    Q_OBJECT
public:
    using Saved = std::function<void(const PropertyListArray&)>;

    explicit ProjectPatternsWindow(QWidget* parent);

    // `saved` gets the patterns when the user saves them.
    void openFor(const QString& project, const PropertyListArray& patterns, Saved saved);
    // The patterns in the rows, without empty ones.
    PropertyListArray patterns() const;

private:
    void makeTable();
    void addControls();
    void addRow(const PropertyListDictionary& pattern);
    void addEmptyRow();
    void removeRow();
    PropertyListDictionary pattern(int row) const;
    void rowsChanged();

    Saved m_saved;
    QStandardItemModel* m_rows;
    QTableView* m_table;
    QLabel* m_project;
    QLabel* m_fault;
    QPushButton* m_remove;
    QPushButton* m_save;
};
