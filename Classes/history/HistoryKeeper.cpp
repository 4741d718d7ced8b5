// SPDX-License-Identifier: MIT
#include "Classes/history/HistoryKeeper.h"

#include "Classes/history/HistorySalvage.h"
#include "platform/foundation/files/PrivateFiles.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

// The files that SQLite keeps beside the database.
const QString kJournal = QStringLiteral("-wal");
const QString kIndex = QStringLiteral("-shm");

} // namespace

HistoryKeeper::Report HistoryKeeper::write(const HistoryBatch& batch, const std::optional<HistoryAge>& age,
                                           std::optional<int> dayBegins) {
    Report report;
    try {
        try {
            attempt(batch, age, dayBegins, report);
        } catch (const SqliteError& error) {
            if (!error.isDamage() || !QFileInfo(m_path).isFile())
                throw;
            setAside(report);
            attempt(batch, age, dayBegins, report);
        }
        report.isAmended = std::ranges::any_of(batch.changes, [](const HistoryChange::Any& change) {
            return std::holds_alternative<HistoryChange::Amended>(change) ||
                   std::holds_alternative<HistoryChange::TakenBack>(change) ||
                   std::holds_alternative<HistoryChange::Forgotten>(change) ||
                   std::holds_alternative<HistoryChange::PutBack>(change);
        });
    } catch (const HistoryFile::Newer&) {
        report.state = State::Newer;
    } catch (const SqliteError& error) {
        report.state = State::Unwritten;
        report.why = error.text();
        report.isBusy = error.isBusy();
    }
    // Open it anew next time: whatever was wrong may be over by then.
    if (report.state != State::Written)
        m_file.reset();
    report.isToEmpty = m_file && m_file->hasToEmpty();
    return report;
}

void HistoryKeeper::attempt(const HistoryBatch& batch, const std::optional<HistoryAge>& age,
                            std::optional<int> dayBegins, Report& report) {
    // Somebody has removed the file, or put another in its place.
    if (m_file && m_file->hasMoved()) {
        m_file.reset();
        m_isOther = true;
    }
    if (!m_file) {
        m_file.emplace(m_path);
        report.lastAmended = m_file->lastAmended();
    }
    // If this part of the file is damaged, that is met before anything is written.
    report.timers = m_file->takeTimers();
    // Deleted timers can be brought back as long as the program runs, so their rows are removed only at its
    // first write.
    if (!m_isSwept || age)
        m_file->sweep(age, !m_isSwept);
    m_isSwept = true;
    // Also for a file that is new or has replaced the old one.
    if (dayBegins)
        m_file->setDayBegin(*dayBegins);
    if (!batch.isEmpty())
        m_file->write(batch, m_written);
    else
        m_file->empty();
    if (auto fewer = m_file->takeTimers())
        report.timers = std::move(fewer);
    const bool knowsStore = m_file->knowsStore();
    report.isStrange = std::exchange(m_isOther, false) || !knowsStore;
}

void HistoryKeeper::setAside(Report& report) {
    m_file.reset();
    const auto aside = PrivateFiles::setAside(m_path);
    if (!aside)
        throw SqliteError(0, aside.failure().text);
    QFile::remove(m_path + kIndex);
    QFile::rename(m_path + kJournal, *aside + kJournal);
    report.setAside = *aside;
    m_file.emplace(m_path);
    report.takenOver = HistorySalvage::takeOver(*aside, *m_file);
}

HistoryKeeper::Report HistoryKeeper::remove() {
    m_file.reset();
    Report report;
    report.timers.emplace();
    for (const QString& path : {m_path, QString(m_path + kJournal), QString(m_path + kIndex)})
        if (QFileInfo(path).isFile() && !QFile::remove(path)) {
            report.state = State::Unwritten;
            report.why = QStringLiteral("%1: cannot be removed").arg(path);
        }
    return report;
}

HistoryKeeper::Report HistoryKeeper::close() {
    m_file.reset();
    return {};
}
