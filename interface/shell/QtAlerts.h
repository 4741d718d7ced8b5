// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/Alerts.h"

#include <QPointer>
#include <QWidget>

// Asks in dialogues that belong to a window.
class QtAlerts : public Alerts {
public:
    // Until a window is set, dialogues stand alone.
    void setWindow(QWidget* window) { m_window = window; }

    int ask(const Question& question) override;
    std::optional<QString> chooseSaveLocation(const QString& message, const QString& path,
                                              bool replaces) override;
    std::optional<QString> chooseOpenFile(const QString& message, const QString& folder) override;
    std::optional<QString> chooseExportFile(const QString& message, const QString& path) override;
    std::optional<QString> chooseFolder(const QString& message, const QString& folder) override;
    std::unique_ptr<ProgressPanel> showProgress(const QString& message) override;
    void showError(const QString& message, const QString& informativeText) override;
    void showNotice(const QString& message, const QString& informativeText) override;
    void showAbout(const QString& title, const QString& text) override;

private:
    void open(const QString& name, const QString& title, const QString& message,
              const QString& informativeText);

    QPointer<QWidget> m_window;
    // What is open and need not be answered.
    QPointer<QWidget> m_open;
};
