// SPDX-License-Identifier: MIT
#include "platform/foundation/PropertyList.h"
#include "platform/foundation/PropertyListXmlReader.h"

#include <cstdlib>

// Whatever is read can be written, and what was written reads back and is written the same again.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    const auto value = PropertyListXmlReader(bytes).read();
    if (!value)
        return 0;
    const QByteArray written = PropertyList::xml(*value);
    const auto again = PropertyList::read(written);
    if (!again || PropertyList::xml(*again) != written)
        std::abort();
    return 0;
}
