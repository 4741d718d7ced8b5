// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryReader.h"
#include "Classes/history/HistoryRecorder.h"
#include "Classes/history/HistoryWriter.h"
#include "Classes/record/StoreWitness.h"
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/Succession.h"
#include "platform/foundation/observing/News.h"

#include <unordered_set>

class AccountTrouble;
class HistoryDebts;
class NotificationCenter;
struct ForgottenPieces;

// Records when time was spent: a journal of stretches beside the totals, in a file of its own. At launch it
// adds to the totals what a crash took from them. It listens to the tracker and is told of each save, and
// never holds either of them up. Main thread only.
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

    // Make it after the main store has been read and before the timer runs: the constructor adds to the
    // timers what the store lacks.
    explicit History(const Services& services,
                     BackgroundMove::Background background = BackgroundMove::onThread);
    History(const History&) = delete;
    History& operator=(const History&) = delete;
    ~History() override;

    // "History.sqlite" in the folder of the user's account.
    static QString pathIn(const QString& applicationSupport);
    const QString& path() const { return m_path; }
    // Whether the user wants one.
    bool isWanted() const { return m_days >= 0; }
    // Whether a history is kept.
    bool isKept() const { return m_listening.has_value(); }

    // The hour of the clock at which a day begins.
    int dayBegins() const { return m_dayBegins; }
    // Why there is nothing to read and nothing to forget, as a sentence for the user; empty when there is
    // something.
    QString obstacle() const;
    // What is newer than the file, in order of time.
    std::vector<HistoryRow> unwritten() const;
    // Whether a timer of this identity has a past here. True for any while the file has not told yet.
    bool hasPastOf(const Identity& identity) const;
    // Told whenever timers may have lost their past.
    Subscription observeLoss(std::function<void()> told) { return m_losses.observe(std::move(told)); }
    // For questions about what is already in the file.
    std::unique_ptr<HistoryReader> reader() const;

    // Deletes all that matches, for good, in the file and in what waits to be written. Time that was owed to
    // the store is deleted too, so the caller must save the store. `told` hears false whenever that could not
    // be done yet, and in the end true, once: when nothing of it is in any file.
    void forget(const HistoryChange::Forgotten& what, std::function<void(bool)> told = {});
    // The same for chosen times, but they can be brought back as long as the answer lives and a history is
    // kept; absent while none is.
    std::shared_ptr<ForgottenPieces> forgetTimes(const ChosenTimes& times);
    // As they were, but for what happened meanwhile. Answers whether that can be.
    bool bringBack(const ForgottenPieces& forgotten);
    // Applies the rules for titles to the past: what they hide is deleted as by forget(), and what they
    // replace is replaced. `hidden` is the timer that gets the time whose program must not be known.
    void holdRules(const PropertyListValue& rules, const std::optional<Identity>& hidden);
    // Up to when time has been measured, in milliseconds since 1970: now, or the tick before.
    std::int64_t pastEnd() const;
    // What of the pieces lies before that.
    std::vector<Amendment::Piece> pastOf(std::vector<Amendment::Piece> pieces) const;
    // Has written down what a person says about the past; nothing is booked ahead of now. The timers and their totals stay what
    // they are. Answers by what takeBack() knows it; absent while no history is kept, or if nothing is said.
    std::optional<std::int64_t> amend(const Amendment& amendment);
    // Undoes it: everything is exactly as before. The last one first.
    void takeBack(std::int64_t amendment);
    // Told whenever either is in the file, and when something was forgotten.
    Subscription observeAmending(std::function<void()> told) { return m_amendings.observe(std::move(told)); }
    // The program ends: writes all that waits, as far as the disk answers in time.
    void finish();

    void storeIsRead(const QByteArray& content) override;
    void storeIsWhole(const QByteArray& content) override;
    void storeIsPlaced(const QByteArray& content) override;

private:
    // Its subscriptions, while the history is kept.
    struct Listening {
        Subscription stretches;
        Subscription moving;
        Subscription merging;
        Subscription removing;
        Subscription comingBack;
    };
    // Writes the file a little later, whenever there is something new.
    class Prompter;

    void catchUp();
    void listen();
    void begin();
    void beginAnew();
    bool decide();
    void pay(const HistoryDebts& debts);
    std::int64_t now() const;
    void settingsChanged();
    void moved(const TimerMoves& moves);
    void merged(const Successions& successions);
    void followMerged();
    void deleted(const TimerReferences& timers, bool isDeleted);
    void change(HistoryChange::Any what);
    void tellForgotten(const HistoryChange::Later& what);
    std::optional<HistoryAge> age() const;
    void writeLater();
    void write();
    void noteWhetherHeldUp();
    void newsHasCome();
    void told(const HistoryKeeper::Report& report);
    void tellOfForgetting(bool isDone);
    void learnTimers(std::unordered_set<Identity> inFile);

    Services m_services;
    BackgroundMove::Background m_background;
    QString m_path;
    HistoryRecorder m_recorder;
    std::unique_ptr<Prompter> m_prompter;
    HistoryWriter m_writer;
    std::optional<Listening> m_listening;
    // Windows that were taken in by others since the timers were last written. Until then their past stays
    // with them, because a crash would bring them back.
    TimerMoves m_merged;
    // The timers with a past: what the file has told last, and whose rows came since.
    std::optional<std::unordered_set<Identity>> m_inFile;
    std::unordered_set<Identity> m_sinceThen;
    const News m_losses;
    const News m_amendings;
    // When the last amendment was made, which tells it from all others.
    std::int64_t m_lastAmended = 0;
    std::int64_t m_days = 0;
    int m_dayBegins = 0;
    // The day on which old rows were last deleted.
    std::int64_t m_sweptOn = 0;
    // The file was busy at launch, so it is not known yet what the store lacks. Nothing is written until
    // then.
    bool m_undecided = false;
    // How many writes in a row came due while the one before was still under way.
    int m_heldUp = 0;
    // Why the last write failed; empty if it did not.
    QString m_why;
    // What can be brought back, and those who wait for something to be forgotten.
    std::vector<std::weak_ptr<ForgottenPieces>> m_forgotten;
    std::vector<std::function<void(bool)>> m_forgetting;
    std::unique_ptr<RunLoopTimer> m_nextWrite;
    Subscription m_settings;
};
