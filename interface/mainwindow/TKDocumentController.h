// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class Alerts;
class TimeDatabase;

// Every request to open, save or make a document lands here and is answered by the one document there is: the
// account of all timers. Opening a database file replaces that account, after a question.
class TKDocumentController {
public:
    // `alreadyOpen` is false in every case.
    using Completion = std::function<void(bool alreadyOpen)>;

    // `imported` is called after the timers were replaced. The rest must outlive this.
    TKDocumentController(TimeDatabase& database, Alerts& alerts, std::function<void()> imported);

    // Asks whether the timers are to be replaced by those of the file at `location`, and does so, or says why it cannot.
    void openDocumentWithContentsOfURL(const QString& location, const Completion& completion = {});
    // Has the user choose the file first.
    void openDocument();
    // Has the user choose where a copy of the account goes, projects included.
    void saveCopy();

private:
    // The file is read beside the window, which goes on answering; the user may give it up until it is read.
    void importFrom(const QString& location);

    TimeDatabase& m_database;
    Alerts& m_alerts;
    std::function<void()> m_imported;
};
