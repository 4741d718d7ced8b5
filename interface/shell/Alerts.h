// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

// A panel that shows the progress of some work. It is shown until it is destroyed, and not at all if the work
// is short.
class ProgressPanel {
public:
    virtual ~ProgressPanel() = default;

    // From 0 to 1. The timer goes on while the panel is painted.
    virtual void setDone(double done) = 0;
};

// All of the program's questions and file panels go through here, so that tests can answer in advance. Only
// one is open at a time; another one that is asked meanwhile is answered as if it had been closed. Each call
// returns when the user has answered; the timer goes on meanwhile. Texts are given in the language in which
// they are shown. Main thread only.
class Alerts {
public:
    // The answers to a question.
    enum Answer { Other = -1, Alternate = 0, Default = 1 };

    struct Question {
        QString message;
        QString informativeText;
        QString defaultButton;
        QString alternateButton;
        // Without a text there is no such button.
        QString otherButton;
        // The answer when the question is closed: the button that changes nothing.
        Answer whenClosed = Default;
        // Called as it comes to the screen, with what closes it there when it does not hold any more. That is
        // of use until `ask` returns.
        std::function<void(std::function<void()> close)> opened = {};
    };

    virtual ~Alerts() = default;

    virtual int ask(const Question& question) = 0;
    // Asks where to save a database file; absent if the user cancels. Begins at `path`. Warns of an existing
    // file only if `replaces`.
    virtual std::optional<QString> chooseSaveLocation(const QString& message, const QString& path,
                                                      bool replaces) = 0;
    // Asks which database file to open; absent if the user cancels.
    virtual std::optional<QString> chooseOpenFile(const QString& message, const QString& folder) = 0;
    // Asks where to export to; absent if the user cancels. Begins at `path`, whose extension, "csv" or "pdf", says
    // what is exported. Warns of an existing file. The answer may lack the extension.
    virtual std::optional<QString> chooseExportFile(const QString& message, const QString& path) = 0;
    // Asks for a folder, which the user may make in the panel; absent if the user cancels. Begins at
    // `folder`.
    virtual std::optional<QString> chooseFolder(const QString& message, const QString& folder) = 0;
    // Shows the progress of work on another thread until `done` answers 1, and lets the user cancel it. Shows
    // nothing if the work is short. Answers whether it was completed.
    virtual bool waitFor(const QString& message, const std::function<double()>& done) = 0;
    // Never null.
    virtual std::unique_ptr<ProgressPanel> showProgress(const QString& message) = 0;
    virtual void showError(const QString& message, const QString& informativeText) = 0;
    // Shows a message that needs no answer: returns at once.
    virtual void showNotice(const QString& message, const QString& informativeText) = 0;
    // The same with a title.
    virtual void showAbout(const QString& title, const QString& text) = 0;
};
