// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/Program.h"

#include <csignal>
#include <sys/prctl.h>

Program::Program(const QString& executable, const QStringList& arguments,
                 const QProcessEnvironment& environment, Output output, const QString& complaints) {
    m_process.setProcessEnvironment(environment);
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    if (output != Output::Read)
        m_process.setStandardOutputFile(QProcess::nullDevice());
    // Nobody would read the pipe, and a full pipe would stop the program.
    if (output == Output::ErrorsRead)
        m_process.setReadChannel(QProcess::StandardError);
    else if (qEnvironmentVariableIsSet("TICKLOG_TEST_VERBOSE"))
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    else
        m_process.setStandardErrorFile(complaints.isEmpty() ? QProcess::nullDevice() : complaints);
    m_process.start(executable, arguments);
    m_process.waitForStarted(int(kGenerousLimit.count()));
}

Program::~Program() {
    kill();
}

std::optional<int> Program::exitStatus() const {
    if (m_process.state() != QProcess::NotRunning || m_process.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    return m_process.exitCode();
}

void Program::kill() {
    m_process.kill();
    m_process.waitForFinished(int(kGenerousLimit.count()));
}

void Program::pause() const {
    ::kill(pid_t(m_process.processId()), SIGSTOP);
}

void Program::resume() const {
    ::kill(pid_t(m_process.processId()), SIGCONT);
}

bool Program::terminate(std::chrono::milliseconds limit) {
    m_process.terminate();
    return waitUntilEnded(limit);
}

bool Program::waitUntilEnded(std::chrono::milliseconds limit) {
    return waitFor([this] { return m_process.state() == QProcess::NotRunning; }, limit);
}

void Program::write(const QByteArray& bytes) {
    m_process.write(bytes);
}

std::optional<QByteArray> Program::readLine(std::chrono::milliseconds limit) {
    const auto isThere = [this] {
        return m_process.canReadLine() || m_process.state() == QProcess::NotRunning;
    };
    if (!waitFor(isThere, limit) || !m_process.canReadLine())
        return std::nullopt;
    QByteArray line = m_process.readLine();
    if (line.endsWith('\n'))
        line.chop(1);
    return line;
}
