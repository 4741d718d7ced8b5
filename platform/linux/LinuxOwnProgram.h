// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OwnProgram.h"

#include <QByteArray>

// The program of this process. The new instance waits until this process has ended and released all its
// locks.
class LinuxOwnProgram : public OwnProgram {
public:
    // REQUIRES: a QCoreApplication.
    LinuxOwnProgram();
    // For another program, by its full path.
    explicit LinuxOwnProgram(const QString& executable);

    QString executable() const override;
    Outcome relaunch() override;

private:
    // In the system's form, because nothing may be allocated after the fork.
    QByteArray m_executable;
};
