// SPDX-License-Identifier: MIT
#include "platform/linux/JournalLog.h"

#include <QtEndian>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

namespace {

// systemd's own protocol. A field is "NAME=value\n"; or, if the value may have line breaks: its name, a line
// break, the length in eight bytes (little endian), the value, and a line break.
QByteArray journalEntry(const QByteArray& line) {
    QByteArray entry("PRIORITY=6\nSYSLOG_IDENTIFIER=ticklog\n");
    if (!line.contains('\n'))
        return entry + "MESSAGE=" + line + '\n';
    const quint64 length = qToLittleEndian<quint64>(line.size());
    return entry + "MESSAGE\n" + QByteArray(reinterpret_cast<const char*>(&length), sizeof length) + line +
           '\n';
}

// A terminal obeys control characters, and names of files or services in a line may contain some.
QString forTerminal(const QString& line) {
    QString shown;
    shown.reserve(line.size());
    for (const QChar character : line) {
        const QChar::Category category = character.category();
        if (character == u'\n')
            shown += QLatin1String("\n  ");
        else if (category == QChar::Other_Control || category == QChar::Other_Format)
            shown += QChar::ReplacementCharacter;
        else
            shown += character;
    }
    return shown;
}

void writeLine(std::FILE* stream, const QString& text) {
    const QByteArray line = forTerminal(text).toUtf8();
    std::fwrite(line.constData(), 1, line.size(), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

} // namespace

JournalLog::Destinations JournalLog::usualDestinations() {
    return {QStringLiteral("/run/systemd/journal/socket"),
            isatty(STDERR_FILENO) == 1 || qEnvironmentVariableIsSet("TICKLOG_LOG_STDERR")};
}

JournalLog::JournalLog(const Destinations& destinations)
    : m_journalSocket(destinations.journalSocket.toLocal8Bit())
    , m_toStandardError(destinations.toStandardError)
    , m_socket(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
    openlog("ticklog", LOG_PID | LOG_NDELAY, LOG_USER);
}

JournalLog::~JournalLog() {
    closelog();
    if (m_socket >= 0)
        close(m_socket);
}

void JournalLog::log(const QString& line) {
    const QByteArray bytes = line.toUtf8();
    if (!sendToJournal(bytes))
        syslog(LOG_INFO, "%s", bytes.constData());
    if (m_toStandardError)
        writeLine(stderr, line);
}

void JournalLog::print(const QString& line) {
    writeLine(stdout, line);
}

bool JournalLog::sendToJournal(const QByteArray& line) const {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (m_socket < 0 || m_journalSocket.isEmpty() ||
        m_journalSocket.size() >= qsizetype(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, m_journalSocket.constData(), m_journalSocket.size());
    const QByteArray entry = journalEntry(line);
    const auto sent = sendto(m_socket, entry.constData(), entry.size(), MSG_NOSIGNAL,
                             reinterpret_cast<const sockaddr*>(&address), sizeof address);
    // If the journal runs but cannot keep up, the line is lost: syslog would go to the same place, and wait.
    return sent >= 0 || errno == EAGAIN;
}
