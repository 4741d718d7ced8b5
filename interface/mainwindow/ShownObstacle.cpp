// SPDX-License-Identifier: MIT
#include "interface/mainwindow/ShownObstacle.h"

#include "Classes/common/AccountTrouble.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/shell/AppPresence.h"

namespace {

constexpr std::chrono::seconds kBetweenLooks{1};

} // namespace

ShownObstacle::ShownObstacle(MainWindow& window, AppPresence& presence, AccountTrouble& trouble,
                             Platform& platform)
    : m_window(window)
    , m_presence(presence)
    , m_trouble(trouble)
    , m_platform(platform)
    , m_troubles(trouble.observe(kAccountTroubleKey, [this](const ObservedChange&) { show(); })) {
    QObject::connect(&m_window.obstacleBar(), &ObstacleBar::acknowledged, &m_receiver,
                     [this] { m_trouble.acknowledge(); });
}

void ShownObstacle::show() {
    const QString obstacle = m_platform.frontApplication.obstacle();
    m_presence.showObstacle(obstacle);
    m_presence.showTrouble(m_trouble.text());
    if (!m_window.isSeen() && !m_window.isHistorySeen())
        return;
    QStringList lines{obstacle, m_trouble.text()};
    lines.removeAll(QString());
    m_window.obstacleBar().showObstacle(lines.join(u'\n'));
    m_window.obstacleBar().offerAcknowledgement(m_trouble.canBeAcknowledged());
    if (obstacle.isEmpty())
        m_nextLook = nullptr;
    else if (!m_nextLook)
        m_nextLook = m_platform.runLoop.scheduleOnce(kBetweenLooks, [this] {
            m_nextLook = nullptr;
            show();
        });
}
