// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OwnProgram.h"

#include <QByteArray>

// This process's program. The new instance waits for this process to be gone, and with it every lock it holds.
class LinuxOwnProgram : public OwnProgram {
public:
    // REQUIRES: a QCoreApplication.
    LinuxOwnProgram();
    // For another program, by its full path.
    explicit LinuxOwnProgram(const QString& executable);

    QString executable() const override;
    Outcome relaunch() override;

private:
    // As the system takes it: after the fork nothing may be allocated.
    QByteArray m_executable;
};
