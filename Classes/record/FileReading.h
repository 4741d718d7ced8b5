// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/BackgroundMove.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <memory>

// Reads a property list on another thread, while the main thread goes on counting and painting: the file may
// be large, and its disk may answer slowly or never. The thread knows nothing but a path and what it reads
// there. Nobody waits for it, and it gives up when this object is gone. Main thread only.
class FileReading {
public:
    explicit FileReading(const QString& path,
                         const BackgroundMove::Background& background = BackgroundMove::onThread);
    FileReading(const FileReading&) = delete;
    FileReading& operator=(const FileReading&) = delete;
    ~FileReading();

    // How much has been read, from 0 to 1. It is 1 only when reading has ended.
    double done() const;
    // The result, as of PropertyList::readFile(). Call it once. REQUIRES: done() is 1.
    Result<PropertyListValue> take();

private:
    struct State;

    std::shared_ptr<State> m_state;
};
