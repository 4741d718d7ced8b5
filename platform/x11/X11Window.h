// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11ClientProcess.h"
#include "platform/x11/X11Connection.h"

#include <QStringList>

// What one window of a client says of itself. Asks for what may have changed and takes in the answers; draws
// no conclusions about the desktop.
class X11Window {
public:
    enum class Fact { Name, PlainName, Class, StatedProcess, ConnectedProcess, Machine, Type, State, Count };
    enum class Kind { Ordinary, Desktop, Other };

    // Everything may have changed: nothing is known yet.
    explicit X11Window(xcb_window_t number);

    // The fact that a property tells; absent when the property does not matter.
    static std::optional<Fact> factOf(xcb_atom_t property, const X11Connection& connection);
    // Whether a fact tells which program the window belongs to.
    static bool isAboutProgram(Fact fact);

    xcb_window_t number() const { return m_number; }

    void mayHaveChanged(Fact fact) { m_unasked |= bit(fact); }

    bool hasQuestions() const { return m_unasked != 0; }

    // Sends for what may have changed and answers its sequence numbers to `sent`.
    void ask(X11Connection& connection, const std::function<void(Fact, unsigned sequence)>& sent);
    // `reply` is null when the server refused. Answers whether anything is different now.
    bool takeIn(Fact fact, const void* reply, const X11Connection& connection);

    // Whether everything has been answered once.
    bool isKnown() const { return m_unknown == 0; }

    // Absent when the window has none.
    const std::optional<QString>& title() const { return m_name ? m_name : m_plainName; }

    // The parts of WM_CLASS: the instance and the class.
    const QStringList& classes() const { return m_classes; }

    const X11ClientProcess& process() const { return m_process; }

    Kind kind() const { return m_kind; }

    bool isHidden() const { return m_isHidden; }

private:
    static constexpr quint32 bit(Fact fact) { return 1U << unsigned(fact); }

    static constexpr quint32 kEverything = (1U << unsigned(Fact::Count)) - 1;

    Kind kindFrom(const xcb_get_property_reply_t* reply, const X11Connection& connection) const;

    xcb_window_t m_number;
    quint32 m_unasked = kEverything;
    quint32 m_unknown = kEverything;
    std::optional<QString> m_name;
    std::optional<QString> m_plainName;
    QStringList m_classes;
    X11ClientProcess m_process;
    Kind m_kind = Kind::Ordinary;
    bool m_isHidden = false;
};
