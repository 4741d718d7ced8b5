// SPDX-License-Identifier: MIT
#include "interface/history/RangeBar.h"

#include "interface/history/HistoryActions.h"
#include "interface/history/PictureTexts.h"
#include "interface/shell/ButtonText.h"
#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr int kBetweenBars = 8;

QDateEdit* dateField(const QString& name, const QString& label, QDate date) {
    auto* field = named(new QDateEdit(date), name, label);
    field->setCalendarPopup(true);
    return field;
}

// "June 2026", and "2026年6月" where the year comes first.
QString monthOf(QDate day) {
    const QLocale locale;
    const QString format = locale.dateFormat(QLocale::LongFormat);
    if (format.startsWith(u'y'))
        return locale.toString(day, format.left(format.indexOf(u'd')).trimmed());
    return locale.standaloneMonthName(day.month()) + u' ' + QString::number(day.year());
}

} // namespace

RangeBar::RangeBar(const HistoryActions& actions, QWidget* parent)
    : QWidget(parent)
    , m_steps(makeBar(QStringLiteral("historySteps"), localized("Range")))
    , m_kinds(makeBar(QStringLiteral("historyKinds"), localized("Length of the range")))
    , m_by(makeBar(QStringLiteral("historyBy"), localized("Grouping")))
    , m_title(named(new QToolButton, QStringLiteral("historyTitle")))
    , m_rows(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    QFont strong = m_title->font();
    strong.setBold(true);
    m_title->setFont(strong);
    m_title->setAutoRaise(true);
    m_title->setFocusPolicy(Qt::TabFocus);
    m_title->setToolTip(localized("Opens a calendar"));
    connect(m_title, &QToolButton::clicked, this, &RangeBar::openCalendar);
    addStep(actions.back, isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    addButton(*m_steps, actions.today);
    addStep(actions.forward, isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
    m_steps->addWidget(m_title);
    for (QAction* kind : actions.kinds)
        addButton(*m_kinds, kind);
    for (QAction* by : {actions.byProgram, actions.byProject})
        addButton(*m_by, by);
    auto* choices = new QHBoxLayout;
    choices->setSpacing(kBetweenBars);
    choices->addWidget(m_kinds, 1);
    choices->addWidget(m_by);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(0);
    m_rows->addWidget(m_steps, 1);
    m_rows->addLayout(choices);
}

// What has no room in the window moves into a menu at a bar's end.
QToolBar* RangeBar::makeBar(const QString& name, const QString& spoken) {
    auto* bar = named(new QToolBar, name, spoken);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return bar;
}

QToolButton& RangeBar::addButton(QToolBar& bar, QAction* action) {
    bar.addAction(action);
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    named(button, action->objectName() + QStringLiteral("Button"), buttonText(action->text()));
    button->setFocusPolicy(Qt::TabFocus);
    return *button;
}

void RangeBar::addStep(QAction* action, Qt::ArrowType arrow) {
    QToolButton& button = addButton(*m_steps, action);
    button.setArrowType(arrow);
    button.setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void RangeBar::show(const CalendarRange& range, const QString& piece) {
    m_range = range;
    const QString more = piece.isEmpty() ? QString() : QStringLiteral(", ") + piece;
    m_longTitle = titleOf(range) + more;
    m_shortTitle = shortTitleOf(range) + more;
    m_title->setAccessibleName(m_longTitle);
    fit();
}

void RangeBar::fit() {
    const auto widthWith = [this](const QString& title) {
        if (m_title->text() != title)
            m_title->setText(title);
        m_steps->layout()->invalidate();
        return m_steps->sizeHint().width();
    };
    const int choices = m_kinds->sizeHint().width() + kBetweenBars + m_by->sizeHint().width();
    // The long title comes before the single row: the second row costs less than a date that must be guessed at.
    const bool isOneRow = widthWith(m_longTitle) + choices <= width();
    m_rows->setDirection(isOneRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    if (!isOneRow && widthWith(m_longTitle) > width())
        widthWith(m_shortTitle);
}

void RangeBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fit();
}

void RangeBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fit();
}

QString RangeBar::titleOf(const CalendarRange& range) {
    const QLocale locale;
    switch (range.kind()) {
    case CalendarRange::Kind::Day:
        return locale.toString(range.first(), QLocale::LongFormat);
    case CalendarRange::Kind::Month:
        return monthOf(range.first());
    case CalendarRange::Kind::Year:
        return QString::number(range.first().year());
    default:
        return range.days() == 1 ? locale.toString(range.first(), QLocale::LongFormat)
                                 : PictureTexts::days(range.first(), range.last());
    }
}

QString RangeBar::shortTitleOf(const CalendarRange& range) {
    if (range.days() != 1)
        return titleOf(range);
    const QLocale locale;
    return locale.dayName(range.first().dayOfWeek(), QLocale::ShortFormat) + u' ' +
           locale.toString(range.first(), QLocale::ShortFormat);
}

void RangeBar::openCalendar() {
    if (!m_range)
        return;
    // Not a menu: that would take Tab and the arrows for itself.
    auto* popup = new QFrame(this, Qt::Popup);
    speakAs(*popup, QAccessible::Dialog);
    named(popup, QStringLiteral("historyCalendar"), localized("Calendar"));
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Raised));
    auto* rows = new QVBoxLayout(popup);
    QWidget* beginning = nullptr;
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
        beginning = first;
        first->setSelectedSection(QDateTimeEdit::DaySection);
        for (const int key : {Qt::Key_Return, Qt::Key_Enter})
            connect(new QShortcut(key, popup), &QShortcut::activated, show, &QPushButton::click);
        connect(show, &QPushButton::clicked, this, [this, popup, first, last] {
            popup->close();
            Q_EMIT spanChosen(first->date(), last->date());
        });
    } else {
        auto* calendar = named(new QCalendarWidget, QStringLiteral("historyDays"), localized("Calendar"));
        calendar->setSelectedDate(m_range->first());
        rows->addWidget(calendar);
        beginning = calendar;
        connect(calendar, &QCalendarWidget::clicked, this, [this, popup](QDate day) {
            popup->close();
            Q_EMIT dayChosen(day);
        });
        connect(calendar, &QCalendarWidget::activated, this, [this, popup](QDate day) {
            popup->close();
            Q_EMIT dayChosen(day);
        });
    }
    popup->adjustSize();
    const QRect room = screen()->availableGeometry();
    const QPoint place = m_title->mapToGlobal(QPoint(0, m_title->height()));
    popup->move(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - popup->width())),
                std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() - popup->height())));
    popup->show();
    beginning->setFocus(Qt::PopupFocusReason);
}
