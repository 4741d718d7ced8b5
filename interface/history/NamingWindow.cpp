// SPDX-License-Identifier: MIT
#include "interface/history/NamingWindow.h"

#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kWidth = 420;

} // namespace

NamingWindow::NamingWindow(QWidget* parent)
    : QDialog(parent, Qt::Sheet)
    , m_times(new PlainLabel)
    , m_name(new QLineEdit)
    , m_button(new QPushButton(localized("&Name"))) {
    setObjectName(QStringLiteral("namingWindow"));
    setWindowTitle(localized("Name This Time"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    m_times->setObjectName(QStringLiteral("namedTimes"));
    m_name->setObjectName(QStringLiteral("timeName"));
    m_button->setObjectName(QStringLiteral("nameIt"));
    auto* form = new QFormLayout(this);
    form->addRow(m_times);
    form->addRow(localized("&What was it?"), m_name);
    auto* note = new PlainLabel(
        localized("The time stays with its programs. The history notes what was changed by hand."));
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    form->addRow(note);
    auto* buttons = new QDialogButtonBox;
    // In the order in which they are shown: otherwise the toolkit's Tab would leave out the one that it made.
    buttons->addButton(m_button, QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    form->addRow(buttons);
    m_button->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_button->setEnabled(!text.trimmed().isEmpty()); });
    setMinimumWidth(kWidth);
}

void NamingWindow::openFor(const QString& times, const QString& name,
                           std::function<void(const QString&)> done) {
    m_done = std::move(done);
    m_times->setText(times);
    m_name->setAccessibleDescription(times);
    m_name->setText(name);
    m_name->selectAll();
    m_name->setFocus();
    m_button->setEnabled(!name.trimmed().isEmpty());
    open();
}

void NamingWindow::accept() {
    if (m_name->text().trimmed().isEmpty())
        return;
    QDialog::accept();
    if (const auto done = std::exchange(m_done, {}))
        done(m_name->text());
}
