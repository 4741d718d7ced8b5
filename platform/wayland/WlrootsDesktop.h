// SPDX-License-Identifier: MIT
#pragma once

#include "platform/wayland/WaylandDesktop.h"

struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

// The windows of a compositor that offers wlr-foreign-toplevel-management: sway and others that stand on wlroots. The
// protocol tells titles, app ids and which window is activated, but neither processes nor an order: all windows of an
// app id are taken for one program's, and the window that was activated last is in front.
class WlrootsDesktop : public WaylandDesktop {
public:
    // `display` is a socket's name or path; empty for that of the environment. The first windows are known when it
    // returns. The others outlive the desktop.
    static Result<std::unique_ptr<WlrootsDesktop>> open(const QByteArray& display, RunLoop& runLoop,
                                                        SystemLog& log, DesktopEntries& entries);
    ~WlrootsDesktop() override;

    QString describe() const override;

private:
    struct Destroy {
        void operator()(zwlr_foreign_toplevel_handle_v1* handle) const;
        void operator()(zwlr_foreign_toplevel_manager_v1* manager) const;
    };

    // A window as the events since the last "done" have it.
    struct Toplevel {
        WlrootsDesktop& desktop;
        std::unique_ptr<zwlr_foreign_toplevel_handle_v1, Destroy> handle;
        std::int64_t number;
        Window pending;
    };

    WlrootsDesktop(std::unique_ptr<WaylandConnection> connection, RunLoop& runLoop, SystemLog& log,
                   DesktopEntries& entries);
    bool bind() override;
    void unbind() override;
    void add(zwlr_foreign_toplevel_handle_v1* handle);

    // What the events mean, for libwayland.
    struct Events;

    std::unique_ptr<zwlr_foreign_toplevel_manager_v1, Destroy> m_manager;
    std::vector<std::unique_ptr<Toplevel>> m_toplevels;
};
