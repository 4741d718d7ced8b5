// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"

#include <QString>

#include <cstdint>
#include <optional>

// Names for what is in front when it is not a program.
inline const QString kScreenSaverName = QStringLiteral("ScreenSaverEngine");
inline const QString kLoginWindowName = QStringLiteral("loginwindow");
inline const QString kDesktopName = QStringLiteral("Desktop");
inline const QString kOwnName = QStringLiteral("Ticklog");
// For a program that does not say its name: it gets its time all the same.
inline const QString kNamelessName = QStringLiteral("Unknown program");

// The application in front.
struct ApplicationRecord {
    // In the user's language. Empty when the desktop does not say.
    QString name;
    // The executable, as a full path. Empty when unknown.
    QString path;
    // For a client that has no process on this machine: a negative number that the back end gives it and
    // keeps.
    std::int64_t processIdentifier = 0;

    friend bool operator==(const ApplicationRecord&, const ApplicationRecord&) = default;
};

// In front when no window has the focus: the desktop itself. Otherwise the last application would go on being
// credited.
inline const ApplicationRecord& nothingInFront() {
    static const ApplicationRecord kDesktop{kDesktopName, {}, 0};
    return kDesktop;
}

// Which application is in front. Answers from memory, kept current by the desktop's events. Main thread only.
class FrontApplication {
public:
    virtual ~FrontApplication() = default;

    // Absent while the desktop cannot be reached, or does not say which application is in front. If the
    // desktop says that nothing has the focus, this is the record of "Desktop". The reference is valid until
    // control returns to the event loop.
    virtual const std::optional<ApplicationRecord>& activeApplication() const = 0;
    // Whether the window in front is so new that it may still say that it belongs to another program than
    // activeApplication() answers. What passes until then belongs to the program that it turns out to be. The
    // end of this is reported as a switch, also when the program stays the same.
    virtual bool isUndecided() const { return false; }
    // Calls `hearer` after each change of the active application. An empty subscription when the desktop
    // cannot report changes.
    virtual Subscription observeSwitches(News::Hearer hearer) = 0;
    // A name for the program at `path`, from the desktop entries that are installed there; for a record
    // without a name. May be empty.
    virtual QString nameOfProgram(const QString& path) const = 0;
    // The technology and why it was chosen; for the log and the About box.
    virtual QString describe() const = 0;
    // Why Ticklog cannot tell which application is in front, or can for some only: a sentence or two for the
    // user, in their language. Empty if it can.
    virtual QString obstacle() const { return {}; }
};
