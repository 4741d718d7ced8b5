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

// What a timer is known by when its name changes: 8 random bytes, compared by value. An absent identity is
// std::optional, never a special value.
class Identity {
public:
    static constexpr std::size_t kSize = 8;

    // The first 8 bytes of a fresh random UUID (version 4).
    static Identity brandNew();
    // Absent when `bytes` is not exactly 8 bytes long.
    static std::optional<Identity> fromBytes(const QByteArray& bytes);

    QByteArray bytes() const;
    // Lower-case hexadecimal, four bytes a group: "<00112233 44556677>".
    QString text() const;

    // As one number: sets of identities are asked for every timer there is.
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
    // The bytes are random already.
    std::size_t operator()(const Identity& identity) const noexcept { return identity.number(); }
};
