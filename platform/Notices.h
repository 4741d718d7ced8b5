// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <vector>

// A notice with buttons, which the desktop shows beside the windows.
struct Notice {
    struct Button {
        // Tells the answers apart.
        QString key;
        QString text;
    };

    QString title;
    // Shown as it is, never as markup.
    QString text;
    std::vector<Button> buttons;
    // Whoever clicks the notice itself, and none of its buttons, means this button.
    QString usualKey;
};

// The desktop's notices. The desktop is asked for nothing before the first one. Main thread only.
class Notices {
public:
    // Gets the key of the button that the user has pressed.
    using Answered = std::function<void(const QString& key)>;

    virtual ~Notices() = default;

    // Shows the notice in place of the one before. `answered` is called later and at most once; never if the
    // desktop shows no notices with buttons.
    virtual void show(const Notice& notice, Answered answered) = 0;
    // The question is settled: takes the notice away, and nobody is told of an answer to it.
    virtual void withdraw() = 0;
};
