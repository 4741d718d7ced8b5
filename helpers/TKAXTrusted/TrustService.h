// SPDX-License-Identifier: MIT
#pragma once

#include "helpers/TKAXTrusted/PolkitAuthority.h"
#include "helpers/TKAXTrusted/RequestLimit.h"
#include "platform/linux/TrustRecord.h"

#include <QDBusServiceWatcher>
#include <QTimer>

#include <map>

// The helper's service on the system bus: adds a program to the record of trusted programs or removes it, if
// polkit allows the caller to. Believes nothing that callers say about themselves. A request is dropped when
// its caller leaves.
class TrustService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.ticklog.TKAXTrusted")

public:
    // Requests at the same time: of all callers, and of one user, who could otherwise block the others. Each
    // caller has one.
    static constexpr std::size_t kMostPending = 8;
    static constexpr std::ptrdiff_t kMostPendingOfUser = 2;

    // Calls `idle` when nothing has been asked for as long as the `patience`. The bus, the clock and the log
    // must outlive it.
    TrustService(Bus& bus, TrustRecord record, const Clock& clock, SystemLog& log,
                 std::chrono::milliseconds patience, std::function<void()> idle);

public Q_SLOTS:
    // The messages of the interface. Each has one argument, the program's full path, and an empty answer.
    Q_SCRIPTABLE void Authorize(const QString& program, const QDBusMessage& message);
    Q_SCRIPTABLE void Revoke(const QString& program, const QDBusMessage& message);

private:
    struct Request {
        QDBusMessage message;
        QString program;
        bool isGrant;
        // Set when the bus has answered.
        std::optional<uid_t> user = {};
        // Polkit's number, once polkit is asked.
        int question = 0;
    };

    void take(Request request);
    void identified(const QString& sender, const QDBusMessage& credentials);
    void judged(const QString& sender, PolkitAuthority::Verdict verdict);
    Outcome check(const Request& request) const;
    Outcome carryOut(const Request& request);
    void left(const QString& sender);
    void answer(const QString& sender, const QDBusMessage& reply);
    void refuse(const QString& sender, const char* error, const QString& text);

    Bus& m_bus;
    TrustRecord m_record;
    SystemLog& m_log;
    PolkitAuthority m_authority;
    RequestLimit m_limit;
    // By the caller's own name on the bus.
    std::map<QString, Request> m_requests;
    QDBusServiceWatcher m_callers;
    QTimer m_idle;
};
