// SPDX-License-Identifier: MIT
#include "interface/mainwindow/ShownTimers.h"

#include "Classes/store/TimeStoreCategory.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/ListOptions.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QLineEdit>

#include <algorithm>
#include <unordered_set>

namespace {

constexpr std::chrono::seconds kBetweenFilterings{2};
constexpr std::chrono::milliseconds kFilteringTolerance{500};

} // namespace

ShownTimers::ShownTimers(MainWindow& window, TimeTracker& tracker, ProjectList& projects, RunLoop& runLoop,
                         const ListOptions& options, const TimeTreeModel::Rename& rename)
    : m_window(window)
    , m_tracker(tracker)
    , m_projects(projects)
    , m_runLoop(runLoop)
    , m_options(options)
    , m_programCell(
          {.isProjectShown = [this] { return !areAll(); },
           .tags = [&projects](const Identity& timer) { return projects.reverseProjectCache()->tags(timer); },
           .applications = [&tracker] { return tracker.timeSet(); },
           .hasShortTitles = [&options] { return options.hasShortTitles(); },
           .programOf = [&tracker](const auto& shown) { return tracker.tree().applicationHolding(shown); }})
    , m_all(TimeTreeModel::sourceOf(tracker), runLoop, rename, spokenMarks(), shownName())
    , m_ofProject(std::nullopt, runLoop, rename, spokenMarks(), shownName())
    , m_selectionOfAll(&m_all)
    , m_selectionOfProject(&m_ofProject)
    , m_expansion(window.mainTable(), projects)
    , m_sum(tracker, window,
            {.node = [this] { return m_project.get(); }, .isRest = [this] { return isRest(); }}) {
    m_all.setLive(false);
    m_ofProject.setLive(false);
    showTree(m_all);
    connectWindow();
    setCutoff(0);
}

ShownTimers::~ShownTimers() {
    m_reactions.reset();
    m_window.mainTable().setModel(nullptr);
}

TimeTreeModel::Marks ShownTimers::spokenMarks() const {
    return
        [this](TimeStoreItem& item, bool isTopLevel) { return m_programCell.spokenMarks(item, isTopLevel); };
}

TimeTreeModel::ShownName ShownTimers::shownName() const {
    return [this](TimeStoreItem& item, TimeStoreItem* above) { return m_programCell.shownName(item, above); };
}

void ShownTimers::connectWindow() {
    const auto forgetRows = [this] { m_sum.forgetRows(); };
    QObject::connect(&m_window.mainTable(), &TKOutlineDisplayView::selectionDidChange, &*m_reactions, [this] {
        m_sum.forgetRows();
        Q_EMIT selectionChanged();
    });
    for (TimeTreeModel* tree : {&m_all, &m_ofProject}) {
        // If a selected application gets another window, the sum includes it without a change of the
        // selection.
        QObject::connect(tree, &QAbstractItemModel::rowsInserted, &*m_reactions, forgetRows);
        QObject::connect(tree, &QAbstractItemModel::rowsRemoved, &*m_reactions, forgetRows);
        QObject::connect(tree, &QAbstractItemModel::modelReset, &*m_reactions, forgetRows);
    }
    // Titles may be shorter now.
    QObject::connect(&m_options, &ListOptions::changed, &*m_reactions,
                     [this] { m_window.mainTable().viewport()->update(); });
    QObject::connect(&m_window, &MainWindow::seenChanged, &*m_reactions, [this](bool isSeen) {
        m_shown->setLive(isSeen);
        followCounting();
        m_sum.refresh();
        restoreExpansion();
    });
}

void ShownTimers::show(const std::shared_ptr<TimeStoreCategory>& category,
                       const ProjectList::Project& record) {
    const QString search = m_window.searchAppField().text();
    m_project = category;
    m_record = record;
    m_window.sumBar().setCutoffApplies(!category);
    m_sum.forgetRows();
    m_filteredChanges = m_tracker.narrowing().changes();
    if (category) {
        category->setSearchString(search);
        if (isRest())
            category->setChildren(std::make_shared<const TimeStoreItem::Children>(m_projects.rest()));
        else
            m_tracker.updateTimeStoreCategory(*category, record->flattenedMembers());
        m_ofProject.setSource(TimeTreeModel::sourceOf(category));
        showTree(m_ofProject);
    } else {
        m_tracker.setSearchString(search);
        narrowAll();
        m_all.setSource(TimeTreeModel::sourceOf(m_tracker));
        showTree(m_all);
    }
    m_sum.refresh();
    m_expansion.want(record);
    restoreExpansion();
    followCounting();
    m_window.mainTable().readOutInvitation();
}

