// SPDX-License-Identifier: MIT
#include "interface/absences/AbsenceBar.h"

#include "interface/labels/ColorDot.h"
#include "interface/shell/PlainText.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStringListModel>
#include <QStyle>
#include <QToolButton>

namespace {

constexpr int kMargin = 12;
constexpr int kAir = 8;
// With less, the buttons come below the field.
constexpr int kRoomForOneLine = 620;
constexpr int kMostRows = 3;
// As wide as a name that says something.
constexpr int kNameWidth = 120;
constexpr int kLettersOfProject = 8;
constexpr int kLongestName = 400;
// How much of the colour of what is chosen is in the bar's.
constexpr double kTint = 0.15;

template<class Control>
Control* called(Control* control, const char* objectName, const QString& spoken) {
    control->setObjectName(QLatin1String(objectName));
    control->setAccessibleName(spoken);
    return control;
}

QIcon dotOf(const QColor& color, const QWidget& widget) {
    const int size = widget.style()->pixelMetric(QStyle::PM_SmallIconSize);
    QPixmap dot(QSize(size, size) * widget.devicePixelRatioF());
    dot.setDevicePixelRatio(widget.devicePixelRatioF());
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    const qreal inset = size / 5.0;
    drawColorDot(painter, QRectF(0, 0, size, size).adjusted(inset, inset, -inset, -inset), color, 1);
    return dot;
}

} // namespace

