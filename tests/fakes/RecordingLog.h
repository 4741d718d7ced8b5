// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/SystemLog.h"

#include <QStringList>

// Keeps what was said, in order.
class RecordingLog : public SystemLog {
public:
    void log(const QString& line) override { lines << line; }

    void print(const QString& line) override { printed << line; }

    // Whether any line that was logged has `part` in it.
    bool mentions(const QString& part) const { return !lines.filter(part).isEmpty(); }

    QStringList lines;
    QStringList printed;
};
