// SPDX-License-Identifier: MIT
#pragma once

#include "helpers/TKAXTrusted/PolkitAuthority.h"
#include "helpers/TKAXTrusted/RequestLimit.h"
#include "platform/linux/TrustRecord.h"

#include <QDBusServiceWatcher>
#include <QTimer>

#include <map>

// What the helper does, as the system bus sees it: writes a program into the record of those that are trusted, or strikes
// it out, when polkit lets the caller. Nothing the caller says about itself is believed. A request whose caller leaves is
// dropped. The rest must outlive it.
class TrustService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.ticklog.TKAXTrusted")

public:
    // At a time, of all callers, and of one user, who could leave no room for others; each caller has one.
    static constexpr std::size_t kMostPending = 8;
    static constexpr std::ptrdiff_t kMostPendingOfUser = 2;

    TrustService(Bus& bus, TrustRecord record, const Clock& clock, SystemLog& log);

    // Calls `idle` when nothing has been asked for so long.
    void setIdleHandler(std::chrono::milliseconds patience, std::function<void()> idle);

public Q_SLOTS:
    // The messages of the interface; each has one argument, the program's full path, and is answered without a value.
    Q_SCRIPTABLE void Authorize(const QString& program, const QDBusMessage& message);
    Q_SCRIPTABLE void Revoke(const QString& program, const QDBusMessage& message);

private:
    struct Request {
        QDBusMessage message;
        QString program;
        bool isGrant;
        // Once the bus has told.
        std::optional<uid_t> user = {};
        // Polkit's, once it is asked.
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
