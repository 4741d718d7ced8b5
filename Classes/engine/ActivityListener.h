// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WindowElement.h"

#include <QString>

#include <optional>

// Whom an activity source tells what is in front: the tracker. It outlives the source, or tears it down.
class ActivityListener {
public:
    virtual ~ActivityListener() = default;

    // Another application is in front.
    virtual void appDidChange() = 0;
    // This is the application in front, its front window, and the document its title names.
    virtual void mainWindowDidChangeToAppName(const std::optional<QString>& appName,
                                              const std::optional<WindowElement>& mainWindowName,
                                              const std::optional<QString>& documentName) = 0;
    // The window being credited has another title. Nothing happens without a name, and for another window while the timer is
    // stopped: then the source goes on to look, but nobody follows it.
    virtual void renameWindowToName(const std::optional<QString>& newName, const WindowElement& window) = 0;
    // Before the source restarts its clock for another application: what has passed since the last tick still belongs to the
    // application that was in front, and to its window if it had one.
    virtual void creditTimeBeforeSwitch(bool hadWindow) = 0;
    // Whether nobody is there: then no switch is told.
    virtual bool isIdle() const = 0;
};
