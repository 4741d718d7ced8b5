// SPDX-License-Identifier: MIT
#include "interface/sidebar/SidebarPane.h"

#include "interface/labels/TKProjectFooterBox.h"
#include "interface/outline/OutlineCellDelegate.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "interface/sidebar/ProjectListModel.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int kSmallestWidth = 120;
constexpr int kBoxMargin = 6;
// "00:00:00", and another digit in the space around it.
constexpr int kTimeDigits = 6;
// The least room for names, with their pictures.
constexpr int kNameCharacters = 7;

QToolButton* boxButton(const char* name, const QString& text, const QString& description, QAction* action) {
    auto* button = named(new QToolButton, QLatin1String(name), description);
    button->setText(text);
    button->setToolTip(PlainText::toolTip(description));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    QObject::connect(button, &QToolButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::changed, button, [=] { button->setEnabled(action->isEnabled()); });
    return button;
}

} // namespace

SidebarPane::SidebarPane(QAction* addProject, QAction* removeProject)
    : m_projectOutline(
          named(new TKOutlineDisplayView, QStringLiteral("projectOutline"), localized("Projects"))) {
    setMinimumWidth(kSmallestWidth);
    m_projectOutline->setHeaderHidden(true);
    named(m_projectOutline->header(), QStringLiteral("projectOutlineHeader"));
    m_projectOutline->header()->setStretchLastSection(false);
    m_projectOutline->setRootIsDecorated(false);
    m_projectOutline->setIndentation(0);
    m_projectOutline->setSelectionMode(QAbstractItemView::SingleSelection);
    m_projectOutline->setDragDropMode(QAbstractItemView::DragDrop);
    m_projectOutline->setDefaultDropAction(Qt::MoveAction);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_projectOutline, 1);
    rows->addWidget(makeBottomBox(addProject, removeProject));
}

void SidebarPane::showTimes(bool areShown) {
    m_areTimesWanted = areShown;
    QHeaderView& columns = *m_projectOutline->header();
    columns.setSectionResizeMode(ProjectListModel::NameColumn, QHeaderView::Stretch);
    columns.setSectionResizeMode(ProjectListModel::TimeColumn, QHeaderView::Fixed);
    fitTimes();
}

void SidebarPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitTimes();
}

void SidebarPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitTimes();
}

void SidebarPane::fitTimes() {
    QHeaderView& columns = *m_projectOutline->header();
    if (columns.count() <= ProjectListModel::TimeColumn)
        return;
    const QFontMetrics metrics = m_projectOutline->fontMetrics();
    const int needed = OutlineCellDelegate::timeWidth(metrics, kTimeDigits);
    const bool hasRoom = width() >= needed + metrics.averageCharWidth() * kNameCharacters;
    columns.setSectionHidden(ProjectListModel::TimeColumn, !m_areTimesWanted || !hasRoom);
    if (m_areTimesWanted && hasRoom)
        columns.resizeSection(ProjectListModel::TimeColumn, needed);
}

QWidget* SidebarPane::makeBottomBox(QAction* addProject, QAction* removeProject) {
    auto* box = named(new TKProjectFooterBox(*m_projectOutline), QStringLiteral("bottomBox"));
    auto* cells = new QHBoxLayout(box);
    cells->setContentsMargins(kBoxMargin, kBoxMargin, kBoxMargin, kBoxMargin);
    cells->setSpacing(kBoxMargin / 2);
    cells->addWidget(
        boxButton("addProjectButton", QStringLiteral("+"), localized("New Project"), addProject));
    cells->addWidget(
        boxButton("removeProjectButton", QStringLiteral("−"), localized("Delete Project"), removeProject));
    cells->addStretch(1);
    return box;
}
