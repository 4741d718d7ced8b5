// SPDX-License-Identifier: MIT
#include "interface/setup/WelcomePage.h"

#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QFontInfo>
#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int kMargin = 32;
constexpr int kAir = 18;
// Lines that are no longer than people like to read.
constexpr int kWidest = 560;
constexpr double kTitleSize = 1.6;

} // namespace

QString WelcomePage::text() {
    return QStringList{
        localized(
            "While its timer runs, Ticklog notes which program and which of its windows, by its title, is "
            "in front, and for how long."),
        localized(
            "It notes no keys, no pictures and nothing of what is in a window; time without input goes to "
            "Idle."),
        localized("The record stays on this computer, in files that only you can read, and is sent nowhere."),
        localized("You can hide titles by rules, and delete or forget whatever was recorded, at any time.")}
        .join(QStringLiteral("\n\n"));
}

WelcomePage::WelcomePage(QWidget* parent)
    : QScrollArea(parent)
    , m_loginBox(
          named(new QCheckBox(localized("Start Ticklog when I log in")), QStringLiteral("welcomeLogin")))
    , m_startButton(named(new QPushButton(localized("Start the Timer")), QStringLiteral("welcomeStart"))) {
    setObjectName(QStringLiteral("welcomePage"));
    setAccessibleName(localized("Welcome to Ticklog"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    auto* title = named(new PlainLabel(accessibleName()), QStringLiteral("welcomeTitle"));
    QFont large = title->font();
    large.setPixelSize(int(std::lround(QFontInfo(large).pixelSize() * kTitleSize)));
    title->setFont(large);
    title->setWordWrap(true);
    auto* text = named(new PlainLabel(WelcomePage::text()), QStringLiteral("welcomeText"));
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // So that the keyboard reaches it, and what reads aloud with it.
    text->setFocusPolicy(Qt::StrongFocus);
    auto* column = new QWidget;
    column->setMaximumWidth(kWidest);
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(kAir);
    for (QWidget* row : {static_cast<QWidget*>(title), static_cast<QWidget*>(text),
                         static_cast<QWidget*>(m_loginBox), makeButtons()})
        rows->addWidget(row);
    auto* page = new QWidget;
    auto* places = new QGridLayout(page);
    places->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    places->setRowStretch(0, 1);
    places->setRowStretch(2, 2);
    places->setColumnStretch(0, 1);
    places->setColumnStretch(1, 100);
    places->setColumnStretch(2, 1);
    places->addWidget(column, 1, 1);
    setWidget(page);
    setTabOrder(text, m_loginBox);
    setTabOrder(m_loginBox, m_startButton);
}

QWidget* WelcomePage::makeButtons() {
    auto* titles = named(new QPushButton(localized("Hide Titles…")), QStringLiteral("welcomeTitles"));
    titles->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* later = named(new QPushButton(localized("Not Yet")), QStringLiteral("welcomeLater"));
    m_startButton->setAutoDefault(true);
    m_startButton->setAccessibleDescription(text());
    connect(m_startButton, &QPushButton::clicked, this, &WelcomePage::startWanted);
    connect(titles, &QPushButton::clicked, this, &WelcomePage::titlesWanted);
    connect(later, &QPushButton::clicked, this, &WelcomePage::endWanted);
    auto* rows = new QWidget;
    auto* places = new QGridLayout(rows);
    places->setContentsMargins(0, 0, 0, 0);
    places->setVerticalSpacing(kAir);
    places->setColumnStretch(2, 1);
    places->addWidget(titles, 0, 0, 1, 3);
    places->addWidget(m_startButton, 1, 0);
    places->addWidget(later, 1, 1);
    return rows;
}