void ShownTimers::showTree(TimeTreeModel& tree) {
    if (m_shown == &tree)
        return;
    if (m_shown)
        m_shown->setLive(false);
    m_shown = &tree;
    tree.setLive(m_window.isSeen());
    TKOutlineDisplayView& table = m_window.mainTable();
    table.setTimeModel(tree);
    // The view has made one of its own; it would forget the earlier selection.
    delete table.selectionModel();
    table.setSelectionModel(&tree == &m_all ? &m_selectionOfAll : &m_selectionOfProject);
    m_sum.forgetRows();
    Q_EMIT selectionChanged();
}

void ShownTimers::restoreExpansion() {
    if (m_window.isSeen())
        m_expansion.restore(*m_shown);
}

void ShownTimers::searchText(const QString& text) {
    m_expansion.searchText(text);
}

void ShownTimers::setSearchString(const QString& text) {
    m_tracker.setSearchString(text);
    m_all.synchronize();
}

void ShownTimers::setCutoff(float seconds) {
    m_cutoff = seconds;
    m_tracker.setCutoffTime(seconds);
    followCounting();
    m_window.mainTable().readOutInvitation();
    m_window.sumBar().showCutoff(TimeTracker::timeStringForDouble(double(seconds)));
}

bool ShownTimers::isNarrowed() const {
    return !m_window.searchAppField().text().isEmpty() || m_cutoff > 0;
}

void ShownTimers::narrowAll() {
    // While a project is shown, the typed text narrows only that project.
    if (!areAll())
        m_tracker.setSearchString(m_window.searchAppField().text());
    if (m_tracker.narrowing().isStale())
        m_tracker.reloadSearchFiltering();
}

TimeStoreItem::Children ShownTimers::allRows() {
    const bool isLive = areAll() && m_window.isSeen();
    // Catches up with what changed while it was not live.
    m_all.setLive(true);
    m_all.synchronize();
    TimeStoreItem::Children items;
    for (int row = 0; row < m_all.rowCount(); ++row)
        items.push_back(m_all.item(m_all.index(row, 0)));
    m_all.setLive(isLive);
    return items;
}

TKTableLabelCell ShownTimers::cell(const QModelIndex& row) const {
    return m_programCell.cell(*m_shown->item(row), !row.parent().isValid());
}

QString ShownTimers::invitation() const {
    const QString search = m_window.searchAppField().text();
    if (isRest())
        return m_projects.rest().empty() ? localized("All time is in your projects.")
                                         : localized("No timer matches the search.");
    if (m_project) {
        const std::vector<Identity> members = m_record->flattenedMembers();
        const bool isEmpty =
            m_tracker.timeChildrenForChildUUIDs({members.begin(), members.end()}, false).empty();
        return isEmpty ? localized("This project is empty. Drag timers from “All Timers” onto it.")
                       : localized("No timer matches the search.");
    }
    if (m_tracker.fullTimeSet().empty())
        return localized("Press Start and carry on working. Your programs will appear here.");
    if (search.isEmpty())
        return localized("No timer reaches the minimum time.");
    const bool isFound = std::ranges::any_of(m_tracker.fullTimeSet(), [&](const auto& app) {
        return app->prunedObjectForSearchString(search, 0) != nullptr;
    });
    return isFound ? localized("No timer that matches the search reaches the minimum time.")
                   : localized("No timer matches the search.");
}

void ShownTimers::timersEdited() {
    m_isEdited = true;
    m_sum.forgetRows();
}

void ShownTimers::followCounting() {
    if (!isNarrowed() || !m_window.isSeen()) {
        m_nextFiltering = nullptr;
        return;
    }
    if (m_nextFiltering)
        return;
    filterAgain();
    m_nextFiltering =
        m_runLoop.scheduleRepeating(kBetweenFilterings, kFilteringTolerance, [this] { filterAgain(); });
}

void ShownTimers::filterAgain() {
    const std::uint64_t changes = m_tracker.narrowing().changes();
    const bool isCounted = std::exchange(m_filteredChanges, changes) != changes;
    if (!std::exchange(m_isEdited, false) && !isCounted)
        return;
    std::unordered_set<const TimeStoreNode*> shown;
    for (int row = 0; row < m_shown->rowCount(); ++row)
        shown.insert(&m_shown->item(m_shown->index(row, 0))->node());
    if (m_project)
        m_project->refreshSearch();
    else
        m_tracker.reloadSearchFiltering();
    m_shown->synchronize();
    // A search expands what it finds; rows that the user has collapsed since stay collapsed.
    if (m_expansion.isSearching())
        m_window.mainTable().expandRows([&](const QModelIndex& row) {
            const auto item = m_shown->item(row);
            return !shown.contains(&item->node());
        });
    m_sum.forgetRows();
    m_sum.refresh();
}
