// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/WaitFor.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>

#include <optional>

// A child process. It ends with this object at the latest, and with the test program however that ends.
class Program {
public:
    enum class Output {
        // What it writes is thrown away.
        Discarded,
        // What it writes to standard output can be read.
        Read,
        // The same of its standard error.
        ErrorsRead,
    };

    // Starts `executable`, which is looked up in PATH; isRunning() tells whether that worked. `complaints` is
    // the path of a file for its standard error, if that is not read here.
    Program(const QString& executable, const QStringList& arguments, const QProcessEnvironment& environment,
            Output output = Output::Discarded, const QString& complaints = {});
    ~Program();

    bool isRunning() const { return m_process.state() == QProcess::Running; }

    qint64 processIdentifier() const { return m_process.processId(); }

    // The exit status; absent while it runs and when a signal ended it.
    std::optional<int> exitStatus() const;

    // Kills it and waits until it is gone.
    void kill();
    // Stops it, like a program that hangs, until resume().
    void pause() const;
    void resume() const;
    // Asks it to end (SIGTERM) and answers whether it did.
    bool terminate(std::chrono::milliseconds limit = kGenerousLimit);
    // Answers whether it ended by itself.
    bool waitUntilEnded(std::chrono::milliseconds limit = kGenerousLimit);

    void write(const QByteArray& bytes);
    // The next line of its output without the line break; absent when none came.
    std::optional<QByteArray> readLine(std::chrono::milliseconds limit = kGenerousLimit);

private:
    QProcess m_process;
};
