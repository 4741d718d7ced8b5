// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"
#include "platform/ShellExtension.h"
#include "platform/linux/ActivationService.h"

#include <functional>
#include <memory>

// The real desktop: opens the connections, chooses a back end for each service and keeps them for the life of the
// process. The choices and their reasons go to the log.
class LinuxPlatform {
public:
    // REQUIRES: a QCoreApplication.
    LinuxPlatform();
    ~LinuxPlatform();
    LinuxPlatform(const LinuxPlatform&) = delete;
    LinuxPlatform& operator=(const LinuxPlatform&) = delete;

    Platform& platform();
    // For what other programs ask of us, over the session bus and otherwise.
    const Admission& admission() const;
    // What launchers ask of us over the session bus.
    ActivationService& activation();
    // The desktop's extension without which it tells nothing; null where none is needed.
    ShellExtension* shellExtension();
    // Calls `handler` when the display is gone for good, as far as this process is concerned.
    void setDisplayLostHandler(std::function<void()> handler);

private:
    struct BackEnds;
    std::unique_ptr<BackEnds> m_backEnds;
};
