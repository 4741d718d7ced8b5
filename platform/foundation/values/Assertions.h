// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stdexcept>

// A broken contract within the program. It is thrown up to the run loop, which logs it and goes on with the
// next event: losing one tick is better than losing the account.
class InternalInconsistency : public std::logic_error {
public:
    // `source` and `line` name the assertion; they stay the same when the code moves.
    InternalInconsistency(const QString& source, int line, const QString& description);

    const QString& source() const { return m_source; }
    int line() const { return m_line; }
    const QString& description() const { return m_description; }
    // "*** Assertion failure in Classes/TimeTracker:432: …"
    QString logLine() const;

private:
    QString m_source;
    int m_line;
    QString m_description;
};
