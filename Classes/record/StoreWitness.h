// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

// Remembers what the main store lacks; the history does. Told of each save, by a digest of the file's
// content, on the main thread.
class StoreWitness {
public:
    virtual ~StoreWitness() = default;

    // A store that was away was read, and its timers are in the tree beside the others. They get what it
    // lacks.
    virtual void storeIsRead(const QByteArray& content) = 0;
    // All timers as they are now are whole on the disk, beside the store. After a crash either this content
    // or the one before is read.
    virtual void storeIsWhole(const QByteArray& content) = 0;
    // This content is in the store; the one before is gone.
    virtual void storeIsPlaced(const QByteArray& content) = 0;
};
