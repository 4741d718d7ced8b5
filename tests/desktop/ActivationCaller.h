// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/linux/ActivationService.h"
#include "tests/desktop/harness/WaitFor.h"
#include "tests/fakes/RecordingLog.h"

#include <QStringList>

#include <optional>

// A launcher on a bus: calls the program with Ticklog's name as launchers do. Answers "done", or the last
// part of an error's name.
class ActivationCaller {
public:
    explicit ActivationCaller(const QString& busAddress)
        : m_bus(Bus::atAddress(busAddress), m_runLoop, m_log) {}

    QString activate(const QVariantMap& platformData = {}) {
        return ask(QStringLiteral("Activate"), {platformData});
    }

    QString open(const QStringList& uris) { return ask(QStringLiteral("Open"), {uris, QVariantMap()}); }

    QString ask(const QString& member, const QVariantList& arguments) {
        const qsizetype before = answers.size();
        send(member, arguments);
        waitFor([&] { return answers.size() > before; });
        return answers.value(before, QStringLiteral("no answer"));
    }

    // Does not wait: the answers go into `answers`.
    void send(const QString& member, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(kTicklogName, kTicklogPath,
                                                      QStringLiteral("org.freedesktop.Application"), member);
        message.setArguments(arguments);
        m_bus.call(message, &m_receiver, [this](const QDBusMessage& answer) {
            answers << (answer.type() == QDBusMessage::ReplyMessage ? QStringLiteral("done")
                                                                    : answer.errorName().section(u'.', -1));
        });
    }

    // The bus's own answer about a name or a connection; absent if there is none.
    QVariant askBus(const QString& member, const QString& name) {
        std::optional<QVariant> value;
        auto message =
            QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName, member);
        message << name;
        m_bus.call(message, &m_receiver, [&](const QDBusMessage& answer) {
            value = answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
        });
        waitFor([&] { return value.has_value(); });
        return value.value_or(QVariant());
    }

    // The process that has the name; 0 if none has.
    qint64 bearer() {
        return askBus(QStringLiteral("GetConnectionUnixProcessID"), kTicklogName).toLongLong();
    }

    Bus& bus() { return m_bus; }

    QStringList answers;

private:
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    QObject m_receiver;
    Bus m_bus;
};
