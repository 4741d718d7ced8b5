// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/Bus.h"
#include "platform/foundation/programs/Admission.h"

#include <QDBusContext>
#include <QStringList>
#include <QVariantMap>

#include <vector>

// Our name on the session bus.
inline const QString kTicklogName = QStringLiteral("org.ticklog.Ticklog");
inline const QString kTicklogPath = QStringLiteral("/org/ticklog/Ticklog");

// The program as launchers see it on the session bus (org.freedesktop.Application): they can bring it to the
// front and have it open files. A caller is answered at once; the request is carried out in a later turn of
// the loop, because it may ask the user a question. Requests that come before there is a handler are kept.
// All arguments must outlive it.
class ActivationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    // The full paths of files to open; empty to only come to the front. Keep the ticket for as long as the
    // request is being handled.
    using Handler = std::function<void(const QStringList& files, const Admission::Ticket& ticket)>;

    // The most files in one request, because each is asked about.
    static constexpr qsizetype kMostFiles = 16;

    ActivationService(Bus& sessionBus, const Admission& admission, RunLoop& runLoop, SystemLog& log);
    ~ActivationService() override;

    // REQUIRES: this has not been called before.
    void listen(Handler handler);

public Q_SLOTS:
    // The messages of the interface. Of the platform data, only the token is used by which Wayland lets
    // windows come to the front.
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    // Leaves out URIs that are no files of this machine; an error if none remains, or if there are too many.
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    // Always an error: there are no actions, because a session without a bus could not offer them.
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameters,
                                     const QVariantMap& platformData);

private:
    struct Request {
        QStringList files;
        // Empty without a token.
        QByteArray token;
        Admission::Ticket ticket = {};
    };

    void offer();
    void take(Request request);
    void carryOutSoon(Request request);
    void carryOut(const Request& request);

    Bus& m_bus;
    const Admission& m_admission;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    Handler m_handler;
    std::vector<Request> m_kept;
    Subscription m_connection;
};
