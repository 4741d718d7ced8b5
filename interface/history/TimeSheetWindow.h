// SPDX-License-Identifier: MIT
#pragma once

#include "interface/history/TimeSheetForms.h"

#include <QDialog>

class Alerts;
class QComboBox;
class PlainLabel;
class QLineEdit;
class QPlainTextEdit;
class QStandardItemModel;
class QTableView;
class UserDefaults;

// The time sheet of some days: the table, how it is rounded, what the page says besides, and buttons that copy, save and
// print it. Remembers the name and how times are rounded.
class TimeSheetWindow : public QDialog {
    Q_OBJECT
public:
    // `documents` is the folder that file panels begin at. The other arguments outlive the window.
    TimeSheetWindow(UserDefaults& defaults, Alerts& alerts, QString documents, QWidget* parent);

    // Shows these days. `bars` are by day.
    void show(const std::vector<RangeAnswer::Bar>& bars, QDate first, QDate last);
    // The same days, with what is known by now.
    void renew(const std::vector<RangeAnswer::Bar>& bars);
    SheetPage page() const;

    void copy() const;
    void saveCsv();
    void savePdf();
    void print();

private:
    QWidget* makeChoices();
    QWidget* makeWords();
    QWidget* makeButtons();
    QComboBox* choice(const QString& name, const QString& label, const QStringList& texts);
    void restoreChoices();
    void choicesChanged();
    void refresh();
    std::optional<QString> chosenFile(const QString& title, const QString& suffix);

    UserDefaults& m_defaults;
    Alerts& m_alerts;
    QString m_documents;
    QStandardItemModel* m_table;
    QTableView* m_view;
    PlainLabel* m_sharing;
    QComboBox* m_minutes = nullptr;
    QComboBox* m_to = nullptr;
    QComboBox* m_of = nullptr;
    QComboBox* m_form = nullptr;
    QLineEdit* m_name = nullptr;
    QPlainTextEdit* m_notes = nullptr;
    std::vector<RangeAnswer::Bar> m_bars;
    QDate m_first;
    QDate m_last;
};
