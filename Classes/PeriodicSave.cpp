// SPDX-License-Identifier: MIT
#include "Classes/PeriodicSave.h"

#include "Classes/CsvExport.h"
#include "Classes/Settings.h"
#include "Classes/TimeDatabase.h"
#include "Classes/TimeTracker.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

using namespace std::chrono_literals;

namespace {

constexpr auto kDay = std::chrono::seconds(86400);
// Timers stand still while the machine sleeps, and the clock may be set: so often the wall clock is looked at.
constexpr std::chrono::nanoseconds kLongestWait = 10min;

enum Format : std::int64_t { CsvOnly = 0, DatabaseOnly = 1, Both = 2 };

QDateTime localTime(Date date) {
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<std::chrono::milliseconds>(date.time_since_epoch()).count());
}

// Also where the two paths are links to one file.
bool isSameFile(const QString& a, const QString& b) {
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return a == b || (!canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath());
}

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
                           std::function<void()> didClear)
    : m_tracker(tracker)
    , m_database(database)
    , m_defaults(defaults)
    , m_clock(clock)
    , m_runLoop(runLoop)
    , m_log(log)
    , m_didClear(std::move(didClear)) {
    updatedSaveTimerPeriodically();
}

void PeriodicSave::updatedSaveTimerPeriodically() {
    m_timer.reset();
    m_next.reset();
    if (!m_defaults.boolForKey(kSaveTimerPeriodically))
        return;
    m_next = m_clock.now() + std::chrono::hours(hoursToFirstFiring());
    arm();
}

int PeriodicSave::hoursToFirstFiring() const {
    const QTime kWhenUnreadable(19, 0);
    const auto setting = m_defaults.object(kPeriodicSaveTime).asDate();
    const QTime timeOfDay = setting ? localTime(*setting).time() : kWhenUnreadable;
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
    const auto write = [&](const QString& extension, Outcome (PeriodicSave::*writeForm)(const QString&)) {
        const QString path = folder() + u'/' + name + u'.' + extension;
        // The main store is written again without the timers that are about to be cleared.
        const Outcome archived =
            isSameFile(path, m_database.mainStoreURL())
                ? Failure{Failure::Kind::Refused, QStringLiteral("%1: this is the main store").arg(path)}
                : (this->*writeForm)(path);
        if (archived)
            return;
        const QString refuge = freePathBeside(m_database.mainStoreURL(), name, extension);
        const Outcome kept = (this->*writeForm)(refuge);
        m_log.log(kept ? QStringLiteral("The archive could not be written (%1) and is kept as %2.")
                             .arg(archived.failure().text, refuge)
                       : QStringLiteral("The archive could be written nowhere: ") + kept.failure().text);
    };
    if (format == CsvOnly || format == Both)
        write(QStringLiteral("csv"), &PeriodicSave::writeCsv);
    if (format == DatabaseOnly || format == Both)
        write(kDatabaseExtension, &PeriodicSave::writeDatabase);
}

Outcome PeriodicSave::writeCsv(const QString& path) {
    const auto& apps = m_tracker.fullTimeSet();
    const Outcome written = CsvExport::write({apps.begin(), apps.end()}, m_tracker.totalTime(), path);
    if (!written)
        m_log.log(QStringLiteral("Error Exporting"));
    return written;
}

Outcome PeriodicSave::writeDatabase(const QString& path) {
    return m_database.saveSettingsToDiskAtURL(path);
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
