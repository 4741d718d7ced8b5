// SPDX-License-Identifier: MIT
#include "interface/history/HistoryPane.h"

#include "interface/history/HistoryOutline.h"
#include "interface/history/RangeBar.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/shell/Named.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QFrame>
#include <QHeaderView>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

QFrame* line() {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

} // namespace

HistoryPane::HistoryPane(const HistoryActions& actions, QWidget* parent)
    : QWidget(parent)
    , m_rangeBar(named(new RangeBar(actions), QStringLiteral("rangeBar")))
    , m_pictures(named(new QStackedWidget, QStringLiteral("historyPictures")))
    , m_outline(named(new HistoryOutline, QStringLiteral("historyOutline")))
    , m_sumBar(named(new SumBar, QStringLiteral("historySumBar"))) {
    m_outline->setAccessibleName(localized("History"));
    named(m_outline->header(), QStringLiteral("historyOutlineHeader"));
    // The timers have a sum bar with these names.
    for (QWidget* part : m_sumBar->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (!part->objectName().isEmpty())
            named(part, QStringLiteral("history ") + part->objectName());
    m_pictures->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_rangeBar);
    rows->addWidget(m_pictures);
    rows->addWidget(line());
    rows->addWidget(m_outline, 1);
    rows->addWidget(line());
    rows->addWidget(m_sumBar);
}
