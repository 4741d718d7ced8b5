// SPDX-License-Identifier: MIT
#pragma once

// Whether this process is confined, by Flatpak or Snap.
class Sandbox {
public:
    virtual ~Sandbox() = default;
    virtual bool isSandboxed() const = 0;
};
