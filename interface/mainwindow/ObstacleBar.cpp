// SPDX-License-Identifier: MIT
#include "interface/mainwindow/ObstacleBar.h"

#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace {

constexpr int kMargin = 12;
constexpr int kAir = 8;

} // namespace

ObstacleBar::ObstacleBar(QWidget* parent)
    : QFrame(parent)
    , m_text(named(new PlainLabel, QStringLiteral("obstacleText")))
    , m_remedyButton(named(new QPushButton(localized("Set Up...")), QStringLiteral("obstacleRemedy")))
    , m_acknowledgeButton(
          named(new QPushButton(localized("Understood")), QStringLiteral("obstacleAcknowledge"))) {
    // What only holds something is not spoken of.
    speakAs(*this, QAccessible::Client);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    auto* icon = named(new PlainLabel, QStringLiteral("obstacleIcon"));
    icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(size, size), devicePixelRatioF()));
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* cells = new QHBoxLayout(this);
    cells->setContentsMargins(kMargin, kAir, kMargin, kAir);
    cells->setSpacing(kAir);
    cells->addWidget(icon, 0, Qt::AlignTop);
    cells->addWidget(m_text, 1);
    cells->addWidget(m_remedyButton, 0, Qt::AlignTop);
    cells->addWidget(m_acknowledgeButton, 0, Qt::AlignTop);
    connect(m_remedyButton, &QPushButton::clicked, this, &ObstacleBar::remedyWanted);
    connect(m_acknowledgeButton, &QPushButton::clicked, this, &ObstacleBar::acknowledged);
    m_remedyButton->hide();
    m_acknowledgeButton->hide();
    hide();
}

void ObstacleBar::offerRemedy(bool isOffered) {
    m_remedyButton->setVisible(isOffered);
}

void ObstacleBar::offerAcknowledgement(bool isOffered) {
    m_acknowledgeButton->setVisible(isOffered);
}

void ObstacleBar::showObstacle(const QString& text) {
    if (m_text->text() == text)
        return;
    m_text->setText(text);
    setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
