// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

// Reads desktop entries, the files by which every desktop knows and starts its programs, wherever they lie.
namespace DesktopEntryFile {

// Values by key, in which escapes are undone.
using Group = QHash<QString, QString>;

// The main group of the file at `path`. Of a key that is there twice the first counts. Absent when the file cannot be read or
// is longer than entries are.
std::optional<Group> read(const QString& path);
// The same of a file's content.
Group mainGroup(const QByteArray& content);

// The words of a value of Exec; quotes are undone, fields such as "%f" stay.
QStringList commandWords(const QString& exec);

} // namespace DesktopEntryFile
