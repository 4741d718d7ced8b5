// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

// Reads desktop entries: the files by which desktops know and start programs.
namespace DesktopEntryFile {

// Values by key, with escapes undone.
using Group = QHash<QString, QString>;

// The main group of the file at `path`. If a key occurs twice, the first counts. Absent if the file cannot be
// read or is too long for an entry.
std::optional<Group> read(const QString& path);
// The same from a file's content.
Group mainGroup(const QByteArray& content);

// The words of an Exec value, with quotes undone; fields such as "%f" stay.
QStringList commandWords(const QString& exec);

} // namespace DesktopEntryFile