AbsenceBar::AbsenceBar(QWidget* parent)
    : QFrame(parent)
    , m_text(called(new PlainLabel, "absenceText", localized("Absences")))
    , m_dismiss(called(new QToolButton, "dismissAbsences", localized("Do not ask about these absences")))
    , m_list(called(new QListWidget, "absences", localized("Absences")))
    , m_name(called(new QLineEdit, "absenceName", localized("What the absence was")))
    , m_names(new QStringListModel(this))
    , m_project(called(new QComboBox, "absenceProject", localized("Project of the absence")))
    , m_book(called(new QPushButton(localized("Book")), "bookAbsence", localized("Book the absence as work")))
    , m_break(called(new QPushButton(localized("Break")), "absenceWasBreak",
                     localized("The absence was not work"))) {
    // What only holds something is not spoken of.
    speakAs(*this, QAccessible::Client);
    setObjectName(QStringLiteral("absenceBar"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kAir, kMargin, kAir);
    rows->setSpacing(kAir);
    rows->addWidget(makeHead());
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTabKeyNavigation(false);
    rows->addWidget(m_list);
    m_answer = makeAnswer();
    rows->addLayout(m_answer);
    connect(m_list, &QListWidget::currentRowChanged, this, [this] { tellOfQuestion(); });
    connect(m_name, &QLineEdit::textChanged, this, [this] { offerBooking(); });
    connect(m_project, &QComboBox::currentIndexChanged, this, [this] { offerBooking(); });
    connect(m_name, &QLineEdit::returnPressed, this, [this] { book(); });
    connect(m_book, &QPushButton::clicked, this, [this] { book(); });
    connect(m_break, &QPushButton::clicked, this, [this] {
        if (const auto number = chosen())
            Q_EMIT wasBreak(*number);
    });
    setProjects({});
    hide();
}

QWidget* AbsenceBar::makeHead() {
    auto* head = new QWidget;
    auto* cells = new QHBoxLayout(head);
    cells->setContentsMargins(0, 0, 0, 0);
    m_text->setWordWrap(true);
    m_dismiss->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_dismiss->setAutoRaise(true);
    m_dismiss->setFocusPolicy(Qt::TabFocus);
    m_dismiss->setToolTip(localized("Do not ask about these absences"));
    connect(m_dismiss, &QToolButton::clicked, this, &AbsenceBar::dismissed);
    cells->addWidget(m_text, 1);
    cells->addWidget(m_dismiss, 0, Qt::AlignTop);
    return head;
}

QBoxLayout* AbsenceBar::makeAnswer() {
    auto* label = new PlainLabel(localized("&What did you do?"));
    label->setBuddy(m_name);
    // It is spoken in the place of the field's own name.
    label->setAccessibleName(m_name->accessibleName());
    m_name->setMinimumWidth(kNameWidth);
    m_name->setMaxLength(kLongestName);
    auto* completer = new QCompleter(m_names, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    m_name->setCompleter(completer);
    m_project->view()->setAccessibleName(m_project->accessibleName());
    m_project->setMinimumContentsLength(kLettersOfProject);
    m_project->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* said = new QHBoxLayout;
    said->addWidget(label);
    said->addWidget(m_name, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_project, 1);
    buttons->addWidget(m_book);
    buttons->addWidget(m_break);
    auto* answer = new QBoxLayout(QBoxLayout::LeftToRight);
    answer->setSpacing(kAir);
    answer->addLayout(said, 1);
    answer->addLayout(buttons);
    return answer;
}

void AbsenceBar::ask(const std::vector<Question>& questions) {
    const auto before = chosen();
    const bool isSaying = !m_name->text().isEmpty();
    int kept = 0;
    const bool isNew = !questions.empty() &&
                       (m_list->count() == 0 || m_list->item(0)->data(Qt::UserRole) != questions[0].number);
    {
        const QSignalBlocker quiet(m_list);
        m_list->clear();
        for (const Question& question : questions) {
            auto* row = new QListWidgetItem(question.text, m_list);
            row->setData(Qt::UserRole, question.number);
            if (isSaying && question.number == before)
                kept = m_list->count() - 1;
        }
        m_list->setCurrentRow(kept);
    }
    const int rows = std::min(m_list->count(), kMostRows);
    m_list->setFixedHeight(rows * m_list->sizeHintForRow(0) + 2 * m_list->frameWidth());
    m_list->setVisible(m_list->count() > 1);
    if (chosen() != before) {
        m_name->clear();
        m_project->setCurrentIndex(0);
    }
    tellOfQuestion();
    setVisible(!questions.empty());
    if (!isNew)
        return;
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void AbsenceBar::tellOfQuestion() {
    const QListWidgetItem* row = m_list->currentItem();
    const QString text =
        row ? localized("You were away: %@").replace(QLatin1String("%@"), row->text()) : QString();
    m_text->setText(text);
    m_text->setAccessibleName(text);
    offerBooking();
}

std::optional<int> AbsenceBar::chosen() const {
    const QListWidgetItem* row = m_list->currentItem();
    return row ? std::optional(row->data(Qt::UserRole).toInt()) : std::nullopt;
}

QList<QWidget*> AbsenceBar::controls() const {
    return {m_list, m_name, m_project, m_book, m_break, m_dismiss};
}

int AbsenceBar::project() const {
    return m_project->currentIndex() - 1;
}

void AbsenceBar::setNames(const QStringList& names) {
    m_names->setStringList(names);
}

void AbsenceBar::setProjects(const std::vector<Project>& projects) {
    const QString before = m_project->currentText();
    const QSignalBlocker quiet(m_project);
    m_project->clear();
    m_project->addItem(localized("No Project"));
    for (const Project& project : projects)
        m_project->addItem(dotOf(project.color, *this),
                           PlainText::cut(project.label, PlainText::kLongestEntry));
    m_project->setCurrentIndex(std::max(0, m_project->findText(before)));
    offerBooking();
}

void AbsenceBar::beginAnswer(int number) {
    for (int row = 0; row < m_list->count(); ++row)
        if (m_list->item(row)->data(Qt::UserRole) == number)
            m_list->setCurrentRow(row);
    m_name->setFocus(Qt::ShortcutFocusReason);
    m_name->selectAll();
}

void AbsenceBar::offerBooking() {
    m_book->setEnabled(chosen() && (!m_name->text().trimmed().isEmpty() || project() >= 0));
}

void AbsenceBar::book() {
    if (m_book->isEnabled())
        Q_EMIT booked(*chosen(), m_name->text().trimmed(), project());
}

void AbsenceBar::keyPressEvent(QKeyEvent* event) {
    // Back to what is below.
    if (event->key() == Qt::Key_Escape && isAncestorOf(focusWidget()))
        focusWidget()->clearFocus();
    else
        QFrame::keyPressEvent(event);
}

QSize AbsenceBar::minimumSizeHint() const {
    const QSize whole = QFrame::minimumSizeHint();
    // Whatever it needs on one line: narrower, it takes two.
    const QSize buttons = m_answer->itemAt(1)->minimumSize();
    const QSize said = m_answer->itemAt(0)->minimumSize();
    return {std::max(buttons.width(), said.width()) + 2 * kMargin, whole.height()};
}

// Many dark themes leave the pale yellow of tips, which is too bright for a question that may wait for hours.
void AbsenceBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.setOpacity(kTint);
    painter.fillRect(rect(), palette().color(QPalette::Active, QPalette::Highlight));
}

void AbsenceBar::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    m_answer->setDirection(width() < kRoomForOneLine ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}
