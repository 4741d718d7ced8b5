// SPDX-License-Identifier: MIT
#include "interface/history/BookingWindow.h"

#include "Classes/report/Moment.h"
#include "interface/history/PictureTexts.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

namespace {

constexpr int kWidth = 460;
// Milliseconds. Less would be told as nothing at all.
constexpr qint64 kLeastFree = 1000;

QDateTimeEdit* timeField(const char* objectName, const QString& name) {
    auto* field = new QDateTimeEdit;
    field->setObjectName(QLatin1String(objectName));
    field->setAccessibleName(name);
    field->setDisplayFormat(QLocale().dateTimeFormat(QLocale::ShortFormat));
    return field;
}

} // namespace

BookingWindow::BookingWindow(AskFree askFree, QWidget* parent)
    : QDialog(parent, Qt::Sheet)
    , m_askFree(std::move(askFree))
    , m_from(timeField("bookedFrom", localized("Begin")))
    , m_to(timeField("bookedTo", localized("End")))
    , m_name(new QLineEdit)
    , m_project(new QComboBox)
    , m_free(new PlainLabel)
    , m_button(new QPushButton(localized("Boo&k"))) {
    setObjectName(QStringLiteral("bookingWindow"));
    setWindowTitle(localized("Book Time"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    addControls();
    for (QDateTimeEdit* field : {m_from, m_to})
        connect(field, &QDateTimeEdit::dateTimeChanged, this, &BookingWindow::look);
    setMinimumWidth(kWidth);
}

void BookingWindow::addControls() {
    m_name->setObjectName(QStringLiteral("bookedName"));
    m_project->setObjectName(QStringLiteral("bookedProject"));
    m_project->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_free->setObjectName(QStringLiteral("bookedFree"));
    m_free->setWordWrap(true);
    m_button->setObjectName(QStringLiteral("bookIt"));
    auto* form = new QFormLayout(this);
    form->addRow(localized("&Begin:"), m_from);
    form->addRow(localized("&End:"), m_to);
    form->addRow(localized("&What was it?"), m_name);
    form->addRow(localized("&Project:"), m_project);
    form->addRow(m_free);
    auto* buttons = new QDialogButtonBox;
    // In the order in which they are shown: otherwise the toolkit's Tab would leave out the one that it made.
    buttons->addButton(m_button, QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    form->addRow(buttons);
    // Only what is in the window can be its default.
    m_button->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void BookingWindow::openFor(const Amendment::Piece& piece, const QStringList& projects,
                            std::function<void(const Booking&)> done) {
    m_done = std::move(done);
    m_from->setDateTime(QDateTime::fromMSecsSinceEpoch(piece.from));
    m_to->setDateTime(QDateTime::fromMSecsSinceEpoch(piece.to));
    m_name->clear();
    m_project->clear();
    m_project->addItem(localized("No Project"));
    for (const QString& project : projects)
        m_project->addItem(PlainText::cut(project, PlainText::kLongestEntry));
    m_name->setFocus();
    look();
    open();
}

Amendment::Piece BookingWindow::piece() const {
    // The fields keep seconds that they do not show: who books a gap means all of it.
    return {shownAs(m_from->date(), m_from->time()).toMSecsSinceEpoch(),
            shownAs(m_to->date(), m_to->time()).toMSecsSinceEpoch()};
}

void BookingWindow::look() {
    m_button->setEnabled(false);
    const Amendment::Piece asked = piece();
    if (asked.from >= asked.to) {
        m_free->setText(localized("It ends before it begins."));
        return;
    }
    m_askFree(asked, [this, asked](const Result<qint64>& free) { show(asked, free); });
}

void BookingWindow::show(const Amendment::Piece& asked, const Result<qint64>& free) {
    // Another piece is asked for by now.
    if (const Amendment::Piece now = piece(); now.from != asked.from || now.to != asked.to)
        return;
    const qint64 length = free ? *free : 0;
    const bool isFree = length >= kLeastFree;
    m_button->setEnabled(isFree);
    m_free->setText(!free     ? localized("The history cannot be read.")
                    : !isFree ? localized("No time is free there: you worked then, or it is still to come.")
                              : localized("%1 of it is free. Time that you worked stays as it is.")
                                    .replace(QLatin1String("%1"), PictureTexts::length(length)));
    m_button->setAccessibleDescription(m_free->text());
}

void BookingWindow::accept() {
    if (!m_button->isEnabled())
        return;
    QDialog::accept();
    if (const auto done = std::exchange(m_done, {}))
        done({piece(), m_name->text(), m_project->currentIndex() - 1});
}
