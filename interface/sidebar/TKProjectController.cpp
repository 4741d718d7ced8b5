// SPDX-License-Identifier: MIT
#include "interface/sidebar/TKProjectController.h"

#include "interface/labels/TKLabelViewController.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/Alerts.h"
#include "interface/sidebar/ProjectPatternsWindow.h"
#include "interface/sidebar/ProjectsCommand.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QDropEvent>
#include <QItemSelectionModel>
#include <QMenu>

#include <algorithm>

namespace {

// What the colour labels get while no project is selected.
constexpr int kNoProject = -1;

} // namespace

TKProjectController::TKProjectController(ProjectList& projects, ProjectNodes& nodes,
                                         NotificationCenter& notifications,
                                         TKOutlineDisplayView& projectOutline, Alerts& alerts,
                                         QUndoStack& undoStack, MainController mainController)
    : m_projects(projects)
    , m_nodes(nodes)
    , m_projectOutline(projectOutline)
    , m_alerts(alerts)
    , m_undoStack(undoStack)
    , m_mainController(std::move(mainController))
    , m_model(
          projects,
          {.rename = [this](const auto& project, const QString& label) { rename(project, label); },
           .dropOnProject = [this](const auto& items, const auto& project) { addToProject(items, project); },
           .dropBetween = [this](const auto& items, int index) { dropBetween(items, index); },
           .dropProject = [this](int row, int position,
                                 DropOperation operation) { dropProject(row, position, operation); }})
    , m_changes(
          projects.observeChanges([this](const ProjectListChange& change) { followReplacement(change); }))
    , m_refreshes(notifications.observe(kTicklogRefreshProjectsNotification,
                                        [this](const Notification&) { refreshProject(); })) {
    m_projectOutline.setModel(&m_model);
    m_projectOutline.serve(
        {.dataCell = [this](const QModelIndex& row) { return cell(row); },
         .deleteKey = [this](bool) { tableViewDidRecieveDeleteKey(); },
         .writeItems =
             [this](const QModelIndexList& rows) { return m_mainController.writeProject(rows.last().row()); },
         .dropLine =
             [this](const QDropEvent& dragged, const QModelIndex& onto) {
                 return m_model.dropLine(*dragged.mimeData(), dragged.dropAction(), onto);
             }});
    selectRow(0);
    QObject::connect(&m_projectOutline, &TKOutlineDisplayView::selectionDidChange, &m_receiver,
                     [this] { selectionDidChange(); });
    refreshProject();
}

TKProjectController::~TKProjectController() {
    m_projectOutline.setModel(nullptr);
}

