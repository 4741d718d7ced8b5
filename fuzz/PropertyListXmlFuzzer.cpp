// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListPlainReader.h"
#include "platform/foundation/propertylists/PropertyListXml.h"
#include "platform/foundation/propertylists/PropertyListXmlReader.h"

#include <cstdlib>

namespace {

// The full reader must agree with what the quick reader reads. Whatever is read can be written, and reads and
// writes the same again.
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
    // The quick reader accepts nothing without the usual head, which chance never finds.
    check(PropertyListXml::kHead.toByteArray() + bytes);
    return 0;
}
