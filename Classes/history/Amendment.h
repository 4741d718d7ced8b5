// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <QString>

#include <compare>
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

    // A program's time under one title, as it is recorded.
    struct Whose {
        QString program;
        QString title;

        friend std::strong_ordering operator<=>(const Whose&, const Whose&) = default;
    };

    Kind kind = Kind::Change;
    std::vector<Piece> pieces = {};
    // What of the pieces is changed; all of it without any. After the clock was set back, several were in front at
    // the same time, and a piece alone does not tell them apart.
    std::vector<Whose> only = {};
    std::optional<QString> name = {};
    // Its identity is from ProjectList::historyIdentity().
    std::optional<RowProject> project = {};
    // The project's name, by which it is found when its identity is lost with the file of projects.
    QString projectName = {};
};

// When chosen stretches of the past were, and whose they are.
struct ChosenTimes {
    bool isEmpty() const { return pieces.empty(); }

    // In order of time.
    std::vector<Amendment::Piece> pieces = {};
    // As for an Amendment.
    std::vector<Amendment::Whose> only = {};
};
