// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/Alerts.h"

#include <QStringList>

#include <functional>

// Answers every question as it was told beforehand, and remembers what was asked.
class FakeAlerts : public Alerts {
public:
    int ask(const Question& question) override {
        questions << question.message;
        last = question;
        if (whileAsking)
            whileAsking();
        return answer;
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

    void showError(const QString& message, const QString& informativeText) override {
        errors << message + QStringLiteral(": ") + informativeText;
    }

    void showAbout(const QString&, const QString& text) override { about = text; }

    // As somebody answers who only presses Return.
    int answer = Default;
    // What is chosen in panels; absent, they are closed.
    std::optional<QString> location;
    // The question stays open while this runs.
    std::function<void()> whileAsking;

    QStringList questions;
    Question last;
    QStringList panels;
    bool lastReplaces = false;
    QStringList errors;
    QString about;
};
