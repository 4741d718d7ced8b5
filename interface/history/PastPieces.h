// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Amendment.h"
#include "platform/foundation/time/Clock.h"

#include <algorithm>

// What of the pieces is over. A step that is redone later means no more than that.
inline std::vector<Amendment::Piece> pastPieces(std::vector<Amendment::Piece> pieces, const Clock& clock) {
    const std::int64_t now =
        std::chrono::floor<std::chrono::milliseconds>(clock.now()).time_since_epoch().count();
    for (Amendment::Piece& piece : pieces)
        piece.to = std::min(piece.to, now);
    std::erase_if(pieces, [](const Amendment::Piece& piece) { return piece.from >= piece.to; });
    return pieces;
}
