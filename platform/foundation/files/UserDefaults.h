// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/NotificationCenter.h"
#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/Result.h"
#include "platform/foundation/values/SystemLog.h"

#include <QSet>
#include <QString>

#include <array>
#include <chrono>

// Posted, without an object, after any value in the user defaults has changed.
inline const QString kUserDefaultsDidChangeNotification =
    QStringLiteral("kUserDefaultsDidChangeNotification");

// Posted, without an object, when the settings can no longer be written, or can again.
inline const QString kUserDefaultsFileNotification = QStringLiteral("kUserDefaultsFileNotification");

// The user's settings: a table from key to property-list value, kept as an XML property list that only the
// user can read. Registered defaults answer for keys that have no value of their own; they are never written.
// Changes are announced at once and written joined, or at once by synchronize(). What was last whole is kept beside the
// file and is taken where that is damaged, foreign or gone at launch; what cannot be read is set aside under a dated name
// before anything is written in its place. Other programs may write the file too: refresh() takes their changes over. Main
// thread only.
class UserDefaults {
public:
    // How long changes wait for others before they are written.
    static constexpr std::chrono::seconds kJoiningDelay{2};
    // After a failure.
    static constexpr std::chrono::seconds kRetryDelay{60};

    // What a launch has found: the file or none; what was kept, for want of it; or neither of them to be read.
    enum class Reading { Whole, LastGood, Nothing };

    // Reads `path`, whose folder is made (0700) on the first write. The rest must outlive the defaults.
    UserDefaults(QString path, NotificationCenter& notifications, RunLoop& runLoop, SystemLog& log);
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    // Writes what is not written yet.
    ~UserDefaults();

    // What keys answer until a value of their own is set. Later registrations replace earlier ones key by
    // key.
    void registerDefaults(const PropertyListDictionary& defaults);

    // The key's own value, else its registered default, else an absent value.
    const PropertyListValue& object(const QString& key) const;

    bool boolForKey(const QString& key) const { return object(key).toBool(); }

    std::int64_t integerForKey(const QString& key) const { return object(key).toInteger(); }

    // Sets the key's own value; an absent one removes it. Setting what is already there is not a change.
    void setObject(const QString& key, PropertyListValue value);

    void removeObject(const QString& key) { setObject(key, {}); }

    // Writes pending changes now, over what others have written meanwhile key by key. A failure is logged, and tried
    // again with the next change, or a minute later.
    void synchronize();

    // Takes over what another program has written since, but for keys whose own change is not yet written; announced
    // once. Costs a look at the file's state when nothing has been written. A file that has gone or cannot be read
    // changes no setting: the next write sets it right.
    void refresh();

    const QString& path() const { return m_path; }
    // Where what was last whole is kept: "<path>.last".
    QString keptPath() const { return m_path + QStringLiteral(".last"); }

    Reading reading() const { return m_reading; }
    // Whether the last attempt to write has failed.
    bool isUnwritten() const { return m_isUnwritten; }

private:
    // Tells one state of the file from every other; all zero when there is none.
    using FileState = std::array<std::int64_t, 6>;

    void load();
    void takeLastGood();
    void keepAsLastGood();
    void tellWritten(bool isWritten);
    FileState fileState() const;
    Outcome write();

    QString m_path;
    NotificationCenter& m_notifications;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    PropertyListDictionary m_values;
    PropertyListDictionary m_registered;
    // What stands at keptPath().
    PropertyListDictionary m_kept;
    Reading m_reading = Reading::Whole;
    bool m_isUnwritten = false;
    // The file does not say what was taken in its place.
    bool m_owesWrite = false;
    // What stands on disk could not be read, and is not replaced before it has been set aside.
    bool m_isDamaged = false;
    // Keys whose own value is not yet written.
    QSet<QString> m_changed;
    // Of the file as it was last read or written.
    FileState m_state{};
    std::unique_ptr<RunLoopTimer> m_joining;
    std::unique_ptr<RunLoopTimer> m_retry;
};
