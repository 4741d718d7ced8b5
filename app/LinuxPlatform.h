// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Notices.h"
#include "platform/Platform.h"
#include "platform/ShellExtension.h"
#include "platform/linux/ActivationService.h"

#include <functional>
#include <memory>

class DesktopEntries;

// The real desktop. Opens the connections, chooses a back end for each service, and keeps them for the life
// of the process. The choices and their reasons are logged.
class LinuxPlatform {
public:
    // REQUIRES: a QCoreApplication.
    LinuxPlatform();
    ~LinuxPlatform();
    LinuxPlatform(const LinuxPlatform&) = delete;
    LinuxPlatform& operator=(const LinuxPlatform&) = delete;

    Platform& platform();
    // Decides who may ask us for something, over the session bus or otherwise.
    const Admission& admission() const;
    // Requests of launchers over the session bus.
    ActivationService& activation();
    Notices& notices();
    // The desktop's extension that tells what is in front; null where none is needed.
    ShellExtension* shellExtension();
    // What is installed.
    DesktopEntries& desktopEntries();
    // Calls `hearer` when the display is lost for good.
    [[nodiscard]] Subscription observeDisplayLoss(News::Hearer hearer);

private:
    struct BackEnds;
    std::unique_ptr<BackEnds> m_backEnds;
};
