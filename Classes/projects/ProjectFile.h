// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/common/AccountTrouble.h"
#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/values/SystemLog.h"

#include <optional>

// The file that keeps the projects: a binary property list, an array of records. Main thread only.
class ProjectFile {
public:
    // `documentsFolder` is empty when the user has none. The others outlive the file.
    ProjectFile(const QString& documentsFolder, SystemLog& log, AccountTrouble& trouble);

    // Where the projects of somebody with this documents folder are.
    static QString pathIn(const QString& documentsFolder);
    // "Ticklog Projects" in the documents folder. Absent without one: then nothing is read or written.
    const std::optional<QString>& urlForTKProjects() const { return m_path; }

    // Empty when there is no file, or none that can be read. Such a file is set aside before the first write.
    PropertyListArray read();
    // Replaces the file, for the user alone (0600). False on failure: what stood there stays, and the user is told.
    bool write(const PropertyListArray& projects);

private:
    bool setAsideDamaged();
    bool replace(const PropertyListArray& projects);

    std::optional<QString> m_path;
    SystemLog& m_log;
    AccountTrouble& m_trouble;
    bool m_isDamaged = false;
};
