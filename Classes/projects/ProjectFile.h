// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/common/AccountTrouble.h"
#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/values/SystemLog.h"

#include <optional>

// The file that keeps the projects: a binary property list, an array of records. Main thread only.
class ProjectFile {
public:
    // `documentsFolder` is empty when the user has none. The other arguments outlive this object.
    ProjectFile(const QString& documentsFolder, SystemLog& log, AccountTrouble& trouble);

    // The path of the projects file for this documents folder.
    static QString pathIn(const QString& documentsFolder);
    // Where the projects are read and written: "Ticklog Projects" in the documents folder. Absent without such
    // a folder: then nothing is read or written.
    const std::optional<QString>& urlForTKProjects() const { return m_path; }

    // Empty when there is no file or it cannot be read. A file that cannot be read is set aside before the
    // first write.
    PropertyListArray read();
    // Replaces the file, for the user alone (0600). On failure the old file stays, the user is told, and the
    // answer is false.
    bool write(const PropertyListArray& projects);

private:
    bool setAsideDamaged();
    bool replace(const PropertyListArray& projects);

    std::optional<QString> m_path;
    SystemLog& m_log;
    AccountTrouble& m_trouble;
    bool m_isDamaged = false;
};
