// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Accessibility.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <memory>
#include <utility>

// Shared by the observers and their maker; outlives both.
struct FakeAccessibilityState {
    // Notifications that cannot be added, or removed.
    QSet<QString> refusedAdditions;
    QSet<QString> refusedRemovals;
    // Every call on an observer, in order: "add AXTitleChanged", "begin", "gone".
    QStringList calls;
    // The callbacks of the observers that are in the run loop, by observer.
    std::unordered_map<const void*, std::function<void()>> running;
};

class FakeAccessibilityObserver : public AccessibilityObserver {
public:
    FakeAccessibilityObserver(std::shared_ptr<FakeAccessibilityState> state, std::function<void()> callback)
        : m_state(std::move(state))
        , m_callback(std::move(callback)) {}

    ~FakeAccessibilityObserver() override {
        m_state->running.erase(this);
        m_state->calls << QStringLiteral("gone");
    }

    bool addNotification(const WindowElement&, const QString& notification) override {
        m_state->calls << QStringLiteral("add ") + notification;
        return !m_state->refusedAdditions.contains(notification);
    }

    bool removeNotification(const WindowElement&, const QString& notification) override {
        m_state->calls << QStringLiteral("remove ") + notification;
        return !m_state->refusedRemovals.contains(notification);
    }

    void begin() override {
        m_state->calls << QStringLiteral("begin");
        m_state->running.insert_or_assign(this, m_callback);
    }

    void end() override {
        m_state->calls << QStringLiteral("end");
        m_state->running.erase(this);
    }

private:
    std::shared_ptr<FakeAccessibilityState> m_state;
    std::function<void()> m_callback;
};

// Applications and their windows as a test describes them.
class FakeAccessibility : public Accessibility {
public:
    struct Application {
        // What the application calls itself; absent for one without a title.
        std::optional<QString> title;
        // The path of its main window; empty when it has none.
        QString mainWindow;
    };

    bool isProcessTrusted() const override { return trusted; }

    WindowElement applicationElement(std::int64_t processIdentifier) override {
        return WindowElement(QString::number(processIdentifier), QStringLiteral("/"));
    }

    std::optional<WindowElement> mainWindow(const WindowElement& application) override {
        const QString path = applications.value(application.bus().toLongLong()).mainWindow;
        return path.isEmpty() ? std::nullopt : std::optional(WindowElement(application.bus(), path));
    }

    std::optional<QString> title(const WindowElement& element) override {
        if (element.path() == QLatin1String("/"))
            return applications.value(element.bus().toLongLong()).title;
        const auto found = windowTitles.constFind(element.path());
        return found == windowTitles.constEnd() ? std::nullopt : std::optional(*found);
    }

    std::unique_ptr<AccessibilityObserver> makeObserver(std::int64_t,
                                                        std::function<void()> callback) override {
        if (!observable)
            return nullptr;
        return std::make_unique<FakeAccessibilityObserver>(state, std::move(callback));
    }

    void openPreferences() override { ++preferencesOpened; }

    bool canPromptForTrust() const override { return canPrompt; }

    void promptForTrust() override { ++prompts; }

    void sendTrustWarning() override { ++warnings; }

    QString describe() const override { return QStringLiteral("a fake"); }

    // An application reports a change.
    void tell() {
        const auto observers = state->running;
        for (const auto& [observer, callback] : observers)
            callback();
    }

    bool trusted = true;
    // By process.
    QHash<std::int64_t, Application> applications;
    // By path; a window without an entry has no title.
    QHash<QString, QString> windowTitles;
    // Whether observers can be made.
    bool observable = true;
    int preferencesOpened = 0;
    // Whether the desktop can ask for trust, and how often it was asked to.
    bool canPrompt = true;
    int prompts = 0;
    int warnings = 0;
    std::shared_ptr<FakeAccessibilityState> state = std::make_shared<FakeAccessibilityState>();
};
