// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <array>

// Names for which the X server gives us numbers. In the order of kX11AtomNames.
enum class X11Atom {
    Manager,
    NetActiveWindow,
    NetClientList,
    NetClientListStacking,
    NetSupported,
    NetSupportingWmCheck,
    NetSystemTrayS0,
    NetWmName,
    NetWmPid,
    NetWmState,
    NetWmStateHidden,
    NetWmStateSkipPager,
    NetWmStateSkipTaskbar,
    NetWmWindowType,
    NetWmWindowTypeDesktop,
    NetWmWindowTypeDialog,
    NetWmWindowTypeDock,
    NetWmWindowTypeNormal,
    NetWmWindowTypeUtility,
    Utf8String,
    CompoundText,
    WmState,
    Count,
};

inline constexpr std::array<const char*, std::size_t(X11Atom::Count)> kX11AtomNames{
    "MANAGER",
    "_NET_ACTIVE_WINDOW",
    "_NET_CLIENT_LIST",
    "_NET_CLIENT_LIST_STACKING",
    "_NET_SUPPORTED",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_SYSTEM_TRAY_S0",
    "_NET_WM_NAME",
    "_NET_WM_PID",
    "_NET_WM_STATE",
    "_NET_WM_STATE_HIDDEN",
    "_NET_WM_STATE_SKIP_PAGER",
    "_NET_WM_STATE_SKIP_TASKBAR",
    "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_TYPE_DESKTOP",
    "_NET_WM_WINDOW_TYPE_DIALOG",
    "_NET_WM_WINDOW_TYPE_DOCK",
    "_NET_WM_WINDOW_TYPE_NORMAL",
    "_NET_WM_WINDOW_TYPE_UTILITY",
    "UTF8_STRING",
    "COMPOUND_TEXT",
    "WM_STATE",
};

// The numbers on one server.
class X11Atoms {
public:
    xcb_atom_t operator[](X11Atom atom) const { return m_atoms[std::size_t(atom)]; }

    void set(std::size_t index, xcb_atom_t atom) { m_atoms[index] = atom; }

private:
    std::array<xcb_atom_t, std::size_t(X11Atom::Count)> m_atoms{};
};
