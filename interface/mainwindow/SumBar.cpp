// SPDX-License-Identifier: MIT
#include "interface/mainwindow/SumBar.h"

#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/SumOfTimesLabel.h"
#include "interface/mainwindow/TKTimeSummaryTextField.h"
#include "interface/shell/Images.h"
#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int kIconSize = 16;
constexpr int kMargin = 16;
constexpr int kAir = 9;
constexpr int kGap = 24;
// "10000:00:00"
constexpr int kSumDigits = 11;
constexpr int kSumAir = 4;
// "00:00:00" and some space.
constexpr int kCutoffDigits = 9;
constexpr int kSmallestSlider = 60;
constexpr int kLargestSlider = 180;

int digitsWide(const QFont& font, int digits) {
    return QFontMetrics(font).horizontalAdvance(u'0') * digits;
}

} // namespace

SumBar::SumBar(QWidget* parent)
    : QWidget(parent)
    , m_cutoff(named(new CutoffSlider, QStringLiteral("cutOffSlider")))
    , m_cutoffCaption(named(new PlainLabel(localized("At least")), QStringLiteral("cutOffCaption")))
    , m_cutOffValueDisplay(named(new PlainLabel, QStringLiteral("cutOffValueDisplay")))
    , m_timeSumIcon(named(new PlainLabel, QStringLiteral("timeSumIcon")))
    , m_timeSumCaption(named(new TKTimeSummaryTextField, QStringLiteral("timeSumCaption")))
    , m_timeSum(named(new SumOfTimesLabel, QStringLiteral("timeSum"))) {
    m_cutoff->setMinimumWidth(kSmallestSlider);
    m_cutoff->setMaximumWidth(kLargestSlider);
    nameCutoff();
    m_cutoffCaption->setForegroundRole(QPalette::PlaceholderText);
    // Where there is no room for them, the words beside the numbers are hidden.
    for (QLabel* words : {m_cutoffCaption, static_cast<QLabel*>(m_timeSumCaption)})
        words->setMinimumWidth(1);
    m_timeSumCaption->setForegroundRole(QPalette::PlaceholderText);
    m_timeSumCaption->setToolTip(localized("Copies the sum in words"));
    connect(m_timeSumCaption, &TKTimeSummaryTextField::pressed, this, &SumBar::captionPressed);
    QFont strong = m_timeSum->font();
    strong.setBold(true);
    m_timeSum->setFont(strong);
    fitNumbers();
    connect(m_timeSum, &SumOfTimesLabel::clicked, this, &SumBar::sumClicked);
    auto* cells = new QHBoxLayout(this);
    // The field has some space of its own on the right.
    cells->setContentsMargins(kMargin, kAir, kMargin - 4, kAir);
    cells->addWidget(m_cutoffCaption);
    cells->addWidget(m_cutoff, 1);
    cells->addWidget(m_cutOffValueDisplay);
    cells->addSpacing(kGap);
    cells->addStretch(1);
    cells->addWidget(m_timeSumIcon);
    cells->addWidget(m_timeSumCaption);
    cells->addWidget(m_timeSum);
}

void SumBar::showCutoff(const QString& time) {
    m_cutoffTime = time;
    m_cutOffValueDisplay->setText(m_cutoff->isEnabled() ? time : QString());
}

void SumBar::setCutoffApplies(bool applies) {
    m_cutoff->setEnabled(applies);
    nameCutoff();
    showCutoff(m_cutoffTime);
}

void SumBar::nameCutoff() {
    const QString meaning = m_cutoff->isEnabled()
                                ? localized("Leaves out timers that have less time than this")
                                : localized("A project shows all its timers, however little time they have");
    m_cutoff->setToolTip(PlainText::toolTip(meaning));
    m_cutoff->setAccessibleDescription(meaning);
}

void SumBar::showSum(const QString& time) {
    m_timeSum->showTime(time);
}

void SumBar::showSumMode(const QString& image, const QString& caption) {
    const QIcon icon = Images::named(image);
    m_timeSumIcon->setPixmap(icon.pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
    m_timeSumIcon->setVisible(!icon.isNull());
    // Each naming is told to assistive programs, even by the same name.
    if (m_timeSum->accessibleName() != caption) {
        m_timeSum->setAccessibleName(caption);
        m_timeSumIcon->setToolTip(PlainText::toolTip(caption));
    }
    m_timeSumCaption->setText(caption);
    fitWords();
}

void SumBar::fitNumbers() {
    m_cutOffValueDisplay->setMinimumWidth(digitsWide(m_cutOffValueDisplay->font(), kCutoffDigits));
    // As high with a time as without.
    m_timeSum->setFixedSize(digitsWide(m_timeSum->font(), kSumDigits),
                            m_timeSum->fontMetrics().height() + kSumAir);
}

void SumBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitWords();
}

void SumBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    fitNumbers();
    fitWords();
}

// The kind of sum matters more than the word for the cut-off.
void SumBar::fitWords() {
    const int gap = layout()->spacing();
    const int forNumbers = 2 * kMargin + kSmallestSlider + m_cutOffValueDisplay->minimumWidth() + kGap +
                           kIconSize + m_timeSum->width() + 5 * gap;
    const int forKind = m_timeSumCaption->sizeHint().width();
    const int forCutoff = m_cutoffCaption->sizeHint().width() + gap;
    m_timeSumCaption->setVisible(width() >= forNumbers + forKind);
    m_cutoffCaption->setVisible(width() >= forNumbers + forKind + forCutoff);
}
