// SPDX-License-Identifier: MIT
#include "interface/mainwindow/FirstStart.h"

#include "Classes/common/Settings.h"
#include "interface/mainwindow/TKController.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/setup/WelcomePage.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalBlocker>

FirstStart::FirstStart(TKController& controller, UserDefaults& defaults, const LoginItem& loginItem,
                       const std::function<void()>& showTitles)
    : m_controller(controller) {
    if (defaults.boolForKey(kWelcomed) || controller.timer().isRunning())
        return;
    const auto seen = [this, &defaults](bool isSeen) {
        if (isSeen && m_page)
            defaults.setObject(kWelcomed, true);
    };
    m_page = new WelcomePage;
    controller.window().showInsteadOfTimers(m_page);
    m_page->startButton().setFocus();
    m_page->loginBox().setChecked(loginItem.isEnabled());
    QObject::connect(&m_page->loginBox(), &QCheckBox::toggled, &m_receiver, [this, loginItem](bool isWanted) {
        loginItem.setEnabled(isWanted);
        // The desktop may have refused.
        const QSignalBlocker quiet(m_page->loginBox());
        m_page->loginBox().setChecked(loginItem.isEnabled());
    });
    QObject::connect(m_page, &WelcomePage::startWanted, &m_receiver, [this] {
        m_controller.timer().startTimer();
        end();
    });
    QObject::connect(m_page, &WelcomePage::titlesWanted, &m_receiver, showTitles);
    QObject::connect(m_page, &WelcomePage::endWanted, &m_receiver, [this] { end(); });
    QObject::connect(&controller.window(), &MainWindow::seenChanged, &m_receiver, seen);
    seen(controller.window().isSeen());
    // Wherever the timer is started: the command then offers to pause it.
    QObject::connect(controller.window().actions().toggleCounting, &QAction::changed, &m_receiver, [this] {
        if (m_controller.timer().isRunning())
            end();
    });
}

FirstStart::~FirstStart() = default;

void FirstStart::end() {
    if (!m_page)
        return;
    m_controller.window().showInsteadOfTimers(nullptr);
    // It may be the one that is telling.
    m_page->deleteLater();
    m_page.clear();
}
