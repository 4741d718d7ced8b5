// SPDX-License-Identifier: MIT
#include "interface/history/TimeSheetWindow.h"

#include "Classes/common/Settings.h"
#include "Classes/record/WholeFile.h"
#include "interface/export/FileExtension.h"
#include "interface/shell/Alerts.h"
#include "interface/shell/ButtonText.h"
#include "interface/shell/FirstSize.h"
#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QClipboard>
#include <QComboBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTextDocument>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr QSize kFirstSize(760, 480);
constexpr int kNotesLines = 3;
// By the position in the menu of minutes.
constexpr std::array kMinutes{0, 6, 15, 30};

} // namespace

TimeSheetWindow::TimeSheetWindow(UserDefaults& defaults, Alerts& alerts, QString documents, QWidget* parent)
    : QDialog(parent)
    , m_defaults(defaults)
    , m_alerts(alerts)
    , m_documents(std::move(documents))
    , m_table(new QStandardItemModel(this))
    , m_view(named(new QTableView, QStringLiteral("timeSheet"), localized("Time Sheet")))
    , m_sharing(named(new PlainLabel, QStringLiteral("sharedTime"))) {
    named(this, QStringLiteral("timeSheetWindow"));
    setWindowTitle(localized("Time Sheet"));
    setAccessibleName(windowTitle());
    m_view->setModel(m_table);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->verticalHeader()->hide();
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    named(m_view->horizontalHeader(), QStringLiteral("timeSheetHeader"));
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(makeChoices());
    rows->addWidget(m_view, 1);
    m_sharing->setWordWrap(true);
    rows->addWidget(m_sharing);
    rows->addWidget(makeWords());
    rows->addWidget(makeButtons());
    restoreChoices();
    resize(firstSize(*this, kFirstSize));
}

QComboBox* TimeSheetWindow::choice(const QString& name, const QString& label, const QStringList& texts) {
    auto* box = named(new QComboBox, name, label);
    box->addItems(texts);
    connect(box, &QComboBox::activated, this, [this] { choicesChanged(); });
    return box;
}

QWidget* TimeSheetWindow::makeChoices() {
    auto* page = new QWidget;
    auto* cells = new QHBoxLayout(page);
    cells->setContentsMargins(0, 0, 0, 0);
    m_minutes = choice(
        QStringLiteral("roundingMinutes"), localized("Rounding"),
        {localized("No Rounding"), localized("6 Minutes"), localized("15 Minutes"), localized("30 Minutes")});
    m_to = choice(QStringLiteral("roundingTo"), localized("Direction of rounding"),
                  {localized("To the Nearest"), localized("Up")});
    m_of = choice(QStringLiteral("roundingOf"), localized("What is rounded"),
                  {localized("Each Cell"), localized("Each Day")});
    m_form = choice(QStringLiteral("sheetForm"), localized("Form of times"),
                    {localized("Hours and Minutes"), localized("Decimal Hours")});
    for (QComboBox* box : {m_minutes, m_to, m_of})
        cells->addWidget(box);
    cells->addStretch(1);
    cells->addWidget(m_form);
    return page;
}

QWidget* TimeSheetWindow::makeWords() {
    auto* page = new QWidget;
    auto* rows = new QFormLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);
    m_name = named(new QLineEdit, QStringLiteral("sheetName"), localized("Name"));
    m_notes = named(new QPlainTextEdit, QStringLiteral("sheetNotes"), localized("Notes"));
    m_notes->setTabChangesFocus(true);
    m_notes->setFixedHeight(m_notes->fontMetrics().lineSpacing() * kNotesLines + 2 * m_notes->frameWidth() +
                            8);
    rows->addRow(localized("Name:"), m_name);
    rows->addRow(localized("Notes:"), m_notes);
    connect(m_name, &QLineEdit::editingFinished, this,
            [this] { m_defaults.setObject(kSheetName, m_name->text()); });
    return page;
}

QWidget* TimeSheetWindow::makeButtons() {
    auto* page = new QWidget;
    auto* cells = new QHBoxLayout(page);
    cells->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* name, const QString& text, auto act) {
        auto* button = named(new QPushButton(text), QLatin1String(name), buttonText(text));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, act);
        cells->addWidget(button);
    };
    add("copySheet", localized("&Copy"), [this] { copy(); });
    add("saveSheetCsv", localized("Save as C&SV…"), [this] { saveCsv(); });
    add("saveSheetPdf", localized("Save as P&DF…"), [this] { savePdf(); });
    add("printSheet", localized("&Print…"), [this] { print(); });
    cells->addStretch(1);
    add("closeSheet", localized("C&lose"), [this] { close(); });
    return page;
}

