// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
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

    friend bool operator==(const Identity&, const Identity&) = default;
    // The comparison with 0 that is found there is the language's own.
    friend auto operator<=>(const Identity&, const Identity&) = default; // NOLINT(modernize-use-nullptr)

private:
    friend struct std::hash<Identity>;
    std::array<unsigned char, kSize> m_bytes{};
};

template<>
struct std::hash<Identity> {
    std::size_t operator()(const Identity& identity) const noexcept;
};
