// SPDX-License-Identifier: MIT
#include "Classes/history/History.h"

#include "Classes/common/AccountTrouble.h"
#include "Classes/common/Settings.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/history/HistoryDebts.h"
#include "Classes/history/RemovedRows.h"
#include "Classes/rules/TitleRules.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QFileInfo>

using namespace std::chrono_literals;

namespace {

constexpr Seconds kMostMissing = 10;
constexpr auto kLongestEnd = 2000ms;
constexpr std::int64_t kDay = 86'400'000;
// Milliseconds. Whoever asks comes through the loop, and so all has been credited up to a tick ago.
constexpr std::int64_t kJustTold = 2000;

const QString kFileName = QStringLiteral("History.sqlite");

int dayBeginOf(const UserDefaults& defaults) {
    return int(std::clamp<std::int64_t>(defaults.integerForKey(kHistoryDayBegins), 0, 23));
}

} // namespace

// Listens to the tracker beside the recorder, and plans a write as soon as there is something new.
class History::Prompter : public StretchListener {
public:
    explicit Prompter(History& history)
        : m_history(history) {}

    void credited(const Stretch& stretch) override {
        HistoryRecorder& recorder = m_history.m_recorder;
        recorder.credited(stretch);
        if (std::exchange(m_lastSerial, recorder.lastSerial()) != recorder.lastSerial())
            noteTimersOf(stretch);
        m_history.newsHasCome();
    }

    void waits(const Stretch& stretch) override {
        m_history.m_recorder.waits(stretch);
        noteTimersOf(stretch);
        m_history.newsHasCome();
    }

    void turnedOut(const std::vector<Stretch>& stretches) override {
        m_history.m_recorder.turnedOut(stretches);
        for (const Stretch& stretch : stretches)
            noteTimersOf(stretch);
        m_history.newsHasCome();
    }

    void absent(Instant since, Instant noticed, Seconds booked) override {
        m_history.m_recorder.absent(since, noticed, booked);
        // The tree got more at once than may be missing after a crash.
        if (booked > kMostMissing)
            m_history.write();
        else
            m_history.newsHasCome();
    }

private:
    void noteTimersOf(const Stretch& stretch) {
        note(stretch.program->uuid());
        if (stretch.window)
            note(stretch.window->uuid());
    }

    void note(const std::optional<Identity>& identity) {
        if (identity)
            m_history.m_sinceThen.insert(*identity);
    }

    History& m_history;
    std::uint64_t m_lastSerial = 0;
};

History::History(const Services& services, BackgroundMove::Background background)
    : m_services(services)
    , m_background(std::move(background))
    , m_path(pathIn(services.database.applicationSupportFolder()))
    , m_recorder(services.clock)
    , m_prompter(std::make_unique<Prompter>(*this))
    , m_writer(
          services.runLoop, m_path, [this](const auto& report) { told(report); }, m_background)
    , m_days(services.defaults.integerForKey(kHistoryDays))
    , m_dayBegins(dayBeginOf(services.defaults)) {
    m_writer.setDayBegins(m_dayBegins);
    m_settings = services.notifications.observe(kUserDefaultsDidChangeNotification,
                                                [this](const Notification&) { settingsChanged(); });
    if (m_days >= 0) {
        catchUp();
        begin();
    } else if (QFileInfo::exists(m_path)) {
        m_writer.removeFile();
    } else {
        m_inFile.emplace();
    }
}

History::~History() {
    m_services.database.setWitness(nullptr);
}

QString History::pathIn(const QString& applicationSupport) {
    return applicationSupport + u'/' + kFileName;
}

QString History::obstacle() const {
    if (m_days < 0)
        return localized("No history is kept.");
    if (!m_listening)
        return AccountTrouble::about(
            localized("“%@” was written by a newer version. It is left alone, and nothing is added to it."),
            m_path);
    return m_why.isEmpty() ? QString() : AccountTrouble::unwritten(m_path);
}

std::vector<HistoryRow> History::unwritten() const {
    std::map<std::uint64_t, HistoryRow> rows = m_writer.unwritten();
    m_recorder.addNewsTo(rows);
    std::vector<HistoryRow> ordered;
    ordered.reserve(rows.size());
    for (auto& [serial, row] : rows)
        ordered.push_back(std::move(row));
    // What has turned out late is numbered late.
    std::ranges::stable_sort(ordered, {}, &HistoryRow::start);
    return ordered;
}

bool History::hasPastOf(const Identity& identity) const {
    return !m_inFile || m_inFile->contains(identity) || m_sinceThen.contains(identity);
}

void History::learnTimers(std::unordered_set<Identity> inFile) {
    m_inFile = std::move(inFile);
    m_sinceThen.clear();
    for (const HistoryRow& row : unwritten())
        for (const auto& identity : {row.timer.application, row.timer.window})
            if (identity)
                m_sinceThen.insert(*identity);
    m_losses.tell();
}

std::unique_ptr<HistoryReader> History::reader() const {
    return std::make_unique<HistoryReader>(m_services.runLoop, m_path, m_background);
}