void TimeSheetWindow::restoreChoices() {
    const auto choose = [this](QComboBox* box, const QString& key) {
        box->setCurrentIndex(
            int(std::clamp<std::int64_t>(m_defaults.integerForKey(key), 0, box->count() - 1)));
    };
    choose(m_minutes, kSheetRounding);
    choose(m_to, kSheetRoundingUp);
    choose(m_of, kSheetRoundingByDay);
    choose(m_form, kSheetDecimal);
    m_name->setText(m_defaults.object(kSheetName).toString());
}

void TimeSheetWindow::choicesChanged() {
    m_defaults.setObject(kSheetRounding, std::int64_t(m_minutes->currentIndex()));
    m_defaults.setObject(kSheetRoundingUp, std::int64_t(m_to->currentIndex()));
    m_defaults.setObject(kSheetRoundingByDay, std::int64_t(m_of->currentIndex()));
    m_defaults.setObject(kSheetDecimal, std::int64_t(m_form->currentIndex()));
    refresh();
}

void TimeSheetWindow::show(const std::vector<RangeAnswer::Bar>& bars, QDate first, QDate last) {
    m_bars = bars;
    m_first = first;
    m_last = last;
    refresh();
    QDialog::show();
    raise();
    activateWindow();
}

void TimeSheetWindow::renew(const std::vector<RangeAnswer::Bar>& bars) {
    m_bars = bars;
    refresh();
}

SheetPage TimeSheetWindow::page() const {
    const SheetRounding rounding{.minutes = kMinutes[std::size_t(m_minutes->currentIndex())],
                                 .to = SheetRounding::To(m_to->currentIndex()),
                                 .of = SheetRounding::Of(m_of->currentIndex())};
    return {.sheet = TimeSheet(m_bars, m_first, m_last, rounding),
            .name = m_name->text(),
            .notes = m_notes->toPlainText(),
            .isDecimal = m_form->currentIndex() == 1};
}

void TimeSheetWindow::refresh() {
    for (QComboBox* box : {m_to, m_of})
        box->setEnabled(m_minutes->currentIndex() > 0);
    const SheetPage shown = page();
    setWindowTitle(localized("Time Sheet") + QStringLiteral(" – ") + TimeSheetForms::period(shown.sheet));
    m_sharing->setText(shown.sheet.rows().empty() ? localized("No work was recorded in this time.")
                                                  : TimeSheetForms::sharingText(shown.sheet));
    m_sharing->setVisible(!m_sharing->text().isEmpty());
    const QList<QStringList> rows = TimeSheetForms::table(shown);
    m_table->clear();
    m_table->setHorizontalHeaderLabels(rows.front());
    m_table->horizontalHeaderItem(0)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (qsizetype row = 1; row < rows.size(); ++row) {
        QList<QStandardItem*> items;
        for (const QString& text : rows[row]) {
            auto* item = new QStandardItem(PlainText::cut(text, PlainText::kLongestEntry));
            item->setTextAlignment(items.isEmpty() ? Qt::AlignLeft | Qt::AlignVCenter
                                                   : Qt::AlignRight | Qt::AlignVCenter);
            QFont font = m_view->font();
            font.setBold(row == rows.size() - 1 || items.size() == rows[row].size() - 1);
            item->setFont(font);
            items << item;
        }
        m_table->appendRow(items);
    }
    // The projects get what the days leave, but never less than they need.
    QHeaderView& heading = *m_view->horizontalHeader();
    heading.setSectionResizeMode(QHeaderView::ResizeToContents);
    if (heading.length() < m_view->viewport()->width())
        heading.setSectionResizeMode(0, QHeaderView::Stretch);
}

void TimeSheetWindow::copy() const {
    QGuiApplication::clipboard()->setMimeData(TimeSheetForms::copy(page()).release());
}

std::optional<QString> TimeSheetWindow::chosenFile(const QString& title, const QString& suffix) {
    const QString name = localized("Time Sheet") + u' ' + m_first.toString(Qt::ISODate) + suffix;
    const auto chosen = m_alerts.chooseExportFile(title, m_documents + u'/' + name);
    return chosen ? withExtension(m_alerts, *chosen, suffix) : std::nullopt;
}

void TimeSheetWindow::saveCsv() {
    const auto path = chosenFile(localized("Save the Time Sheet as CSV"), QStringLiteral(".csv"));
    if (!path)
        return;
    if (const Outcome saved = WholeFile::write(TimeSheetForms::csv(page()), *path); !saved)
        m_alerts.showError(localized("The time sheet could not be saved."), saved.failure().text);
}

void TimeSheetWindow::savePdf() {
    const auto path = chosenFile(localized("Save the Time Sheet as PDF"), QStringLiteral(".pdf"));
    if (!path)
        return;
    if (const Outcome saved = WholeFile::write(TimeSheetForms::pdf(page()), *path); !saved)
        m_alerts.showError(localized("The time sheet could not be saved."), saved.failure().text);
}

void TimeSheetWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(TimeSheetForms::pageLayout());
    printer.setDocName(windowTitle());
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        TimeSheetForms::document(page())->print(&printer);
}
