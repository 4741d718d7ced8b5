// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusName.h"
#include "platform/desktop/TellingDesktop.h"
#include "platform/foundation/programs/MadeUpProcesses.h"
#include "platform/gnome/GnomeShellVersion.h"
#include "platform/gnome/GnomeSight.h"

#include <unordered_map>

// The windows of GNOME Shell and the application in front, as our extension of the shell tells them: one message for
// each change, and none while nothing changes. Without the extension it is not known what is in front; it may come
// and go at any time. Main thread only.
class GnomeShellDesktop : public TellingDesktop {
public:
    // The others outlive the desktop. The extension tells only who bears `ownName`, and that may come later. Nothing
    // is known yet when it returns.
    GnomeShellDesktop(Bus& sessionBus, BusName& ownName, SystemLog& log, DesktopEntries& entries);

    // Whether the extension tells of the windows now.
    bool isTelling() const { return m_isTold; }
    // Why it does not, as a sentence to the user.
    QString reasonForSilence() const;

    QString describe() const override;
    QString obstacle() const override;
    void askForSign() override;

private:
    // Whose a window is, and what that was found out from.
    struct Program {
        std::int32_t process;
        QString applicationId;
        QString windowClass;
        ApplicationRecord application;
    };

    void follow();
    void takeInAnswer(const QDBusMessage& answer);
    void takeIn(const QDBusMessage& message);
    // Whether the extension speaks a language that is known here. Tells the log when that changes.
    bool isUnderstood(const QDBusMessage& message);
    void end();
    void adopt(const GnomeSight& sight);
    // A message comes with every title: the disk is asked about a window once.
    Program programOf(const GnomeSight::Window& window);
    ApplicationRecord applicationOf(const GnomeSight::Window& window);
    void logOnce(const QString& line);

    SystemLog& m_log;
    // By application, where the shell does not know the process.
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
