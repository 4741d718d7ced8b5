// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

// What becomes of a window of ours when it is closed. Where an icon leads back to it, it goes; where none does, it is
// minimised, because a program that counts must be found. It follows the icon: a closed window has an entry in the task bar
// while there is none. Main thread only.
class ClosingWindow : public QObject {
    Q_OBJECT
public:
    enum class WayBack {
        // There may soon be an icon.
        Unknown,
        Icon,
        None,
    };

    // A window that is not on the screen now counts as closed. It outlives this. `keptInTaskBar` is called when somebody has
    // closed the window and it is known that nothing else leads back to it.
    ClosingWindow(QWidget& window, std::function<void()> keptInTaskBar);

    void setWayBack(WayBack wayBack);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool close(QEvent& event);
    void settle();

    QWidget& m_window;
    std::function<void()> m_keptInTaskBar;
    WayBack m_wayBack = WayBack::Unknown;
    // Nobody has brought it back since.
    bool m_isClosed;
    bool m_isToBeSaid = false;
    bool m_isQuitting = false;
};
