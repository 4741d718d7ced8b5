// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/KeyValueObserving.h"

#include <QString>

#include <map>

// What troubles the account, for observers.
inline constexpr ObservedKey kAccountTroubleKey{"accountTrouble"};

// What troubles the account now, as sentences to the user. Who finds a trouble tells it here, and when it is over; who shows
// them observes it. The sentences name files of ours, and nothing that is in them. Main thread only.
class AccountTrouble : public Observable {
public:
    // In the order in which they are shown.
    enum class Kind {
        StoreMissing,
        StoreUnwritten,
        ProjectsUnwritten,
        SettingsUnwritten,
        HistoryUnwritten,
        // From here on it has happened, and goes when the user knows of it.
        StoreExposed,
        StoreSetAside,
        ProjectsSetAside,
        SettingsSetAside,
        HistorySetAside,
        ArchiveKept,
        ArchiveLost,
    };

    // In the place of what was told of the same kind.
    void tell(Kind kind, const QString& sentence);
    void end(Kind kind);
    // The user knows: what has happened is shown no more. What is still so stays.
    void acknowledge();
    // Whether that would take anything away.
    bool canBeAcknowledged() const;

    // All of it, a line each; empty while all is well.
    const QString& text() const { return m_text; }

    QVariant valueForKey(ObservedKey key) const override;

    // Sentences for what befalls every kind of file: it could not be written, with the reason as the disk has it now, and
    // it could not be read.
    static QString unwritten(const QString& path);
    static QString setAside(const QString& path);
    // Only some of it could be read.
    static QString leftOut(const QString& path);
    // A sentence about a file of ours, by its name, in the user's language.
    static QString about(const QString& sentence, const QString& path);

private:
    void update();

    std::map<Kind, QString> m_sentences;
    QString m_text;
};
