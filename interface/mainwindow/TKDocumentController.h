// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class Alerts;
class FileViewer;
class TimeDatabase;

// Handles every request to open, save or move a document. There is only one document: the account of all
// timers. Opening a database file replaces that account, after a question.
class TKDocumentController {
public:
    // `alreadyOpen` is always false.
    using Completion = std::function<void(bool alreadyOpen)>;

    // What it calls in the main window.
    struct MainController {
        // Writes the account to its file.
        std::function<void()> save;
        // The timers were replaced.
        std::function<void()> imported;
    };

    // The first three arguments must outlive this object.
    TKDocumentController(TimeDatabase& database, Alerts& alerts, FileViewer& fileViewer,
                         MainController mainController);

    // Asks whether the timers in the file at `location` are to replace the present ones; replaces them, or
    // says why it cannot.
    void openDocumentWithContentsOfURL(const QString& location, const Completion& completion = {});
    // Lets the user choose the file first.
    void openDocument();
    // Lets the user choose where to write a copy of the account, with the projects.
    void saveCopy();
    // Lets the user choose where the account is kept from now on, and copies it there.
    void chooseDatabaseDirectory();
    // Shows the account's file in the file manager.
    void revealDatabase();

private:
    // Reads the file on another thread while the window keeps responding; until it has been read, the user
    // may give it up.
    void importFrom(const QString& location);

    TimeDatabase& m_database;
    Alerts& m_alerts;
    FileViewer& m_fileViewer;
    MainController m_mainController;
};
