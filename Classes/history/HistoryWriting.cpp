// SPDX-License-Identifier: MIT
// When the history's file is written, and what becomes of the writer's reports.
#include "Classes/history/History.h"

#include "Classes/common/AccountTrouble.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/history/HistoryDebts.h"
#include "Classes/history/RemovedRows.h"
#include "platform/foundation/text/LocalizedStrings.h"

using namespace std::chrono_literals;
using Trouble = AccountTrouble::Kind;

namespace {

// Together with the time that a write takes, a crash never costs more than fifteen seconds.
constexpr auto kBetweenWrites = 14'400ms;
constexpr auto kWriteTolerance = 1s;
constexpr auto kBetweenTries = 60s;
constexpr auto kBetweenTriesWhileBusy = 1s;
constexpr std::int64_t kDay = 86'400'000;
constexpr std::size_t kManyWaiting = 5000;
// If so many writes come due while one is still under way, the disk hangs.
constexpr int kHangs = 4;

} // namespace

void History::newsHasCome() {
    if (!m_nextWrite && m_recorder.hasNews())
        writeLater();
}

void History::writeLater() {
    m_nextWrite = m_services.runLoop.scheduleOnce(kBetweenWrites, kWriteTolerance, [this] { write(); });
}

void History::write() {
    m_nextWrite.reset();
    // Nothing else may tell that time goes on: ticks come when they are needed.
    if (m_listening && m_services.tracker.isRunning() && !m_services.tracker.isIdle())
        writeLater();
    // Waiting rows will be joined, so the recorder must not change them any more.
    if (m_writer.waiting() > kManyWaiting)
        m_recorder.settle();
    m_recorder.takeInto(m_writer.next());
    if (m_undecided && !decide()) {
        noteWhetherHeldUp();
        m_nextWrite = m_services.runLoop.scheduleOnce(kBetweenTriesWhileBusy, [this] { write(); });
        return;
    }
    if (const std::int64_t day = now() / kDay; m_days > 0 && std::exchange(m_sweptOn, day) != day)
        m_writer.setAge(*age());
    noteWhetherHeldUp();
    m_writer.write();
}

// The message does not ask the disk for a reason: asking would hang, too.
void History::noteWhetherHeldUp() {
    m_heldUp = m_writer.isWriting() || m_undecided ? m_heldUp + 1 : 0;
    if (m_heldUp < kHangs)
        return;
    m_services.trouble.tell(Trouble::HistoryUnwritten,
                            AccountTrouble::about(localized("“%@” cannot be saved."), m_path));
    tellOfForgetting(false);
}

void History::told(const HistoryKeeper::Report& report) {
    AccountTrouble& trouble = m_services.trouble;
    if (report.setAside) {
        m_services.log.log(
            QStringLiteral("The history was damaged and is set aside as %1; %2 stretches were taken over")
                .arg(*report.setAside)
                .arg(report.takenOver));
        trouble.tell(Trouble::HistorySetAside, report.takenOver > 0 ? AccountTrouble::leftOut(m_path)
                                                                    : AccountTrouble::setAside(m_path));
    }
    if (report.state == HistoryKeeper::State::Newer) {
        m_services.log.log(QStringLiteral("The history was written by a newer version and is left alone"));
        trouble.tell(
            Trouble::HistoryUnwritten,
            AccountTrouble::about(
                localized(
                    "“%@” was written by a newer version. It is left alone, and nothing is added to it."),
                m_path));
        m_listening.reset();
        m_services.database.setWitness(nullptr);
        m_nextWrite.reset();
        return;
    }
    if (report.timers)
        learnTimers(*report.timers);
    if (report.isAmended)
        m_amendings.tell();
    m_lastAmended = std::max(m_lastAmended, report.lastAmended);
    const bool isWritten = report.state == HistoryKeeper::State::Written;
    if (const bool isGone = isWritten && !report.isToEmpty; !isGone || !m_writer.hasToForget())
        tellOfForgetting(isGone);
    const bool isSaid = std::exchange(m_why, report.why) == report.why;
    if (isWritten) {
        if (report.isStrange && m_listening)
            beginAnew();
        if (report.isToEmpty && !m_nextWrite)
            writeLater();
        return trouble.end(Trouble::HistoryUnwritten);
    }
    if (!isSaid)
        m_services.log.log(QStringLiteral("The history could not be written: ") + report.why);
    trouble.tell(Trouble::HistoryUnwritten, AccountTrouble::unwritten(m_path));
    // Tries again even if nothing new comes.
    m_nextWrite = m_services.runLoop.scheduleOnce(report.isBusy ? kBetweenTriesWhileBusy : kBetweenTries,
                                                  [this] { write(); });
}
