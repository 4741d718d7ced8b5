// SPDX-License-Identifier: MIT
#include "platform/x11/X11Window.h"

#include "platform/foundation/text/CleanText.h"
#include "platform/x11/X11Text.h"

#include <xcb/res.h>

#include <algorithm>
#include <cstring>
#include <span>

namespace {

// In units of 4 bytes. Texts are cut to kLongestText characters, which have at most 4 bytes each.
constexpr quint32 kLongestTextProperty = quint32(kLongestText);
constexpr quint32 kLongestShortProperty = 256;

QByteArrayView bytesOf(const xcb_get_property_reply_t* reply) {
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply)), xcb_get_property_value_length(reply)};
}

std::span<const quint32> numbersOf(const xcb_get_property_reply_t* reply) {
    if (!reply || reply->format != 32)
        return {};
    return {static_cast<const quint32*>(xcb_get_property_value(reply)),
            std::size_t(xcb_get_property_value_length(reply)) / sizeof(quint32)};
}

std::optional<QString> textOf(const xcb_get_property_reply_t* reply, const X11Connection& connection) {
    if (!reply)
        return std::nullopt;
    // Any type but the two old ones means UTF-8 nowadays.
    X11Encoding encoding = X11Encoding::Utf8;
    if (reply->type == XCB_ATOM_STRING)
        encoding = X11Encoding::Latin1;
    else if (reply->type == connection.atom(X11Atom::CompoundText))
        encoding = X11Encoding::CompoundText;
    const QString text = x11Text(bytesOf(reply), encoding);
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

QStringList classesFrom(const xcb_get_property_reply_t* reply) {
    QStringList classes;
    const QByteArray bytes = bytesOf(reply).toByteArray();
    for (const QByteArray& part : bytes.split('\0')) {
        if (!part.isEmpty() && classes.size() < 2)
            classes << cleanTextFromUtf8(part);
    }
    return classes;
}

std::optional<quint32> connectedProcess(const void* reply) {
    if (!reply)
        return std::nullopt;
    const auto* ids = static_cast<const xcb_res_query_client_ids_reply_t*>(reply);
    for (auto id = xcb_res_query_client_ids_ids_iterator(ids); id.rem > 0;
         xcb_res_client_id_value_next(&id)) {
        // Nothing else was asked for, so every value is a process.
        if (id.data->length < sizeof(quint32))
            continue;
        if (const quint32 process = *xcb_res_client_id_value_value(id.data); process != 0)
            return process;
    }
    return std::nullopt;
}

template<class Value>
bool replace(Value& value, Value newValue) {
    if (value == newValue)
        return false;
    value = std::move(newValue);
    return true;
}

struct PropertyQuestion {
    xcb_atom_t property;
    quint32 length;
};

PropertyQuestion questionFor(X11Window::Fact fact, const X11Connection& connection) {
    switch (fact) {
    case X11Window::Fact::Name:
        return {connection.atom(X11Atom::NetWmName), kLongestTextProperty};
    case X11Window::Fact::PlainName:
        return {XCB_ATOM_WM_NAME, kLongestTextProperty};
    case X11Window::Fact::Class:
        return {XCB_ATOM_WM_CLASS, kLongestShortProperty};
    case X11Window::Fact::StatedProcess:
        return {connection.atom(X11Atom::NetWmPid), 1};
    case X11Window::Fact::Machine:
        return {XCB_ATOM_WM_CLIENT_MACHINE, kLongestShortProperty};
    case X11Window::Fact::Type:
        return {connection.atom(X11Atom::NetWmWindowType), kLongestShortProperty};
    case X11Window::Fact::State:
        return {connection.atom(X11Atom::NetWmState), kLongestShortProperty};
    case X11Window::Fact::TransientFor:
        return {XCB_ATOM_WM_TRANSIENT_FOR, 1};
    case X11Window::Fact::ConnectedProcess:
    case X11Window::Fact::Count:
        break;
    }
    return {XCB_ATOM_NONE, 0};
}

} // namespace

