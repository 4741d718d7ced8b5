// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

// The executable of a process of this machine, as a full path; empty when it cannot be told.
QString executableOfProcess(std::int64_t processIdentifier);
