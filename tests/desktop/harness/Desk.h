// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/DisplayProbe.h"
#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/SessionBus.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/desktop/harness/VirtualDisplay.h"

#include <optional>

// A whole desktop of its own: a fresh home, an X server, a window manager, and a message bus if wanted.
class Desk {
public:
    enum class Bus { None, Own };

    // `windowManager` is its executable, such as "openbox" or "icewm"; empty for none. Ready when
    // constructed; aborts the test program if something cannot be started.
    explicit Desk(const QString& windowManager = QStringLiteral("openbox"), Bus bus = Bus::None,
                  VirtualDisplay::Number number = VirtualDisplay::Number::Any);

    TemporaryHome& home() { return m_home; }

    const TemporaryHome& home() const { return m_home; }

    const VirtualDisplay& display() const { return m_display; }

    DisplayProbe& probe() const { return *m_probe; }

    bool hasWindowManager() const { return m_windowManager != nullptr; }

    // REQUIRES: made with a bus.
    SessionBus& bus() { return *m_bus; }

    // For programs on this desk.
    QProcessEnvironment environment() const;

    std::unique_ptr<Program> start(const QString& executable, const QStringList& arguments = {},
                                   Program::Output output = Program::Output::Discarded) const;
    // Runs a program to its end and answers whether it succeeded.
    bool run(const QString& executable, const QStringList& arguments) const;
    // The first window of a program; 0 if none appeared in time.
    xcb_window_t waitForWindow(const Program& program) const;

    void startWindowManager(const QString& executable);

    void endWindowManager() { m_windowManager.reset(); }

    // Ends the X server and all on it.
    void killDisplay();
    // Restarts the X server and the window manager. REQUIRES: made with Number::Kept.
    void restartDisplay();

private:
    TemporaryHome m_home;
    QString m_windowManagerName;
    VirtualDisplay m_display;
    std::optional<SessionBus> m_bus;
    std::unique_ptr<DisplayProbe> m_probe;
    std::unique_ptr<Program> m_windowManager;
};
