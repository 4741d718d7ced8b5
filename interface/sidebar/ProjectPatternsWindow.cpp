// SPDX-License-Identifier: MIT
#include "interface/sidebar/ProjectPatternsWindow.h"

#include "Classes/rules/TitlePattern.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>

namespace {

constexpr QSize kSize(520, 340);
enum Column { Program, Title, Expression };

// The tab key goes from cell to cell, and out at both ends, so that nobody is caught in it.
class CellTable : public QTableView {
protected:
    bool focusNextPrevChild(bool next) override {
        const QModelIndex end =
            next ? model()->index(model()->rowCount() - 1, model()->columnCount() - 1) : model()->index(0, 0);
        return currentIndex() == end ? QWidget::focusNextPrevChild(next)
                                     : QTableView::focusNextPrevChild(next);
    }
};

QString textAt(const QStandardItemModel& rows, int row, int column) {
    return cleanText(rows.item(row, column)->text()).trimmed();
}

} // namespace

ProjectPatternsWindow::ProjectPatternsWindow(QWidget* parent)
    : QDialog(parent, Qt::Sheet)
    , m_rows(new QStandardItemModel(this))
    , m_table(new CellTable)
    , m_project(new PlainLabel)
    , m_fault(new PlainLabel)
    , m_remove(new QPushButton(localized("&Remove"))) {
    setObjectName(QStringLiteral("projectPatterns"));
    setWindowTitle(localized("Patterns"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    m_rows->setHorizontalHeaderLabels(
        {localized("Program contains"), localized("Title contains"), localized("Expression")});
    addControls();
    connect(m_rows, &QStandardItemModel::itemChanged, this, &ProjectPatternsWindow::rowsChanged);
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(m_rows, change, this, &ProjectPatternsWindow::rowsChanged);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ProjectPatternsWindow::rowsChanged);
    resize(kSize);
}

void ProjectPatternsWindow::makeTable() {
    m_table->setObjectName(QStringLiteral("patternTable"));
    m_table->setAccessibleName(localized("Patterns"));
    m_table->setModel(m_rows);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    m_table->setTabKeyNavigation(true);
    QHeaderView& header = *m_table->horizontalHeader();
    header.setHighlightSections(false);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setSectionResizeMode(QHeaderView::Stretch);
    header.setSectionResizeMode(Expression, QHeaderView::ResizeToContents);
}

void ProjectPatternsWindow::addControls() {
    makeTable();
    m_project->setObjectName(QStringLiteral("patternProject"));
    m_project->setWordWrap(true);
    m_fault->setObjectName(QStringLiteral("patternFault"));
    m_fault->setWordWrap(true);
    auto* add = new QPushButton(localized("&Add"));
    add->setObjectName(QStringLiteral("addPattern"));
    connect(add, &QPushButton::clicked, this, &ProjectPatternsWindow::addEmptyRow);
    m_remove->setObjectName(QStringLiteral("removePattern"));
    connect(m_remove, &QPushButton::clicked, this, &ProjectPatternsWindow::removeRow);
    auto* edit = new QHBoxLayout;
    edit->addWidget(add);
    edit->addWidget(m_remove);
    edit->addStretch(1);
    auto* explanation =
        new PlainLabel(localized("Whatever matches belongs to the project in the history and in reports, "
                                 "past time included. The project’s own timers stay as they are."));
    explanation->setWordWrap(true);
    explanation->setForegroundRole(QPalette::PlaceholderText);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    m_save = buttons->button(QDialogButtonBox::Save);
    m_save->setObjectName(QStringLiteral("savePatterns"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        accept();
        m_saved(patterns());
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(m_project);
    rows->addWidget(m_table, 1);
    rows->addWidget(m_fault);
    rows->addLayout(edit);
    rows->addWidget(explanation);
    rows->addWidget(buttons);
}

void ProjectPatternsWindow::openFor(const QString& project, const PropertyListArray& patterns, Saved saved) {
    m_saved = std::move(saved);
    m_project->setText(PlainText::cut(project, PlainText::kLongestEntry));
    m_rows->setRowCount(0);
    for (const PropertyListValue& pattern : patterns)
        if (const auto* record = pattern.asDictionary())
            addRow(*record);
    if (m_rows->rowCount() == 0)
        addRow({});
    m_table->setCurrentIndex(m_rows->index(0, Program));
    m_table->setFocus();
    rowsChanged();
    open();
}

void ProjectPatternsWindow::addRow(const PropertyListDictionary& pattern) {
    auto* expression = new QStandardItem;
    expression->setCheckable(true);
    expression->setEditable(false);
    expression->setCheckState(pattern.value(kTitleRuleIsExpression).toBool() ? Qt::Checked : Qt::Unchecked);
    expression->setAccessibleText(localized("The title is a regular expression"));
    m_rows->appendRow({new QStandardItem(pattern.value(kTitleRuleProgram).toString()),
                       new QStandardItem(pattern.value(kTitleRuleTitle).toString()), expression});
}

void ProjectPatternsWindow::addEmptyRow() {
    addRow({});
    const QModelIndex place = m_rows->index(m_rows->rowCount() - 1, Program);
    m_table->setCurrentIndex(place);
    m_table->setFocus();
    m_table->edit(place);
}

void ProjectPatternsWindow::removeRow() {
    if (const QModelIndex current = m_table->currentIndex(); current.isValid())
        m_rows->removeRow(current.row());
}

PropertyListDictionary ProjectPatternsWindow::pattern(int row) const {
    PropertyListDictionary pattern;
    if (const QString program = textAt(*m_rows, row, Program); !program.isEmpty())
        pattern.insert(kTitleRuleProgram, program);
    if (const QString title = textAt(*m_rows, row, Title); !title.isEmpty())
        pattern.insert(kTitleRuleTitle, title);
    if (m_rows->item(row, Expression)->checkState() == Qt::Checked)
        pattern.insert(kTitleRuleIsExpression, true);
    return pattern;
}

PropertyListArray ProjectPatternsWindow::patterns() const {
    PropertyListArray patterns;
    for (int row = 0; row < m_rows->rowCount(); ++row)
        if (PropertyListDictionary each = pattern(row); !TitlePattern(each).fitsAll())
            patterns.emplace_back(std::move(each));
    return patterns;
}

void ProjectPatternsWindow::rowsChanged() {
    QString fault;
    for (int row = 0; row < m_rows->rowCount() && fault.isEmpty(); ++row)
        // A row that is being inserted is not complete yet.
        if (m_rows->item(row, Expression))
            fault = TitlePattern(pattern(row)).fault();
    m_fault->setText(
        fault.isEmpty()
            ? QString()
            : localized("This expression cannot be read: %@").replace(QLatin1String("%@"), fault));
    m_fault->setVisible(!fault.isEmpty());
    m_save->setEnabled(fault.isEmpty());
    m_remove->setEnabled(m_table->currentIndex().isValid());
}
