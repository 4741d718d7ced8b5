// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OwnProgram.h"

// Inside a sandbox, everything ends with the first process, so a new instance could not begin.
class SandboxedProgram : public OwnProgram {
public:
    // `program` answers all other questions, and outlives this object.
    explicit SandboxedProgram(const OwnProgram& program)
        : m_program(program) {}

    QString executable() const override { return m_program.executable(); }
    Outcome relaunch() override {
        return Failure{Failure::Kind::Refused, QStringLiteral("a sandbox ends with its first process")};
    }

private:
    const OwnProgram& m_program;
};
