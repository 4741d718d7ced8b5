// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

// A panel that shows how far a piece of work has come, for as long as it lives; not at all for short pieces.
class ProgressPanel {
public:
    virtual ~ProgressPanel() = default;

    // From 0 to 1. The timer runs on while the panel is painted.
    virtual void setDone(double done) = 0;
};

// Every question the program asks and every file it has chosen for it goes through here, so that tests answer
// in advance. Only one question or panel is open at a time: another one meanwhile counts as closed. Each call
// returns when the user has answered; the timer runs on meanwhile. Texts come in the language in which they are
// shown. Main thread only.
class Alerts {
public:
    // What questions are answered with.
    enum Answer { Other = -1, Alternate = 0, Default = 1 };

    struct Question {
        QString message;
        QString informativeText;
        QString defaultButton;
        QString alternateButton;
        // None, unless it has a text.
        QString otherButton;
        // What closing the question counts as: the button that changes nothing.
        Answer whenClosed = Default;
    };

    virtual ~Alerts() = default;

    virtual int ask(const Question& question) = 0;
    // Where to save a database file; absent when the user thinks better of it. Begins at `path`. An existing
    // file is pointed out only if `replaces`.
    virtual std::optional<QString> chooseSaveLocation(const QString& message, const QString& path,
                                                      bool replaces) = 0;
    // Which database file to open; absent when the user thinks better of it.
    virtual std::optional<QString> chooseOpenFile(const QString& message, const QString& folder) = 0;
    // Where to export a table to; absent when the user thinks better of it. Begins at `path`. An existing file is
    // pointed out. The answer may lack the extension.
    virtual std::optional<QString> chooseExportFile(const QString& message, const QString& path) = 0;
    // A folder, which the user may make on the way; absent when the user thinks better of it. Begins at `folder`.
    virtual std::optional<QString> chooseFolder(const QString& message, const QString& folder) = 0;
    // Shows how far work has come that is done elsewhere, until `done` answers 1, and lets the user give it up; nothing is shown
    // of short pieces. Answers whether it was done.
    virtual bool waitFor(const QString& message, const std::function<double()>& done) = 0;
    // Never null.
    virtual std::unique_ptr<ProgressPanel> showProgress(const QString& message) = 0;
    virtual void showError(const QString& message, const QString& informativeText) = 0;
    // Something to know, which nobody has to answer: returns at once.
    virtual void showNotice(const QString& message, const QString& informativeText) = 0;
    // The same; the first line stands out.
    virtual void showAbout(const QString& title, const QString& text) = 0;
};