void History::catchUp() {
    const QByteArray content = m_services.database.mainStoreContent();
    bool isKnown = false;
    std::int64_t generation = 0;
    for (const QByteArray& read : m_services.database.contentsRead()) {
        const HistoryDebts debts = HistoryDebts::of(m_path, read);
        if (debts.isBusy()) {
            m_undecided = true;
            // Later than all that the file may hold.
            m_recorder.setGeneration(now());
            return;
        }
        isKnown = isKnown || (debts.isKnown() && read == content);
        generation = std::max(generation, debts.generation());
        pay(debts);
    }
    m_recorder.setGeneration(generation);
    if (isKnown)
        return;
    m_writer.noteStore(HistoryChange::StoreUnknown{content, m_services.database.isAwaitingMainStore()});
    // It was written at this launch already, without what was paid now.
    if (m_services.database.contentsRead().size() > 1)
        m_services.database.saveSoon();
}

// The file was busy at launch. What was counted since then is owed to the same store, and nothing of it is in
// the file.
bool History::decide() {
    std::vector<HistoryDebts> all;
    for (const QByteArray& read : m_services.database.contentsRead())
        if (all.push_back(HistoryDebts::of(m_path, read)); all.back().isBusy())
            return false;
    m_undecided = false;
    for (const HistoryDebts& debts : all)
        pay(debts);
    if (std::ranges::none_of(all, &HistoryDebts::isKnown))
        beginAnew();
    m_services.database.saveSoon();
    return true;
}

void History::pay(const HistoryDebts& debts) {
    if (const Seconds paid = debts.pay(m_services.tracker); paid > 0)
        m_services.log.log(
            QStringLiteral("%1 seconds that the database lacked were added from the history").arg(paid));
}

void History::begin() {
    listen();
    m_services.database.setWitness(this);
    write();
}

void History::listen() {
    NotificationCenter& news = m_services.notifications;
    m_listening.emplace();
    m_listening->stretches = m_services.tracker.listen(*m_prompter);
    m_listening->moving =
        news.observe(kTicklogMoveTimersNotification, [this](const Notification& notification) {
            if (const auto* moves = std::any_cast<TimerMoves>(&notification.object))
                moved(*moves);
        });
    m_listening->merging =
        news.observe(kTicklogSucceedNodeNotification, [this](const Notification& notification) {
            if (const auto* successions = std::any_cast<Successions>(&notification.object))
                merged(*successions);
        });
    for (const auto& [name, subscription, isDeleted] :
         {std::tuple(kTicklogRemoveTimersNotification, &m_listening->removing, true),
          std::tuple(kTicklogPutBackTimersNotification, &m_listening->comingBack, false)})
        *subscription = news.observe(name, [this, areGone = isDeleted](const Notification& notification) {
            if (const auto* timers = std::any_cast<TimerReferences>(&notification.object))
                deleted(*timers, areGone);
        });
}

void History::settingsChanged() {
    const int dayBegins = dayBeginOf(m_services.defaults);
    m_writer.setDayBegins(dayBegins);
    const bool isDayOther = std::exchange(m_dayBegins, dayBegins) != dayBegins;
    const std::int64_t days = m_services.defaults.integerForKey(kHistoryDays);
    if (days == std::exchange(m_days, days)) {
        if (isDayOther && m_listening)
            write();
        return;
    }
    if (days < 0 && m_listening) {
        m_listening.reset();
        m_merged.clear();
        m_sinceThen.clear();
        m_services.database.setWitness(nullptr);
        m_nextWrite.reset();
        m_undecided = false;
        for (const auto& known : std::exchange(m_forgotten, {}))
            if (const auto forgotten = known.lock())
                forgotten->removed.reset();
        HistoryBatch unwanted;
        m_recorder.turnedOut({});
        m_recorder.settle();
        m_recorder.takeInto(unwanted);
        m_writer.removeFile();
    } else if (days >= 0 && !m_listening) {
        beginAnew();
        begin();
    } else {
        m_sweptOn = 0;
        write();
    }
}

// The file does not know what the store lacks: from now on that is nothing.
void History::beginAnew() {
    m_writer.noteStore(
        HistoryChange::StoreUnknown{QByteArray("none"), m_services.database.isAwaitingMainStore()});
    m_services.database.saveSoon();
}

void History::moved(const TimerMoves& moves) {
    followMerged();
    m_recorder.takeInto(m_writer.next());
    for (const TimerMove& move : moves) {
        m_writer.change(HistoryChange::Moved{move});
        tellForgotten(HistoryChange::Moved{move});
        m_recorder.move(move);
        m_sinceThen.insert(move.to.window.value_or(move.to.application));
    }
    write();
}

void History::merged(const Successions& successions) {
    for (const auto& [former, successor, application] : successions)
        if (application)
            m_merged.push_back({{*application, former}, {*application, successor}});
}

// Before any other change of identities, which may be about the timers that are left.
void History::followMerged() {
    if (const TimerMoves moves = std::exchange(m_merged, {}); !moves.empty())
        moved(moves);
}

