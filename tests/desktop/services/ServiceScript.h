// SPDX-License-Identifier: MIT
#pragma once

#include "tests/Places.h"
#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <QtGlobal>

// One of the services beside this file: it says a line when it is ready, then obeys line by line.
class ServiceScript {
public:
    ServiceScript(const TemporaryHome& home, const QString& name, const QStringList& arguments)
        : m_program(QStringLiteral("/usr/bin/python3"),
                    // -B: leaves no compiled scripts in the source tree.
                    QStringList{QStringLiteral("-B"),
                                QStringLiteral(TICKLOG_SOURCE_DIR "/tests/desktop/services/") + name} +
                        arguments,
                    home.environment(), Program::Output::Read)
        , m_greeting(line()) {}

    const QString& greeting() const { return m_greeting; }

    // What it answered after "ok". The service has done what was asked when this returns.
    QString ask(const char* command) {
        m_program.write(QByteArray(command) + '\n');
        return hear();
    }

    // Reads a line that the service writes by itself.
    QString hear() {
        const QString answer = line();
        if (!answer.startsWith(QLatin1String("ok")))
            qFatal("a service of the tests does not understand: \"%s\"", qPrintable(answer));
        return answer.mid(3);
    }

    void kill() { m_program.kill(); }
    qint64 processIdentifier() const { return m_program.processIdentifier(); }

private:
    QString line() {
        const auto line = m_program.readLine();
        if (!line)
            qFatal(
                "a service of the tests ended: are python3-dbus, python3-gi and python3-dbusmock installed?");
        return QString::fromUtf8(*line);
    }

    Program m_program;
    QString m_greeting;
};

// A private bus with a login manager on it, not started yet.
class LogindMachine {
public:
    QString address() const { return m_script.greeting(); }

    QString ask(const char* command) { return m_script.ask(command); }

    const TemporaryHome& home() const { return m_home; }

    // Whether logind lists exactly these inhibitors, now or soon.
    bool waitForInhibitors(const QString& inhibitors) {
        return waitFor([&] { return ask("inhibitors") == inhibitors; });
    }

private:
    TemporaryHome m_home;
    ServiceScript m_script{m_home, QStringLiteral("logind.py"), {m_home.runtimeFolder()}};
};
