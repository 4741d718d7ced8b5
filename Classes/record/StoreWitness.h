// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

// Who knows what the main store lacks. Told of each save of it, by a digest of the file's content, on the main thread.
class StoreWitness {
public:
    virtual ~StoreWitness() = default;

    // All timers as they are now are whole on the disk, beside the store: from now on either this content may be read
    // again or the one before.
    virtual void storeIsWhole(const QByteArray& content) = 0;
    // It is the store; the one before is gone.
    virtual void storeIsPlaced(const QByteArray& content) = 0;
};
