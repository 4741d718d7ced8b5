// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListBinaryReader.h"

#include <cstdlib>

// Whatever is read can be written in both forms and read again.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    // The header is given: the fuzzer would need long to find it.
    const QByteArray bytes = "bplist00" + QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
    const auto value = PropertyListBinaryReader(bytes).read();
    if (!value)
        return 0;
    const auto again = PropertyList::read(PropertyList::binary(*value));
    if (!again || PropertyList::xml(*again) != PropertyList::xml(*value))
        std::abort();
    return 0;
}
