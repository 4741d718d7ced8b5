// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <cstdint>
#include <functional>
#include <variant>

// Tells the windows of one application apart: a number in the window list, or an object on the accessibility
// bus. Compared by value, cheap to copy, never written. The null element is equal to no window.
class WindowElement {
public:
    // The null element.
    WindowElement() = default;
    explicit WindowElement(std::int64_t windowNumber)
        : m_handle(windowNumber) {}
    // `bus` is the connection's unique name, `path` the object's.
    WindowElement(QString bus, QString path)
        : m_handle(Accessible{std::move(bus), std::move(path)}) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(m_handle); }
    // Empty or null for an element of the other kind.
    const std::int64_t* windowNumber() const { return std::get_if<std::int64_t>(&m_handle); }
    QString bus() const {
        const auto* accessible = std::get_if<Accessible>(&m_handle);
        return accessible ? accessible->bus : QString();
    }
    QString path() const {
        const auto* accessible = std::get_if<Accessible>(&m_handle);
        return accessible ? accessible->path : QString();
    }

    friend bool operator==(const WindowElement&, const WindowElement&) = default;

private:
    friend struct std::hash<WindowElement>;

    struct Accessible {
        QString bus;
        QString path;
        friend bool operator==(const Accessible&, const Accessible&) = default;
    };

    std::variant<std::monostate, std::int64_t, Accessible> m_handle;
};

template<>
struct std::hash<WindowElement> {
    std::size_t operator()(const WindowElement& element) const noexcept {
        if (const auto* number = element.windowNumber())
            return std::hash<std::int64_t>()(*number);
        return qHashMulti(0, element.bus(), element.path());
    }
};
