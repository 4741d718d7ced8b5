// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The desktop's file manager.
class FileViewer {
public:
    virtual ~FileViewer() = default;
    // Shows the file, selected, in the file manager; or opens its folder if the file manager cannot select.
    virtual void reveal(const QString& path) = 0;
};
