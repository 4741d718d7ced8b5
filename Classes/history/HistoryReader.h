// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/BackgroundMove.h"

#include <optional>

class SqliteDatabase;

// Asks the history beside the main thread, however long it takes: one question after the other, each with a connection of
// its own that reads only. Of the questions that wait only the last one counts: who asks anew no longer wants to know what
// was asked before, and is not told it. Main thread only.
class HistoryReader {
public:
    // The file at `path` need not be there. `runLoop` outlives this.
    HistoryReader(RunLoop& runLoop, QString path, BackgroundMove::Background background);
    HistoryReader(const HistoryReader&) = delete;
    HistoryReader& operator=(const HistoryReader&) = delete;
    ~HistoryReader();

    // `question` is asked elsewhere, and knows nothing that others may change meanwhile; `told` is called here. It fails
    // where there is no history that can be read.
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
    // Being asked, and wanted after it.
    std::optional<Question> m_asked;
    std::optional<Question> m_next;
    std::shared_ptr<Shared> m_shared;
};
