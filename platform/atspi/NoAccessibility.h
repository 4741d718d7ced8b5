// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Accessibility.h"

// Where there is no message bus at all: nobody lets us look, and nothing is seen.
class NoAccessibility : public Accessibility {
public:
    bool isProcessTrusted() const override { return false; }

    WindowElement applicationElement(std::int64_t) override { return {}; }

    std::optional<WindowElement> mainWindow(const WindowElement&) override { return std::nullopt; }

    std::optional<QString> title(const WindowElement&) override { return std::nullopt; }

    std::unique_ptr<AccessibilityObserver> makeObserver(std::int64_t, std::function<void()>) override {
        return nullptr;
    }

    void openPreferences() override {}

    QString describe() const override { return QStringLiteral("none"); }
};
