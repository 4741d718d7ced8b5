// SPDX-License-Identifier: MIT
// LINKS x11 linux
// Texts that come from windows, desktop entries and the list of trusted programs.
#include "platform/foundation/programs/DesktopEntryFile.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/linux/TrustRecord.h"
#include "platform/x11/X11Text.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

// Clean text must not change when it is cleaned again or passed through UTF-8, except for a byte-order mark
// at its beginning.
void check(const QString& text) {
    require(text.size() <= kLongestText && cleanText(text) == text);
    require(text.startsWith(QChar::ByteOrderMark) || cleanTextFromUtf8(text.toUtf8()) == text);
}

void readTrust(const QByteArray& bytes) {
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("trusted-programs")));
    require(file.open(QFile::WriteOnly));
    file.write(bytes);
    file.close();
    TrustRecord record(folder.path());
    const QStringList before = record.programs();
    const QString program = QStringLiteral("/usr/bin/ticklog");
    if (!record.add(program))
        return;
    require(record.programs().contains(program));
    require(bool(record.remove(program)));
    require(!record.programs().contains(program) && record.programs().size() <= before.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    check(cleanTextFromUtf8(bytes));
    check(cleanText(QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes.constData()),
                                       bytes.size() / qsizetype(sizeof(char16_t)))));
    for (const auto encoding : {X11Encoding::Latin1, X11Encoding::Utf8, X11Encoding::CompoundText})
        check(x11Text(bytes, encoding));
    const DesktopEntryFile::Group entry = DesktopEntryFile::mainGroup("[Desktop Entry]\n" + bytes);
    for (const QString& value : entry)
        DesktopEntryFile::commandWords(value);
    readTrust(bytes);
    return 0;
}
