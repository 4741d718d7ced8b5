// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryReader.h"
#include "Classes/history/HistoryRecorder.h"
#include "Classes/history/HistoryWriter.h"
#include "Classes/record/StoreWitness.h"
#include "Classes/record/TimeDatabase.h"

// When it was: keeps beside the totals a journal of where the time goes, in a file of its own, and at launch adds to the
// totals what a crash has cost them. It listens to the tracker and is told of each save; nothing it does ever holds them up.
// Main thread only.
class History : public StoreWitness {
public:
    // Everything outlives the history.
    struct Services {
        TimeTracker& tracker;
        TimeDatabase& database;
        AccountTrouble& trouble;
        NotificationCenter& notifications;
        UserDefaults& defaults;
        RunLoop& runLoop;
        const Clock& clock;
        SystemLog& log;
    };

    // To be made when the main store has been read and before the timer runs: then the timers get what it lacks.
    explicit History(const Services& services,
                     BackgroundMove::Background background = BackgroundMove::onThread);
    History(const History&) = delete;
    History& operator=(const History&) = delete;
    ~History() override;

    // "History.sqlite" in the folder of the user's account.
    static QString pathIn(const QString& applicationSupport);
    const QString& path() const { return m_path; }
    // Whether one is kept at all.
    bool isKept() const { return m_listening.has_value(); }

    // The hour of the clock at which a day begins.
    int dayBegins() const { return m_dayBegins; }
    // Why there is nothing to read and nothing to forget, for the user; empty while there is.
    QString obstacle() const;
    // Asks the file about what is written by now.
    std::unique_ptr<HistoryReader> reader() const;

    // Gone for good, with all that waits of it. What was owed to the store goes too: it is to be saved then.
    void forget(const HistoryChange::Forgotten& what);
    // No more is left of what is in it than rules allow; the rest as with what is forgotten. `hidden` is the timer of what
    // has nobody's name.
    void holdRules(const PropertyListValue& rules, const std::optional<Identity>& hidden);
    // Writes what there is, as far as the disk answers in time: the program ends.
    void finish();

    void storeIsWhole(const QByteArray& content) override;
    void storeIsPlaced(const QByteArray& content) override;

private:
    // What is told to it while it is kept.
    struct Listening {
        Subscription stretches;
        Subscription freezing;
        Subscription thawing;
        Subscription removing;
        Subscription comingBack;
    };
    // Has the file written in time while there is something new.
    class Prompter;

    void catchUp();
    void listen();
    void begin();
    void settingsChanged();
    void renamed(const FrozenIdentities& identities);
    void deleted(const TimerReferences& timers, bool isDeleted);
    void change(HistoryChange::Any what);
    void write();
    void noteWhetherHeldUp();
    void newsHasCome();
    void told(const HistoryKeeper::Report& report);

    Services m_services;
    BackgroundMove::Background m_background;
    QString m_path;
    HistoryRecorder m_recorder;
    std::unique_ptr<Prompter> m_prompter;
    HistoryWriter m_writer;
    std::optional<Listening> m_listening;
    std::int64_t m_days = 0;
    int m_dayBegins = 0;
    // The day for which what is too old was last taken out.
    std::int64_t m_sweptOn = 0;
    // How often in a row there was something to be written while the last was still on its way.
    int m_heldUp = 0;
    // Why it could not be written last; empty while it can.
    QString m_why;
    std::unique_ptr<RunLoopTimer> m_nextWrite;
    Subscription m_settings;
};
