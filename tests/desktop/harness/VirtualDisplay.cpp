// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/VirtualDisplay.h"

#include <QCoreApplication>

VirtualDisplay::VirtualDisplay(const QProcessEnvironment& environment, Number number)
    : m_environment(environment) {
    // Far above the numbers that servers choose themselves, and different for every test program that runs.
    const qint64 kept = 20000 + QCoreApplication::applicationPid() % 30000;
    start(number == Number::Kept ? QStringList{QStringLiteral(":%1").arg(kept)} : QStringList());
}

VirtualDisplay::~VirtualDisplay() {
    kill();
}

void VirtualDisplay::kill() {
    // A server that is asked to end removes its lock and its socket.
    if (m_server)
        m_server->terminate(std::chrono::seconds(5));
    m_server.reset();
}

void VirtualDisplay::restart() {
    start({m_name});
}

void VirtualDisplay::start(const QStringList& arguments) {
    // -noreset: the server would reset when its last client leaves.
    const QStringList customary{
        QStringLiteral("-displayfd"), QStringLiteral("1"),           QStringLiteral("-screen"),
        QStringLiteral("0"),          QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"),
        QStringLiteral("tcp"),        QStringLiteral("-noreset"),    QStringLiteral("-ac")};
    m_server = std::make_unique<Program>(QStringLiteral("Xvfb"), arguments + customary, m_environment,
                                         Program::Output::Read);
    const auto number = m_server->readLine();
    if (!number)
        qFatal("no X server could be started: is Xvfb installed?");
    m_name = u':' + QString::fromLatin1(*number);
}
