// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListPlainReader.h"
#include "platform/foundation/propertylists/PropertyListXml.h"
#include "platform/foundation/propertylists/PropertyListXmlReader.h"

#include <cstdlib>

namespace {

// What the quick reader reads, the full one reads alike; whatever is read can be written, and what was written reads
// back and is written the same again.
void check(const QByteArray& bytes) {
    const auto value = PropertyListXmlReader(bytes).read();
    const auto quick = PropertyListPlainReader(bytes).read();
    if (quick && (!value || PropertyList::xml(*quick) != PropertyList::xml(*value)))
        std::abort();
    if (!value)
        return;
    const QByteArray written = PropertyList::xml(*value);
    const auto again = PropertyList::read(written);
    if (!again || PropertyList::xml(*again) != written)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    check(bytes);
    // The quick reader takes nothing without the customary head, which chance does not find.
    check(PropertyListXml::kHead.toByteArray() + bytes);
    return 0;
}
