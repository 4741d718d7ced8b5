// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/SystemLog.h"

// The log of the machine: the journal by its native protocol, else syslog; and standard error when somebody
// reads it. Never waits for the journal.
class JournalLog : public SystemLog {
public:
    struct Destinations {
        // The journal's datagram socket. Where there is none, syslog is used.
        QString journalSocket;
        bool toStandardError = false;
    };

    // The journal of this machine; standard error when it is a terminal or TICKLOG_LOG_STDERR is set.
    static Destinations usualDestinations();

    explicit JournalLog(const Destinations& destinations);
    JournalLog(const JournalLog&) = delete;
    JournalLog& operator=(const JournalLog&) = delete;
    ~JournalLog() override;

    // To a terminal without what would command it, further lines with a margin.
    void log(const QString& line) override;
    void print(const QString& line) override;

private:
    bool sendToJournal(const QByteArray& line) const;

    QByteArray m_journalSocket;
    bool m_toStandardError;
    int m_socket = -1;
};
