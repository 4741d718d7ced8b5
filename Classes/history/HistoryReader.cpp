// SPDX-License-Identifier: MIT
#include "Classes/history/HistoryReader.h"

#include "Classes/history/HistorySchema.h"
#include "Classes/history/Sqlite.h"

#include <QFileInfo>

#include <mutex>

namespace {

// Time for another program that is writing.
constexpr int kPatienceMs = 2000;

Outcome read(const QString& path, const std::function<void(SqliteDatabase&)>& question) {
    if (!QFileInfo(path).isFile())
        return Failure{Failure::Kind::NotFound, path};
    try {
        SqliteDatabase file(path, SqliteDatabase::Mode::Read, kPatienceMs);
        if (HistorySchema::formOf(file) != HistorySchema::Form::Ours ||
            file.number("PRAGMA user_version") == 0)
            return Failure{Failure::Kind::Unreadable, path};
        // Temporary tables with titles stay in memory and are never written to a file.
        file.execute("PRAGMA temp_store = MEMORY");
        question(file);
        return Done{};
    } catch (const SqliteError& error) {
        return Failure{Failure::Kind::Unreadable, error.text()};
    }
}

} // namespace

// Shared with the thread, which may finish after the reader is gone.
struct HistoryReader::Shared {
    void finish(const std::shared_ptr<Shared>& self, const Outcome& outcome) {
        const std::scoped_lock lock(mutex);
        if (owner)
            runLoop.performSoon([self, outcome] {
                // The owner lives and dies on the main thread, so this is safe.
                if (self->owner)
                    self->owner->answered(outcome);
            });
    }

    RunLoop& runLoop;
    QString path;
    std::mutex mutex;
    HistoryReader* owner;
};

HistoryReader::HistoryReader(RunLoop& runLoop, QString path, BackgroundMove::Background background)
    : m_background(std::move(background))
    , m_shared(new Shared{.runLoop = runLoop, .path = std::move(path), .mutex = {}, .owner = this}) {}

HistoryReader::~HistoryReader() {
    const std::scoped_lock lock(m_shared->mutex);
    m_shared->owner = nullptr;
}

void HistoryReader::pose(Question question) {
    m_next = std::move(question);
    if (!m_asked)
        start();
}

void HistoryReader::start() {
    m_asked = std::exchange(m_next, std::nullopt);
    m_background([shared = m_shared, question = m_asked->read] {
        shared->finish(shared, read(shared->path, question));
    });
}

void HistoryReader::answered(const Outcome& outcome) {
    const Question asked = std::move(*std::exchange(m_asked, std::nullopt));
    if (m_next)
        return start();
    asked.told(outcome);
}
