// SPDX-License-Identifier: MIT
#include "interface/history/RangeBar.h"

#include "interface/history/HistoryActions.h"
#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <QWidgetAction>

namespace {

QDateEdit* dateField(const QString& name, const QString& label, QDate date) {
    auto* field = named(new QDateEdit(date), name);
    field->setAccessibleName(label);
    field->setCalendarPopup(true);
    return field;
}

// "16 – 22 November 2026", as short as the two days allow.
QString spanTitle(QDate first, QDate last) {
    const QLocale locale;
    return locale.toString(first, QLocale::ShortFormat) + QStringLiteral(" – ") +
           locale.toString(last, QLocale::ShortFormat);
}

} // namespace

RangeBar::RangeBar(const HistoryActions& actions, QWidget* parent)
    : QWidget(parent)
    , m_buttons(named(new QToolBar, QStringLiteral("historyToolBar")))
    , m_title(named(new QToolButton, QStringLiteral("historyTitle"))) {
    QFont strong = m_title->font();
    strong.setBold(true);
    m_title->setFont(strong);
    m_title->setAutoRaise(true);
    m_title->setFocusPolicy(Qt::TabFocus);
    m_title->setToolTip(localized("Opens a calendar"));
    connect(m_title, &QToolButton::clicked, this, &RangeBar::openCalendar);
    auto* room = new QWidget;
    room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    // What has no room moves into a menu at the bar's end.
    m_buttons->setToolButtonStyle(Qt::ToolButtonTextOnly);
    addStep(actions.back, isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    addButton(actions.today);
    addStep(actions.forward, isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
    m_buttons->addWidget(m_title);
    m_buttons->addWidget(room);
    for (QAction* kind : actions.kinds)
        addButton(kind);
    m_buttons->addSeparator();
    for (QAction* by : {actions.byProgram, actions.byProject})
        addButton(by);
    auto* cells = new QHBoxLayout(this);
    cells->setContentsMargins(0, 0, 0, 0);
    cells->addWidget(m_buttons);
}

QToolButton& RangeBar::addButton(QAction* action) {
    m_buttons->addAction(action);
    auto* button = qobject_cast<QToolButton*>(m_buttons->widgetForAction(action));
    named(button, action->objectName() + QStringLiteral("Button"));
    button->setAccessibleName(action->iconText());
    button->setFocusPolicy(Qt::TabFocus);
    return *button;
}

void RangeBar::addStep(QAction* action, Qt::ArrowType arrow) {
    QToolButton& button = addButton(action);
    button.setArrowType(arrow);
    button.setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void RangeBar::show(const CalendarRange& range, const QString& piece) {
    m_range = range;
    m_title->setText(piece.isEmpty() ? titleOf(range) : titleOf(range) + QStringLiteral(", ") + piece);
    m_title->setAccessibleName(m_title->text());
}

QString RangeBar::titleOf(const CalendarRange& range) {
    const QLocale locale;
    switch (range.kind()) {
    case CalendarRange::Kind::Day:
        return locale.toString(range.first(), QLocale::LongFormat);
    case CalendarRange::Kind::Month:
        return locale.standaloneMonthName(range.first().month()) + u' ' +
               QString::number(range.first().year());
    case CalendarRange::Kind::Year:
        return QString::number(range.first().year());
    default:
        return range.days() == 1 ? locale.toString(range.first(), QLocale::LongFormat)
                                 : spanTitle(range.first(), range.last());
    }
}

void RangeBar::openCalendar() {
    if (!m_range)
        return;
    auto* popup = named(new QMenu(this), QStringLiteral("historyCalendar"));
    popup->setAttribute(Qt::WA_DeleteOnClose);
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    if (m_range->kind() == CalendarRange::Kind::Span) {
        auto* first = dateField(QStringLiteral("historyFirstDay"), localized("From"), m_range->first());
        auto* last = dateField(QStringLiteral("historyLastDay"), localized("To"), m_range->last());
        auto* cells = new QHBoxLayout;
        for (QDateEdit* field : {first, last}) {
            auto* label = new PlainLabel(field->accessibleName());
            label->setBuddy(field);
            cells->addWidget(label);
            cells->addWidget(field);
        }
        rows->addLayout(cells);
        auto* show = named(new QPushButton(localized("Show")), QStringLiteral("historyShowSpan"));
        rows->addWidget(show);
        connect(show, &QPushButton::clicked, this, [this, popup, first, last] {
            popup->close();
            Q_EMIT spanChosen(first->date(), last->date());
        });
    } else {
        auto* calendar = named(new QCalendarWidget, QStringLiteral("historyDays"));
        calendar->setSelectedDate(m_range->first());
        rows->addWidget(calendar);
        connect(calendar, &QCalendarWidget::clicked, this, [this, popup](QDate day) {
            popup->close();
            Q_EMIT dayChosen(day);
        });
        connect(calendar, &QCalendarWidget::activated, this, [this, popup](QDate day) {
            popup->close();
            Q_EMIT dayChosen(day);
        });
    }
    auto* action = new QWidgetAction(popup);
    action->setDefaultWidget(page);
    popup->addAction(action);
    popup->popup(m_title->mapToGlobal(QPoint(0, m_title->height())));
    page->setFocus();
}
