// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/Alerts.h"

#include <QStringList>

#include <functional>
#include <thread>
#include <vector>

// Answers every question as told in advance, and remembers what was asked.
class FakeAlerts : public Alerts {
public:
    int ask(const Question& question) override {
        questions << question.message;
        last = question;
        bool isClosed = false;
        if (question.opened)
            question.opened([&] { isClosed = true; });
        if (whileAsking)
            whileAsking();
        return isClosed ? question.whenClosed : answer;
    }

    std::optional<QString> chooseSaveLocation(const QString& message, const QString&,
                                              bool replaces) override {
        panels << message;
        lastReplaces = replaces;
        return location;
    }

    std::optional<QString> chooseOpenFile(const QString& message, const QString&) override {
        panels << message;
        return location;
    }

    std::optional<QString> chooseExportFile(const QString& message, const QString& path) override {
        panels << message;
        begunAt = path;
        return location;
    }

    std::optional<QString> chooseFolder(const QString& message, const QString& folder) override {
        panels << message;
        begunAt = folder;
        return location;
    }

    bool waitFor(const QString& message, const std::function<double()>& done) override {
        panels << message;
        parts.clear();
        while (parts.empty() || parts.back() < 1) {
            if (givesUp || (!parts.empty() && parts.back() > givesUpAfter))
                return false;
            if (const double part = done(); parts.empty() || part != parts.back())
                parts.push_back(part);
            std::this_thread::yield();
        }
        return true;
    }

    std::unique_ptr<ProgressPanel> showProgress(const QString& message) override {
        struct Recorder : ProgressPanel {
            explicit Recorder(FakeAlerts& alerts)
                : told(alerts) {}

            void setDone(double done) override {
                told.progress.push_back(done);
                if (told.whileProgressing)
                    told.whileProgressing();
            }

            FakeAlerts& told;
        };

        panels << message;
        return std::make_unique<Recorder>(*this);
    }

    void showError(const QString& message, const QString& informativeText) override {
        errors << message + QStringLiteral(": ") + informativeText;
    }

    void showNotice(const QString& message, const QString&) override { notices << message; }

    void showAbout(const QString&, const QString& text) override { about = text; }

    // Like somebody who only presses Return.
    int answer = Default;
    // What is chosen in panels; absent, they are closed.
    std::optional<QString> location;
    // The question stays open while this runs.
    std::function<void()> whileAsking;

    QStringList questions;
    Question last;
    QStringList panels;
    bool lastReplaces = false;
    // Where the last panel started.
    QString begunAt;
    // Whether the user cancels as soon as the progress is shown.
    bool givesUp = false;
    // The user cancels once more than this is done.
    double givesUpAfter = 1;
    // The parts that were reported for the last waitFor().
    std::vector<double> parts;
    // What progress panels were told, and what happens while they are painted.
    std::vector<double> progress;
    std::function<void()> whileProgressing;
    QStringList errors;
    QStringList notices;
    QString about;
};
