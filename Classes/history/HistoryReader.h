// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/BackgroundMove.h"

#include <optional>

class SqliteDatabase;

// Asks the history questions on another thread, however long they take. One question is asked at a time, each
// over a read-only connection of its own. Of the questions that wait only the last is asked: the answers to
// earlier ones are no longer wanted, and never told. Main thread only.
class HistoryReader {
public:
    // The file at `path` need not be there. `runLoop` outlives this.
    HistoryReader(RunLoop& runLoop, QString path, BackgroundMove::Background background);
    HistoryReader(const HistoryReader&) = delete;
    HistoryReader& operator=(const HistoryReader&) = delete;
    ~HistoryReader();

    // `question` runs on another thread and must not share anything with it that may change meanwhile; `told`
    // is called on this thread. Fails when there is no history that can be read.
    template<class Answer>
    void ask(std::function<Answer(SqliteDatabase&)> question,
             std::function<void(const Result<Answer>&)> told) {
        const auto answer = std::make_shared<std::optional<Answer>>();
        pose({[question = std::move(question), answer](SqliteDatabase& file) { *answer = question(file); },
              [told = std::move(told), answer](const Outcome& outcome) {
                  told(outcome ? Result<Answer>(std::move(**answer)) : Result<Answer>(outcome.failure()));
              }});
    }

private:
    struct Question {
        std::function<void(SqliteDatabase&)> read;
        std::function<void(const Outcome&)> told;
    };
    struct Shared;

    void pose(Question question);
    void start();
    void answered(const Outcome& outcome);

    BackgroundMove::Background m_background;
    // The question being asked, and the one to ask next.
    std::optional<Question> m_asked;
    std::optional<Question> m_next;
    std::shared_ptr<Shared> m_shared;
};
