// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/WaylandClient.h"
#include "tests/Places.h"

namespace {

std::unique_ptr<Program> startClient(const WaylandDesk& desk, const QString& appId,
                                     WaylandClient::Kind kind) {
    const QString qt = QStringLiteral(TICKLOG_BINARY_DIR "/qt-client");
    switch (kind) {
    case WaylandClient::Kind::Gtk:
        return desk.start(QStringLiteral("/usr/bin/python3"),
                          {QStringLiteral("-B"),
                           QStringLiteral(TICKLOG_SOURCE_DIR "/tests/desktop/clients/gtk_client.py"), appId},
                          Program::Output::Read);
    case WaylandClient::Kind::QtOnX11:
        // An X server has two names for a window's class; compositors report one or the other.
        return desk.start(
            qt, {QStringLiteral("-platform"), QStringLiteral("xcb"), QStringLiteral("-name"), appId, appId},
            Program::Output::Read);
    case WaylandClient::Kind::Qt:
        break;
    }
    return desk.start(qt, {appId}, Program::Output::Read);
}

} // namespace

WaylandClient::WaylandClient(const WaylandDesk& desk, const QString& appId, Kind kind)
    : m_program(startClient(desk, appId, kind))
    , m_processIdentifier(m_program->processIdentifier()) {
    if (!m_program->isRunning())
        qFatal("a client does not start: are Qt's Wayland plug-in, python3-gi and GTK 3 installed?");
}

int WaylandClient::open(const QString& title) {
    if (!tell(QStringLiteral("open ") + title))
        qFatal("a client opens no window: are Qt's Wayland plug-in, python3-gi and GTK 3 installed?");
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
