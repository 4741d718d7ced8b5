// SPDX-License-Identifier: MIT
#include "Classes/record/BackgroundMove.h"

#include "Classes/record/WholeFile.h"

#include <QFile>
#include <QFileInfo>

#include <mutex>
#include <thread>

namespace {

// Whether `from` is already in the target folder, under one of the names that a file at `to` can have.
bool isThere(const QString& from, const QString& to) {
    for (int n = 1;; ++n) {
        const QString name = WholeFile::nthName(to, n);
        if (WholeFile::isSame(from, name))
            return true;
        if (!QFileInfo::exists(name))
            return false;
    }
}

Outcome moveFile(const QString& from, const QString& to, FileCalls& calls) {
    QFile source(from);
    if (!source.open(QFile::ReadOnly))
        return Failure{Failure::Kind::Unreadable, QStringLiteral("%1: %2").arg(from, source.errorString())};
    if (isThere(from, to))
        return Done{};
    if (const auto written = WholeFile::writeBeside(source.readAll(), to, calls); !written)
        return written.failure();
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
            // The owner lives and dies on the main thread, so this is safe.
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
    m_background([from = move.from, to = move.to, &calls = m_calls, wayBack = m_wayBack] {
        wayBack->finish(wayBack, moveFile(from, to, calls));
    });
}

void BackgroundMove::finish(const Outcome& outcome) {
    const Move finished = std::move(m_waiting.front());
    m_waiting.pop_front();
    if (!m_waiting.empty())
        start();
    finished.done(outcome);
}
