// SPDX-License-Identifier: MIT
#include "Classes/BackgroundMove.h"

#include "Classes/WholeFile.h"

#include <QFile>

#include <mutex>
#include <thread>

namespace {

Outcome moveFile(const QString& from, const QString& to, const QString& spared, FileCalls& calls) {
    QFile source(from);
    if (!source.open(QFile::ReadOnly))
        return Failure{Failure::Kind::Unreadable, QStringLiteral("%1: %2").arg(from, source.errorString())};
    if (WholeFile::isSame(to, spared))
        return Failure{Failure::Kind::Refused, QStringLiteral("%1: this is the main store").arg(to)};
    if (WholeFile::isSame(from, to))
        return Done{};
    if (Outcome written = WholeFile::write(source.readAll(), to, {}, calls); !written)
        return written;
    source.remove();
    return Done{};
}

} // namespace

struct BackgroundMove::WayBack {
    void finish(const std::shared_ptr<WayBack>& self, const Outcome& outcome) {
        const std::scoped_lock lock(mutex);
        if (!owner)
            return;
        runLoop.performSoon([self, outcome] {
            // On the main thread, where it also goes.
            if (self->owner)
                self->owner->finish(outcome);
        });
    }

    RunLoop& runLoop;
    std::mutex mutex;
    BackgroundMove* owner;
};

void BackgroundMove::onThread(std::function<void()> work) {
    std::thread(std::move(work)).detach();
}

BackgroundMove::BackgroundMove(RunLoop& runLoop, Background background, FileCalls& calls)
    : m_background(std::move(background))
    , m_calls(calls)
    , m_wayBack(new WayBack{.runLoop = runLoop, .mutex = {}, .owner = this}) {}

BackgroundMove::~BackgroundMove() {
    const std::scoped_lock lock(m_wayBack->mutex);
    m_wayBack->owner = nullptr;
}

void BackgroundMove::add(Move move) {
    m_waiting.push_back(std::move(move));
    if (m_waiting.size() == 1)
        start();
}

void BackgroundMove::start() {
    const Move& move = m_waiting.front();
    m_background([from = move.from, to = move.to, spared = move.spared, &calls = m_calls,
                  wayBack = m_wayBack] { wayBack->finish(wayBack, moveFile(from, to, spared, calls)); });
}

void BackgroundMove::finish(const Outcome& outcome) {
    const Move finished = std::move(m_waiting.front());
    m_waiting.pop_front();
    if (!m_waiting.empty())
        start();
    finished.done(outcome);
}
