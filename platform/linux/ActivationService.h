// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/Bus.h"
#include "platform/foundation/programs/Admission.h"

#include <QDBusContext>
#include <QStringList>
#include <QVariantMap>

#include <vector>

// What we are known by on the session bus.
inline const QString kTicklogName = QStringLiteral("org.ticklog.Ticklog");
inline const QString kTicklogPath = QStringLiteral("/org/ticklog/Ticklog");

// The program as launchers see it on the session bus (org.freedesktop.Application): it can be asked to come to the
// front and to open files. Whoever asks is answered at once; what is asked for is done in a later turn of the loop,
// because it may put a question to the user. Requests that come before anybody listens are kept. The rest must
// outlive it.
class ActivationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    // The full paths of files to open; none to only come to the front. Whoever goes on with them later keeps the ticket
    // until then.
    using Handler = std::function<void(const QStringList& files, const Admission::Ticket& ticket)>;

    // In one request: each file is asked about.
    static constexpr qsizetype kMostFiles = 16;

    ActivationService(Bus& sessionBus, const Admission& admission, RunLoop& runLoop, SystemLog& log);
    ~ActivationService() override;

    void listen(Handler handler);

public Q_SLOTS:
    // The messages of the interface. Of what the caller tells about the desktop, the token that Wayland lets windows
    // come to the front by is used.
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    // What is no file of this machine is left out; an error if nothing remains, or if there are too many.
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    // An error: there are no actions, since a session without a bus could not offer them.
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameters,
                                     const QVariantMap& platformData);

private:
    struct Request {
        QStringList files;
        // Empty when there is none.
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
