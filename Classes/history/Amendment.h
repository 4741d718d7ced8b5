// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// The program of all time that was booked by hand.
inline const QString kByHandName = QStringLiteral("By Hand");

// The one project that time was given to by hand, whatever its timer and its title say. Without an identity
// it was given to none.
struct RowProject {
    std::optional<Identity> identity;

    friend bool operator==(const RowProject&, const RowProject&) = default;
};

// What a person says about the past. A plain value; History::amend() has it written.
struct Amendment {
    enum class Kind : unsigned char {
        // Time that was worked, or booked before, gets the name and the project, where there is one. It stays
        // with its program, and idle time stays idle.
        Change,
        // Where nothing was measured, and where it was idle, there was work: time of kByHandName, with the
        // name as its title. What was worked or booked before stays as it is.
        Book
    };
    // From the first moment to just before the second, in milliseconds since 1970, UTC.
    struct Piece {
        std::int64_t from;
        std::int64_t to;
    };

    Kind kind = Kind::Change;
    std::vector<Piece> pieces = {};
    std::optional<QString> name = {};
    // Its identity is from ProjectList::historyIdentity().
    std::optional<RowProject> project = {};
    // The project's name, by which it is found when its identity is lost with the file of projects.
    QString projectName = {};
};
