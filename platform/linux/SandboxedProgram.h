// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"
#include "platform/OwnProgram.h"
#include "platform/foundation/LocalizedStrings.h"

// Inside a sandbox nothing that the session reads at login can be written.
class SandboxedLoginItems : public LoginItems {
public:
    std::vector<LoginJob> copyAllJobDictionaries() const override { return {}; }
    Outcome setEnabled(const QString&, bool isEnabled) override {
        if (!isEnabled)
            return Done{};
        return Failure{
            Failure::Kind::Refused,
            localized("Ticklog runs in a sandbox, from which it cannot change what the session starts. "
                      "The settings of the desktop can.")};
    }
};

// Inside a sandbox all of it ends with the first process: a new instance would end before it began.
class SandboxedProgram : public OwnProgram {
public:
    // The rest is answered by `program`, which outlives this.
    explicit SandboxedProgram(const OwnProgram& program)
        : m_program(program) {}

    QString executable() const override { return m_program.executable(); }
    Outcome relaunch() override {
        return Failure{Failure::Kind::Refused, QStringLiteral("a sandbox ends with its first process")};
    }

private:
    const OwnProgram& m_program;
};
