// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WindowElement.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

// What can be heard of an application. On Linux another of its windows becomes active (the first two, which
// are the same there), or its active window gets another title.
inline const QString kAXMainWindowChanged = QStringLiteral("AXMainWindowChanged");
inline const QString kAXFocusedWindowChanged = QStringLiteral("AXFocusedWindowChanged");
inline const QString kAXTitleChanged = QStringLiteral("AXTitleChanged");

// Reports changes in one application, until it is destroyed.
class AccessibilityObserver {
public:
    virtual ~AccessibilityObserver() = default;

    // Each answers whether it succeeded.
    virtual bool addNotification(const WindowElement& element, const QString& notification) = 0;
    virtual bool removeNotification(const WindowElement& element, const QString& notification) = 0;
    // The callback is called only between these two.
    virtual void begin() = 0;
    virtual void end() = 0;
};

// The windows of other applications, as their toolkits describe them to assistive programs. Answers from
// memory where it can, and never waits for a program that hangs. Main thread only.
class Accessibility {
public:
    virtual ~Accessibility() = default;

    // Whether other programs let Ticklog see their windows.
    virtual bool isProcessTrusted() const = 0;
    // The application of a process. Never fails: a process that shows nothing is an application without
    // windows.
    virtual WindowElement applicationElement(std::int64_t processIdentifier) = 0;
    // The application's main window; absent when it has none or does not answer.
    virtual std::optional<WindowElement> mainWindow(const WindowElement& application) = 0;
    // The title of an application or window; absent when it has none or is gone.
    virtual std::optional<QString> title(const WindowElement& element) = 0;
    // Null when nothing can be observed. A process that shows nothing yet may do so at any time; until then
    // its observer is silent.
    virtual std::unique_ptr<AccessibilityObserver> makeObserver(std::int64_t processIdentifier,
                                                                std::function<void()> callback) = 0;
    // Opens the desktop's settings where the user grants trust.
    virtual void openPreferences() = 0;
    // Whether the desktop itself can ask the user for trust.
    virtual bool canPromptForTrust() const = 0;
    // Lets the desktop ask the user. REQUIRES: canPromptForTrust().
    virtual void promptForTrust() = 0;
    // Tells the desktop's accessibility service that trust was missing, by a message without content.
    virtual void sendTrustWarning() = 0;
    virtual QString describe() const = 0;
};
