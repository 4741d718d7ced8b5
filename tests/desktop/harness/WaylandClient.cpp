// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/WaylandClient.h"

WaylandClient::WaylandClient(const WaylandDesk& desk, const QString& appId)
    : m_program(desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/qt-client"), {appId}, Program::Output::Read))
    , m_processIdentifier(m_program->processIdentifier()) {
    if (!m_program->isRunning())
        qFatal("qt-client does not start: is Qt's Wayland plug-in installed?");
}

int WaylandClient::open(const QString& title) {
    if (!tell(QStringLiteral("open ") + title))
        qFatal("qt-client opens no window: is Qt's Wayland plug-in installed?");
    return m_windows++;
}

void WaylandClient::setTitle(int window, const QString& title) {
    tell(QStringLiteral("title %1 %2").arg(window).arg(title));
}

void WaylandClient::close(int window) {
    tell(QStringLiteral("close %1").arg(window));
}

bool WaylandClient::awaitFocus(int window) {
    return tell(QStringLiteral("await %1").arg(window));
}

bool WaylandClient::tell(const QString& command) {
    m_program->write(command.toUtf8() + '\n');
    return m_program->readLine() == QByteArray("ok");
}
