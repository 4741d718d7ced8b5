// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

// Decides what closing a window of ours does. If a tray icon leads back to it, it is closed; if not, it is
// minimised, because a program that counts must be found. When the icon goes, a closed window comes back
// minimised; when the icon returns, it is closed again. Main thread only.
class ClosingWindow : public QObject {
    Q_OBJECT
public:
    enum class WayBack {
        // An icon may appear soon.
        Unknown,
        Icon,
        None,
    };

    // A window that is not shown now counts as closed; it must outlive this object. `keptInTaskBar` is called
    // when the user has closed the window and it is certain that nothing else leads back to it.
    ClosingWindow(QWidget& window, std::function<void()> keptInTaskBar);

    void setWayBack(WayBack wayBack);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool close(QEvent& event);
    void settle();

    QWidget& m_window;
    std::function<void()> m_keptInTaskBar;
    WayBack m_wayBack = WayBack::Unknown;
    // The window was closed and not opened since.
    bool m_isClosed;
    bool m_isToBeSaid = false;
    bool m_isQuitting = false;
};
