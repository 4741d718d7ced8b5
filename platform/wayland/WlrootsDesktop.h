// SPDX-License-Identifier: MIT
#pragma once

#include "platform/wayland/WaylandDesktop.h"

struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

// The windows of a compositor that offers wlr-foreign-toplevel-management, such as sway and others based on
// wlroots. The protocol tells titles, app ids and which window is active, but neither processes nor an order.
// So all windows with the same app id count as one program, and the window that was activated last is in
// front.
class WlrootsDesktop : public WaylandDesktop {
public:
    // `display` is a socket's name or path; empty for the one in the environment. The first windows are known
    // when this returns. The other arguments outlive the desktop.
    static Result<std::unique_ptr<WlrootsDesktop>> open(const QByteArray& display, RunLoop& runLoop,
                                                        SystemLog& log, DesktopEntries& entries);
    ~WlrootsDesktop() override;

    QString describe() const override;

private:
    struct Destroy {
        void operator()(zwlr_foreign_toplevel_handle_v1* handle) const;
        void operator()(zwlr_foreign_toplevel_manager_v1* manager) const;
    };

    // A window as its events since the last "done" describe it.
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

    // The handlers of events, for libwayland.
    struct Events;

    std::unique_ptr<zwlr_foreign_toplevel_manager_v1, Destroy> m_manager;
    std::vector<std::unique_ptr<Toplevel>> m_toplevels;
};
