// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Where diagnostics go. There are no levels. Texts hold no window titles: those are private.
class SystemLog {
public:
    virtual ~SystemLog() = default;

    // One line for the journal or syslog, and for standard error when that is a terminal.
    virtual void log(const QString& line) = 0;
    // One line on standard output, for the few messages that belong there.
    virtual void print(const QString& line) = 0;
};
