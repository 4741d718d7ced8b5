// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Notices.h"

#include <QStringList>

#include <optional>

// A desktop that shows notices, and a person who answers them.
class FakeNotices : public Notices {
public:
    void show(const Notice& notice, Answered answered) override {
        shown = notice;
        m_answered = std::move(answered);
        ++count;
    }

    void withdraw() override {
        shown.reset();
        m_answered = {};
    }

    void press(const char* key) {
        if (const auto answered = std::exchange(m_answered, {}))
            answered(QLatin1String(key));
    }

    // "You were away for 20 minutes | Poster, Break, Say…"; empty without one.
    QString text() const {
        if (!shown)
            return {};
        QStringList buttons;
        for (const Notice::Button& button : shown->buttons)
            buttons << button.text;
        return shown->title + QStringLiteral(" | ") + buttons.join(QStringLiteral(", "));
    }

    std::optional<Notice> shown;
    // How many were shown in all.
    int count = 0;

private:
    Answered m_answered;
};
