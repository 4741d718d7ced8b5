// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <utility>
#include <variant>

// Why an operation failed. Code branches on the kind; people read the text, which is logged as it is.
struct Failure {
    enum class Kind { NotFound, Unreadable, Damaged, Refused, AlreadyExists, CannotWrite };
    Kind kind;
    QString text;
};

// A value, or the reason why there is none.
template<class T>
class [[nodiscard]] Result {
public:
    Result(T value)
        : m_outcome(std::move(value)) {}
    Result(Failure failure)
        : m_outcome(std::move(failure)) {}

    explicit operator bool() const { return m_outcome.index() == 0; }
    // REQUIRES: the result holds a value.
    const T& operator*() const { return std::get<0>(m_outcome); }
    T& operator*() { return std::get<0>(m_outcome); }
    const T* operator->() const { return &std::get<0>(m_outcome); }
    // REQUIRES: the result holds no value.
    const Failure& failure() const { return std::get<1>(m_outcome); }

private:
    std::variant<T, Failure> m_outcome;
};

// The result of an operation that has no value but may fail.
struct Done {};
using Outcome = Result<Done>;
