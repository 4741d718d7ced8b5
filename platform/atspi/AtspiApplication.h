// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/Bus.h"

#include <cstdint>
#include <optional>
#include <vector>

// A program on the accessibility bus, as it last described itself: its name, its windows, and the main
// window. It is read as a whole, in steps without waiting. Single events are not enough, because toolkits
// send pairs of them that cancel each other; what counts is the state when it has settled. A program that
// does not answer stays as it was. Bus and loop must outlive it.
class AtspiApplication : public QObject {
    Q_OBJECT

public:
    // What has changed.
    struct Change {
        bool isMainWindow = false;
        bool isTitle = false;
        // Another window is active; or none is any more, or it is unknown.
        bool isActivity = false;
    };

    using Changed = std::function<void(std::int64_t processIdentifier, Change change)>;

    // The state counts as settled this long after an event.
    static constexpr std::chrono::milliseconds kSettling{50};
    // How long to wait for an answer. A program that takes longer counts as silent until it answers.
    static constexpr std::chrono::milliseconds kPatience{5000};

    // `name` is the connection's unique name, `root` the path of the application object. Starts reading at
    // once.
    AtspiApplication(Bus& bus, RunLoop& runLoop, QString name, QString root, Changed changed,
                     std::chrono::milliseconds patience = kPatience);

    const QString& connectionName() const { return m_name; }

    // 0 until the bus has told it.
    std::int64_t processIdentifier() const { return m_processIdentifier; }

    // Empty until it has been read.
    const QString& title() const { return m_title; }

    // The path of the main window: the active one, else the last active one, else the first that is shown.
    const QString& mainWindow() const { return m_mainWindow; }

    // The path of the active window; empty when there is none, and while the program does not answer.
    QString activeWindow() const { return m_isSilent ? QString() : m_activeWindow; }

    // Absent when there is no such window.
    std::optional<QString> windowTitle(const QString& path) const;

    // Whether it has windows but has never sent an event: it may have asked who listens before Ticklog did.
    bool isDeaf() const { return !m_hasSpoken && !m_windows.empty(); }

    // Something has happened in it: reads it again when that has settled.
    void touch();
    // One of its objects has a new name. Only names of windows and of the application matter.
    void rename(const QString& path, const QString& name);
    // Asks for the main window's title again, unless the last answer is still missing. A program that has
    // never sent an event is read as a whole: it may have started too early to know that somebody listens.
    void reread();

private:
    struct Window {
        QString path;
        QString title;
        bool isActive = false;
        bool isShowing = false;
    };

    // One reading of the whole application, while it is under way.
    struct Reading {
        std::vector<Window> windows;
        int owed = 0;
        // After either, what is known stays.
        bool isSilent = false;
        bool isRefused = false;
    };

    void readSoon();
    void rereadTitle();
    void read();
    void readWindows(const QDBusMessage& children);
    void readWindow(const std::shared_ptr<Reading>& reading, std::size_t index);
    void settle(const std::shared_ptr<Reading>& reading, const QDBusMessage& reply);
    void adopt(std::vector<Window> windows);
    void tell(const QString& mainWindowBefore, const std::optional<QString>& titleBefore,
              bool isActivity = false);
    void fallSilent();
    void ask(const QString& path, const QString& interface, const QString& member,
             const QVariantList& arguments, Bus::Receiver receiver, std::optional<int> timeoutMs = {});
    void askName(const QString& path, std::function<void(const QDBusMessage&, const QString&)> receiver,
                 std::optional<int> timeoutMs = {});

    Bus& m_bus;
    RunLoop& m_runLoop;
    QString m_name;
    QString m_root;
    Changed m_changed;
    std::chrono::milliseconds m_patience;
    std::int64_t m_processIdentifier = 0;
    QString m_title;
    std::vector<Window> m_windows;
    QString m_mainWindow;
    QString m_activeWindow;
    bool m_isReading = false;
    // Something happened while it was settling or being read.
    bool m_isStale = false;
    bool m_isTitleOwed = false;
    // An answer has been missing for longer than kPatienceMs.
    bool m_isSilent = false;
    // It has sent an event.
    bool m_hasSpoken = false;
    // Runs from an event until the reading that follows it.
    std::unique_ptr<RunLoopTimer> m_settling;
};
