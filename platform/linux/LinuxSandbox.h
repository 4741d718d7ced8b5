// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Sandbox.h"

#include <QString>

// Flatpak, which leaves a note in the root folder, and Snap, which names its folder in the environment.
class LinuxSandbox : public Sandbox {
public:
    // `snap` is the value of $SNAP; `program` the full path of this program. A program of the system's own
    // that a confined terminal starts inherits the variable, but does not lie in that folder.
    LinuxSandbox(const QString& flatpakNote, const QString& snap, const QString& program);
    // For this process. REQUIRES: a QCoreApplication.
    static LinuxSandbox ofThisProcess();

    bool isSandboxed() const override { return m_isSandboxed; }

private:
    bool m_isSandboxed;
};
