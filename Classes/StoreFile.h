// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/PropertyListWriter.h"
#include "platform/foundation/Result.h"
#include "platform/foundation/SystemLog.h"

#include <functional>

// The database file on the disk, whatever it holds. Written in place; a crash or a full disk in the middle leaves the
// last whole content to be read.
class StoreFile {
public:
    explicit StoreFile(SystemLog& log)
        : m_log(log) {}

    // Writes what `content` sends to the sink, in place and synced.
    Outcome write(const QString& path, const std::function<void(PropertyListSink&)>& content);
    // Reads the last whole content.
    Result<PropertyListValue> read(const QString& path);

private:
    SystemLog& m_log;
};
