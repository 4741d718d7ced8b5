// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11ClientProcess.h"
#include "platform/x11/X11Connection.h"

#include <QStringList>

// What one client's window says about itself. Asks for facts that may have changed and stores the answers;
// draws no conclusions about the desktop.
class X11Window {
public:
    enum class Fact {
        Name,
        PlainName,
        Class,
        StatedProcess,
        ConnectedProcess,
        Machine,
        Type,
        State,
        TransientFor,
        Count
    };
    enum class Kind { Ordinary, Desktop, Other };

    // Nothing is known yet, so all facts are to be asked for.
    explicit X11Window(xcb_window_t number);

    // The fact that a property holds; absent if the property does not matter.
    static std::optional<Fact> factOf(xcb_atom_t property, const X11Connection& connection);
    // Whether a fact concerns the window's program.
    static bool isAboutProgram(Fact fact);

    xcb_window_t number() const { return m_number; }

    void mayHaveChanged(Fact fact) { m_unasked |= bit(fact); }

    bool hasQuestions() const { return m_unasked != 0; }

    // Asks for all facts that may have changed, and calls `sent` with each request's sequence number.
    void ask(X11Connection& connection, const std::function<void(Fact, unsigned sequence)>& sent);
    // `reply` is null if the server refused. Answers whether something has changed.
    bool takeIn(Fact fact, const void* reply, const X11Connection& connection);

    // Whether every fact has been answered once.
    bool isKnown() const { return m_unknown == 0; }

    // Absent if the window has no title.
    const std::optional<QString>& title() const { return m_name ? m_name : m_plainName; }

    // The parts of WM_CLASS: the instance and the class.
    const QStringList& classes() const { return m_classes; }

    const X11ClientProcess& process() const { return m_process; }

    // WM_TRANSIENT_FOR: the window whose dialogue this is; 0 if it does not say. It may be any number.
    xcb_window_t transientFor() const { return m_transientFor; }

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
    xcb_window_t m_transientFor = 0;
    Kind m_kind = Kind::Ordinary;
    bool m_isHidden = false;
};
