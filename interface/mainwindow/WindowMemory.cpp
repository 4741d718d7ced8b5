// SPDX-License-Identifier: MIT
#include "interface/mainwindow/WindowMemory.h"

#include "Classes/common/Settings.h"
#include "Classes/projects/ProjectRecord.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/mainwindow/TKConstrainedSplitView.h"
#include "interface/mainwindow/TKSearchField.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/outline/TimeTreeModel.h"

#include <QEvent>
#include <QHeaderView>

#include <chrono>

using namespace std::chrono_literals;

namespace {

// Whoever drags an edge changes the window many times a second.
constexpr auto kPatience = 500ms;
// Whatever the settings say: a column leaves room for the names.
constexpr int kWidestColumn = 600;

} // namespace

void WindowMemory::openRows(UserDefaults& defaults) {
    if (const PropertyListValue& open = defaults.object(kOpenTimers); !open.isAbsent())
        defaults.setObject(kTopLevelExpandedUUIDs, open);
}

WindowMemory::WindowMemory(MainWindow& window, UserDefaults& defaults, Account account)
    : m_window(window)
    , m_defaults(defaults) {
    restore(account);
    m_soon.setSingleShot(true);
    m_soon.setInterval(kPatience);
    connect(&m_soon, &QTimer::timeout, this, [this] { store(); });
    follow();
}

WindowMemory::~WindowMemory() {
    store();
}

void WindowMemory::restore(Account account) {
    if (const QByteArray* frame = m_defaults.object(kWindowFrame).asData())
        m_window.restoreGeometry(*frame);
    if (const auto width = m_defaults.integerForKey(kSidebarWidth); width > 0)
        m_window.splitView().setSizes({int(std::min<std::int64_t>(width, m_window.width())),
                                       std::max(1, m_window.width() - int(width))});
    m_window.actions().showSidebar->setChecked(!m_defaults.boolForKey(kSidebarHidden));
    TKOutlineDisplayView& table = m_window.mainTable();
    if (const auto width = m_defaults.integerForKey(kTimesWidth); width > 0)
        table.setChosenTimeWidth(int(std::min<std::int64_t>(width, kWidestColumn)));
    const bool isStored = !m_defaults.object(kTimersSorting).isAbsent();
    const bool isByTime = isStored
                              ? m_defaults.integerForKey(kTimersSorting) == TimeTreeModel::TimeSpentColumn
                              : account == Account::New;
    const bool isDown = isStored ? m_defaults.boolForKey(kTimersSortedDown) : isByTime;
    table.sortByColumn(isByTime ? TimeTreeModel::TimeSpentColumn : TimeTreeModel::ProgramColumn,
                       isDown ? Qt::DescendingOrder : Qt::AscendingOrder);
    HistoryOutline& history = m_window.historyPane().outline();
    if (const QByteArray* columns = m_defaults.object(kHistoryColumns).asData())
        history.restoreColumns(*columns);
}

void WindowMemory::follow() {
    const auto soon = [this] { m_soon.start(); };
    m_window.installEventFilter(this);
    connect(&m_window.splitView(), &QSplitter::splitterMoved, this, soon);
    connect(m_window.actions().showSidebar, &QAction::toggled, this, soon);
    for (QHeaderView* columns : {m_window.mainTable().header(), m_window.historyPane().outline().header()}) {
        connect(columns, &QHeaderView::sectionResized, this, soon);
        connect(columns, &QHeaderView::sortIndicatorChanged, this, soon);
    }
    const auto rowsSoon = [this] {
        m_areRowsOther = true;
        m_soon.start();
    };
    connect(&m_window.mainTable(), &QTreeView::expanded, this, rowsSoon);
    connect(&m_window.mainTable(), &QTreeView::collapsed, this, rowsSoon);
}

bool WindowMemory::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize ||
        event->type() == QEvent::WindowStateChange)
        m_soon.start();
    return QObject::eventFilter(watched, event);
}

void WindowMemory::store() {
    m_soon.stop();
    const QHeaderView& columns = *m_window.mainTable().header();
    const bool isSidebarHidden = !m_window.actions().showSidebar->isChecked();
    // Together, because whoever hears of a change reads all settings.
    PropertyListDictionary look{{kWindowFrame, m_window.saveGeometry()},
                                {kSidebarHidden, isSidebarHidden},
                                {kTimersSorting, columns.sortIndicatorSection()},
                                {kTimersSortedDown, columns.sortIndicatorOrder() == Qt::DescendingOrder},
                                {kHistoryColumns, m_window.historyPane().outline().header()->saveState()}};
    if (const int width = m_window.splitView().sizes().value(0); width > 0 && !isSidebarHidden)
        look.insert(kSidebarWidth, width);
    if (const auto width = m_window.mainTable().chosenTimeWidth())
        look.insert(kTimesWidth, *width);
    if (const auto open = m_areRowsOther ? rowsLeftOpen() : std::nullopt) {
        look.insert(kOpenTimers, *open);
        m_areRowsOther = false;
    }
    m_defaults.setObjects(look);
}

// Absent while the rows are not as the user has left them.
std::optional<PropertyListValue> WindowMemory::rowsLeftOpen() const {
    // A search opens rows by itself.
    const TKOutlineDisplayView& table = m_window.mainTable();
    const bool areAll = m_window.projectOutline().currentIndex().row() <= 0;
    if (!areAll || !m_window.isSeen() || !m_window.searchAppField().text().isEmpty())
        return std::nullopt;
    ProjectRecord open;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        const QModelIndex index = table.model()->index(row, 0);
        if (table.isExpanded(index))
            if (const auto item = TKOutlineDisplayView::itemAt(index); item && item->uuid())
                open.expand(*item->uuid());
    }
    return open.expandedEntry().isAbsent() ? PropertyListArray() : open.expandedEntry();
}
