// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusName.h"
#include "platform/desktop/TellingDesktop.h"
#include "platform/foundation/programs/MadeUpProcesses.h"
#include "platform/gnome/GnomeShellVersion.h"
#include "platform/gnome/GnomeSight.h"

#include <unordered_map>

// The windows of GNOME Shell and the application in front, as our extension reports them: one message for
// each change, none while nothing changes. Without the extension it is unknown what is in front; it may come
// and go at any time. Main thread only.
class GnomeShellDesktop : public TellingDesktop {
public:
    // All arguments outlive the desktop. The extension reports only to the owner of `ownName`, which this
    // process may get later. Nothing is known yet when the constructor returns.
    GnomeShellDesktop(Bus& sessionBus, BusName& ownName, SystemLog& log, DesktopEntries& entries);

    // Whether the extension reports the windows at present.
    bool isTelling() const { return m_isTold; }
    // Why it does not, as a sentence for the user.
    QString reasonForSilence() const;

    QString describe() const override;
    QString obstacle() const override;
    void askForSign() override;

private:
    // A window's program, and the facts from which it was determined.
    struct Program {
        std::int32_t process;
        QString applicationId;
        QString windowClass;
        ApplicationRecord application;
    };

    void follow();
    void takeInAnswer(const QDBusMessage& answer);
    void takeIn(const QDBusMessage& message);
    // Whether the messages have a version that is known here. Logs a change.
    bool isUnderstood(const QDBusMessage& message);
    void end();
    void adopt(const GnomeSight& sight);
    // Kept, because a message comes with every title, and the disk should be asked only once for a window.
    Program programOf(const GnomeSight::Window& window);
    ApplicationRecord applicationOf(const GnomeSight::Window& window);
    void logOnce(const QString& line);

    SystemLog& m_log;
    // By application, if the shell does not know the process.
    MadeUpProcesses m_madeUpProcesses;
    QString m_lastLogged;
    bool m_isTold = false;
    // By the window's number.
    std::unordered_map<std::uint32_t, Program> m_programs;

    BusService m_shell;
    GnomeShellVersion m_version;
    std::unique_ptr<BusSignal> m_changed;
    std::unique_ptr<BusSignal> m_ended;
    BusName& m_name;
    Subscription m_naming;
    Subscription m_presence;
};
