// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/BackgroundMove.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <memory>

// Reads a property list beside the main thread, which goes on counting and painting: the file may be large, and its disk may
// answer slowly or never. The thread knows a path and what stands there, and nothing else. Nobody waits for it: when this is
// gone it gives up. Main thread only.
class FileReading {
public:
    explicit FileReading(const QString& path,
                         const BackgroundMove::Background& background = BackgroundMove::onThread);
    FileReading(const FileReading&) = delete;
    FileReading& operator=(const FileReading&) = delete;
    ~FileReading();

    // How much of it is done, from 0 to 1. It is 1 when it has ended, and not before.
    double done() const;
    // What was read, as of PropertyList::readFile(). REQUIRES: done() is 1. Once.
    Result<PropertyListValue> take();

private:
    struct State;

    std::shared_ptr<State> m_state;
};
