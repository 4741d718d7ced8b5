// SPDX-License-Identifier: MIT
#pragma once

#include "platform/wayland/WaylandDesktop.h"

struct org_kde_plasma_window;
struct org_kde_plasma_window_management;

// The windows of a Plasma desktop, as KWin reports them: titles, app ids, processes, which one is active, and
// their order. KWin reports only to programs whose installed desktop entry asks for it.
class PlasmaDesktop : public WaylandDesktop {
public:
    // `display` is a socket's name or path; empty for the one in the environment. The first windows are known
    // when this returns. The text of a Refused failure tells the user what can be done. The other arguments
    // outlive the desktop.
    static Result<std::unique_ptr<PlasmaDesktop>> open(const QByteArray& display, RunLoop& runLoop,
                                                       SystemLog& log, DesktopEntries& entries);
    ~PlasmaDesktop() override;

    QString describe() const override;

private:
    struct Destroy {
        void operator()(org_kde_plasma_window* window) const;
        void operator()(org_kde_plasma_window_management* management) const;
    };

    struct PlasmaWindow {
        PlasmaDesktop& desktop;
        QByteArray uuid;
        std::unique_ptr<org_kde_plasma_window, Destroy> handle;
        std::int64_t number;
        Window window;
        bool keepsOutOfTaskBar = false;
        // All its facts have been reported once.
        bool isKnown = false;
    };

    PlasmaDesktop(std::unique_ptr<WaylandConnection> connection, RunLoop& runLoop, SystemLog& log,
                  DesktopEntries& entries);
    bool bind() override;
    void unbind() override;
    void add(const char* uuid);
    void apply(PlasmaWindow& window);
    void remove(const PlasmaWindow& window);
    void applyOrder();

    // The handlers of events, for libwayland.
    struct Events;

    std::unique_ptr<org_kde_plasma_window_management, Destroy> m_management;
    std::vector<std::unique_ptr<PlasmaWindow>> m_plasmaWindows;
    // KWin's names of the windows, back to front.
    QList<QByteArray> m_order;
};