X11Window::X11Window(xcb_window_t number)
    : m_number(number) {}

std::optional<X11Window::Fact> X11Window::factOf(xcb_atom_t property, const X11Connection& connection) {
    for (unsigned i = 0; i < unsigned(Fact::Count); ++i) {
        if (property != XCB_ATOM_NONE && questionFor(Fact(i), connection).property == property)
            return Fact(i);
    }
    return std::nullopt;
}

bool X11Window::isAboutProgram(Fact fact) {
    return fact == Fact::Class || fact == Fact::StatedProcess || fact == Fact::ConnectedProcess ||
           fact == Fact::Machine;
}

void X11Window::ask(X11Connection& connection, const std::function<void(Fact, unsigned)>& sent) {
    const quint32 asked = std::exchange(m_unasked, 0);
    for (unsigned i = 0; i < unsigned(Fact::Count); ++i) {
        const auto fact = Fact(i);
        if ((asked & bit(fact)) == 0)
            continue;
        if (fact != Fact::ConnectedProcess) {
            const auto [property, length] = questionFor(fact, connection);
            sent(fact,
                 xcb_get_property(connection.xcb(), 0, m_number, property, XCB_ATOM_ANY, 0, length).sequence);
        } else if (connection.extension(xcb_res_id)) {
            const xcb_res_client_id_spec_t client{m_number, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
            sent(fact, xcb_res_query_client_ids(connection.xcb(), 1, &client).sequence);
        } else {
            m_unknown &= ~bit(fact);
        }
    }
}

bool X11Window::takeIn(Fact fact, const void* reply, const X11Connection& connection) {
    m_unknown &= ~bit(fact);
    m_process.client = m_number & connection.clientMask();
    const auto* property = static_cast<const xcb_get_property_reply_t*>(reply);
    switch (fact) {
    case Fact::Name:
        return replace(m_name, textOf(property, connection));
    case Fact::PlainName:
        return replace(m_plainName, textOf(property, connection));
    case Fact::Class:
        return replace(m_classes, classesFrom(property));
    case Fact::Machine:
        return replace(m_process.machine, bytesOf(property).toByteArray());
    case Fact::StatedProcess: {
        const auto numbers = numbersOf(property);
        const bool isStated = !numbers.empty() && numbers[0] != 0;
        return replace(m_process.stated, isStated ? std::optional(numbers[0]) : std::nullopt);
    }
    case Fact::ConnectedProcess:
        return replace(m_process.connected, connectedProcess(reply));
    case Fact::Type:
        return replace(m_kind, kindFrom(property, connection));
    case Fact::State: {
        const auto states = numbersOf(property);
        return replace(m_isHidden,
                       std::ranges::count(states, connection.atom(X11Atom::NetWmStateHidden)) > 0);
    }
    case Fact::TransientFor: {
        const auto windows = numbersOf(property);
        return replace(m_transientFor, windows.empty() ? xcb_window_t(0) : windows[0]);
    }
    case Fact::Count:
        break;
    }
    return false;
}

X11Window::Kind X11Window::kindFrom(const xcb_get_property_reply_t* reply,
                                    const X11Connection& connection) const {
    const auto types = numbersOf(reply);
    // EWMH: the first type that is understood counts; a toolkit's own type comes before a common one.
    for (const quint32 type : types) {
        for (const X11Atom ordinary : {X11Atom::NetWmWindowTypeNormal, X11Atom::NetWmWindowTypeDialog,
                                       X11Atom::NetWmWindowTypeUtility}) {
            if (type == connection.atom(ordinary))
                return Kind::Ordinary;
        }
        if (type == connection.atom(X11Atom::NetWmWindowTypeDock))
            return Kind::Other;
        if (type == connection.atom(X11Atom::NetWmWindowTypeDesktop))
            return Kind::Desktop;
    }
    return types.empty() ? Kind::Ordinary : Kind::Other;
}
