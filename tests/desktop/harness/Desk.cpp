// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/Desk.h"

Desk::Desk(const QString& windowManager, Bus bus, VirtualDisplay::Number number)
    : m_windowManagerName(windowManager)
    , m_display(m_home.environment(), number) {
    if (bus == Bus::Own)
        m_bus.emplace(m_home.environment(), m_home.runtimeFolder());
    m_probe = std::make_unique<DisplayProbe>(m_display.name());
    if (!m_windowManagerName.isEmpty())
        startWindowManager(m_windowManagerName);
}

QProcessEnvironment Desk::environment() const {
    QProcessEnvironment environment = m_home.environment();
    environment.insert(QStringLiteral("DISPLAY"), m_display.name());
    if (m_bus)
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_bus->address());
    return environment;
}

std::unique_ptr<Program> Desk::start(const QString& executable, const QStringList& arguments,
                                     Program::Output output) const {
    return std::make_unique<Program>(executable, arguments, environment(), output);
}

bool Desk::run(const QString& executable, const QStringList& arguments) const {
    const auto program = start(executable, arguments);
    return program->waitUntilEnded() && program->exitStatus() == 0;
}

xcb_window_t Desk::waitForWindow(const Program& program) const {
    xcb_window_t found = 0;
    waitFor([&] {
        for (const xcb_window_t window : m_probe->windows()) {
            if (m_probe->number(window, "_NET_WM_PID") == quint32(program.processIdentifier()))
                found = window;
        }
        return found != 0;
    });
    return found;
}

void Desk::startWindowManager(const QString& executable) {
    m_windowManager.reset();
    QProcessEnvironment own = environment();
    // Otherwise it would look for a graphics card.
    own.insert(QStringLiteral("KWIN_COMPOSE"), QStringLiteral("N"));
    // These two are also Wayland compositors, and choose by the session type.
    const bool isTold = executable == QLatin1String("mutter") || executable == QLatin1String("muffin");
    m_windowManager = std::make_unique<Program>(
        executable, isTold ? QStringList(QStringLiteral("--x11")) : QStringList(), own);
    const auto isReady = [this] {
        if (!m_probe->hasWindowManager())
            return false;
        // Before it is ready, requests are lost, as are windows opened at that moment.
        m_probe->askWindowManager();
        return waitFor([this] { return m_probe->windowManagerHasAnswered(); },
                       std::chrono::milliseconds(100));
    };
    if (!waitFor(isReady))
        qFatal("the window manager %s does not start: is it installed?", qPrintable(executable));
}

void Desk::killDisplay() {
    m_windowManager.reset();
    m_probe.reset();
    m_display.kill();
}

void Desk::restartDisplay() {
    m_display.restart();
    m_probe = std::make_unique<DisplayProbe>(m_display.name());
    if (!m_windowManagerName.isEmpty())
        startWindowManager(m_windowManagerName);
}
