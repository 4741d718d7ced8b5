// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

// Names that stand for no program of their own.
inline const QString kScreenSaverName = QStringLiteral("ScreenSaverEngine");
inline const QString kLoginWindowName = QStringLiteral("loginwindow");
inline const QString kDesktopName = QStringLiteral("Desktop");
inline const QString kOwnName = QStringLiteral("Ticklog");
// For a program that says nothing of itself: it gets its time all the same.
inline const QString kNamelessName = QStringLiteral("Unknown program");

// The active-application record.
struct ApplicationRecord {
    // In the user's language. Empty when the desktop does not tell.
    QString name;
    // The executable, as a full path. Empty when unknown.
    QString path;
    // A stable number of the back end's own (negative) for a client that has no process here.
    std::int64_t processIdentifier = 0;

    friend bool operator==(const ApplicationRecord&, const ApplicationRecord&) = default;
};

// What is in front when no window has the focus: the desktop itself, or the last application would be credited for it.
inline const ApplicationRecord& nothingInFront() {
    static const ApplicationRecord kDesktop{kDesktopName, {}, 0};
    return kDesktop;
}

// Which application is in front. Answers from memory, kept current by the desktop's events. Main thread only.
class FrontApplication {
public:
    virtual ~FrontApplication() = default;

    // Absent while the desktop cannot be reached, and while it does not tell which application is in front. When the
    // desktop says that nothing has the focus, the record is that of "Desktop". The reference is valid until control
    // returns to the event loop.
    virtual const std::optional<ApplicationRecord>& activeApplication() const = 0;
    // Calls `handler` after every change of the active application; a new handler replaces the last, an empty one
    // ends the calls. False when the desktop cannot tell of changes.
    virtual bool installSwitchHandler(std::function<void()> handler) = 0;
    // A name for the program at `path` from what is installed there, for a record without a name. May be empty.
    virtual QString nameOfProgram(const QString& path) const = 0;
    // The technology and why it was chosen, for the log and the About box.
    virtual QString describe() const = 0;
    // Why it cannot be told which application is in front, or only of some, in a sentence or two to the user in their
    // language. Empty while it can.
    virtual QString obstacle() const { return {}; }
};