int TKProjectController::selectedRow() const {
    const QModelIndexList rows = m_projectOutline.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void TKProjectController::selectRow(int row) {
    m_projectOutline.setCurrentIndex(m_model.index(row, 0));
}

ProjectList::Project TKProjectController::currentProject() const {
    return m_model.project(m_model.index(selectedRow(), 0));
}

bool TKProjectController::isMainItemSelected() const {
    return currentProject() == m_projects.mainItem();
}

bool TKProjectController::isProjectSelected() const {
    return m_model.isProject(m_model.index(selectedRow(), 0));
}

template<class Change>
void TKProjectController::change(const QString& text, Change&& change) {
    ProjectList::Snapshot before = m_projects.snapshot();
    change();
    auto command = std::make_unique<ProjectsCommand>(text, m_projects, std::move(before));
    if (command->changesAnything())
        m_undoStack.push(command.release());
}

void TKProjectController::addProject() {
    ProjectList::Project project;
    change(localized("New Project"), [&] { project = m_projects.addNewProjectWithItems({}); });
    beginEditing(project);
}

void TKProjectController::beginEditing(const ProjectList::Project& project) {
    const QModelIndex index = m_model.indexOf(*project);
    m_projectOutline.scrollTo(index);
    m_projectOutline.setCurrentIndex(index);
    m_projectOutline.setFocus();
    m_projectOutline.QAbstractItemView::edit(index);
}

void TKProjectController::renameProject() {
    if (isProjectSelected())
        beginEditing(currentProject());
}

void TKProjectController::rename(const ProjectList::Project& project, const QString& label) {
    const QString cleaned = cleanText(label);
    if (cleaned != project->label())
        change(localized("Rename Project"), [&] { m_projects.setLabel(*project, cleaned); });
}

void TKProjectController::editPatterns() {
    const ProjectList::Project project = currentProject();
    if (!isProjectSelected())
        return;
    if (!m_patternsWindow)
        m_patternsWindow = new ProjectPatternsWindow(m_projectOutline.window());
    m_patternsWindow->openFor(
        project->label(), project->patterns(), [this, project](const PropertyListArray& patterns) {
            change(localized("Change Patterns"), [&] { m_projects.setPatterns(*project, patterns); });
        });
}

void TKProjectController::removeProject() {
    const int row = selectedRow();
    if (!isProjectSelected())
        return;
    change(localized("Delete Project"), [&] { m_projects.removeProject(std::size_t(row - 1)); });
    selectRow(row - 1);
}

void TKProjectController::tableViewDidRecieveDeleteKey() {
    const ProjectList::Project project = currentProject();
    if (!isProjectSelected())
        return;
    QString consequence = localized("The timer set \"%@\" will be deleted.");
    const int answer =
        m_alerts.ask({.message = localized("Delete selected timer set?"),
                      .informativeText = consequence.replace(QLatin1String("%@"), project->label()),
                      .defaultButton = localized("Cancel"),
                      .alternateButton = localized("Delete"),
                      .otherButton = {}});
    if (answer != Alerts::Alternate)
        return;
    const bool wasLast = selectedRow() == int(m_projects.count());
    change(localized("Delete Project"), [&] { m_projects.deleteProject(*project); });
    if (wasLast)
        selectRow(int(m_projects.count()));
}

bool TKProjectController::canMoveProject(int by) const {
    const int row = selectedRow();
    return isProjectSelected() && row + by > 0 && row + by <= int(m_projects.count());
}

void TKProjectController::moveProject(int by) {
    if (!canMoveProject(by))
        return;
    const int row = selectedRow();
    change(localized("Move Project"),
           [&] { m_projects.moveProject(std::size_t(row - 1), std::size_t(row - 1 + by)); });
    selectRow(row + by);
}

void TKProjectController::branchProject() {
    m_mainController.branchUUIDs(currentProject()->flattenedMembers());
}

void TKProjectController::removeFromSelectedProject(const std::unordered_set<Identity>& timers) {
    if (!isProjectSelected())
        return;
    const ProjectList::Project project = currentProject();
    change(localized("Remove from Project"), [&] { m_projects.removeMembers(*project, timers); });
    updateFromProjectDict(project);
}

void TKProjectController::setSelectedColorTag(int tag) {
    const ProjectList::Project project = currentProject();
    if (!isProjectSelected())
        m_projects.setSelectedColorTag(*project, tag);
    else
        change(localized("Label Project"), [&] { m_projects.setSelectedColorTag(*project, tag); });
}

void TKProjectController::addColorLabels(QMenu& menu) {
    menu.addSeparator();
    auto* labels = new TKLabelViewController(menu, [this](int tag) { setSelectedColorTag(tag); });
    labels->setSelectedTag(isProjectSelected() ? currentProject()->colorTag() : kNoProject);
}

void TKProjectController::expandUUID(const Identity& timer) {
    m_projects.expandUUID(*currentProject(), timer, m_mainController.blockExpansionSaveWhileSearching());
}

void TKProjectController::collapseUUID(const Identity& timer) {
    m_projects.collapseUUID(*currentProject(), timer, m_mainController.blockExpansionSaveWhileSearching());
}

void TKProjectController::refreshProject() {
    refreshProjectForSelectedRow(selectedRow());
}

void TKProjectController::selectionDidChange() {
    refreshProject();
}

void TKProjectController::refreshProjectForSelectedRow(int row) {
    if (row < 0)
        return;
    const QModelIndex index = m_model.index(row, 0);
    const ProjectList::Project project = m_model.project(index);
    if (project == m_projects.restItem())
        m_mainController.findRest();
    if (project == m_projects.mainItem())
        m_mainController.showWithCategory(nullptr, project);
    else
        updateFromProjectDict(project);
    m_mainController.setSelectedTag(m_model.isProject(index) ? project->colorTag() : kNoProject);
}

void TKProjectController::updateFromProjectDict(const ProjectList::Project& record) {
    m_mainController.showWithCategory(m_nodes.timeStoreCategoryForProjectDict(*record), record);
}

TKTableLabelCell TKProjectController::cell(const QModelIndex& index) const {
    TKTableLabelCell cell;
    cell.iconType = index.row() == 0 ? TKTableLabelCell::AllTimersIcon : TKTableLabelCell::ProjectIcon;
    cell.setSelectedTag(m_model.project(index)->colorTag());
    cell.selected = m_projectOutline.selectionModel()->isSelected(index);
    return cell;
}

void TKProjectController::addToProject(const std::vector<Identity>& timers,
                                       const ProjectList::Project& project) {
    change(localized("Add to Project"), [&] { ProjectDrops(m_projects).acceptItems(timers, *project); });
    if (project == currentProject())
        refreshProject();
}

void TKProjectController::addToNewProject(const std::vector<Identity>& timers) {
    // Beyond the last project's index, which counts the main item.
    dropBetween(timers, int(m_projects.count()) + 1);
}

void TKProjectController::dropBetween(const std::vector<Identity>& items, int childIndex) {
    ProjectList::Project project;
    change(localized("New Project"),
           [&] { project = ProjectDrops(m_projects).acceptItems(items, std::ptrdiff_t(childIndex)); });
    // Later: the view is still handling the drop.
    QMetaObject::invokeMethod(
        &m_receiver, [this, project] { beginEditing(project); }, Qt::QueuedConnection);
}

void TKProjectController::dropProject(int draggedRow, int position, DropOperation operation) {
    ProjectDrops::AcceptedRow accepted;
    change(operation == DropOperation::Copy ? localized("Copy Project") : localized("Move Project"), [&] {
        accepted = ProjectDrops(m_projects).acceptProjectRow(std::size_t(draggedRow), position, operation);
    });
    if (accepted.selectedRow)
        selectRow(int(*accepted.selectedRow));
}

void TKProjectController::followReplacement(const ProjectListChange& change) {
    if (change.kind != ProjectListChange::Kind::Replace)
        return;
    if (change.phase == ChangePhase::Will) {
        m_selectedBefore = currentProject();
        m_selectedRowBefore = selectedRow();
        return;
    }
    // The model was registered first, so it has its new rows already.
    const QModelIndex again = m_model.indexOf(*m_selectedBefore);
    selectRow(again.isValid() ? again.row() : std::clamp(m_selectedRowBefore, 0, m_model.rowCount() - 1));
    refreshProject();
}
