// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/Program.h"

#include <memory>

// An X server of its own, without a screen that anybody sees.
class VirtualDisplay {
public:
    enum class Number {
        // The first that is free.
        Any,
        // One that nobody else takes while the server is down, so that it can come back under its name.
        Kept,
    };

    // Aborts the test program when no server can be started: nothing could be tested then.
    explicit VirtualDisplay(const QProcessEnvironment& environment, Number number = Number::Any);
    ~VirtualDisplay();

    // What to put into DISPLAY.
    QString name() const { return m_name; }

    // Stops the server, and lets it go on.
    void pause() const { m_server->pause(); }
    void resume() const { m_server->resume(); }
    // Ends the server; all its clients lose their connection.
    void kill();
    // Starts a server of the same name after kill(). REQUIRES: made with Number::Kept.
    void restart();

private:
    void start(const QStringList& arguments);

    QProcessEnvironment m_environment;
    QString m_name;
    std::unique_ptr<Program> m_server;
};
