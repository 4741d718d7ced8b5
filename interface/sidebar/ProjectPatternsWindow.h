// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;
class QStandardItemModel;
class QTreeView;

// Edits by what the history knows what is a project's: a row for each pattern, written in place. A regular expression that
// cannot be read is said, and cannot be saved.
class ProjectPatternsWindow : public QDialog {
    Q_OBJECT
public:
    using Saved = std::function<void(const PropertyListArray&)>;

    explicit ProjectPatternsWindow(QWidget* parent);

    // `saved` gets the patterns when the user has them saved.
    void openFor(const QString& project, const PropertyListArray& patterns, Saved saved);
    // What the rows say, without those that say nothing.
    PropertyListArray patterns() const;

private:
    void addControls();
    void addRow(const PropertyListDictionary& pattern);
    void addEmptyRow();
    void removeRow();
    PropertyListDictionary pattern(int row) const;
    void rowsChanged();

    Saved m_saved;
    QStandardItemModel* m_rows;
    QTreeView* m_table;
    QLabel* m_project;
    QLabel* m_fault;
    QPushButton* m_remove;
    QPushButton* m_save;
};
