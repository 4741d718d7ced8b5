// SPDX-License-Identifier: MIT
#pragma once

// Whether this process is shut in, as Flatpak and Snap do.
class Sandbox {
public:
    virtual ~Sandbox() = default;
    virtual bool isSandboxed() const = 0;
};
