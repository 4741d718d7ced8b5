// SPDX-License-Identifier: MIT
#include "Classes/PeriodicSave.h"

#include "Classes/CsvExport.h"
#include "Classes/Settings.h"
#include "Classes/TimeDatabase.h"
#include "Classes/TimeTracker.h"
#include "platform/foundation/LocalTime.h"

#include <QDir>
#include <QFileInfo>

using namespace std::chrono_literals;

namespace {

constexpr auto kDay = std::chrono::seconds(86400);
// Timers stand still while the machine sleeps, and the clock may be set: so often the wall clock is looked at.
constexpr std::chrono::nanoseconds kLongestWait = 10min;

const QString kTableExtension = QStringLiteral("csv");

enum Format : std::int64_t { CsvOnly = 0, DatabaseOnly = 1, Both = 2 };

// Links that lead nowhere stand there too.
bool isTaken(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

// A path beside `store` at which nothing stands: "2026-11-21.csv", else "2026-11-21 2.csv".
QString freePathBeside(const QString& store, const QString& name, const QString& extension) {
    const QDir folder = QFileInfo(store).dir();
    QString path = folder.filePath(name + u'.' + extension);
    for (int number = 2; isTaken(path); ++number)
        path = folder.filePath(QStringLiteral("%1 %2.%3").arg(name).arg(number).arg(extension));
    return path;
}

} // namespace

PeriodicSave::PeriodicSave(TimeTracker& tracker, TimeDatabase& database, UserDefaults& defaults,
                           const Clock& clock, RunLoop& runLoop, SystemLog& log,
                           std::function<void()> didClear, BackgroundMove::Background background)
    : m_tracker(tracker)
    , m_database(database)
    , m_defaults(defaults)
    , m_clock(clock)
    , m_runLoop(runLoop)
    , m_log(log)
    , m_didClear(std::move(didClear))
    , m_moves(runLoop, std::move(background)) {
    updatedSaveTimerPeriodically();
}

PeriodicSave::~PeriodicSave() {
    for (const auto& move : m_moves.waiting())
        tellKept(move.from, QStringLiteral("%1: not answered yet").arg(move.to));
}

void PeriodicSave::updatedSaveTimerPeriodically() {
    m_timer.reset();
    m_next.reset();
    m_plannedBy = {m_defaults.boolForKey(kSaveTimerPeriodically), m_defaults.object(kPeriodicSaveTime)};
    if (!m_plannedBy.first)
        return;
    m_next = m_clock.now() + std::chrono::hours(hoursToFirstFiring());
    arm();
}

void PeriodicSave::settingsChanged() {
    if (m_plannedBy !=
        std::pair(m_defaults.boolForKey(kSaveTimerPeriodically), m_defaults.object(kPeriodicSaveTime)))
        updatedSaveTimerPeriodically();
}

int PeriodicSave::hoursToFirstFiring() const {
    const QTime whenUnreadable(19, 0);
    const auto setting = m_defaults.object(kPeriodicSaveTime).asDate();
    const QTime timeOfDay = setting ? localTime(*setting).time() : whenUnreadable;
    const QDateTime now = localTime(m_clock.now());
    QDateTime last(now.date(), timeOfDay);
    if (last > now)
        last = QDateTime(now.date().addDays(-1), timeOfDay);
    // A day on which the clocks go back has an hour more.
    return 24 - int(std::min<qint64>(last.secsTo(now) / 3600, 23));
}

void PeriodicSave::arm() {
    const std::chrono::nanoseconds rest = *m_next - m_clock.now();
    m_timer = m_runLoop.scheduleOnce(std::clamp(rest, std::chrono::nanoseconds(0), kLongestWait),
                                     [this] { fire(); });
}

void PeriodicSave::fire() {
    const Date now = m_clock.now();
    // The clock was far ahead when that was planned. A little is waited for, or a clock set back after a firing would
    // archive the same day twice.
    if (*m_next - now > 2 * kDay)
        return updatedSaveTimerPeriodically();
    if (now >= *m_next) {
        while (*m_next <= now)
            *m_next += kDay;
        performPeriodicSave();
    }
    // What was told meanwhile may have planned otherwise.
    if (m_next)
        arm();
}

void PeriodicSave::performPeriodicSave() {
    const auto weekdays = quint32(m_defaults.integerForKey(kPeriodicDaysOfWeek));
    // Qt counts from 1 for Monday to 7 for Sunday.
    const int today = localTime(m_clock.now()).date().dayOfWeek() % 7;
    if (weekdays & (1U << today))
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
    archive(localTime(m_clock.now()).date().toString(QStringLiteral("yyyy-MM-dd")));
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
    const QString store = m_database.mainStoreURL();
    const QString path = QDir(folder()).filePath(name + u'.' + extension);
    const QString kept = freePathBeside(store, name, extension);
    // A folder of the user's choice may be on a mount that does not answer. Until it has, the archive lies where the account
    // does.
    const bool isElsewhere = QFileInfo(path).absolutePath() != QFileInfo(store).absolutePath();
    const Outcome written = write(isElsewhere ? kept : path);
    if (written && isElsewhere)
        return moveLater(kept, path);
    if (written)
        return;
    if (const Outcome rescued = write(isElsewhere ? path : kept); !rescued)
        m_log.log(QStringLiteral("The archive could be written nowhere: ") + rescued.failure().text);
    else if (!isElsewhere)
        tellKept(kept, written.failure().text);
}

void PeriodicSave::moveLater(const QString& kept, const QString& path) {
    m_moves.add({.from = kept,
                 .to = path,
                 .spared = m_database.mainStoreURL(),
                 .done = [this, kept](const Outcome& moved) {
                     if (moved)
                         return;
                     if (kept.endsWith(kTableExtension))
                         CsvExport::tellFailure(m_log);
                     tellKept(kept, moved.failure().text);
                 }});
}

void PeriodicSave::tellKept(const QString& kept, const QString& why) {
    m_log.log(QStringLiteral("The archive could not be written (%1) and is kept as %2.").arg(why, kept));
}

Outcome PeriodicSave::write(const QString& path) {
    // That is written again without the timers that are about to be cleared.
    const QString store = m_database.mainStoreURL();
    if (path == store || WholeFile::isSame(path, store))
        return Failure{Failure::Kind::Refused, QStringLiteral("%1: this is the main store").arg(path)};
    if (!path.endsWith(kTableExtension))
        return m_database.saveSettingsToDiskAtURL(path);
    const auto& apps = m_tracker.fullTimeSet();
    Outcome written = CsvExport::write({apps.begin(), apps.end()}, m_tracker.totalTime(), path);
    if (!written)
        CsvExport::tellFailure(m_log);
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