void History::deleted(const TimerReferences& timers, bool isDeleted) {
    if (timers.empty())
        return;
    // What comes back may have been taken in by a timer that has its name by now.
    if (isDeleted)
        followMerged();
    change(HistoryChange::Deleted{timers, isDeleted});
    tellForgotten(HistoryChange::Deleted{timers, isDeleted});
    followMerged();
}

void History::forget(const HistoryChange::Forgotten& what, std::function<void(bool)> told) {
    if (!m_listening)
        return;
    if (told)
        m_forgetting.push_back(std::move(told));
    tellForgotten(what);
    change(what);
}

std::shared_ptr<ForgottenPieces> History::forgetTimes(const ChosenTimes& times) {
    // Without a piece, all of the past would be meant.
    if (!m_listening || times.isEmpty())
        return nullptr;
    HistoryChange::Forgotten what{.program = {}, .title = {}, .from = {}, .to = {}};
    what.times = times;
    what.removed = std::make_shared<RemovedRows>();
    auto forgotten = std::make_shared<ForgottenPieces>(ForgottenPieces{what.removed, {}});
    m_forgotten.push_back(forgotten);
    change(std::move(what));
    return forgotten;
}

bool History::bringBack(const ForgottenPieces& forgotten) {
    if (!m_listening || !forgotten.removed)
        return false;
    change(HistoryChange::PutBack{forgotten.removed, forgotten.since, m_services.defaults.object(kTitleRules),
                                  age()});
    return true;
}

void History::tellForgotten(const HistoryChange::Later& what) {
    std::erase_if(m_forgotten, [](const auto& known) { return known.expired(); });
    for (const auto& known : m_forgotten)
        if (const auto forgotten = known.lock())
            forgotten->since.push_back(what);
}

void History::tellOfForgetting(bool isDone) {
    const auto waiting = isDone ? std::exchange(m_forgetting, {}) : m_forgetting;
    for (const auto& told : waiting)
        told(isDone);
}

void History::holdRules(const PropertyListValue& rules, const std::optional<Identity>& hidden) {
    if (m_listening)
        change(HistoryChange::Ruled{rules, hidden});
}

std::optional<std::int64_t> History::amend(const Amendment& amendment) {
    Amendment past = amendment;
    // What was recorded ahead of now, before the clock was set back, may be changed as well.
    if (past.kind == Amendment::Kind::Book)
        past.pieces = pastOf(std::move(past.pieces));
    if (past.name)
        past.name = cleanText(*past.name).trimmed();
    if (!m_listening || past.pieces.empty())
        return std::nullopt;
    m_lastAmended = std::max(m_lastAmended + 1, now());
    change(HistoryChange::Amended{std::move(past), m_lastAmended});
    return m_lastAmended;
}

// What is still to come will be measured, and so will what has passed since the last tick.
std::int64_t History::pastEnd() const {
    const auto told = m_recorder.recordedTo();
    return told && *told <= now() && now() - *told < kJustTold ? *told : now();
}

std::vector<Amendment::Piece> History::pastOf(std::vector<Amendment::Piece> pieces) const {
    const std::int64_t end = pastEnd();
    for (Amendment::Piece& piece : pieces)
        piece.to = std::min(piece.to, end);
    std::erase_if(pieces, [](const Amendment::Piece& piece) { return piece.from >= piece.to; });
    return pieces;
}

void History::takeBack(std::int64_t amendment) {
    if (m_listening)
        change(HistoryChange::TakenBack{amendment});
}

void History::change(HistoryChange::Any what) {
    m_recorder.takeInto(m_writer.next());
    m_recorder.settle();
    m_writer.change(std::move(what));
    write();
}

void History::finish() {
    if (m_undecided) {
        // Writing would delete what is owed.
        if (!decide())
            return;
        static_cast<void>(m_services.database.saveSettingsToDiskAtURL());
    }
    if (m_listening)
        m_recorder.takeInto(m_writer.next());
    m_writer.finish(kLongestEnd);
}

void History::storeIsRead(const QByteArray& content) {
    pay(HistoryDebts::of(m_path, content));
}

void History::storeIsWhole(const QByteArray& content) {
    m_recorder.takeInto(m_writer.next());
    m_writer.noteStore(HistoryChange::StoreWhole{content, m_recorder.beginGeneration()});
    // What waits is not in it either.
    m_recorder.takeInto(m_writer.next());
}

void History::storeIsPlaced(const QByteArray& content) {
    followMerged();
    m_writer.noteStore(HistoryChange::StorePlaced{content, m_recorder.generation(),
                                                  m_services.database.isAwaitingMainStore()});
    write();
}

std::int64_t History::now() const {
    return std::chrono::floor<std::chrono::milliseconds>(m_services.clock.now()).time_since_epoch().count();
}

std::optional<HistoryAge> History::age() const {
    return m_days > 0 ? std::optional(HistoryAge{.now = now(), .kept = m_days * kDay}) : std::nullopt;
}
