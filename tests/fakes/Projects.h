// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectRecord.h"

#include <QStringList>
#include <QtEndian>

#include <string>

// Project records for tests, with numbers as identities.
namespace ProjectSamples {

// The eight bytes that hold the number, the largest byte first.
inline QByteArray data(unsigned number) {
    QByteArray bytes(8, '\0');
    qToBigEndian<quint64>(number, bytes.data());
    return bytes;
}

inline Identity identity(unsigned number) {
    return *Identity::fromBytes(data(number));
}

inline std::vector<Identity> identities(const std::vector<unsigned>& numbers) {
    std::vector<Identity> identities;
    for (const unsigned number : numbers)
        identities.push_back(identity(number));
    return identities;
}

// "1 2 3"
inline std::string numbers(const std::vector<Identity>& identities) {
    QStringList numbers;
    for (const Identity& identity : identities)
        numbers << QString::number(qFromBigEndian<quint64>(identity.bytes().constData()));
    return numbers.join(u' ').toStdString();
}

inline std::string members(const ProjectRecord& project) {
    return numbers(project.members());
}

inline PropertyListArray list(const std::vector<unsigned>& numbers) {
    PropertyListArray list;
    for (const unsigned number : numbers)
        list.push_back(data(number));
    return list;
}

inline ProjectRecord record(const char* label, const std::vector<unsigned>& numbers) {
    return ProjectRecord(
        PropertyListDictionary{{kProjectSubtree, list(numbers)}, {kProjectLabel, QString::fromUtf8(label)}});
}

} // namespace ProjectSamples
