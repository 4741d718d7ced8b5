// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/FileCalls.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/Result.h"

#include <QString>

#include <deque>

// Moves files to places that may answer slowly or never, such as a network mount or a disk that spins up. A
// thread of its own does this, one move after the other, while the main thread goes on counting. A file that
// could not be moved stays where it is.
class BackgroundMove {
public:
    // Runs `work` on some thread, now or later.
    using Background = std::function<void(std::function<void()> work)>;
    // A new thread for each call. Nobody waits for it: one that hangs must not keep the program from ending.
    static void onThread(std::function<void()> work);

    struct Move {
        QString from;
        // If a file is already there, the moved one gets a free name beside it, as WholeFile::writeBeside()
        // finds it.
        QString to;
        // Called on the main thread, unless this object is gone by then.
        std::function<void(const Outcome&)> done;
    };

    // `runLoop` must outlive this, `calls` every move.
    explicit BackgroundMove(RunLoop& runLoop, Background background = onThread,
                            FileCalls& calls = FileCalls::system());
    BackgroundMove(const BackgroundMove&) = delete;
    BackgroundMove& operator=(const BackgroundMove&) = delete;
    ~BackgroundMove();

    void add(Move move);

    // The moves that are not done yet, in order.
    const std::deque<Move>& waiting() const { return m_waiting; }

private:
    struct WayBack;

    void start();
    void finish(const Outcome& outcome);

    Background m_background;
    FileCalls& m_calls;
    std::deque<Move> m_waiting;
    // Shared with the thread, which may finish after this object is gone.
    std::shared_ptr<WayBack> m_wayBack;
};
