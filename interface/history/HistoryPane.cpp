// SPDX-License-Identifier: MIT
#include "interface/history/HistoryPane.h"

#include "interface/history/DayPicture.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/PeriodPicture.h"
#include "interface/history/RangeBar.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/shell/DividingLine.h"
#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QFrame>
#include <QHeaderView>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

// In pixels: the bars, and some rows. With less than this beside the picture, the rows alone are shown.
constexpr int kRoomForRows = 220;
constexpr int kNoteMargin = 12;

} // namespace

HistoryPane::HistoryPane(const HistoryActions& actions, QWidget* parent)
    : QWidget(parent)
    , m_rangeBar(named(new RangeBar(actions), QStringLiteral("rangeBar")))
    , m_pictures(named(new QStackedWidget, QStringLiteral("historyPictures")))
    , m_note(named(new PlainLabel, QStringLiteral("historyNote")))
    , m_outline(named(new HistoryOutline, QStringLiteral("historyOutline"), localized("History")))
    , m_sumBar(named(new SumBar, QStringLiteral("historySumBar"))) {
    // What only holds something is not spoken of.
    speakAs(*m_pictures, QAccessible::Client);
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
    m_note->setContentsMargins(kNoteMargin, 0, kNoteMargin, kNoteMargin / 2);
    m_note->setWordWrap(true);
    m_note->hide();
    rows->addWidget(m_note);
    rows->addWidget(dividingLine());
    rows->addWidget(m_outline, 1);
    rows->addWidget(dividingLine());
    rows->addWidget(m_sumBar);
}

void HistoryPane::setColors(const PictureColors& colors) {
    m_dayPicture = new DayPicture(colors);
    m_periodPicture = new PeriodPicture(colors);
    // They bring what assistive programs call them.
    m_dayPicture->setObjectName(QStringLiteral("dayPicture"));
    m_periodPicture->setObjectName(QStringLiteral("periodPicture"));
    m_pictures->addWidget(m_dayPicture);
    m_pictures->addWidget(m_periodPicture);
}

void HistoryPane::showPicture(QWidget& picture) {
    m_pictures->setCurrentWidget(&picture);
    fitPicture();
}

void HistoryPane::showNote(const QString& text) {
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
}

void HistoryPane::fitPicture() {
    const QWidget* picture = m_pictures->currentWidget();
    if (!picture)
        return;
    // Otherwise the higher picture would make room for itself.
    m_pictures->setFixedHeight(picture->sizeHint().height());
    m_pictures->setVisible(height() >= m_pictures->height() + kRoomForRows);
}

void HistoryPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitPicture();
}
