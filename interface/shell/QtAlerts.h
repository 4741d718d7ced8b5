// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/Alerts.h"

#include <QDialog>
#include <QPointer>

#include <functional>

class QFileDialog;

// Asks in dialogues that belong to a window, one at a time. A question that comes while another question or
// panel is open brings that one to the front, and is answered as if it had been closed itself. Errors and
// notices are always shown.
class QtAlerts : public Alerts {
public:
    QtAlerts();
    // For another window of the same program: only one question is open in both windows together.
    explicit QtAlerts(const QtAlerts& other)
        : m_turn(other.m_turn) {}

    QtAlerts& operator=(const QtAlerts&) = delete;
    ~QtAlerts() override;

    // Calls `ask` when no question or panel is open: now, or after those that came first. Brings the open one
    // to the front.
    void whenFree(std::function<void()> ask);

    // Before a window is set, dialogues have no parent.
    void setWindow(QWidget* window) { m_window = window; }

    int ask(const Question& question) override;
    std::optional<QString> chooseSaveLocation(const QString& message, const QString& path,
                                              bool replaces) override;
    std::optional<QString> chooseOpenFile(const QString& message, const QString& folder) override;
    std::optional<QString> chooseExportFile(const QString& message, const QString& path) override;
    std::optional<QString> chooseFolder(const QString& message, const QString& folder) override;
    bool waitFor(const QString& message, const std::function<double()>& done) override;
    std::unique_ptr<ProgressPanel> showProgress(const QString& message) override;
    void showError(const QString& message, const QString& informativeText) override;
    void showNotice(const QString& message, const QString& informativeText) override;
    void showAbout(const QString& title, const QString& text) override;

private:
    struct Turn;

    // False, and not shown, if another dialogue is open.
    bool run(QDialog& dialog);
    // Lets the next one in.
    void free();
    // The path that the user chose; absent after a cancel.
    std::optional<QString> chooseWith(QFileDialog& panel);
    void open(QWidget* parent, const QString& name, const QString& title, const QString& message,
              const QString& informativeText);

    QPointer<QWidget> m_window;
    // Shared by all windows.
    std::shared_ptr<Turn> m_turn;
    // An open message that needs no answer.
    QPointer<QWidget> m_open;
};
