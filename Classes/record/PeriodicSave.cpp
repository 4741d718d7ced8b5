// SPDX-License-Identifier: MIT
#include "Classes/record/PeriodicSave.h"

#include "Classes/common/AccountTrouble.h"
#include "Classes/common/Settings.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/record/CsvExport.h"
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/TimeStoreNode.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/LocalTime.h"

#include <QDir>
#include <QFileInfo>

using namespace std::chrono_literals;

namespace {

// The wall clock is checked this often, because timers stand still while the machine sleeps, and because the
// clock may be set.
constexpr std::chrono::nanoseconds kLongestWait = 1min;
// If the clock is set by less than this, the plan stays: setting it an hour past the time of day must not
// cost that day's archive.
constexpr auto kMostSet = 48h;

const QString kTableExtension = QStringLiteral("csv");

enum Format : std::int64_t { CsvOnly = 0, DatabaseOnly = 1, Both = 2 };

} // namespace

PeriodicSave::PeriodicSave(TimeTracker& tracker, TimeDatabase& database, TimeStoreServices& services,
                           UserDefaults& defaults, const Clock& clock, std::function<void()> didClear,
                           BackgroundMove::Background background)
    : m_tracker(tracker)
    , m_database(database)
    , m_defaults(defaults)
    , m_clock(clock)
    , m_services(services)
    , m_didClear(std::move(didClear))
    , m_moves(services.runLoop, std::move(background)) {
    updatedSaveTimerPeriodically();
}

PeriodicSave::~PeriodicSave() {
    for (const auto& move : m_moves.waiting())
        logKept(move.from, QStringLiteral("%1: not answered yet").arg(move.to));
}

void PeriodicSave::updatedSaveTimerPeriodically() {
    const std::optional<Plan> before = std::exchange(m_plan, std::nullopt);
    m_timer.reset();
    m_plannedBy = {m_defaults.boolForKey(kSaveTimerPeriodically), m_defaults.object(kPeriodicSaveTime)};
    if (!m_plannedBy.first)
        return;
    const Date now = m_clock.now();
    const bool isContinued = before && !wasClockSetByDays();
    m_plan = planFrom(now);
    arm();
    if (isContinued && before->next < m_plan->next && before->begins(before->next) <= now &&
        isChosen(before->next))
        doPeriodicSave(before->next);
}

void PeriodicSave::settingsChanged() {
    if (m_plannedBy !=
        std::pair(m_defaults.boolForKey(kSaveTimerPeriodically), m_defaults.object(kPeriodicSaveTime)))
        updatedSaveTimerPeriodically();
}

std::optional<Date> PeriodicSave::nextFiring() const {
    return m_plan ? std::optional(m_plan->firing(m_plan->next)) : std::nullopt;
}

Date PeriodicSave::Plan::begins(QDate day) const {
    return localInstant(day, timeOfDay);
}

PeriodicSave::Plan PeriodicSave::planFrom(Date now) const {
    const QTime whenUnreadable(19, 0);
    const auto setting = m_defaults.object(kPeriodicSaveTime).asDate();
    const QDateTime today = localTime(now);
    Plan plan;
    plan.timeOfDay = setting ? localTime(*setting).time() : whenUnreadable;
    constexpr std::chrono::milliseconds kHour = 1h;
    const std::chrono::milliseconds since(plan.timeOfDay.msecsTo(today.time()));
    plan.minutes = (since % kHour + kHour) % kHour;
    // With its minutes, the check of a late evening comes after midnight and still belongs to that evening's
    // day.
    plan.next = today.date().addDays(-1);
    while (plan.firing(plan.next) <= now)
        plan.next = plan.next.addDays(1);
    return plan;
}

bool PeriodicSave::wasClockSetByDays() const {
    const auto passed = m_clock.sinceBoot() - m_lookedAtSinceBoot;
    return std::chrono::abs(m_clock.now() - m_lookedAt - passed) > kMostSet;
}

void PeriodicSave::arm() {
    m_lookedAt = m_clock.now();
    m_lookedAtSinceBoot = m_clock.sinceBoot();
    const std::chrono::nanoseconds rest = *nextFiring() - m_lookedAt;
    m_timer = m_services.runLoop.scheduleOnce(std::clamp(rest, std::chrono::nanoseconds(0), kLongestWait),
                                              [this] { fire(); });
}

void PeriodicSave::fire() {
    forgetWhatIsGone();
    // The clock was set by days: the days between did not pass.
    if (wasClockSetByDays())
        return updatedSaveTimerPeriodically();
    if (const auto due = takeDue(m_clock.now()))
        doPeriodicSave(*due);
    // Observers may have changed the plan meanwhile.
    if (m_plan)
        arm();
}

std::optional<QDate> PeriodicSave::takeDue(Date now) {
    std::optional<QDate> due;
    for (; m_plan->firing(m_plan->next) <= now; m_plan->next = m_plan->next.addDays(1))
        // All that was counted belongs to the first of these days; nothing is left for the later ones.
        if (!due && isChosen(m_plan->next))
            due = m_plan->next;
    return due;
}

bool PeriodicSave::isChosen(QDate day) const {
    // Qt counts from 1 for Monday to 7 for Sunday.
    return quint32(m_defaults.integerForKey(kPeriodicDaysOfWeek)) & (1U << (day.dayOfWeek() % 7));
}

