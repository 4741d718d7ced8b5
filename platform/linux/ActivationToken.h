// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <utility>

// Permission of the desktop to come to the front, as Wayland has it: the toolkit takes it from the environment
// when a window asks for that. Given for as long as this lives, because programs that are started later must
// not inherit it.
class ActivationToken {
public:
    // Longer ones are none.
    static constexpr qsizetype kLongest = 256;

    // An empty one gives nothing.
    explicit ActivationToken(const QByteArray& token)
        : m_isGiven(!token.isEmpty() && qputenv(kVariable, token)) {}
    ActivationToken(const ActivationToken&) = delete;
    ActivationToken& operator=(const ActivationToken&) = delete;
    ~ActivationToken() {
        if (m_isGiven)
            qunsetenv(kVariable);
    }

    // Empty if it is too long.
    static QByteArray from(const QString& text) {
        QByteArray token = text.toUtf8();
        return token.size() <= kLongest ? std::move(token) : QByteArray();
    }

private:
    static constexpr const char* kVariable = "XDG_ACTIVATION_TOKEN";

    bool m_isGiven;
};
