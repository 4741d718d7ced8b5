// SPDX-License-Identifier: MIT
#include "interface/preferences/TitlesTab.h"

#include "Classes/history/History.h"
#include "Classes/report/Moment.h"
#include "interface/preferences/SettingsBinding.h"
#include "interface/preferences/SumsTable.h"
#include "interface/shell/Alerts.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/LocalTime.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTreeView>

namespace {

constexpr int kMargin = 18;
constexpr int kDays = 7;
constexpr QSize kMetSize(540, 400);
constexpr int kNarrowest = 90;

} // namespace

TitlesTab::TitlesTab(Services services)
    : m_services(std::move(services))
    , m_rules(m_services.settings.defaults())
    , m_table(new QTreeView)
    , m_state(new PlainLabel)
    , m_sheet(
          [this](const PropertyListDictionary& rule) {
              m_rules.put(m_editedRow, rule);
              select(m_editedRow >= 0 ? m_editedRow : m_rules.rowCount() - 1);
          },
          this) {
    setObjectName(QStringLiteral("Titles"));
    if (m_services.history) {
        m_reader = m_services.history->reader();
        m_pastReader = m_services.history->reader();
    }
    addControls();
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TitlesTab::updateButtons);
    connect(&m_rules, &QAbstractItemModel::modelReset, this, &TitlesTab::updateButtons);
    connect(&m_rules, &QAbstractItemModel::dataChanged, this, &TitlesTab::updateButtons);
    m_services.settings.observe([this] {
        m_rules.reload();
        reload();
    });
    updateButtons();
}

TitlesTab::~TitlesTab() = default;

QPushButton* TitlesTab::makeButton(const char* name, const QString& text, void (TitlesTab::*request)()) {
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, request);
    return button;
}

void TitlesTab::makeTable() {
    m_table->setObjectName(QStringLiteral("titleRuleTable"));
    m_table->setAccessibleName(localized("Rules for titles"));
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setModel(&m_rules);
    QHeaderView& header = *m_table->header();
    header.setSectionsMovable(false);
    header.setStretchLastSection(false);
    header.setMinimumSectionSize(1);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    for (const int column : {TitleRulesTable::Title, TitleRulesTable::Effect})
        header.setSectionResizeMode(column, QHeaderView::Stretch);
    header.setSectionResizeMode(TitleRulesTable::Program, QHeaderView::Interactive);
    header.resizeSection(TitleRulesTable::Program, kNarrowest);
    m_table->installEventFilter(this);
    connect(m_table, &QTreeView::doubleClicked, this, &TitlesTab::edit);
}

void TitlesTab::addControls() {
    makeTable();
    m_up = makeButton("moveTitleRuleUp", localized("&Up"), &TitlesTab::moveUp);
    m_down = makeButton("moveTitleRuleDown", localized("Do&wn"), &TitlesTab::moveDown);
    m_ofSelection = {makeButton("editTitleRule", localized("&Edit…"), &TitlesTab::edit),
                     makeButton("deleteTitleRule", localized("&Delete…"), &TitlesTab::remove)};
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(makeButton("addTitleRule", localized("&Add…"), &TitlesTab::add));
    for (QPushButton* button : {m_ofSelection[0], m_ofSelection[1], m_up, m_down})
        buttons->addWidget(button);
    buttons->addStretch(1);
    m_met = makeButton("showMetTitles", localized("&Matching Titles…"), &TitlesTab::showMet);
    m_apply = makeButton("applyTitleRules", localized("Apply to the &Past…"), &TitlesTab::applyToPast);
    auto* more = new QHBoxLayout;
    more->addWidget(m_met);
    more->addWidget(m_apply);
    more->addStretch(1);
    auto* explanation = new PlainLabel(
        localized("What these rules hide is never written. The first rule that matches decides."));
    explanation->setWordWrap(true);
    m_state->setObjectName(QStringLiteral("titleRulesState"));
    m_state->setWordWrap(true);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->addWidget(explanation);
    rows->addWidget(m_table, 1);
    rows->addWidget(m_state);
    rows->addLayout(buttons);
    rows->addLayout(more);
}

bool TitlesTab::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& press = *static_cast<QKeyEvent*>(event);
    if (press.modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        edit();
        return true;
    case Qt::Key_Delete:
        remove();
        return true;
    // Of whole rows it does not matter which cell was clicked.
    case Qt::Key_Space:
        toggle();
        return true;
    default:
        return false;
    }
}

int TitlesTab::selectedRow() const {
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void TitlesTab::select(int row) {
    if (row >= 0 && row < m_rules.rowCount())
        m_table->setCurrentIndex(m_rules.index(row, TitleRulesTable::Active));
}

void TitlesTab::updateButtons() {
    const int row = selectedRow();
    for (QPushButton* button : m_ofSelection)
        button->setEnabled(row >= 0);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_rules.rowCount());
    const RuledTitles* met = m_rules.met(row);
    m_met->setEnabled(met && met->titles > 0);
}

void TitlesTab::add() {
    m_editedRow = -1;
    m_sheet.openFor({});
}

void TitlesTab::edit() {
    m_editedRow = selectedRow();
    if (m_editedRow >= 0)
        m_sheet.openFor(m_rules.rule(m_editedRow));
}