void PeriodicSave::performPeriodicSave() {
    if (isChosen(localTime(m_clock.now()).date()))
        doPeriodicSave();
}

QString PeriodicSave::folder() const {
    const QString chosen = m_defaults.object(kPeriodicSaveDirectory).toString();
    if (chosen.isEmpty())
        return m_database.applicationSupportFolder();
    const bool isBelowHome = chosen == QLatin1String("~") || chosen.startsWith(QLatin1String("~/"));
    return isBelowHome ? QDir::homePath() + chosen.mid(1) : chosen;
}

void PeriodicSave::doPeriodicSave() {
    doPeriodicSave(localTime(m_clock.now()).date());
}

void PeriodicSave::doPeriodicSave(QDate due) {
    archive(due.toString(QStringLiteral("yyyy-MM-dd")));
    m_tracker.reset();
    m_didClear();
}

void PeriodicSave::archive(const QString& name) {
    const std::int64_t format = m_defaults.integerForKey(kPeriodicFormatType);
    if (format == CsvOnly || format == Both)
        archiveAs(name, kTableExtension);
    if (format == DatabaseOnly || format == Both)
        archiveAs(name, kDatabaseExtension);
}

void PeriodicSave::archiveAs(const QString& name, const QString& extension) {
    const QString file = name + u'.' + extension;
    const QDir chosen(folder());
    const QDir storeFolder = QFileInfo(m_database.mainStoreURL()).absoluteDir();
    // The chosen folder may be on a mount that does not answer. Until it does, the archive lies beside the
    // main store.
    const QString kept = WholeFile::freeName(storeFolder.filePath(file));
    const bool isElsewhere = chosen.absolutePath() != storeFolder.absolutePath();
    Outcome written = write(kept);
    if (written && isElsewhere)
        moveLater(kept, chosen.filePath(file));
    else if (isElsewhere)
        written = write(WholeFile::freeName(chosen.filePath(file)));
    if (!written)
        return tellLost(file, written.failure().text);
    m_services.trouble.end(AccountTrouble::Kind::ArchiveLost);
}

void PeriodicSave::moveLater(const QString& kept, const QString& path) {
    m_moves.add({.from = kept, .to = path, .done = [this, kept, path](const Outcome& moved) {
                     wasMoved(kept, path, moved);
                 }});
}

void PeriodicSave::wasMoved(const QString& kept, const QString& path, const Outcome& moved) {
    if (moved)
        return moveKept();
    if (kept.endsWith(kTableExtension))
        CsvExport::tellFailure(m_services.log);
    logKept(kept, moved.failure().text);
    m_kept.emplace_back(kept, path);
    tellKept();
}

void PeriodicSave::moveKept() {
    forgetWhatIsGone();
    for (const auto& [kept, path] : std::exchange(m_kept, {}))
        moveLater(kept, path);
    tellKept();
}

void PeriodicSave::forgetWhatIsGone() {
    if (std::erase_if(m_kept, [](const auto& archive) { return !QFileInfo::exists(archive.first); }) > 0)
        tellKept();
}

void PeriodicSave::tellKept() {
    if (m_kept.empty())
        return m_services.trouble.end(AccountTrouble::Kind::ArchiveKept);
    const QString text =
        localized("The archive “%@” could not be moved to its folder. It lies beside the database.");
    m_services.trouble.tell(AccountTrouble::Kind::ArchiveKept,
                            AccountTrouble::about(text, m_kept.back().first));
}

void PeriodicSave::logKept(const QString& kept, const QString& why) {
    m_services.log.log(
        QStringLiteral("The archive could not be written (%1) and is kept as %2.").arg(why, kept));
}

void PeriodicSave::tellLost(const QString& name, const QString& why) {
    m_services.log.log(QStringLiteral("The archive could be written nowhere: ") + why);
    m_services.trouble.tell(
        AccountTrouble::Kind::ArchiveLost,
        AccountTrouble::about(localized("The archive “%@” could not be written anywhere."), name));
}

Outcome PeriodicSave::write(const QString& path) {
    // Even if the main store is missing at the moment, its name is refused.
    if (path == m_database.mainStoreURL())
        return Failure{Failure::Kind::Refused, QStringLiteral("%1: this is the main store").arg(path)};
    if (!path.endsWith(kTableExtension))
        return m_database.saveSettingsToDiskAtURL(path);
    const auto& apps = m_tracker.fullTimeSet();
    Outcome written = CsvExport::write({apps.begin(), apps.end()}, m_tracker.totalTime(), path);
    if (!written)
        CsvExport::tellFailure(m_services.log);
    return written;
}

PeriodicSave::Segments PeriodicSave::selectProperPeriodicDaysOfWeek() const {
    const auto weekdays = quint32(m_defaults.integerForKey(kPeriodicDaysOfWeek));
    Segments selected{};
    for (std::size_t i = 0; i < selected.size(); ++i)
        selected[i] = weekdays & (1U << i);
    return selected;
}

void PeriodicSave::setPeriodicDaysOfWeek(const Segments& selected) {
    int weekdays = 0;
    for (const bool isSelected : selected)
        weekdays = weekdays << 1 | int(isSelected);
    m_defaults.setObject(kPeriodicDaysOfWeek, weekdays);
    updatedSaveTimerPeriodically();
}
