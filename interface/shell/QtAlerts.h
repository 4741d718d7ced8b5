// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/Alerts.h"

#include <QDialog>
#include <QPointer>

#include <functional>

class QFileDialog;

// Asks in dialogues that belong to a window. One at a time: who asks while another question or panel is open has that one
// brought to the front, and is answered as if his own had been closed. Errors and notices come all the same.
class QtAlerts : public Alerts {
public:
    QtAlerts();
    // For another window of the same program, in turn with `other`.
    explicit QtAlerts(const QtAlerts& other)
        : m_turn(other.m_turn) {}

    QtAlerts& operator=(const QtAlerts&) = delete;
    ~QtAlerts() override;

    // Calls `ask` as soon as no question or panel is open: now, or when those before it are done, in their order. One that
    // is open comes to the front.
    void whenFree(std::function<void()> ask);

    // Until a window is set, dialogues stand alone.
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

    // Nothing is chosen in a dialogue that does not come because another one is open.
    bool run(QDialog& dialog);
    // It is the next one's turn.
    void free();
    // What was chosen in it; absent after a cancel.
    std::optional<QString> chooseWith(QFileDialog& panel);
    void open(QWidget* parent, const QString& name, const QString& title, const QString& message,
              const QString& informativeText);

    QPointer<QWidget> m_window;
    // Of all windows.
    std::shared_ptr<Turn> m_turn;
    // What is open and need not be answered.
    QPointer<QWidget> m_open;
};
