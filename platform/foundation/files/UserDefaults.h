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

// Posted without an object after a setting has changed.
inline const QString kUserDefaultsDidChangeNotification =
    QStringLiteral("kUserDefaultsDidChangeNotification");

// Posted without an object when the settings can no longer be written, or can be written again.
inline const QString kUserDefaultsFileNotification = QStringLiteral("kUserDefaultsFileNotification");

// The user's settings: a table from keys to property-list values, kept as an XML property list that only the
// user can read. A key without a value of its own has its registered default; defaults are never written.
// Changes are announced at once and written together a little later, or at once by synchronize().
//
// A copy of the last good content is kept beside the file, and used when the file is damaged or missing at
// launch. A file that cannot be read is set aside under a dated name before a new one is written. Other
// programs may write the file too: refresh() takes over their changes. Main thread only.
class UserDefaults {
public:
    // How long changes wait, so that they are written together.
    static constexpr std::chrono::seconds kJoiningDelay{2};
    // How long to wait before the next try after a failure.
    static constexpr std::chrono::seconds kRetryDelay{60};

    // What a launch has found: the file, or no file at all; the copy, used in its place; or neither could be
    // read.
    enum class Reading { Whole, LastGood, Nothing };

    // Reads `path`; its folder is made (0700) at the first write. The other arguments must outlive the
    // settings.
    UserDefaults(QString path, NotificationCenter& notifications, RunLoop& runLoop, SystemLog& log);
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    // Writes changes that still wait.
    ~UserDefaults();

    // Values for keys that have none of their own. Later registrations replace earlier ones, key by key.
    void registerDefaults(const PropertyListDictionary& defaults);

    // The key's own value, else its registered default, else an absent value.
    const PropertyListValue& object(const QString& key) const;

    bool boolForKey(const QString& key) const { return object(key).toBool(); }

    std::int64_t integerForKey(const QString& key) const { return object(key).toInteger(); }

    // Sets the key's own value; an absent one removes it. Setting an equal value is no change.
    void setObject(const QString& key, PropertyListValue value);
    // The same for several keys, announced once when all have their values. Removes none.
    void setObjects(const PropertyListDictionary& values);

    void removeObject(const QString& key) { setObject(key, {}); }

    // Writes pending changes now; keys that others have written meanwhile are kept, except those changed
    // here. A failure is logged, and tried again at the next change or a minute later.
    void synchronize();

    // Takes over what another program has written, except keys with a change of our own that is not written
    // yet; announced once. Cheap when the file has not changed. If the file is gone or cannot be read, no
    // setting changes: the next write restores it.
    void refresh();

    const QString& path() const { return m_path; }
    // The path of the copy of the last good content: "<path>.last".
    QString keptPath() const { return m_path + QStringLiteral(".last"); }

    Reading reading() const { return m_reading; }
    // Whether the last attempt to write has failed.
    bool isUnwritten() const { return m_isUnwritten; }

private:
    // Equal exactly when the file has not changed; all zero without a file.
    using FileState = std::array<std::int64_t, 6>;

    bool put(const QString& key, PropertyListValue value);
    void tellChanged();
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
    // The content of the copy.
    PropertyListDictionary m_kept;
    Reading m_reading = Reading::Whole;
    bool m_isUnwritten = false;
    // The copy was used, and the file does not have its content yet.
    bool m_owesWrite = false;
    // The file could not be read. It must be set aside before it is replaced.
    bool m_isDamaged = false;
    // Keys whose own value is not yet written.
    QSet<QString> m_changed;
    // Of the file, when it was last read or written.
    FileState m_state{};
    std::unique_ptr<RunLoopTimer> m_joining;
    std::unique_ptr<RunLoopTimer> m_retry;
};
