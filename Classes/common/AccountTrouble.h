// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/KeyValueObserving.h"

#include <QString>

#include <map>

// The sentences about the account's troubles have changed.
inline constexpr ObservedKey kAccountTroubleKey{"accountTrouble"};

// What threatens the record of time right now, as sentences for the user. Whoever finds a trouble reports it
// here with tell(), and with end() once it is over; the window and the tray observe it. The sentences name
// Ticklog's files but quote nothing of their content. Main thread only.
class AccountTrouble : public Observable {
public:
    // They are shown in this order.
    enum class Kind {
        StoreMissing,
        StoreUnwritten,
        ProjectsUnwritten,
        SettingsUnwritten,
        HistoryUnwritten,
        // From here on: events. They stay until the user acknowledges them. Those above are states and stay
        // until end().
        StoreExposed,
        StoreSetAside,
        ProjectsSetAside,
        SettingsSetAside,
        HistorySetAside,
        ArchiveKept,
        ArchiveLost,
    };

    // Replaces the sentence of the same kind.
    void tell(Kind kind, const QString& sentence);
    void end(Kind kind);
    // The user has read it: the events go, the states stay.
    void acknowledge();
    // Whether acknowledge() would remove anything.
    bool canBeAcknowledged() const;

    // All sentences, one a line; empty while all is well.
    const QString& text() const { return m_text; }

    QVariant valueForKey(ObservedKey key) const override;

    // Ready-made sentences for any file. "Could not be written", with the reason that the disk gives now; and
    // "could not be read and was set aside".
    static QString unwritten(const QString& path);
    static QString setAside(const QString& path);
    // "Only some of it could be read."
    static QString leftOut(const QString& path);
    // Fills the file's name into a sentence, in the user's language.
    static QString about(const QString& sentence, const QString& path);

private:
    void update();

    std::map<Kind, QString> m_sentences;
    QString m_text;
};
