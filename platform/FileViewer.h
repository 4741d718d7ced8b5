// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The desktop's file manager.
class FileViewer {
public:
    virtual ~FileViewer() = default;
    // Brings it up with the file selected, or with the file's folder where it cannot select.
    virtual void reveal(const QString& path) = 0;
};
