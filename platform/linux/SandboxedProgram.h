// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OwnProgram.h"

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
