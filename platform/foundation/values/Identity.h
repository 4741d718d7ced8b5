// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

#include <array>
#include <bit>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

// Identifies a timer, even when its name changes: 8 random bytes, compared by value. "No identity" is an
// empty std::optional, never a special value.
class Identity {
public:
    static constexpr std::size_t kSize = 8;

    // The first 8 bytes of a new random UUID (version 4).
    static Identity brandNew();
    // Absent unless `bytes` is exactly 8 bytes long.
    static std::optional<Identity> fromBytes(const QByteArray& bytes);

    QByteArray bytes() const;
    // In lower-case hexadecimal, in groups of four bytes: "<00112233 44556677>".
    QString text() const;

    // Compared as one number, because sets of identities are asked for every timer.
    friend bool operator==(const Identity& a, const Identity& b) { return a.number() == b.number(); }
    // In the order of the bytes.
    friend auto operator<=>(const Identity& a, const Identity& b) {
        return qFromBigEndian(a.number()) <=> qFromBigEndian(b.number());
    }

private:
    friend struct std::hash<Identity>;

    std::uint64_t number() const { return std::bit_cast<std::uint64_t>(m_bytes); }

    std::array<unsigned char, kSize> m_bytes{};
};

template<>
struct std::hash<Identity> {
    // No hashing: the bytes are random.
    std::size_t operator()(const Identity& identity) const noexcept { return identity.number(); }
};