void TitlesTab::remove() {
    const int row = selectedRow();
    if (row < 0)
        return;
    const int answer = m_services.alerts.ask(
        {.message = localized("Delete the rule?"),
         .informativeText = m_rules.index(row, TitleRulesTable::Title).data().toString() + u'\n' +
                            m_rules.index(row, TitleRulesTable::Effect).data().toString(),
         .defaultButton = localized("Keep"),
         .alternateButton = localized("Delete"),
         .otherButton = {}});
    if (answer != Alerts::Alternate)
        return;
    m_rules.remove(row);
    select(std::min(row, m_rules.rowCount() - 1));
}

void TitlesTab::toggle() {
    const QModelIndex active = m_rules.index(selectedRow(), TitleRulesTable::Active);
    const bool isActive = active.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    m_rules.setData(active, isActive ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void TitlesTab::move(int by) {
    const int row = selectedRow();
    if (row < 0 || row + by < 0 || row + by >= m_rules.rowCount())
        return;
    m_rules.exchange(row, row + by);
    select(row + by);
}

bool TitlesTab::isHistoryThere() const {
    return m_services.history && m_services.history->obstacle().isEmpty();
}

void TitlesTab::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    reload();
}

void TitlesTab::reload() {
    if (!isVisible())
        return;
    m_state->setVisible(!isHistoryThere());
    if (!isHistoryThere()) {
        m_state->setText(m_services.history ? m_services.history->obstacle()
                                            : localized("No history is kept."));
        return m_rules.showMet({});
    }
    const QDate today = dayOf(localTime(m_services.clock.now()), m_services.history->dayBegins());
    m_reader->ask<std::vector<RuledTitles>>(
        [rules = m_rules.rules(), first = today.addDays(1 - kDays)](SqliteDatabase& history) {
            return RuledTitles::metBy(history, rules, first);
        },
        [this](const Result<std::vector<RuledTitles>>& met) {
            // The history may have been switched off meanwhile.
            if (!isHistoryThere())
                return;
            m_rules.showMet(met ? *met : std::vector<RuledTitles>());
            m_state->setVisible(!met);
            m_state->setText(met ? QString() : localized("The history cannot be read."));
        });
}

void TitlesTab::showMet() {
    const RuledTitles* met = m_rules.met(selectedRow());
    if (!met)
        return;
    if (!m_metWindow) {
        m_metWindow = new QDialog(this, Qt::Sheet);
        m_metWindow->setObjectName(QStringLiteral("metTitles"));
        m_metWindow->setWindowTitle(localized("Titles of the Last 7 Days"));
        m_metWindow->setAccessibleName(m_metWindow->windowTitle());
        m_metWindow->setWindowModality(Qt::WindowModal);
        m_metTitles = SumsTable::make(m_metWindow);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
        connect(buttons, &QDialogButtonBox::rejected, m_metWindow, &QDialog::reject);
        auto* sum = new PlainLabel;
        sum->setObjectName(QStringLiteral("metSum"));
        auto* rows = new QVBoxLayout(m_metWindow);
        rows->addWidget(sum);
        rows->addWidget(SumsTable::view(*m_metTitles, m_metWindow->windowTitle()), 1);
        rows->addWidget(buttons);
        m_metWindow->resize(kMetSize);
    }
    SumsTable::show(*m_metTitles, met->longest);
    m_metWindow->findChild<QLabel*>(QStringLiteral("metSum"))
        ->setText(SumsTable::text(met->titles, met->length));
    m_metWindow->open();
}

void TitlesTab::applyToPast() {
    if (!isHistoryThere())
        return askBefore({{}, PastTitles(PropertyListValue(m_rules.rules()))});
    m_apply->setEnabled(false);
    m_pastReader->ask<RuledPast>(
        [rules = m_rules.rules()](SqliteDatabase& history) { return RuledPast::of(history, rules); },
        [this](const Result<RuledPast>& ruled) {
            m_apply->setEnabled(true);
            // If the history cannot be read, nothing is changed at all, rather than half of it.
            if (ruled)
                askBefore(*ruled);
            else
                m_services.alerts.showError(localized("The history cannot be read."), QString());
        });
}

void TitlesTab::askBefore(const RuledPast& ruled) {
    const int timers = m_services.countTimers(ruled.past);
    if (timers == 0 && ruled.changed.titles == 0)
        return m_services.alerts.showNotice(localized("The rules match nothing in the past."), QString());
    const QString count = localized("Timers: %@").replace(QLatin1String("%@"), QLocale().toString(timers));
    const int answer = m_services.alerts.ask(
        {.message = localized("Apply the rules to the past?"),
         .informativeText =
             SumsTable::text(ruled.changed.titles, ruled.changed.length) + QStringLiteral(" · ") + count +
             u'\n' +
             localized(
                 "What they hide is removed for good from the history, the timers and the projects. Neither "
                 "this nor any earlier step can be undone. Archives and backups stay as they are."),
         .defaultButton = localized("Cancel"),
         .alternateButton = localized("Apply"),
         .otherButton = {}});
    if (answer != Alerts::Alternate)
        return;
    m_services.holdOverPast(ruled.past, m_rules.rules());
    reload();
}
