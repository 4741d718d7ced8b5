// SPDX-License-Identifier: MIT
#include "interface/preferences/RulesTab.h"

#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>

namespace {

constexpr int kMargin = 18;

} // namespace

RulesTab::RulesTab(QAbstractItemModel& rules)
    : m_ruleTableView(new QTreeView)
    , m_rowForEachTitle(new QCheckBox(localized("A row for each &title, in all programs")))
    , m_edit(makeButton("editRule", localized("&Edit…"), &RulesTab::editRequested))
    , m_duplicate(makeButton("duplicateRule", localized("D&uplicate…"), &RulesTab::duplicateRequested))
    , m_delete(makeButton("deleteRule", localized("&Delete…"), &RulesTab::deleteRequested)) {
    setObjectName(QStringLiteral("Match"));
    m_ruleTableView->setObjectName(QStringLiteral("ruleTableView"));
    m_ruleTableView->setAccessibleName(localized("Rules"));
    m_ruleTableView->setRootIsDecorated(false);
    // All rows have the same height, so the view need not measure thousands.
    m_ruleTableView->setUniformRowHeights(true);
    m_ruleTableView->setAlternatingRowColors(true);
    m_ruleTableView->setModel(&rules);
    m_ruleTableView->header()->setSectionsMovable(false);
    m_ruleTableView->resizeColumnToContents(0);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(makeButton("addRule", localized("&Add…"), &RulesTab::addRequested));
    for (QPushButton* button : {m_edit, m_duplicate, m_delete})
        buttons->addWidget(button);
    buttons->addStretch(1);
    auto* explanation = new PlainLabel(
        localized("In reports, rules leave out, rename and categorize programs. A row for each title changes "
                  "how the timers are kept."));
    explanation->setObjectName(QStringLiteral("whatRulesDo"));
    explanation->setWordWrap(true);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->addWidget(explanation);
    rows->addWidget(m_ruleTableView, 1);
    rows->addLayout(buttons);
    m_rowForEachTitle->setObjectName(QStringLiteral("rowForEachTitle"));
    explainRowsForTitles(*m_rowForEachTitle);
    rows->addWidget(m_rowForEachTitle);
    m_ruleTableView->installEventFilter(this);
    connect(m_ruleTableView, &QTreeView::doubleClicked, this, &RulesTab::editRequested);
    connect(m_ruleTableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RulesTab::updateButtons);
    connect(&rules, &QAbstractItemModel::modelReset, this, &RulesTab::updateButtons);
    updateButtons();
}

void RulesTab::explainRowsForTitles(QCheckBox& box) {
    const QString text = localized(
        "When a window gets another title, a new row begins instead of the window’s row "
        "getting its name. A title that comes back goes on in its old row. After switching this off, the "
        "row of a window’s latest title follows the window again, with the time it has.");
    box.setToolTip(PlainText::toolTip(text));
    box.setAccessibleDescription(text);
}

QPushButton* RulesTab::makeButton(const char* name, const QString& text, void (RulesTab::*request)()) {
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, request);
    return button;
}

bool RulesTab::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& press = *static_cast<QKeyEvent*>(event);
    if (press.modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT editRequested();
        return true;
    case Qt::Key_Delete:
        Q_EMIT deleteRequested();
        return true;
    default:
        return false;
    }
}

int RulesTab::selectedRow() const {
    const QModelIndexList rows = m_ruleTableView->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void RulesTab::select(int row) {
    const QAbstractItemModel& rules = *m_ruleTableView->model();
    if (row >= 0 && row < rules.rowCount())
        m_ruleTableView->setCurrentIndex(rules.index(row, 1));
}

void RulesTab::updateButtons() {
    for (QPushButton* button : {m_edit, m_duplicate, m_delete})
        button->setEnabled(selectedRow() >= 0);
}
