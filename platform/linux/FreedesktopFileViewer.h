// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileViewer.h"
#include "platform/bus/BusService.h"

#include <functional>

// The file manager that implements org.freedesktop.FileManager1; without one, the folder is opened with the
// desktop's program for folders. All arguments must outlive it.
class FreedesktopFileViewer : public FileViewer {
public:
    // Opens a folder; answers whether it could.
    using FolderOpener = std::function<bool(const QString& folder)>;
    static FolderOpener xdgOpen();

    FreedesktopFileViewer(Bus& sessionBus, SystemLog& log, FolderOpener openFolder);

    void reveal(const QString& path) override;

private:
    BusService m_fileManager;
    SystemLog& m_log;
    FolderOpener m_openFolder;
};
