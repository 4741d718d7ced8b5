// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Takes diagnostic messages. There are no levels. Messages must not contain window titles, which are private.
class SystemLog {
public:
    virtual ~SystemLog() = default;

    // Writes one line to the journal or syslog, and to standard error if that is a terminal.
    virtual void log(const QString& line) = 0;
    // Writes one line to standard output, for the few messages that belong there.
    virtual void print(const QString& line) = 0;
};
