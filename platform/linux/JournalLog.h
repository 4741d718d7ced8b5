// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/SystemLog.h"

// The machine's log: the journal by its own protocol, else syslog; also standard error if somebody reads it.
// Never waits for the journal.
class JournalLog : public SystemLog {
public:
    struct Destinations {
        // The journal's datagram socket. If it does not exist, syslog is used.
        QString journalSocket;
        bool toStandardError = false;
    };

    // The journal of this machine; also standard error if that is a terminal or TICKLOG_LOG_STDERR is set.
    static Destinations usualDestinations();

    explicit JournalLog(const Destinations& destinations);
    JournalLog(const JournalLog&) = delete;
    JournalLog& operator=(const JournalLog&) = delete;
    ~JournalLog() override;

    // For a terminal, removes control characters and indents further lines.
    void log(const QString& line) override;
    void print(const QString& line) override;

private:
    bool sendToJournal(const QByteArray& line) const;

    QByteArray m_journalSocket;
    bool m_toStandardError;
    int m_socket = -1;
};
