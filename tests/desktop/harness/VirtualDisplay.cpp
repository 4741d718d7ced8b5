// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/VirtualDisplay.h"

#include <QCoreApplication>
#include <QFile>

VirtualDisplay::VirtualDisplay(const QProcessEnvironment& environment)
    : m_environment(environment) {
    start({});
}

VirtualDisplay::~VirtualDisplay() {
    if (!m_server)
        QFile::remove(lockFile());
}

QString VirtualDisplay::lockFile() const {
    return QStringLiteral("/tmp/.X%1-lock").arg(m_name.mid(1));
}

void VirtualDisplay::kill() {
    m_server.reset();
    // Another test's server must not take the number while this one's is down: the lock says that it is in
    // use.
    QFile lock(lockFile());
    QFile::remove(lockFile());
    if (lock.open(QFile::WriteOnly | QFile::NewOnly))
        lock.write(QByteArray::number(QCoreApplication::applicationPid()).rightJustified(10) + '\n');
}

void VirtualDisplay::restart() {
    QFile::remove(lockFile());
    start({m_name});
}

void VirtualDisplay::start(const QStringList& arguments) {
    // The server would end its life with its last client's, and begin another one in between, without
    // -noreset.
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
