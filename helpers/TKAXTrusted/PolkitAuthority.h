// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/Bus.h"

// Asks polkit whether a caller may do something. The bus must outlive it.
class PolkitAuthority : public QObject {
    Q_OBJECT

public:
    struct Question {
        // The caller's own name on the bus, from which polkit learns who it is.
        QString sender;
        QString action;
        // The program that the dialogue names.
        QString program;
        // Whether a person may be asked for a password.
        bool isInteractive;
    };

    enum class Verdict { Yes, No };

    explicit PolkitAuthority(Bus& bus)
        : m_bus(bus) {}

    // `receiver` is called once, unless the question is cancelled; with No also if polkit cannot be asked.
    // Answers the question's number.
    int check(const Question& question, std::function<void(Verdict)> receiver);
    // The answer is not needed any more: closes the dialogue.
    void cancel(int question);

private:
    Bus& m_bus;
    int m_lastQuestion = 0;
};
