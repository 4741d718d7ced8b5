// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyList.h"

#include "platform/foundation/propertylists/PropertyListBinaryReader.h"
#include "platform/foundation/propertylists/PropertyListBinaryWriter.h"
#include "platform/foundation/propertylists/PropertyListPlainReader.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/propertylists/PropertyListXmlReader.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

Failure tooLarge(qint64 size) {
    return {Failure::Kind::Refused,
            QStringLiteral("%1 bytes are more than a property list may have").arg(size)};
}

// How much is read between two reports of the progress.
constexpr qint64 kPiece = 1024 * 1024;

Failure unreadable(const QString& path, const QString& why) {
    return {Failure::Kind::Unreadable, QStringLiteral("%1: %2").arg(path, why)};
}

Result<QByteArray> bytesOf(const QString& path, qint64 most, const PropertyList::Progress& progress) {
    const QFileInfo info(path);
    if (!info.exists())
        return Failure{Failure::Kind::NotFound, QStringLiteral("%1: no such file").arg(path)};
    // Opening a pipe would wait for its other end.
    if (!info.isFile())
        return unreadable(path, QStringLiteral("not a file"));
    if (info.size() > most)
        return tooLarge(info.size());
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(path, file.errorString());
    QByteArray bytes;
    bytes.reserve(info.size());
    // The file may grow meanwhile.
    while (!file.atEnd() && bytes.size() <= most) {
        bytes += file.read(kPiece);
        if (file.error() != QFile::NoError)
            return unreadable(path, file.errorString());
        if (progress && !progress(double(bytes.size()) / double(std::max(bytes.size(), info.size()))))
            return unreadable(path, QStringLiteral("given up"));
    }
    return bytes;
}

Result<PropertyListValue> readNamed(const QString& path, qint64 most,
                                    const PropertyList::Progress& progress) {
    const auto bytes = bytesOf(path, most, progress);
    if (!bytes)
        return bytes.failure();
    Result<PropertyListValue> result = PropertyList::read(*bytes);
    if (!result)
        return Failure{result.failure().kind, QStringLiteral("%1: %2").arg(path, result.failure().text)};
    return result;
}

// Opens a temporary file, lets `fill` write it, and puts it in place.
template<class Fill>
Outcome replaceFile(const QString& path, qint64 most, Fill&& fill) {
    QSaveFile file(path);
    // The permissions are set before any private content is written.
    if (file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) {
        fill(file);
        if (file.pos() > most) {
            file.cancelWriting();
            return tooLarge(file.pos());
        }
        if (file.commit())
            return Done{};
    }
    return Failure{Failure::Kind::CannotWrite, QStringLiteral("%1: %2").arg(path, file.errorString())};
}

} // namespace

namespace PropertyList {

Result<PropertyListValue> read(const QByteArray& bytes) {
    if (bytes.size() > kSizeLimit)
        return tooLarge(bytes.size());
    if (PropertyListBinaryReader::recognises(bytes))
        return PropertyListBinaryReader(bytes).read();
    if (auto value = PropertyListPlainReader(bytes).read())
        return *std::move(value);
    return PropertyListXmlReader(bytes).read();
}

Result<PropertyListValue> readFile(const QString& path, qint64 most) {
    return readNamed(path, most, {});
}

Result<PropertyListValue> readFile(const QString& path, const Progress& progress) {
    return readNamed(path, kSizeLimit, progress);
}

QByteArray xml(const PropertyListValue& value) {
    QByteArray bytes;
    PropertyListXmlWriter writer(
        [&](const char* chunk, std::size_t count) { bytes.append(chunk, qsizetype(count)); });
    writer.value(value);
    writer.finish();
    return bytes;
}

QByteArray binary(const PropertyListValue& value) {
    return PropertyListBinaryWriter().write(value);
}

Outcome writeXmlFile(const PropertyListValue& value, const QString& path, qint64 most) {
    return replaceFile(path, most, [&](QIODevice& file) {
        PropertyListXmlWriter writer(
            [&](const char* chunk, std::size_t count) { file.write(chunk, qint64(count)); });
        writer.value(value);
        writer.finish();
    });
}

Outcome writeBinaryFile(const PropertyListValue& value, const QString& path) {
    return replaceFile(path, kSizeLimit, [&](QIODevice& file) { file.write(binary(value)); });
}

} // namespace PropertyList
