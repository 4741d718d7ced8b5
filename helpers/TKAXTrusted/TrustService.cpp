// SPDX-License-Identifier: MIT
#include "helpers/TKAXTrusted/TrustService.h"

#include "helpers/TKAXTrusted/ProgramCheck.h"
#include "platform/bus/BusMap.h"
#include "platform/bus/BusService.h"

#include <algorithm>
#include <climits>

namespace {

const QString kErrors = QStringLiteral("org.ticklog.TKAXTrusted.Error.");
constexpr const char* kBusy = "Busy";
constexpr const char* kBadProgram = "BadProgram";
constexpr const char* kNotAuthorized = "NotAuthorized";
constexpr const char* kFailed = "Failed";

// The user whom the bus names.
std::optional<uid_t> userOf(const QDBusMessage& credentials) {
    const auto values = mapIn(credentials, "a{sv}", 0);
    const QVariant user = values.value(QStringLiteral("UnixUserID"));
    if (credentials.type() != QDBusMessage::ReplyMessage || !user.isValid())
        return std::nullopt;
    return uid_t(user.toUInt());
}

} // namespace

TrustService::TrustService(Bus& bus, TrustRecord record, const Clock& clock, SystemLog& log,
                           std::chrono::milliseconds patience, std::function<void()> idle)
    : m_bus(bus)
    , m_record(std::move(record))
    , m_log(log)
    , m_authority(bus)
    , m_limit(clock) {
    m_callers.setConnection(bus.connection());
    m_callers.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_callers, &QDBusServiceWatcher::serviceUnregistered, this, &TrustService::left);
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, std::move(idle));
    m_idle.start(patience);
}

void TrustService::Authorize(const QString& program, const QDBusMessage& message) {
    take({.message = message, .program = program, .isGrant = true});
}

void TrustService::Revoke(const QString& program, const QDBusMessage& message) {
    take({.message = message, .program = program, .isGrant = false});
}

void TrustService::take(Request request) {
    const QString sender = request.message.service();
    request.message.setDelayedReply(true);
    // Too long to be kept while the bus is asked for the user: it may be millions of characters.
    if (request.program.size() >= PATH_MAX) {
        m_bus.connection().send(request.message.createErrorReply(kErrors + QLatin1String(kBadProgram),
                                                                 checkForm(request.program).failure().text));
        return;
    }
    if (m_requests.size() >= kMostPending || m_requests.contains(sender)) {
        m_bus.connection().send(request.message.createErrorReply(kErrors + QLatin1String(kBusy),
                                                                 QStringLiteral("One request at a time.")));
        return;
    }
    m_idle.stop();
    m_requests.emplace(sender, std::move(request));
    m_callers.addWatchedService(sender);
    auto question = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                                   QStringLiteral("GetConnectionCredentials"));
    question << sender;
    m_bus.call(question, this, [this, sender](const QDBusMessage& reply) { identified(sender, reply); });
}

void TrustService::identified(const QString& sender, const QDBusMessage& credentials) {
    const auto found = m_requests.find(sender);
    if (found == m_requests.end())
        return;
    Request& request = found->second;
    const std::optional<uid_t> user = userOf(credentials);
    if (!user) {
        refuse(sender, kNotAuthorized, QStringLiteral("Nobody knows who asks."));
        return;
    }
    request.user = user;
    if (!m_limit.admit(*user)) {
        refuse(sender, kBusy, QStringLiteral("Too many requests: wait a minute."));
        return;
    }
    const auto isTheirs = [&](const auto& open) { return open.second.user == user; };
    if (std::ranges::count_if(m_requests, isTheirs) > kMostPendingOfUser) {
        refuse(sender, kBusy, QStringLiteral("Answer the other requests first."));
        return;
    }
    // Checks only the words of the path. The caller is not allowed anything yet, so neither an answer nor the
    // appearance of a dialogue may show what lies there, perhaps in a folder of root's.
    if (const Outcome formed = checkForm(request.program); !formed) {
        refuse(sender, kBadProgram, formed.failure().text);
        return;
    }
    request.question =
        m_authority.check({.sender = sender,
                           .action = request.isGrant ? QStringLiteral("org.ticklog.TKAXTrusted.authorize")
                                                     : QStringLiteral("org.ticklog.TKAXTrusted.revoke"),
                           .program = request.program,
                           .isInteractive = request.message.isInteractiveAuthorizationAllowed()},
                          [this, sender](PolkitAuthority::Verdict verdict) { judged(sender, verdict); });
}

void TrustService::judged(const QString& sender, PolkitAuthority::Verdict verdict) {
    const auto found = m_requests.find(sender);
    // The bus never uses a connection's name again, so this is the request that was asked about.
    if (found == m_requests.end())
        return;
    const Request& request = found->second;
    if (verdict != PolkitAuthority::Verdict::Yes) {
        refuse(sender, kNotAuthorized, QStringLiteral("This was not authorized."));
        return;
    }
    if (const Outcome checked = check(request); !checked) {
        refuse(sender, kBadProgram, checked.failure().text);
        return;
    }
    if (const Outcome done = carryOut(request); !done) {
        refuse(sender, kFailed, done.failure().text);
        return;
    }
    answer(sender, request.message.createReply());
}

Outcome TrustService::check(const Request& request) const {
    // A program that is to be removed may no longer exist.
    return request.isGrant ? checkProgram(request.program, *request.user) : checkForm(request.program);
}

Outcome TrustService::carryOut(const Request& request) {
    const Outcome done = request.isGrant ? m_record.add(request.program) : m_record.remove(request.program);
    if (done)
        m_log.log(QStringLiteral("%1 is %2, as user %3 asked")
                      .arg(request.program,
                           request.isGrant ? QStringLiteral("trusted") : QStringLiteral("no longer trusted"))
                      .arg(*request.user));
    return done;
}

void TrustService::left(const QString& sender) {
    const auto found = m_requests.find(sender);
    if (found == m_requests.end())
        return;
    if (found->second.question != 0)
        m_authority.cancel(found->second.question);
    answer(sender, {});
}

void TrustService::answer(const QString& sender, const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::InvalidMessage)
        m_bus.connection().send(reply);
    m_requests.erase(sender);
    m_callers.removeWatchedService(sender);
    if (m_requests.empty())
        m_idle.start();
}

void TrustService::refuse(const QString& sender, const char* error, const QString& text) {
    answer(sender, m_requests.at(sender).message.createErrorReply(kErrors + QLatin1String(error), text));
}
