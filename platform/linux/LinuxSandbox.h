// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Sandbox.h"

#include <QString>

// Recognises Flatpak by a file in the root folder, and Snap by a variable with its folder.
class LinuxSandbox : public Sandbox {
public:
    // `snap` is the value of $SNAP, `program` the full path of this program. A system program that is started
    // from a confined terminal inherits the variable, but is not in that folder.
    LinuxSandbox(const QString& flatpakNote, const QString& snap, const QString& program);
    // For this process. REQUIRES: a QCoreApplication.
    static LinuxSandbox ofThisProcess();

    bool isSandboxed() const override { return m_isSandboxed; }

private:
    bool m_isSandboxed;
};
