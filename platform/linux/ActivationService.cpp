// SPDX-License-Identifier: MIT
#include "platform/linux/ActivationService.h"

#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/values/Assertions.h"
#include "platform/linux/ActivationToken.h"

#include <QDBusError>
#include <QPointer>
#include <QUrl>

#include <utility>

namespace {

// The full path of a file on this machine; empty for anything else.
QString localPath(const QString& uri) {
    if (uri.size() > kLongestText)
        return {};
    const QUrl url(uri, QUrl::StrictMode);
    const bool isHere =
        url.isLocalFile() && (url.host().isEmpty() || url.host() == QLatin1String("localhost"));
    const QString path = isHere ? url.path(QUrl::FullyDecoded) : QString();
    return path.startsWith(u'/') && !path.contains(QChar(0)) ? path : QString();
}

QByteArray tokenIn(const QVariantMap& platformData) {
    const QVariant value = platformData.value(QStringLiteral("activation-token"));
    return value.typeId() == QMetaType::QString ? ActivationToken::from(value.toString()) : QByteArray();
}

} // namespace

ActivationService::ActivationService(Bus& sessionBus, const Admission& admission, RunLoop& runLoop,
                                     SystemLog& log)
    : m_bus(sessionBus)
    , m_admission(admission)
    , m_runLoop(runLoop)
    , m_log(log)
    , m_connection(sessionBus.observe([this] { offer(); })) {
    offer();
}

ActivationService::~ActivationService() {
    if (m_bus.isConnected())
        m_bus.connection().unregisterObject(kTicklogPath);
}

void ActivationService::listen(Handler handler) {
    if (m_handler)
        throw InternalInconsistency(QStringLiteral("platform/ActivationService"), __LINE__,
                                    QStringLiteral("somebody listens already"));
    m_handler = std::move(handler);
    for (Request& request : std::exchange(m_kept, {}))
        carryOutSoon(std::move(request));
}

void ActivationService::offer() {
    if (m_bus.isConnected() &&
        !m_bus.connection().registerObject(kTicklogPath, this, QDBusConnection::ExportScriptableSlots))
        m_log.log(QStringLiteral("Launchers cannot reach Ticklog over the session bus."));
}

void ActivationService::Activate(const QVariantMap& platformData) {
    take({.files = {}, .token = tokenIn(platformData)});
}

void ActivationService::Open(const QStringList& uris, const QVariantMap& platformData) {
    if (uris.size() > kMostFiles) {
        sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("Too many files at once."));
        return;
    }
    QStringList files;
    for (const QString& uri : uris)
        if (const QString path = localPath(uri); !path.isEmpty())
            files << path;
    if (files.size() < uris.size())
        m_log.log(QStringLiteral("What is no file of this machine is not opened."));
    if (files.isEmpty() && !uris.isEmpty()) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("Only files of this machine can be opened."));
        return;
    }
    take({.files = files, .token = tokenIn(platformData)});
}

void ActivationService::ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("There is no such action."));
}

void ActivationService::take(Request request) {
    request.ticket = m_admission.admit();
    if (!request.ticket)
        sendErrorReply(QDBusError::LimitsExceeded,
                       QStringLiteral("Answer the questions that are open first."));
    else if (m_handler)
        carryOutSoon(std::move(request));
    else
        m_kept.push_back(std::move(request));
}

void ActivationService::carryOutSoon(Request request) {
    m_runLoop.performSoon([self = QPointer(this), request = std::move(request)] {
        if (self)
            self->carryOut(request);
    });
}

void ActivationService::carryOut(const Request& request) {
    if (!request.token.isEmpty()) {
        // Gone before the files are asked about: programs may be started then.
        const ActivationToken token(request.token);
        m_handler({}, request.ticket);
    }
    if (request.token.isEmpty() || !request.files.isEmpty())
        m_handler(request.files, request.ticket);
}
